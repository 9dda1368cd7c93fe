#pragma once

#include <cstdio>

#include <jpeglib.h>

#include <memory>
#include <vector>

/// Holds the coefficients of a JPEG that comes in several passes, while it is put together. The library
/// itself would need three bytes per pixel or more. Here the rows of blocks that are not in use are packed,
/// and take about as much as in the file.
class UTIL_JpegBlocks
{
public:
    UTIL_JpegBlocks();
    ~UTIL_JpegBlocks();
    UTIL_JpegBlocks(const UTIL_JpegBlocks&) = delete;
    UTIL_JpegBlocks& operator=(const UTIL_JpegBlocks&) = delete;

    /// Serves `jpeg` from now on. Its structures were just created, and its client_data points to this
    /// object.
    void serve(jpeg_decompress_struct& jpeg);

private:
    class Array;

    static jvirt_barray_ptr request(j_common_ptr jpeg, int pool, boolean isZeroed, JDIMENSION blocks,
                                    JDIMENSION rows, JDIMENSION mostAtOnce);
    static JBLOCKARRAY access(j_common_ptr jpeg, jvirt_barray_ptr array, JDIMENSION row, JDIMENSION count,
                              boolean isWritten);
    Array* add(JDIMENSION blocks, JDIMENSION rows, JDIMENSION mostAtOnce) noexcept;

    std::vector<std::unique_ptr<Array>> m_arrays;
};
