#pragma once

#include <QColor>
#include <QList>
#include <QRect>
#include <QString>

#include <optional>

/// What a GIF file consists of. Its pictures themselves come from the image reader or from QMovie; this
/// tells whether the whole file is sound, and what those keep to themselves. For use in the GUI thread, and
/// in any other after setPixelLimit().
class UTIL_GifParser
{
public:
    enum Scope : int {
        FirstFrame = 0, ///< stops behind the first frame
        WholeFile = 1,
    };

    enum Error : int {
        NoError = 0,
        NotReadable = 1, ///< missing, not a file, not a GIF
        NoFrame = 2,
        TooManyFrames = 3, ///< more than any animation has
        TooLarge = 4,      ///< the picture has more pixels than the platform's limit
        // Above 100: the codes of giflib, for a file that breaks off or is damaged.
    };

    struct Frame
    {
        QRect rect;                ///< where it lies on the screen
        int delay = 0;             ///< milliseconds
        int transparentIndex = -1; ///< -1: none
    };

    explicit UTIL_GifParser(const QString& fileName, int scope = WholeFile);

    /// What holds instead of the platform's limit.
    void setPixelLimit(qint64 pixels) { m_pixelLimit = pixels; }

    /// Reads the file; 0 (NoError) or what is wrong with it. The first frame's pixels are decoded, the
    /// later frames' are only walked through. What the file holds is told afterwards:
    int parse();

    [[nodiscard]] QSize screenSize() const { return m_screenSize; }
    [[nodiscard]] qsizetype frameCount() const { return m_frames.size(); }
    [[nodiscard]] const QList<Frame>& frames() const { return m_frames; }
    /// The first frame's; -1 when it has no transparent colour.
    [[nodiscard]] int transparentIndex() const;
    /// The colour that stands at that index in the first frame's palette; white without one.
    [[nodiscard]] QColor transparentColor() const { return m_transparentColor; }
    /// More than one frame.
    [[nodiscard]] bool isAnimated() const { return m_frames.size() > 1; }
    /// How often an animation is shown again after its first time; 0 for ever, -1 when the file is silent.
    [[nodiscard]] int loopCount() const { return m_loopCount; }

private:
    class Reading;

    [[nodiscard]] qint64 pixelLimit() const;

    QString m_fileName;
    int m_scope;
    std::optional<qint64> m_pixelLimit;
    QSize m_screenSize;
    QList<Frame> m_frames;
    QColor m_transparentColor = Qt::white;
    int m_loopCount = -1;
};
