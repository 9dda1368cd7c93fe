#pragma once

#include <cstdio>

#include <jpeglib.h>

#include <memory>
#include <vector>

/// Where a JPEG that comes in several passes is put together: the coefficients of all its blocks, which the
/// library would keep in three bytes a pixel and more. Here the rows of blocks that are not at hand are
/// packed into about what they take in the file.
class UTIL_JpegBlocks
{
public:
    UTIL_JpegBlocks();
    ~UTIL_JpegBlocks();
    UTIL_JpegBlocks(const UTIL_JpegBlocks&) = delete;
    UTIL_JpegBlocks& operator=(const UTIL_JpegBlocks&) = delete;

    /// From now on serves `jpeg`, whose structures were just created and whose client_data points here.
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
