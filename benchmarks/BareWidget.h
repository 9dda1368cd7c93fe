#pragma once

#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>
#include <QWidget>

/// The yardstick: the least that a Qt program must do to draw freehand. It shows a picture, paints each
/// segment into it and repaints the rectangle around the segment; or it takes the events and does nothing.
/// With a text it shows one line of it, too.
class BareWidget : public QWidget
{
public:
    BareWidget(const QPixmap& picture, bool paints, const QString& text = {})
        : m_picture(picture), m_paints(paints), m_text(text)
    {
        setAttribute(Qt::WA_OpaquePaintEvent);
        setFixedSize(240, 320);
    }

protected:
    void mousePressEvent(QMouseEvent* event) override { m_last = event->position().toPoint(); }

    void mouseMoveEvent(QMouseEvent* event) override
    {
        const QPoint to = event->position().toPoint();
        if (m_paints) {
            QPainter painter(&m_picture);
            painter.setPen(Qt::red);
            painter.drawLine(m_last, to);
            update(QRect(m_last, to).normalized().adjusted(-1, -1, 1, 1));
        }
        m_last = to;
    }

    void paintEvent(QPaintEvent* event) override
    {
        QPainter painter(this);
        painter.drawPixmap(event->rect(), m_picture, event->rect());
        if (!m_text.isEmpty())
            painter.drawText(10, 20, m_text);
    }

private:
    QPixmap m_picture;
    QPoint m_last;
    bool m_paints;
    QString m_text;
};
