// A recovery folder, as it is when the pad starts. Byte 0 says whether the drawing that is offered is
// wanted, and the name of a sound drawing that is in the folder and must not be lost. Then come the other
// files: byte 0 of each is its kind of name (see names), bytes 1 and 2 are its length, the high one first,
// and its bytes follow.
#include "Bytes.h"
#include "Fuzz.h"

#include "Documents.h"
#include "EarlierDialog.h"
#include "Folders.h"
#include "Platform.h"
#include "Recovery.h"

#include <KORVA_Assert.h>
#include <KORVA_EditCanvas.h>

#include <QDir>
#include <QImageWriter>

namespace {

constexpr int mostFiles = 12; // fewer than are kept
constexpr const char* names[] = {"living-%1.png",      "living-%1.lock",    "earlier-%1.png",
                                 "living-%1.png.Ab12", "earlier-%1.png.cd", "%1",
                                 "living-.png",        "earlier-.png"};

enum Bit : quint8 { SetTime = 0x10, BringBack = 0x20, SoundIsEarlier = 0x40 };

void empty(const QString& folder)
{
    QDir(folder).removeRecursively();
    QDir().mkpath(folder);
}

QImage soundPicture()
{
    QImage picture(30, 20, QImage::Format_RGB32);
    picture.fill(qRgb(1, 2, 3));
    return picture;
}

int soundOnes(const KORVA_Journal& journal)
{
    int found = 0;
    for (const KORVA_Journal::Entry& entry : journal.earlier()) {
        const QImage picture = KORVA_Journal::picture(entry);
        found += picture.convertToFormat(QImage::Format_RGB32) == soundPicture();
    }
    return found;
}

} // namespace

void fuzz::feed(const QByteArray& input)
{
    static pad::Platform& platform = pad::Platform::install();
    const QString folder = pad::recoveryFolder();
    empty(folder);
    Bytes bytes(input);
    const int how = bytes.next();
    for (int i = 0; i < mostFiles && !bytes.atEnd(); ++i) {
        const int kind = bytes.next();
        const int length = bytes.number();
        QFile file(folder + '/' +
                   QString(names[kind % std::size(names)]).replace("%1", QString::number(10 + i)));
        KORVA_ASSERT(file.open(QIODevice::WriteOnly));
        file.write(bytes.take(length));
        if (kind & SetTime)
            file.setFileTime(QDateTime::fromSecsSinceEpoch(1'000'000'000 + kind),
                             QFile::FileModificationTime);
    }
    KORVA_ASSERT(soundPicture().save(
        folder + (how & SoundIsEarlier ? "/earlier-99-sound.png" : "/living-99-sound.png")));

    pad::Script script;
    platform.obey(&script);
    {
        QWidget window;
        window.resize(240, 320);
        KORVA_EditCanvas editor(KORVA_COLOR_16BIT, &window);
        pad::Documents documents(editor, platform, &window);
        KORVA_Journal watching(&editor, folder);
        pad::Recovery* recovery = nullptr;
        script.answer = how & BringBack ? 0 : 1;
        swiftly("offer", [&] {
            recovery = new pad::Recovery(editor, documents, platform, &window);
            recovery->offer();
        });
        // What was offered and taken is in the editor; all else is among the earlier drawings.
        const bool isTaken = editor.snapshot().convertToFormat(QImage::Format_RGB32) == soundPicture();
        KORVA_ASSERT(isTaken || soundOnes(watching) >= 1);
        KORVA_ASSERT(isOpaque(editor.snapshot()));
        swiftly("dialog", [&] {
            pad::EarlierDialog dialog(&window, watching.earlier());
            (void)dialog.grab();
        });
        for (const KORVA_Journal::Entry& entry : watching.earlier())
            KORVA_ASSERT(entry.size.isValid() && entry.time.isValid());
        documents.setJournal(nullptr);
        delete recovery;
        editor.clearModified();
    }
    platform.obey(nullptr);
}
