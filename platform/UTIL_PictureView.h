#pragma once

#include <QListView>

/// The pictures of a UTIL_PictureFolder side by side, for a finger: a tap chooses, a drag scrolls. The
/// arrow keys choose as well.
class UTIL_PictureView : public QListView
{
    Q_OBJECT

public:
    explicit UTIL_PictureView(QWidget* parent = nullptr);

signals:
    /// A finger or a mouse button was released where it was pressed.
    void tapped(const QModelIndex& index);
    /// Return, or a second tap.
    void opened(const QModelIndex& index);
    /// Backspace.
    void left();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    /// What the pressed button has become.
    enum class Touch {
        None,
        Tap,  ///< it has not moved
        Drag, ///< it scrolls until it is released
    };

    Touch m_touch = Touch::None;
    int m_pressedAt = 0;  ///< the pointer's y when it was pressed
    int m_scrolledTo = 0; ///< the scroll bar's value then
};
