#include "KORVA_History.h"

#include "KORVA_Assert.h"

#include <QMutex>
#include <QThreadPool>

#include <algorithm>
#include <cstring>
#include <functional>
#include <utility>

namespace {

constexpr QImage::Format format = QImage::Format_RGB32;
constexpr qsizetype atOnce = 1 << 20; // bytes; so few are compressed without a noticeable wait

const QRgb* row(const QImage& image, int y)
{
    return reinterpret_cast<const QRgb*>(image.constScanLine(y));
}

size_t rowBytes(int width)
{
    return size_t(width) * sizeof(QRgb);
}

/// The smallest rectangle outside which two pictures of one size agree.
QRect difference(const QImage& a, const QImage& b)
{
    const int width = a.width();
    const auto isSame = [&](int y) { return std::memcmp(row(a, y), row(b, y), rowBytes(width)) == 0; };
    int top = 0;
    int bottom = a.height() - 1;
    while (top <= bottom && isSame(top))
        ++top;
    while (bottom > top && isSame(bottom))
        --bottom;
    int left = width;
    int right = -1;
    for (int y = top; y <= bottom; ++y) {
        const QRgb* const first = row(a, y);
        const QRgb* const second = row(b, y);
        left = int(std::mismatch(first, first + left, second).first - first);
        for (int x = width - 1; x > right; --x) {
            if (first[x] != second[x])
                right = x;
        }
    }
    return {QPoint(left, top), QPoint(right, bottom)};
}

/// The exclusive or within a rectangle, row by row.
QByteArray exclusiveOr(const QImage& a, const QImage& b, const QRect& rect)
{
    QByteArray bytes(qsizetype(rowBytes(rect.width())) * rect.height(), Qt::Uninitialized);
    auto* to = reinterpret_cast<QRgb*>(bytes.data());
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        const QRgb* const first = row(a, y) + rect.left();
        const QRgb* const second = row(b, y) + rect.left();
        to = std::transform(first, first + rect.width(), second, to, std::bit_xor<>());
    }
    return bytes;
}

QByteArray bytesOf(const QImage& image)
{
    QByteArray bytes;
    bytes.reserve(qsizetype(rowBytes(image.width())) * image.height());
    for (int y = 0; y < image.height(); ++y)
        bytes.append(reinterpret_cast<const char*>(row(image, y)), qsizetype(rowBytes(image.width())));
    return bytes;
}

} // namespace

/// Bytes that are compressed some time after they were put in.
class KORVA_History::Pixels
{
public:
    static std::shared_ptr<Pixels> of(const QByteArray& bytes)
    {
        auto pixels = std::make_shared<Pixels>();
        pixels->m_bytes = bytes;
        if (bytes.size() <= atOnce)
            pixels->compress();
        else
            QThreadPool::globalInstance()->start([pixels] { pixels->compress(); });
        return pixels;
    }

    [[nodiscard]] QByteArray bytes() const
    {
        const QMutexLocker lock(&m_mutex);
        return m_isCompressed ? qUncompress(m_bytes) : m_bytes;
    }
    /// 0 until they are compressed.
    [[nodiscard]] qint64 size() const
    {
        const QMutexLocker lock(&m_mutex);
        return m_isCompressed ? m_bytes.size() : 0;
    }

private:
    void compress()
    {
        constexpr int quickly = 1;
        const QByteArray smaller = qCompress(m_bytes, quickly); // nothing else changes it
        const QMutexLocker lock(&m_mutex);
        m_bytes = smaller;
        m_isCompressed = true;
    }

    mutable QMutex m_mutex;
    QByteArray m_bytes;
    bool m_isCompressed = false;
};

struct KORVA_History::Step
{
    QSize otherSize;                ///< of the picture on the other side if it differs, else empty
    QRect changed;                  ///< if the size is the same
    std::shared_ptr<Pixels> pixels; ///< the picture on the other side, or the exclusive or
};

KORVA_History::KORVA_History() = default;
KORVA_History::KORVA_History(const KORVA_History& other) = default;
KORVA_History& KORVA_History::operator=(const KORVA_History& other) = default;
KORVA_History::~KORVA_History() = default;

void KORVA_History::setLimits(int steps, qint64 mostBytes)
{
    m_mostSteps = qMax(1, steps);
    m_mostBytes = qMax(qint64(0), mostBytes);
    trim();
}

void KORVA_History::clear()
{
    m_steps.clear();
    m_undone = 0;
}

bool KORVA_History::isChange(const QImage& before, const QImage& after)
{
    if (before.size() != after.size())
        return true;
    return before.cacheKey() != after.cacheKey() &&
           !difference(before.convertToFormat(format), after.convertToFormat(format)).isEmpty();
}

void KORVA_History::add(const QImage& before, const QImage& after)
{
    if (before.cacheKey() == after.cacheKey())
        return;
    const QImage from = before.convertToFormat(format);
    const QImage to = after.convertToFormat(format);
    Step step;
    if (from.size() != to.size()) {
        step = {from.size(), {}, Pixels::of(bytesOf(from))};
    } else {
        const QRect changed = difference(from, to);
        if (changed.isEmpty())
            return;
        step = {{}, changed, Pixels::of(exclusiveOr(from, to, changed))};
    }
    m_steps.erase(m_steps.end() - std::ptrdiff_t(std::exchange(m_undone, 0)), m_steps.end());
    m_steps.push_back(std::move(step));
    trim();
}

bool KORVA_History::canUndo() const
{
    return m_undone < m_steps.size();
}

bool KORVA_History::canRedo() const
{
    return m_undone > 0;
}

QImage KORVA_History::undo(const QImage& now)
{
    return canUndo() ? walked(m_steps[m_steps.size() - ++m_undone], now) : now;
}

QImage KORVA_History::redo(const QImage& now)
{
    return canRedo() ? walked(m_steps[m_steps.size() - m_undone--], now) : now;
}

QImage KORVA_History::walked(Step& step, const QImage& now)
{
    const QImage from = now.convertToFormat(format);
    const QByteArray bytes = step.pixels->bytes();
    const auto* pixels = reinterpret_cast<const QRgb*>(bytes.constData());
    if (step.changed.isEmpty()) {
        QImage other(step.otherSize, format);
        for (int y = 0; y < other.height(); ++y, pixels += other.width())
            std::memcpy(other.scanLine(y), pixels, rowBytes(other.width()));
        step = {from.size(), {}, Pixels::of(bytesOf(from))};
        return other;
    }
    KORVA_ASSERT(from.rect().contains(step.changed));
    QImage other = from;
    for (int y = step.changed.top(); y <= step.changed.bottom(); ++y) {
        QRgb* const to = reinterpret_cast<QRgb*>(other.scanLine(y)) + step.changed.left();
        std::transform(to, to + step.changed.width(), pixels, to, std::bit_xor<>());
        pixels += step.changed.width();
    }
    return other;
}

qint64 KORVA_History::bytes() const
{
    qint64 all = 0;
    for (const Step& step : m_steps)
        all += step.pixels->size();
    return all;
}

// From the middle of the steps, the next one in either direction stays.
void KORVA_History::trim()
{
    qint64 all = bytes();
    while (m_steps.size() > 1 && m_undone < m_steps.size() - 1 &&
           (m_steps.size() > size_t(m_mostSteps) || all > m_mostBytes)) {
        all -= m_steps.front().pixels->size();
        m_steps.erase(m_steps.begin());
    }
}
