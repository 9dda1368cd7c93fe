// A recording: its text is parsed, written, parsed again, and played by a pad. The input is the text. Waits
// are left out, and so are files beyond the run's own folder.
#include "Fuzz.h"

#include "PadTools.h"
#include "Platform.h"
#include "Player.h"
#include "Recording.h"

#include <KORVA_Assert.h>
#include <KORVA_Canvas.h>
#include <KORVA_EditCanvas.h>

#include <QApplication>
#include <QClipboard>
#include <QDir>

namespace {

constexpr int mostSaves = 3; // each starts a shell
constexpr qint64 mostPixels = 600'000;
constexpr qsizetype mostCommands = 300;

bool isOwn(const QString& fileName)
{
    return !fileName.contains('/') && !fileName.contains(QChar(0));
}

/// The commands that are played.
QByteArray playable(const pad::Recording& recording)
{
    using pad::Verb;
    int saves = 0;
    QByteArrayList lines;
    for (const pad::Command& command : recording.commands()) {
        const bool isFiles = command.verb == Verb::Open || command.verb == Verb::Paper ||
                             command.verb == Verb::Stamp || command.verb == Verb::Save;
        const bool isGreat = command.verb == Verb::Canvas &&
                             qint64(command.size.width()) * command.size.height() > mostPixels;
        const bool isTooMuch = command.verb == Verb::Save && ++saves > mostSaves;
        if (command.verb == Verb::Wait || isGreat || isTooMuch || (isFiles && !isOwn(command.text)))
            continue;
        lines.append(pad::Recording::toLine(command).toUtf8());
        if (lines.size() == mostCommands)
            break;
    }
    return lines.join('\n');
}

} // namespace

void fuzz::feed(const QByteArray& input)
{
    static pad::Platform& platform = pad::Platform::install();
    static const bool once = [] {
        QDir::setCurrent(folder());
        QDir().mkdir("appwrite");
        QImage picture(60, 40, QImage::Format_RGB32);
        picture.fill(Qt::cyan);
        return picture.save("a.png") && picture.save("b.jpg");
    }();
    KORVA_ASSERT(once);

    pad::Expected<pad::Recording> parsed = pad::Recording();
    swiftly("parse", [&] { parsed = pad::Recording::parse(input, "fuzz.rec"); });
    if (const auto* failure = std::get_if<pad::Failure>(&parsed)) {
        KORVA_ASSERT(failure->message.startsWith("fuzz.rec:"));
        return;
    }
    for (pad::Command command : std::get<pad::Recording>(parsed).commands()) {
        const QByteArray line = pad::Recording::toLine(command).toUtf8();
        const auto again = pad::Recording::parse(line, "line");
        command.line = 1;
        KORVA_ASSERT(std::holds_alternative<pad::Recording>(again));
        KORVA_ASSERT(std::get<pad::Recording>(again).commands().size() == 1);
        KORVA_ASSERT(std::get<pad::Recording>(again).commands()[0] == command);
    }

    const auto recording = pad::Recording::parse(playable(std::get<pad::Recording>(parsed)), "play");
    KORVA_ASSERT(std::holds_alternative<pad::Recording>(recording));
    QGuiApplication::clipboard()->clear();
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    pad::padtools::addTo(editor);
    editor.show();
    pad::Player player(editor, platform);
    const auto failure = player.play(std::get<pad::Recording>(recording));
    KORVA_ASSERT(!failure || failure->message.startsWith("play:"));
    while (QWidget* popup = QApplication::activePopupWidget())
        popup->close();
    KORVA_ASSERT(isOpaque(editor.snapshot()));
    KORVA_ASSERT(editor.canvas()->size() == editor.canvas()->zoomedPixmap()->size());
    QCoreApplication::processEvents();
}
