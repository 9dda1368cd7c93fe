#pragma once

#include "KORVA_Canvas.h"
#include "KORVA_ScrollView.h"

/// A point of the picture that is to stay under a point of the screen, whatever the zoom becomes.
class KORVA_ZoomAnchor
{
public:
    /// The middle of what is seen of a canvas, on the screen.
    [[nodiscard]] static QPointF middleOf(const KORVA_Canvas& canvas)
    {
        const QWidget* const view = canvas.parentWidget();
        const QRect seen = view ? view->rect().translated(-canvas.pos()) & canvas.rect() : canvas.rect();
        return canvas.mapToGlobal(QRectF(seen).center());
    }

    /// Takes the point of the picture that is under this point of the screen now.
    KORVA_ZoomAnchor(const KORVA_Canvas& canvas, QPointF onScreen)
        : m_inPicture(canvas.mapFromGlobal(onScreen) * 100 / canvas.zoom())
    {
    }

    /// Scrolls so that it lies under this point of the screen, as far as the view scrolls.
    void bringUnder(const KORVA_Canvas& canvas, QPointF onScreen) const
    {
        KORVA_ScrollView* const view = canvas.scrollView();
        if (!view)
            return;
        const QPointF slipped = canvas.mapToGlobal(m_inPicture * canvas.zoom() / 100) - onScreen;
        view->setContentsPos(view->contentsX() + qRound(slipped.x()),
                             view->contentsY() + qRound(slipped.y()));
    }

private:
    QPointF m_inPicture;
};
