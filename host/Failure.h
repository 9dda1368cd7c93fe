#pragma once

#include <QString>

#include <variant>

namespace pad {

/// The reason of a failure: one line for the person at the keyboard, without the program's name.
struct Failure
{
    QString message;
};

/// A value, or the reason why there is none.
template <typename T>
using Expected = std::variant<T, Failure>;

} // namespace pad
