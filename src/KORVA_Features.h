#pragma once

#include "KORVA_ToolOption.h"
#include "KORVA_Types.h"

#include <QHash>
#include <QList>
#include <QStringList>

/// What an editor offers: everything, unless its host takes something away or puts its own in its place.
///
/// What is taken away is nowhere to be seen. Neither the pointer nor a key reaches it, nor the editor's
/// functions for it: they do nothing, and return as if refused.
struct KORVA_Features
{
    /// Tools that are not offered, by their identifiers: KORVA_TOOLTYPE or from addTool(). Without the
    /// select tool there is no selectAll(). If none is left, the hand is in force.
    QList<int> withoutTools;
    /// Rows of the option pop-up that are not offered, by tool. The others keep their numbers.
    QHash<int, QList<int>> withoutOptions;
    /// Options in place of the built-in ones, for pencil, line, text and eraser; ignored for any other
    /// tool. Each must have a pen width. Such a tool remembers its option for itself.
    QHash<int, QList<KORVA_ToolOption>> ownOptions;

    /// The row of the zoom box that fits the picture into the view.
    static constexpr int fitToPage = 0;
    /// The rows of the zoom box, in percent, up to 3200. 150 and 200 mean 100 % for a picture of 640 × 480
    /// pixels or more, unless KORVA_Manners::trueZooms is on.
    QList<int> zooms{50, 100, 150, 200, fitToPage};

    /// The formats that are opened and saved: of PNG, GIF, JPEG, BMP and WBMP.
    QStringList formats{QStringLiteral("PNG"), QStringLiteral("GIF"), QStringLiteral("JPEG"),
                        QStringLiteral("BMP"), QStringLiteral("WBMP")};

    bool controls = true; ///< the four controls; without them the view takes their room
    bool colors = true;   ///< choosing a colour: the colour button and slotColor(), but not setColor()
    bool dialogs = true;  ///< boxes and dialogs of documents: without them nothing is asked, told or picked
    bool opening = true;  ///< pictures from files, as a drawing or as a stamp
    bool saving = true;   ///< writing and removing files
    bool pasting = true;  ///< pieces from the clipboard, and stamps
    bool resizing = true; ///< other sizes of the canvas: a picture taken in is fitted into the present one
    /// Changing the drawing. Without it the hand is the only tool, and nothing is cut, pasted, cleared,
    /// scaled, undone or redone; pictures can be shown and zoomed.
    bool editing = true;
};
