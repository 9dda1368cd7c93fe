#include "KORVA_KeyboardPen.h"

#include "KORVA_PasteLabel.h"
#include "KORVA_PenMark.h"
#include "KORVA_Pixel.h"
#include "KORVA_ScrollView.h"
#include "KORVA_Tool.h"
#include "KORVA_Zoom.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>

#include <algorithm>
#include <utility>

namespace {

constexpr int longStep = 10; // picture pixels
constexpr int notATap = 3;   // pixels between press and release
constexpr int room = 12;     // pixels around the pen that are kept in view
constexpr Qt::KeyboardModifiers longStepKeys = Qt::ShiftModifier | Qt::ControlModifier;

enum Situation : unsigned {
    Free = 1,     ///< nothing floats, and the button is up
    Floating = 2, ///< the button is up
    Pressed = 4,
    Typing = 8,
};

QPoint contentsOf(const KORVA_Canvas& canvas)
{
    const KORVA_ScrollView* view = canvas.scrollView();
    return view ? QPoint(view->contentsX(), view->contentsY()) : QPoint();
}

} // namespace

/// What a key does, and when.
struct KORVA_KeyboardPen::Key
{
    using Pen = KORVA_KeyboardPen;
    static constexpr auto OnPiece = KORVA_Canvas::OnPiece;

    Qt::Key key;
    Qt::KeyboardModifiers needed;
    Qt::KeyboardModifiers allowed; ///< in addition
    unsigned situations;
    void (Pen::*act)(QPoint way);
    QPoint way = {};
    KORVA_Canvas::PenKey use = KORVA_Canvas::AsPointer;
    bool isModern = false; ///< only with KORVA_Manners::pieceKeys

    static const Key table[];
};

const KORVA_KeyboardPen::Key KORVA_KeyboardPen::Key::table[] = {
    {Qt::Key_Left, {}, longStepKeys, Free | Pressed, &Pen::move, {-1, 0}},
    {Qt::Key_Right, {}, longStepKeys, Free | Pressed, &Pen::move, {1, 0}},
    {Qt::Key_Up, {}, longStepKeys, Free | Pressed, &Pen::move, {0, -1}},
    {Qt::Key_Down, {}, longStepKeys, Free | Pressed, &Pen::move, {0, 1}},
    {Qt::Key_Space, {}, Qt::ShiftModifier, Free | Floating | Pressed, &Pen::hold},
    {Qt::Key_Return, {}, {}, Free | Pressed, &Pen::latch},
    {Qt::Key_Enter, {}, {}, Free | Pressed, &Pen::latch},
    {Qt::Key_Escape, {}, {}, Typing, &Pen::endText},

    {Qt::Key_Left, {}, longStepKeys, Floating, &Pen::movePiece, {-1, 0}, OnPiece},
    {Qt::Key_Right, {}, longStepKeys, Floating, &Pen::movePiece, {1, 0}, OnPiece},
    {Qt::Key_Up, {}, longStepKeys, Floating, &Pen::movePiece, {0, -1}, OnPiece},
    {Qt::Key_Down, {}, longStepKeys, Floating, &Pen::movePiece, {0, 1}, OnPiece},
    {Qt::Key_Left, Qt::AltModifier, longStepKeys, Floating, &Pen::stretchPiece, {-1, 0}, OnPiece},
    {Qt::Key_Right, Qt::AltModifier, longStepKeys, Floating, &Pen::stretchPiece, {1, 0}, OnPiece},
    {Qt::Key_Up, Qt::AltModifier, longStepKeys, Floating, &Pen::stretchPiece, {0, -1}, OnPiece},
    {Qt::Key_Down, Qt::AltModifier, longStepKeys, Floating, &Pen::stretchPiece, {0, 1}, OnPiece},
    {Qt::Key_BracketRight, {}, Qt::ShiftModifier, Floating, &Pen::turnPiece, {1, 0}, OnPiece},
    {Qt::Key_BracketLeft, {}, Qt::ShiftModifier, Floating, &Pen::turnPiece, {-1, 0}, OnPiece},
    {Qt::Key_PageDown, Qt::AltModifier, {}, Floating, &Pen::turnPiece, {1, 0}, OnPiece},
    {Qt::Key_PageUp, Qt::AltModifier, {}, Floating, &Pen::turnPiece, {-1, 0}, OnPiece},
    {Qt::Key_Return, {}, {}, Floating, &Pen::mergePiece, {}, OnPiece},
    {Qt::Key_Enter, {}, {}, Floating, &Pen::mergePiece, {}, OnPiece},
    {Qt::Key_Escape, {}, {}, Floating, &Pen::dropPiece, {}, OnPiece, true},
};

KORVA_KeyboardPen::KORVA_KeyboardPen(KORVA_Canvas& canvas)
    : m_canvas(canvas), m_mark(new KORVA_PenMark(&canvas))
{
    connect(&canvas, &KORVA_Canvas::pendingDropped, this, &KORVA_KeyboardPen::update);
}

void KORVA_KeyboardPen::setEnabled(bool on)
{
    if (!on)
        lift();
    m_isEnabled = on;
    setInUse(false);
}

std::optional<QPoint> KORVA_KeyboardPen::place() const
{
    return m_isEnabled && m_isInUse && !takesText() ? std::optional(m_place) : std::nullopt;
}

bool KORVA_KeyboardPen::takesText() const
{
    const KORVA_Tool* tool = m_canvas.getCurrentTool();
    return tool && tool->takesText();
}

// --- Events

const KORVA_KeyboardPen::Key* KORVA_KeyboardPen::keyOf(const QKeyEvent& event) const
{
    const unsigned situation = takesText()                         ? Typing
                               : m_state != Lifted                 ? Pressed
                               : m_canvas.pasteLabel()->isHidden() ? Free
                                                                   : Floating;
    if (situation == Typing && m_canvas.manners().escapeDropsText)
        return nullptr;
    const Qt::KeyboardModifiers held = event.modifiers() & ~(Qt::KeypadModifier | Qt::GroupSwitchModifier);
    const bool isModern = m_canvas.manners().pieceKeys;
    const Key* found = std::ranges::find_if(Key::table, [&](const Key& key) {
        return key.key == event.key() && (key.situations & situation) &&
               (held & ~key.allowed) == key.needed && (isModern || !key.isModern) &&
               (m_isEnabled || (isModern && key.use == Key::OnPiece));
    });
    return found != std::end(Key::table) ? found : nullptr;
}

KORVA_Canvas::PenKey KORVA_KeyboardPen::use(const QKeyEvent& press) const
{
    const Key* key = keyOf(press);
    return key ? key->use : KORVA_Canvas::NotThePens;
}

bool KORVA_KeyboardPen::handle(QEvent& event)
{
    switch (event.type()) {
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        return handleKey(static_cast<QKeyEvent&>(event));
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
        if (m_isEnabled && !m_isSending)
            giveWay(static_cast<const QMouseEvent&>(event));
        return false;
    case QEvent::FocusIn:
        if (const Qt::FocusReason reason = static_cast<const QFocusEvent&>(event).reason();
            reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason)
            setInUse(true);
        return false;
    case QEvent::FocusOut: // later: the window may be going, which is no time to paint
        QMetaObject::invokeMethod(
            this, [this, reason = static_cast<const QFocusEvent&>(event).reason()] { leave(reason); },
            Qt::QueuedConnection);
        return false;
    case QEvent::Resize:
        if (m_isPlaced)
            moveTo(limited(KORVA_Zoom(m_canvas.zoom()).toWidget(m_place)));
        return false;
    default:
        return false;
    }
}

bool KORVA_KeyboardPen::handleKey(QKeyEvent& event)
{
    const bool isEndOfHold = event.type() == QEvent::KeyRelease && event.key() == Qt::Key_Space;
    if (isEndOfHold && m_state == Held) {
        event.accept();
        if (!event.isAutoRepeat())
            lift();
        return true;
    }
    const Key* key = event.type() == QEvent::KeyRelease ? nullptr : keyOf(event);
    if (!key)
        return false;
    event.accept();
    if (event.type() == QEvent::ShortcutOverride)
        return true;
    const bool isStep = !key->way.isNull();
    if (event.isAutoRepeat() && !isStep)
        return true;
    if (key->use == KORVA_Canvas::AsPointer)
        setInUse(true);
    (this->*key->act)(event.modifiers() & longStepKeys ? key->way * longStep : key->way);
    update();
    return true;
}

void KORVA_KeyboardPen::giveWay(const QMouseEvent& event)
{
    if (event.type() != QEvent::MouseButtonRelease)
        setInUse(false);
    m_isPlaced = true;
    moveTo(limited(pixel::under(event, m_canvas)));
}

void KORVA_KeyboardPen::leave(Qt::FocusReason reason)
{
    lift();
    if (reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason)
        setInUse(false);
}

bool KORVA_KeyboardPen::eventFilter(QObject* watched, QEvent* event)
{
    const QEvent::Type type = event->type();
    const bool isPress = type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick ||
                         type == QEvent::TouchBegin || type == QEvent::TabletPress;
    if (isPress && !m_isSending && watched->isWidgetType() &&
        static_cast<const QWidget*>(watched)->window() == m_canvas.window())
        lift();
    return false;
}

// --- What the keys do

void KORVA_KeyboardPen::move(QPoint way)
{
    const QPoint to = limited(stepped(m_at, way));
    if (to == m_at)
        return;
    moveTo(to);
    if (m_state != Lifted)
        send(QEvent::MouseMove, m_at, Qt::LeftButton);
    if (!m_hasPanned)
        reveal(QRect(m_at, QSize(1, 1)).adjusted(-room, -room, room, room));
}

void KORVA_KeyboardPen::hold(QPoint)
{
    if (m_state == Lifted)
        lower(Held);
    else if (m_state == Latched)
        lift();
}

void KORVA_KeyboardPen::latch(QPoint)
{
    if (m_state == Lifted)
        lower(Latched);
    else if (m_state == Latched)
        lift();
    else
        m_state = Latched;
}

// A press beside it that is no tap, and so opens no other.
void KORVA_KeyboardPen::endText(QPoint)
{
    const bool isCovered = m_canvas.ptInPasteLabel(m_at);
    const QPoint at = isCovered ? m_canvas.pasteLabel()->geometry().bottomRight() + QPoint(1, 1) : m_at;
    m_pressed = &m_canvas;
    send(QEvent::MouseButtonPress, at, Qt::LeftButton);
    send(QEvent::MouseButtonRelease, at + QPoint(0, notATap), Qt::NoButton);
}

void KORVA_KeyboardPen::movePiece(QPoint way)
{
    KORVA_PasteLabel* piece = m_canvas.pasteLabel();
    const QPoint to = stepped(piece->pos(), way);
    const QPoint within(qBound(1 - piece->width(), to.x(), m_canvas.width() - 1),
                        qBound(1 - piece->height(), to.y(), m_canvas.height() - 1));
    piece->moveBy(within - piece->pos());
    reveal(piece->geometry());
}

void KORVA_KeyboardPen::stretchPiece(QPoint way)
{
    KORVA_PasteLabel* piece = m_canvas.pasteLabel();
    piece->stretchBy(KORVA_Zoom(m_canvas.zoom()).toWidget(way));
    reveal(piece->geometry());
}

void KORVA_KeyboardPen::turnPiece(QPoint way)
{
    m_canvas.pasteLabel()->turn(way.x() > 0);
}

void KORVA_KeyboardPen::mergePiece(QPoint)
{
    m_canvas.mergePastePixmap();
}

void KORVA_KeyboardPen::dropPiece(QPoint)
{
    m_canvas.dropPiece();
}

// --- The button

void KORVA_KeyboardPen::lower(State state)
{
    m_hasPanned = false;
    if (m_canvas.ptInPasteLabel(m_at)) {
        m_pressed = m_canvas.pasteLabel();
        send(QEvent::MouseMove, m_at, Qt::NoButton); // a piece looks where the pointer is before the press
    } else {
        m_pressed = &m_canvas;
    }
    m_state = state;
    qApp->installEventFilter(this);
    send(QEvent::MouseButtonPress, m_at, Qt::LeftButton);
}

void KORVA_KeyboardPen::lift()
{
    if (std::exchange(m_state, Lifted) == Lifted)
        return;
    qApp->removeEventFilter(this);
    send(QEvent::MouseButtonRelease, m_at, Qt::NoButton);
    const QRect seen = visible();
    QPoint at = m_at;
    if (m_hasPanned && !seen.isEmpty())
        at = QPoint(qBound(seen.left(), at.x(), seen.right()), qBound(seen.top(), at.y(), seen.bottom()));
    moveTo(limited(at));
}

void KORVA_KeyboardPen::send(QEvent::Type type, QPoint at, Qt::MouseButtons held)
{
    QWidget* receiver = m_pressed;
    if (!receiver || receiver->isHidden())
        return;
    const QScopedValueRollback isSending(m_isSending, true);
    const QPoint before = contentsOf(m_canvas);
    QMouseEvent event(type, receiver->mapFrom(&m_canvas, QPointF(at)), m_canvas.mapToGlobal(QPointF(at)),
                      type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, held, Qt::NoModifier);
    QCoreApplication::sendEvent(receiver, &event);
    m_hasPanned = m_hasPanned || contentsOf(m_canvas) != before;
}

// --- The place

void KORVA_KeyboardPen::moveTo(QPoint at)
{
    m_at = at;
    m_place = KORVA_Zoom(m_canvas.zoom()).toPicture(at);
    update();
}

/// Within the canvas; while the button is down, up to the first pixel beyond, where a selection of all
/// ends.
QPoint KORVA_KeyboardPen::limited(QPoint at) const
{
    const int beyond = m_state == Lifted ? 1 : 0;
    return {qBound(0, at.x(), qMax(0, m_canvas.width() - beyond)),
            qBound(0, at.y(), qMax(0, m_canvas.height() - beyond))};
}

/// By pixels of the picture, but at least by one of the screen.
QPoint KORVA_KeyboardPen::stepped(QPoint from, QPoint way) const
{
    const KORVA_Zoom zoom(m_canvas.zoom());
    const QPoint wish = zoom.toWidget(zoom.toPicture(from) + way);
    const auto least = [](int before, int direction, int after) {
        return direction > 0 ? qMax(before + 1, after) : direction < 0 ? qMin(before - 1, after) : before;
    };
    return {least(from.x(), way.x(), wish.x()), least(from.y(), way.y(), wish.y())};
}

QRect KORVA_KeyboardPen::visible() const
{
    return m_canvas.parentWidget()
               ? m_canvas.parentWidget()->rect().translated(-m_canvas.pos()) & m_canvas.rect()
               : m_canvas.rect();
}

void KORVA_KeyboardPen::reveal(const QRect& part) const
{
    const auto shift = [](int first, int last, int firstSeen, int lastSeen) {
        return first < firstSeen || last - first > lastSeen - firstSeen ? first - firstSeen
                                                                        : qMax(0, last - lastSeen);
    };
    KORVA_ScrollView* view = m_canvas.scrollView();
    const QRect inside = part & m_canvas.rect();
    if (!view || inside.isEmpty())
        return;
    const QRect seen = view->viewport()->rect().translated(-m_canvas.pos());
    view->setContentsPos(
        view->contentsX() + shift(inside.left(), inside.right(), seen.left(), seen.right()),
        view->contentsY() + shift(inside.top(), inside.bottom(), seen.top(), seen.bottom()));
}

void KORVA_KeyboardPen::setInUse(bool inUse)
{
    m_isInUse = inUse;
    if (inUse && !std::exchange(m_isPlaced, true)) {
        const KORVA_Zoom zoom(m_canvas.zoom());
        moveTo(limited(zoom.toWidget(zoom.toPicture(visible().center()))));
    }
    update();
}

void KORVA_KeyboardPen::update()
{
    const std::optional<QPoint> now = place();
    if (now)
        m_mark->showAt(m_at, m_state != Lifted);
    else
        m_mark->hide();
    const bool isMoved = std::exchange(m_told, now) != now;
    const bool isPressed = std::exchange(m_toldDown, isDown()) != isDown();
    if (isMoved || isPressed)
        emit m_canvas.keyboardPenChanged();
}
