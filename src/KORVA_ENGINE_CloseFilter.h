#pragma once

#include "KORVA_Export.h"

#include <QObject>

class QWidget;

/// Lets a widget be deleted from inside its own event handling: the deletion happens later, when a posted
/// close event reaches the widget. Use deleteWidgetLater(), which makes the filters; each deletes itself.
class KORVA_EXPORT KORVA_ENGINE_CloseFilter : public QObject
{
public:
    /// Posts a close event and returns at once. The widget is deleted with its next close event. Null is
    /// ignored.
    static void deleteWidgetLater(QWidget* widget);

    /// Deletes the widget and itself at a close event; all other events pass.
    bool eventFilter(QObject* watched, QEvent* event) override;
};
