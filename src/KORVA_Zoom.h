#pragma once

#include <QRect>
#include <QTransform>

/// The zoom in percent, and the only conversion of coordinates between picture and widget.
///
/// "Widget" coordinates are pixels of the zoomed picture. Sizes and matrices are calculated in single
/// precision; sizes are truncated. Coordinates are divided as integers, truncating toward zero.
class KORVA_Zoom
{
public:
    /// 100 %: real size.
    constexpr KORVA_Zoom() = default;
    /// `percent` must be 1 or more. This is not checked, and 0 leads to a division by zero.
    explicit constexpr KORVA_Zoom(int percent) : m_percent(percent) {}

    /// The zoom in percent.
    [[nodiscard]] constexpr int percent() const { return m_percent; }

    /// The picture coordinate under a widget coordinate.
    [[nodiscard]] constexpr int toPicture(int c) const { return c * 100 / m_percent; }
    /// The picture's pixel under a point of the widget.
    [[nodiscard]] constexpr QPoint toPicture(QPoint p) const
    {
        return {toPicture(p.x()), toPicture(p.y())};
    }
    /// The widget coordinate nearest to 0 that shows a picture coordinate; below 100 %, where not every one
    /// is shown, the next one farther out.
    [[nodiscard]] constexpr int toWidget(int c) const
    {
        return c < 0 ? -toWidget(-c) : (c * m_percent + 99) / 100;
    }
    /// The widget's point for a pixel of the picture.
    [[nodiscard]] constexpr QPoint toWidget(QPoint p) const { return {toWidget(p.x()), toWidget(p.y())}; }
    /// A widget rectangle in the picture. Position and size are converted separately, so the rectangle may
    /// end one pixel before its converted corner.
    [[nodiscard]] constexpr QRect toPicture(const QRect& r) const
    {
        return {toPicture(r.left()), toPicture(r.top()), toPicture(r.width()), toPicture(r.height())};
    }

    /// The pixels of the picture that a widget rectangle shows, also those at its edges of which it shows a
    /// part. It must not be empty.
    [[nodiscard]] constexpr QRect toPictureAround(const QRect& r) const
    {
        const auto end = [this](int c) { return (c * 100 + m_percent - 1) / m_percent; };
        return {toPicture(r.topLeft()), QPoint(end(r.right() + 1) - 1, end(r.bottom() + 1) - 1)};
    }

    /// The size on screen, in widget pixels, of a picture of this size.
    [[nodiscard]] QSize zoomed(QSize picture) const
    {
        return {static_cast<int>(static_cast<float>(picture.width()) * factor()),
                static_cast<int>(static_cast<float>(picture.height()) * factor())};
    }

    /// The number of pixels of zoomed(), for any picture at any zoom.
    [[nodiscard]] constexpr double zoomedPixels(QSize picture) const
    {
        return picture.width() * (m_percent / 100.0) * picture.height() * (m_percent / 100.0);
    }

    /// The width on screen of a pen that is `width` picture pixels wide, 0 or more; 0 is the thin pen of
    /// one pixel.
    [[nodiscard]] int penWidth(int width) const
    {
        return static_cast<int>(static_cast<unsigned>(width) * static_cast<unsigned>(m_percent) / 100U);
    }

    /// Maps picture coordinates to widget coordinates.
    [[nodiscard]] QTransform toWidgetMatrix() const { return scale(factor()); }
    /// Maps widget coordinates to picture coordinates, without truncating them.
    [[nodiscard]] QTransform toPictureMatrix() const
    {
        return scale(static_cast<float>(100.0 / m_percent));
    }

private:
    [[nodiscard]] float factor() const { return static_cast<float>(m_percent / 100.0); }
    [[nodiscard]] static QTransform scale(float s)
    {
        return QTransform::fromScale(static_cast<double>(s), static_cast<double>(s));
    }

    int m_percent = 100;
};
