#pragma once

#include "UTIL_ImageReader.h"

#include <QLabel>

#include <memory>

class QMovie;

/// Shows a picture in the middle, as large as the display allows but no larger than the picture is, smooth
/// and on the skin's surface where it is transparent.
///
/// An animation runs while the display is on the screen; hidden, it stands still and costs nothing.
class IMV_UI_PhotoDisplay : public QLabel
{
    Q_OBJECT

public:
    /// A null image leaves the display empty.
    explicit IMV_UI_PhotoDisplay(const QImage& image, QWidget* parent = nullptr);
    /// The file is read once the display is on the screen, and only as large as it is shown. One that
    /// cannot be read, such as the empty name, is stood for by a mark.
    explicit IMV_UI_PhotoDisplay(const QString& fileName, QWidget* parent = nullptr);
    ~IMV_UI_PhotoDisplay() override;

    /// For a reader: the size in which a picture is wanted for a display of the given size.
    [[nodiscard]] static UTIL_ImageReader::Reduction reductionTo(QSize display);

    /// Takes the place of whatever was shown.
    void setImage(const QImage& image);
    /// Plays a GIF with its own delays, as often as it says; its last frame stays. What cannot be played
    /// changes nothing.
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

    void readFile();
    void setPlaying(bool isPlaying);
    void render();

    Content m_content;
    QString m_fileName;
    QImage m_image;
    std::unique_ptr<QMovie> m_movie; ///< null when nothing is played
};
