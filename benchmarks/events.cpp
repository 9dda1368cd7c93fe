#include "BareWidget.h"
#include "inside.h"

#include <QApplication>
#include <QTest>

#include <cstdio>
#include <map>
#include <optional>

// korva-bench-events WHAT EVENTS [modern]: one drag of so many motion events, each delivered by way of the
// window and followed to its repaint. bench.py runs it in two lengths under an instrument that counts; the
// difference is what the events cost.

namespace {

struct Subject
{
    bench::Tool tool;
    int zoom;
};

const std::map<std::string, Subject> subjects = {
    {"pencil", {bench::Pencil, 100}},       {"pencil-200", {bench::Pencil, 200}},
    {"line", {bench::Line, 100}},           {"line-200", {bench::Line, 200}},
    {"rectangle", {bench::Rectangle, 100}}, {"rectangle-200", {bench::Rectangle, 200}},
    {"ellipse", {bench::Ellipse, 100}},     {"ellipse-200", {bench::Ellipse, 200}},
    {"select", {bench::Select, 100}},       {"select-200", {bench::Select, 200}},
    {"eraser", {bench::Eraser, 100}},       {"eraser-200", {bench::Eraser, 200}},
};

/// A comb within 180 × 140 pixels: no three points on a line.
QPoint point(int number)
{
    constexpr QSize area(180, 140);
    return {10 + (number * 7) % area.width(), 10 + (number * 11 + number % 2 * 3) % area.height()};
}

void drag(QWidget& surface, int events)
{
    QWindow* const window = surface.window()->windowHandle();
    const QPoint shift = surface.mapTo(surface.window(), QPoint());
    QTest::mousePress(window, Qt::LeftButton, {}, shift + point(0));
    for (int i = 1; i <= events; ++i) {
        QTest::mouseMove(window, shift + point(i));
        QCoreApplication::processEvents();
    }
    QTest::mouseRelease(window, Qt::LeftButton, {}, shift + point(events));
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication app(argc, argv);
    const std::string what = argc >= 3 ? argv[1] : "";
    const int events = argc >= 3 ? QByteArray(argv[2]).toInt() : 0;
    const bool isModern = argc == 4 && std::string(argv[3]) == "modern";
    if (what == "bare" || what == "receive") {
        BareWidget widget(QPixmap::fromImage(bench::noise({240, 320})), what == "bare");
        widget.show();
        QCoreApplication::processEvents();
        drag(widget, events);
    } else if (const auto subject = subjects.find(what); subject != subjects.end()) {
        bench::Editor editor({200, 170}, subject->second.zoom, subject->second.tool);
        if (isModern)
            editor->setManners(KORVA_Manners::modern());
        drag(editor.canvas(), events);
    } else {
        std::fputs("usage: korva-bench-events WHAT EVENTS [modern]\n", stderr);
        return 2;
    }
    return 0;
}
