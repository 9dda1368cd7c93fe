#pragma once

#include <QImage>
#include <QPixmap>
#include <QString>

/// Reads a picture file. The pixel limit of UTIL_Platform is held against the header, before a pixel is
/// decoded.
class UTIL_ImageReader
{
public:
    enum Status : int {
        Ok = 0,
        TooLarge = -100, ///< more pixels than the platform's limit
        Failed = 1,      ///< missing, unreadable, damaged, or not of the format asked for
    };

    /// `format` names the one format to accept ("PNG"); null recognises the file by its content, whatever
    /// its name.
    explicit UTIL_ImageReader(const QString& fileName, const char* format = nullptr);

    /// The picture of a file in one call; null when it cannot be read.
    [[nodiscard]] static QPixmap pixmap(const QString& fileName, const char* format = nullptr);

    /// Reads the file; true when image() holds the picture.
    bool read();
    [[nodiscard]] int status() const { return m_status; }
    /// The picture read last; null after a failure.
    [[nodiscard]] const QImage& image() const { return m_image; }

private:
    QString m_fileName;
    QByteArray m_format;
    Status m_status = Failed;
    QImage m_image;
};
