#pragma once

#include "KORVA_WorkingLimits.h"
#include "UTIL_ImageReader.h"

#include <QImage>

#include <functional>
#include <optional>

/// A picture file on its way in. Checking it decodes it; opening it then takes what the check decoded, as
/// long as the file was not changed in between and the outcome would be the same.
class KORVA_PictureFile
{
public:
    enum Scale {
        Full,    ///< the picture as it is
        Working, ///< what may be decoded smaller comes in its working size: enough for the canvas
    };

    /// What a picture was before it was decoded and made fit.
    struct Origin
    {
        QSize size;           ///< upright, in pixels
        bool isWhole = false; ///< every pixel of every frame came through in its colour
    };

    KORVA_PictureFile() = default;
    explicit KORVA_PictureFile(const QString& name, Scale scale = Working);

    [[nodiscard]] const QString& name() const { return m_name; }
    /// Whether it is read in no time: a short file with a small picture, or no file at all.
    [[nodiscard]] bool isSmall() const;

    /// A picture in memory, recognised by its content; null when it cannot be decoded. A great one comes in
    /// its working size.
    [[nodiscard]] static QImage decoded(const QByteArray& data, const KORVA_WorkingLimits& limits,
                                        Origin* origin = nullptr);

    /// What is enough for the canvas; the classic limits unless told.
    void setLimits(const KORVA_WorkingLimits& limits) { m_limits = limits; }
    /// What holds instead of the platform's, which only the GUI thread may ask for.
    void setAllowance(const UTIL_ImageReader::Allowance& allowance) { m_allowance = allowance; }
    /// Asked again and again while the file is read; nothing can be read once it says true.
    void setIsCancelled(const std::function<bool()>& isCancelled) { m_isCancelled = isCancelled; }

    /// Whether the file can be read as `format`, or as whatever it is when that is null: 0, -100 when it
    /// has too many pixels to be decoded, another number for every other failure.
    int check(const char* format);
    /// The picture, read by the file's extension: a GIF with all its frames sound and its transparent
    /// colour shown as any other, a JPEG in the working depth, anything else by its content. Null when it
    /// cannot be read.
    [[nodiscard]] QImage take();
    /// What the picture that take() gave was in the file.
    [[nodiscard]] const Origin& origin() const { return m_origin; }

private:
    void examine();
    [[nodiscard]] UTIL_ImageReader reader(const char* format) const;

    QString m_name;
    Scale m_scale = Working;
    KORVA_WorkingLimits m_limits;
    std::optional<UTIL_ImageReader::Allowance> m_allowance;
    std::function<bool()> m_isCancelled;
    QImage m_checked;                       ///< what check() decoded; null when take() must decode itself
    QString m_version;                      ///< of the file when it was examined; null when it was not
    bool m_isDamaged = false;               ///< a GIF that is not sound to its end
    std::optional<QRgb> m_transparentColor; ///< a GIF's
    Origin m_origin;
};
