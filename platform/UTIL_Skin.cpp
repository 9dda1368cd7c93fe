#include "UTIL_Skin.h"

#include "RES_ICON_Reader.h"

#include <QApplication>
#include <QPainter>

#include <array>

namespace {

constexpr QRgb none = 0x00000000;

// In the order of UTIL_Skin::Color.
constexpr std::array<QRgb, 8> colors = {
    0xFFF4F5F7, 0xFFFFFFFF, 0xFF2B3440, 0xFF5E6875, 0xFFB9C1CC, 0xFF6B7684, 0xFF1B66DB, 0x592B3440,
};

struct LookRow
{
    QRgb fill;
    QRgb border;
    QRgb ink;
};

// Rows in the order of UTIL_Skin::Control, columns in the order of UTIL_Skin::State.
constexpr std::array<std::array<LookRow, 5>, 3> looks = {{
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

QColor colorOf(QRgb rgb)
{
    return QColor::fromRgba(rgb);
}

// A stroke lies centred on its path, so the path moves in by half of it.
QRectF strokePath(const QRectF& box, qreal width)
{
    return box.adjusted(width / 2, width / 2, -width / 2, -width / 2);
}

} // namespace

QColor UTIL_Skin::color(Color color)
{
    return colorOf(colors[size_t(color)]);
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
    palette.setColor(QPalette::HighlightedText, color(Color::Surface));
    palette.setColor(QPalette::PlaceholderText, color(Color::QuietInk));
    palette.setColor(QPalette::ToolTipBase, color(Color::Ink));
    palette.setColor(QPalette::ToolTipText, color(Color::Surface));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, color(Color::QuietInk));
    return palette;
}

UTIL_Skin::Look UTIL_Skin::look(Control control, State state)
{
    const LookRow& row = looks[size_t(control)][size_t(state)];
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

QString UTIL_Skin::pictureFile(const QString& name)
{
    return name + QStringLiteral(".gif");
}

QPixmap UTIL_Skin::picture(const QString& name)
{
    return RES_ICON_Reader::getIcon(pictureFile(name));
}
