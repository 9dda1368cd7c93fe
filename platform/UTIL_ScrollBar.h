#pragma once

#include "KORVA_Export.h"

#include <QScrollBar>

/// A flat scroll bar in the skin, which behaves as in the application's style. For a list in a host:
/// `list->setVerticalScrollBar(new UTIL_ScrollBar(Qt::Vertical, list))`.
class KORVA_EXPORT UTIL_ScrollBar : public QScrollBar
{
    Q_OBJECT

public:
    /// A bar with the range 0 to 99, like Qt's.
    UTIL_ScrollBar(Qt::Orientation orientation, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
};
