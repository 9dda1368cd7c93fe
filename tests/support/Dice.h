#pragma once

#include <QColor>
#include <QRandomGenerator>

namespace support {

/// What a storm of random events decides by: the same for the same seed.
class Dice
{
public:
    explicit Dice(quint32 seed) : m_random(seed) {}

    [[nodiscard]] int below(int limit) { return m_random.bounded(limit); }
    [[nodiscard]] int between(int first, int last) { return m_random.bounded(first, last + 1); }
    [[nodiscard]] bool chance() { return below(2) == 1; }
    [[nodiscard]] QColor color() { return QColor::fromRgb(m_random.generate()); }

private:
    QRandomGenerator m_random;
};

} // namespace support
