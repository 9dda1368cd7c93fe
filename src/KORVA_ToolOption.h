#pragma once

#include <QIcon>
#include <QString>

/// An option of a tool, as the option pop-up shows it.
struct KORVA_ToolOption
{
    QIcon icon;
    QString name;     ///< for the person, in the language in force
    int penWidth = 0; ///< in picture pixels; 0 leaves the width alone
};
