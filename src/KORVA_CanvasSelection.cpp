#include "KORVA_Canvas.h"

#include "KORVA_ClassicPainter.h"
#include "KORVA_PasteLabel.h"
#include "KORVA_Picture.h"
#include "KORVA_ScrollView.h"
#include "UTIL_PopupMenu.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>

// The selection, the floating piece, the clipboard, and the menu that offers them.

void KORVA_Canvas::setSelection(const QRect& rect)
{
    constexpr int margin = 2; // at 150 and 200 % the piece is a little larger than what was marked
    const QRect marked = classic::normalized(rect) & this->rect();
    if (marked.isEmpty())
        return;
    m_selection = marked;
    m_hasSelection = true;

    QRect lifted = m_zoom.toPicture(m_selection);
    if (zoom() == 150 || zoom() == 200)
        lifted.setSize(lifted.size() + QSize(margin, margin));
    const QPixmap piece = m_picture->piece(lifted);

    eraseSelection();
    floatPiece(m_selection.topLeft(), piece, Lifted);
    updateZoomed();
    emit selection(true);
}

void KORVA_Canvas::eraseSelection()
{
    mergePastePixmap();
    m_picture->settle();
    m_picture->erase(m_selection, m_zoom.toPictureMatrix());
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
    emit clipboard(true);
}

void KORVA_Canvas::cut()
{
    saveOldPix();
    copy();
    QGuiApplication::clipboard()->setPixmap(
        m_pasteLabel->getImage()); // kept: a cut has always announced itself twice
    m_pasteLabel->hide();
    if (m_origin == Lifted)
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
    m_picture->takeSnapshot(withPiece());
    m_pasteLabel->hide();
    clearSelection();
    markModified();
    updateZoomed();
}

void KORVA_Canvas::paste()
{
    saveOldPix();
    if (isFloating()) {
        mergePastePixmap();
        markModified();
        updateZoomed();
    }
    const QPixmap piece = QGuiApplication::clipboard()->pixmap();
    if (piece.width() != 0)
        floatAtOrigin(piece);
}

void KORVA_Canvas::paste(int x, int y)
{
    const QPixmap piece = QGuiApplication::clipboard()->pixmap();
    if (piece.width() == 0)
        return;
    saveOldPix();
    m_picture->lay(piece, QPoint(x, y));
    markModified();
    updateZoomed();
}

void KORVA_Canvas::insertStamp(QPixmap& stamp)
{
    mergePastePixmap();
    floatAtOrigin(stamp);
}

void KORVA_Canvas::floatAtOrigin(const QPixmap& piece)
{
    keepZoomWithinLimit(piece.size());
    if (m_hasFallenBack)
        showAnew();
    m_picture->settle();
    floatPiece(QPoint(0, 0), piece, Pasted);
    if (KORVA_ScrollView* view = scrollView())
        view->setContentsPos(0, 0);
    markModified();
    updateZoomed();
}

void KORVA_Canvas::floatPiece(const QPoint& at, const QPixmap& piece, Origin origin)
{
    m_origin = origin;
    m_pasteLabel->setImage(piece);
    m_pasteLabel->move(at);
    m_pasteLabel->show();
}

bool KORVA_Canvas::isFloating() const
{
    return !m_pasteLabel->isHidden();
}

void KORVA_Canvas::mergePastePixmap()
{
    if (!isFloating())
        return;
    m_pasteLabel->hide();
    m_picture->lay(m_pasteLabel->getImage(), piecePlace());
    saveOldPix();
    markModified();
    updateZoomed();
    emit selection(false);
}

QPoint KORVA_Canvas::piecePlace() const
{
    return m_zoom.toPicture(m_pasteLabel->pos());
}

QPixmap KORVA_Canvas::withPiece() const
{
    return m_picture->with(isFloating() ? m_pasteLabel->getImage() : QPixmap(), piecePlace());
}

bool KORVA_Canvas::ptInPasteLabel(const QPoint& p) const
{
    return isFloating() && m_pasteLabel->geometry().contains(p);
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
