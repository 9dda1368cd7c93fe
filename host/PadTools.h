#pragma once

#include <QString>

class KORVA_EditCanvas;

namespace pad {

/// The tools that the pad has beyond the editor's, behind them in the tool pop-up.
namespace padtools {

/// Their identifiers, in the order in which they are added.
enum Tool : int { Fill = 8, Picker };

/// Once, to an editor that has no other tools of its host's.
void addTo(KORVA_EditCanvas& editor);

/// What a recording calls a tool, the editor's own included; empty for none.
[[nodiscard]] QString word(int tool);

} // namespace padtools

} // namespace pad
