#pragma once

#include <QWidget>

/// The focus ring around a widget that has no room for one inside: a sibling a little larger, which takes
/// no part in anything.
class UTIL_FocusRing : public QWidget
{
    Q_OBJECT

public:
    explicit UTIL_FocusRing(QWidget* around);

protected:
    void paintEvent(QPaintEvent* event) override;
};
