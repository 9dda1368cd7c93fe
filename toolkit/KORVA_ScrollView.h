#pragma once

#include "KORVA_Export.h"

#include <QAbstractScrollArea>

/// A scrolled view of contents whose size only the owner sets.
///
/// addChild() and moveChild() place one child in the contents. It is a child of the viewport and scrolls
/// with the contents. All positions are pixels of the contents; (0, 0) is their top left.
class KORVA_EXPORT KORVA_ScrollView : public QAbstractScrollArea
{
    Q_OBJECT

public:
    /// A view of contents of 0 × 0 pixels.
    explicit KORVA_ScrollView(QWidget* parent = nullptr);

    /// The x coordinate of the contents at the left edge of the visible area.
    [[nodiscard]] int contentsX() const;
    /// The y coordinate of the contents at the top edge of the visible area.
    [[nodiscard]] int contentsY() const;
    /// Scrolls at once; positions beyond the range are limited to it.
    void setContentsPos(int x, int y);

    /// Shows the contents so many pixels higher, for as long as something lies over the view's lower part.
    /// The position and its range know nothing of it.
    void setLift(int pixels);
    /// What setLift() was given; 0 at first.
    [[nodiscard]] int lift() const { return m_lift; }

    /// The width of the contents.
    [[nodiscard]] int contentsWidth() const { return m_contents.width(); }
    /// The height of the contents.
    [[nodiscard]] int contentsHeight() const { return m_contents.height(); }
    /// Sets the size of the contents; the position is limited to the new range.
    void resizeContents(int w, int h);

    /// Places the widget at (x, y) of the contents. The viewport owns it from then on.
    void addChild(QWidget* child, int x, int y);
    /// Moves the widget to (x, y) of the contents.
    void moveChild(QWidget* child, int x, int y);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    /// Passes on to the child the events of a press on the child's last pixels. Qt rounds a position
    /// between two pixels, and may take such a press for one beside the child.
    bool viewportEvent(QEvent* event) override;

private:
    [[nodiscard]] bool isRoundedAway(const QMouseEvent& press) const;
    void handToChild(const QMouseEvent& event);
    void placeChild();
    void updateRanges();

    QSize m_contents;
    QWidget* m_child = nullptr; // owned by the viewport
    QPoint m_childPos;
    int m_lift = 0;
    bool m_childHasPress = false;
    bool m_isHanding = false; ///< an event that the child ignores comes back here
};
