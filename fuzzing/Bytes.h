#pragma once

#include <QByteArray>

namespace fuzz {

/// Reads an input as decisions, one after the other. After its end every byte is 0.
class Bytes
{
public:
    explicit Bytes(const QByteArray& bytes) : m_bytes(bytes) {}

    [[nodiscard]] bool atEnd() const { return m_at >= m_bytes.size(); }
    [[nodiscard]] quint8 next() { return atEnd() ? 0 : quint8(m_bytes[m_at++]); }
    /// Two bytes, the high one first.
    [[nodiscard]] int number()
    {
        const int high = next();
        return high << 8 | next();
    }
    /// From 0; one byte.
    [[nodiscard]] int below(int limit) { return next() % limit; }
    /// With both ends, which are less than 256 apart; one byte.
    [[nodiscard]] int between(int first, int last) { return first + below(last - first + 1); }
    [[nodiscard]] bool chance() { return next() & 1; }
    /// As many bytes as there are.
    [[nodiscard]] QByteArray take(qsizetype count)
    {
        const QByteArray taken = m_bytes.mid(m_at, count);
        m_at += taken.size();
        return taken;
    }
    [[nodiscard]] QByteArray rest() { return take(m_bytes.size()); }

private:
    QByteArray m_bytes;
    qsizetype m_at = 0;
};

} // namespace fuzz
