#include "MenuStyle.h"

#include <UTIL_Skin.h>

#include <QPainter>
#include <QStyleFactory>
#include <QStyleOptionMenuItem>

namespace pad {

namespace {

using Size = UTIL_Skin::Size;

constexpr int arrowWidth = 2 * Size::chevron;

/// A triangle at the end of a row that opens a page.
void paintArrow(QPainter& painter, Qt::LayoutDirection direction, const QRect& row, const QColor& ink)
{
    constexpr int half = Size::chevron;
    const QPoint tip =
        QStyle::visualPos(direction, row, QPoint(row.right() - Size::keyPadding, row.center().y()));
    const int back = direction == Qt::RightToLeft ? half : -half;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(ink, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygon({tip + QPoint(back, -half), tip, tip + QPoint(back, half)}));
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
    UTIL_Skin::paintText(*painter, item->direction, text,
                         Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic, parts.first());
    if (item->menuItemType == QStyleOptionMenuItem::SubMenu)
        paintArrow(*painter, item->direction, item->rect, ink);
    else if (parts.size() > 1)
        UTIL_Skin::paintText(*painter, item->direction, text, Qt::AlignRight | Qt::AlignVCenter,
                             parts.last());
    painter->restore();
}

} // namespace pad
