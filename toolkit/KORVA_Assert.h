#pragma once

/// Prints the expression in double quotes, the source file as "src/KORVA_Canvas", and the line to standard
/// error; then aborts. Only KORVA_ASSERT calls it.
[[noreturn]] void korvaAssertionFailed(const char* expression, const char* file, int line);

/// Aborts on a programming error. Unlike Qt's own assertions it stays in release builds.
#define KORVA_ASSERT(expression)                                                                           \
    ((expression) ? static_cast<void>(0) : korvaAssertionFailed(#expression, __FILE__, __LINE__))
