#include "MenuStyle.h"

#include <UTIL_Skin.h>

#include <QPainter>
#include <QStyleFactory>
#include <QStyleOptionMenuItem>

namespace pad {

namespace {

using Size = UTIL_Skin::Size;

constexpr int arrowWidth = 2 * Size::chevron;

/// A triangle at the right of a row that opens a page.
void paintArrow(QPainter& painter, const QRect& row, const QColor& ink)
{
    constexpr int half = Size::chevron;
    const QPoint tip(row.right() - Size::keyPadding, row.center().y());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(ink, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygon({tip + QPoint(-half, -half), tip, tip + QPoint(-half, half)}));
}

/// A tick that ends before `right`.
void paintMark(QPainter& painter, int right, const QRect& row, const QColor& ink)
{
    constexpr int half = Size::chevron;
    const QPoint foot(right - 2 * half, row.center().y() + half - 1);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(ink, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(
        QPolygon({foot + QPoint(-half + 1, -half + 1), foot, foot + QPoint(half, -2 * half)}));
}

} // namespace

MenuStyle::MenuStyle(QObject* owner) : QProxyStyle(QStyleFactory::create(QStringLiteral("fusion")))
{
    setParent(owner);
}

QSize MenuStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                                  const QWidget* widget) const
{
    const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (type != CT_MenuItem || !item || item->menuItemType == QStyleOptionMenuItem::Separator)
        return QProxyStyle::sizeFromContents(type, option, contents, widget);
    return {contents.width() + 2 * Size::margin + arrowWidth, Size::menuRowHeight};
}

int MenuStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    return metric == PM_MenuVMargin ? int(Size::rowInset)
                                    : QProxyStyle::pixelMetric(metric, option, widget);
}

int MenuStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                         QStyleHintReturn* data) const
{
    // Otherwise long menus get columns, which leave the screen.
    return hint == SH_Menu_Scrollable ? 1 : QProxyStyle::styleHint(hint, option, widget, data);
}

void MenuStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const
{
    const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (element != CE_MenuItem || !item || item->menuItemType == QStyleOptionMenuItem::Separator) {
        QProxyStyle::drawControl(element, option, painter, widget);
        return;
    }
    const bool isEnabled = item->state & State_Enabled;
    const bool isChosen = (item->state & State_Selected) && isEnabled;
    painter->save();
    if (isChosen)
        painter->fillRect(item->rect, item->palette.color(QPalette::Highlight));
    const QPalette::ColorGroup group = isEnabled ? QPalette::Active : QPalette::Disabled;
    const QColor ink =
        item->palette.color(group, isChosen ? QPalette::HighlightedText : QPalette::WindowText);
    painter->setPen(ink);
    painter->setFont(item->font);
    const QRect text = item->rect.adjusted(Size::margin, 0, -Size::margin, 0);
    const QStringList parts = item->text.split(QLatin1Char('\t'));
    painter->drawText(text, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic, parts.first());
    if (item->menuItemType == QStyleOptionMenuItem::SubMenu)
        paintArrow(*painter, item->rect, ink);
    else if (parts.size() > 1)
        painter->drawText(text, Qt::AlignRight | Qt::AlignVCenter, parts.last());
    if (item->checkType != QStyleOptionMenuItem::NotCheckable && item->checked) {
        const int keys = parts.size() > 1 ? painter->fontMetrics().horizontalAdvance(parts.last()) : 0;
        paintMark(*painter, text.right() - keys, item->rect, ink);
    }
    painter->restore();
}

} // namespace pad
