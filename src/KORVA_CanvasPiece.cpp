#include "KORVA_BeforePiece.h"
#include "KORVA_Canvas.h"
#include "KORVA_KeyboardPen.h"
#include "KORVA_PasteLabel.h"
#include "KORVA_ScrollView.h"
#include "KORVA_TouchInput.h"

#include <utility>

// How a piece comes to float, where it lies, and how it is merged or dropped.

void KORVA_Canvas::setManners(const KORVA_Manners& manners)
{
    paintNow();
    m_manners = manners;
    m_pasteLabel->setManners(manners);
    if (manners.pieceKeys && !m_keyboardPen)
        m_keyboardPen = std::make_unique<KORVA_KeyboardPen>(*this);
}

// --- It comes

void KORVA_Canvas::floatPasted(const QPixmap& piece, const BeforePiece& before)
{
    paintNow();
    keepZoomWithinLimit(piece.size());
    if (m_hasFallenBack)
        showAnew();
    drawing().settle();
    floatPiece(QPoint(0, 0), piece, Pasted, before);
    if (m_manners.centeredPiece)
        placePiece(middlePlace());
    else if (KORVA_ScrollView* view = scrollView())
        view->setContentsPos(0, 0);
    m_picture->markModified();
    emit modified();
    updateZoomed();
    if (m_manners.offeredPiece && isFloating())
        emit selection(true);
}

void KORVA_Canvas::floatPiece(const QPoint& at, const QPixmap& piece, Origin origin,
                              const BeforePiece& before)
{
    paintNow();
    m_origin = origin;
    m_placed.reset();
    m_beforePiece = before;
    m_isPieceAlone = true;
    m_pasteLabel->setImage(piece);
    m_pasteLabel->move(at);
    m_pasteLabel->show();
}

KORVA_Canvas::BeforePiece KORVA_Canvas::keptDrawing(const QRect& hole) const
{
    if (!m_manners.pieceKeys)
        return nullptr;
    const auto [undo, redo, selected] = m_touch->offers();
    return std::make_shared<const KORVA_BeforePiece>(
        KORVA_BeforePiece{drawing(), hole & QRect(QPoint(), pictureSize()), m_undoFlag, undo, redo});
}

/// In the middle of what is seen, and all of it in the picture if it fits.
QPoint KORVA_Canvas::middlePlace() const
{
    const QWidget* const view = parentWidget();
    const QRect seen = view ? view->rect().translated(-pos()) & rect() : rect();
    const QRect box = seen.isEmpty() ? rect() : seen;
    const QPoint middle = m_zoom.toPicture(box.topLeft() + QPoint(box.width() / 2, box.height() / 2));
    const QSize extent = m_pasteLabel->getImage().size();
    const QSize room = pictureSize() - extent;
    const QPoint wish = middle - QPoint(extent.width() / 2, extent.height() / 2);
    return {qBound(0, wish.x(), qMax(0, room.width())), qBound(0, wish.y(), qMax(0, room.height()))};
}

// --- It floats

bool KORVA_Canvas::isFloating() const
{
    return !m_pasteLabel->isHidden();
}

QPoint KORVA_Canvas::piecePlace() const
{
    const QPoint at = m_pasteLabel->pos();
    return m_placed && m_placed->onScreen == at ? m_placed->inPicture : m_zoom.toPicture(at);
}

void KORVA_Canvas::placePiece(QPoint inPicture)
{
    const QPoint at = m_zoom.toWidget(inPicture);
    m_placed = {inPicture, at};
    m_pasteLabel->move(at);
}

QPixmap KORVA_Canvas::withPiece() const
{
    return drawing().with(isFloating() ? m_pasteLabel->imprint() : QPixmap(), piecePlace());
}

bool KORVA_Canvas::ptInPasteLabel(const QPoint& p) const
{
    return isFloating() && m_pasteLabel->geometry().contains(p);
}

// --- It goes

void KORVA_Canvas::mergePastePixmap()
{
    if (!isFloating())
        return;
    m_pasteLabel->hide();
    drawing().lay(m_pasteLabel->imprint(), piecePlace());
    saveOldPix();
    markModified();
    updateZoomed();
    emit selection(false);
}

void KORVA_Canvas::mergeUnlessSteady()
{
    if (!m_manners.steadyPiece)
        mergePastePixmap();
}

/// What replaces the drawing ends the piece without a word, unless the host offers cutting for every piece.
void KORVA_Canvas::hidePiece()
{
    const bool wasFloating = isFloating();
    m_pasteLabel->hide();
    if (wasFloating && m_manners.offeredPiece)
        emit selection(false);
}

void KORVA_Canvas::dropPiece()
{
    if (!isFloating() || !m_beforePiece)
        return;
    const BeforePiece before = std::exchange(m_beforePiece, nullptr);
    const bool isAlone = m_isPieceAlone;
    m_touch->settle();
    m_pasteLabel->drop();
    if (isAlone) {
        drawing() = before->drawing;
        m_undoFlag = before->undoFlag;
    } else {
        if (!before->hole.isEmpty())
            drawing().lay(before->drawing.piece(before->hole), before->hole.topLeft());
        markModified();
    }
    updateZoomed();
    clearSelection();
    const auto [undo, redo, selected] = m_touch->offers();
    if (isAlone && undo != before->canUndo)
        emit canUndo(before->canUndo);
    if (isAlone && redo != before->canRedo)
        emit canRedo(before->canRedo);
    offerSoon();
    emit pieceDropped();
}
