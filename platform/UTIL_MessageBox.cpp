#include "UTIL_MessageBox.h"

#include "RES_ICON_Reader.h"
#include "UTIL_Platform.h"
#include "UTIL_PushButton.h"
#include "UTIL_Skin.h"
#include "UTIL_WrapLabel.h"

#include <QAction>
#include <QApplication>
#include <QBoxLayout>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QTimer>
#include <QWindow>

#include <utility>
#include <vector>

namespace {

using Size = UTIL_Skin::Size;

constexpr int innerWidth = Size::dialogWidth - 2 * Size::margin;

} // namespace

/// What a pointer does beside a box, from the press that takes the box away until all of it can be done
/// again there: a release must not overtake its press. The events themselves can't be kept, those of one
/// pointer share their positions.
class UTIL_Elsewhere : public QObject
{
public:
    UTIL_Elsewhere() { qApp->installEventFilter(this); }

    void keep(QWindow& window, const QMouseEvent& event)
    {
        m_kept.push_back({&window, event.type(), event.globalPosition(), event.button(), event.buttons(),
                          event.modifiers()});
    }

    void deliver()
    {
        qApp->removeEventFilter(this);
        for (const Kept& each : std::exchange(m_kept, {})) {
            if (!each.window)
                continue;
            QMouseEvent event(each.type, each.window->mapFromGlobal(each.position), each.position,
                              each.button, each.buttons, each.modifiers);
            QCoreApplication::sendEvent(each.window, &event);
        }
        deleteLater();
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const bool isPointers =
            event->type() >= QEvent::MouseButtonPress && event->type() <= QEvent::MouseMove;
        if (!isPointers || !watched->isWindowType())
            return false;
        keep(static_cast<QWindow&>(*watched), static_cast<QMouseEvent&>(*event));
        return true;
    }

private:
    struct Kept
    {
        QPointer<QWindow> window;
        QEvent::Type type;
        QPointF position; ///< global
        Qt::MouseButton button;
        Qt::MouseButtons buttons;
        Qt::KeyboardModifiers modifiers;
    };

    std::vector<Kept> m_kept;
};

UTIL_MessageBox::UTIL_MessageBox(QWidget* parent, const QString& icon, const QString& text,
                                 const QStringList& buttons, std::optional<int> timeout)
    : UTIL_Dialog(FreeDialog, true, parent),
      m_iconName(icon),
      m_timeout(timeout),
      m_answer(int(buttons.size()) - 1)
{
    setAccessibleName(text);
    setWindowTitle(text);
    if (timeout && buttons.isEmpty()) { // a modal dialog never hears of a tap beside it
        setWindowFlags(Qt::Popup | Qt::FramelessWindowHint);
        setAttribute(Qt::WA_NoMouseReplay); // it does that itself, and when exec() is over
    }

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Size::margin, Size::messageMargin, Size::margin,
                               buttons.isEmpty() ? Size::messageMargin : Size::spacing);
    column->setSpacing(Size::spacing);
    if (const QPixmap picture = RES_ICON_Reader::getIcon(icon); !picture.isNull()) {
        auto* label = new QLabel(this);
        label->setPixmap(picture);
        label->setAlignment(Qt::AlignCenter);
        column->addWidget(label);
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
    setFixedSize(Size::dialogWidth, column->sizeHint().height());
}

UTIL_MessageBox::~UTIL_MessageBox()
{
    delete m_elsewhere;
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
    UTIL_MessageBox box(parent, icon, text, buttons);
    box.exec();
    return box.answer();
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
    if (m_timeout) {
        const int second = UTIL_Platform::instance()->timeoutSecond();
        QTimer::singleShot(std::max(0, *m_timeout * second), this, &QDialog::accept);
    }
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
    if (windowType() != Qt::Popup || rect().contains(event->position().toPoint()))
        return;
    // Asked while the box is there: just after it, a window system may not know yet.
    const QWidget* const behind = QApplication::widgetAt(event->globalPosition().toPoint());
    accept();
    if (!behind || !behind->window()->windowHandle())
        return;
    m_elsewhere = new UTIL_Elsewhere;
    m_elsewhere->keep(*behind->window()->windowHandle(), *event);
}

void UTIL_MessageBox::passOn()
{
    if (m_elsewhere)
        QMetaObject::invokeMethod(m_elsewhere, &UTIL_Elsewhere::deliver, Qt::QueuedConnection);
    m_elsewhere = nullptr;
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
    if (m_timeout)
        accept();
}
