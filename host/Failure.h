#pragma once

#include <QString>

#include <variant>

namespace pad {

/// Why something could not be done: one line for the person at the keyboard, without the program's name.
struct Failure
{
    QString message;
};

/// A value, or why there is none.
template <typename T>
using Expected = std::variant<T, Failure>;

} // namespace pad
