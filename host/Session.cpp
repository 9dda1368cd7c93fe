#include "Session.h"

#include "Commands.h"
#include "Document.h"
#include "PictureFile.h"
#include "Player.h"

#include <KORVA_Canvas.h>
#include <KORVA_EditCanvas.h>

#include <QApplication>
#include <QFileInfo>

#include <cstdio>

namespace pad {

int complain(const Failure& failure)
{
    QString line = failure.message;
    line.replace(QLatin1Char('\n'), QLatin1Char(' '));
    std::fprintf(stderr, "korva-pad: %s\n", qPrintable(line));
    return 1;
}

Session::Session(const CommandLine& line, Recording recording)
    : m_line(line), m_recording(std::move(recording)), m_recorder(m_window.editor())
{
    connect(&m_window.commands(), &Commands::performed, &m_recorder, &Recorder::write);
    connect(&m_window.commands(), &Commands::failed, this,
            [](const QString& message) { complain({message}); });
}

int Session::run()
{
    if (const auto failure = begin())
        return complain(*failure);
    m_window.show();
    m_window.activateWindow(); // not every desktop gives the keyboard to a new window

    // Inside the event loop, so that closing the window ends the program while it plays, too.
    int result = 0;
    const auto workNow = [this, &result] {
        if (const auto failure = work())
            result = complain(*failure);
        if (result != 0 || endsNow())
            QCoreApplication::quit();
    };
    QMetaObject::invokeMethod(this, workNow, Qt::QueuedConnection);
    QApplication::exec();
    if (const auto failure = m_recorder.finish())
        result = complain(*failure);
    return result;
}

std::optional<Failure> Session::begin()
{
    if (!m_line.picture.isEmpty()) {
        if (auto failure = m_window.document().open(m_line.picture))
            return failure;
    }
    if (m_line.record.isEmpty())
        return {};
    if (auto failure = m_recorder.start(m_line.record))
        return failure;
    if (!m_line.picture.isEmpty()) {
        Command open;
        open.verb = Verb::Open;
        open.text = QFileInfo(m_line.picture).absoluteFilePath();
        m_recorder.write(open);
    }
    return {};
}

std::optional<Failure> Session::work()
{
    Player player(m_window.editor(), m_window.document());
    if (auto failure = player.play(m_recording))
        return failure;
    return writeResults();
}

std::optional<Failure> Session::writeResults()
{
    if (!m_line.screenshot.isEmpty()) {
        if (auto failure = writePng(m_window.screenshot(), m_line.screenshot))
            return failure;
    }
    if (!m_line.save.isEmpty())
        return writePicture(m_window.editor().canvas()->pixmap()->toImage(), m_line.save);
    return {};
}

bool Session::endsNow() const
{
    const bool nobodyThere = QGuiApplication::platformName() == QLatin1String("offscreen");
    return m_line.endsByItself() || (nobodyThere && !m_line.replay.isEmpty());
}

} // namespace pad
