#pragma once

#include "KORVA_Export.h"

#include <QStringList>

#include <optional>

/// How an editor behaves where there is a classic way and a modern one. Every switch is off at first: the
/// classic way. A change takes effect with the next press, key or choice.
struct KORVA_EXPORT KORVA_Manners
{
    /// The eraser clears from its press on, and all the way between two events; on the screen exactly what
    /// it clears in the picture. Classic: one square for each move, none for the press.
    bool joinedEraser = false;

    /// The pencil is round: a stroke of 2 pixels or more is as wide as its pen everywhere. Classic: its
    /// segments have square ends, which stand out like thorns where two meet.
    bool roundPencil = false;
    /// Each tool remembers its own size. Classic: small, medium and large are one choice for all tools.
    bool ownSizes = false;
    /// The zooms of 150 and 200 % mean themselves for every picture. Classic: 100 % for one of 640 × 480
    /// pixels or more.
    bool trueZooms = false;
    /// From 100 % on the screen shows after each stroke and shape what the picture holds, pixel by pixel.
    /// Classic: both are drawn, each at its own scale, and the next repaint shows the picture's pixels.
    bool truePixels = false;
    /// From 400 % on thin lines part the pixels. They are never part of the picture.
    bool pixelGrid = false;
    /// A mouse's wheel zooms from row to row of the zoom box, and the place under the pointer stays. With
    /// Shift, and on a touch pad without Ctrl, it scrolls. Classic: it scrolls.
    bool wheelZooms = false;
    /// A zoom that is chosen leaves the middle of what is seen in the middle. Classic: the view keeps its
    /// distance from the canvas's top left.
    bool steadyView = false;
    /// While a finger draws, the spot under it is shown beside it, three times as large.
    bool magnifier = false;
    /// A zoom leaves a floating piece floating at its place in the picture, and every change acts on its
    /// pixels at real size, so that none is lost at a small zoom. Classic: a zoom merges it, and each
    /// release takes over the pixels shown.
    bool steadyPiece = false;
    /// Cut, copy and delete are offered while any piece floats: selection(true) follows a paste and a
    /// stamp, and selection(false) whatever ends them. Undo brings a piece that was cut back, merged where
    /// it lay. Classic: only for what was lifted.
    bool offeredPiece = false;
    /// A floating piece has handles with pictures, inside it and none on a small one, and its menu has rows
    /// to turn, flip, scale and delete it. Classic: black squares, and Copy, Cut, Paste.
    bool pieceHandles = false;
    /// Escape drops a floating piece: see KORVA_Canvas::dropPiece(). The keys that change a piece work
    /// without drawing by keyboard, too: see KORVA_Canvas::setKeyboardDrawing().
    bool pieceKeys = false;
    /// A pasted piece and a stamp come in the middle of what is seen. Classic: at (0, 0), with a scroll.
    bool centeredPiece = false;
    /// The piece's menu offers to make its white transparent: see KORVA_PasteLabel::setWhiteClear().
    bool clearWhite = false;
    /// Shift keeps what is dragged even: squares, circles, square selections, and lines at multiples of 15
    /// degrees, in the picture. While a finger drags, the tap of a second one does so, or no longer does.
    /// Classic: Shift means nothing.
    bool evenShapes = false;
    /// Rectangle and ellipse have two options more, filled with an outline of 1 or 3 pixels in
    /// KORVA_EditCanvas::outlineColor(). Classic: outlined or filled.
    bool outlinedShapes = false;
    /// Typed text is shown as it will be committed: in its colour, and as large as the zoom makes it. The
    /// I-beam is as high as the letters. Classic: inverted, and never zoomed.
    bool coloredText = false;
    /// Escape drops the text being typed, and a text without letters leaves no trace, either: picture, undo
    /// and modified flag are as before its tap. KORVA_Canvas::pendingDropped() tells it. Classic: both
    /// count as modifications, and Escape is the host's or the keyboard pen's.
    bool escapeDropsText = false;
    /// While a text is open, undo() takes back what was typed, one word or run of deletions after the
    /// other, and redo() brings it back. At the text's beginning undo() drops it; redo() opens it again,
    /// unless the drawing has changed since. Classic: they wait for the commit.
    bool undoTypes = false;
    /// A word that would leave the picture on the right goes to the next line, and a text opened at an edge
    /// has room for a letter. At the lower edge the text moves up until its last line is whole, as far as
    /// its first one stays so. Classic: letters are cut off.
    bool textInside = false;
    /// A left pen of 6 pixels or more writes text of as many points. Classic: 12 points.
    bool pointSizes = false;
    /// A drag that begins on the open text moves it. Classic: every press ends the text.
    bool movableText = false;
    /// The options of the text tool have one more row, which makes letters bold or plain: see
    /// KORVA_EditCanvas::setBold(). Classic: letters are plain.
    bool boldText = false;

    /// All switches on.
    [[nodiscard]] static KORVA_Manners modern();
    /// The words of the switches that are on, as recordings have them: "joined-eraser".
    [[nodiscard]] QStringList words() const;
    /// The manners with these switches on; nothing if a word is unknown.
    [[nodiscard]] static std::optional<KORVA_Manners> ofWords(const QStringList& words);

    /// Whether the same switches are on.
    bool operator==(const KORVA_Manners& other) const = default;
};
