#pragma once

#include <QProxyStyle>

/// Lays out pop-up menus and the lists of combo boxes: icons at their full size, rows high enough for a
/// finger.
class UTIL_PopupStyle : public QProxyStyle
{
public:
    /// The owner deletes it.
    explicit UTIL_PopupStyle(QObject* owner);

    [[nodiscard]] int pixelMetric(PixelMetric metric, const QStyleOption* option,
                                  const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    [[nodiscard]] int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                                QStyleHintReturn* data) const override;
    [[nodiscard]] QSize sizeFromContents(ContentsType type, const QStyleOption* option,
                                         const QSize& contents, const QWidget* widget) const override;
};
