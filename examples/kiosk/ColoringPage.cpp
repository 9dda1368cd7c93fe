#include "ColoringPage.h"

#include "Boxes.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>

QByteArray coloringPage()
{
    QImage sheet(Boxes::page, QImage::Format_RGB32);
    sheet.fill(Qt::white);
    QPainter painter(&sheet);
    painter.setPen(QPen(QColor(0x40, 0x40, 0x40), 4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawRect(180, 200, 240, 180);
    painter.drawPolyline(QPolygon({{160, 205}, {300, 90}, {440, 205}}));
    painter.drawRect(270, 280, 60, 100);
    for (const int x : {205, 345}) {
        painter.drawRect(x, 235, 50, 50);
        painter.drawLine(x + 25, 235, x + 25, 285);
        painter.drawLine(x, 260, x + 50, 260);
    }
    painter.drawEllipse(QPoint(510, 80), 36, 36);
    for (int ray = 0; ray < 8; ++ray) {
        painter.save();
        painter.translate(510, 80);
        painter.rotate(ray * 45);
        painter.drawLine(48, 0, 66, 0);
        painter.restore();
    }
    painter.drawLine(20, 380, 580, 380);
    painter.end();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    sheet.save(&buffer, "PNG");
    return bytes;
}
