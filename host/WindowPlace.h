#pragma once

#include <QSize>

#include <optional>

class QWidget;

namespace pad {

/// How the person left the window, kept in the settings from one start to the next; each size of screen has
/// its own.
class WindowPlace
{
public:
    /// Reads what is kept for a screen of this many pixels.
    explicit WindowPlace(const QSize& screen);

    /// What the person last asked for; none: what suits the screen.
    [[nodiscard]] std::optional<int> scale() const { return m_scale; }
    /// The person asked for it.
    void setScale(int scale) { m_scale = scale; }

    /// Gives the window, before it is shown, the size and state that it had.
    void restore(QWidget& window) const;
    /// Keeps them, and the scale.
    void save(const QWidget& window) const;

private:
    QString m_group;
    std::optional<int> m_scale;
};

} // namespace pad
