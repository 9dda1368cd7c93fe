#pragma once

#include "KORVA_Export.h"

#include <QObject>

class QWidget;

/// Deletes a widget from inside that widget's own event handling: later, when a posted close event reaches
/// it. deleteWidgetLater() makes and owns the objects.
class KORVA_EXPORT KORVA_ENGINE_CloseFilter : public QObject
{
public:
    /// Returns at once; the widget goes with its next close event, and one is posted. Null is ignored.
    static void deleteWidgetLater(QWidget* widget);

    /// Deletes the widget and itself at a close event; any other passes.
    bool eventFilter(QObject* watched, QEvent* event) override;
};
