#include "KORVA_TouchInput.h"

#include "KORVA_AreaSelect.h"
#include "KORVA_EditCanvas.h"
#include "KORVA_PasteLabel.h"
#include "KORVA_Pixel.h"
#include "KORVA_Text.h"
#include "KORVA_TwoPointTool.h"

#include <QApplication>
#include <QLineF>
#include <QMouseEvent>
#include <QStyleHints>
#include <QTabletEvent>
#include <QTimerEvent>
#include <QTouchEvent>

#include <algorithm>

namespace {

constexpr int secondFinger = 60; // milliseconds in which it may follow the first one
constexpr int longestTap = 250;  // milliseconds
constexpr double jitter = 3;     // pixels; a waiting finger that moves farther draws
constexpr int echoTime = 500;    // milliseconds in which mouse events may follow

} // namespace

struct KORVA_TouchInput::Transition
{
    State from;
    Input input;
    State to;
    void (KORVA_TouchInput::*action)(); ///< null: none
    static const Transition table[];
};

// Pairs that are not listed change nothing.
const KORVA_TouchInput::Transition KORVA_TouchInput::Transition::table[] = {
    {Idle, Touched, Waiting, &KORVA_TouchInput::wait},
    {Idle, Palm, Ignoring, nullptr},

    {Waiting, Slid, Drawing, &KORVA_TouchInput::draw},
    {Waiting, Stayed, Drawing, &KORVA_TouchInput::draw},
    {Waiting, Dragged, Panning, &KORVA_TouchInput::hold},
    {Waiting, Joined, Panning, &KORVA_TouchInput::hold},
    {Waiting, Lifted, Idle, &KORVA_TouchInput::tap},
    {Waiting, Held, Ignoring, &KORVA_TouchInput::openMenu},
    {Waiting, Cancelled, Idle, nullptr},
    {Waiting, PenCame, Ignoring, nullptr},

    {Drawing, Moved, Drawing, &KORVA_TouchInput::drawOn},
    {Drawing, Lifted, Idle, &KORVA_TouchInput::release},
    {Drawing, Joined, Panning, &KORVA_TouchInput::takeBackAndHold},
    {Drawing, Doubted, Doubting, &KORVA_TouchInput::doubt},
    {Drawing, Held, Ignoring, &KORVA_TouchInput::takeBackForMenu},
    {Drawing, Cancelled, Idle, &KORVA_TouchInput::takeBack},
    {Drawing, PenCame, Ignoring, &KORVA_TouchInput::takeBack},

    {Doubting, Tapped, Drawing, &KORVA_TouchInput::toggleEven},
    {Doubting, Stayed, Panning, &KORVA_TouchInput::takeBack},
    {Doubting, Dragged, Panning, &KORVA_TouchInput::takeBackAndPan},
    {Doubting, Joined, Panning, &KORVA_TouchInput::takeBackAndHold},
    {Doubting, Left, Panning, &KORVA_TouchInput::takeBackAndHold},
    {Doubting, Cancelled, Idle, &KORVA_TouchInput::takeBack},
    {Doubting, PenCame, Ignoring, &KORVA_TouchInput::takeBack},

    {Panning, Moved, Panning, &KORVA_TouchInput::pan},
    {Panning, Joined, Panning, &KORVA_TouchInput::hold},
    {Panning, Left, Panning, &KORVA_TouchInput::hold},
    {Panning, Lifted, Idle, nullptr},
    {Panning, Cancelled, Idle, nullptr},

    {Ignoring, Lifted, Idle, nullptr},
    {Ignoring, Cancelled, Idle, nullptr},
};

KORVA_TouchInput::KORVA_TouchInput(KORVA_Canvas& canvas, KORVA_EditCanvas* editor)
    : m_canvas(canvas), m_stroke(canvas), m_pen(canvas)
{
    canvas.setAttribute(Qt::WA_AcceptTouchEvents);
    canvas.pasteLabel()->installEventFilter(this);
    connect(&m_pen, &KORVA_PenInput::came, this, [this] { enter(PenCame); });
    connect(&m_pen, &KORVA_PenInput::eraserWanted, this, &KORVA_TouchInput::eraserWanted);

    const auto listen = [this](auto* teller) {
        using Teller = std::remove_pointer_t<decltype(teller)>;
        connect(teller, &Teller::canUndo, this, [this](bool offered) { m_offers.undo = offered; });
        connect(teller, &Teller::canRedo, this, [this](bool offered) { m_offers.redo = offered; });
        connect(teller, qOverload<bool>(&Teller::selection), this,
                [this](bool offered) { m_offers.selection = offered; });
    };
    if (editor)
        listen(editor);
    else
        listen(&canvas);
    for (const auto changed : {&KORVA_Canvas::modified, &KORVA_Canvas::sizeChanged})
        connect(&canvas, changed, this, &KORVA_TouchInput::noteOtherChange);
    connect(&canvas, &KORVA_Canvas::pixmapChanged, this, &KORVA_TouchInput::noteOtherChange);
    connect(&canvas, qOverload<bool>(&KORVA_Canvas::selection), this, &KORVA_TouchInput::noteOtherChange);
    connect(&canvas, &KORVA_Canvas::pendingDropped, this, &KORVA_TouchInput::noteOtherChange);
}

void KORVA_TouchInput::enter(Input input)
{
    const auto* row =
        std::find_if(std::begin(Transition::table), std::end(Transition::table),
                     [&](const Transition& each) { return each.from == m_state && each.input == input; });
    if (row == std::end(Transition::table))
        return;
    m_state = row->to;
    if (m_state != Waiting && m_state != Doubting)
        m_staying.stop();
    if (m_state != Waiting && m_state != Drawing)
        m_holding.stop();
    if (row->action)
        (this->*row->action)();
}

// --- What comes in

bool KORVA_TouchInput::takes(QEvent* event)
{
    if (!m_canvas.isEnabled())
        return false;
    switch (event->type()) {
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
        return takesTouch(*static_cast<QTouchEvent*>(event));
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
        if (!m_pen.takes(*static_cast<QTabletEvent*>(event)))
            return false;
        m_echoes.setRemainingTime(echoTime);
        return true;
    case QEvent::KeyPress:
    case QEvent::InputMethod:
        if (holdsText())
            settle();
        return false;
    default:
        return isEcho(*event);
    }
}

bool KORVA_TouchInput::eventFilter(QObject* watched, QEvent* event)
{
    return watched == m_canvas.pasteLabel() && isEcho(*event);
}

/// Whether it is a mouse event that the window system or Qt made of a touch, for programs that know none.
bool KORVA_TouchInput::isEcho(const QEvent& event) const
{
    const QEvent::Type type = event.type();
    if (type != QEvent::MouseButtonPress && type != QEvent::MouseButtonDblClick &&
        type != QEvent::MouseMove && type != QEvent::MouseButtonRelease)
        return false;
    const auto& mouse = static_cast<const QMouseEvent&>(event);
    const bool isLeft = mouse.button() == Qt::LeftButton || mouse.buttons() & Qt::LeftButton;
    const bool isBusy = !m_echoes.hasExpired() || m_state == Waiting || m_state == Drawing;
    return isLeft && isBusy && mouse.source() != Qt::MouseEventNotSynthesized && !m_stroke.isHanding() &&
           !m_pen.isHanding();
}

// --- Fingers

bool KORVA_TouchInput::takesTouch(QTouchEvent& event)
{
    if (event.device()->type() != QInputDevice::DeviceType::TouchScreen)
        return false;
    event.accept();
    m_echoes.setRemainingTime(echoTime);
    const bool isNew = event.type() == QEvent::TouchBegin && !m_fingers.isEmpty();
    if (isNew || event.type() == QEvent::TouchCancel) { // new: the previous end went to a pop-up
        m_fingers.clear();
        enter(Cancelled);
    }
    m_device = event.pointingDevice();
    if (event.type() != QEvent::TouchCancel)
        follow(event);
    return true;
}

void KORVA_TouchInput::follow(const QTouchEvent& event)
{
    bool hasMoved = false;
    for (const QEventPoint& point : event.points()) {
        const Finger finger{point.id(), point.position(), point.globalPosition()};
        const auto known = std::find_if(m_fingers.begin(), m_fingers.end(),
                                        [&](const Finger& each) { return each.id == finger.id; });
        if (known != m_fingers.end()) {
            hasMoved = hasMoved || known->onScreen != finger.onScreen;
            *known = finger;
        } else if (point.state() == QEventPoint::Pressed) {
            m_fingers.append(finger);
            enter(comingDown());
        }
    }
    if (hasMoved)
        fingerMoved();
    for (const QEventPoint& point : event.points()) {
        if (point.state() != QEventPoint::Released)
            continue;
        if (m_fingers.size() == 1 && m_fingers.first().id == point.id())
            enter(Lifted);
        const bool isTap = m_state == Doubting && m_fingers.first().id != point.id();
        m_fingers.removeIf([&](const Finger& each) { return each.id == point.id(); });
        if (!m_fingers.isEmpty())
            enter(isTap ? Tapped : Left);
    }
}

KORVA_TouchInput::Input KORVA_TouchInput::comingDown() const
{
    if (m_fingers.size() == 1)
        return counts() ? Touched : Palm;
    const KORVA_Tool* const tool = m_canvas.getCurrentTool();
    const bool keepsEven =
        qobject_cast<const KORVA_TwoPointTool*>(tool) || qobject_cast<const KORVA_AreaSelect*>(tool);
    const bool isDoubtful = m_state == Drawing && keepsEven && !m_grip && m_canvas.manners().evenShapes;
    return isDoubtful ? Doubted : Joined;
}

/// While a mouse button is held the mouse has the tool.
bool KORVA_TouchInput::counts() const
{
    return !m_pen.isNear() && !(QGuiApplication::mouseButtons() & Qt::LeftButton);
}

void KORVA_TouchInput::fingerMoved()
{
    if (m_state == Doubting) {
        for (qsizetype i = 0; i < qMin(m_fingers.size(), m_doubtedAt.size()); ++i) {
            if (QLineF(m_doubtedAt[i], m_fingers[i].onScreen).length() > QApplication::startDragDistance())
                return enter(Dragged);
        }
        return;
    }
    if (m_state != Waiting) {
        if (m_state == Drawing &&
            QLineF(m_pressedAt, m_fingers.first().onScreen).length() > QApplication::startDragDistance())
            m_holding.stop();
        enter(Moved);
        return;
    }
    m_path.append(m_fingers.first().at);
    const double distance = QLineF(m_pressedAt, m_fingers.first().onScreen).length();
    if (distance > QApplication::startDragDistance())
        m_holding.stop();
    if (distance > jitter && m_task != Tap)
        enter(m_task == Pan ? Dragged : Slid);
}

void KORVA_TouchInput::wait()
{
    const Finger& finger = m_fingers.first();
    m_path = {finger.at};
    m_pressedAt = finger.onScreen;
    m_grip = grip();
    const auto* const text = qobject_cast<KORVA_Text*>(m_canvas.getCurrentTool());
    const bool isTap = text && !text->isOnText(pixel::at(finger.at));
    m_task = m_grip ? Draw : m_use == KORVA_Canvas::FingerPans ? Pan : isTap ? Tap : Draw;
    if (m_task == Draw)
        m_staying.start(secondFinger, Qt::PreciseTimer, this);
    m_holding.start(QGuiApplication::styleHints()->mousePressAndHoldInterval(), this);
}

/// Fingers from now on are one too many, unless this one is a tap.
void KORVA_TouchInput::doubt()
{
    hold();
    m_doubtedAt.clear();
    for (const Finger& finger : m_fingers)
        m_doubtedAt.append(finger.onScreen);
    m_staying.start(longestTap, Qt::PreciseTimer, this);
}

void KORVA_TouchInput::timerEvent(QTimerEvent* event)
{
    if (event->timerId() == m_staying.timerId()) {
        m_staying.stop();
        enter(Stayed);
    } else if (event->timerId() == m_holding.timerId()) {
        m_holding.stop();
        enter(Held);
    }
}

// --- The view

void KORVA_TouchInput::takeBackAndHold()
{
    takeBack();
    hold();
}

/// What hold() has seen before still counts.
void KORVA_TouchInput::takeBackAndPan()
{
    takeBack();
    pan();
}

/// The point that is now between the fingers stays there.
void KORVA_TouchInput::hold()
{
    m_zoom = m_canvas.zoom();
    m_anchor.emplace(m_canvas, middle());
    m_spread = spread();
}

void KORVA_TouchInput::pan()
{
    if (m_spread > 0 && m_fingers.size() > 1 && !m_pen.isDown())
        emit zoomWanted(m_zoom * spread() / m_spread);
    if (m_anchor)
        m_anchor->bringUnder(m_canvas, middle());
}

QPointF KORVA_TouchInput::middle() const
{
    QPointF sum;
    for (const Finger& finger : m_fingers)
        sum += finger.onScreen;
    return m_fingers.isEmpty() ? sum : sum / double(m_fingers.size());
}

double KORVA_TouchInput::spread() const
{
    return m_fingers.size() > 1 ? QLineF(m_fingers[0].onScreen, m_fingers[1].onScreen).length() : 0;
}
