#pragma once

#include "KORVA_DrawingTool.h"

#include <QList>
#include <QRect>
#include <QRegion>

#include <optional>

/// The eraser tool: stamps white squares with their top left under the stylus. Their side is the pen's
/// width times the zoom, in both pictures. Each accepted press is an undo step; the release marks the
/// picture modified.
///
/// With KORVA_Manners::joinedEraser the side is the pen's width in picture pixels, the squares of a stroke
/// are joined, and the press marks the picture modified.
class KORVA_EXPORT KORVA_Rubber : public KORVA_DrawingTool
{
    Q_OBJECT

public:
    /// `name` is KORVA_Tool::name().
    explicit KORVA_Rubber(const QString& name);
    ~KORVA_Rubber() override;

    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void activating() override;
    [[nodiscard]] std::function<void()> keepState() override;
    void paintWaiting(QPixmap* picture, QPixmap* shown) override;

private:
    struct Square
    {
        QRect inPicture;
        QRect onScreen;
    };

    void erase(QPoint inPicture, QPoint onScreen);
    [[nodiscard]] QPoint under(const QMouseEvent& event) const;
    void eraseWay(QPoint to);
    [[nodiscard]] QRegion covered(QPoint from, QPoint to) const;
    [[nodiscard]] int squareSide() const;

    QList<Square> m_squares;        ///< not yet painted
    QList<QPoint> m_way;            ///< of joined squares not yet painted, in picture coordinates
    std::optional<QPoint> m_joined; ///< during a joined stroke: its last place, in picture coordinates
    bool m_drawing = false; ///< from a press to the first move; after that, another press is accepted
};
