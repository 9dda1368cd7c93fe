#include "KORVA_Canvas.h"

#include "KORVA_PasteLabel.h"
#include "KORVA_Picture.h"
#include "KORVA_Tool.h"
#include "KORVA_TouchInput.h"

#include <QTimer>

#include <utility>

// Undo and redo, and when they are offered.

void KORVA_Canvas::saveOldPix()
{
    m_isPieceAlone = false;
    drawing().takeSnapshot();
}

void KORVA_Canvas::record()
{
    m_undoFlag = 1;
    emit canUndo(true);
    emit canRedo(false);
    offerSoon();
}

void KORVA_Canvas::undo()
{
    if (stepPending(true))
        return;
    step(&KORVA_Picture::undo);
    if (hasHistory())
        return offer();
    m_undoFlag = 2;
    emit canUndo(false);
    emit canRedo(true);
}

void KORVA_Canvas::redo()
{
    if (stepPending(false))
        return;
    if (canBringBack())
        return m_tool->bringBack();
    step(&KORVA_Picture::redo);
    if (hasHistory())
        return offer();
    record();
}

void KORVA_Canvas::step(void (KORVA_Picture::*direction)())
{
    m_touch->settle();
    mergePastePixmap();
    m_pasteLabel->hide();
    if (m_tool && m_tool->getTextKey())
        return;
    const QSize before = pictureSize();
    (drawing().*direction)();
    if (hasHistory())
        m_picture->markModified();
    if (pictureSize() == before) {
        updateZoomed();
    } else { // back over a resize: the screen follows
        showAnew();
    }
}

bool KORVA_Canvas::stepPending(bool back)
{
    m_touch->settle();
    const auto steps = m_tool ? m_tool->pendingSteps() : std::nullopt;
    if (steps && (back ? steps->back : steps->forth))
        m_tool->stepPending(back);
    return steps.has_value();
}

void KORVA_Canvas::offerPending()
{
    const auto steps = m_tool ? m_tool->pendingSteps() : std::nullopt;
    if (!steps)
        return;
    emit canUndo(steps->back);
    emit canRedo(steps->forth);
}

bool KORVA_Canvas::canBringBack() const
{
    return m_tool && m_tool->canBringBack();
}

void KORVA_Canvas::offerWithoutDropped()
{
    if (hasHistory())
        offer();
    else
        emit canRedo(m_undoFlag == 2);
}

// What else has painted on the picture meanwhile still counts.
std::function<void()> KORVA_Canvas::keepFlags()
{
    KORVA_TouchInput::Offers offers = m_touch->offers();
    if (canBringBack()) // which what begins now makes impossible
        offers.redo = m_undoFlag == 2;
    return [this, wasModified = isModified(), flag = m_undoFlag, offers,
            key = drawing().pixmap()->cacheKey()] {
        const bool isUnpainted = drawing().pixmap()->cacheKey() == key;
        if (isUnpainted && !wasModified)
            m_picture->clearModified();
        if (hasHistory()) {
            offer();
        } else {
            if (isUnpainted)
                m_undoFlag = flag;
            emit canUndo(isUnpainted ? offers.undo : m_undoFlag == 1);
            emit canRedo((isUnpainted ? offers.redo : m_undoFlag == 2) || canBringBack());
        }
        emit pendingDropped();
    };
}

void KORVA_Canvas::setUndoFlag(int flag)
{
    // The opposite of what record(), undo() and redo() offer for the same flags: the editor relies on it.
    static constexpr struct
    {
        bool redo;
        bool undo;
    } offered[] = {{false, false}, {true, false}, {false, true}};

    m_undoFlag = flag;
    if (flag < 0 || flag >= int(std::size(offered)))
        return;
    emit canRedo(offered[flag].redo);
    emit canUndo(offered[flag].undo);
    offerSoon();
}

void KORVA_Canvas::setUndoSteps(int steps, qint64 mostBytes)
{
    m_touch->settle();
    const bool hadHistory = hasHistory();
    m_isPieceAlone = false;
    drawing().setUndoSteps(steps, mostBytes);
    if (hadHistory || hasHistory())
        offer();
}

int KORVA_Canvas::undoSteps() const
{
    return m_picture->undoSteps();
}

void KORVA_Canvas::beginStep()
{
    m_isPieceAlone = false;
    drawing().beginStep();
}

void KORVA_Canvas::endStep()
{
    drawing().endStep();
}

void KORVA_Canvas::offer()
{
    m_isOfferDue = false;
    if (m_tool && m_tool->pendingSteps())
        return offerPending();
    const bool isBackPossible = drawing().canUndo();
    m_undoFlag = isBackPossible ? 1 : drawing().canRedo() ? 2 : 0;
    emit canUndo(isBackPossible);
    emit canRedo(drawing().canRedo() || canBringBack());
}

// A change is announced before its first pixel; whether there is one is known only afterwards.
void KORVA_Canvas::offerSoon()
{
    if (hasHistory() && !std::exchange(m_isOfferDue, true))
        QTimer::singleShot(0, this, &KORVA_Canvas::offer);
}

void KORVA_Canvas::reset(QSize size)
{
    m_pasteLabel->hide();
    m_pasteLabel->setImage(QPixmap());
    m_origin = Pasted;
    drawing().reset(size);
    clearSelection();
    emit pixmapChanged(drawing().pixmap());
    showAnew();
    setUndoFlag(0);
}
