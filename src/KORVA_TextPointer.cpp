#include "KORVA_Text.h"

#include "KORVA_Canvas.h"
#include "KORVA_Pixel.h"

#include <QGuiApplication>
#include <QInputMethod>
#include <QMouseEvent>

#include <utility>

// What a pointer does: a tap opens a text, a drag moves the open one.

namespace {

constexpr int tapRadius = 3; // pixels; a release as far away as this is a drag
constexpr int reach = 4;     // pixels beside the letters

} // namespace

bool KORVA_Text::isTap(QPoint press, QPoint release)
{
    const QPoint moved = release - press;
    return qAbs(moved.x()) < tapRadius && qAbs(moved.y()) < tapRadius;
}

void KORVA_Text::mousePressEvent(QMouseEvent* event)
{
    const QPoint at = pixel::at(event->position());
    m_button = event->button();
    if (isOnText(at)) {
        m_hold = Held;
        m_pressed = at;
        m_grip = m_home - at;
    } else {
        beginTap(at);
    }
}

void KORVA_Text::beginTap(QPoint at)
{
    m_blink.stop();
    hideCursor();
    if (m_state == Open)
        close();
    m_cursor = at;
    m_state = Pressed;
}

void KORVA_Text::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != m_button)
        return; // the canvas hands on no other press, but every release
    const QPoint p = pixel::at(event->position());
    follow(p);
    const Hold hold = std::exchange(m_hold, Loose);
    if (hold == Held)
        beginTap(m_pressed);
    if (m_state != Pressed && hold != Moving)
        return;
    if (hold == Moving) {
        if (canvas())
            canvas()->setCursor(pointer());
    } else {
        m_state = Closed;
        if (canvas() && isTap(m_cursor, p))
            open(p);
    }
    tellInputMethod(Qt::ImQueryAll); // only now: a tap elsewhere is no reason to put a keyboard away
    if (m_state == Open)
        QGuiApplication::inputMethod()->show();
    emit TextToolClicked();
}

// --- The open text

/// Classically the I-beam is the only mark. What can be taken hold of needs a pointer.
QCursor KORVA_Text::pointer() const
{
    const bool isMovable = canvas() && canvas()->manners().movableText;
    return isMovable ? Qt::IBeamCursor : Qt::BlankCursor;
}

bool KORVA_Text::isOnText(QPoint at) const
{
    return m_state == Open && canvas() && m_manners.movableText &&
           box().adjusted(-reach, -reach, reach, reach).contains(at);
}

void KORVA_Text::mouseMoveEvent(QMouseEvent* event)
{
    follow(pixel::at(event->position()));
}

void KORVA_Text::follow(QPoint to)
{
    if (m_hold == Held && !isTap(m_pressed, to)) {
        QGuiApplication::inputMethod()->reset(); // which may type what it was composing
        if (m_hold == Held && canvas())
            canvas()->setCursor(Qt::SizeAllCursor);
        if (m_hold == Held)
            m_hold = Moving;
    }
    if (m_hold != Moving || !canvas())
        return;
    const QRect view = canvas()->rect(); // some of the text stays in it
    m_home = m_grip +
             QPoint(qBound(view.left(), to.x(), view.right()), qBound(view.top(), to.y(), view.bottom()));
    m_isContinued = false;
    const bool isCursorShown = m_cursorShown;
    hideCursor();
    placeCursor();
    showText(m_text);
    if (isCursorShown)
        toggleCursor();
    tellInputMethod(Qt::ImQueryInput);
}

std::function<void()> KORVA_Text::keepState()
{
    if (m_state != Open || !m_manners.movableText)
        return nullptr;
    return [this, start = m_start, margin = m_margin, home = m_home, isContinued = m_isContinued,
            cursor = m_cursor, shown = m_shown, isCursorShown = m_cursorShown] {
        m_hold = Loose;
        m_start = start;
        m_margin = margin;
        m_home = home;
        m_isContinued = isContinued;
        m_cursor = cursor;
        m_shown = shown;
        m_cursorShown = isCursorShown;
        if (canvas())
            canvas()->setCursor(pointer());
    };
}
