#pragma once

#include "KORVA_Export.h"

#include <QElapsedTimer>
#include <QMenu>
#include <QPoint>
#include <QRect>

#include <optional>

/// A pop-up menu in the skin, with icons at their full size, that stays inside the window it belongs to.
/// One with more rows than fit there scrolls: by the wheel, by a finger, and with the row that the keys
/// choose; arrows at its edges say that there is more, and are tapped, too. A double tap on what opens it
/// chooses nothing.
class KORVA_EXPORT UTIL_PopupMenu : public QMenu
{
    Q_OBJECT

public:
    /// An empty menu; its window is that of `parent`.
    explicit UTIL_PopupMenu(QWidget* parent);

    /// Moves a pop-up that is shown into the window that its owner belongs to; nothing where `owner` is
    /// null. One that is larger keeps its top left inside.
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
        int scroll; ///< m_scroll then
        bool isDrag = false;
    };

    [[nodiscard]] bool scrolls() const { return m_room.isValid(); }
    [[nodiscard]] QRect visiblePart() const;
    [[nodiscard]] QRect arrowAbove() const;
    [[nodiscard]] QRect arrowBelow() const;
    void scrollTo(int y);
    void reveal(QAction* row);

    QRect m_room; ///< on the screen, while the menu is higher than that; else invalid
    int m_scroll = 0;
    std::optional<Press> m_press;
    QElapsedTimer m_sinceOpened;
    bool m_isUnmeant = false; ///< the press that is held
};
