#pragma once

#include <QScrollArea>

/// What does not fit a small screen, in the skin and without a frame: wheel, bar and keys scroll it, and
/// what gets the focus comes into sight. Where all of it fits it is not to be seen.
class UTIL_ScrollArea : public QScrollArea
{
    Q_OBJECT

public:
    /// Takes the widget over, whose ground stays what it was.
    UTIL_ScrollArea(QWidget* content, QWidget* parent);
};
