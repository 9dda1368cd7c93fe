#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <vector>

namespace fuzz {

using Input = std::vector<std::uint8_t>;

/// Makes inputs of others: the same ones for the same seed.
class Mutator
{
public:
    explicit Mutator(std::uint32_t seed) : m_random(seed) {}

    /// From 0; `limit` is positive.
    [[nodiscard]] std::size_t below(std::size_t limit) { return m_random() % limit; }
    /// One of them with some changes, and perhaps with the end of another one.
    [[nodiscard]] Input made(const std::vector<Input>& corpus);

private:
    void change(Input& input, const Input& other);

    std::mt19937 m_random;
};

} // namespace fuzz
