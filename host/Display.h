#pragma once

#include "Failure.h"
#include "Screen.h"

#include <QByteArray>
#include <QCoreApplication>

#include <optional>

namespace pad {

/// The display that the program uses.
struct Display
{
    Q_DECLARE_TR_FUNCTIONS(pad::Display)

public:
    QByteArray platform;          ///< as in QT_QPA_PLATFORM
    std::optional<Screen> screen; ///< none if the program runs off screen

    /// Finds the first display that answers, among those in QT_QPA_PLATFORM or, if that is not set, the
    /// session's Wayland and X displays. If none answers, a run that `needsNobody` goes off screen. Call it
    /// before the application object exists; it sets the variable.
    [[nodiscard]] static Expected<Display> find(bool needsNobody);

    /// Shows every pixel scale × scale, whatever Qt's own ratio for the screen. Call it before the
    /// application object exists.
    void setScale(int scale) const;
};

} // namespace pad
