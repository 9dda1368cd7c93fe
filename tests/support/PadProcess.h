#pragma once

#include <QtCore>

#include <memory>

namespace support {

/// korva-pad as a person starts it: a process of its own.
class PadProcess
{
public:
    /// Starts it in the folder given. Without a display it works off screen. What it remembers goes below
    /// `home`, the user's folder; without one it remembers nothing of others. The user has seen what the
    /// buttons are, unless the settings say otherwise. A program in front with its
    /// arguments, `through`, becomes the pad.
    explicit PadProcess(const QStringList& arguments, const QString& display = {},
                        const QString& folder = {}, const QString& home = {},
                        const QStringList& through = {});
    /// Ends it if it still runs.
    ~PadProcess();

    [[nodiscard]] bool waitForEnd();
    [[nodiscard]] bool isRunning() const;
    [[nodiscard]] int exitCode() const;
    /// Ends it at once, as a crash does.
    void kill();
    /// Asks it to end, as the system does.
    void terminate() { m_process.terminate(); }
    [[nodiscard]] qint64 processId() const { return m_process.processId(); }
    [[nodiscard]] QString output();
    [[nodiscard]] QString errors();

private:
    QTemporaryDir m_ownHome;
    QProcess m_process;
};

} // namespace support
