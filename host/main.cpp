#include "CommandLine.h"
#include "Display.h"
#include "DownloadFolder.h"
#include "Language.h"
#include "Memory.h"
#include "Platform.h"
#include "Recording.h"
#include "Session.h"
#include "StartMessages.h"
#include "Theme.h"
#include "WindowPlace.h"

#include <QApplication>
#include <QFile>

#include <algorithm>
#include <cstdio>

namespace {

QStringList argumentsOf(int argc, char** argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(QFile::decodeName(argv[i]));
    return arguments;
}

/// The scale that the person asks for, or used last, or that suits the screen; if that does not fit, the
/// largest that does. A scripted run takes the scale that it is given, or the plain one.
int chooseScale(const pad::CommandLine& line, const std::optional<pad::Screen>& screen,
                const std::optional<pad::WindowPlace>& place)
{
    if (!screen)
        return line.scale.value_or(1);
    if (!place)
        return line.scale.value_or(screen->plainScale());
    const int wish = place->scale().value_or(screen->suitableScale());
    const int largest = screen->largestScale();
    if (line.scale && wish > largest) {
        const pad::language::Early words;
        pad::complain(
            {pad::CommandLine::tr("--scale %1 does not fit a screen of %2 x %3; taking %4", "command line")
                 .arg(wish)
                 .arg(screen->pixels.width())
                 .arg(screen->pixels.height())
                 .arg(largest)});
    }
    return std::min(wish, largest);
}

int run(char** argv, const pad::CommandLine& line, pad::Recording recording)
{
    const auto found = pad::Display::find(line.endsByItself() || !line.replay.isEmpty());
    if (const auto* failure = std::get_if<pad::Failure>(&found))
        return pad::complain(*failure);
    const auto& display = std::get<pad::Display>(found);
    std::optional<pad::WindowPlace> place;
    if (display.screen && !line.isScripted())
        place.emplace(display.screen->pixels);
    if (place && line.scale)
        place->setScale(*line.scale);
    const int scale = chooseScale(line, display.screen, place);
    display.setScale(scale);

    int only = 1; // the arguments are ours alone
    const QApplication app(only, argv);
    pad::startmessages::tell();
    if (!pad::language::load())
        pad::complain({pad::language::complaint()});
    QCoreApplication::setApplicationName(QStringLiteral("korva-pad"));
    // Lets every point of a stroke be drawn. It takes effect only when the application object exists.
    QCoreApplication::setAttribute(Qt::AA_CompressHighFrequencyEvents, false);
    pad::theme::apply();
    pad::memory::limitIcons(scale);
    const pad::DownloadFolder downloads;
    pad::Platform& platform = pad::Platform::install();
    platform.setWorking(line.workingSize, line.workingDepth);
    return pad::Session(line, std::move(recording), platform, std::move(place)).run();
}

} // namespace

int main(int argc, char** argv)
{
    pad::memory::keepNoPictures();
    pad::startmessages::keep("korva-pad");
    const QStringList arguments = argumentsOf(argc, argv);
    pad::language::choose(pad::CommandLine::languageIn(arguments));
    pad::CommandLine line;
    pad::Recording recording;
    {
        const pad::language::Early words;
        pad::startmessages::translate();
        auto parsed = pad::CommandLine::parse(arguments);
        if (const auto* failure = std::get_if<pad::Failure>(&parsed))
            return pad::complain(*failure);
        line = std::get<pad::CommandLine>(std::move(parsed));
        if (line.help || line.version) {
            std::fputs(line.help ? qPrintable(pad::CommandLine::helpText())
                                 : "korva-pad " KORVA_VERSION "\n",
                       stdout);
            return 0;
        }
        if (!line.replay.isEmpty()) {
            auto read = pad::Recording::read(line.replay);
            if (const auto* failure = std::get_if<pad::Failure>(&read))
                return pad::complain(*failure);
            recording = std::get<pad::Recording>(std::move(read));
        }
    }
    return run(argv, line, std::move(recording));
}
