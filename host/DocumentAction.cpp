#include "DocumentAction.h"

#include "EditCommand.h"
#include "Platform.h"

#include <KORVA_Canvas.h>
#include <KORVA_EditCanvas.h>

namespace pad {

namespace {

/// Undo must not lead into another document: a save would write that into this one's file.
void forgetSteps(KORVA_EditCanvas& editor)
{
    if (editor.undoSteps() > 1)
        setHistory(editor, editor.undoSteps());
}

} // namespace

bool mayReplaceDrawing(KORVA_EditCanvas& editor, Platform& platform)
{
    constexpr int no = 1;
    platform.takeAnswer();
    editor.saveChangePic(ChooseCanvas);
    return !editor.isModified() || platform.takeAnswer() == no;
}

void newCanvas(KORVA_EditCanvas& editor, int type, QSize size)
{
    KORVA_Canvas& canvas = *editor.canvas();
    canvas.beginStep();
    editor.setPaper({});
    editor.chooseCanvas(KORVA_CANVASTYPE(type), size.width(), size.height());
    canvas.endStep();
    editor.clearModified(); // a canvas of another size counts as changed until its host says otherwise
    forgetSteps(editor);
}

void changePaper(KORVA_EditCanvas& editor, const QImage& paper)
{
    KORVA_Canvas& canvas = *editor.canvas();
    QPixmap drawing = *canvas.pixmap();
    const bool isModified = editor.isModified();
    canvas.beginStep();
    editor.setPaper(paper);
    // Where it looked like the paper before, it shows the other one now.
    if (canvas.pixmap()->cacheKey() != drawing.cacheKey()) {
        canvas.setPixmap(&drawing);
        canvas.setUndoFlag(0);
        if (!isModified)
            editor.clearModified();
    }
    canvas.endStep();
    forgetSteps(editor);
}

void drawOnOpened(KORVA_EditCanvas& editor)
{
    changePaper(editor, editor.snapshot());
    editor.setFileName(QString());
}

} // namespace pad
