#include "UTIL_JpegBlocks.h"

#include <jerror.h>

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>

namespace {

using Bytes = std::vector<std::uint8_t>;

/// The library's routines load sixteen bytes at once.
struct alignas(32) Block
{
    JBLOCK coefficients;
};

/// Stands before a coefficient of two bytes.
constexpr std::uint8_t isLong = 0x80;

/// Packs a block: one bit per coefficient says whether it is not zero; then come those coefficients, in one
/// byte each if they fit. Most blocks have few, and small ones.
void pack(const Block& block, Bytes& packed)
{
    constexpr int each = sizeof(std::uint64_t) / sizeof(JCOEF);
    constexpr size_t most = sizeof(std::uint64_t) + DCTSIZE2 * (1 + sizeof(JCOEF));
    const size_t start = packed.size();
    packed.resize(start + most);
    std::uint64_t places = 0;
    std::uint8_t* to = packed.data() + start + sizeof(places);
    for (int first = 0; first < DCTSIZE2; first += each) {
        std::uint64_t some = 0;
        std::memcpy(&some, block.coefficients + first, sizeof(some));
        if (some == 0)
            continue;
        for (int i = first; i < first + each; ++i) {
            const JCOEF value = block.coefficients[i];
            if (value == 0)
                continue;
            places |= std::uint64_t(1) << i;
            if (value >= -127 && value <= 127) {
                *to++ = std::uint8_t(value);
            } else {
                *to++ = isLong;
                std::memcpy(to, &value, sizeof(value));
                to += sizeof(value);
            }
        }
    }
    std::memcpy(packed.data() + start, &places, sizeof(places));
    packed.resize(size_t(to - packed.data()));
}

/// Unpacks into a block of zeros. Returns where the next packed block begins.
const std::uint8_t* unpack(const std::uint8_t* from, Block& block)
{
    std::uint64_t places = 0;
    std::memcpy(&places, from, sizeof(places));
    from += sizeof(places);
    for (; places != 0; places &= places - 1) {
        JCOEF& value = block.coefficients[std::countr_zero(places)];
        if (*from != isLong) {
            value = JCOEF(std::int8_t(*from++));
        } else {
            std::memcpy(&value, from + 1, sizeof(value));
            from += 1 + sizeof(value);
        }
    }
    return from;
}

} // namespace

/// The blocks of one component: some rows are in use, all others packed. A row that was never written is
/// all zeros.
class UTIL_JpegBlocks::Array
{
public:
    Array(JDIMENSION blocks, JDIMENSION rows, JDIMENSION mostAtOnce)
        : m_blocks(blocks), m_packed(rows), m_window(size_t(blocks) * mostAtOnce)
    {
        for (JDIMENSION i = 0; i < mostAtOnce; ++i)
            m_rows.push_back(&m_window[size_t(i) * blocks].coefficients);
    }

    /// Null when there is no memory left. Valid until the next call.
    JBLOCKARRAY rows(JDIMENSION first, JDIMENSION count, bool isWritten) noexcept
    {
        try {
            if (first != m_first || count != m_count) {
                put();
                m_first = first;
                m_count = count;
                for (JDIMENSION i = 0; i < count; ++i)
                    take(i);
            }
            m_isWritten = m_isWritten || isWritten;
            return m_rows.data();
        } catch (...) {
            return nullptr;
        }
    }

    [[nodiscard]] bool has(JDIMENSION first, JDIMENSION count) const
    {
        return count <= m_rows.size() && first <= m_packed.size() && count <= m_packed.size() - first;
    }

private:
    void put()
    {
        if (!m_isWritten)
            return;
        m_isWritten = false;
        for (JDIMENSION i = 0; i < m_count; ++i) {
            m_packing.clear();
            for (const Block *block = row(i), *end = block + m_blocks; block != end; ++block)
                pack(*block, m_packing);
            m_packed[m_first + i].clear();
            m_packed[m_first + i].shrink_to_fit();
            m_packed[m_first + i] = m_packing; // of no greater capacity than it takes
        }
    }

    void take(JDIMENSION i)
    {
        Block* block = row(i);
        std::memset(static_cast<void*>(block), 0, m_blocks * sizeof(Block));
        const Bytes& packed = m_packed[m_first + i];
        if (packed.empty())
            return;
        const std::uint8_t* from = packed.data();
        for (const Block* const end = block + m_blocks; block != end; ++block)
            from = unpack(from, *block);
    }

    Block* row(JDIMENSION i) { return &m_window[size_t(i) * m_blocks]; }

    JDIMENSION m_blocks; ///< in a row
    std::vector<Bytes> m_packed;
    std::vector<Block> m_window;
    std::vector<JBLOCKROW> m_rows; ///< of the window
    JDIMENSION m_first = 0;        ///< the first row in use
    JDIMENSION m_count = 0;
    bool m_isWritten = false;
    Bytes m_packing;
};

UTIL_JpegBlocks::UTIL_JpegBlocks() = default;
UTIL_JpegBlocks::~UTIL_JpegBlocks() = default;

void UTIL_JpegBlocks::serve(jpeg_decompress_struct& jpeg)
{
    jpeg.mem->request_virt_barray = request;
    jpeg.mem->access_virt_barray = access;
}

UTIL_JpegBlocks::Array* UTIL_JpegBlocks::add(JDIMENSION blocks, JDIMENSION rows,
                                             JDIMENSION mostAtOnce) noexcept
{
    try {
        return m_arrays.emplace_back(std::make_unique<Array>(blocks, rows, mostAtOnce)).get();
    } catch (...) {
        return nullptr; // no exception may pass through the library
    }
}

jvirt_barray_ptr UTIL_JpegBlocks::request(j_common_ptr jpeg, int /*pool*/, boolean /*isZeroed*/,
                                          JDIMENSION blocks, JDIMENSION rows, JDIMENSION mostAtOnce)
{
    Array* array = static_cast<UTIL_JpegBlocks*>(jpeg->client_data)->add(blocks, rows, mostAtOnce);
    if (!array)
        ERREXIT1(jpeg, JERR_OUT_OF_MEMORY, 0);
    return reinterpret_cast<jvirt_barray_ptr>(array);
}

JBLOCKARRAY UTIL_JpegBlocks::access(j_common_ptr jpeg, jvirt_barray_ptr array, JDIMENSION row,
                                    JDIMENSION count, boolean isWritten)
{
    auto* blocks = reinterpret_cast<Array*>(array);
    if (!blocks->has(row, count))
        ERREXIT(jpeg, JERR_BAD_VIRTUAL_ACCESS);
    JBLOCKARRAY rows = blocks->rows(row, count, isWritten != 0);
    if (!rows)
        ERREXIT1(jpeg, JERR_OUT_OF_MEMORY, 0);
    return rows;
}
