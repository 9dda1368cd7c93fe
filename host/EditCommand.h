#pragma once

class KORVA_EditCanvas;
class QString;

namespace pad {

enum class Verb;

/// Carries out a command that is a plain operation of the editor. False, with nothing done, for any other.
bool performOn(KORVA_EditCanvas& editor, Verb verb);

/// Lays a picture file over the drawing, and over a text that is open. False when it cannot be read; the
/// editor has said so.
bool insertStamp(KORVA_EditCanvas& editor, const QString& fileName);

} // namespace pad
