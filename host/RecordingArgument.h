#pragma once

#include "Recording.h"

#include <optional>

namespace pad {

/// An argument of a recording's commands: how it is read from its word and written back.
struct Argument
{
    struct
    {
        const char* text;
        const char* comment; ///< null: a word of the language, the same in all others
    } what;                  ///< for the messages
    bool (*read)(const QString& word, Command& command);
    QString (*write)(const Command& command); ///< returns the word; an empty one is left out
    bool optional = false;
};

/// All that there are.
namespace arguments {

extern const Argument x, y;
extern const Argument width, height;
extern const Argument button;  ///< of a press
extern const Argument shift;   ///< of a move
extern const Argument release; ///< either of them
extern const Argument number, steps, onOrOff;
extern const Argument tool, zoom, canvasType, change;
extern const Argument color, key, text, fileName, manners;

} // namespace arguments

/// The manners of a word or of several with commas between them; nothing if one is unknown.
[[nodiscard]] std::optional<KORVA_Manners> mannersFrom(const QString& words);

} // namespace pad
