#pragma once

#include <QElapsedTimer>
#include <QListView>

/// Shows the pictures of a UTIL_PictureFolder side by side, for a finger: a tap chooses, a drag scrolls.
/// The arrow keys choose as well. Typing goes to the next name that begins with the typed text, or contains
/// it. A name has two lines; a longer name shows its beginning and its end.
class UTIL_PictureView : public QListView
{
    Q_OBJECT

public:
    explicit UTIL_PictureView(QWidget* parent = nullptr);

    /// The same letter again and again goes from name to name. Different letters form a word; Backspace
    /// removes its last letter.
    void keyboardSearch(const QString& typed) override;

signals:
    /// A finger or a mouse button was lifted where it was pressed.
    void tapped(const QModelIndex& index);
    /// Return was pressed, or the row was tapped again.
    void opened(const QModelIndex& index);
    /// Backspace was pressed while nothing is being typed.
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
    /// What a press has turned out to be.
    enum class Touch {
        None,
        Tap,  ///< the pointer has not moved
        Drag, ///< scrolls until the release
    };

    [[nodiscard]] bool isSearching() const;
    void seek();

    QString m_sought;       ///< the typed text
    QElapsedTimer m_typing; ///< since the last letter
    Touch m_touch = Touch::None;
    int m_pressedAt = 0;  ///< the pointer's y when it was pressed
    int m_scrolledTo = 0; ///< the scroll bar's value at that time
};
