#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

class KORVA_EditCanvas;

namespace pad {

/// Why a file was not written.
struct WriteError
{
    int code = 0;   ///< as in errno; 0 where it was no matter of the system
    QString detail; ///< the system's words
    QString fileName;

    /// One sentence for the person who draws: "The disk is full."
    [[nodiscard]] QString sentence() const;
    /// One line for the person at the keyboard: "cannot write 'a.png': ..."
    [[nodiscard]] QString line() const;
};

/// Whether a drawing can be written into a file of this name: GIF and WBMP pictures are only read.
[[nodiscard]] bool canBeWritten(const QString& fileName);

/// A name like this one, beside it, that no file has: "photo.jpg" gives "photo 2.jpg".
[[nodiscard]] QString freeNameBeside(const QString& fileName);

// The file is the old one or the new one, never a part of it, and on the disk before the old one goes. It
// keeps its mode, and a link stays one.

/// Writes the editor's snapshot in the format of the name's extension, PNG where it names none.
[[nodiscard]] std::optional<WriteError> saveDrawing(const KORVA_EditCanvas& editor,
                                                    const QString& fileName);
[[nodiscard]] std::optional<WriteError> writeFile(const QByteArray& bytes, const QString& fileName);

} // namespace pad
