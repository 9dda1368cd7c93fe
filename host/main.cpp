#include "CommandLine.h"
#include "Display.h"
#include "DownloadFolder.h"
#include "Platform.h"
#include "Recording.h"
#include "Session.h"
#include "Theme.h"

#include <QApplication>
#include <QFile>

#include <cstdio>
#include <cstdlib>

namespace {

QStringList argumentsOf(int argc, char** argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(QFile::decodeName(argv[i]));
    return arguments;
}

/// Standard error is for the person: what the toolkit has to say about the session's folders is not.
void showMessage(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (!message.startsWith(QLatin1String("QStandardPaths: ")))
        std::fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, message)));
    if (type == QtFatalMsg)
        std::abort();
}

int run(char** argv, const pad::CommandLine& line)
{
    pad::Expected<pad::Recording> recording = pad::Recording();
    if (!line.replay.isEmpty())
        recording = pad::Recording::read(line.replay);
    if (const auto* failure = std::get_if<pad::Failure>(&recording))
        return pad::complain(*failure);
    if (const auto failure = pad::prepareDisplay(line))
        return pad::complain(*failure);

    int only = 1; // the arguments are ours alone
    const QApplication app(only, argv);
    QCoreApplication::setApplicationName(QStringLiteral("korva-pad"));
    // Takes effect only when the application object exists: every point of a stroke is drawn.
    QCoreApplication::setAttribute(Qt::AA_CompressHighFrequencyEvents, false);
    pad::theme::apply();
    const pad::DownloadFolder downloads;
    return pad::Session(line, std::get<pad::Recording>(std::move(recording)), pad::Platform::install())
        .run();
}

} // namespace

int main(int argc, char** argv)
{
    qInstallMessageHandler(showMessage);
    const auto parsed = pad::CommandLine::parse(argumentsOf(argc, argv));
    if (const auto* failure = std::get_if<pad::Failure>(&parsed))
        return pad::complain(*failure);
    const auto& line = std::get<pad::CommandLine>(parsed);
    if (line.help || line.version) {
        std::fputs(line.help ? qPrintable(pad::CommandLine::helpText()) : "korva-pad " KORVA_VERSION "\n",
                   stdout);
        return 0;
    }
    return run(argv, line);
}
