#pragma once

class KORVA_EditCanvas;

namespace pad {

enum class Verb;

/// Carries out a command that is a plain operation of the editor. False, with nothing done, for any other.
bool performOn(KORVA_EditCanvas& editor, Verb verb);

} // namespace pad
