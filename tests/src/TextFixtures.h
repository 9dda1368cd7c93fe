#pragma once

#include "ToolFixtures.h"

/// What the tests of the text tool need: a keyboard, and text drawn by other means.
namespace fixtures {

/// The font of the text tool for a width of its pen.
inline QFont textFont(int penWidth)
{
    const QMap<int, int> pointSizes{{1, 12}, {3, 16}, {5, 20}};
    QFont font(QApplication::font().family() + "_ns", pointSizes.value(penWidth, 12), QFont::Normal, false);
    font.setStyleStrategy(QFont::NoAntialias);
    font.setHintingPreference(QFont::PreferFullHinting);
    font.setKerning(false);
    return font;
}

/// The whole text at once, its first baseline at a point; in the pen of the painter.
inline Shape text(QPoint baseline, const QString& string, int penWidth)
{
    return [=](QPainter& painter) {
        const QFont font = textFont(penWidth);
        painter.setFont(font);
        painter.drawText(QRect(baseline.x(), baseline.y() - QFontMetrics(font).ascent(), 10, 10),
                         Qt::TextDontClip | Qt::TextExpandTabs, string);
    };
}

/// A desk with the text tool and a width that says the size.
struct WritingDesk : Desk
{
    explicit WritingDesk(const QImage& image = support::sheet(QSize(160, 100)), int zoom = 100,
                         int width = 1)
        : Desk(fixtures::Text, image, zoom)
    {
        manager.setPenWidth(width);
    }

    [[nodiscard]] KORVA_Text& tool() const { return as<KORVA_Text>(); }

    void tap(QPoint at)
    {
        stylus.click(at);
        tapped = at;
    }
    void type(const QString& letters)
    {
        for (const QChar c : letters) {
            if (c == '\n')
                stylus.key(Qt::Key_Return, "\r");
            else if (c == '\b')
                stylus.key(Qt::Key_Backspace, "\b");
            else if (c == '\t')
                stylus.key(Qt::Key_Tab, "\t");
            else
                stylus.key(Qt::Key_unknown, c);
        }
    }
    void compose(const QString& preedit, const QString& commit = {})
    {
        QInputMethodEvent event(preedit, {});
        event.setCommitString(commit);
        QCoreApplication::sendEvent(&canvas, &event);
    }
    void blink()
    {
        QTimerEvent tick(1);
        QCoreApplication::sendEvent(&tool(), &tick);
    }
    void resize(int width)
    {
        manager.setPenWidth(width);
        tool().penChanged();
    }

    /// Where the next letter would go.
    [[nodiscard]] QPoint cursor() const
    {
        const QRect beam = canvas.inputMethodQuery(Qt::ImCursorRectangle).toRect();
        return {beam.left() + beam.width() / 2, beam.bottom()};
    }
    /// The zoomed picture without an I-beam.
    [[nodiscard]] QImage screen()
    {
        tool().clearOldCursor();
        return canvas.shown();
    }
    [[nodiscard]] int width() const { return tool().leftPen().width(); }
    [[nodiscard]] QFontMetrics metrics() const { return QFontMetrics(textFont(width())); }

    /// The screen with the preview of a text at the tap, and the picture with the text.
    [[nodiscard]] QImage previewed(const QString& string) const
    {
        return toggled(start, width(), text(tapped, string, width()));
    }
    [[nodiscard]] QImage written(const QString& string) const
    {
        return painted(
            base, solidPen(Qt::blue, width()), Qt::NoBrush,
            text({tapped.x() * 100 / canvas.zoom(), tapped.y() * 100 / canvas.zoom()}, string, width()));
    }

    QPoint tapped;
};

} // namespace fixtures
