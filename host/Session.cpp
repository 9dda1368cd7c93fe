#include "Session.h"

#include "Colors.h"
#include "Commands.h"
#include "Documents.h"
#include "DrawingFile.h"
#include "EditCommand.h"
#include "PadTools.h"
#include "Player.h"
#include "Recovery.h"

#include <KORVA_EditCanvas.h>

#include <QApplication>
#include <QBuffer>
#include <QFileInfo>
#include <QTimer>

#include <cstdio>

namespace pad {

int complain(const Failure& failure)
{
    QString line = failure.message;
    line.replace(QLatin1Char('\n'), QLatin1Char(' '));
    std::fprintf(stderr, "korva-pad: %s\n", qPrintable(line));
    return 1;
}

Session::Session(CommandLine line, Recording recording, Platform& platform,
                 std::optional<WindowPlace> place)
    : m_line(std::move(line)),
      m_recording(std::move(recording)),
      m_platform(platform),
      m_place(std::move(place))
{
}

int Session::run()
{
    if (const auto failure = begin())
        return complain(*failure);
    if (m_place) {
        m_place->restore(*m_window);
        m_window->documents().rememberFolders();
        m_window->commands().rememberChoices();
        if (!m_line.noRecovery)
            m_window->colors().remember();
    } else
        m_window->setFixedSize(m_window->size());
    m_window->show();
    m_window->activateWindow(); // not every desktop gives the keyboard to a new window

    // Inside the event loop, so that closing the window also ends the program while it plays.
    int result = 0;
    const auto workNow = [this, &result] {
        if (const auto failure = work())
            result = complain(*failure);
        if (result != 0 || endsNow()) {
            QCoreApplication::exit();
        } else {
            startDrawing();
            startRecovery();
        }
    };
    QMetaObject::invokeMethod(this, workNow, Qt::QueuedConnection);
    QApplication::exec();
    if (m_place && m_window->isHidden()) // closed by the person
        m_place->save(*m_window);
    if (m_recorder) {
        if (const auto failure = m_recorder->finish())
            result = complain(*failure);
    }
    return result;
}

std::optional<Failure> Session::begin()
{
    if (auto failure = openPicture())
        return failure;
    return m_line.record.isEmpty() ? std::nullopt : startRecorder();
}

/// Not before a replay: a recording says how many steps and which manners it was made with, or was made
/// with one and with the classic ones.
void Session::startDrawing()
{
    KORVA_EditCanvas& editor = m_window->editor();
    const auto record = [this](const Command& command) {
        if (m_recorder)
            m_recorder->write(command);
    };
    if (m_line.undoSteps != editor.undoSteps()) {
        setHistory(editor, m_line.undoSteps);
        record({.verb = Verb::History, .number = m_line.undoSteps});
    }
    padtools::behave(editor, KORVA_Manners::modern());
    record(Recording::commandFor(editor.manners()));
}

std::optional<Failure> Session::openPicture()
{
    Script script; // before there is a window, nobody can tap a box away
    script.isWatched = m_place.has_value();
    m_platform.obey(&script);
    // An absolute path, so that the file is found from any folder.
    const QString picture =
        m_line.picture.isEmpty() ? QString() : QFileInfo(m_line.picture).absoluteFilePath();
    m_window = std::make_unique<PadWindow>(m_platform, picture);
    m_platform.obey(nullptr);
    if (m_line.picture.isEmpty() || !m_window->editor().fileName().isEmpty())
        return {};
    if (script.isCancelled) { // a new drawing, then
        m_line.picture.clear();
        return {};
    }
    QFile file(m_line.picture);
    const QString reason = file.open(QIODevice::ReadOnly) ? script.told : file.errorString();
    return Failure{openError(m_line.picture, reason)};
}

std::optional<Failure> Session::startRecorder()
{
    m_recorder = std::make_unique<Recorder>(m_window->editor());
    connect(&m_window->commands(), &Commands::performed, m_recorder.get(), &Recorder::write);
    connect(&m_window->colors(), &Colors::performed, m_recorder.get(), &Recorder::write);
    if (auto failure = m_recorder->start(m_line.record))
        return failure;
    if (!m_line.picture.isEmpty())
        m_recorder->write(
            Command{.verb = Verb::Open, .text = QFileInfo(m_line.picture).absoluteFilePath()});
    return {};
}

std::optional<Failure> Session::work()
{
    Player player(m_window->editor(), m_platform);
    if (auto failure = player.play(m_recording))
        return failure;
    return writeResults();
}

std::optional<Failure> Session::writeResults()
{
    const auto outcome = [](const std::optional<WriteError>& error) {
        return error ? std::optional(Failure{error->line()}) : std::nullopt;
    };
    if (!m_line.screenshot.isEmpty()) {
        QByteArray bytes;
        QBuffer buffer(&bytes);
        m_window->screenshot().save(&buffer, "PNG");
        if (auto failure = outcome(writeFile(bytes, m_line.screenshot)))
            return failure;
    }
    return m_line.save.isEmpty() ? std::nullopt : outcome(saveDrawing(m_window->editor(), m_line.save));
}

/// Only in a run that stays for a person to draw. A replay is offered no earlier drawing.
void Session::startRecovery()
{
    Recovery* recovery = nullptr;
    if (!m_line.noRecovery) {
        recovery = new Recovery(m_window->editor(), m_window->documents(), m_platform, m_window.get());
        m_window->commands().setRecovery(recovery);
    }
    if (m_line.replay.isEmpty())
        greet(recovery);
}

/// One after the other; what can be remembered is told once.
void Session::greet(Recovery* recovery)
{
    constexpr int placed = 200; // milliseconds; by then a desktop has given the window its place
    QTimer::singleShot(placed, m_window.get(), [this, recovery] {
        if (m_place && !m_line.noRecovery)
            m_window->commands().introduceButtons();
        if (recovery && m_window->isVisible())
            recovery->offer();
    });
}

bool Session::endsNow() const
{
    const bool nobodyThere = QGuiApplication::platformName() == QLatin1String("offscreen");
    return m_line.endsByItself() || (nobodyThere && !m_line.replay.isEmpty());
}

} // namespace pad
