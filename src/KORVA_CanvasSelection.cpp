#include "KORVA_Canvas.h"

#include "KORVA_ClassicPainter.h"
#include "KORVA_Clipboard.h"
#include "KORVA_PasteLabel.h"
#include "KORVA_Picture.h"
#include "KORVA_ScrollView.h"
#include "UTIL_PopupMenu.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>

namespace {

QImage plain(const QPixmap& picture)
{
    return picture.toImage().convertToFormat(QImage::Format_RGB32);
}

} // namespace

// The selection, the floating piece, the clipboard, and the menu that offers them.

void KORVA_Canvas::setSelection(const QRect& rect)
{
    constexpr int margin = 2; // at 150 and 200 % the piece is a little larger than what was marked
    const QRect marked = classic::normalized(rect) & this->rect();
    if (marked.isEmpty())
        return;
    m_selection = marked;
    m_hasSelection = true;

    const QRect around = m_zoom.toPictureAround(m_selection) & QRect(QPoint(), pictureSize());
    QRect lifted = m_manners.steadyPiece ? around : m_zoom.toPicture(m_selection);
    if (!m_manners.steadyPiece && (zoom() == 150 || zoom() == 200))
        lifted.setSize(lifted.size() + QSize(margin, margin));
    const QPixmap piece = drawing().piece(lifted);

    mergePastePixmap();
    const BeforePiece before = keptDrawing(around);
    if (m_manners.steadyPiece) {
        drawing().settle();
        drawing().erase(lifted);
    } else {
        eraseSelection();
    }
    floatPiece(m_selection.topLeft(), piece, Lifted, before);
    if (m_manners.steadyPiece)
        placePiece(lifted.topLeft());
    updateZoomed();
    emit selection(true);
}

void KORVA_Canvas::eraseSelection()
{
    mergePastePixmap();
    drawing().settle();
    drawing().erase(m_selection, m_zoom.toPictureMatrix());
}

void KORVA_Canvas::clearSelection()
{
    m_hasSelection = false;
    m_selection = QRect();
    emit selection(false);
}

void KORVA_Canvas::copy()
{
    QGuiApplication::clipboard()->setPixmap(m_pasteLabel->getImage());
    m_clearCopy = m_pasteLabel->isWhiteClear() ? plain(m_pasteLabel->getImage()) : QImage();
    emit clipboard(true);
}

void KORVA_Canvas::cut()
{
    const bool hasHole =
        isFloating() && m_manners.steadyPiece; // the selection's place may be another by now
    if (isFloating() && m_manners.offeredPiece)
        drawing().takeSnapshot(withPiece());
    else
        saveOldPix();
    copy();
    QGuiApplication::clipboard()->setPixmap(
        m_pasteLabel->getImage()); // kept: a cut has always announced itself twice
    m_pasteLabel->hide();
    if (m_origin == Lifted && !hasHole)
        eraseSelection();
    clearSelection();
    markModified();
    updateZoomed();
    emit clipboard(true);
}

void KORVA_Canvas::deleteSelection()
{
    if (!isFloating())
        return;
    drawing().takeSnapshot(withPiece());
    m_pasteLabel->hide();
    clearSelection();
    markModified();
    updateZoomed();
}

void KORVA_Canvas::paste()
{
    const QPointer<KORVA_Canvas> self = this;
    const std::optional<QPixmap> piece = KORVA_Clipboard::picture(*this);
    if (!self || !piece)
        return;
    const BeforePiece before = isFloating() ? nullptr : keptDrawing();
    saveOldPix();
    if (isFloating()) {
        mergePastePixmap();
        markModified();
        updateZoomed();
    }
    if (piece->width() != 0)
        floatPasted(*piece, before ? before : keptDrawing());
    if (isFloating() && !m_clearCopy.isNull() && m_clearCopy == plain(*piece))
        m_pasteLabel->setWhiteClear(true);
}

void KORVA_Canvas::paste(int x, int y)
{
    const QPointer<KORVA_Canvas> self = this;
    const std::optional<QPixmap> piece = KORVA_Clipboard::picture(*this);
    if (!self || !piece || piece->width() == 0)
        return;
    saveOldPix();
    drawing().lay(*piece, QPoint(x, y));
    markModified();
    updateZoomed();
}

void KORVA_Canvas::insertStamp(QPixmap& stamp)
{
    mergePastePixmap();
    floatPasted(stamp, keptDrawing());
}

// --- The menu

void KORVA_Canvas::createMenu()
{
    m_menu = new UTIL_PopupMenu(this);
    m_cutAction = m_menu->addAction(tr("Cut", "2.11.1;MENU"), this, &KORVA_Canvas::slotCut);
    m_copyAction = m_menu->addAction(tr("Copy", "2.11.1;MENU"), this, &KORVA_Canvas::slotCopy);
    m_pasteAction = m_menu->addAction(tr("Paste", "2.11.1;MENU"), this, &KORVA_Canvas::slotPaste);
    m_cutAction->setData(0);
    m_copyAction->setData(1);
    m_pasteAction->setData(2);
    m_menu->setAccessibleName(tr("Drawing", "menu of the canvas"));
    slotSelection(false);
    slotClipBoard(false);
}

void KORVA_Canvas::offerEditing(bool cutting, bool pasting)
{
    const auto offer = [](QAction* action, bool isOffered) {
        if (action)
            action->setVisible(isOffered);
    };
    offer(m_cutAction, cutting);
    offer(m_copyAction, cutting);
    offer(m_pasteAction, pasting);
    offer(m_pasteLabel->m_pasteAction, pasting);
}

void KORVA_Canvas::openMenu(QPoint at)
{
    for (QAction* const row : m_menu->actions()) {
        if (row->isVisible())
            return m_menu->popup(at, row);
    }
}

void KORVA_Canvas::slotCut()
{
    cut();
}

void KORVA_Canvas::slotCopy()
{
    copy();
}

void KORVA_Canvas::slotPaste()
{
    paste();
}

void KORVA_Canvas::slotSelection(bool exists)
{
    for (QAction* action : {m_cutAction.data(), m_copyAction.data()}) {
        if (action)
            action->setEnabled(exists);
    }
}

void KORVA_Canvas::slotClipBoard(bool filled)
{
    if (m_pasteAction)
        m_pasteAction->setEnabled(filled);
    m_pasteLabel->setPasteItem(filled);
}
