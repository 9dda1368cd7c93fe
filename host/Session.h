#pragma once

#include "CommandLine.h"
#include "PadWindow.h"
#include "Platform.h"
#include "Recorder.h"
#include "Recording.h"
#include "WindowPlace.h"

#include <QObject>

#include <memory>

namespace pad {

class Recovery;

/// One run of the program: opens, plays, records and writes as the command line says.
class Session : public QObject
{
    Q_OBJECT

public:
    /// Without a `place` the window has its plain size, and its size is not saved.
    Session(CommandLine line, Recording recording, Platform& platform, std::optional<WindowPlace> place);

    /// Runs until the window is closed or the work is done. Returns the program's exit code.
    int run();

private:
    std::optional<Failure> begin();
    std::optional<Failure> openPicture();
    std::optional<Failure> startRecorder();
    std::optional<Failure> work();
    std::optional<Failure> writeResults();
    void startDrawing();
    void startRecovery();
    void greet(Recovery* recovery);
    [[nodiscard]] bool endsNow() const;

    CommandLine m_line;
    Recording m_recording;
    Platform& m_platform;
    std::optional<WindowPlace> m_place;
    std::unique_ptr<PadWindow> m_window;
    std::unique_ptr<Recorder> m_recorder;
};

/// Prints the failure as one line on standard error. Returns the exit code for it.
int complain(const Failure& failure);

} // namespace pad
