#pragma once

#include <QSize>

class KORVA_EditCanvas;

namespace pad {

class Platform;

/// What the editor's saveChangePic() and openNewFilePrivate() are asked for.
enum DocumentAction : int { OpenPicture, ChooseCanvas, SavePicture, InsertStamp };

/// Asks about unsaved changes and saves them if so answered. False when they would be lost.
bool mayReplaceDrawing(KORVA_EditCanvas& editor, Platform& platform);

/// A new, unchanged canvas of a KORVA_CANVASTYPE.
void newCanvas(KORVA_EditCanvas& editor, int type, QSize size);

} // namespace pad
