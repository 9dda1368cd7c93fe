#pragma once

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QObject>
#include <QRect>

class QWidget;

/// Brings a widget's changes to the screen at the screen's pace: at once when the last repaint is 8 ms ago
/// or more, else together with the next change, and never later than 8 ms after it. Only the rectangle
/// around what changed is painted.
class KORVA_Repainter : public QObject
{
    Q_OBJECT

public:
    explicit KORVA_Repainter(QWidget* widget) : m_widget(widget) {}

    /// In widget coordinates.
    void add(const QRect& changed);

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    void repaint();

    QWidget* m_widget; // owns this object
    QRect m_changed;
    QElapsedTimer m_sinceLast;
    QBasicTimer m_timer;
};
