#pragma once

#include <QColor>
#include <QList>
#include <QRect>
#include <QString>

#include <optional>

/// Parses a GIF file: tells whether all of it is sound, and gives details that the image reader and QMovie
/// do not. Those two read the pictures themselves. For the GUI thread; for any other thread after
/// setPixelLimit().
class UTIL_GifParser
{
public:
    enum Scope : int {
        FirstFrame = 0, ///< stops after the first frame
        WholeFile = 1,
    };

    enum Error : int {
        NoError = 0,
        NotReadable = 1, ///< missing, not a file, not a GIF
        NoFrame = 2,
        TooManyFrames = 3, ///< more than any animation has
        TooLarge = 4,      ///< the picture has more pixels than the platform's limit
        // Above 100: the codes of giflib, for a file that is cut short or damaged.
    };

    struct Frame
    {
        QRect rect;                ///< its place on the screen
        int delay = 0;             ///< milliseconds
        int transparentIndex = -1; ///< -1: none
    };

    explicit UTIL_GifParser(const QString& fileName, int scope = WholeFile);

    /// Replaces the platform's limit.
    void setPixelLimit(qint64 pixels) { m_pixelLimit = pixels; }

    /// Reads the file. 0 (NoError), or what is wrong with it. The first frame's pixels are decoded, those
    /// of later frames only skipped. The functions below then tell what the file holds.
    int parse();

    [[nodiscard]] QSize screenSize() const { return m_screenSize; }
    [[nodiscard]] qsizetype frameCount() const { return m_frames.size(); }
    [[nodiscard]] const QList<Frame>& frames() const { return m_frames; }
    /// The first frame's transparent index; -1 when it has none.
    [[nodiscard]] int transparentIndex() const;
    /// The colour at that index in the first frame's palette; white if there is none.
    [[nodiscard]] QColor transparentColor() const { return m_transparentColor; }
    /// More than one frame.
    [[nodiscard]] bool isAnimated() const { return m_frames.size() > 1; }
    /// How often an animation is repeated after its first run; 0 for ever, -1 when the file does not say.
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
