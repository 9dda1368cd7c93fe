#include "UTIL_WrapLabel.h"

#include <QPainter>
#include <QTextLayout>

UTIL_WrapLabel::UTIL_WrapLabel(const QString& text, QWidget* parent) : QLabel(text, parent)
{
    setTextFormat(Qt::PlainText);
}

void UTIL_WrapLabel::setMaximumLines(int lines)
{
    m_maximumLines = std::max(1, lines);
    updateGeometry();
    update();
}

QStringList UTIL_WrapLabel::lines(int width) const
{
    QString content = text();
    content.replace(QLatin1Char('\n'), QChar::LineSeparator);
    QTextLayout layout(content, font());
    QTextOption option(Qt::AlignHCenter);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);

    QStringList result;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        if (result.size() == m_maximumLines) {
            result.last() = fontMetrics().elidedText(result.last() + QChar(0x2026), Qt::ElideRight, width);
            break;
        }
        result += content.mid(line.textStart(), line.textLength()).trimmed();
    }
    layout.endLayout();
    return result;
}

int UTIL_WrapLabel::heightForWidth(int width) const
{
    return int(lines(width).size()) * fontMetrics().lineSpacing();
}

QSize UTIL_WrapLabel::sizeHint() const
{
    const int natural = fontMetrics().size(0, text()).width();
    return {natural, heightForWidth(natural)};
}

void UTIL_WrapLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    QRect line(0, 0, width(), fontMetrics().lineSpacing());
    const int direction = layoutDirection() == Qt::LeftToRight ? 0
                          : text().isRightToLeft()             ? Qt::TextForceRightToLeft
                                                               : Qt::TextForceLeftToRight;
    for (const QString& part : lines(width())) {
        // As a part of the whole, which has one direction.
        painter.drawText(line, Qt::AlignHCenter | Qt::AlignVCenter | direction, part);
        line.translate(0, line.height());
    }
}

void UTIL_WrapLabel::resizeEvent(QResizeEvent* event)
{
    QLabel::resizeEvent(event);
    const QStringList shown = lines(width());
    setToolTip(!shown.isEmpty() && shown.last().endsWith(QChar(0x2026)) ? text() : QString());
}
