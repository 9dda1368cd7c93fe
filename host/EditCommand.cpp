#include "EditCommand.h"

#include "Recording.h"

#include <KORVA_Canvas.h>
#include <KORVA_EditCanvas.h>

namespace pad {

namespace {

void zoomTo(KORVA_EditCanvas& editor, int index)
{
    constexpr int percents[] = {50, 100, 150, 200, 100};
    editor.canvas()->setZoom(percents[index]);
}

constexpr struct
{
    Verb verb;
    void (*perform)(KORVA_EditCanvas& editor, const Command& command);
} operations[] = {
    {Verb::Undo, [](KORVA_EditCanvas& e, const Command&) { e.canvas()->undo(); }},
    {Verb::Redo, [](KORVA_EditCanvas& e, const Command&) { e.canvas()->redo(); }},
    {Verb::Cut, [](KORVA_EditCanvas& e, const Command&) { e.canvas()->cut(); }},
    {Verb::Copy, [](KORVA_EditCanvas& e, const Command&) { e.canvas()->copy(); }},
    {Verb::Paste, [](KORVA_EditCanvas& e, const Command&) { e.canvas()->paste(); }},
    {Verb::Clear, [](KORVA_EditCanvas& e, const Command&) { e.canvas()->clearCanvas(Qt::white); }},
    {Verb::Zoom, [](KORVA_EditCanvas& e, const Command& c) { zoomTo(e, c.number); }},
};

} // namespace

bool performOn(KORVA_EditCanvas& editor, const Command& command)
{
    for (const auto& operation : operations) {
        if (operation.verb == command.verb) {
            operation.perform(editor, command);
            return true;
        }
    }
    return false;
}

} // namespace pad
