#include "CommandLine.h"
#include "Display.h"
#include "KORVA_Preview.h"
#include "Language.h"
#include "Memory.h"
#include "StartMessages.h"
#include "Wording.h"

#include <QApplication>
#include <QFile>

#include <cstdio>

namespace {

namespace wording = pad::wording;

struct Preview
{
    Q_DECLARE_TR_FUNCTIONS(pad::Preview)
};

struct Row
{
    const char* option;
    struct
    {
        const char* text;
        const char* comment;
    } help;
};

constexpr Row rows[] = {
    {"--language CODE",
     QT_TRANSLATE_NOOP3("pad::CommandLine", "speak this language, like de or pt_BR", "help")},
    {"-h, --help", QT_TRANSLATE_NOOP3("pad::CommandLine", "show this text", "help")},
    {"-v, --version", QT_TRANSLATE_NOOP3("pad::CommandLine", "show the version", "help")},
};

QString helpText()
{
    QString text = Preview::tr("Usage: korva-preview [options] PICTURE", "help") + QLatin1Char('\n') +
                   Preview::tr("Shows a picture to be confirmed or cancelled: prints 900 and exits with 0 "
                               "when it was\nconfirmed, prints 902 and exits with 1 when it was cancelled.",
                               "help") +
                   QLatin1String("\n\n") + pad::CommandLine::tr("Options:", "help") + QLatin1Char('\n');
    for (const Row& row : rows)
        text += QStringLiteral("  %1 %2\n")
                    .arg(QLatin1String(row.option), -18)
                    .arg(pad::CommandLine::tr(row.help.text, row.help.comment));
    return text;
}

int complain(const pad::Failure& failure)
{
    std::fprintf(stderr, "korva-preview: %s\n", qPrintable(failure.message));
    return 1;
}

/// What is to be done: show a picture, or print something.
struct Task
{
    QString picture = {};
    QString answer = {};
};

pad::Expected<Task> understand(QStringList arguments)
{
    QStringList pictures;
    bool onlyPictures = false;
    while (!arguments.isEmpty()) {
        const QString argument = arguments.takeFirst();
        const bool isOption = !onlyPictures && argument.size() > 1 && argument.startsWith(QLatin1Char('-'));
        const auto is = [&argument](const char* longName, const char* shortName) {
            return argument == QLatin1String(longName) || argument == QLatin1String(shortName);
        };
        if (!isOption) {
            pictures.append(argument);
        } else if (argument == QLatin1String("--")) {
            onlyPictures = true;
        } else if (argument.startsWith(QLatin1String("--language="))) {
            continue; // has been chosen
        } else if (argument == QLatin1String("--language")) {
            if (arguments.isEmpty() || arguments.takeFirst().isEmpty())
                return wording::noValue(argument, QStringLiteral("CODE"));
        } else if (is("--help", "-h")) {
            return Task{.answer = helpText()};
        } else if (is("--version", "-v")) {
            return Task{.answer = QStringLiteral("korva-preview " KORVA_VERSION "\n")};
        } else {
            return wording::unknownOption(argument);
        }
    }
    if (pictures.isEmpty())
        return pad::Failure{Preview::tr("which picture? korva-preview PICTURE", "command line")};
    if (pictures.size() > 1)
        return wording::twoPictures(pictures[0], pictures[1]);
    if (pictures.constFirst().isEmpty())
        return wording::emptyName();
    return Task{.picture = pictures.constFirst()};
}

int show(char** argv, const QString& picture)
{
    const auto found = pad::Display::find(false);
    if (const auto* failure = std::get_if<pad::Failure>(&found))
        return complain(*failure);
    const auto& display = std::get<pad::Display>(found);
    display.setScale(display.screen ? display.screen->suitableScale() : 1);
    int only = 1; // the arguments are ours alone
    const QApplication app(only, argv);
    pad::startmessages::tell();
    if (!pad::language::load())
        complain({pad::language::complaint()});
    int result = KORVA_PREVIEW_CANCELLED;
    KorvaPreview(QString(), picture, result);
    std::printf("%d\n", result);
    return result == KORVA_PREVIEW_CONFIRMED ? 0 : 1;
}

} // namespace

int main(int argc, char** argv)
{
    pad::memory::keepNoPictures();
    pad::startmessages::keep("korva-preview");
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(QFile::decodeName(argv[i]));
    pad::language::choose(pad::CommandLine::languageIn(arguments));
    pad::Expected<Task> understood;
    {
        const pad::language::Early words;
        pad::startmessages::translate();
        understood = understand(arguments);
        if (const auto* failure = std::get_if<pad::Failure>(&understood))
            return complain(*failure);
    }
    const auto& task = std::get<Task>(understood);
    if (task.answer.isEmpty())
        return show(argv, task.picture);
    std::fputs(qPrintable(task.answer), stdout);
    return 0;
}
