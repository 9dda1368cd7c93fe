#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <optional>

class KORVA_EditCanvas;
class QWidget;
class UTIL_Platform;

namespace pad {

/// Why a file was not written.
struct WriteError
{
    int code = 0;   ///< as in errno; 0 if the system reported nothing; ECANCELED if the save was cancelled
    QString detail; ///< the system's words
    QString fileName;

    /// One sentence for the person who draws: "The disk is full."
    [[nodiscard]] QString sentence() const;
    /// One line for the person at the keyboard: "cannot write 'a.png': ..."
    [[nodiscard]] QString line() const;

    /// The error for which the system has these words.
    [[nodiscard]] static WriteError of(const QString& words, const QString& fileName);
};

/// One line for the person at the keyboard: "cannot open 'a.png': ..."
[[nodiscard]] QString openError(const QString& fileName, const QString& reason);

/// Whether a drawing can be written into a file of this name: GIF and WBMP pictures are only read.
[[nodiscard]] bool canBeWritten(const QString& fileName);

/// A name like this one, beside it, that no file has: "photo.jpg" gives "photo 2.jpg".
[[nodiscard]] QString freeNameBeside(const QString& fileName);

// The file is always the old one or the new one, never a part of it. The new one is on the disk before the
// old one goes. It keeps the mode, and a link stays one.

/// Called once, when the new file is complete and about to replace the old one. Returns whether it may.
using MayReplace = std::function<bool()>;

[[nodiscard]] std::optional<WriteError> writeFile(const QByteArray& bytes, const QString& fileName,
                                                  const MayReplace& mayReplace = {});

/// Writes as writeFile() does, in any thread.
using Writer = std::function<std::optional<WriteError>(const QByteArray& bytes, const QString& fileName,
                                                       const MayReplace& mayReplace)>;

/// Writes the editor's snapshot in the format of the name's extension, or PNG if it names none.
[[nodiscard]] std::optional<WriteError> saveDrawing(const KORVA_EditCanvas& editor,
                                                    const QString& fileName);

/// Makes the bytes of a file of this name, in any thread. Empty if there is no memory.
using Encoder = std::function<QByteArray(const QString& fileName)>;

/// Work on a disk, which may take its time; in any thread.
using DiskWork = std::function<std::optional<WriteError>(const MayReplace& mayReplace)>;

/// Will write what saveDrawing() would write now.
[[nodiscard]] DiskWork savingDrawing(const KORVA_EditCanvas& editor, const QString& fileName,
                                     const Writer& write);
/// Will write something else than the drawing.
[[nodiscard]] DiskWork savingEncoded(const Encoder& encode, const QString& fileName, const Writer& write);

/// Does the work in another thread while the person waits, who can cancel it (ECANCELED) until the new file
/// takes the old one's place. After a cancel the work goes on by itself as far as that, so it owns all that
/// it uses.
[[nodiscard]] std::optional<WriteError> workWhileWaiting(const DiskWork& work, const QString& fileName,
                                                         QWidget* window, UTIL_Platform& platform);

} // namespace pad
