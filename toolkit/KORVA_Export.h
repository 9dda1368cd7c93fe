#pragma once

#include <QtGlobal>

/// Marks what other programs may link against; everything else is hidden.
#define KORVA_EXPORT Q_DECL_EXPORT
