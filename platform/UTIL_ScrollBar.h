#pragma once

#include "KORVA_Export.h"

#include <QScrollBar>

/// A scroll bar in the skin: flat, worked as the application's style works it. For a list of a host's:
/// `list->setVerticalScrollBar(new UTIL_ScrollBar(Qt::Vertical, list))`.
class KORVA_EXPORT UTIL_ScrollBar : public QScrollBar
{
    Q_OBJECT

public:
    /// A bar of the full range 0 to 99, as the toolkit's.
    UTIL_ScrollBar(Qt::Orientation orientation, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
};
