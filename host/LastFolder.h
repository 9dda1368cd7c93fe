#pragma once

#include <QString>

class UTIL_Platform;

namespace pad {

/// The folder in which folder dialogs begin: where the last one ended.
class LastFolder
{
public:
    /// Loads the folder and the order of the dialogs from the settings, and keeps them there from now on.
    void remember();
    /// The folder; the user's picture folder if no dialog was used yet, or if the folder is gone.
    [[nodiscard]] QString path(const UTIL_Platform& platform) const;
    /// Notes that a dialog returned this file.
    void note(const QString& fileName);

private:
    QString m_path;
    bool m_isRemembered = false;
};

} // namespace pad
