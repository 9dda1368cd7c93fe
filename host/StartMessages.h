#pragma once

#include <QString>

namespace pad {

/// Standard error is for the person. Until the program has started what the toolkit says is kept, and what
/// would abort it ends it instead with exit code 1 and one line; afterwards the toolkit says it at once.
/// What it has to say about the session's folders is dropped.
namespace startmessages {

/// First of all; `program` is its name.
void keep(const char* program);
/// Takes the words for what would abort from the language that is loaded: when it comes to that, there is
/// no application that could be asked.
void translate();
/// "cannot show anything on '%1': %2", the platform and the reason.
[[nodiscard]] QString nothingShown();
/// The reason that the toolkit gave first for what did not work; empty: none.
[[nodiscard]] QString reason();
/// Forgets what was kept.
void forget();
/// The program has started: tells what was kept.
void tell();

} // namespace startmessages

} // namespace pad
