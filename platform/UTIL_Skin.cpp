#include "UTIL_Skin.h"

#include "RES_ICON_Reader.h"

#include <QApplication>
#include <QPainter>
#include <QStyle>

#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>
#include <utility>

namespace {

constexpr QRgb none = 0x00000000;
constexpr int alignments = Qt::AlignHorizontal_Mask | Qt::AlignVertical_Mask;

// In the order of UTIL_Skin::Color.
constexpr std::array<QRgb, 8> lightColors = {
    0xFFF4F5F7, 0xFFFFFFFF, 0xFF2B3440, 0xFF5E6875, 0xFFB9C1CC, 0xFF6B7684, 0xFF1B66DB, 0x592B3440,
};

struct LookRow
{
    QRgb fill;
    QRgb border;
    QRgb ink;
};

// Rows in the order of UTIL_Skin::Control, columns in the order of UTIL_Skin::State.
constexpr std::array<std::array<LookRow, 5>, 3> lightLooks = {{
    {{
        {0xFFFFFFFF, 0xFFB9C1CC, 0xFF2B3440},
        {0xFFE9EDF3, 0xFF8D98A6, 0xFF2B3440},
        {0xFFCFD7E2, 0xFF6B7684, 0xFF2B3440},
        {0xFFDCE8FD, 0xFF1B66DB, 0xFF17458F},
        {0xFFF4F5F7, 0xFFDDE1E7, 0xFF5E6875},
    }},
    {{
        {0xFF1B66DB, 0xFF1B66DB, 0xFFFFFFFF},
        {0xFF1857BD, 0xFF1857BD, 0xFFFFFFFF},
        {0xFF12458F, 0xFF12458F, 0xFFFFFFFF},
        {0xFF12458F, 0xFF12458F, 0xFFFFFFFF},
        {0xFFE4E7EC, 0xFFE4E7EC, 0xFF5A6470},
    }},
    {{
        {none, none, 0xFF2B3440},
        {0xFFE9EDF3, none, 0xFF2B3440},
        {0xFFCFD7E2, none, 0xFF2B3440},
        {0xFFDCE8FD, none, 0xFF2B3440},
        {none, none, 0xFF5E6875},
    }},
}};

struct FontRow
{
    int pixelSize;
    QFont::Weight weight;
};

// In the order of UTIL_Skin::Font.
constexpr std::array<FontRow, 4> fonts = {{
    {13, QFont::Normal},
    {15, QFont::Bold},
    {13, QFont::Bold},
    {11, QFont::Normal},
}};

using Color = UTIL_Skin::Color;

/// Everything is painted in one of these colors.
struct Scheme
{
    bool isLight; ///< our own light skin
    std::array<QRgb, 8> colors;
    std::array<std::array<LookRow, 5>, 3> looks;
    QRgb onAccent; ///< the ink of marked text
};

// --- Contrast

constexpr double readable = 4.5;
constexpr double readableWhenDisabled = 3;

double linear(int channel)
{
    const double value = channel / 255.0;
    return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double luminance(QRgb color)
{
    return 0.2126 * linear(qRed(color)) + 0.7152 * linear(qGreen(color)) + 0.0722 * linear(qBlue(color));
}

double contrast(QRgb one, QRgb other)
{
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

/// Black or white, whichever is easier to read.
QRgb farFrom(QRgb ground)
{
    return contrast(ground, 0xFFFFFFFF) >= contrast(ground, 0xFF000000) ? 0xFFFFFFFF : 0xFF000000;
}

bool isDark(QRgb color)
{
    return farFrom(color) == 0xFFFFFFFF;
}

/// A color part of the way from one to another.
QRgb mixed(QRgb from, QRgb to, double part)
{
    const auto channel = [part](int start, int end) { return qRound(start + (end - start) * part); };
    return qRgb(channel(qRed(from), qRed(to)), channel(qGreen(from), qGreen(to)),
                channel(qBlue(from), qBlue(to)));
}

/// The ink, or the nearest color to it that can be read on all of the grounds.
QRgb readableOn(std::initializer_list<QRgb> grounds, QRgb ink, double least = readable)
{
    constexpr int steps = 40;
    const QRgb limit = farFrom(*grounds.begin());
    for (int step = 0; step < steps; ++step) {
        const QRgb nearer = mixed(ink, limit, double(step) / steps);
        if (std::all_of(grounds.begin(), grounds.end(),
                        [&](QRgb ground) { return contrast(nearer, ground) >= least; }))
            return nearer;
    }
    return limit;
}

// --- The desktop's colors

/// Whether the ground is black or white, or nearly so.
bool isOfHighContrast(QRgb ground, QRgb ink)
{
    constexpr double least = 19;
    constexpr int nearly = 4;
    const QRgb limit = isDark(ground) ? 0xFF000000 : 0xFFFFFFFF;
    return contrast(ground, ink) >= least && std::abs(qRed(ground) - qRed(limit)) <= nearly &&
           std::abs(qGreen(ground) - qGreen(limit)) <= nearly &&
           std::abs(qBlue(ground) - qBlue(limit)) <= nearly;
}

/// Derives the skin from four colors of a desktop. Deriving it again from the resulting palette gives the
/// same skin, because a program may have set that palette as its own.
Scheme schemeFrom(const QPalette& desktop)
{
    const auto of = [&desktop](QPalette::ColorRole role) {
        return desktop.color(QPalette::Active, role).rgb();
    };
    const QRgb ground = of(QPalette::Window);
    const bool isStark = isOfHighContrast(ground, of(QPalette::WindowText));
    const QRgb base = of(QPalette::Base);
    const QRgb surface = isDark(base) == isDark(ground) ? base : mixed(ground, farFrom(ground), 0.06);
    const QRgb ink = readableOn({ground, surface}, of(QPalette::WindowText));
    const QRgb accent = readableOn({ground, surface}, of(QPalette::Highlight));
    const QRgb quiet = readableOn({ground, surface}, isStark ? ink : mixed(ink, ground, 0.35));
    const QRgb pale = readableOn({ground, surface, mixed(ground, ink, 0.12)}, mixed(ink, ground, 0.5),
                                 readableWhenDisabled);
    const QRgb border = mixed(ground, ink, isStark ? 0.5 : 0.28);
    const QRgb edge = isStark ? ink : mixed(ground, ink, 0.5);
    constexpr QRgb veil = 0x80000000;

    const auto key = [&](double part, QRgb outline) {
        const QRgb fill = mixed(ground, ink, part);
        return LookRow{fill, isStark ? edge : outline, readableOn({fill}, ink)};
    };
    const auto primary = [&](double part) {
        const QRgb fill = mixed(accent, ink, part);
        return LookRow{fill, isStark ? ink : fill, farFrom(fill)};
    };
    const auto row = [&](QRgb fill) {
        return LookRow{fill, isStark ? edge : none, readableOn({fill}, ink)};
    };
    const QRgb chosen = mixed(ground, accent, 0.35);
    return {false,
            {ground, surface, ink, quiet, border, edge, accent, veil},
            {{{{key(0.1, border),
                key(0.18, edge),
                key(0.3, edge),
                {chosen, accent, readableOn({chosen}, ink)},
                {ground, mixed(ground, ink, isStark ? 0.5 : 0.15), pale}}},
              {{primary(0),
                primary(0.15),
                primary(0.3),
                primary(0.3),
                {mixed(ground, ink, 0.12), mixed(ground, ink, 0.12), pale}}},
              {{{none, none, ink},
                row(mixed(surface, ink, 0.1)),
                row(mixed(surface, ink, 0.2)),
                row(mixed(surface, accent, 0.3)),
                {none, none, pale}}}}},
            farFrom(accent)};
}

Scheme schemeFor(const QPalette& desktop)
{
    const QRgb ground = desktop.color(QPalette::Active, QPalette::Window).rgb();
    const QRgb ink = desktop.color(QPalette::Active, QPalette::WindowText).rgb();
    if (isDark(ground) || isOfHighContrast(ground, ink))
        return schemeFrom(desktop);
    return {true, lightColors, lightLooks, lightColors[size_t(Color::Surface)]};
}

const Scheme& scheme()
{
    static qint64 key = -1;
    static Scheme inForce;
    const QPalette desktop = qGuiApp ? QGuiApplication::palette() : QPalette(QColor(Qt::lightGray));
    if (std::exchange(key, desktop.cacheKey()) != desktop.cacheKey())
        inForce = schemeFor(desktop);
    return inForce;
}

QColor colorOf(QRgb rgb)
{
    return QColor::fromRgba(rgb);
}

// --- Pictures drawn for the light skin

struct Vector
{
    double red;
    double green;
    double blue;
};

Vector between(QRgb from, QRgb to)
{
    return {double(qRed(to) - qRed(from)), double(qGreen(to) - qGreen(from)),
            double(qBlue(to) - qBlue(from))};
}

double operator*(const Vector& one, const Vector& other)
{
    return one.red * other.red + one.green * other.green + one.blue * other.blue;
}

// A stroke lies centred on its path, so the path moves in by half of it.
QRectF strokePath(const QRectF& box, qreal width)
{
    return box.adjusted(width / 2, width / 2, -width / 2, -width / 2);
}

} // namespace

QColor UTIL_Skin::color(Color color)
{
    return colorOf(scheme().colors[size_t(color)]);
}

QFont UTIL_Skin::font(Font font)
{
    const FontRow& row = fonts[size_t(font)];
    QFont result = QApplication::font();
    result.setPixelSize(row.pixelSize);
    result.setWeight(row.weight);
    return result;
}

QPalette UTIL_Skin::palette()
{
    QPalette palette(color(Color::Ink), color(Color::Surface), color(Color::Surface), color(Color::Edge),
                     color(Color::Border), color(Color::Ink), color(Color::Surface), color(Color::Surface),
                     color(Color::Ground));
    palette.setColor(QPalette::Highlight, color(Color::Accent));
    palette.setColor(QPalette::HighlightedText, colorOf(scheme().onAccent));
    palette.setColor(QPalette::PlaceholderText, color(Color::QuietInk));
    palette.setColor(QPalette::ToolTipBase, color(Color::Ink));
    palette.setColor(QPalette::ToolTipText, color(Color::Surface));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, color(Color::QuietInk));
    return palette;
}

UTIL_Skin::Look UTIL_Skin::look(Control control, State state)
{
    const LookRow& row = scheme().looks[size_t(control)][size_t(state)];
    return {colorOf(row.fill), colorOf(row.border), colorOf(row.ink)};
}

void UTIL_Skin::paintBox(QPainter& painter, const QRectF& box, const Look& look)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(look.fill);
    painter.setPen(look.border.alpha() ? QPen(look.border, Size::hairline) : QPen(Qt::NoPen));
    painter.drawRoundedRect(strokePath(box, look.border.alpha() ? Size::hairline : 0), Size::radius,
                            Size::radius);
    painter.restore();
}

void UTIL_Skin::paintFocus(QPainter& painter, const QRectF& box)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(color(Color::Accent), Size::focusWidth));
    painter.drawRoundedRect(strokePath(box, Size::focusWidth), Size::radius, Size::radius);
    painter.restore();
}

void UTIL_Skin::paintChevron(QPainter& painter, const QPoint& centre, const Look& look)
{
    const QPointF down(0, Size::chevron / 2.0);
    const QPointF side(Size::chevron, 0);
    const QPointF tip = centre + down;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(look.ink, Size::focusWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF{centre - side - down, tip, centre + side - down});
    painter.restore();
}

UTIL_Skin::Look UTIL_Skin::paintRow(QPainter& painter, const QRect& row, bool isChosen, bool hasFocus)
{
    const Look rowLook = look(Control::Row, isChosen ? State::Checked : State::Resting);
    paintBox(painter, row, rowLook);
    if (isChosen && hasFocus)
        paintFocus(painter, row);
    return rowLook;
}

void UTIL_Skin::paintRadio(QPainter& painter, const QRectF& box, bool marked, bool enabled)
{
    const QColor mark = color(!enabled ? Color::QuietInk : marked ? Color::Accent : Color::Edge);
    QRectF circle(0, 0, Size::radioDiameter, Size::radioDiameter);
    circle.moveCenter(box.center());
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(color(Color::Surface));
    painter.setPen(QPen(mark, Size::focusWidth));
    painter.drawEllipse(strokePath(circle, Size::focusWidth));
    if (marked) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(mark);
        painter.drawEllipse(circle.center(), Size::radioDot / 2.0, Size::radioDot / 2.0);
    }
    painter.restore();
}

void UTIL_Skin::paintText(QPainter& painter, Qt::LayoutDirection direction, const QRect& place, int flags,
                          const QString& text)
{
    const int alignment = QStyle::visualAlignment(direction, Qt::Alignment(flags & alignments));
    painter.drawText(place, (flags & ~alignments) | alignment | Qt::AlignAbsolute, text);
}

/// Each color of the drawing lies between the light skin's ground, ink and accent. It becomes the color at
/// the same place between those in force.
QPixmap UTIL_Skin::recolored(const QPixmap& drawing)
{
    const Scheme& now = scheme();
    if (now.isLight || drawing.isNull())
        return drawing;
    const auto was = [](Color color) { return lightColors[size_t(color)]; };
    const auto is = [&now](Color color) { return now.colors[size_t(color)]; };
    const Vector toInk = between(was(Color::Ground), was(Color::Ink));
    const Vector toAccent = between(was(Color::Ground), was(Color::Accent));
    const double across = toInk * toAccent;
    const double determinant = (toInk * toInk) * (toAccent * toAccent) - across * across;

    QImage image = drawing.toImage().convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (QRgb* pixel = line; pixel != line + image.width(); ++pixel) {
            const Vector place = between(was(Color::Ground), *pixel);
            const double ink =
                ((place * toInk) * (toAccent * toAccent) - (place * toAccent) * across) / determinant;
            const double accent =
                ((place * toAccent) * (toInk * toInk) - (place * toInk) * across) / determinant;
            const double inked = std::clamp(ink, 0.0, 1.0);
            const QRgb color = mixed(mixed(is(Color::Ground), is(Color::Ink), inked), is(Color::Accent),
                                     std::clamp(accent, 0.0, 1.0));
            *pixel = (color & RGB_MASK) | (*pixel & ~RGB_MASK);
        }
    }
    return QPixmap::fromImage(image);
}

QString UTIL_Skin::pictureFile(const QString& name)
{
    return name + QStringLiteral(".gif");
}

QPixmap UTIL_Skin::picture(const QString& name)
{
    return RES_ICON_Reader::getIcon(pictureFile(name));
}
