#include "KORVA_CanvasNews.h"

#include "KORVA_Accessible.h"
#include "KORVA_Canvas.h"
#include "KORVA_EditCanvas.h"
#include "KORVA_PasteLabel.h"

#include <QAccessible>
#include <QEvent>

namespace {

constexpr int pace = 100; // milliseconds

} // namespace

KORVA_CanvasNews::KORVA_CanvasNews(KORVA_EditCanvas& editor) : QObject(&editor), m_editor(editor)
{
    const KORVA_Canvas* canvas = editor.canvas();
    connect(canvas, &KORVA_Canvas::sizeChanged, this, &KORVA_CanvasNews::note);
    connect(canvas, &KORVA_Canvas::pixmapChanged, this, &KORVA_CanvasNews::note);
    connect(canvas, &KORVA_Canvas::modified, this, &KORVA_CanvasNews::note);
    connect(canvas, &KORVA_Canvas::canUndo, this, &KORVA_CanvasNews::note);
    connect(canvas, qOverload<bool>(&KORVA_Canvas::selection), this, &KORVA_CanvasNews::note);
    connect(canvas, &KORVA_Canvas::keyboardPenChanged, this, &KORVA_CanvasNews::note);
    connect(&editor, &KORVA_EditCanvas::TextToolClicked, this, &KORVA_CanvasNews::note);
    connect(&editor, &KORVA_EditCanvas::toolChanged, this, &KORVA_CanvasNews::note);
    connect(&editor, &KORVA_EditCanvas::optionChanged, this, &KORVA_CanvasNews::note);
    connect(&editor, &KORVA_EditCanvas::zoomChanged, this, &KORVA_CanvasNews::note);
    canvas->pasteLabel()->installEventFilter(this);
}

void KORVA_CanvasNews::note()
{
    if (QAccessible::isActive() && !m_timer.isActive())
        m_timer.start(pace, this);
}

bool KORVA_CanvasNews::eventFilter(QObject*, QEvent* event)
{
    const QEvent::Type type = event->type();
    if (type == QEvent::Move || type == QEvent::Resize || type == QEvent::Hide || type == QEvent::Show)
        note();
    return false;
}

void KORVA_CanvasNews::timerEvent(QTimerEvent*)
{
    m_timer.stop();
    const QString now = accessible::description(*m_editor.canvas());
    if (now == m_told)
        return;
    m_told = now;
    QAccessibleEvent news(m_editor.canvas(), QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&news);
}
