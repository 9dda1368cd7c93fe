#pragma once

#include "Failure.h"
#include "Screen.h"

#include <QByteArray>
#include <QCoreApplication>

#include <optional>

namespace pad {

/// Where the program shows itself.
struct Display
{
    Q_DECLARE_TR_FUNCTIONS(pad::Display)

public:
    QByteArray platform;          ///< as in QT_QPA_PLATFORM
    std::optional<Screen> screen; ///< none where nobody looks

    /// The first that answers: of what QT_QPA_PLATFORM lists or, without it, the session's Wayland and X
    /// displays. Without any, what `needsNobody` works off screen. Before the application object exists;
    /// sets the variable.
    [[nodiscard]] static Expected<Display> find(bool needsNobody);

    /// Shows every pixel scale × scale, whatever the toolkit's own ratio for the screen; before the
    /// application object exists.
    void setScale(int scale) const;
};

} // namespace pad
