#pragma once

#include <QtCore>

namespace support {

/// The calls that this program, and those that it starts, make on the files of one folder: what they are,
/// and what follows when one of them fails.
class Faults
{
public:
    /// A call on a file. Its names are those below the folder; of a name made up for the moment the part
    /// that is always another one is "*".
    struct Call
    {
        QString program; ///< as the system calls it: 15 letters
        QString name;    ///< "rename" for renameat2(), too
        QString path;
        QString other; ///< the second name: where a rename leads to
        int ordinal;   ///< among the calls of this name in the program, from 1
        bool isFirst;  ///< made by the program's first thread, which is the window's
    };

    /// What stands for an error in fail() but is none.
    enum Other : int {
        Half = 0,      ///< a write writes half of what it was given
        Vanishes = -1, ///< the folder gets another name right before the call: that of vanished()
    };

    /// Makes this program start anew with the calls between it and the system: before anything else in
    /// main().
    static void allow(char** arguments);

    /// Watches a folder for as long as it lives.
    explicit Faults(const QString& folder);
    ~Faults();
    Faults(const Faults&) = delete;
    Faults& operator=(const Faults&) = delete;

    /// What has been called since the last time this or fail() was called, or since the beginning.
    [[nodiscard]] QList<Call> taken();
    /// Lets the call of this program, name and ordinal, counted from now, fail with an error as in errno,
    /// or with one of those above.
    void fail(const Call& call, int error);
    /// Lets it succeed, but take its time.
    void stall(const Call& call, int milliseconds) { fail(call, -milliseconds); }
    /// Where the folder is when it has vanished.
    [[nodiscard]] static QString vanished(const QString& folder) { return folder + ".gone"; }
    /// Nothing fails any more.
    void letGo();

private:
    void restart();

    QTemporaryDir m_own;
    int m_serial = 0;
};

} // namespace support
