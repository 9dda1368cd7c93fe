#pragma once

#include "KORVA_Journal.h"

/// The files of the journals that share a folder. "living-ID.png" is being drawn, and "living-ID.lock"
/// locks it. "earlier-ID.png" was given up. Identifiers sort by time. Nothing here knows an editor.
class KORVA_JournalFolder
{
public:
    /// The compression of a file, as QImage's quality.
    enum Size : int { Quick = 100, Small = -1 };

    explicit KORVA_JournalFolder(const QString& path);

    [[nodiscard]] QString path() const { return m_path; }
    /// Makes the folder if it does not exist, for its owner only. False when it cannot be made.
    [[nodiscard]] bool make() const;

    /// An identifier that sorts by time, and within one moment by the order of the calls. No other program
    /// gets the same one.
    [[nodiscard]] static QString newId();
    [[nodiscard]] QString livingFile(const QString& id) const;
    [[nodiscard]] QString lockFile(const QString& id) const;
    [[nodiscard]] QString newEarlierFile() const;

    /// Writes the whole picture to the disk, or nothing. Returns what went wrong; empty if nothing did. For
    /// any thread.
    [[nodiscard]] static QString store(const QImage& picture, const QString& fileName,
                                       const QString& pictureName, Size size);
    /// The system's text for its last error.
    [[nodiscard]] static QString systemError();

    [[nodiscard]] static KORVA_Journal::Entry entryOf(const QString& fileName);
    /// The identifiers of the living drawings, oldest first.
    [[nodiscard]] QStringList livingIds() const;
    /// The earlier drawings, newest first; damaged ones are left out.
    [[nodiscard]] QList<KORVA_Journal::Entry> earlier() const;

    /// Makes a living drawing the newest of the earlier ones.
    void moveAmongEarlier(const QString& id) const;
    /// Removes all earlier drawings but the newest ones.
    void prune(int most, const QString& spared = {}) const;
    /// Removes files of programs that ended in the middle of a write.
    void removeLeftovers() const;

private:
    QString m_path;
};
