#pragma once

#include <QString>

#include <cerrno>

/// Calls of the system that bring files to the disk, or must not fail because a signal came in between.
namespace util {

/// Calls again as long as only a signal was in the way. The call returns -1 when it fails, and sets errno.
template <typename Call>
auto repeated(const Call& call)
{
    auto result = call();
    while (result == -1 && errno == EINTR)
        result = call();
    return result;
}

/// Waits until what was written into an open file is on the disk; false, with errno, when it did not get
/// there.
[[nodiscard]] bool sync(int handle);
/// The same for the names in a folder: after a move, the new file has its name even if the power goes. Some
/// file systems cannot do it, and nothing depends on it, so nothing is reported.
void syncFolder(const QString& folder);

} // namespace util
