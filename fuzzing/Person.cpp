#include "Person.h"

#include <KORVA_Canvas.h>
#include <KORVA_EditCanvas.h>

namespace fuzz {

Person::Person(KORVA_EditCanvas& editor, Bytes& bytes)
    : m_editor(editor),
      m_bytes(bytes),
      m_surface(*editor.canvas()),
      m_fingers(*editor.window()),
      m_pen(*editor.window())
{
    qApp->installEventFilter(this);
}

bool Person::eventFilter(QObject* watched, QEvent* event)
{
    const auto* widget = event->type() == QEvent::Show ? qobject_cast<QWidget*>(watched) : nullptr;
    if (widget && widget->windowType() == Qt::Popup)
        QMetaObject::invokeMethod(this, &Person::answerPopup, Qt::QueuedConnection);
    return false;
}

QPoint Person::point()
{
    constexpr int beyond = 20;
    constexpr int steps = 0x100;
    const auto within = [this](int side) { return m_bytes.next() * (side + 2 * beyond) / steps - beyond; };
    const int x = within(m_surface.width());
    return {x, within(m_surface.height())};
}

QPoint Person::step()
{
    constexpr int farthest = 9;
    const int x = m_bytes.between(-farthest, farthest);
    return {x, m_bytes.between(-farthest, farthest)};
}

Qt::MouseButton Person::button()
{
    static constexpr Qt::MouseButton buttons[] = {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton,
                                                  Qt::BackButton};
    return buttons[m_bytes.below(std::size(buttons))];
}

QPoint Person::inWindow(QPoint at) const
{
    return m_surface.mapTo(m_surface.window(), at);
}

bool Person::isOnScreen() const
{
    return m_surface.isVisible() && m_surface.window()->windowHandle();
}

// --- Mouse

void Person::press()
{
    m_at = point();
    send(QEvent::MouseButtonPress, Qt::LeftButton);
}

void Person::pressAny()
{
    m_at = point();
    send(QEvent::MouseButtonPress, button());
}

void Person::move()
{
    m_at += step();
    send(QEvent::MouseMove, Qt::NoButton);
}

void Person::leap()
{
    m_at = point();
    send(QEvent::MouseMove, Qt::NoButton);
}

void Person::release()
{
    send(QEvent::MouseButtonRelease, Qt::LeftButton);
}

void Person::releaseAny()
{
    m_at = point();
    send(QEvent::MouseButtonRelease, button());
}

void Person::doubleClick()
{
    send(QEvent::MouseButtonDblClick, Qt::LeftButton);
}

void Person::send(QEvent::Type type, Qt::MouseButton button)
{
    static constexpr Qt::KeyboardModifiers modifiers[] = {Qt::NoModifier, Qt::NoModifier, Qt::ShiftModifier,
                                                          Qt::ControlModifier};
    QWidget* child = m_surface.childAt(m_at);
    QWidget* under = child ? child : &m_surface;
    if (!m_held)
        m_grabber = under;
    if (type == QEvent::MouseButtonRelease)
        m_held &= ~Qt::MouseButtons(button);
    else
        m_held |= button;
    QWidget* receiver = m_grabber ? m_grabber.data() : under;
    QMouseEvent event(type, receiver->mapFrom(&m_surface, QPointF(m_at)),
                      m_surface.mapToGlobal(QPointF(m_at)), button, m_held,
                      modifiers[m_bytes.below(std::size(modifiers))]);
    QCoreApplication::sendEvent(receiver, &event);
}

void Person::wheel()
{
    constexpr int notch = 15; // of 120
    const QPointF at(point());
    const int turn = m_bytes.between(-16, 16) * notch;
    const Qt::KeyboardModifiers modifiers = m_bytes.chance() ? Qt::ControlModifier : Qt::NoModifier;
    QWheelEvent event(at, m_surface.mapToGlobal(at), {},
                      m_bytes.chance() ? QPoint(0, turn) : QPoint(turn, 0), m_held, modifiers,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&m_surface, &event);
}

void Person::pressOnEditor()
{
    constexpr int steps = 0x100;
    const int x = m_bytes.next() * m_editor.width() / steps;
    const QPoint at(x, m_bytes.next() * m_editor.height() / steps);
    QPointer<QWidget> receiver = m_editor.childAt(at);
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        if (!receiver)
            return;
        const bool isPress = type == QEvent::MouseButtonPress;
        QMouseEvent event(type, receiver->mapFrom(&m_editor, QPointF(at)),
                          m_editor.mapToGlobal(QPointF(at)), Qt::LeftButton,
                          isPress ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(receiver, &event);
    }
}

/// Chooses one of its rows, or none.
void Person::answerPopup()
{
    while (QWidget* popup = QApplication::activePopupWidget()) {
        QList<QAction*> rows = popup->actions();
        rows.removeIf([](const QAction* row) { return !row->isEnabled() || row->isSeparator(); });
        const int row = m_bytes.next();
        const QPointer<QWidget> still = popup;
        popup->close();
        if (still && row < rows.size())
            rows[row]->trigger();
    }
}

// --- Keyboard and input method

void Person::sendKey(Qt::Key key, Qt::KeyboardModifiers modifiers, const QString& text)
{
    for (const QEvent::Type type : {QEvent::ShortcutOverride, QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, modifiers, text);
        QCoreApplication::sendEvent(&m_surface, &event);
    }
}

void Person::key()
{
    static const std::pair<Qt::Key, const char*> keys[] = {
        {Qt::Key_Return, "\r"},   {Qt::Key_Enter, "\n"},      {Qt::Key_Backspace, "\b"},
        {Qt::Key_Delete, "\x7f"}, {Qt::Key_Tab, "\t"},        {Qt::Key_Escape, "\x1b"},
        {Qt::Key_Space, " "},     {Qt::Key_Left, ""},         {Qt::Key_Right, ""},
        {Qt::Key_Up, ""},         {Qt::Key_Down, ""},         {Qt::Key_PageUp, ""},
        {Qt::Key_PageDown, ""},   {Qt::Key_BracketLeft, "["}, {Qt::Key_BracketRight, "]"},
        {Qt::Key_Shift, ""},      {Qt::Key_Home, ""},         {Qt::Key_F10, ""},
        {Qt::Key_Menu, ""},       {Qt::Key_unknown, "\x01"}};
    static constexpr Qt::KeyboardModifiers modifiers[] = {Qt::NoModifier, Qt::ShiftModifier,
                                                          Qt::ControlModifier, Qt::AltModifier};
    const auto& [code, text] = keys[m_bytes.below(std::size(keys))];
    sendKey(code, modifiers[m_bytes.below(std::size(modifiers))], QString(text));
}

void Person::type()
{
    static const QString texts[] = {"a",
                                    "W",
                                    "i",
                                    " ",
                                    u"\u00e4"_qs,
                                    u"\u6f22\u5b57"_qs,
                                    "a\tb",
                                    u"\u0301"_qs,
                                    u"e\u0301"_qs,
                                    u"\U0001f600"_qs,
                                    u"\u05d0\u05d1"_qs,
                                    "word word",
                                    "\r\n",
                                    u"\ufffd"_qs,
                                    u"\u200b"_qs,
                                    QString(QChar(0xd800))};
    sendKey(Qt::Key_A, Qt::NoModifier, texts[m_bytes.below(std::size(texts))]);
}

void Person::compose()
{
    static const QString texts[] = {{}, "n", "ni hao", u"\u4f60\u597d"_qs, "a\nb", u"\U0001f600"_qs};
    constexpr int longest = 5;
    QList<QInputMethodEvent::Attribute> attributes;
    if (m_bytes.chance()) {
        const int start = m_bytes.between(-1, longest);
        attributes.append({QInputMethodEvent::Cursor, start, m_bytes.between(0, 2), {}});
    }
    QInputMethodEvent event(texts[m_bytes.below(std::size(texts))], attributes);
    const QString committed = texts[m_bytes.below(std::size(texts))];
    const int from = m_bytes.between(-longest, longest);
    event.setCommitString(committed, from, m_bytes.between(0, longest));
    QCoreApplication::sendEvent(&m_surface, &event);
}

void Person::askInputMethod()
{
    for (int bit = 0; bit < 32; ++bit)
        (void)m_editor.canvas()->inputMethodQuery(Qt::InputMethodQuery(1U << bit));
}

// --- Fingers and pen

void Person::touch()
{
    constexpr int fingers = 3;
    const int finger = m_bytes.below(fingers);
    const QPoint at = point();
    if (!isOnScreen() || m_down.contains(finger))
        return;
    m_down[finger] = at;
    m_fingers.press(finger, inWindow(at));
}

void Person::moveFinger()
{
    const int which = m_bytes.next();
    const QPoint way = m_bytes.chance() ? step() : 8 * step();
    if (!isOnScreen() || m_down.isEmpty())
        return;
    const int finger = m_down.keys().at(which % m_down.size());
    m_fingers.move(finger, inWindow(m_down[finger] += way));
}

void Person::lift()
{
    const int which = m_bytes.next();
    if (!isOnScreen() || m_down.isEmpty())
        return;
    const int finger = m_down.keys().at(which % m_down.size());
    m_down.remove(finger);
    m_fingers.release(finger);
}

void Person::cancelTouch()
{
    if (isOnScreen())
        m_fingers.cancel();
}

void Person::bringPen()
{
    m_end = m_bytes.chance() ? support::Tablet::Eraser : support::Tablet::Tip;
    m_pen.enter(m_end);
}

void Person::takePenAway()
{
    m_pen.leave(m_end);
}

void Person::penDown()
{
    const QPoint at = point();
    if (!isOnScreen())
        return;
    m_isPenDown = true;
    m_at = at;
    m_pen.press(inWindow(at), m_end, m_bytes.below(8) == 7 ? Qt::RightButton : Qt::LeftButton);
}

void Person::penMove()
{
    m_at += step();
    if (isOnScreen())
        m_pen.move(inWindow(m_at), m_end);
}

void Person::penUp()
{
    if (!isOnScreen() || !std::exchange(m_isPenDown, false))
        return;
    m_pen.release(inWindow(m_at), m_end);
}

} // namespace fuzz
