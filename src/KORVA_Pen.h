#pragma once

#include "KORVA_DrawingTool.h"

#include <QList>
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
    ~KORVA_Pen() override;

    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void activating() override;
    [[nodiscard]] std::function<void()> keepState() override;
    void paintWaiting(QPixmap* picture, QPixmap* shown) override;

private:
    void drawTo(QPoint to);
    enum Where { InPicture, OnScreen };
    void drawWay(QPixmap* target, Where where) const;
    [[nodiscard]] QRect inPicture(const QRect& way) const;
    /// Whether copying so many pixels takes less than drawing the way once more.
    [[nodiscard]] bool isCheaper(QSize copy) const;

    QPoint m_last;       ///< the last point drawn, in widget coordinates
    QList<QPoint> m_way; ///< the points of the segments not yet painted, in widget coordinates
    bool m_drawing = false;
};
