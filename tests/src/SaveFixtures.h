#pragma once

#include "KORVA_PictureSave.h"
#include "support/Images.h"
#include "support/PictureFiles.h"
#include "support/TestCase.h"

/// What the tests of saving share.
namespace fixtures {

inline const QByteArray oldBytes = "the old file";
constexpr const char* variable = "KIV_LOCAL_DOWNLOAD_PATH";

inline bool saved(const QString& name, const QImage& image, const char* format = "PNG")
{
    return picturesave::replace(
        name, [&](const QString& temporary) { return picturesave::write(image, temporary, format); });
}

inline QImage red()
{
    return support::sheet(QSize(40, 30), Qt::red);
}

/// A download folder with its appwrite, and a folder photos in it, which also is the current one. It goes
/// with the object.
class SaveFolder
{
public:
    SaveFolder()
    {
        QDir(path("")).mkpath("appwrite");
        QDir(path("")).mkdir("photos");
        qputenv(variable, path("").toUtf8());
        QDir::setCurrent(path(""));
    }
    ~SaveFolder() { QDir::setCurrent("/"); }
    SaveFolder(const SaveFolder&) = delete;
    SaveFolder& operator=(const SaveFolder&) = delete;

    [[nodiscard]] QString path(const QString& name) const { return m_folder.filePath(name); }

private:
    QTemporaryDir m_folder;
};

[[nodiscard]] inline QStringList filesIn(const QString& folder)
{
    return QDir(folder).entryList(QDir::Files | QDir::Hidden | QDir::System);
}

} // namespace fixtures
