#pragma once

#include <QWidget>

/// A keyboard on the screen, in the order of German keys. It types where the keyboard focus is.
class Keyboard : public QWidget
{
    Q_OBJECT

public:
    static constexpr QSize size{640, 200};

    explicit Keyboard(QWidget* parent);

signals:
    void typed();

private:
    void addKey(const QRect& place, const QString& label, int code, const QString& text);
    void setShifted(bool isShifted);

    bool m_isShifted = false;
};
