#pragma once

#include "KORVA_Journal.h"

/// The files of the journals that share a folder: "living-ID.png" is being drawn, and locked by
/// "living-ID.lock"; "earlier-ID.png" was given up. Identifiers sort by time. Nothing here knows an editor.
class KORVA_JournalFolder
{
public:
    /// How small a file is made.
    enum Size : int { Quick = 100, Small = -1 };

    explicit KORVA_JournalFolder(const QString& path);

    [[nodiscard]] QString path() const { return m_path; }
    /// Makes the folder if it is not there, for its owner only; false when it cannot be made.
    [[nodiscard]] bool make() const;

    /// Sorts by time, within a moment by the order in which it was asked for, and is no other program's.
    [[nodiscard]] static QString newId();
    [[nodiscard]] QString livingFile(const QString& id) const;
    [[nodiscard]] QString lockFile(const QString& id) const;
    [[nodiscard]] QString newEarlierFile() const;

    /// Writes the whole picture or nothing, onto the disk; what went wrong, or an empty text. For any
    /// thread.
    [[nodiscard]] static QString store(const QImage& picture, const QString& fileName,
                                       const QString& pictureName, Size size);
    /// What the system says of its last error.
    [[nodiscard]] static QString systemError();

    [[nodiscard]] static KORVA_Journal::Entry entryOf(const QString& fileName);
    /// The identifiers of the living drawings, the oldest first.
    [[nodiscard]] QStringList livingIds() const;
    /// The earlier drawings, the newest first; damaged ones are none.
    [[nodiscard]] QList<KORVA_Journal::Entry> earlier() const;

    /// A living drawing becomes the newest of the earlier ones.
    void moveAmongEarlier(const QString& id) const;
    /// Removes all but the newest of the earlier ones.
    void prune(int most, const QString& spared = {}) const;
    /// Removes what programs left that ended in the middle of something.
    void removeLeftovers() const;

private:
    QString m_path;
};
