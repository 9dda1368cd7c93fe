#pragma once

#include "KORVA_PictureSave.h"
#include "support/Images.h"
#include "support/PictureFiles.h"
#include "support/SaveTest.h"

/// What the tests of saving share.
namespace fixtures {

inline const QByteArray oldBytes = "the old file";
constexpr const char* variable = "KIV_LOCAL_DOWNLOAD_PATH";

inline bool saved(const QString& name, const QImage& image, const char* format = "PNG")
{
    return picturesave::replace(name, [&] { return picturesave::encoded(image, format); });
}

inline QImage red()
{
    return support::sheet(QSize(40, 30), Qt::red);
}

[[nodiscard]] inline QStringList filesIn(const QString& folder)
{
    return QDir(folder).entryList(QDir::Files | QDir::Hidden | QDir::System);
}

} // namespace fixtures
