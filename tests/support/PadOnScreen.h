#pragma once

#include "PadProcess.h"
#include "XServer.h"

#include <optional>

namespace support {

/// korva-pad on a screen that it has to itself, at scale 1, and the person at it. Points are pixels of the
/// picture unless something else is said. What is waited for comes within `patience`, or before the
/// deadline if there is one, or the answer is false.
class PadOnScreen
{
public:
    static constexpr int patience = 30'000; // ms; the sanitizers are slow, and so are busy machines

    /// What the user has is below the folder `home`; the folder dialogs start in home/Pictures.
    explicit PadOnScreen(const QString& home, QSize screen = QSize(800, 600));

    [[nodiscard]] QString pictures() const { return m_home + "/Pictures"; }
    [[nodiscard]] QString recoveryFolder() const { return m_home + "/XDG_STATE_HOME/korva"; }

    /// Starts the pad, ending the one before, and waits until its window is there. See PadProcess.
    [[nodiscard]] bool start(const QStringList& arguments = {}, const QStringList& through = {});
    /// How large the picture is that is shown, at 100 percent: of a new drawing until told.
    void setPictureSize(QSize size);
    void setDeadline(QDeadlineTimer deadline) { m_deadline = deadline; }
    [[nodiscard]] QDeadlineTimer deadline() const { return m_deadline; }
    [[nodiscard]] bool waitFor(const std::function<bool()>& condition) const;
    [[nodiscard]] PadProcess& process() { return *m_process; }
    [[nodiscard]] XServer& server() { return m_server; }

    /// The title of the pad's window; empty when it is gone.
    [[nodiscard]] QString title() const;
    [[nodiscard]] bool waitForTitle(const QString& title) const;
    /// The title of the box or dialog on top, which is what it says; empty for none.
    [[nodiscard]] QString box() const;
    /// Where the box on top is, in the pad's window.
    [[nodiscard]] QRect boxPlace() const;
    /// Waits for a box that says this. With a name a picture of it is left in the folder for test output.
    [[nodiscard]] bool waitForBox(const QString& text, const QString& pictureName = {}) const;
    [[nodiscard]] bool waitForNoBox() const;

    /// In the pad's window.
    void click(QPoint at);
    /// A straight stroke; true when its end can be seen.
    [[nodiscard]] bool stroke(QPoint from, QPoint to);
    [[nodiscard]] bool isRed(QPoint at) const;
    [[nodiscard]] QColor colorAt(QPoint at) const { return m_server.colorAt(onScreen(at)); }
    [[nodiscard]] bool waitForColor(QPoint at, const QColor& color) const;
    /// The picture, as far as it can be seen.
    [[nodiscard]] QImage picture() const;
    /// The pad's window as it can be seen.
    [[nodiscard]] QImage shot() const { return m_server.screenshot().copy(m_place); }
    /// A key, with the pointer where every box and dialog is.
    void key(const char* name, std::initializer_list<const char*> held = {});

private:
    [[nodiscard]] QPoint onScreen(QPoint at) const { return m_place.topLeft() + m_origin + at; }
    [[nodiscard]] std::optional<XServer::Window> pad() const;

    QString m_home;
    XServer m_server;
    std::unique_ptr<PadProcess> m_process;
    QRect m_place; ///< of the pad's window, on the screen
    QDeadlineTimer m_deadline = QDeadlineTimer::Forever;
    QSize m_size;    ///< of the picture, as far as it can be seen
    QPoint m_origin; ///< of the picture, in the window
};

} // namespace support
