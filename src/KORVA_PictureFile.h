#pragma once

#include "KORVA_WorkingLimits.h"
#include "UTIL_ImageReader.h"

#include <QImage>

#include <functional>
#include <optional>

/// A picture file that is being opened. check() decodes it. take() then uses the decoded picture, unless
/// the file was changed in between or must be decoded in another way.
class KORVA_PictureFile
{
public:
    enum Scale {
        Full,    ///< the picture in its own size
        Working, ///< the working size, if decoding at that size is possible; enough for the canvas
    };

    /// Facts about a picture in its file.
    struct Origin
    {
        QSize size;           ///< upright, in pixels
        bool isWhole = false; ///< every pixel of every frame was read in its full colour
    };

    KORVA_PictureFile() = default;
    explicit KORVA_PictureFile(const QString& name, Scale scale = Working);

    [[nodiscard]] const QString& name() const { return m_name; }
    /// Whether it can be read at once: a short file with a small picture, or no file at all.
    [[nodiscard]] bool isSmall() const;
    /// Whether a picture of this size is decoded without a noticeable delay.
    [[nodiscard]] static bool isSmall(QSize size);

    /// Decodes a picture in memory, which is recognised by its content. Null when it cannot be decoded. A
    /// large picture comes in its working size.
    [[nodiscard]] static QImage decoded(const QByteArray& data, const KORVA_WorkingLimits& limits,
                                        const std::optional<QList<QByteArray>>& formats = {},
                                        Origin* origin = nullptr);

    /// Sets the size and depth that suffice for the canvas; the classic limits unless set.
    void setLimits(const KORVA_WorkingLimits& limits) { m_limits = limits; }
    /// Replaces the platform's allowance, for which only the GUI thread may ask.
    void setAllowance(const UTIL_ImageReader::Allowance& allowance) { m_allowance = allowance; }
    /// See UTIL_ImageReader::setOwnFormats().
    void setFormats(const std::optional<QList<QByteArray>>& formats) { m_formats = formats; }
    /// `isCancelled` is called again and again while the file is read. Once it returns true nothing more
    /// can be read.
    void setIsCancelled(const std::function<bool()>& isCancelled) { m_isCancelled = isCancelled; }

    /// Whether the file can be read as `format`; null accepts any format. 0 if it can, -100 if it has too
    /// many pixels to be decoded, another number for every other failure.
    int check(const char* format);
    /// The picture, read as the file's extension says. A GIF must have only sound frames, and its
    /// transparent colour is shown like any other. A JPEG comes in the working depth. Any other file is
    /// recognised by its content. Null when it cannot be read.
    [[nodiscard]] QImage take();
    /// Facts about the picture that take() returned.
    [[nodiscard]] const Origin& origin() const { return m_origin; }

private:
    void examine();
    [[nodiscard]] UTIL_ImageReader reader(const char* format) const;

    QString m_name;
    Scale m_scale = Working;
    KORVA_WorkingLimits m_limits;
    std::optional<UTIL_ImageReader::Allowance> m_allowance;
    std::optional<QList<QByteArray>> m_formats;
    std::function<bool()> m_isCancelled;
    QImage m_checked;                       ///< decoded by check(); null if take() must decode itself
    QString m_version;                      ///< of the file when it was examined; null if it was not
    bool m_isDamaged = false;               ///< a GIF that is not sound to its end
    std::optional<QRgb> m_transparentColor; ///< a GIF's
    Origin m_origin;
};
