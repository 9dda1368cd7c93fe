#include <KORVA_Canvas.h>
#include <KORVA_Pen.h>
#include <KORVA_Translations.h>

#include <QAction>
#include <QApplication>
#include <QLocale>
#include <QMenu>
#include <QMouseEvent>

#include <cstdio>

namespace {

void send(KORVA_Canvas& canvas, QEvent::Type type, QPoint at)
{
    QMouseEvent event(type, at, canvas.mapToGlobal(at), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&canvas, &event);
}

bool hasColor(KORVA_Canvas& canvas, QPoint pixel, const QColor& color)
{
    const QColor found = canvas.pixmap()->toImage().pixelColor(pixel);
    if (found != color)
        std::fprintf(stderr, "(%d, %d) is %s\n", pixel.x(), pixel.y(), qPrintable(found.name()));
    return found == color;
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    KORVA_Canvas canvas(nullptr, 40, 30);
    KORVA_Pen pen("Pencil");
    pen.setLeftPen(QPen(Qt::red, 3));
    pen.activate(&canvas);
    canvas.activate(&pen);

    send(canvas, QEvent::MouseButtonPress, {10, 15});
    send(canvas, QEvent::MouseMove, {30, 15});
    send(canvas, QEvent::MouseButtonRelease, {30, 15});
    if (!hasColor(canvas, {20, 15}, Qt::red) || !hasColor(canvas, {20, 14}, Qt::red) ||
        !hasColor(canvas, {20, 20}, Qt::white))
        return 1;

    canvas.undo();
    if (!hasColor(canvas, {20, 15}, Qt::white))
        return 1;

    if (!KORVA_Translations::load(QLocale("de")))
        return 2; // its languages did not come with it
    const KORVA_Canvas german(nullptr, 40, 30);
    return german.contextMenu()->actions().at(0)->text() == "Ausschneiden" ? 0 : 3;
}
