#pragma once

#include <QImage>
#include <QPixmap>
#include <QStringList>

/// Picture files: names and formats, the size check, reading, the working size and depth, writing. No
/// widgets; what goes wrong is in the return values.
namespace KORVA_PictureFile {

/// What a folder dialog offers, in order.
[[nodiscard]] QStringList openPatterns();
[[nodiscard]] QStringList savePatterns();

/// The format name to read or write a file by, from its last extension. Writing a GIF gives null: it is
/// never done.
[[nodiscard]] const char* readFormat(const QString& name);
[[nodiscard]] const char* writeFormat(const QString& name);

/// UTIL_ImageReader's status of reading the file; a null format recognises it by its content.
[[nodiscard]] int check(const QString& name, const char* format);
/// Decodes as the extension says; null when that fails.
[[nodiscard]] QImage read(const QString& name);
[[nodiscard]] QImage decode(const QByteArray& data);

/// Brings an image to the working depth of 16 bits and scales one with more pixels than 352 × 288 into that
/// size. False when there is no image.
bool fit(QImage* image, QPixmap* pixmap);

/// Where a picture is encoded before it is moved into place.
[[nodiscard]] QString temporaryPath();
/// Encodes to the temporary path and moves the file over `name`; on failure `name` is as it was.
bool save(const QPixmap& picture, const QString& name, const char* format);

} // namespace KORVA_PictureFile
