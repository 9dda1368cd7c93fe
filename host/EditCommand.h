#pragma once

class KORVA_EditCanvas;
class QString;

namespace pad {

enum class Verb;

/// Carries out a command that is a plain operation of the editor. Any other command is not carried out, and
/// gives false.
bool performOn(KORVA_EditCanvas& editor, Verb verb);

/// Lays a picture file over the drawing, and over an open text. False when it cannot be read, after the
/// editor has told the user.
bool insertStamp(KORVA_EditCanvas& editor, const QString& fileName);

/// Sets how many steps can be undone, in as many bytes as a desktop has to spare.
void setHistory(KORVA_EditCanvas& editor, int steps);

} // namespace pad
