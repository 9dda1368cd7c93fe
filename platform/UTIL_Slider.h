#pragma once

#include <QPixmap>
#include <QPointer>
#include <QSlider>

class UTIL_FocusRing;

/// A slider that is painted from two pictures, of its handle and its groove. A press on the groove moves
/// the handle there. So does a press just above or below the slider where its parent has nothing else,
/// because a finger is wider than a groove. The arrow keys move by one step, Page Up and Page Down by a
/// sixteenth, Home and End to the ends.
class UTIL_Slider : public QSlider
{
    Q_OBJECT

public:
    /// If a pressed picture is null, the handle or groove looks the same while pressed.
    UTIL_Slider(const QPixmap& handle, const QPixmap& pressedHandle, const QPixmap& groove,
                const QPixmap& pressedGroove, Qt::Orientation orientation, int minimum, int maximum,
                int step, int value, QWidget* parent = nullptr, const char* name = nullptr);
    ~UTIL_Slider() override;

    [[nodiscard]] QSize sizeHint() const override;
    /// Where the handle is painted.
    [[nodiscard]] QRect handleRect() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    [[nodiscard]] int along(const QPoint& point) const;
    [[nodiscard]] int handleLength() const;
    [[nodiscard]] int travel() const;
    [[nodiscard]] bool isReached(const QPoint& inParent) const;

    QPixmap m_handle;
    QPixmap m_pressedHandle;
    QPixmap m_groove;
    QPixmap m_pressedGroove;
    int m_grip = 0;         // from the start of the handle to the pointer
    bool m_reached = false; // a press beside the slider is under way
    QPointer<UTIL_FocusRing> m_ring;
};
