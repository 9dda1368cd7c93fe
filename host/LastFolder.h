#pragma once

#include <QString>

class UTIL_Platform;

namespace pad {

/// Where the folder dialogs begin: where the last one ended.
class LastFolder
{
public:
    /// Keeps the folder and the order of the dialogs in the settings from now on, beginning with what the
    /// last run left there.
    void remember();
    /// The user's pictures as long as no dialog was used, or when the folder is gone.
    [[nodiscard]] QString path(const UTIL_Platform& platform) const;
    /// A dialog gave this file.
    void note(const QString& fileName);

private:
    QString m_path;
    bool m_isRemembered = false;
};

} // namespace pad
