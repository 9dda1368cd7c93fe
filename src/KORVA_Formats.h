#pragma once

#include <QByteArray>
#include <QStringList>

#include <array>

/// The table of picture files that a drawing can be read from and written to. Patterns, dialogs, reading,
/// writing, the desktop files and the documents all follow it.
namespace KORVA_Formats {

/// How a file of an extension is opened.
enum class Opening {
    ByContent,
    AsJpeg,
    AsGif, ///< only if every frame is sound
};

struct Row
{
    const char* extension; ///< compared without regard to case
    const char* format;
    const char* written; ///< the format written into such a file; null if it cannot be written
    Opening opening;
    const char* mimeType;
    bool isOffered = true; ///< in the dialogs
};

/// In the order of the dialogs.
inline constexpr std::array rows{
    Row{"png", "PNG", "PNG", Opening::ByContent, "image/png"},
    Row{"gif", "GIF", nullptr, Opening::AsGif, "image/gif"},
    Row{"jpeg", "JPEG", "JPEG", Opening::AsJpeg, "image/jpeg"},
    Row{"jpg", "JPEG", "JPEG", Opening::AsJpeg, "image/jpeg"},
    Row{"jpe", "JPEG", "JPEG", Opening::AsJpeg, "image/jpeg", false},
    Row{"bmp", "BMP", "BMP", Opening::ByContent, "image/bmp"},
    Row{"wbmp", "WBMP", "PNG", Opening::ByContent, "image/vnd.wap.wbmp"},
};

/// A file with any other extension, or with none, counts as this.
inline constexpr const Row& anyOther = rows[0];

/// The row of a file, by its last extension.
[[nodiscard]] const Row& rowOf(const QString& fileName);
/// The formats in which a file is read and written. The write format is empty if it cannot be written.
[[nodiscard]] QByteArray readFormat(const QString& fileName);
[[nodiscard]] QByteArray writeFormat(const QString& fileName);

/// The patterns offered for opening and for saving: "*.png" and the like. Null formats mean all.
[[nodiscard]] QStringList openPatterns(const QStringList* formats = nullptr);
[[nodiscard]] QStringList savePatterns(const QStringList* formats = nullptr);

} // namespace KORVA_Formats
