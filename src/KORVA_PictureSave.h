#pragma once

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

/// Writes a file that was not there before, or replaces it; false leaves none. `format` is "PNG", "JPEG",
/// "BMP" or what else the toolkit writes; null goes by the extension. PNGs are made small, JPEGs good.
[[nodiscard]] bool write(const QImage& image, const QString& fileName, const char* format);

/// Has `encode` write the temporary file (true when it did) and moves that to `name`. False when anything
/// failed: the target is then as it was. No temporary file is left in either case. A name that holds a
/// single quote cannot be saved.
[[nodiscard]] bool replace(const QString& name,
                           const std::function<bool(const QString& temporaryPath)>& encode);

} // namespace picturesave
