#pragma once

#include <QString>

class KORVA_EditCanvas;
struct KORVA_Manners;

namespace pad {

/// The tools that the pad has beyond the editor's, behind them in the tool pop-up.
namespace padtools {

/// Their identifiers, in the order in which they are added.
enum Tool : int { Fill = 8, Picker };

/// Once, to an editor that has no other tools of its host's.
void addTo(KORVA_EditCanvas& editor);

/// Chooses classic or modern ways, and with KORVA_Manners::pointSizes six sizes of text instead of three,
/// the same in the first three rows.
void behave(KORVA_EditCanvas& editor, const KORVA_Manners& manners);

/// What a recording calls a tool, the editor's own included; empty for none.
[[nodiscard]] QString word(int tool);

} // namespace padtools

} // namespace pad
