#pragma once

#include <QtGui>

namespace support {

/// Runs ImageMagick's convert: the independent maker and reader of picture files. False when it complains.
[[nodiscard]] bool convert(const QStringList& arguments);
/// What convert makes of a file (the right way up, laid on white, eight bits a channel), after `more`
/// operations; null when it cannot read it.
[[nodiscard]] QImage converted(const QString& fileName, const QStringList& more = {});

/// How far two pictures of one size are apart: the greatest difference of a channel, and the mean of all.
struct Distance
{
    int greatest = 255;
    double mean = 255;
};
[[nodiscard]] Distance distance(const QImage& left, const QImage& right);

[[nodiscard]] QByteArray contents(const QString& fileName);
void write(const QString& fileName, const QByteArray& bytes);

/// Parts of handmade PNG files.
[[nodiscard]] QByteArray pngStart(int width, int height);
[[nodiscard]] QByteArray pngChunk(const QByteArray& name, const QByteArray& data);
/// The data as zlib packs it.
[[nodiscard]] QByteArray deflated(const QByteArray& data);

/// The JPEG with a note of how its camera was held: 1 to 8, as EXIF numbers them.
[[nodiscard]] QByteArray withOrientation(const QByteArray& jpeg, int orientation);
/// A GIF of so many frames of 1 × 1 pixel on a screen of the given size.
[[nodiscard]] QByteArray gifOfFrames(QSize screen, int frames);

} // namespace support
