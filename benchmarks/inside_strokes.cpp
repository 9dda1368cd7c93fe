#include "inside.h"

#include <KORVA_Zoom.h>

namespace bench {

namespace {

constexpr QSize visible(190, 150); // of the canvas, without scrolling

const char* nameOf(Tool tool)
{
    static constexpr const char* names[] = {"pencil",    "select",  "line",  "text",
                                            "rectangle", "ellipse", "eraser"};
    return names[tool];
}

QSize walkArea(QSize picture, int zoom)
{
    return KORVA_Zoom(zoom).zoomed(picture).boundedTo(visible);
}

/// One motion event of a drag that never ends.
void motion(benchmark::State& state, Tool tool, int zoom, QSize picture)
{
    Editor editor(picture, zoom, tool);
    const std::vector<QPoint> points = walk(walkArea(picture, zoom));
    editor.press(points.front());
    size_t next = 0;
    for (auto _ : state) {
        next = (next + 1) % points.size();
        editor.move(points[next]);
    }
    editor.release(points[next]);
}

/// The limit of a motion: it must change the pixels around one step, in the picture, in its zoomed copy and
/// on the screen.
void addMotion(const std::string& group, Tool tool, int zoom, const PictureSize& picture)
{
    constexpr QSize step(4, 5);
    add(
        group + "/" + nameOf(tool) + "/" + std::to_string(zoom) + "/" + picture.name(),
        [=](benchmark::State& state) { motion(state, tool, zoom, picture.size); },
        [](benchmark::State& state) { copyBytes(state, 3 * bytesOf(step)); });
}

/// Press, one move, release: a whole shape, with its snapshot and its signals. The limit: the shape's box
/// must be inverted, painted on both pictures, and shown on the screen.
void addCommit(Tool tool, int zoom, QSize picture)
{
    const QPoint from(20, 20);
    const QPoint to(140, 110);
    add(
        "commit/" + std::string(nameOf(tool)) + "/" + std::to_string(zoom),
        [=](benchmark::State& state) {
            Editor editor(picture, zoom, tool);
            for (auto _ : state) {
                editor.press(from);
                editor.move(to);
                editor.release(to);
            }
        },
        [=](benchmark::State& state) {
            copyBytes(state, bytesOf(picture) + 3 * bytesOf(QRect(from, to).size()));
        });
}

/// Types a letter after ten others, and removes it.
void addTextKeys(int zoom, QSize picture)
{
    add(
        "text/letter_and_backspace/" + std::to_string(zoom),
        [=](benchmark::State& state) {
            Editor editor(picture, zoom, Text);
            editor.press({20, 60});
            editor.release({20, 60});
            for (int i = 0; i < 10; ++i)
                editor.key(Qt::Key_W, QStringLiteral("w"));
            for (auto _ : state) {
                editor.key(Qt::Key_A, QStringLiteral("a"));
                editor.key(Qt::Key_Backspace, QStringLiteral("\b"));
            }
        },
        [=](benchmark::State& state) {
            constexpr QSize letter(8, 16);
            copyBytes(state, 2 * 2 * bytesOf(KORVA_Zoom(zoom).zoomed(letter)));
        });
}

} // namespace

void addStrokes()
{
    const PictureSize screen = {{240, 320}};
    for (const Tool tool : {Pencil, Eraser, Line, Rectangle, Ellipse, Select})
        for (const int zoom : {100, 200})
            addMotion("motion", tool, zoom, screen);
    for (const PictureSize& picture : growingSizes)
        for (const Tool tool : {Pencil, Line, Ellipse})
            addMotion("by_size", tool, 100, picture);
    for (const int zoom : zoomRates)
        for (const Tool tool : {Pencil, Line, Ellipse})
            addMotion("by_zoom", tool, zoom, screen);
    for (const Tool tool : {Line, Rectangle, Ellipse})
        for (const int zoom : {100, 200})
            addCommit(tool, zoom, screen.size);
    for (const int zoom : {100, 200})
        addTextKeys(zoom, screen.size);
}

} // namespace bench
