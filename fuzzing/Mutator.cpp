#include "Mutator.h"

#include <algorithm>

namespace fuzz {

namespace {

constexpr std::size_t longest = 1 << 16;
constexpr std::size_t mostChanges = 6;

} // namespace

Input Mutator::made(const std::vector<Input>& corpus)
{
    Input input = corpus[below(corpus.size())];
    const Input& other = corpus[below(corpus.size())];
    for (std::size_t changes = 1 + below(mostChanges); changes > 0; --changes)
        change(input, other);
    if (input.size() > longest)
        input.resize(longest);
    return input;
}

void Mutator::change(Input& input, const Input& other)
{
    enum Change { Cut, Insert, FlipBit, SetByte, SetEdge, Remove, Repeat, Splice, Changes };
    static constexpr std::uint8_t edges[] = {0, 1, 0x7f, 0x80, 0xff};
    constexpr std::size_t longestPart = 64;
    const auto byte = [this] { return std::uint8_t(below(0x100)); };
    if (input.empty()) {
        input.push_back(byte());
        return;
    }
    const std::size_t at = below(input.size());
    const std::size_t end = std::min(input.size(), at + 1 + below(longestPart));
    const auto place = [&input](std::size_t index) { return input.begin() + std::ptrdiff_t(index); };
    switch (Change(below(Changes))) {
    case Cut:
        if (below(4) == 0) // rarely, so that something is left to change
            input.resize(at);
        break;
    case Insert:
        input.insert(place(at), byte());
        break;
    case FlipBit:
        input[at] ^= std::uint8_t(1U << below(8));
        break;
    case SetByte:
        input[at] = byte();
        break;
    case SetEdge:
        input[at] = edges[below(std::size(edges))];
        break;
    case Remove:
        input.erase(place(at), place(end));
        break;
    case Repeat: {
        const Input part(place(at), place(end));
        input.insert(place(at), part.begin(), part.end());
        break;
    }
    case Splice:
        input.resize(at);
        if (!other.empty())
            input.insert(input.end(), other.begin() + std::ptrdiff_t(below(other.size())), other.end());
        break;
    case Changes:
        break;
    }
}

} // namespace fuzz
