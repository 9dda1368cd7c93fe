#include "KORVA_Canvas.h"

#include "KORVA_KeyboardPen.h"
#include "KORVA_PasteLabel.h"
#include "KORVA_Pixel.h"
#include "KORVA_Text.h"
#include "KORVA_TouchInput.h"
#include "KORVA_ZoomAnchor.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QWheelEvent>

#include <utility>

// Which event goes to the floating piece, which to the tool, which opens a menu.

namespace {

QMouseEvent movedTo(const QPointF& position, const QMouseEvent& event)
{
    return {event.type(),   position,        event.scenePosition(), event.globalPosition(),
            event.button(), event.buttons(), event.modifiers(),     event.pointingDevice()};
}

} // namespace

template <typename Handler, typename LabelHandler>
void KORVA_Canvas::handOn(QMouseEvent* event, Handler toTool, LabelHandler toLabel)
{
    const QPointF pointer = pixel::pointer(*event, *this);
    if (ptInPasteLabel(pixel::at(pointer))) {
        QMouseEvent local = movedTo(pointer - m_pasteLabel->pos(), *event);
        (m_pasteLabel->*toLabel)(&local);
        return;
    }
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick)
        mergePastePixmap();
    if (!m_tool)
        return;
    event->accept();
    if (event->position() == pointer) {
        (m_tool.data()->*toTool)(event);
        return;
    }
    QMouseEvent exact = movedTo(pointer, *event);
    exact.setTimestamp(event->timestamp());
    (m_tool.data()->*toTool)(&exact);
    event->setAccepted(exact.isAccepted());
}

void KORVA_Canvas::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::RightButton) {
        openMenu(mapToGlobal(pixel::under(*event, *this)));
    } else if (event->button() == Qt::LeftButton) {
        handOn(event, &KORVA_Tool::mousePressEvent, &KORVA_PasteLabel::mousePressEvent);
    }
}

void KORVA_Canvas::mouseMoveEvent(QMouseEvent* event)
{
    handOn(event, &KORVA_Tool::mouseMoveEvent, &KORVA_PasteLabel::mouseMoveEvent);
}

void KORVA_Canvas::mouseReleaseEvent(QMouseEvent* event)
{
    handOn(event, &KORVA_Tool::mouseReleaseEvent, &KORVA_PasteLabel::mouseReleaseEvent);
}

void KORVA_Canvas::wheelEvent(QWheelEvent* event)
{
    const bool isTouchPad = !event->pixelDelta().isNull() && !(event->modifiers() & Qt::ControlModifier);
    if (!manners().wheelZooms || isTouchPad || event->modifiers() & Qt::ShiftModifier) {
        event->ignore();
        return;
    }
    if (event->buttons() != Qt::NoButton)
        return; // a stroke keeps its zoom
    m_wheelWay += event->angleDelta().y();
    const int steps = m_wheelWay / QWheelEvent::DefaultDeltasPerStep;
    m_wheelWay -= steps * QWheelEvent::DefaultDeltasPerStep;
    const KORVA_ZoomAnchor pointer(*this, event->globalPosition());
    for (int i = 0; i < qAbs(steps); ++i)
        emit zoomStepWanted(steps > 0 ? 1 : -1);
    pointer.bringUnder(*this, event->globalPosition());
}

void KORVA_Canvas::keyPressEvent(QKeyEvent* event)
{
    if (m_tool)
        m_tool->keyPressEvent(event);
    else
        event->ignore();
}

void KORVA_Canvas::keyReleaseEvent(QKeyEvent* event)
{
    if (m_tool)
        m_tool->keyReleaseEvent(event);
    else
        event->ignore();
}

void KORVA_Canvas::setFingerUse(FingerUse use)
{
    m_touch->setFingerUse(use);
}

KORVA_Canvas::FingerUse KORVA_Canvas::fingerUse() const
{
    return m_touch->fingerUse();
}

bool KORVA_Canvas::event(QEvent* event)
{
    if (m_touch && m_touch->takes(event))
        return true;
    if (m_keyboardPen && m_keyboardPen->handle(*event))
        return true;
    // While a text is typed the host's shortcuts wait; keys that are no text are still theirs.
    if (event->type() == QEvent::ShortcutOverride && m_tool && m_tool->takesText()) {
        auto* const key = static_cast<QKeyEvent*>(event);
        if (KORVA_Text::isTyping(*key) || (manners().escapeDropsText && key->key() == Qt::Key_Escape)) {
            event->accept();
            return true;
        }
    }
    return QWidget::event(event);
}

bool KORVA_Canvas::focusNextPrevChild(bool next)
{
    return !(m_tool && m_tool->takesText()) && QWidget::focusNextPrevChild(next);
}

void KORVA_Canvas::inputMethodEvent(QInputMethodEvent* event)
{
    if (m_tool)
        m_tool->inputMethodEvent(event);
    else
        event->ignore();
}

QVariant KORVA_Canvas::inputMethodQuery(Qt::InputMethodQuery query) const
{
    if (query == Qt::ImEnabled)
        return m_tool && m_tool->takesText();
    const QVariant answer = m_tool ? m_tool->inputMethodQuery(query) : QVariant();
    return answer.isValid() ? answer : QWidget::inputMethodQuery(query);
}

void KORVA_Canvas::contextMenuEvent(QContextMenuEvent* event)
{
    // The right button has opened its menu on the press; what is left is the menu key.
    if (event->reason() != QContextMenuEvent::Keyboard)
        return;
    if (isFloating())
        m_pasteLabel->menu()->popup(m_pasteLabel->mapToGlobal(m_pasteLabel->rect().center()));
    else
        openMenu(mapToGlobal(visibleRegion().boundingRect().center()));
}

void KORVA_Canvas::setDragged(QSize size)
{
    if (std::exchange(m_dragged, size) != size)
        emit dragging(size);
}

// --- The keyboard's pen

void KORVA_Canvas::setKeyboardDrawing(bool on)
{
    if (on && !m_keyboardPen)
        m_keyboardPen = std::make_unique<KORVA_KeyboardPen>(*this);
    if (m_keyboardPen)
        m_keyboardPen->setEnabled(on);
}

bool KORVA_Canvas::isKeyboardDrawing() const
{
    return m_keyboardPen && m_keyboardPen->isEnabled();
}

std::optional<QPoint> KORVA_Canvas::keyboardPen() const
{
    return m_keyboardPen ? m_keyboardPen->place() : std::nullopt;
}

bool KORVA_Canvas::isKeyboardPenDown() const
{
    return m_keyboardPen && m_keyboardPen->isDown();
}

KORVA_Canvas::PenKey KORVA_Canvas::penKey(const QKeyEvent& press) const
{
    return m_keyboardPen ? m_keyboardPen->use(press) : NotThePens;
}
