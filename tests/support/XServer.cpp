#include "XServer.h"

#include <QMutex>

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/XTest.h>

namespace support {

namespace {

constexpr int patience = 20'000; // ms

} // namespace

struct XServer::Client
{
    explicit Client(const QString& display) : connection(XOpenDisplay(display.toLatin1().constData()))
    {
        // The library's first call makes its list of connections, and two threads at once make two.
        static QMutex mutex;
        const QMutexLocker lock(&mutex);
        int unused = 0;
        hasTestExtension =
            connection && XTestQueryExtension(connection, &unused, &unused, &unused, &unused);
    }
    ~Client()
    {
        if (connection)
            XCloseDisplay(connection);
    }
    Client(const Client&) = delete;
    Client& operator=(const Client&) = delete;

    [[nodiscard]] ::Window root() const { return DefaultRootWindow(connection); }

    void sendKey(const char* name, bool down) const
    {
        const KeyCode code = XKeysymToKeycode(connection, XStringToKeysym(name));
        XTestFakeKeyEvent(connection, code, down, CurrentTime);
        XSync(connection, False);
    }

    [[nodiscard]] QString titleOf(::Window window) const
    {
        const Atom name = XInternAtom(connection, "_NET_WM_NAME", False);
        Atom type = None;
        int bits = 0;
        unsigned long length = 0;
        unsigned long rest = 0;
        unsigned char* text = nullptr;
        if (XGetWindowProperty(connection, window, name, 0, 1024, False, AnyPropertyType, &type, &bits,
                               &length, &rest, &text) != Success ||
            !text)
            return {};
        const QString title = QString::fromUtf8(reinterpret_cast<const char*>(text), qsizetype(length));
        XFree(text);
        return title;
    }

    struct Shown
    {
        ::Window id;
        XServer::Window window;
    };

    [[nodiscard]] QList<Shown> shown() const
    {
        ::Window rootReturn = 0;
        ::Window parent = 0;
        ::Window* children = nullptr;
        unsigned count = 0;
        if (!XQueryTree(connection, root(), &rootReturn, &parent, &children, &count))
            return {};
        QList<Shown> found;
        for (unsigned i = 0; i < count; ++i) {
            XWindowAttributes a;
            if (XGetWindowAttributes(connection, children[i], &a) && a.map_state == IsViewable)
                found.append({children[i], {titleOf(children[i]), QRect(a.x, a.y, a.width, a.height)}});
        }
        if (children)
            XFree(children);
        return found;
    }

    Display* connection;
    bool hasTestExtension;
};

XServer::XServer(QSize screen)
{
    const QString geometry = QString("%1x%2x24").arg(screen.width()).arg(screen.height());
    m_server.start("Xvfb", {"-displayfd", "1", "-screen", "0", geometry, "-nolisten", "tcp", "-noreset"});
    if (m_server.waitForStarted(patience) && m_server.waitForReadyRead(patience))
        m_display = ':' + QString::fromLatin1(m_server.readAllStandardOutput().trimmed());
    m_client = std::make_unique<Client>(m_display);
    // A window may be gone between the list of windows and the question about it.
    if (m_client->connection)
        XSelectInput(m_client->connection, m_client->root(), StructureNotifyMask);
    XSetErrorHandler([](Display*, XErrorEvent*) { return 0; });
}

XServer::~XServer()
{
    m_client.reset();
    m_server.terminate();
    m_server.waitForFinished(patience);
}

void XServer::allowThreads()
{
    XInitThreads();
}

bool XServer::isReady() const
{
    return m_client->hasTestExtension;
}

void XServer::moveTo(QPoint to)
{
    XTestFakeMotionEvent(m_client->connection, -1, to.x(), to.y(), CurrentTime);
    XSync(m_client->connection, False);
}

void XServer::press(int button)
{
    XTestFakeButtonEvent(m_client->connection, unsigned(button), True, CurrentTime);
    XSync(m_client->connection, False);
}

void XServer::release(int button)
{
    XTestFakeButtonEvent(m_client->connection, unsigned(button), False, CurrentTime);
    XSync(m_client->connection, False);
}

void XServer::click(QPoint at, int button)
{
    moveTo(at);
    press(button);
    release(button);
}

void XServer::activateTopWindow()
{
    const QList<Client::Shown> all = m_client->shown();
    if (!all.isEmpty())
        XSetInputFocus(m_client->connection, all.constLast().id, RevertToPointerRoot, CurrentTime);
    XSync(m_client->connection, False);
}

void XServer::key(const char* name, std::initializer_list<const char*> held)
{
    for (const char* modifier : held)
        m_client->sendKey(modifier, true);
    m_client->sendKey(name, true);
    m_client->sendKey(name, false);
    for (const char* modifier : held)
        m_client->sendKey(modifier, false);
}

QImage XServer::screenshot() const
{
    XWindowAttributes attributes;
    XGetWindowAttributes(m_client->connection, m_client->root(), &attributes);
    XImage* raw = XGetImage(m_client->connection, m_client->root(), 0, 0, unsigned(attributes.width),
                            unsigned(attributes.height), AllPlanes, ZPixmap);
    const QImage shared(reinterpret_cast<const uchar*>(raw->data), raw->width, raw->height,
                        raw->bytes_per_line, QImage::Format_RGB32);
    QImage image = shared.convertToFormat(QImage::Format_ARGB32); // the server leaves the fourth byte at 0
    XDestroyImage(raw);
    return image;
}

QColor XServer::colorAt(QPoint at) const
{
    XImage* raw =
        XGetImage(m_client->connection, m_client->root(), at.x(), at.y(), 1, 1, AllPlanes, ZPixmap);
    if (!raw)
        return {};
    const QColor color(QRgb(XGetPixel(raw, 0, 0)) | 0xff000000);
    XDestroyImage(raw);
    return color;
}

QList<XServer::Window> XServer::windows() const
{
    QList<Window> all;
    for (const Client::Shown& shown : m_client->shown())
        all.append(shown.window);
    return all;
}

bool XServer::isFullScreenAskedFor()
{
    const Atom state = XInternAtom(m_client->connection, "_NET_WM_STATE", False);
    const Atom fullScreen = XInternAtom(m_client->connection, "_NET_WM_STATE_FULLSCREEN", False);
    bool isAsked = false;
    XEvent event;
    while (XCheckTypedEvent(m_client->connection, ClientMessage, &event)) {
        const XClientMessageEvent& message = event.xclient;
        isAsked = isAsked || (message.message_type == state && Atom(message.data.l[1]) == fullScreen);
    }
    return isAsked;
}

QRect XServer::waitForWindow(QSize size) const
{
    QElapsedTimer timer;
    timer.start();
    do {
        const QList<Window> all = windows();
        for (auto window = all.crbegin(); window != all.crend(); ++window) {
            if (window->place.size() == size)
                return window->place;
        }
        QThread::msleep(10);
    } while (timer.elapsed() < patience);
    return {};
}

} // namespace support
