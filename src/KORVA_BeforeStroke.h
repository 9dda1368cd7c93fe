#pragma once

#include "KORVA_Picture.h"

#include <QCursor>
#include <QPixmap>
#include <QPoint>
#include <QPointer>
#include <QRect>

#include <functional>
#include <memory>
#include <optional>

class KORVA_Canvas;
class KORVA_Tool;
struct KORVA_BeforePiece;

/// Everything of a canvas that a stroke changes, as it was before the press, to take the stroke back.
///
/// The pictures are shared until they are painted on. Other changes of the canvas meanwhile, by the host or
/// another hand, must not be taken back: the owner then drops this object.
class KORVA_BeforeStroke
{
public:
    /// Where the stroke begins.
    enum Place {
        OnPicture, ///< beside the floating piece, which is merged then, or without one
        OnPiece,   ///< only the piece is changed: a text may blink meanwhile
    };
    /// Keeps the present state of the canvas, which is not owned.
    KORVA_BeforeStroke(KORVA_Canvas& canvas, Place place);

    /// Whether tool and zoom are the ones that were kept.
    [[nodiscard]] bool fits() const;
    /// Puts all of it back and shows it, without a signal. Only to be called if it fits().
    void putBack() const;

private:
    struct Piece
    {
        bool isFloating;
        QPixmap atRealSize;
        QPixmap shown;
        QPoint place;
        int zone;
        QCursor cursor;
    };

    void putPictureBack() const;
    void putPieceBack() const;

    KORVA_Canvas& m_canvas;
    Place m_place;
    QPointer<KORVA_Tool> m_tool;
    std::function<void()> m_restoreTool;
    KORVA_Picture m_picture;
    QPixmap m_zoomed;
    int m_zoom;
    int m_undoFlag;
    QRect m_selection;
    bool m_hasSelection;
    int m_origin;
    std::shared_ptr<const KORVA_BeforePiece> m_beforePiece;
    bool m_isPieceAlone;
    QPoint m_piecePlace;
    Piece m_piece;
    QPoint m_scrolled; ///< the hand moves the view
};
