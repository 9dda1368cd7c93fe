#pragma once

#include <QWidget>

/// Dims a window that waits for its dialog: a translucent widget over the whole window, which takes no
/// input.
class UTIL_Veil : public QWidget
{
    Q_OBJECT

public:
    explicit UTIL_Veil(QWidget* window);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void paintEvent(QPaintEvent* event) override;
};
