#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

#include <functional>

/// A drawing on its way out: encoded as a whole into a temporary file, which is then moved over the target
/// in one step. Whatever goes wrong, and whenever the program dies, the target is the old file or the new
/// one.
namespace picturesave {

/// The temporary file: korva.temp in the folder appwrite, which is not created here, of the download folder
/// that the environment names.
[[nodiscard]] QString temporaryPath();

/// The picture as the bytes of a file; empty when it is null or `format`, in any case, is not "PNG",
/// "JPEG", "JPG" or "BMP". PNGs are made small, JPEGs good.
[[nodiscard]] QByteArray encoded(const QImage& image, const QByteArray& format);
/// The same in no more bytes than told (0 or less: any number). A JPEG gives up quality first, then size;
/// what still does not fit is empty.
[[nodiscard]] QByteArray encodedWithin(const QImage& image, const QByteArray& format, qsizetype mostBytes);

/// Writes a file that was not there before, or replaces it; false leaves none. A null format goes by the
/// extension.
[[nodiscard]] bool write(const QImage& image, const QString& fileName, const char* format);

/// Brings what `encode` gives into the temporary file and moves that to `name`; false when anything failed,
/// or `encode` gave nothing: the target is then as it was. Afterwards there is no temporary file. The
/// target keeps its mode, and its owner where the system permits; a link stays, and what it leads to is
/// replaced. Other programs that save through the same folder wait. A name, or a link's target, that holds
/// a single quote cannot be saved.
[[nodiscard]] bool replace(const QString& name, const std::function<QByteArray()>& encode);

} // namespace picturesave
