#pragma once

#include "KORVA_Export.h"

#include <QPixmap>
#include <QString>

/// The user interface's pictures, by file name.
class KORVA_EXPORT RES_ICON_Reader
{
public:
    /// The picture of a plain file name such as "Dialog_Error.gif", as sharp as the screen can show it:
    /// `Dialog_Error@2x.gif` or `Dialog_Error@3x.gif` where the device pixel ratio asks for it. A file in
    /// UTIL_Platform::iconFolder() comes before the built-in one, and as it is; the built-in pictures of
    /// tools and options come in the colours of UTIL_Skin. Null for an unknown name and for one with a
    /// slash. Only while there is an application object.
    [[nodiscard]] static QPixmap getIcon(const QString& name);
};
