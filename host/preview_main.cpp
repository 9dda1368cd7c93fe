#include "Display.h"
#include "KORVA_Preview.h"
#include "StartMessages.h"

#include <QApplication>
#include <QFile>

#include <cstdio>

namespace {

constexpr auto help =
    "Usage: korva-preview PICTURE\n"
    "Shows a picture to be confirmed or cancelled: prints 900 and exits with 0 when it was\n"
    "confirmed, prints 902 and exits with 1 when it was cancelled.\n\n"
    "Options:\n"
    "  -h, --help         show this text\n"
    "  -v, --version      show the version\n";

int complain(const QString& message)
{
    std::fprintf(stderr, "korva-preview: %s\n", qPrintable(message));
    return 1;
}

int show(char** argv, const QString& picture)
{
    const auto found = pad::Display::find(false);
    if (const auto* failure = std::get_if<pad::Failure>(&found))
        return complain(failure->message);
    const auto& display = std::get<pad::Display>(found);
    display.setScale(display.screen ? display.screen->suitableScale() : 1);
    int only = 1; // the arguments are ours alone
    const QApplication app(only, argv);
    pad::startmessages::tell();
    int result = KORVA_PREVIEW_CANCELLED;
    KorvaPreview(QString(), picture, result);
    std::printf("%d\n", result);
    return result == KORVA_PREVIEW_CONFIRMED ? 0 : 1;
}

} // namespace

int main(int argc, char** argv)
{
    pad::startmessages::keep("korva-preview");
    QStringList pictures;
    bool onlyPictures = false;
    for (int i = 1; i < argc; ++i) {
        const QString argument = QFile::decodeName(argv[i]);
        const bool isOption = !onlyPictures && argument.size() > 1 && argument.startsWith(QLatin1Char('-'));
        const auto is = [&argument](const char* longName, const char* shortName) {
            return argument == QLatin1String(longName) || argument == QLatin1String(shortName);
        };
        if (!isOption) {
            pictures.append(argument);
        } else if (argument == QLatin1String("--")) {
            onlyPictures = true;
        } else if (is("--help", "-h")) {
            std::fputs(help, stdout);
            return 0;
        } else if (is("--version", "-v")) {
            std::puts("korva-preview " KORVA_VERSION);
            return 0;
        } else {
            return complain(QStringLiteral("unknown option '%1' (--help lists them)").arg(argument));
        }
    }
    if (pictures.isEmpty())
        return complain(QStringLiteral("which picture? korva-preview PICTURE"));
    if (pictures.size() > 1)
        return complain(
            QStringLiteral("one picture at a time: '%1' and '%2'").arg(pictures[0], pictures[1]));
    if (pictures.constFirst().isEmpty())
        return complain(QStringLiteral("the picture's name is empty"));
    return show(argv, pictures.constFirst());
}
