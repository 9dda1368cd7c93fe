#pragma once

#include "KORVA_Picture.h"

#include <QRect>

/// The drawing as it was before a piece floated, for KORVA_Canvas::dropPiece(). The pixels are shared until
/// they are painted on.
struct KORVA_BeforePiece
{
    KORVA_Picture drawing;
    QRect hole; ///< in picture coordinates; empty: the piece came from outside
    int undoFlag;
    bool canUndo; ///< what the host was last asked to offer
    bool canRedo;
};
