#pragma once

#include <QtGui>

#include <memory>

namespace support {

/// A real X server on a display of its own, without a window manager, and a person at it: pointer,
/// keyboard and eyes. Points are pixels of the screen.
class XServer
{
public:
    explicit XServer(QSize screen = QSize(800, 600));
    ~XServer();
    XServer(const XServer&) = delete;
    XServer& operator=(const XServer&) = delete;

    /// In main(): from now on there may be one server in each thread.
    static void allowThreads();

    /// Whether the server runs and takes a pointer.
    [[nodiscard]] bool isReady() const;
    /// As in the variable DISPLAY.
    [[nodiscard]] QString display() const { return m_display; }

    void moveTo(QPoint to);
    /// Button 1 is the left one.
    void press(int button = 1);
    void release(int button = 1);
    void click(QPoint at, int button = 1);
    /// Gives the keyboard to the window on top, as a window manager does.
    void activateTopWindow();
    /// Press and release of the key with this X name ("Return", "a"), with others held.
    void key(const char* name, std::initializer_list<const char*> held = {});

    [[nodiscard]] QImage screenshot() const;
    /// The colour of one pixel.
    [[nodiscard]] QColor colorAt(QPoint at) const;

    /// A top-level window that can be seen.
    struct Window
    {
        QString title;
        QRect place;
    };
    /// From the bottom to the top.
    [[nodiscard]] QList<Window> windows() const;
    /// Whether a window has asked for the full screen, which a window manager would give it, since the
    /// last call.
    [[nodiscard]] bool isFullScreenAskedFor();
    /// Waits until a window of this size is on the screen; empty when none comes.
    [[nodiscard]] QRect waitForWindow(QSize size) const;

private:
    struct Client;

    QProcess m_server;
    QString m_display;
    std::unique_ptr<Client> m_client;
};

} // namespace support
