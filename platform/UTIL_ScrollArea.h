#pragma once

#include <QScrollArea>

/// Scrolls content that does not fit a small screen, in the skin and without a frame. Wheel, bar and keys
/// scroll it, and a widget that gets the focus comes into view. If all of the content fits, nothing of this
/// area is visible.
class UTIL_ScrollArea : public QScrollArea
{
    Q_OBJECT

public:
    /// Takes ownership of the content, which keeps its background.
    UTIL_ScrollArea(QWidget* content, QWidget* parent);
};
