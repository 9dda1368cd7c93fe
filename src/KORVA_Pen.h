#pragma once

#include "KORVA_DrawingTool.h"

#include <QPoint>
#include <QRect>

/// The pencil tool: a dot where the stylus goes down, and a line along every move. One press is one undo
/// step. The release of another button does not end the stroke. See KORVA_Manners::roundPencil.
class KORVA_EXPORT KORVA_Pen : public KORVA_DrawingTool
{
    Q_OBJECT

public:
    /// `name` is KORVA_Tool::name().
    explicit KORVA_Pen(const QString& name);

    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void activating() override;
    [[nodiscard]] std::function<void()> keepState() override;

private:
    void drawTo(QPoint to);
    enum Where { InPicture, OnScreen };
    QRect drawSegment(QPixmap* target, Where where, QPoint to) const;

    QPoint m_last; ///< the last point drawn, in widget coordinates
    bool m_drawing = false;
};
