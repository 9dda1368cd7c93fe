#pragma once

#include <QString>

namespace pad {

/// Qt's messages at the start, because standard error is for the person. Until the program has started,
/// messages are kept, and a message that would abort the program ends it with exit code 1 and one line.
/// Later messages are printed at once. Messages about the session's folders are dropped.
namespace startmessages {

/// Begins to keep messages; call it first of all. `program` is the program's name.
void keep(const char* program);
/// Takes the words for what would abort from the language that is loaded: when it comes to that, there is
/// no application that could be asked.
void translate();
/// "cannot show anything on '%1': %2", the platform and the reason.
[[nodiscard]] QString nothingShown();
/// The first reason that Qt gave for what did not work; empty if none.
[[nodiscard]] QString reason();
/// Forgets the kept messages.
void forget();
/// The program has started: prints the kept messages.
void tell();

} // namespace startmessages

} // namespace pad
