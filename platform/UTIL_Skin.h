#pragma once

#include "KORVA_Export.h"

#include <QColor>
#include <QFont>
#include <QPalette>
#include <QPixmap>
#include <QString>

class QPainter;
class QRectF;

/// The colours, sizes and fonts of the user interface. Widgets ask here and have none of their own.
///
/// The colours depend on the application's palette (QGuiApplication::palette(), which is the desktop's
/// unless a program sets another). With a light palette the skin uses its own colours. With a dark or
/// high-contrast palette it derives them from the palette's window, base, text and highlight colours. The
/// drawing and what lies on it do not follow the skin: paper is white.
///
/// All sizes are in logical pixels. Every ink has a contrast of 4.5 : 1 or better on the fill it is meant
/// for. That of a disabled control in colours derived from the desktop's has 3 : 1.
class KORVA_EXPORT UTIL_Skin
{
public:
    /// What a colour is for.
    enum class Color {
        Ground,   ///< windows and dialogs
        Surface,  ///< lists and fields, which lie on the ground
        Ink,      ///< text and icons on both
        QuietInk, ///< captions and disabled text
        Border,   ///< hairlines
        Edge,     ///< the outline of a dialog
        Accent,   ///< the one accent: marks, focus, the key that Return presses
        Veil,     ///< covers a window that waits for its dialog
    };

    /// What a font is for. All are the application's font, each in a size of its own.
    enum class Font {
        Text,    ///< in dialogs, lists and menus
        Title,   ///< of a dialog
        Key,     ///< on push buttons
        Caption, ///< below a thumbnail
    };

    /// Controls with looks of their own.
    enum class Control {
        Key,        ///< a push button
        PrimaryKey, ///< the push button that Return presses
        Row,        ///< a row of a list
    };

    /// What a control's look depends on.
    enum class State {
        Resting,  ///< none of the others
        Hovered,  ///< under the mouse
        Pressed,  ///< held down, or its list is open
        Checked,  ///< on, or marked
        Disabled, ///< not to be used
    };

    /// The colours of a control in a state; what is transparent is not painted.
    struct Look
    {
        QColor fill;   ///< the box
        QColor border; ///< its outline
        QColor ink;    ///< text and icon on it
    };

    /// Sizes in logical pixels.
    struct Size
    {
        static constexpr int screenWidth = 240;    ///< of the screen that everything is made for
        static constexpr int screenHeight = 320;   ///< of the same screen
        static constexpr int dialogWidth = 220;    ///< of a standard dialog
        static constexpr int dialogHeight = 256;   ///< of a standard dialog
        static constexpr int titleHeight = 34;     ///< of a dialog's title
        static constexpr int margin = 10;          ///< from a dialog's edge to its content
        static constexpr int spacing = 8;          ///< between keys and other parts
        static constexpr int keyHeight = 36;       ///< of a push button
        static constexpr int keyPadding = 8;       ///< from a key's edge to its text
        static constexpr int rowHeight = 34;       ///< of a list's row
        static constexpr int menuRowHeight = 30;   ///< of a menu's row
        static constexpr int rowInset = 2;         ///< from a list's edge to a row's box
        static constexpr int radius = 6;           ///< of a box's corners
        static constexpr int hairline = 1;         ///< the width of outlines
        static constexpr int focusWidth = 2;       ///< of the focus ring's line
        static constexpr int focusGap = 2;         ///< between a control and the ring around it
        static constexpr int radioDiameter = 16;   ///< of the mark of a radio row
        static constexpr int radioDot = 8;         ///< of the dot in it, across
        static constexpr int chevron = 4;          ///< half the width of the mark of a box that opens
        static constexpr int iconWidth = 24;       ///< of a tool or an option
        static constexpr int iconHeight = 18;      ///< of a tool or an option
        static constexpr int sliderTouch = 28;     ///< how high a slider is for a finger
        static constexpr int messageMargin = 18;   ///< above a message's icon, and below its text
        static constexpr int thumbnailWidth = 60;  ///< the most for a thumbnail
        static constexpr int thumbnailHeight = 45; ///< the most for a thumbnail
    };

    /// The opacity of a picture in a disabled control.
    static constexpr double disabledOpacity = 0.4;

    /// The colour for a purpose; Color::Veil is translucent.
    [[nodiscard]] static QColor color(Color color);
    /// The font for a purpose.
    [[nodiscard]] static QFont font(Font font);
    /// The palette of windows and dialogs.
    [[nodiscard]] static QPalette palette();
    /// The look of a control in a state. The focus ring is painted over it in any state.
    [[nodiscard]] static Look look(Control control, State state);

    /// Paints the flat box of a control. `box` is the whole area; the outline lies inside it.
    static void paintBox(QPainter& painter, const QRectF& box, const Look& look);
    /// Paints the ring that shows the keyboard focus, inside `box`.
    static void paintFocus(QPainter& painter, const QRectF& box);
    /// Paints the background of a list's row, with the ring if it is chosen and has the keyboard. Returns
    /// the look for the row's content.
    static Look paintRow(QPainter& painter, const QRect& row, bool isChosen, bool hasFocus);
    /// Paints the round mark of a radio row, centred in `box`.
    static void paintRadio(QPainter& painter, const QRectF& box, bool marked, bool enabled);

    /// Paints a line of text as QPainter::drawText() does, for a control of this direction: text that is
    /// aligned left stands at the beginning of the line, wherever that is, and keeps its own direction.
    static void paintText(QPainter& painter, Qt::LayoutDirection direction, const QRect& place, int flags,
                          const QString& text);

    /// Paints the mark of a control that opens a list: it points down and is centred at `centre`.
    static void paintChevron(QPainter& painter, const QPoint& centre, const Look& look);

    /// Takes a picture drawn in the light skin's ground, ink and accent, and gives it in those of the skin
    /// in force.
    [[nodiscard]] static QPixmap recolored(const QPixmap& drawing);
    /// The file that holds a skin picture ("Dialog_Error" is in "Dialog_Error.gif").
    [[nodiscard]] static QString pictureFile(const QString& name);
    /// A skin picture by its name, without extension; null when there is none.
    [[nodiscard]] static QPixmap picture(const QString& name);
};
