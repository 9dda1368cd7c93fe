#pragma once

#include <QtCore>

#include <optional>

namespace support {

/// Runs one case of the running test program in a process of its own, for what would end this one.
///
/// A case is a Q_INVOKABLE member function of the test class, without arguments, that is not a private
/// slot; what it returns as int is the exit code.
struct ChildProcess
{
    int signal = 0;   ///< the signal that ended it, 0 when it ended by itself
    int exitCode = 0; ///< its exit code where it ended by itself
    QString output;   ///< what it wrote to standard output
    QString errors;   ///< what it wrote to standard error

    [[nodiscard]] static ChildProcess run(const char* caseName);

    /// In the child: runs the case asked for on the command line and tells its exit code; nothing in a test
    /// program that was started as such.
    static std::optional<int> runCase(QObject& test, const QStringList& arguments);
};

} // namespace support
