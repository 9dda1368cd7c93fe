// A picture file that is opened or laid over the drawing by its name. Byte 0: the extension (modulo their
// number), times the verb: open, stamp, open at construction, read at its own size. The rest is the file.
#include "Bytes.h"
#include "Fuzz.h"
#include "Services.h"

#include <KORVA_Assert.h>
#include <KORVA_Canvas.h>
#include <KORVA_EditCanvas.h>

#include <memory>

namespace {

constexpr const char* extensions[] = {"png",  "gif",  "jpeg", "jpg", "jpe", "bmp",
                                      "wbmp", "tiff", "",     "PNG", "GIF", "svg"};
constexpr double forMegapixels = 5; // seconds
enum Verb { Open, Stamp, Construct, Read, Verbs };

} // namespace

void fuzz::feed(const QByteArray& input)
{
    static Services& services = Services::install();
    static auto* present = new KORVA_EditCanvas(KORVA_COLOR_16BIT);
    services.limit = 5'000'000; // beyond what is decoded as a whole
    Bytes bytes(input);
    const int first = bytes.next();
    const QString name = QString("picture.") + extensions[first % std::size(extensions)];
    const QString path = write(name, bytes.rest());

    present->setZoom(100);
    present->clearCanvas();
    std::unique_ptr<KORVA_EditCanvas> made;
    KORVA_EditCanvas* editor = present;
    const QImage before = editor->snapshot();
    swiftly(
        extensions[first % std::size(extensions)],
        [&] {
            switch (Verb(first / std::size(extensions) % Verbs)) {
            case Open: {
                const bool isOpened = editor->openNewFilePrivate(KORVA_ACTION_OPEN, path);
                KORVA_ASSERT(isOpened || editor->snapshot() == before);
                KORVA_ASSERT(!isOpened || editor->fileName() == path);
                KORVA_ASSERT(!isOpened || (!editor->isModified() && !editor->sourceSize().isEmpty()));
                break;
            }
            case Stamp: {
                const QString drawing = editor->fileName();
                const bool isThere = editor->openNewFilePrivate(KORVA_ACTION_INSERT_STAMP, path);
                KORVA_ASSERT(isThere || editor->snapshot() == before);
                KORVA_ASSERT(editor->fileName() == drawing && editor->snapshot().size() == before.size());
                break;
            }
            case Construct:
                made = std::make_unique<KORVA_EditCanvas>(path, KORVA_COLOR_16BIT);
                editor = made.get();
                KORVA_ASSERT(editor->fileName().isEmpty() || editor->fileName() == path);
                break;
            default: {
                QImage image;
                QPixmap picture;
                if (editor->getImage(&image, path))
                    KORVA_ASSERT(editor->convertScaleImage(&image, &picture) &&
                                 isOpaque(picture.toImage()));
                break;
            }
            }
        },
        forMegapixels);
    const QImage after = editor->snapshot();
    KORVA_ASSERT(isOpaque(after));
    KORVA_ASSERT(qint64(after.width()) * after.height() <= qint64(352) * 288);
}
