#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

#include <functional>

/// Saves a drawing: it is encoded as a whole into a temporary file, which is then moved over the target in
/// one step. Whatever goes wrong, and whenever the program dies, the target is the old file or the new one.
namespace picturesave {

/// The temporary file: appwrite/korva.temp in the download folder that the environment names. The folder
/// appwrite is not created here.
[[nodiscard]] QString temporaryPath();

/// The picture as the bytes of a file. Empty if it is null, or if `format` is not "PNG", "JPEG", "JPG" or
/// "BMP" in upper or lower case. PNGs are made small; JPEGs get a high quality.
[[nodiscard]] QByteArray encoded(const QImage& image, const QByteArray& format);
/// The same in at most `mostBytes` bytes; 0 or less means any number. A JPEG gives up quality first, then
/// size. Empty if the picture still does not fit.
[[nodiscard]] QByteArray encodedWithin(const QImage& image, const QByteArray& format, qsizetype mostBytes);

/// Writes a file, or overwrites it in place. After a failed write there is no file. A null format goes by
/// the extension.
[[nodiscard]] bool write(const QImage& image, const QString& fileName, const char* format);

/// Writes what `encode` returns into the temporary file and moves that to `name`. False if anything failed,
/// or `encode` returned nothing; the target is then as it was. Afterwards there is no temporary file. The
/// target keeps its mode, and its owner where the system permits. A link stays, and the file that it leads
/// to is replaced. Other programs that save through the same folder wait. Fails if the name, or the target
/// of a link, has a single quote.
[[nodiscard]] bool replace(const QString& name, const std::function<QByteArray()>& encode);

} // namespace picturesave
