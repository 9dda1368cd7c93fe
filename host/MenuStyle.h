#pragma once

#include <QProxyStyle>

namespace pad {

/// The style of menus without icons. Rows are so narrow that a text and its key fit side by side on a small
/// screen.
class MenuStyle : public QProxyStyle
{
    Q_OBJECT

public:
    explicit MenuStyle(QObject* owner);

    [[nodiscard]] QSize sizeFromContents(ContentsType type, const QStyleOption* option,
                                         const QSize& contents, const QWidget* widget) const override;
    [[nodiscard]] int pixelMetric(PixelMetric metric, const QStyleOption* option,
                                  const QWidget* widget) const override;
    [[nodiscard]] int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                                QStyleHintReturn* data) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
};

} // namespace pad
