#pragma once

#include <QIcon>
#include <QString>

/// An option of a tool, as the option pop-up shows it.
struct KORVA_ToolOption
{
    QIcon icon;       ///< in its row, and on the option button
    QString name;     ///< for the user, in the language in force
    int penWidth = 0; ///< in picture pixels; 0 leaves the width alone
};
