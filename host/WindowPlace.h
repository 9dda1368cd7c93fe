#pragma once

#include <QSize>

#include <optional>

class QWidget;

namespace pad {

/// The size, state and scale of the window as the person left them. The settings keep them for the next
/// start, separately for each size of screen.
class WindowPlace
{
public:
    /// Reads the settings for a screen of this many pixels.
    explicit WindowPlace(const QSize& screen);

    /// The scale that the person last asked for; none means what suits the screen.
    [[nodiscard]] std::optional<int> scale() const { return m_scale; }
    /// Sets the scale that the person asked for.
    void setScale(int scale) { m_scale = scale; }

    /// Gives the window, before it is shown, the size and state that it had.
    void restore(QWidget& window) const;
    /// Saves the window's size and state, and the scale.
    void save(const QWidget& window) const;

private:
    QString m_group;
    std::optional<int> m_scale;
};

} // namespace pad
