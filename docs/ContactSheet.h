#pragma once

#include <QImage>
#include <QWidget>

#include <functional>

namespace docs {

/// Photographs of a window with what is open over it, side by side, at the scale the program runs at. Wants
/// a screen of its own.
class ContactSheet
{
public:
    static constexpr int settled = 400; ///< milliseconds until everything is painted

    ContactSheet(QWidget& window, int columns) : m_window(window), m_columns(columns) {}

    static void wait();
    /// Opens something, puts the picture of the window into the sheet and closes it again.
    void shoot(const std::function<void()>& open);
    [[nodiscard]] QImage image() const { return m_shots; }

private:
    void add(const QImage& shot, double scale);

    QWidget& m_window;
    int m_columns;
    QImage m_shots;
    int m_count = 0;
};

} // namespace docs
