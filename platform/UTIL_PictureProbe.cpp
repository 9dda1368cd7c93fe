#include "UTIL_PictureProbe.h"

#include "UTIL_Exif.h"

#include <QIODevice>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <limits>
#include <optional>

namespace {

using Probe = UTIL_PictureProbe;

/// A progressive photograph comes in about ten passes; each one goes over the whole picture.
constexpr int mostPasses = 64;
/// The most pixels of all passes together: about a second's work.
constexpr qint64 mostPixelsPassed = 1'000'000'000;

/// Reads numbers and skips bytes of a device, forwards only, from its start.
class Bytes
{
public:
    explicit Bytes(QIODevice& device) : m_device(device), m_buffer(1 << 16, Qt::Uninitialized)
    {
        m_device.seek(0);
    }

    /// Nothing at the end of the file; the same holds for the functions below.
    std::optional<quint8> byte()
    {
        if (m_at == m_filled && !fill())
            return std::nullopt;
        return quint8(m_buffer[m_at++]);
    }

    QByteArray take(int count)
    {
        QByteArray bytes;
        for (std::optional<quint8> next; count > 0 && (next = byte()); --count)
            bytes.append(char(*next));
        return bytes;
    }

    /// An unsigned number in the byte order of `decode`.
    template <typename Number>
    std::optional<Number> number(Number (*decode)(const void*))
    {
        const QByteArray bytes = take(sizeof(Number));
        if (bytes.size() != qsizetype(sizeof(Number)))
            return std::nullopt;
        return decode(bytes.constData());
    }

    bool skip(qint64 count)
    {
        if (count < 0 || count > left())
            return false;
        if (count <= m_filled - m_at) {
            m_at += count;
            return true;
        }
        const qint64 target = position() + count;
        m_at = m_filled = 0;
        return m_device.seek(target);
    }

    /// Skips up to and including the next byte of this value.
    bool skipBehind(quint8 value)
    {
        for (;;) {
            const qsizetype found = QByteArrayView(m_buffer).first(m_filled).indexOf(char(value), m_at);
            m_at = found >= 0 ? found + 1 : m_filled;
            if (found >= 0)
                return true;
            if (!fill())
                return false;
        }
    }

    [[nodiscard]] qint64 position() const { return m_device.pos() - m_filled + m_at; }
    [[nodiscard]] qint64 left() const { return m_device.size() - position(); }

private:
    bool fill()
    {
        m_at = 0;
        m_filled = qMax<qint64>(0, m_device.read(m_buffer.data(), m_buffer.size()));
        return m_filled > 0;
    }

    QIODevice& m_device;
    QByteArray m_buffer;
    qsizetype m_filled = 0; ///< how much of the buffer holds bytes of the device
    qsizetype m_at = 0;     ///< the index of the next one
};

QSize validSize(qint64 width, qint64 height)
{
    constexpr qint64 most = std::numeric_limits<int>::max();
    return width > 0 && height > 0 && width <= most && height <= most ? QSize(int(width), int(height))
                                                                      : QSize();
}

/// Keeps only the critical chunks and the transparency. All others (texts, profiles, previews) are not
/// shown, and may unpack to a thousand times their size.
void probePng(Bytes& bytes, Probe& probe)
{
    constexpr int frame = 4 + 4 + 4; // length, name and checksum around a chunk's data
    probe.kept.append({0, bytes.position()});
    for (;;) {
        const qint64 start = bytes.position();
        const std::optional<quint32> length = bytes.number<quint32>(qFromBigEndian<quint32>);
        const QByteArray name = bytes.take(4);
        if (!length || name.size() != 4)
            return;
        const qint64 end = start + frame + *length;
        if (name == "IHDR") {
            if (probe.size.isValid()) // a second one; decoders go by the first
                return;
            const std::optional<quint32> width = bytes.number<quint32>(qFromBigEndian<quint32>);
            const std::optional<quint32> height = bytes.number<quint32>(qFromBigEndian<quint32>);
            if (!width || !height)
                return;
            probe.size = validSize(*width, *height);
        }
        const bool critical = name.front() >= 'A' && name.front() <= 'Z';
        if (critical || name == "tRNS") {
            Probe::Range& last = probe.kept.last();
            if (last.start + last.length == start) {
                last.length = end - last.start;
            } else {
                probe.kept.append({start, end - start});
            }
        }
        if (!bytes.skip(end - bytes.position()))
            return;
        if (name == "IEND") {
            probe.sound = true;
            return;
        }
    }
}

/// The next marker; nothing at the end of the file. A stuffed zero and the restart markers belong to the
/// data of a pass.
std::optional<quint8> nextMarker(Bytes& bytes)
{
    while (bytes.skipBehind(0xff)) {
        std::optional<quint8> byte = bytes.byte();
        while (byte == 0xff)
            byte = bytes.byte();
        const bool isRestart = byte >= 0xd0 && byte <= 0xd7;
        if (byte != 0 && !isRestart)
            return byte;
    }
    return std::nullopt;
}

void probeJpeg(Bytes& bytes, Probe& probe)
{
    enum Marker : quint8 {
        Tem = 0x01,
        Sof0 = 0xc0,
        Dht = 0xc4,
        Jpg = 0xc8,
        Dac = 0xcc,
        Sof15 = 0xcf,
        Soi = 0xd8,
        Eoi = 0xd9,
        Sos = 0xda,
        App1 = 0xe1
    };
    constexpr QByteArrayView exifMark("Exif\0\0", 6);
    probe.passes = 0;
    bool isOriented = false;
    for (std::optional<quint8> marker = nextMarker(bytes); marker && *marker != Eoi;
         marker = nextMarker(bytes)) {
        if (*marker == Soi || *marker == Tem)
            continue;
        const std::optional<quint16> length = bytes.number<quint16>(qFromBigEndian<quint16>);
        if (!length)
            return;
        const qint64 end = bytes.position() - 2 + *length;
        if (*marker >= Sof0 && *marker <= Sof15 && *marker != Dht && *marker != Jpg && *marker != Dac) {
            bytes.byte(); // sample precision
            const std::optional<quint16> height = bytes.number<quint16>(qFromBigEndian<quint16>);
            const std::optional<quint16> width = bytes.number<quint16>(qFromBigEndian<quint16>);
            const bool isSecond = probe.size.isValid(); // decoders go by the first
            if (!width || !height || isSecond)
                return;
            probe.size = validSize(*width, *height);
        }
        if (*marker == App1 && !isOriented && *length > 2) {
            const QByteArray note = bytes.take(*length - 2);
            isOriented = note.startsWith(exifMark);
            if (isOriented)
                probe.orientation = exif::orientation(QByteArrayView(note).sliced(exifMark.size()));
        }
        probe.passes += *marker == Sos;
        if (!bytes.skip(end - bytes.position()))
            break;
    }
    const qint64 pixels = qint64(probe.size.width()) * probe.size.height();
    probe.sound = probe.passes > 0 && probe.passes <= mostPasses && probe.size.isValid() &&
                  pixels <= mostPixelsPassed / probe.passes;
}

/// The frames may be larger than the screen that the header gives, and decoders go by either.
void probeGif(Bytes& bytes, Probe& probe)
{
    constexpr int hasColors = 0x80;
    const auto coordinate = [&bytes] { return bytes.number<quint16>(qFromLittleEndian<quint16>); };
    bytes.skip(2); // the rest of the signature
    const std::optional<quint16> width = coordinate();
    const std::optional<quint16> height = coordinate();
    const std::optional<quint8> flags = bytes.byte();
    if (!width || !height || !flags)
        return;
    probe.size = QSize(*width, *height);
    probe.sound = true;
    bytes.skip(2 + (*flags & hasColors ? 3 << ((*flags & 7) + 1) : 0));
    std::optional<quint8> block = bytes.byte();
    while (block == '!') {
        bytes.skip(1);
        for (std::optional<quint8> length = bytes.byte(); length.value_or(0) > 0; length = bytes.byte()) {
            if (!bytes.skip(*length))
                return;
        }
        block = bytes.byte();
    }
    const std::optional<quint16> left = coordinate();
    const std::optional<quint16> top = coordinate();
    const std::optional<quint16> frameWidth = coordinate();
    const std::optional<quint16> frameHeight = coordinate();
    if (block == ',' && left && top && frameWidth && frameHeight)
        probe.size = probe.size.expandedTo(QSize(*left + *frameWidth, *top + *frameHeight));
}

void probeBmp(Bytes& bytes, Probe& probe)
{
    enum Compression : quint32 { Plain = 0, Bits = 3 };
    constexpr quint32 oldHeader = 12;
    const qint64 fileSize = bytes.position() + bytes.left();
    const auto number = [&bytes] { return bytes.number<quint32>(qFromLittleEndian<quint32>); };
    const auto small = [&bytes] { return bytes.number<quint16>(qFromLittleEndian<quint16>); };
    bytes.skip(8);
    const quint32 offset = number().value_or(0);
    const quint32 headerSize = number().value_or(0);
    const bool isOld = headerSize == oldHeader;
    const qint64 width = isOld ? small().value_or(0) : qint32(number().value_or(0));
    const qint64 height = isOld ? qint16(small().value_or(0)) : qint32(number().value_or(0));
    bytes.skip(2); // planes
    const quint16 depth = small().value_or(0);
    const quint32 compression = isOld ? quint32(Plain) : number().value_or(Plain);
    const qint64 packedSize = isOld ? 0 : number().value_or(0);
    bytes.skip(8); // pixels per metre
    probe.hasSpareColors = depth == 1 && !isOld && number().value_or(0) > 2;

    constexpr std::array depths{1, 4, 8, 16, 24, 32};
    probe.size = validSize(width, qAbs(height));
    probe.hasRuns = compression != Plain && compression != Bits;
    if (!probe.size.isValid() || std::find(depths.begin(), depths.end(), depth) == depths.end())
        return;
    const qint64 stride = (width * depth + 31) / 32 * 4;
    const qint64 room = fileSize - offset;
    // Divides, because the product of some headers' numbers would overflow.
    probe.sound = probe.hasRuns ? packedSize <= room : room >= 0 && stride <= room / qAbs(height);
}

/// Many files begin with two zeros. This one is a WBMP only if it ends where its header says.
void probeWbmp(Bytes& bytes, Probe& probe)
{
    constexpr int mostBytes = 5; // of seven bits
    const auto number = [&bytes]() -> qint64 {
        qint64 result = 0;
        for (int i = 0; i < mostBytes; ++i) {
            const std::optional<quint8> byte = bytes.byte();
            if (!byte)
                return 0;
            result = result << 7 | (*byte & 0x7f);
            if (*byte < 0x80)
                return result;
        }
        return 0;
    };
    const qint64 width = number();
    const qint64 height = number();
    const qint64 stride = (width + 7) / 8;
    probe.size = validSize(width, height);
    probe.sound = probe.size.isValid() && bytes.left() % height == 0 && stride == bytes.left() / height;
    if (!probe.sound)
        probe = {};
}

struct Kind
{
    const char* format;
    QByteArrayView signature;
    void (*probe)(Bytes&, Probe&);
};

constexpr Kind kinds[] = {
    {"PNG", "\x89PNG\r\n\x1a\n", probePng},
    {"JPEG", "\xff\xd8", probeJpeg},
    {"GIF", "GIF8", probeGif},
    {"BMP", "BM", probeBmp},
    {"WBMP", QByteArrayView("\0\0", 2), probeWbmp},
};

} // namespace

UTIL_PictureProbe UTIL_PictureProbe::of(QIODevice& device)
{
    UTIL_PictureProbe probe;
    device.seek(0);
    const QByteArray start = device.peek(8);
    for (const Kind& kind : kinds) {
        if (!start.startsWith(kind.signature))
            continue;
        Bytes bytes(device);
        bytes.skip(kind.signature.size());
        probe.format = kind.format;
        kind.probe(bytes, probe);
        break;
    }
    if (probe.kept.isEmpty())
        probe.kept.append({0, device.size()});
    return probe;
}
