#pragma once

#include <QtGlobal>

/// @file
/// What makes a name visible outside the library.

/// Marks what other programs may link against; everything else is hidden.
#define KORVA_EXPORT Q_DECL_EXPORT
