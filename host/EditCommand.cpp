#include "EditCommand.h"

#include "DocumentAction.h"
#include "Recording.h"

#include <KORVA_EditCanvas.h>
#include <KORVA_Text.h>

namespace pad {

namespace {

constexpr struct
{
    Verb verb;
    void (KORVA_EditCanvas::*perform)();
} operations[] = {
    {Verb::Undo, &KORVA_EditCanvas::undo},
    {Verb::Redo, &KORVA_EditCanvas::redo},
    {Verb::Cut, &KORVA_EditCanvas::cut},
    {Verb::Copy, &KORVA_EditCanvas::copy},
    {Verb::Paste, qOverload<>(&KORVA_EditCanvas::paste)},
    {Verb::SelectAll, &KORVA_EditCanvas::selectAll},
    {Verb::Clear, &KORVA_EditCanvas::clearCanvas},
    {Verb::Delete, &KORVA_EditCanvas::deleteSelection},
};

} // namespace

bool performOn(KORVA_EditCanvas& editor, Verb verb)
{
    for (const auto& operation : operations) {
        if (operation.verb == verb) {
            (editor.*operation.perform)();
            return true;
        }
    }
    return false;
}

bool insertStamp(KORVA_EditCanvas& editor, const QString& fileName)
{
    if (KORVA_Text* text = editor.currentText()) {
        if (!text->isBufferEmpty())
            text->paintProportionBuffer();
        text->resetBuffer();
    }
    return editor.openNewFilePrivate(InsertStamp, fileName);
}

void setHistory(KORVA_EditCanvas& editor, int steps)
{
    constexpr qint64 mostBytes = 64 << 20;
    editor.setUndoSteps(steps, mostBytes);
}

} // namespace pad
