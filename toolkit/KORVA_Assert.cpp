#include "KORVA_Assert.h"

#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace {

// "/home/me/korva/src/KORVA_Canvas.cpp" -> "src/KORVA_Canvas"
std::string_view sourceName(std::string_view path)
{
    if (const auto dot = path.rfind('.'); dot != std::string_view::npos)
        path = path.substr(0, dot);
    const auto name = path.rfind('/');
    if (name == std::string_view::npos || name == 0)
        return path;
    const auto folder = path.rfind('/', name - 1);
    return folder == std::string_view::npos ? path : path.substr(folder + 1);
}

} // namespace

void korvaAssertionFailed(const char* expression, const char* file, int line)
{
    const std::string_view source = sourceName(file);
    std::fprintf(stderr, "Assertion \"%s\" failed in %.*s, line %d\n", expression,
                 static_cast<int>(source.size()), source.data(), line);
    std::fflush(stderr);
    std::abort();
}
