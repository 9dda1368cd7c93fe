#pragma once

#include <QElapsedTimer>
#include <QListView>

/// The pictures of a UTIL_PictureFolder side by side, for a finger: a tap chooses, a drag scrolls. The
/// arrow keys choose as well, and typing goes to the next name that begins with what is typed, or has it
/// inside. A name has two lines; of a longer one the beginning and the end are shown.
class UTIL_PictureView : public QListView
{
    Q_OBJECT

public:
    explicit UTIL_PictureView(QWidget* parent = nullptr);

    /// One letter again and again goes from name to name; letters that follow each other are one word, of
    /// which Backspace takes the last away.
    void keyboardSearch(const QString& typed) override;

signals:
    /// A finger or a mouse button was released where it was pressed.
    void tapped(const QModelIndex& index);
    /// Return, or a second tap.
    void opened(const QModelIndex& index);
    /// Backspace, while nothing is being typed.
    void left();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    /// What the pressed button has become.
    enum class Touch {
        None,
        Tap,  ///< it has not moved
        Drag, ///< it scrolls until it is released
    };

    [[nodiscard]] bool isSearching() const;
    void seek();

    QString m_sought;       ///< what has been typed
    QElapsedTimer m_typing; ///< since the last letter
    Touch m_touch = Touch::None;
    int m_pressedAt = 0;  ///< the pointer's y when it was pressed
    int m_scrolledTo = 0; ///< the scroll bar's value then
};
