#pragma once

#include "KORVA_Export.h"

#include <QColor>
#include <QFont>
#include <QPalette>
#include <QPixmap>
#include <QString>

class QPainter;
class QRectF;

/// The one place that knows colours, sizes and fonts; widgets ask here and hold no literal of their own.
///
/// All sizes are logical pixels. Every ink stands at 4.5 : 1 or better on the fill it is meant for.
class KORVA_EXPORT UTIL_Skin
{
public:
    enum class Color {
        Ground,   ///< windows and dialogs
        Surface,  ///< what lies on the ground: lists, fields
        Ink,      ///< text and icons on both
        QuietInk, ///< captions, what is disabled
        Border,   ///< hairlines
        Edge,     ///< the outline of a dialog
        Accent,   ///< the one accent: marks, focus, the key that Return presses
        Veil,     ///< laid over a window that waits for its dialog
    };

    enum class Font { Text, Title, Key, Caption };

    enum class Control {
        Key,        ///< a push button
        PrimaryKey, ///< the push button that Return presses
        Row,        ///< a row of a list
    };

    enum class State { Resting, Hovered, Pressed, Checked, Disabled };

    struct Look
    {
        QColor fill;
        QColor border;
        QColor ink;
    };

    struct Size
    {
        static constexpr int screenWidth = 240;
        static constexpr int screenHeight = 320;
        static constexpr int dialogWidth = 220;
        static constexpr int dialogHeight = 256;
        static constexpr int titleHeight = 34;
        static constexpr int margin = 10;
        static constexpr int spacing = 8;
        static constexpr int keyHeight = 36;
        static constexpr int keyPadding = 8;
        static constexpr int rowHeight = 34;
        static constexpr int menuRowHeight = 30;
        static constexpr int rowInset = 2;
        static constexpr int radius = 6;
        static constexpr int hairline = 1;
        static constexpr int focusWidth = 2;
        static constexpr int focusGap = 2;
        static constexpr int radioDiameter = 16;
        static constexpr int radioDot = 8;
        static constexpr int chevron = 4;    ///< half the width of the mark of a box that opens
        static constexpr int iconWidth = 24; ///< of a tool or an option
        static constexpr int iconHeight = 18;
        static constexpr int sliderTouch = 28; ///< how high a slider is for a finger
        static constexpr int messageMargin = 18;
        static constexpr int thumbnailWidth = 60;
        static constexpr int thumbnailHeight = 45;
        static constexpr int captionHeight = 18; ///< of a thumbnail's name
    };

    /// What a picture of a disabled control is painted with.
    static constexpr double disabledOpacity = 0.4;

    [[nodiscard]] static QColor color(Color color);
    [[nodiscard]] static QFont font(Font font);
    [[nodiscard]] static QPalette palette();
    /// How a control looks in a state; the focus ring is drawn on top of any state.
    [[nodiscard]] static Look look(Control control, State state);

    /// The flat box of a control. `box` is the whole area; the outline lies inside it.
    static void paintBox(QPainter& painter, const QRectF& box, const Look& look);
    /// The ring that shows the keyboard focus, inside `box`.
    static void paintFocus(QPainter& painter, const QRectF& box);
    /// The round mark of a radio row, centred in `box`.
    static void paintRadio(QPainter& painter, const QRectF& box, bool marked, bool enabled);

    /// The mark of a control that opens a list.
    static void paintChevron(QPainter& painter, const QPoint& centre, const Look& look);

    /// The file that holds a skin picture ("Dialog_Error" is in "Dialog_Error.gif").
    [[nodiscard]] static QString pictureFile(const QString& name);
    /// A skin picture by its name; null when there is none.
    [[nodiscard]] static QPixmap picture(const QString& name);
};
