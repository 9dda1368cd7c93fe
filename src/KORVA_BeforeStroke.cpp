#include "KORVA_BeforeStroke.h"

#include "KORVA_Canvas.h"
#include "KORVA_PasteLabel.h"
#include "KORVA_ScrollView.h"
#include "KORVA_Tool.h"

namespace {

QPoint scrolled(const KORVA_ScrollView* view)
{
    return view ? QPoint(view->contentsX(), view->contentsY()) : QPoint();
}

KORVA_Canvas& paintedNow(KORVA_Canvas& canvas)
{
    canvas.paintNow();
    return canvas;
}

} // namespace

KORVA_BeforeStroke::KORVA_BeforeStroke(KORVA_Canvas& canvas, Place place)
    : m_canvas(paintedNow(canvas)),
      m_place(place),
      m_tool(canvas.m_tool),
      m_restoreTool(m_tool ? m_tool->keepState() : nullptr),
      m_picture(*canvas.m_picture),
      m_zoomed(canvas.m_zoomed),
      m_zoom(canvas.zoom()),
      m_undoFlag(canvas.m_undoFlag),
      m_selection(canvas.m_selection),
      m_hasSelection(canvas.m_hasSelection),
      m_origin(canvas.m_origin),
      m_beforePiece(canvas.m_beforePiece),
      m_isPieceAlone(canvas.m_isPieceAlone),
      m_piecePlace(canvas.piecePlace()),
      m_scrolled(scrolled(canvas.scrollView()))
{
    const KORVA_PasteLabel& label = *canvas.m_pasteLabel;
    m_piece = {canvas.isFloating(), label.m_pixmap, label.m_zoomPixmap,
               label.pos(),         label.m_zone,   label.cursor()};
}

bool KORVA_BeforeStroke::fits() const
{
    return m_canvas.m_tool == m_tool && m_canvas.zoom() == m_zoom &&
           m_canvas.m_zoomed.size() == m_zoomed.size();
}

void KORVA_BeforeStroke::putBack() const
{
    if (m_place == OnPicture)
        putPictureBack();
    putPieceBack();
    m_canvas.refresh();
}

void KORVA_BeforeStroke::putPictureBack() const
{
    m_canvas.paintNow();
    if (m_restoreTool)
        m_restoreTool();
    *m_canvas.m_picture = m_picture;
    m_canvas.m_zoomed = m_zoomed;
    m_canvas.m_undoFlag = m_undoFlag;
    m_canvas.m_selection = m_selection;
    m_canvas.m_hasSelection = m_hasSelection;
    m_canvas.m_origin = KORVA_Canvas::Origin(m_origin);
    if (KORVA_ScrollView* view = m_canvas.scrollView())
        view->setContentsPos(m_scrolled.x(), m_scrolled.y());
}

void KORVA_BeforeStroke::putPieceBack() const
{
    KORVA_PasteLabel& label = *m_canvas.m_pasteLabel;
    label.m_pressed = false;
    label.m_zone = KORVA_PasteLabel::Zone(m_piece.zone);
    label.setCursor(m_piece.cursor);
    if (!m_piece.isFloating)
        return; // a hidden item catches up with the zoom when it is shown
    label.m_pixmap = m_piece.atRealSize;
    label.display(m_piece.shown);
    label.move(m_piece.place);
    m_canvas.m_placed = {m_piecePlace, m_piece.place};
    m_canvas.m_beforePiece = m_beforePiece;
    m_canvas.m_isPieceAlone = m_isPieceAlone;
    label.show();
}
