#pragma once

/// @file
/// The enumerations that a host and the editor hand each other.

/// The colour depth of the picture being edited. It decides what KORVA_ColorPicker offers, and does not
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

/// The tools that every editor has: KORVA_Tool::id(). A host's own follow from 8 on.
enum KORVA_TOOLTYPE : int {
    KORVA_TOOL_PENCIL,
    KORVA_TOOL_SELECT,
    KORVA_TOOL_LINE,
    KORVA_TOOL_TEXT,
    KORVA_TOOL_RECTANGLE,
    KORVA_TOOL_ELLIPSE,
    KORVA_TOOL_ERASER,
    KORVA_TOOL_HAND,
};

/// The options of these tools, by their rows in the option pop-up.
enum KORVA_OPTIONTYPE : int {
    KORVA_OPTION_SMALL, ///< pencil, line, eraser and text
    KORVA_OPTION_MEDIUM,
    KORVA_OPTION_LARGE,
    KORVA_OPTION_OUTLINE = 0, ///< rectangle and ellipse
    KORVA_OPTION_FILLED,
    KORVA_OPTION_THIN_EDGE, ///< filled and outlined: see KORVA_Manners::outlinedShapes
    KORVA_OPTION_THICK_EDGE,
    KORVA_OPTION_AREA = 0, ///< select
    KORVA_OPTION_HAND,
};

/// The rows of the zoom box.
enum KORVA_ZOOMTYPE : int {
    KORVA_ZOOM_50,
    KORVA_ZOOM_100,
    KORVA_ZOOM_150,
    KORVA_ZOOM_200,
    KORVA_ZOOM_FIT, ///< the rate that fits the whole picture into the view
};

/// The actions of KORVA_EditCanvas::saveChangePic() and similar functions.
enum KORVA_ACTIONTYPE : int {
    KORVA_ACTION_OPEN,
    KORVA_ACTION_CHOOSE_CANVAS,
    KORVA_ACTION_SAVE,
    KORVA_ACTION_INSERT_STAMP,
    KORVA_ACTION_CREATE,
};

/// The choices that KORVA_EditCanvas::chosen() reports.
enum KORVA_CHOICETYPE : int {
    KORVA_CHOICE_TOOL,   ///< by its identifier; the hand counts as a tool
    KORVA_CHOICE_OPTION, ///< by its row in the option pop-up
    KORVA_CHOICE_ZOOM,   ///< by its row in the zoom box
    KORVA_CHOICE_COLOR,  ///< as KORVA_EditCanvas::color() says
    KORVA_CHOICE_BOLD,   ///< 1 for bold letters, 0 for plain ones
};
