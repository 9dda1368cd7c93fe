#include "DocumentAction.h"

#include "Platform.h"

#include <KORVA_EditCanvas.h>

namespace pad {

bool mayReplaceDrawing(KORVA_EditCanvas& editor, Platform& platform)
{
    constexpr int no = 1;
    platform.takeAnswer();
    editor.saveChangePic(ChooseCanvas);
    return !editor.isModified() || platform.takeAnswer() == no;
}

void newCanvas(KORVA_EditCanvas& editor, int type, QSize size)
{
    editor.chooseCanvas(KORVA_CANVASTYPE(type), size.width(), size.height());
    editor.clearModified(); // a canvas of another size counts as changed until its host says otherwise
}

} // namespace pad
