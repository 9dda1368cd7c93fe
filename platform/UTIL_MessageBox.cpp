#include "UTIL_MessageBox.h"

#include "RES_ICON_Reader.h"
#include "UTIL_Accessible.h"
#include "UTIL_Modal.h"
#include "UTIL_Platform.h"
#include "UTIL_PushButton.h"
#include "UTIL_ScrollArea.h"
#include "UTIL_Skin.h"
#include "UTIL_WrapLabel.h"

#include <QAction>
#include <QApplication>
#include <QBoxLayout>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QScrollBar>
#include <QScroller>
#include <QTimer>
#include <QWindow>

#include <limits>
#include <utility>
#include <vector>

namespace {

using Size = UTIL_Skin::Size;

constexpr int innerWidth = Size::dialogWidth - 2 * Size::margin;

} // namespace

UTIL_MessageBox::UTIL_MessageBox(QWidget* parent, const QString& icon, const QString& text,
                                 const QStringList& buttons, std::optional<int> timeout)
    : UTIL_Dialog(FreeDialog, true, parent),
      m_iconName(icon),
      m_timeout(timeout),
      m_answer(int(buttons.size()) - 1)
{
    setAccessibleName(text);
    setWindowTitle(text);
    if (timeout && buttons.isEmpty()) { // a modal dialog gets no event for a tap beside it
        setWindowFlags(Qt::Popup | Qt::FramelessWindowHint);
        setAttribute(Qt::WA_NoMouseReplay); // the box passes taps on itself, when exec() is over
    }

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Size::margin, Size::messageMargin, Size::margin,
                               buttons.isEmpty() ? Size::messageMargin : Size::spacing);
    column->setSpacing(Size::spacing);
    QLabel* pictureLabel = nullptr;
    if (const QPixmap picture = RES_ICON_Reader::getIcon(icon); !picture.isNull()) {
        pictureLabel = new QLabel(this);
        pictureLabel->setPixmap(picture);
        pictureLabel->setAlignment(Qt::AlignCenter);
        column->addWidget(pictureLabel);
    }
    auto* label = new UTIL_WrapLabel(text, this);
    column->addWidget(label);
    if (!buttons.isEmpty()) {
        column->addSpacing(Size::spacing);
        column->addLayout(createButtons(buttons));
    }

    if (m_cancel >= 0)
        m_answer = m_cancel;

    label->setFixedSize(innerWidth, 0);
    const int room = Size::screenHeight - column->sizeHint().height();
    label->setMaximumLines(room / label->fontMetrics().lineSpacing());
    label->setFixedHeight(label->heightForWidth(innerWidth));
    if (column->sizeHint().height() > screenArea().height()) {
        if (pictureLabel)
            pictureLabel->hide();
        scroll(label, column);
    }
    setFixedSize(Size::dialogWidth, column->sizeHint().height());
}

// For a screen that is too low for the text: the keys stay, the text scrolls.
void UTIL_MessageBox::scroll(UTIL_WrapLabel* label, QVBoxLayout* column)
{
    const int keys = column->sizeHint().height() - label->height();
    const int room = std::max(label->fontMetrics().lineSpacing(), screenArea().height() - keys);
    if (room >= label->height())
        return;
    const int index = column->indexOf(label);
    const int width = innerWidth - Size::spacing;
    label->setMaximumLines(std::numeric_limits<int>::max());
    label->setFixedSize(width, label->heightForWidth(width));
    auto* area = new UTIL_ScrollArea(label, this);
    area->setFixedSize(innerWidth, room);
    column->insertWidget(index, area);
    QScroller::grabGesture(area->viewport(), QScroller::LeftMouseButtonGesture);
    m_scrollBar = area->verticalScrollBar();
}

QLayout* UTIL_MessageBox::createButtons(const QStringList& texts)
{
    std::vector<UTIL_PushButton*> keys;
    int widest = 0;
    for (const QString& text : texts) {
        const int index = int(keys.size());
        auto* key = new UTIL_PushButton(QString(), text, this);
        connect(key, &QPushButton::clicked, this, [this, index] { finish(index); });
        if (text == QLatin1String("Cancel") || text == tr("Cancel", "message box"))
            m_cancel = index;
        widest = std::max(widest, key->sizeHint().width());
        keys.push_back(key);
    }
    keys.front()->setDefault(true);
    keys.front()->setFocus();

    const int count = int(keys.size());
    const bool fitsRow = count * widest + (count - 1) * Size::spacing <= innerWidth;
    auto* box = new QBoxLayout(fitsRow ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    box->setSpacing(Size::spacing);
    for (UTIL_PushButton* key : keys)
        box->addWidget(key, 1);
    return box;
}

int UTIL_MessageBox::ask(QWidget* parent, const QString& icon, const QString& text,
                         const QStringList& buttons)
{
    UTIL_Modal box(new UTIL_MessageBox(parent, icon, text, buttons));
    const int harmless = box->answer();
    (void)box.run();
    return box ? box->answer() : harmless;
}

void UTIL_MessageBox::tell(QWidget* parent, const QString& icon, const QString& text,
                           const QStringList& buttons, int timeout)
{
    UTIL_Modal(new UTIL_MessageBox(parent, icon, text, buttons, timeout)).run();
}

void UTIL_MessageBox::finish(int answer)
{
    m_answer = answer;
    accept();
}

void UTIL_MessageBox::reject()
{
    if (m_cancel >= 0)
        finish(m_cancel);
}

void UTIL_MessageBox::showEvent(QShowEvent* event)
{
    UTIL_Dialog::showEvent(event);
    if (windowType() == Qt::Popup) // a dialog is told of by its window
        accessible::announce(*this);
    if (m_timeout) {
        const int second = UTIL_Platform::instance()->timeoutSecond();
        QTimer::singleShot(std::max(0, *m_timeout * second), this, [this] {
            if (!m_elsewhere) // the release ends it then
                accept();
        });
    }
}

void UTIL_MessageBox::hideEvent(QHideEvent* event)
{
    UTIL_Dialog::hideEvent(event);
    if (windowType() == Qt::Popup)
        accessible::endAnnouncement();
}

void UTIL_MessageBox::keyPressEvent(QKeyEvent* event)
{
    const bool taps = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter ||
                      event->key() == Qt::Key_Space || event->key() == Qt::Key_Select;
    if (m_timeout && taps) {
        accept();
        return;
    }
    const bool isModifier = event->key() >= Qt::Key_Shift && event->key() <= Qt::Key_ScrollLock;
    if (windowType() == Qt::Popup && event->key() != Qt::Key_Escape && !isModifier) {
        accept();
        m_key.reset(event->clone());
        return;
    }
    if (m_scrollBar && (event->key() == Qt::Key_PageUp || event->key() == Qt::Key_PageDown))
        QCoreApplication::sendEvent(m_scrollBar, event);
    else
        UTIL_Dialog::keyPressEvent(event);
}

int UTIL_MessageBox::exec()
{
    const QPointer<UTIL_MessageBox> self = this;
    const int result = UTIL_Dialog::exec();
    if (self)
        passOn();
    return result;
}

void UTIL_MessageBox::mousePressEvent(QMouseEvent* event)
{
    event->accept();
    if (m_elsewhere)
        keep(*event);
    if (m_elsewhere || windowType() != Qt::Popup || rect().contains(event->position().toPoint()))
        return;
    const QWidget* const behind = QApplication::widgetAt(event->globalPosition().toPoint());
    m_elsewhere = behind ? behind->window()->windowHandle() : nullptr;
    if (m_elsewhere)
        keep(*event);
    else
        accept(); // on another program's window
}

void UTIL_MessageBox::mouseMoveEvent(QMouseEvent* event)
{
    if (m_elsewhere)
        keep(*event);
    else
        UTIL_Dialog::mouseMoveEvent(event);
}

// The events themselves can't be kept: those of one pointer share their positions.
void UTIL_MessageBox::keep(const QMouseEvent& event)
{
    m_kept.push_back(
        {event.type(), event.globalPosition(), event.button(), event.buttons(), event.modifiers()});
}

void UTIL_MessageBox::passOn()
{
    for (const Kept& each : std::exchange(m_kept, {})) {
        const auto repeat = [each, window = m_elsewhere.data()] {
            QMouseEvent event(each.type, window->mapFromGlobal(each.position), each.position, each.button,
                              each.buttons, each.modifiers);
            QCoreApplication::sendEvent(window, &event);
        };
        if (m_elsewhere)
            QMetaObject::invokeMethod(m_elsewhere, repeat, Qt::QueuedConnection);
    }
    QWidget* const window = parentWidget() ? parentWidget()->window() : nullptr;
    const auto key = std::exchange(m_key, {});
    if (!key || !window)
        return;
    const QKeySequence keys(key->keyCombination());
    for (QAction* action : window->findChildren<QAction*>()) {
        if (action->shortcuts().contains(keys)) {
            QMetaObject::invokeMethod(action, &QAction::trigger, Qt::QueuedConnection);
            return;
        }
    }
    QWidget* const focused = window->focusWidget();
    QCoreApplication::postEvent(focused ? focused : window, key->clone());
}

void UTIL_MessageBox::mouseReleaseEvent(QMouseEvent* event)
{
    event->accept();
    if (m_elsewhere)
        keep(*event);
    if (m_timeout && !event->buttons())
        accept();
}
