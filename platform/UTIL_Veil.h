#pragma once

#include <QWidget>

/// Dims a window that waits for its dialog: a sheet over all of it that takes no part in anything.
class UTIL_Veil : public QWidget
{
    Q_OBJECT

public:
    explicit UTIL_Veil(QWidget* window);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void paintEvent(QPaintEvent* event) override;
};
