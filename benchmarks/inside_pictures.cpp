#include "inside.h"

#include <KORVA_Zoom.h>

#include <QPixmap>

namespace bench {

namespace {

using Operation = void (*)(Editor& editor, benchmark::State& state, int zoom);

void zoomChange(Editor& editor, benchmark::State& state, int zoom)
{
    for (auto _ : state) {
        state.PauseTiming();
        editor.canvas().setZoom(zoom == 100 ? 50 : 100);
        state.ResumeTiming();
        editor.canvas().setZoom(zoom);
    }
}

void merge(Editor& editor, benchmark::State& state, int)
{
    QPixmap stamp(editor.canvas().pixmap()->size() / 2);
    stamp.fill(Qt::green);
    for (auto _ : state) {
        state.PauseTiming();
        editor.canvas().insertStamp(stamp);
        state.ResumeTiming();
        editor.canvas().mergePastePixmap();
    }
}

void undo(Editor& editor, benchmark::State& state, int)
{
    editor.press({10, 10});
    editor.move({50, 50});
    editor.release({50, 50});
    for (auto _ : state)
        editor->undo();
}

constexpr struct
{
    const char* name;
    Operation operation;
} operations[] = {{"undo", undo}, {"merge", merge}, {"zoom_change", zoomChange}};

/// The limit: the zoomed picture must be written once.
void addOperation(const std::string& prefix, const char* name, Operation operation, int zoom,
                  const PictureSize& picture)
{
    add(
        prefix + name + "/" + std::to_string(zoom) + "/" + picture.name(),
        [=](benchmark::State& state) {
            Editor editor(picture.size, zoom);
            operation(editor, state, zoom);
        },
        [=](benchmark::State& state) { copyBytes(state, bytesOf(KORVA_Zoom(zoom).zoomed(picture.size))); });
}

} // namespace

void addPictures()
{
    const PictureSize working = {{352, 288}};
    for (const auto& [name, operation] : operations) {
        for (const int zoom : zoomRates)
            addOperation("", name, operation, zoom, working);
        for (const PictureSize& picture : growingSizes)
            addOperation("by_size/", name, operation, 100, picture);
    }
}

} // namespace bench
