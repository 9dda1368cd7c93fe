#include "UTIL_Geometry.h"

#include "UTIL_Skin.h"

#include <QStyle>
#include <QWidget>

namespace {

using Size = UTIL_Skin::Size;

constexpr int keyWidth = (Size::dialogWidth - 2 * Size::margin - Size::spacing) / 2;
constexpr QRect titleRect(Size::margin, 0, Size::dialogWidth - 2 * Size::margin, Size::titleHeight);

int keyTop(const QWidget& dialog)
{
    return dialog.height() - Size::spacing - Size::keyHeight;
}

int contentHeight(const QWidget& dialog)
{
    return keyTop(dialog) - Size::titleHeight - Size::spacing / 2;
}

QRect keyRect(const QWidget& dialog, int column)
{
    return {Size::margin + column * (keyWidth + Size::spacing), keyTop(dialog), keyWidth, Size::keyHeight};
}

} // namespace

QSize UTIL_Geometry::dialogSize()
{
    return {Size::dialogWidth, Size::dialogHeight};
}

QRect UTIL_Geometry::title() const
{
    return global(titleRect);
}

QRect UTIL_Geometry::content() const
{
    return global(QRect(Size::margin, Size::titleHeight, Size::dialogWidth - 2 * Size::margin,
                        contentHeight(m_dialog)));
}

QRect UTIL_Geometry::largeContent() const
{
    return global(QRect(0, Size::titleHeight, Size::dialogWidth, contentHeight(m_dialog)));
}

QRect UTIL_Geometry::firstSoftKey() const
{
    return global(keyRect(m_dialog, 0));
}

QRect UTIL_Geometry::secondSoftKey() const
{
    return global(keyRect(m_dialog, 1));
}

QRect UTIL_Geometry::global(const QRect& local) const
{
    const QRect place = QStyle::visualRect(m_dialog.layoutDirection(), m_dialog.rect(), local);
    return {m_dialog.mapToGlobal(place.topLeft()), place.size()};
}
