#pragma once

class KORVA_EditCanvas;

namespace pad {

struct Command;

/// Carries out a command that is a plain operation of the editor: undo, zoom and the like. False, with
/// nothing done, for any other: strokes, keys, files, waiting.
bool performOn(KORVA_EditCanvas& editor, const Command& command);

} // namespace pad
