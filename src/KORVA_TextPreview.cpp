#include "KORVA_Text.h"

#include "KORVA_Canvas.h"
#include "KORVA_ClassicPainter.h"

#include <QApplication>

#include <utility>

// How a text looks before it is committed: letters and I-beam, inverted in the zoomed picture.

namespace {

// The labels of the options say 7, 9 and 11; the pens 1, 3 and 5 that they set have always meant these.
int pointSize(int penWidth, bool isInPoints)
{
    constexpr int leastPoints = 6;
    switch (penWidth) {
    case 3:
        return 16;
    case 5:
        return 20;
    default:
        return isInPoints && penWidth >= leastPoints ? penWidth : 12;
    }
}

} // namespace

QFont KORVA_Text::textFont() const
{
    QFont font(QApplication::font().family() + "_ns", pointSize(leftPen().width(), manners().pointSizes),
               m_isBold ? QFont::Bold : QFont::Normal);
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
    const QString lines = wrapped(text);
    const bool isInPlace = lines.isEmpty() || (m_start == m_shown.start && m_margin == m_shown.margin);
    if (lines == m_shown.lines && isInPlace)
        return;
    const Shown before = std::exchange(m_shown, {lines, m_start, m_margin});
    if (m_manners.coloredText) {
        showColored();
        return;
    }
    {
        KORVA_ClassicPainter painter(shownPicture(), KORVA_ClassicPainter::NotROP);
        drawText(painter, before.start, before.margin, before.lines);
        drawText(painter, m_start, m_margin, lines);
    }
    canvas()->refresh();
}

// By way of a copy of the picture, so that the letters have the pixels of committed ones at any zoom.
void KORVA_Text::showColored()
{
    const bool isCursorShown = std::exchange(m_cursorShown, false);
    m_shownColor = leftPen().color();
    canvas()->showWith([this](QPixmap* copy) {
        KORVA_ClassicPainter painter(copy);
        drawText(painter, zoom().toPicture(m_start), zoom().toPicture(m_margin), m_shown.lines);
    });
    if (isCursorShown)
        toggleCursor();
}

void KORVA_Text::colorChanged()
{
    if (canvas() && m_state == Open && m_manners.coloredText && leftPen().color() != m_shownColor)
        showColored();
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

// The size follows the canvas's own font, not the text's, unless the text is shown as it will be.
QRect KORVA_Text::cursorRect() const
{
    const QPoint at = caret();
    const int classic = canvas()->fontMetrics().ascent() / 2 + 1;
    const int height = m_manners.coloredText ? zoom().toWidget(QFontMetrics(textFont()).ascent()) : classic;
    const int width = classic / 2 + 1;
    return {QPoint(at.x() - width / 2, at.y() - height), QSize(width, height + 1)};
}

void KORVA_Text::toggleCursor()
{
    if (!canvas())
        return;
    {
        const QRect beam = cursorRect();
        QPen pen = leftPen();
        pen.setWidth(1);
        KORVA_ClassicPainter painter(shownPicture(), KORVA_ClassicPainter::NotROP);
        painter.setPen(pen);
        painter.drawLine(beam.left(), beam.top(), beam.right(), beam.top());
        painter.drawLine(beam.left(), beam.bottom(), beam.right(), beam.bottom());
        const int middle = beam.left() + beam.width() / 2;
        painter.drawLine(middle, beam.top(), middle, beam.bottom());
    }
    m_cursorShown = !m_cursorShown;
    canvas()->refresh();
}

void KORVA_Text::zoomedRebuilt()
{
    m_cursorShown = false;
    if (m_state == Open && m_manners.coloredText && !m_isCommitting && !m_shown.lines.isEmpty())
        showColored();
    else
        m_shown = {};
}
