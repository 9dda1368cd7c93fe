#pragma once

#include <QObject>

/// Keeps fingers, pens and the wheel off a widget while it lies in a form that is being edited: nothing is
/// drawn, scrolled or zoomed there. Designer itself takes the mouse and the keys. Elsewhere, in a preview
/// of the form and in every program, the widget works.
class FormGuard : public QObject
{
    Q_OBJECT

public:
    /// Guards the widget and its parts, for its life.
    explicit FormGuard(QWidget& widget);

    bool eventFilter(QObject* watched, QEvent* event) override;
};
