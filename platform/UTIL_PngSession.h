#pragma once

#include <csetjmp>

#include <png.h>

/// The two structures of the PNG library, and its way of reporting errors: a jump back into attempt().
class UTIL_PngSession
{
public:
    enum Direction { Reading, Writing };

    explicit UTIL_PngSession(Direction direction)
        : m_isWriting(direction == Writing),
          m_png(m_isWriting ? png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, fail, ignore)
                            : png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, fail, ignore)),
          m_info(m_png ? png_create_info_struct(m_png) : nullptr)
    {
    }
    ~UTIL_PngSession()
    {
        if (m_isWriting) {
            png_destroy_write_struct(&m_png, &m_info);
        } else {
            png_destroy_read_struct(&m_png, &m_info, nullptr);
        }
    }
    UTIL_PngSession(const UTIL_PngSession&) = delete;
    UTIL_PngSession& operator=(const UTIL_PngSession&) = delete;

    /// Runs `step`. False when the library gave up in it, or before. The step must have no variables that
    /// need a destructor, and must let no exception pass through the library. What it changes must live
    /// outside it: after a jump only the variables of this function are undetermined.
    template <typename Step>
    bool attempt(const Step& step)
    {
        if (!m_info || m_hasFailed)
            return false;
        if (setjmp(png_jmpbuf(m_png)) != 0) { // NOLINT: the library knows no other way
            m_hasFailed = true;
            return false;
        }
        step();
        return true;
    }

    [[nodiscard]] png_structp png() const { return m_png; }
    [[nodiscard]] png_infop info() const { return m_info; }

private:
    [[noreturn]] static void fail(png_structp png, png_const_charp) { png_longjmp(png, 1); }
    static void ignore(png_structp, png_const_charp) {}

    bool m_isWriting;
    bool m_hasFailed = false;
    png_structp m_png;
    png_infop m_info;
};
