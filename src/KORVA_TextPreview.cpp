#include "KORVA_Text.h"

#include "KORVA_Canvas.h"
#include "KORVA_ClassicPainter.h"

#include <QApplication>

// How a text looks before it is committed: letters and I-beam, inverted in the zoomed picture.

namespace {

// The labels of the options say 7, 9 and 11; the pens 1, 3 and 5 that they set have always meant these.
int pointSize(int penWidth)
{
    switch (penWidth) {
    case 3:
        return 16;
    case 5:
        return 20;
    default:
        return 12;
    }
}

} // namespace

QFont KORVA_Text::textFont() const
{
    QFont font(QApplication::font().family() + "_ns", pointSize(leftPen().width()), QFont::Normal);
    // So that a line is laid out as its letters one by one, and an inverted letter has the pixels of a
    // painted one.
    font.setStyleStrategy(QFont::NoAntialias);
    font.setHintingPreference(QFont::PreferFullHinting);
    font.setKerning(false);
    return font;
}

int KORVA_Text::advance(const QString& character) const
{
    return QFontMetrics(textFont()).horizontalAdvance(character);
}

// The first line begins at `start`, the others at the margin below it.
void KORVA_Text::drawText(KORVA_ClassicPainter& painter, QPoint start, int margin,
                          const QString& text) const
{
    const QFont font = textFont();
    const QFontMetrics metrics(font);
    painter.setPen(leftPen());
    painter.setFont(font);
    const auto draw = [&](QPoint baseline, const QString& lines) {
        painter.drawText(QRect(baseline - QPoint(0, metrics.ascent()), QSize(10, 10)),
                         Qt::TextDontClip | Qt::TextExpandTabs, lines);
    };
    const bool isOneBlock = start.x() == margin;
    draw(start, isOneBlock ? text : text.section('\n', 0, 0));
    if (!isOneBlock)
        draw(QPoint(margin, start.y() + metrics.lineSpacing()), text.section('\n', 1));
}

// The whole text each time: letters that join or carry accents look as they will when committed, and a line
// with a letter of another font is higher.
void KORVA_Text::showText(const QString& text)
{
    if (text == m_shown)
        return;
    {
        KORVA_ClassicPainter painter(canvas()->zoomedPixmap(), KORVA_ClassicPainter::NotROP);
        drawText(painter, m_start, m_margin, m_shown);
        drawText(painter, m_start, m_margin, text);
    }
    m_shown = text;
    canvas()->refresh();
}

// --- The I-beam

void KORVA_Text::clearOldCursor()
{
    hideCursor();
}

void KORVA_Text::hideCursor()
{
    if (m_cursorShown)
        toggleCursor();
}

// The size follows the canvas's own font, not the text's.
QRect KORVA_Text::cursorRect() const
{
    const int height = canvas()->fontMetrics().ascent() / 2 + 1;
    const int width = height / 2 + 1;
    return {QPoint(m_cursor.x() - width / 2, m_cursor.y() - height), QSize(width, height + 1)};
}

void KORVA_Text::toggleCursor()
{
    if (!canvas())
        return;
    {
        const QRect beam = cursorRect();
        QPen pen = leftPen();
        pen.setWidth(1);
        KORVA_ClassicPainter painter(canvas()->zoomedPixmap(), KORVA_ClassicPainter::NotROP);
        painter.setPen(pen);
        painter.drawLine(beam.left(), beam.top(), beam.right(), beam.top());
        painter.drawLine(beam.left(), beam.bottom(), beam.right(), beam.bottom());
        painter.drawLine(m_cursor.x(), beam.top(), m_cursor.x(), beam.bottom());
    }
    m_cursorShown = !m_cursorShown;
    canvas()->refresh();
}

void KORVA_Text::zoomedRebuilt()
{
    m_cursorShown = false;
    m_shown.clear();
}
