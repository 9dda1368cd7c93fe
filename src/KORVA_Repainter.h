#pragma once

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QObject>
#include <QRect>

class QWidget;

/// Brings a widget's changes to the screen at the screen's pace: a frame is 16 ms at 60 Hz, and 4 to 16 on
/// other screens. If the last repaint was a frame ago or more, a change is painted at once. Otherwise it is
/// painted together with a later change, or a frame after it at the latest. Only the rectangle around the
/// changes is painted.
class KORVA_Repainter : public QObject
{
    Q_OBJECT

public:
    explicit KORVA_Repainter(QWidget* widget) : m_widget(widget) {}

    /// Adds a changed rectangle, in widget coordinates.
    void add(const QRect& changed);

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    void repaint();

    QWidget* m_widget; // owns this object
    int m_frame = 0;   ///< milliseconds between two repaints
    QRect m_changed;
    QElapsedTimer m_sinceLast;
    QBasicTimer m_timer;
};
