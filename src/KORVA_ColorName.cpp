#include "KORVA_ColorName.h"

#include <QColor>
#include <QCoreApplication>

#include <algorithm>

namespace {

struct Word
{
    const char* text;
    const char* comment;
};

constexpr int dark = 40; // of 255
constexpr int dull = 30; // of 255
constexpr int light = 235;
constexpr int brownish = 170;
constexpr int pale = 140;

/// Up to which hue, in degrees.
constexpr struct
{
    int end;
    Word word;
} hues[] = {
    {15, QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "red", "color")},
    {45, QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "orange", "color")},
    {70, QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "yellow", "color")},
    {165, QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "green", "color")},
    {195, QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "turquoise", "color")},
    {255, QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "blue", "color")},
    {290, QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "violet", "color")},
    {345, QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "pink", "color")},
    {360, QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "red", "color")},
};

Word wordFor(const QColor& color)
{
    constexpr Word black = QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "black", "color");
    constexpr Word gray = QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "gray", "color");
    constexpr Word white = QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "white", "color");
    constexpr Word brown = QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "brown", "color");
    constexpr Word pink = QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "pink", "color");
    constexpr int endOfRed = 15;
    constexpr int endOfOrange = 45;
    const int hue = color.hsvHue(); // -1 for gray
    if (color.value() < dark)
        return black;
    if (hue < 0 || color.hsvSaturation() < dull)
        return color.value() > light ? white : gray;
    const bool isRed = hue < endOfRed || hue >= hues[std::size(hues) - 2].end;
    if (isRed && color.hsvSaturation() < pale && color.value() > brownish)
        return pink;
    if (hue < endOfOrange && hue >= endOfRed && color.value() < brownish)
        return brown;
    return std::ranges::find_if(hues, [hue](const auto& row) { return hue < row.end; })->word;
}

} // namespace

QString colorname::spoken(const QColor& color)
{
    const Word word = wordFor(color);
    return color.name() + QStringLiteral(", ") +
           QCoreApplication::translate("KORVA_EditCanvas", word.text, word.comment);
}
