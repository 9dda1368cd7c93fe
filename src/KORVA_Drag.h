#pragma once

#include "KORVA_Tool.h"

#include <QPoint>

/// The hand tool: every move pans the scroll view around the canvas by a tenth of the way from the press.
/// It never touches the picture. Without a scroll view it does nothing.
class KORVA_EXPORT KORVA_Drag : public KORVA_Tool
{
    Q_OBJECT

public:
    /// `name` is KORVA_Tool::name().
    explicit KORVA_Drag(const QString& name);

    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void activating() override;
    [[nodiscard]] std::function<void()> keepState() override;

private:
    QPoint m_press;
    QPoint m_last;
};
