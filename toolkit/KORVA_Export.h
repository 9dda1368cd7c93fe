#pragma once

#include <QtGlobal>

/// @file
/// The macro that makes a name visible outside the library.

/// Marks names that other programs may link against; all others are hidden.
#define KORVA_EXPORT Q_DECL_EXPORT
