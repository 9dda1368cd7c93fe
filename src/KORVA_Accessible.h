#pragma once

class KORVA_Canvas;
class QString;

/// What a screen reader gets of the editor: a named editor with its controls, and the canvas in it without
/// the widgets between them.
namespace accessible {

/// Makes Qt ask for it, as installControls() does, which it calls.
void installEditor();

/// The drawing in words: tool and option, zoom, size, place of the keyboard's pen and what floats.
[[nodiscard]] QString description(const KORVA_Canvas& canvas);

} // namespace accessible
