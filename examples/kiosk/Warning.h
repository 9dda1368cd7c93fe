#pragma once

#include <QPixmap>
#include <QWidget>

/// Counts down in front of everything, also of boxes. It covers the screen, so that a touch anywhere
/// reaches it and nothing behind it.
class Warning : public QWidget
{
    Q_OBJECT

public:
    explicit Warning(QWidget* kiosk);

    void count(int secondsLeft);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QPixmap m_behind;
    int m_secondsLeft = 0;
};
