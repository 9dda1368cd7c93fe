#pragma once

#include "KORVA_Export.h"

#include <QStringList>

#include <optional>

/// How an editor behaves where there is a classic way and a modern one. Every switch is off at first: the
/// classic way. A change takes effect with the next press, key or choice.
struct KORVA_EXPORT KORVA_Manners
{
    /// The eraser clears from its press on, and all the way between two events; on the screen exactly what
    /// it clears in the picture. Classic: one square for each move, none for the press.
    bool joinedEraser = false;

    /// All switches on.
    [[nodiscard]] static KORVA_Manners modern();
    /// The words of the switches that are on, as recordings have them: "joined-eraser".
    [[nodiscard]] QStringList words() const;
    /// The manners with these switches on; nothing if a word is unknown.
    [[nodiscard]] static std::optional<KORVA_Manners> ofWords(const QStringList& words);

    /// Whether the same switches are on.
    bool operator==(const KORVA_Manners& other) const = default;
};
