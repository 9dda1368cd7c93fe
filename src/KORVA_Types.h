#pragma once

/// @file
/// The enumerations that a host hands to the editor.

/// The colour depth of the picture being edited, which decides what KORVA_ColorPicker offers. It does not
/// limit the colours that are painted.
enum KORVA_COLORTYPE : int {
    KORVA_COLOR_1BIT,  ///< starts from black or white; the red channel in 2 levels
    KORVA_COLOR_4BIT,  ///< the red channel in 4 levels
    KORVA_COLOR_8BIT,  ///< three channels of 4 levels
    KORVA_COLOR_16BIT, ///< three channels of 256 levels
};

/// The kind of a new canvas, for KORVA_EditCanvas::chooseCanvas().
enum KORVA_CANVASTYPE : int {
    KORVA_CANVAS_16BIT,  ///< 16 bits, KORVA_COLOR_16BIT
    KORVA_CANVAS_1BIT,   ///< 1 bit, KORVA_COLOR_1BIT
    KORVA_CANVAS_4BIT,   ///< 4 bits, KORVA_COLOR_4BIT
    KORVA_CANVAS_8BIT,   ///< 8 bits, KORVA_COLOR_8BIT
    KORVA_CANVAS_4BIT_B, ///< the same depth and colours as KORVA_CANVAS_4BIT
};
