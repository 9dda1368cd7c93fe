#include "XScreen.h"

namespace pad {

bool xscreen::answers()
{
    return true;
}

std::optional<Screen> xscreen::ask()
{
    return {};
}

} // namespace pad
