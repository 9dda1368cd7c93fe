#pragma once

#include "UTIL_ImageReader.h"

#include <QLabel>

#include <memory>

class QMovie;

/// A display with a picture in its middle. The picture is as large as the display allows, but not enlarged;
/// it is scaled smoothly, and the skin's surface shows through its transparent parts.
///
/// An animation runs while the display is on the screen. While hidden it stands still and costs nothing.
class IMV_UI_PhotoDisplay : public QLabel
{
    Q_OBJECT

public:
    /// A null image leaves the display empty.
    explicit IMV_UI_PhotoDisplay(const QImage& image, QWidget* parent = nullptr);
    /// The file is read once the display is on the screen, and only as large as it is shown. A mark stands
    /// for a file that cannot be read, such as one with an empty name.
    explicit IMV_UI_PhotoDisplay(const QString& fileName, QWidget* parent = nullptr);
    ~IMV_UI_PhotoDisplay() override;

    /// For UTIL_ImageReader: the size in which a display of the given size wants a picture.
    [[nodiscard]] static UTIL_ImageReader::Reduction reductionTo(QSize display);

    /// Shows this image instead of whatever was shown.
    void setImage(const QImage& image);
    /// Shows a file instead of whatever was shown, as soon as the display is on the screen. It is read
    /// again when the display grows, and an animated GIF plays.
    void setFile(const QString& fileName);
    /// Plays a GIF with its own delays, as often as the file says; its last frame stays. A file that cannot
    /// be played changes nothing.
    void loadGifAnimation(const QString& fileName);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    enum class Content {
        Image,      ///< m_image, which may be null
        UnreadFile, ///< m_fileName, still to be read
        Unreadable, ///< the mark
    };

    void readSoon();
    void readFile();
    void setPlaying(bool isPlaying);
    void render();

    Content m_content;
    QString m_fileName;
    QImage m_image;
    QSize m_readFor;                 ///< the display's size when the file was read
    bool m_isOwn = false;            ///< setFile() gave it
    std::unique_ptr<QMovie> m_movie; ///< null when nothing is played
};
