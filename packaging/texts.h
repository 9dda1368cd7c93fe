#pragma once

#include <QtGlobal>

/// What a desktop shows of korva-pad before it runs: the texts of korva-pad.desktop and of the metainfo
/// file, which are generated in all languages. The comment says where a text stands.
constexpr struct
{
    const char* text;
    const char* comment;
} desktopTexts[] = {
    QT_TRANSLATE_NOOP3("desktop", "Korva Pad", "Name"),
    QT_TRANSLATE_NOOP3("desktop", "Drawing Pad", "GenericName"),
    QT_TRANSLATE_NOOP3("desktop", "Draw and edit small pictures", "Comment"),
    QT_TRANSLATE_NOOP3("desktop", "draw;paint;picture;bitmap;sketch;",
                       "Keywords; each ends with a semicolon"),
    QT_TRANSLATE_NOOP3(
        "desktop",
        "A drawing pad for small touch screens, which works as well with a mouse: pencil, line, "
        "rectangle, ellipse, eraser, text and a selection that can be moved, stretched and "
        "turned.",
        "description"),
    QT_TRANSLATE_NOOP3("desktop",
                       "It reads PNG, GIF, JPEG, BMP and WBMP pictures and writes PNG, JPEG and BMP.",
                       "description"),
};
