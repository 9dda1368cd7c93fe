#pragma once

class QColor;
class QString;

/// What a person calls a colour.
namespace colorname {

/// "#ff0000, red": exactly, and in a word of the language in force.
[[nodiscard]] QString spoken(const QColor& color);

} // namespace colorname
