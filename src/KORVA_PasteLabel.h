#pragma once

#include "KORVA_Export.h"

#include <QLabel>
#include <QPixmap>

class QMenu;

/// A picture that floats over the canvas until it is merged: moved by its inside, stretched by its edges
/// and corners, turned by quarters at its top right corner.
///
/// The canvas creates it, fills, shows and hides it and reads the outcome back with getImage(). Its
/// position and size are widget coordinates of the canvas. Nothing here touches the undo snapshot or the
/// modified flag.
class KORVA_EXPORT KORVA_PasteLabel : public QLabel
{
    Q_OBJECT

public:
    explicit KORVA_PasteLabel(QWidget* parent = nullptr, const char* name = nullptr,
                              Qt::WindowFlags flags = {});

    /// Takes a picture at real size and shows it at the zoom last set; a file that cannot be read gives
    /// none.
    void setImage(const char* fileName);
    void setImage(const QPixmap& pixmap);
    /// The picture at real size, with every finished stretch and turn in it.
    [[nodiscard]] QPixmap getImage() const { return m_pixmap; }

    /// Shows the picture anew at these percentages; the horizontal one is remembered as the zoom.
    void setZoom(int horizontal, int vertical);
    /// Scales what is shown by these percentages; calls add up and the zoom stays.
    void setResizeZoom(int horizontal, int vertical);
    /// Turns what is shown, clockwise for a positive angle.
    void rotate(int degrees);
    /// Enables the menu's Paste.
    void setPasteItem(bool enabled);
    /// Copy (0), Cut (1), Paste (2).
    [[nodiscard]] QMenu* menu() const { return m_menu; }

    // Positions are the item's own; the canvas hands on what reaches it instead.
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

signals:
    void signalCut();
    void signalCopy();
    void signalPaste();

public slots:
    void slotCut();
    void slotCopy();
    void slotPaste();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    /// What the pointer would do where it hovered last. A press does not look again.
    enum Zone : int {
        Outside = 0,
        Inside = 1, ///< moves the item
        LeftEdge = 2,
        RightEdge = 3,
        TopEdge = 4,
        BottomEdge = 5,
        TopLeft = 6,
        // 7 has never been assigned
        BottomLeft = 8,
        BottomRight = 9,
        TopRight = 10, ///< turns the item
    };
    struct Stretch;

    [[nodiscard]] Zone zoneAt(QPoint p) const;
    void hover(QPoint p);
    void dragTo(QPoint p);
    void stretch(const Stretch& rule);
    void display(const QPixmap& zoomed);
    void foldBack();

    QPixmap m_pixmap;     ///< at real size
    QPixmap m_zoomPixmap; ///< as shown
    QPoint m_pressPos;
    QPoint m_lastPos;
    Zone m_zone = Inside;
    bool m_pressed = false;
    int m_zoom = 100;
    QMenu* m_menu;
};
