#pragma once

#include <QWidget>

/// The focus ring around a widget that has no room for one inside. It is a slightly larger sibling of that
/// widget, and takes no input.
class UTIL_FocusRing : public QWidget
{
    Q_OBJECT

public:
    explicit UTIL_FocusRing(QWidget* around);

protected:
    void paintEvent(QPaintEvent* event) override;
};
