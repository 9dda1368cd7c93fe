#pragma once

#include "KORVA_Export.h"

#include <QLabel>
#include <QPixmap>
#include <QPointer>
#include <QSize>

class QAction;
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
    /// Shows nothing until setImage().
    explicit KORVA_PasteLabel(QWidget* parent = nullptr, const char* name = nullptr,
                              Qt::WindowFlags flags = {});

    /// Takes the picture of a file in, as the other overload does; none when it cannot be read. `fileName`
    /// is UTF-8.
    void setImage(const char* fileName);
    /// Takes a picture at real size and shows it at the zoom last set; the item takes its size.
    void setImage(const QPixmap& pixmap);
    /// The picture at real size, with every finished stretch and turn in it.
    [[nodiscard]] QPixmap getImage() const { return m_pixmap; }

    /// Shows the picture anew at these percentages, without what was stretched or turned since the last
    /// release; the horizontal one is remembered as the zoom. The item takes the new size; one that is
    /// hidden does when it is shown.
    void setZoom(int horizontal, int vertical);
    /// Scales what is shown by these percentages; calls multiply and the zoom stays. getImage() follows
    /// with the next release.
    void setResizeZoom(int horizontal, int vertical);
    /// Turns what is shown, clockwise for a positive angle. getImage() follows with the next release.
    void rotate(int degrees);
    /// Moves the item as a drag of its inside does, by pixels of the canvas. This and the next two do
    /// nothing while the pointer drags.
    void moveBy(QPoint way);
    /// Stretches the item as a drag of its right and lower edge does, by pixels of the canvas: at least by
    /// the hundredth that a stretch is reckoned in, and not to nothing.
    void stretchBy(QPoint way);
    /// Turns the item as a drag of its top right corner does: downward by a quarter clockwise.
    void turn(bool clockwise);
    /// Enables or disables the menu's Paste; disabled at first.
    void setPasteItem(bool enabled);
    /// The menu of the right button, with the actions Copy, Cut and Paste, whose QAction::data() is 0, 1
    /// and
    /// 2. A host may add entries of its own, and take away any. The item owns it.
    [[nodiscard]] QMenu* menu() const { return m_menu; }

    /// Begins a drag of the zone that the pointer hovered over last; the right button opens the menu. The
    /// position is the item's own; the canvas hands on what reaches it instead.
    void mousePressEvent(QMouseEvent* event) override;
    /// Ends a drag: stretches or turns, and folds the change into getImage(). A stretch ends where the item
    /// has as many pixels, shown or at real size, as KORVA_Canvas::setZoom() gives a zoomed picture.
    void mouseReleaseEvent(QMouseEvent* event) override;
    /// Moves the item while its inside is dragged, its top left not beyond the parent's right and lower
    /// edge; without a button, looks which zone is under the pointer.
    void mouseMoveEvent(QMouseEvent* event) override;
    /// What setZoom() left undone while the item was hidden is made up for.
    void setVisible(bool visible) override;

signals:
    /// Cut was chosen in the menu.
    void signalCut();
    /// Copy was chosen in the menu.
    void signalCopy();
    /// Paste was chosen in the menu.
    void signalPaste();

public slots:
    /// Emits signalCut().
    void slotCut();
    /// Emits signalCopy().
    void slotCopy();
    /// Emits signalPaste().
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
    [[nodiscard]] double mostGrowth() const;
    void catchUp();
    void display(const QPixmap& zoomed);
    void foldBack();

    QPixmap m_pixmap;     ///< at real size
    QPixmap m_zoomPixmap; ///< as shown
    QPoint m_pressPos;
    QPoint m_lastPos;
    Zone m_zone = Inside;
    bool m_pressed = false;
    int m_zoom = 100;
    QSize m_unseenZoom; ///< in percent, what setZoom() was given while the item was hidden; else invalid
    QMenu* m_menu;
    QPointer<QAction> m_pasteAction;
};
