#pragma once

#include <QColor>
#include <QtGlobal>

namespace pad {

/// A colour of the palette, and what the editor calls it.
struct PaletteColor
{
    QRgb rgb;
    struct
    {
        const char* text;
        const char* comment;
    } word; ///< of the editor's translations
};

/// The sixteen colours of the palette, in four rows of four.
inline constexpr PaletteColor palette16[] = {
    {0xff000000, QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "black", "color")},
    {0xff606060, QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "gray", "color")},
    {0xffc0c0c0, QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "gray", "color")},
    {0xffffffff, QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "white", "color")},

    {0xff7a4a1e, QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "brown", "color")},
    {0xfff5c89a, QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "orange", "color")},
    {0xffff80c0, QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "pink", "color")},
    {0xff8030c0, QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "violet", "color")},

    {0xffa01020, QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "red", "color")},
    {0xffff0000, QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "red", "color")},
    {0xffff8000, QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "orange", "color")},
    {0xffffe000, QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "yellow", "color")},

    {0xff007020, QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "green", "color")},
    {0xff30c030, QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "green", "color")},
    {0xff40a0ff, QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "blue", "color")},
    {0xff0000ff, QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "blue", "color")},
};

} // namespace pad
