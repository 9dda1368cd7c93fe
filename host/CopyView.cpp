#include "CopyView.h"

#include <UTIL_ScrollBar.h>
#include <UTIL_Skin.h>

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace pad {

namespace {

constexpr int factors[] = {1, 2, 4};
constexpr int fullPercent = 100;

} // namespace

/// The picture at its size on the screen.
class CopyView::Sheet : public QWidget
{
public:
    using QWidget::QWidget;

    void setPicture(const QImage& picture)
    {
        m_picture = picture;
        m_whole = QPixmap();
        update();
    }
    [[nodiscard]] const QImage& picture() const { return m_picture; }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        QPainter painter(this);
        if (width() < m_picture.width() || height() < m_picture.height()) {
            painter.drawPixmap(rect(), whole());
            return;
        }
        // Only what is seen, pixel by pixel.
        const int factor = width() / m_picture.width();
        const QRect seen = event->rect();
        const QRect part(QPoint(seen.left() / factor, seen.top() / factor),
                         QPoint(seen.right() / factor, seen.bottom() / factor));
        painter.drawImage(QRect(part.topLeft() * factor, part.size() * factor),
                          m_picture.copy(part).convertToFormat(QImage::Format_RGB32));
    }

private:
    /// A huge picture is first made smaller without care: that is quick, and what is left is smoothed.
    const QPixmap& whole()
    {
        const QSize size = this->size() * devicePixelRatioF();
        if (m_whole.size() != size) {
            constexpr int carefully = 4;
            const QSize rough = m_picture.size().boundedTo(size * carefully);
            m_whole = QPixmap::fromImage(
                m_picture.scaled(rough).scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
        }
        return m_whole;
    }

    QImage m_picture;
    QPixmap m_whole;
};

CopyView::CopyView(const QString& name, QWidget* parent) : KORVA_ScrollView(parent), m_sheet(new Sheet)
{
    QPalette colors = UTIL_Skin::palette();
    colors.setColor(QPalette::WindowText, UTIL_Skin::color(UTIL_Skin::Color::Border));
    setPalette(colors);
    viewport()->setBackgroundRole(QPalette::WindowText); // a desk from which the paper stands out
    setVerticalScrollBar(new UTIL_ScrollBar(Qt::Vertical, this));
    setHorizontalScrollBar(new UTIL_ScrollBar(Qt::Horizontal, this));
    setFocusPolicy(Qt::StrongFocus);
    for (QWidget* part : {static_cast<QWidget*>(this), viewport(), static_cast<QWidget*>(m_sheet)})
        part->setAccessibleName(name);
    addChild(m_sheet, 0, 0);
    m_sheet->hide();
}

std::vector<QSize> CopyView::sizes() const
{
    const QSize real = m_sheet->picture().size();
    const QSize room = maximumViewportSize();
    std::vector<QSize> all;
    if (real.width() > room.width() || real.height() > room.height())
        all.push_back(real.scaled(room, Qt::KeepAspectRatio).expandedTo(QSize(1, 1)));
    for (const int factor : factors)
        all.push_back(real * factor);
    return all;
}

void CopyView::showPicture(const QImage& picture)
{
    m_sheet->setPicture(picture);
    m_sheet->setVisible(!picture.isNull());
    arrange();
}

void CopyView::arrange()
{
    if (!m_sheet->picture().isNull()) {
        const std::vector<QSize> all = sizes();
        m_zoom = std::min(m_zoom, all.size() - 1);
        const QSize size = all[m_zoom];
        resizeContents(size.width(), size.height());
        m_sheet->resize(size);
        const QSize spare = (viewport()->size() - size).expandedTo(QSize(0, 0)) / 2;
        moveChild(m_sheet, spare.width(), spare.height());
    }
    emit zoomChanged();
}

void CopyView::zoomOn()
{
    if (m_sheet->picture().isNull())
        return;
    const int before = m_sheet->width();
    const QPoint middle = viewport()->rect().center() - m_sheet->pos();
    m_zoom = (m_zoom + 1) % sizes().size();
    arrange();
    const double growth = double(m_sheet->width()) / before;
    setContentsPos(int(middle.x() * growth) - viewport()->width() / 2,
                   int(middle.y() * growth) - viewport()->height() / 2);
}

int CopyView::percent() const
{
    const int real = m_sheet->picture().width();
    return real == 0 ? fullPercent : std::max(1, m_sheet->width() * fullPercent / real);
}

void CopyView::resizeEvent(QResizeEvent* event)
{
    KORVA_ScrollView::resizeEvent(event);
    arrange();
}

bool CopyView::event(QEvent* event)
{
    const bool isDone = KORVA_ScrollView::event(event);
    if (event->type() == QEvent::Paint && hasFocus()) {
        QPainter painter(this);
        UTIL_Skin::paintFocus(painter, rect());
    }
    return isDone;
}

void CopyView::mousePressEvent(QMouseEvent* event)
{
    m_grip = event->globalPosition().toPoint();
    m_gripOrigin = {contentsX(), contentsY()};
}

void CopyView::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint origin = m_gripOrigin + m_grip - event->globalPosition().toPoint();
    setContentsPos(origin.x(), origin.y());
}

} // namespace pad
