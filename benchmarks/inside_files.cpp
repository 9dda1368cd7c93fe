#include "inside.h"

#include <KORVA_Formats.h>
#include <KORVA_PictureFile.h>
#include <KORVA_PictureSave.h>

#include <QDir>
#include <QImageReader>
#include <QImageWriter>
#include <QPixmap>

namespace bench {

namespace {

void fail(benchmark::State& state)
{
    state.SkipWithError("the picture could not be read or written");
}

/// Opens a file as the editor does: checks it, reads it, brings it to its working size and makes a pixmap.
void open(benchmark::State& state, const QString& name)
{
    for (auto _ : state) {
        KORVA_PictureFile file(name);
        QPixmap pixmap;
        if (file.check(KORVA_Formats::readFormat(name)) != 0 ||
            !KORVA_WorkingLimits().convert(file.take(), &pixmap))
            return fail(state);
    }
}

/// The codec alone, with all its pixels.
void decode(benchmark::State& state, const QString& name)
{
    for (auto _ : state) {
        if (QImageReader(name).read().isNull())
            return fail(state);
    }
}

void tellSize(benchmark::State& state, const QString& name)
{
    state.counters["file_bytes"] = static_cast<double>(QFileInfo(name).size());
}

void save(benchmark::State& state, const QImage& image, const QString& name)
{
    for (auto _ : state) {
        if (!picturesave::write(image, name, nullptr))
            return fail(state);
    }
    tellSize(state, name);
}

void encode(benchmark::State& state, const QImage& image, const QString& name)
{
    for (auto _ : state) {
        if (!QImageWriter(name).write(image))
            return fail(state);
    }
    tellSize(state, name);
}

} // namespace

void addFiles(const QString& folder)
{
    for (const QFileInfo& file : QDir(folder).entryInfoList(QDir::Files, QDir::Name)) {
        const QString name = file.filePath();
        add(
            "open/" + file.fileName().toStdString(), [=](benchmark::State& state) { open(state, name); },
            [=](benchmark::State& state) { decode(state, name); });
    }
    for (const QSize size : {QSize(240, 320), QSize(352, 288), QSize(1408, 1152)}) {
        const PictureSize picture = {size};
        for (const char* extension : {"png", "jpg", "bmp"}) {
            const QString name = QDir::temp().filePath(QStringLiteral("korva-bench.") + extension);
            const QImage image = noise(picture.size);
            add(
                "save/" + picture.name() + "." + extension,
                [=](benchmark::State& state) { save(state, image, name); },
                [=](benchmark::State& state) { encode(state, image, name); });
        }
    }
}

} // namespace bench
