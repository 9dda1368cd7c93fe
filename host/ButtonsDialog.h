#pragma once

#include <UTIL_Dialog.h>

class KORVA_EditCanvas;
class QMenu;

namespace pad {

/// The card that says what the pad's buttons are, by a picture and a name each. A tap anywhere on it,
/// Return and Escape close it.
class ButtonsDialog : public UTIL_Dialog
{
    Q_OBJECT

public:
    /// The pictures show what the editor's controls show now. Nothing is kept of the arguments.
    ButtonsDialog(QWidget* parent, const KORVA_EditCanvas& editor, const QMenu& menu);

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
};

} // namespace pad
