#include "Fingers.h"

namespace support {

QPointingDevice* Fingers::device()
{
    static QPointingDevice* const screen = QTest::createTouchDevice();
    return screen;
}

Fingers::~Fingers()
{
    for (const int finger : m_down.keys())
        release(finger);
}

void Fingers::press(int finger, QPoint at)
{
    send(Press, {{finger, m_surface.mapToGlobal(at)}});
}

void Fingers::move(int finger, QPoint to)
{
    move(QMap<int, QPoint>{{finger, to}});
}

void Fingers::move(const QMap<int, QPoint>& to)
{
    QMap<int, QPoint> places;
    for (auto each = to.begin(); each != to.end(); ++each)
        places[each.key()] = m_surface.mapToGlobal(each.value());
    send(Move, places);
}

void Fingers::release(int finger)
{
    send(Release, {{finger, m_down.value(finger)}});
    m_down.remove(finger);
}

void Fingers::cancel()
{
    QTouchEvent event(QEvent::TouchCancel, device());
    QCoreApplication::sendEvent(&m_surface, &event);
}

void Fingers::drag(const QList<QPoint>& path)
{
    press(0, path.first());
    for (const QPoint& point : path.mid(1))
        move(0, point);
    release(0);
}

void Fingers::send(Change change, const QMap<int, QPoint>& places)
{
    QWidget* window = m_surface.window();
    auto sequence = QTest::touchEvent(window, device(), false);
    for (const int finger : m_down.keys()) {
        if (!places.contains(finger))
            sequence.move(finger, window->mapFromGlobal(m_down[finger])); // to where it is
    }
    for (auto each = places.begin(); each != places.end(); ++each) {
        const QPoint at = window->mapFromGlobal(each.value());
        m_down[each.key()] = each.value();
        if (change == Press)
            sequence.press(each.key(), at);
        else if (change == Move)
            sequence.move(each.key(), at);
        else
            sequence.release(each.key(), at);
    }
    sequence.commit();
}

} // namespace support
