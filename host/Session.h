#pragma once

#include "CommandLine.h"
#include "PadWindow.h"
#include "Recorder.h"
#include "Recording.h"

#include <QObject>

namespace pad {

/// One run of the program: opens, plays, records and writes what the command line asks for.
class Session : public QObject
{
    Q_OBJECT

public:
    explicit Session(const CommandLine& line, Recording recording);

    /// Runs until the window is closed or the work is done; the outcome is the program's exit code.
    int run();

private:
    std::optional<Failure> begin();
    std::optional<Failure> work();
    std::optional<Failure> writeResults();
    [[nodiscard]] bool endsNow() const;

    CommandLine m_line;
    Recording m_recording;
    PadWindow m_window;
    Recorder m_recorder;
};

/// Tells the person at the keyboard, on one line of standard error. The result is the exit code for it.
int complain(const Failure& failure);

} // namespace pad
