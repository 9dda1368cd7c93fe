#pragma once

#include <QByteArray>
#include <QStringList>

#include <array>

/// The picture files that a drawing comes from and goes to. Patterns, dialogs, what a file is read as and
/// written as, and what the desktop and the documents are told all follow this table.
namespace KORVA_Formats {

/// How a file of an extension is opened.
enum class Opening {
    ByContent,
    AsJpeg,
    AsGif, ///< only with every frame sound
};

struct Row
{
    const char* extension; ///< compared whatever its case
    const char* format;
    const char* written; ///< what is written into such a file; null: nothing
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

/// A file of any other extension, or of none, is one of these.
inline constexpr const Row& anyOther = rows[0];

/// The row of a file by its last extension.
[[nodiscard]] const Row& rowOf(const QString& fileName);
/// What such a file is read as, and what is written into it: an empty one cannot be written.
[[nodiscard]] QByteArray readFormat(const QString& fileName);
[[nodiscard]] QByteArray writeFormat(const QString& fileName);

/// What is offered for opening and for saving: "*.png" and the like.
[[nodiscard]] QStringList openPatterns();
[[nodiscard]] QStringList savePatterns();

} // namespace KORVA_Formats
