#include "PictureFiles.h"

#include <QProcess>
#include <QTemporaryDir>

namespace support {

bool convert(const QStringList& arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("MAGICK_THREAD_LIMIT", "1"); // more cost more than they bring on small pictures
    process.setProcessEnvironment(environment);
    process.start("convert", arguments);
    return process.waitForFinished() && process.exitStatus() == QProcess::NormalExit &&
           process.exitCode() == 0;
}

QImage converted(const QString& fileName, const QStringList& more)
{
    const QTemporaryDir folder;
    const QString plain = folder.filePath("plain.ppm");
    const QStringList before{fileName + "[0]", "-auto-orient", "+repage",
                             "-background",    "white",        "-flatten"};
    const QStringList after{"-colorspace", "sRGB", "-depth", "8", plain};
    return convert(before + more + after) ? QImage(plain) : QImage();
}

Distance distance(const QImage& left, const QImage& right)
{
    if (left.size() != right.size() || left.isNull())
        return {};
    Distance result{0, 0};
    for (int y = 0; y < left.height(); ++y)
        for (int x = 0; x < left.width(); ++x) {
            const QRgb a = left.pixel(x, y);
            const QRgb b = right.pixel(x, y);
            for (const int difference : {qRed(a) - qRed(b), qGreen(a) - qGreen(b), qBlue(a) - qBlue(b)}) {
                result.greatest = qMax(result.greatest, qAbs(difference));
                result.mean += qAbs(difference);
            }
        }
    result.mean /= 3.0 * left.width() * left.height();
    return result;
}

QByteArray contents(const QString& fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write(const QString& fileName, const QByteArray& bytes)
{
    QFile file(fileName);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(fileName));
}

QByteArray pngStart(int width, int height)
{
    QByteArray header;
    QDataStream(&header, QIODevice::WriteOnly)
        << qint32(width) << qint32(height) << qint8(8) << qint8(2) << qint8(0) << qint8(0) << qint8(0);
    return "\x89PNG\r\n\x1a\n" + pngChunk("IHDR", header);
}

QByteArray pngChunk(const QByteArray& name, const QByteArray& data)
{
    quint32 sum = 0xffffffff;
    for (const char byte : name + data) {
        sum ^= quint8(byte);
        for (int bit = 0; bit < 8; ++bit)
            sum = sum & 1 ? sum >> 1 ^ 0xedb88320 : sum >> 1;
    }
    QByteArray chunk;
    QDataStream stream(&chunk, QIODevice::WriteOnly);
    stream << quint32(data.size());
    stream.writeRawData(name.constData(), int(name.size()));
    stream.writeRawData(data.constData(), int(data.size()));
    stream << ~sum;
    return chunk;
}

QByteArray deflated(const QByteArray& data)
{
    constexpr int ownHeader = 4; // qCompress() puts the size in front
    return qCompress(data, 9).sliced(ownHeader);
}

QByteArray withOrientation(const QByteArray& jpeg, int orientation)
{
    QByteArray note;
    QDataStream stream(&note, QIODevice::WriteOnly);
    stream << quint16(0xffe1) << quint16(34);
    stream.writeRawData("Exif\0\0MM\0*", 10);
    stream << quint32(8) << quint16(1)                    // one entry
           << quint16(0x0112) << quint16(3) << quint32(1) // the orientation, one short number
           << quint16(orientation) << quint16(0) << quint32(0);
    return jpeg.first(2) + note + jpeg.sliced(2);
}

QByteArray gifOfFrames(QSize screen, int frames)
{
    QByteArray gif("GIF89a");
    QDataStream stream(&gif, QIODevice::Append);
    stream.setByteOrder(QDataStream::LittleEndian);
    stream << quint16(screen.width()) << quint16(screen.height()) << quint8(0x80) << quint16(0);
    gif += QByteArray("\0\0\0\xff\xff\xff", 6);
    return gif + QByteArray(",\0\0\0\0\1\0\1\0\0\2\2\x4c\1\0", 15).repeated(frames) + ';';
}

} // namespace support
