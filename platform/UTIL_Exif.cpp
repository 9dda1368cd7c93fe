#include "UTIL_Exif.h"

#include <QTransform>
#include <QtEndian>

namespace {

constexpr int uprightPicture = 1;
constexpr int mostOrientation = 8;

/// Reads numbers in the byte order that the first bytes give; 0 beyond the end.
class Numbers
{
public:
    explicit Numbers(QByteArrayView bytes) : m_bytes(bytes), m_isBig(bytes.startsWith("MM")) {}

    [[nodiscard]] quint16 small(qint64 at) const
    {
        return m_isBig ? decoded<quint16>(at, qFromBigEndian<quint16>)
                       : decoded<quint16>(at, qFromLittleEndian<quint16>);
    }
    [[nodiscard]] quint32 number(qint64 at) const
    {
        return m_isBig ? decoded<quint32>(at, qFromBigEndian<quint32>)
                       : decoded<quint32>(at, qFromLittleEndian<quint32>);
    }

private:
    template <typename Number>
    [[nodiscard]] Number decoded(qint64 at, Number (*decode)(const void*)) const
    {
        return at + qint64(sizeof(Number)) <= m_bytes.size() ? decode(m_bytes.data() + at) : Number(0);
    }

    QByteArrayView m_bytes;
    bool m_isBig;
};

} // namespace

int exif::orientation(QByteArrayView tiff)
{
    constexpr quint16 mark = 42;
    constexpr quint16 orientationTag = 0x0112;
    constexpr quint16 shortType = 3;
    constexpr int entrySize = 12;
    const Numbers numbers(tiff);
    if (!(tiff.startsWith("MM") || tiff.startsWith("II")) || numbers.small(2) != mark)
        return uprightPicture;
    const qint64 directory = numbers.number(4);
    const int entries = numbers.small(directory);
    for (int i = 0; i < entries; ++i) {
        const qint64 entry = directory + 2 + qint64(i) * entrySize;
        if (numbers.small(entry) != orientationTag || numbers.small(entry + 2) != shortType)
            continue;
        const int orientation = numbers.small(entry + 8);
        return orientation >= uprightPicture && orientation <= mostOrientation ? orientation
                                                                               : uprightPicture;
    }
    return uprightPicture;
}

QImage exif::upright(const QImage& image, int orientation)
{
    struct Turn
    {
        bool mirrors;
        bool flips;
        bool rotates; ///< then turns it clockwise by a quarter
    };
    constexpr Turn turns[mostOrientation] = {
        {false, false, false}, {true, false, false}, {true, true, false}, {false, true, false},
        {false, true, true},   {false, false, true}, {true, false, true}, {true, true, true},
    };
    const Turn& turn = turns[orientation - 1];
    const QImage mirrored = turn.mirrors || turn.flips ? image.mirrored(turn.mirrors, turn.flips) : image;
    return turn.rotates ? mirrored.transformed(QTransform().rotate(90)) : mirrored;
}
