#pragma once

#include <QtGui>

#include <memory>

namespace support {

/// A real Wayland compositor without a screen to look at, where every window floats, and a person at it:
/// pointer, keyboard and eyes. Points are pixels of the screen.
class WaylandServer
{
public:
    /// Each of the compositor's own pixels is scale × scale of the screen's.
    explicit WaylandServer(QSize screen = QSize(800, 600), int scale = 1);
    ~WaylandServer();
    WaylandServer(const WaylandServer&) = delete;
    WaylandServer& operator=(const WaylandServer&) = delete;

    /// Whether the compositor runs and takes a pointer.
    [[nodiscard]] bool isReady() const;
    /// As in the variable WAYLAND_DISPLAY: the socket's path.
    [[nodiscard]] QString display() const { return m_display; }

    void moveTo(QPoint to);
    void press();
    void release();
    void click(QPoint at);
    /// Press and release of the key with this X name ("Return", "z"), as far as tests need it.
    void key(const char* name, bool withControl = false);

    [[nodiscard]] QImage screenshot() const;
    /// The windows of the programs, pop-ups not counted.
    [[nodiscard]] QList<QRect> windows() const;
    /// Drags the window that has the keyboard to another size, of the compositor's pixels.
    void resizeWindow(QSize size);
    /// Waits until there is a window of this size; empty when none comes.
    [[nodiscard]] QRect waitForWindow(QSize size) const;

private:
    struct Person;

    void writeConfiguration() const;
    void start();
    [[nodiscard]] QByteArray run(const QString& program, const QStringList& arguments) const;

    QSize m_screen;
    int m_scale;
    QTemporaryDir m_folder;
    QProcess m_server;
    QString m_display;
    std::unique_ptr<Person> m_person;
};

} // namespace support
