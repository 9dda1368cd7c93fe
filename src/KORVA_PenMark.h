#pragma once

#include <QWidget>

/// Shows where the keyboard's pen is: a cross over the drawing that stands out on every background, with a
/// frame around its middle while the button is down. The pixel itself stays free. Pointer events pass
/// through.
class KORVA_PenMark : public QWidget
{
    Q_OBJECT

public:
    /// Begins hidden.
    explicit KORVA_PenMark(QWidget* surface);

    /// `at` is the pen's pixel on the surface.
    void showAt(QPoint at, bool isPressed);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool m_isPressed = false;
};
