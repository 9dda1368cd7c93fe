#pragma once

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QObject>
#include <QRegion>

class QWidget;

/// Brings a widget's changes to the screen at the screen's pace: at once when the last repaint is some time
/// ago, else together with what follows, and never later than that time. Only what changed is painted.
class KORVA_Repainter : public QObject
{
    Q_OBJECT

public:
    explicit KORVA_Repainter(QWidget* widget) : m_widget(widget) {}

    /// In widget coordinates.
    void add(const QRegion& changed);

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    void repaint();

    QWidget* m_widget; // owns this object
    QRegion m_changed;
    QElapsedTimer m_sinceLast;
    QBasicTimer m_timer;
};
