#include "KORVA_TouchInput.h"

#include "KORVA_EditCanvas.h"
#include "KORVA_Magnifier.h"
#include "KORVA_PasteLabel.h"
#include "KORVA_Pixel.h"
#include "KORVA_Text.h"

#include <QMenu>
#include <QScreen>

#include <algorithm>

// One finger's stroke: what it takes hold of, how it is drawn and how it is taken back.

namespace {

constexpr double reachOfFinger = 9; // millimetres
constexpr double millimetresPerInch = 25.4;
constexpr double fewestDots = 40; // per inch; some screens report impossible sizes
constexpr double mostDots = 400;

int fingerReach(const QWidget& widget)
{
    const QScreen* screen = widget.screen();
    const double dots =
        std::clamp(screen ? double(screen->physicalDotsPerInch()) : fewestDots, fewestDots, mostDots);
    return qRound(reachOfFinger / millimetresPerInch * dots);
}

} // namespace

std::optional<QPoint> KORVA_TouchInput::grip() const
{
    const KORVA_PasteLabel& piece = *m_canvas.pasteLabel();
    if (piece.isHidden())
        return {};
    return piece.gripFor(pixel::at(m_fingers.first().at) - piece.pos(), fingerReach(m_canvas));
}

void KORVA_TouchInput::draw()
{
    m_offersBefore = m_offers;
    m_before.emplace(m_canvas, m_grip ? KORVA_BeforeStroke::OnPiece : KORVA_BeforeStroke::OnPicture);
    if (m_grip)
        m_stroke.pressPiece(m_path.first(), *m_grip, m_device);
    else
        m_stroke.press(m_path.first(), m_device);
    for (const QPointF& at : m_path)
        m_stroke.move(at);
    magnify();
}

void KORVA_TouchInput::drawOn()
{
    m_stroke.move(m_fingers.first().at);
    magnify();
}

/// Whether the stroke may be moving an open text, which keys change, too.
bool KORVA_TouchInput::holdsText() const
{
    return m_before && !m_grip && qobject_cast<KORVA_Text*>(m_canvas.getCurrentTool());
}

void KORVA_TouchInput::toggleEven()
{
    m_stroke.toggleShift(m_fingers.first().at);
    magnify();
}

void KORVA_TouchInput::magnify()
{
    if (m_grip || holdsText() || !m_canvas.manners().magnifier)
        return;
    if (!m_magnifier)
        m_magnifier = new KORVA_Magnifier(m_canvas);
    m_magnifier->follow(m_fingers.first().at);
}

void KORVA_TouchInput::endMagnifying()
{
    if (m_magnifier)
        m_magnifier->hide();
}

void KORVA_TouchInput::release()
{
    endMagnifying();
    m_before.reset();
    m_stroke.release(m_fingers.first().at);
}

void KORVA_TouchInput::tap()
{
    if (m_task == Pan)
        return;
    draw();
    release();
}

/// If anything else has happened to the drawing since the press, the stroke stays as it is.
void KORVA_TouchInput::takeBack()
{
    endMagnifying();
    if (!m_before || !m_before->fits()) {
        m_before.reset();
        m_stroke.release(m_stroke.at());
        return;
    }
    m_stroke.forget();
    m_before->putBack();
    m_before.reset();
    const Offers told = m_offers;
    if (told.selection != m_offersBefore.selection)
        emit m_canvas.selection(m_offersBefore.selection);
    if (told.undo != m_offersBefore.undo)
        emit m_canvas.canUndo(m_offersBefore.undo);
    if (told.redo != m_offersBefore.redo)
        emit m_canvas.canRedo(m_offersBefore.redo);
    emit m_canvas.strokeTakenBack();
}

void KORVA_TouchInput::noteOtherChange()
{
    if (!m_stroke.isHanding())
        settle();
}

void KORVA_TouchInput::settle()
{
    m_before.reset();
}

// --- The menu

void KORVA_TouchInput::openMenu()
{
    const QPoint at = m_pressedAt.toPoint();
    if (m_grip)
        m_canvas.pasteLabel()->menu()->popup(at);
    else
        m_canvas.openMenu(at);
}

void KORVA_TouchInput::takeBackForMenu()
{
    takeBack();
    openMenu();
}
