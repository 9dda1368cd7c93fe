#pragma once

/// Prints the expression in double quotes, the source as "src/KORVA_Canvas" and the line to standard error,
/// then aborts. Called by KORVA_ASSERT only.
[[noreturn]] void korvaAssertionFailed(const char* expression, const char* file, int line);

/// For programming errors: unlike Qt's own assertions it stays in release builds.
#define KORVA_ASSERT(expression)                                                                           \
    ((expression) ? static_cast<void>(0) : korvaAssertionFailed(#expression, __FILE__, __LINE__))
