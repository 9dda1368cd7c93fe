#include "KORVA_EditCanvas.h"

#include "KORVA_Canvas.h"
#include "KORVA_ClassicPainter.h"
#include "KORVA_EditorLayout.h"
#include "KORVA_MainView.h"
#include "KORVA_ToolBar.h"
#include "KORVA_ToolChoice.h"
#include "KORVA_ToolSet.h"
#include "KORVA_ZoomChoice.h"

#include <QStyle>

namespace {

constexpr int mostZoom = 3200; // in percent

} // namespace

// What the editor offers, how it behaves, and what room its parts have.

const KORVA_Features& KORVA_EditCanvas::features() const
{
    return m_tools->features();
}

void KORVA_EditCanvas::setFeatures(const KORVA_Features& features)
{
    cancelDialogs(); // one of them may show what is no longer offered
    KORVA_Features possible = features;
    possible.zooms.removeIf([](int percent) { return percent < 0 || percent > mostZoom; });
    m_tools->setFeatures(possible);
    m_toolBar->offer();
    m_toolChoice->offer();
    m_zoomChoice->offer(possible.zooms);
    canvas()->offerEditing(features.editing, features.editing && features.pasting);
    arrange();
    m_zoomChoice->fitAgain();
}

const KORVA_Manners& KORVA_EditCanvas::manners() const
{
    return canvas()->manners();
}

void KORVA_EditCanvas::setManners(const KORVA_Manners& manners)
{
    canvas()->setManners(manners);
    if (m_tools->setManners(manners))
        m_toolChoice->offer();
}

QPixmap KORVA_EditCanvas::fitted(const QPixmap& picture) const
{
    const QSize size = canvas()->pictureSize();
    if (features().resizing || picture.isNull() || picture.size() == size)
        return picture;
    const bool isLarger = picture.width() > size.width() || picture.height() > size.height();
    const QPixmap piece =
        isLarger ? picture.scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation) : picture;
    QPixmap sheet = classic::filled(size, Qt::white);
    const QSize margin = size - piece.size();
    classic::bitBlt(&sheet, margin.width() / 2, margin.height() / 2, classic::opaque(piece));
    return sheet;
}

void KORVA_EditCanvas::arrange()
{
    const QSize editorSize = layout::editor + layout::beyond(size());
    m_mainView->setGeometry(QStyle::visualRect(layoutDirection(), QRect(QPoint(), editorSize),
                                               layout::mainViewIn(size(), features().controls)));
    if (layoutDirection() == Qt::RightToLeft) // from left to right nothing ever moves them
        m_toolBar->arrange();
}
