#pragma once

#include "KORVA_Export.h"

#include <QAbstractScrollArea>

/// A window onto contents of a size that the owner sets and that nothing else changes.
///
/// One child is placed in the contents by addChild() and moveChild(); it is a child of the viewport and
/// moves with the scrolling. All positions are pixels of the contents, (0, 0) at their top left.
class KORVA_EXPORT KORVA_ScrollView : public QAbstractScrollArea
{
    Q_OBJECT

public:
    /// Contents of 0 × 0 pixels.
    explicit KORVA_ScrollView(QWidget* parent = nullptr);

    /// The contents' position at the top left of the visible area.
    [[nodiscard]] int contentsX() const;
    /// See contentsX().
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

    /// Takes the widget into the viewport, which owns it then, at (x, y) of the contents.
    void addChild(QWidget* child, int x, int y);
    /// Moves the widget to (x, y) of the contents.
    void moveChild(QWidget* child, int x, int y);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    /// Hands on to the child what the pointer does from a press on its last pixels, which the toolkit takes
    /// for one beside it where it rounds a position between two pixels.
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
    bool m_isHanding = false; ///< what the child does not want comes back
};
