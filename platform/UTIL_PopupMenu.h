#pragma once

#include "KORVA_Export.h"

#include <QElapsedTimer>
#include <QMenu>
#include <QPoint>
#include <QRect>

#include <optional>

/// A pop-up menu in the skin, with icons at their full size. It stays inside the window it belongs to. If
/// it has more rows than fit there it scrolls: by the wheel, by a finger, and to the row that the keys
/// choose. Arrows at its edges show that there is more, and can be tapped. A double tap on the button that
/// opens it chooses nothing.
class KORVA_EXPORT UTIL_PopupMenu : public QMenu
{
    Q_OBJECT

public:
    /// An empty menu; its window is that of `parent`.
    explicit UTIL_PopupMenu(QWidget* parent);

    /// Moves a visible pop-up into the window of its owner. A pop-up larger than the window keeps its top
    /// left inside. Does nothing if `owner` is null.
    static void keepInWindow(QWidget& popup, const QWidget* owner);

protected:
    /// A checked row looks as the others do: the mark is for screen readers.
    void initStyleOption(QStyleOptionMenuItem* option, const QAction* action) const override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    /// A press on a menu that scrolls: a tap until it moves.
    struct Press
    {
        int y;      ///< on the screen
        int scroll; ///< m_scroll at that time
        bool isDrag = false;
    };

    [[nodiscard]] bool scrolls() const { return m_room.isValid(); }
    [[nodiscard]] QRect visiblePart() const;
    [[nodiscard]] QRect arrowAbove() const;
    [[nodiscard]] QRect arrowBelow() const;
    void scrollTo(int y);
    void reveal(QAction* row);

    QRect m_room; ///< global, while the menu is higher than this; else invalid
    int m_scroll = 0;
    std::optional<Press> m_press;
    QElapsedTimer m_sinceOpened;
    bool m_isUnmeant = false; ///< the press under way chooses nothing
};
