#pragma once

#include <QSize>

class KORVA_EditCanvas;
class QImage;

namespace pad {

class Platform;

/// The actions of the editor's saveChangePic() and openNewFilePrivate().
enum DocumentAction : int { OpenPicture, ChooseCanvas, SavePicture, InsertStamp };

/// Asks about unsaved changes, and saves them if the answer is yes. False when they would be lost.
bool mayReplaceDrawing(KORVA_EditCanvas& editor, Platform& platform);

/// A new, unchanged canvas of a KORVA_CANVASTYPE, on white paper.
void newCanvas(KORVA_EditCanvas& editor, int type, QSize size);

/// Lays other paper under a drawing that was just taken in, with nothing to undo; null is white. No pixel
/// of it changes.
void changePaper(KORVA_EditCanvas& editor, const QImage& paper);

/// Makes the picture that was just opened the paper of a new, unchanged drawing without a name.
void drawOnOpened(KORVA_EditCanvas& editor);

} // namespace pad
