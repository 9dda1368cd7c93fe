#include "UTIL_Slider.h"

#include "KORVA_Pixel.h"
#include "UTIL_FocusRing.h"
#include "UTIL_Skin.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

namespace {

constexpr int pages = 16;

QSize logicalSize(const QPixmap& picture)
{
    return picture.deviceIndependentSize().toSize();
}

QRect centred(const QSize& size, const QRect& area)
{
    QRect result(QPoint(), size);
    result.moveCenter(area.center());
    return result;
}

} // namespace

UTIL_Slider::UTIL_Slider(const QPixmap& handle, const QPixmap& pressedHandle, const QPixmap& groove,
                         const QPixmap& pressedGroove, Qt::Orientation orientation, int minimum,
                         int maximum, int step, int value, QWidget* parent, const char* name)
    : QSlider(orientation, parent),
      m_handle(handle),
      m_pressedHandle(pressedHandle.isNull() ? handle : pressedHandle),
      m_groove(groove),
      m_pressedGroove(pressedGroove.isNull() ? groove : pressedGroove)
{
    setObjectName(name);
    setRange(minimum, maximum);
    setSingleStep(step);
    setPageStep(std::max(step, (maximum - minimum + 1) / pages));
    setValue(value);
    setFocusPolicy(Qt::StrongFocus);
    setLayoutDirection(Qt::LeftToRight);
    if (parent)
        parent->installEventFilter(this);
}

UTIL_Slider::~UTIL_Slider()
{
    delete m_ring;
}

QSize UTIL_Slider::sizeHint() const
{
    return logicalSize(m_groove).expandedTo(logicalSize(m_handle));
}

int UTIL_Slider::along(const QPoint& point) const
{
    return orientation() == Qt::Horizontal ? point.x() : height() - 1 - point.y();
}

int UTIL_Slider::handleLength() const
{
    const QSize size = logicalSize(m_handle);
    return orientation() == Qt::Horizontal ? size.width() : size.height();
}

int UTIL_Slider::travel() const
{
    return (orientation() == Qt::Horizontal ? width() : height()) - handleLength();
}

QRect UTIL_Slider::handleRect() const
{
    const int start = QStyle::sliderPositionFromValue(minimum(), maximum(), sliderPosition(), travel());
    QRect handle = centred(logicalSize(m_handle), rect());
    if (orientation() == Qt::Horizontal) {
        handle.moveLeft(start);
    } else {
        handle.moveBottom(height() - 1 - start);
    }
    return handle;
}

void UTIL_Slider::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setOpacity(isEnabled() ? 1 : UTIL_Skin::disabledOpacity);
    painter.drawPixmap(centred(logicalSize(m_groove), rect()).topLeft(),
                       isSliderDown() ? m_pressedGroove : m_groove);
    painter.drawPixmap(handleRect().topLeft(), isSliderDown() ? m_pressedHandle : m_handle);
}

void UTIL_Slider::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    const QRect handle = handleRect();
    const int start = orientation() == Qt::Horizontal ? handle.left() : height() - 1 - handle.bottom();
    const int offset = along(pixel::under(*event, *this)) - start;
    m_grip = offset >= 0 && offset < handleLength() ? offset : handleLength() / 2;
    setSliderDown(true);
    mouseMoveEvent(event);
    update();
}

void UTIL_Slider::mouseMoveEvent(QMouseEvent* event)
{
    if (!isSliderDown())
        return;
    const int start = along(pixel::under(*event, *this)) - m_grip;
    setSliderPosition(QStyle::sliderValueFromPosition(minimum(), maximum(), start, travel()));
}

void UTIL_Slider::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        setSliderDown(false);
    update();
}

bool UTIL_Slider::isReached(const QPoint& inParent) const
{
    const QRect area = geometry();
    const int breadth = orientation() == Qt::Horizontal ? area.height() : area.width();
    const int reach = std::max(0, (UTIL_Skin::Size::sliderTouch - breadth) / 2);
    return isVisible() && isEnabled() && area.adjusted(-reach, -reach, reach, reach).contains(inParent);
}

bool UTIL_Slider::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != parentWidget())
        return false;
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        m_reached = isReached(pixel::under(*static_cast<QMouseEvent*>(event), *parentWidget()));
        break;
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
        break;
    default:
        return false;
    }
    if (!m_reached)
        return false;

    auto* mouse = static_cast<QMouseEvent*>(event);
    QMouseEvent moved(mouse->type(), pixel::pointer(*mouse, *parentWidget()) - pos(),
                      mouse->globalPosition(), mouse->button(), mouse->buttons(), mouse->modifiers());
    if (event->type() == QEvent::MouseButtonPress)
        setFocus(Qt::MouseFocusReason);
    QSlider::event(&moved);
    m_reached = event->type() != QEvent::MouseButtonRelease;
    return true;
}

void UTIL_Slider::focusInEvent(QFocusEvent* event)
{
    QSlider::focusInEvent(event);
    if (!m_ring && parentWidget())
        m_ring = new UTIL_FocusRing(this);
}

void UTIL_Slider::focusOutEvent(QFocusEvent* event)
{
    QSlider::focusOutEvent(event);
    delete m_ring;
}
