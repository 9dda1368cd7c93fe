#pragma once

#include <QScrollBar>

/// A scroll bar in the skin: flat, worked as the application's style works it.
class UTIL_ScrollBar : public QScrollBar
{
    Q_OBJECT

public:
    UTIL_ScrollBar(Qt::Orientation orientation, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
};
