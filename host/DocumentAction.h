#pragma once

#include <QSize>

class KORVA_EditCanvas;

namespace pad {

class Platform;

/// The actions of the editor's saveChangePic() and openNewFilePrivate().
enum DocumentAction : int { OpenPicture, ChooseCanvas, SavePicture, InsertStamp };

/// Asks about unsaved changes, and saves them if the answer is yes. False when they would be lost.
bool mayReplaceDrawing(KORVA_EditCanvas& editor, Platform& platform);

/// A new, unchanged canvas of a KORVA_CANVASTYPE.
void newCanvas(KORVA_EditCanvas& editor, int type, QSize size);

} // namespace pad
