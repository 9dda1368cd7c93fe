#pragma once

/// The colour depth of the picture being edited; the colour picker offers as many levels as it has.
enum KORVA_COLORTYPE : int {
    KORVA_COLOR_1BIT,
    KORVA_COLOR_4BIT,
    KORVA_COLOR_8BIT,
    KORVA_COLOR_16BIT,
};

/// The kind of a new canvas.
enum KORVA_CANVASTYPE : int {
    KORVA_CANVAS_16BIT,
    KORVA_CANVAS_1BIT,
    KORVA_CANVAS_4BIT,
    KORVA_CANVAS_8BIT,
    KORVA_CANVAS_4BIT_B, ///< the same depth and colours as KORVA_CANVAS_4BIT
};
