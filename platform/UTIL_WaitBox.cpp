#include "UTIL_WaitBox.h"

#include "UTIL_Modal.h"
#include "UTIL_PushButton.h"
#include "UTIL_Skin.h"
#include "UTIL_WrapLabel.h"

#include <QElapsedTimer>
#include <QFutureWatcher>
#include <QKeyEvent>
#include <QPainter>
#include <QThread>
#include <QTimerEvent>
#include <QVBoxLayout>

#include <algorithm>

namespace {

using Size = UTIL_Skin::Size;

constexpr int patience = 100; ///< milliseconds for which nobody needs an explanation
constexpr int pause = 1;
constexpr int beat = 40;
constexpr int beatsAcross = 30;
constexpr int trackHeight = 6;
constexpr int innerWidth = Size::dialogWidth - 2 * Size::margin;

bool isDoneSoon(const QFuture<void>& work)
{
    QElapsedTimer timer;
    timer.start();
    while (!work.isFinished() && !timer.hasExpired(patience))
        QThread::msleep(pause);
    return work.isFinished();
}

} // namespace

UTIL_WaitBox::UTIL_WaitBox(QWidget* parent, const QString& text) : UTIL_Dialog(FreeDialog, true, parent)
{
    setWindowTitle(text);
    setAccessibleName(text);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Size::margin, Size::messageMargin, Size::margin, Size::spacing);
    column->setSpacing(Size::spacing);
    auto* label = new UTIL_WrapLabel(text, this);
    label->setFixedSize(innerWidth, label->heightForWidth(innerWidth));
    auto* key = new UTIL_PushButton(QString(), tr("Cancel", "WAIT_BOX;SOFTKEY_1BUTTON"), this);
    key->setFlags(UTIL_PushButton::SecondSoftKey | UTIL_PushButton::Outlined);
    key->setAutoDefault(false);
    setFocusPolicy(Qt::StrongFocus);
    setFocus();
    column->addWidget(label);
    column->addSpacing(trackHeight + 2 * Size::spacing);
    column->addWidget(key);
    setFixedSize(Size::dialogWidth, column->sizeHint().height());
    connect(key, &QPushButton::clicked, this, &UTIL_WaitBox::reject);
    m_beat.start(beat, this);
}

bool UTIL_WaitBox::run(QWidget* parent, const QString& text, QFuture<void> work)
{
    if (isDoneSoon(work))
        return true;
    auto* const waiting = new UTIL_WaitBox(parent, text);
    UTIL_Modal box(waiting);
    QFutureWatcher<void> watcher;
    connect(&watcher, &QFutureWatcher<void>::finished, waiting, &QDialog::accept);
    watcher.setFuture(work);
    const bool isDone = box.isAccepted();
    if (!isDone)
        work.cancel();
    return isDone;
}

QRect UTIL_WaitBox::track() const
{
    const int bottom = height() - Size::spacing - Size::keyHeight - 2 * Size::spacing;
    return {Size::margin, bottom - trackHeight, innerWidth, trackHeight};
}

void UTIL_WaitBox::keyPressEvent(QKeyEvent* event)
{
    static constexpr Qt::Key arrows[] = {Qt::Key_Left, Qt::Key_Up, Qt::Key_Right, Qt::Key_Down};
    if (std::ranges::find(arrows, event->key()) != std::end(arrows))
        focusNextChild();
    else
        UTIL_Dialog::keyPressEvent(event);
}

void UTIL_WaitBox::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_beat.timerId())
        return UTIL_Dialog::timerEvent(event);
    m_step = (m_step + 1) % (2 * beatsAcross);
    update(track());
}

/// How long it will take is unknown, so a bar moves to and fro.
void UTIL_WaitBox::paintEvent(QPaintEvent* event)
{
    UTIL_Dialog::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const QRectF groove = track();
    painter.setBrush(UTIL_Skin::color(UTIL_Skin::Color::Border));
    painter.drawRoundedRect(groove, trackHeight / 2.0, trackHeight / 2.0);
    const int way = m_step < beatsAcross ? m_step : 2 * beatsAcross - m_step;
    QRectF piece(groove.topLeft(), QSizeF(groove.width() / 4, groove.height()));
    piece.translate((groove.width() - piece.width()) * way / beatsAcross, 0);
    painter.setBrush(UTIL_Skin::color(UTIL_Skin::Color::Accent));
    painter.drawRoundedRect(piece, trackHeight / 2.0, trackHeight / 2.0);
}
