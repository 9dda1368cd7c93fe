#pragma once

#include "KORVA_Export.h"
#include "KORVA_Manners.h"

#include <QLabel>
#include <QPixmap>
#include <QPointer>
#include <QSize>

#include <optional>

class QAction;
class KORVA_PieceHandles;
class QMenu;

/// The floating piece: a picture that floats over the canvas until it is merged. The pointer moves it by
/// its inside, stretches it by its edges and corners, and turns it by quarters at its top right corner.
///
/// The canvas creates, fills, shows and hides it, and reads the result with getImage(). Its position and
/// size are in widget coordinates of the canvas. Nothing here touches the undo snapshot or the modified
/// flag.
///
/// KORVA_Manners::steadyPiece, pieceHandles and clearWhite change how it behaves; the canvas hands them on.
class KORVA_EXPORT KORVA_PasteLabel : public QLabel
{
    Q_OBJECT

public:
    /// Shows nothing until setImage().
    explicit KORVA_PasteLabel(QWidget* parent = nullptr, const char* name = nullptr,
                              Qt::WindowFlags flags = {});

    /// Takes the picture from a file, as the other overload does; a null picture if it cannot be read.
    /// `fileName` is UTF-8.
    void setImage(const char* fileName);
    /// Takes a picture at real size and shows it at the zoom last set. The item gets the size shown.
    void setImage(const QPixmap& pixmap);
    /// The picture at real size, including every finished stretch and turn.
    [[nodiscard]] QPixmap getImage() const { return m_pixmap; }

    /// Shows the picture again at these percentages, without any stretch or turn since the last release.
    /// The horizontal percentage is remembered as the zoom. The item gets the new size; a hidden item gets
    /// it when it is shown.
    void setZoom(int horizontal, int vertical);
    /// Scales what is shown by these percentages. Several calls multiply; the zoom stays. getImage()
    /// follows with the next release.
    void setResizeZoom(int horizontal, int vertical);
    /// Turns what is shown, clockwise for a positive angle: around its middle with
    /// KORVA_Manners::pieceHandles, else the top left stays. getImage() follows with the next release.
    void rotate(int degrees);
    /// Moves the item as a drag of its inside does, by pixels of the canvas. This and the next two do
    /// nothing while the pointer drags.
    void moveBy(QPoint way);
    /// Stretches the item as a drag of its right and lower edge does, by pixels of the canvas: at least by
    /// the hundredth that a stretch is reckoned in, and not to nothing.
    void stretchBy(QPoint way);
    /// Turns the item as a drag of its top right corner does: downward by a quarter clockwise.
    void turn(bool clockwise);

    /// What the menu changes with KORVA_Manners::pieceHandles; the last one with KORVA_Manners::clearWhite.
    enum Change {
        TurnLeft,
        TurnRight,
        Flip, ///< left and right
        Double,
        Halve,
        ClearWhite, ///< switches setWhiteClear()
    };
    /// Changes the pixels at real size; the top left stays, in a turn the middle. Nothing happens while the
    /// item is hidden or the pointer drags, and if it would become too large, as a stretch, or vanish.
    void change(Change what);
    /// Whether white pixels are transparent, here and in the picture when the piece is merged; not in
    /// getImage(). Off for each picture that is set.
    void setWhiteClear(bool clear);
    /// See setWhiteClear().
    [[nodiscard]] bool isWhiteClear() const { return m_isWhiteClear; }
    /// What a merge lays into the picture: getImage(), without its white if that is clear.
    [[nodiscard]] QPixmap imprint() const;

    /// How the item behaves: see KORVA_EditCanvas::setManners(). Adds rows to the menu, or removes them.
    void setManners(const KORVA_Manners& manners);
    /// Enables or disables the menu's Paste; disabled at first.
    void setPasteItem(bool enabled);
    /// The menu of the right button. Its actions Copy, Cut and Paste have the QAction::data() 0, 1 and 2. A
    /// host may add entries of its own, and remove any. The item owns the menu.
    [[nodiscard]] QMenu* menu() const { return m_menu; }

    /// Where a mouse hovers that is about to do what a finger at `finger`, in the item's own coordinates,
    /// means. The handles reach `reach` pixels around for a finger: that far outwards, and inwards no
    /// farther than leaves the middle half of the item to move it. None beyond that. An item of less than
    /// 12 pixels in both directions has corners only, for a finger as for a mouse.
    [[nodiscard]] std::optional<QPoint> gripFor(QPoint finger, int reach) const;

    /// Begins a drag of the zone over which the pointer hovered last; the right button opens the menu. The
    /// position is in the item's coordinates. The canvas passes on presses on the item that reach the
    /// canvas instead.
    void mousePressEvent(QMouseEvent* event) override;
    /// Ends a drag: stretches or turns, and folds the change into getImage(). A stretch is limited to the
    /// number of pixels, shown or at real size, that KORVA_Canvas::setZoom() allows for a zoomed picture.
    void mouseReleaseEvent(QMouseEvent* event) override;
    /// Moves the item while its inside is dragged; its top left stays within the parent's right and lower
    /// edges. Without a button, finds the zone under the pointer.
    void mouseMoveEvent(QMouseEvent* event) override;
    /// Hides the item, also in the middle of a drag.
    void drop();
    /// An item that is shown now applies the setZoom() that came while it was hidden.
    void setVisible(bool visible) override;

signals:
    /// Cut was chosen in the menu.
    void signalCut();
    /// Copy was chosen in the menu.
    void signalCopy();
    /// Paste was chosen in the menu.
    void signalPaste();
    /// Delete was chosen in the menu, which has it with KORVA_Manners::pieceHandles.
    void signalDelete();
    /// Another row of the menu was chosen, and is done. For a host that records what is done.
    void changeChosen(KORVA_PasteLabel::Change what);

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
    friend class KORVA_BeforeStroke;
    friend class KORVA_Canvas; // for what its menu offers

    /// What a drag does, by the place where the pointer hovered last. A press does not look again.
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
    void apply(const QTransform& how);
    void adopt(const QPixmap& changed);
    void keepMiddle(const QRect& before);
    [[nodiscard]] QPixmap shown();
    void paintFrame(const QRect& exposed);
    void addRows();
    void chooseChange(Change what);
    void tickWhite();
    [[nodiscard]] KORVA_PieceHandles handles() const;

    QPixmap m_pixmap;     ///< at real size
    QPixmap m_zoomPixmap; ///< as shown
    QPoint m_pressPos;
    QPoint m_lastPos;
    Zone m_zone = Inside;
    bool m_pressed = false;
    int m_zoom = 100;
    QSize m_unseenZoom; ///< percentages of a setZoom() that came while the item was hidden; else invalid
    QMenu* m_menu;
    QPointer<QAction> m_pasteAction;
    KORVA_Manners m_manners;
    QList<QPointer<QAction>> m_rows; ///< of the modern menu
    QPointer<QAction> m_whiteAction;
    bool m_isWhiteClear = false;
    QPixmap m_clearShown; ///< as shown, without white
    qint64 m_clearOf = 0; ///< the picture of which
};
