#include "UTIL_Geometry.h"

#include "UTIL_Skin.h"

#include <QWidget>

namespace {

using Size = UTIL_Skin::Size;

constexpr int keyWidth = (Size::dialogWidth - 2 * Size::margin - Size::spacing) / 2;
constexpr int keyTop = Size::dialogHeight - Size::spacing - Size::keyHeight;
constexpr int contentHeight = keyTop - Size::titleHeight - Size::spacing / 2;

constexpr QRect titleRect(Size::margin, 0, Size::dialogWidth - 2 * Size::margin, Size::titleHeight);
constexpr QRect contentRect(Size::margin, Size::titleHeight, Size::dialogWidth - 2 * Size::margin,
                            contentHeight);
constexpr QRect largeContentRect(0, Size::titleHeight, Size::dialogWidth, contentHeight);
constexpr QRect firstKeyRect(Size::margin, keyTop, keyWidth, Size::keyHeight);
constexpr QRect secondKeyRect(Size::margin + keyWidth + Size::spacing, keyTop, keyWidth, Size::keyHeight);

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
    return global(contentRect);
}

QRect UTIL_Geometry::largeContent() const
{
    return global(largeContentRect);
}

QRect UTIL_Geometry::firstSoftKey() const
{
    return global(firstKeyRect);
}

QRect UTIL_Geometry::secondSoftKey() const
{
    return global(secondKeyRect);
}

QRect UTIL_Geometry::global(const QRect& local) const
{
    return {m_dialog.mapToGlobal(local.topLeft()), local.size()};
}
