#pragma once

#include <QWidget>

/// Where the keyboard's pen is: a cross over the drawing that is seen on every ground, with a frame around
/// its middle while the button is down. The pixel itself stays free. The pointer goes through it.
class KORVA_PenMark : public QWidget
{
    Q_OBJECT

public:
    /// Hidden.
    explicit KORVA_PenMark(QWidget* surface);

    /// `at` is the pixel of the surface that is meant.
    void showAt(QPoint at, bool isPressed);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool m_isPressed = false;
};
