#pragma once

#include <QImage>
#include <QPixmap>
#include <QString>

#include <functional>
#include <limits>
#include <optional>

class QIODevice;

struct UTIL_PictureProbe;
class UTIL_PictureSource;

/// Reads a picture from a file or from memory: PNG, JPEG, GIF, BMP, WBMP, and other formats that the host
/// allows. The picture comes the right way up, as its camera noted.
///
/// The header is checked against the pixel limit before a pixel is decoded. A file that is cut short, or
/// made to exhaust the reader, is a failure like any other. Nothing is logged, and no setting of the
/// program is changed or relied on. For the GUI thread; for any other thread after setAllowance().
class UTIL_ImageReader
{
public:
    enum Status : int {
        Ok = 0,
        TooLarge = -100, ///< more pixels than the platform's limit
        Failed = 1,      ///< missing, unreadable, damaged, or not of the format asked for
    };

    /// The limits that UTIL_Platform sets for reading.
    struct Allowance
    {
        qint64 pixels = 0; ///< the most that a picture may have
        QList<QByteArray> otherFormats;

        /// Asks the platform; in the GUI thread only.
        [[nodiscard]] static Allowance ofPlatform();
    };

    /// Gives the wanted size of a picture of the given size; no greater in either direction.
    using Reduction = std::function<QSize(QSize)>;

    /// `format` names the only format to accept ("PNG"). Null recognises the picture by its content,
    /// whatever its name.
    explicit UTIL_ImageReader(const QString& fileName, const char* format = nullptr);
    [[nodiscard]] static UTIL_ImageReader fromData(const QByteArray& data, const char* format = nullptr);

    /// The picture of a file in one call; null when it cannot be read.
    [[nodiscard]] static QPixmap pixmap(const QString& fileName, const char* format = nullptr);

    /// Whether two pictures have the same pixels, compared in full colour depth, whatever their formats.
    [[nodiscard]] static bool isSame(const QImage& left, const QImage& right);

    /// `isCancelled` is called again and again while the file is read. Reading fails as soon as it returns
    /// true.
    void setIsCancelled(const std::function<bool()>& isCancelled) { m_isCancelled = isCancelled; }
    /// Replaces the platform's allowance.
    void setAllowance(const Allowance& allowance) { m_allowance = allowance; }
    /// Of PNG, JPEG, GIF, BMP and WBMP, reads only these; nothing, as at first, reads all five.
    void setOwnFormats(const std::optional<QList<QByteArray>>& formats) { m_ownFormats = formats; }
    /// The most pixels that reading may go over, counting those of every pass. A picture that needs more is
    /// too large. A JPEG in one pass that is read reduced costs little and is never too large.
    void setWorkLimit(qint64 pixels) { m_workLimit = pixels; }
    /// "16" asks for a picture with 16 bits per pixel; anything else has no effect.
    void setParameters(const char* parameters) { m_parameters = parameters; }
    /// Reads the picture in the wanted size if that saves memory: for JPEG, and for any picture with
    /// millions of pixels. Each pixel is then the mean of those that it covers, laid on `background` (a PNG
    /// always on white). Any other picture comes in its own size.
    void setReduction(const Reduction& reduction, QRgb background = 0xffffffff);

    /// Reads the picture; true when image() holds it.
    bool read();
    [[nodiscard]] int status() const { return m_status; }
    /// The picture read last; null after a failure.
    [[nodiscard]] const QImage& image() const { return m_image; }
    /// The size of the picture in the file, upright; invalid when it was not found.
    [[nodiscard]] QSize sourceSize() const { return m_sourceSize; }
    /// Whether image() is everything that the file holds: its only frame, not scaled, in no fewer colours.
    [[nodiscard]] bool isWhole() const { return m_isWhole; }

private:
    [[nodiscard]] Status readFrom(QIODevice& device);
    [[nodiscard]] Status readOther(QIODevice& device, const Allowance& allowance);
    [[nodiscard]] QImage decoded(UTIL_PictureSource& source, const UTIL_PictureProbe& probe,
                                 const std::optional<QSize>& target);

    QString m_fileName;
    QByteArray m_data;
    bool m_isInMemory = false;
    QByteArray m_format;
    QByteArray m_parameters;
    std::function<bool()> m_isCancelled;
    std::optional<Allowance> m_allowance;
    std::optional<QList<QByteArray>> m_ownFormats;
    qint64 m_workLimit = std::numeric_limits<qint64>::max();
    Reduction m_reduction;
    QRgb m_background = 0xffffffff;
    Status m_status = Failed;
    QImage m_image;
    QSize m_sourceSize;
    bool m_isWhole = false;
};
