#pragma once

#include "KORVA_Export.h"

#include <QPixmap>
#include <QString>

/// Finds the pictures of the user interface by file name.
class KORVA_EXPORT RES_ICON_Reader
{
public:
    /// The picture of a plain file name such as "Dialog_Error.gif", as sharp as the screen can show it:
    /// `Dialog_Error@2x.gif` or `Dialog_Error@3x.gif` if the device pixel ratio asks for it. A file in
    /// UTIL_Platform::iconFolder() replaces the built-in one and is not recoloured. The built-in pictures
    /// of tools and options have the colours of UTIL_Skin. Null for an unknown name and for a name with a
    /// slash. Call it only while there is an application object.
    [[nodiscard]] static QPixmap getIcon(const QString& name);
};
