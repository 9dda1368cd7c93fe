#include "WaylandServer.h"

#include <wayland-client.h>

#include <linux/input-event-codes.h>
#include <unistd.h>

namespace support {

namespace {

constexpr int patience = 20'000;    // ms
constexpr unsigned nobody = 65'534; // the compositor does not run as root

// The unstable protocol by which a program is a mouse, as the compositor understands it.
extern const wl_interface virtualPointer;
extern const wl_interface virtualKeyboard;
const wl_interface* noObjects[5] = {};
const wl_interface* createTypes[] = {&wl_seat_interface, &virtualPointer};
const wl_interface* keyboardTypes[] = {&wl_seat_interface, &virtualKeyboard};
const wl_message pointerRequests[] = {
    {"motion", "uff", noObjects}, {"motion_absolute", "uuuuu", noObjects},
    {"button", "uuu", noObjects}, {"axis", "uuf", noObjects},
    {"frame", "", noObjects},
};
const wl_message managerRequests[] = {{"create_virtual_pointer", "?on", createTypes}};
const wl_interface virtualPointer = {"zwlr_virtual_pointer_v1", 1, std::size(pointerRequests),
                                     pointerRequests,           0, nullptr};
const wl_interface virtualPointerManager = {
    "zwlr_virtual_pointer_manager_v1", 1, std::size(managerRequests), managerRequests, 0, nullptr};
const wl_message keyboardRequests[] = {
    {"keymap", "uhu", noObjects}, {"key", "uuu", noObjects}, {"modifiers", "uuuu", noObjects}};
const wl_message keyboardManagerRequests[] = {{"create_virtual_keyboard", "on", keyboardTypes}};
const wl_interface virtualKeyboard = {"zwp_virtual_keyboard_v1", 1, std::size(keyboardRequests),
                                      keyboardRequests,          0, nullptr};
const wl_interface virtualKeyboardManager = {
    "zwp_virtual_keyboard_manager_v1", 1, std::size(keyboardManagerRequests),
    keyboardManagerRequests,           0, nullptr};
enum Request : unsigned { Create = 0, MotionAbsolute = 1, Button = 2, Frame = 4 };
enum KeyRequest : unsigned { Keymap = 0, Key = 1, Modifiers = 2 };

constexpr char keymap[] = "xkb_keymap { xkb_keycodes { include \"evdev\" }; "
                          "xkb_types { include \"complete\" }; xkb_compat { include \"complete\" }; "
                          "xkb_symbols { include \"pc+us\" }; };";
constexpr unsigned keymapIsText = 1;
constexpr unsigned control = 4; // as a bit of the modifiers

struct
{
    const char* name;
    unsigned code;
} constexpr keys[] = {
    {"Escape", KEY_ESC}, {"Return", KEY_ENTER}, {"Tab", KEY_TAB}, {"F10", KEY_F10}, {"F11", KEY_F11},
    {"n", KEY_N},        {"o", KEY_O},          {"q", KEY_Q},     {"z", KEY_Z},
};

} // namespace

struct WaylandServer::Person
{
    explicit Person(const QString& display) : connection(wl_display_connect(qPrintable(display)))
    {
        clock.start();
        if (!connection)
            return;
        static const wl_registry_listener listener = {
            [](void* self, wl_registry* registry, uint32_t name, const char* interface, uint32_t) {
                static_cast<Person*>(self)->bind(registry, name, interface);
            },
            [](void*, wl_registry*, uint32_t) {}};
        wl_registry* registry = wl_display_get_registry(connection);
        wl_registry_add_listener(registry, &listener, this);
        wl_display_roundtrip(connection);
        wl_registry_destroy(registry);
        if (!seat || !pointers || !keyboards)
            return;
        pointer = wl_proxy_marshal_flags(pointers, Create, &virtualPointer, 1, 0, seat, nullptr);
        keyboard = wl_proxy_marshal_flags(keyboards, Create, &virtualKeyboard, 1, 0, seat, nullptr);
        QTemporaryFile file;
        if (file.open() && file.write(keymap, sizeof keymap) && file.flush())
            wl_proxy_marshal_flags(keyboard, Keymap, nullptr, 1, 0, keymapIsText, file.handle(),
                                   uint32_t(sizeof keymap));
        wl_display_roundtrip(connection);
    }
    ~Person()
    {
        if (!connection)
            return;
        for (wl_proxy* proxy : {pointer, keyboard, pointers, keyboards, seat}) {
            if (proxy)
                wl_proxy_destroy(proxy);
        }
        wl_display_disconnect(connection);
    }
    Person(const Person&) = delete;
    Person& operator=(const Person&) = delete;

    void bind(wl_registry* registry, uint32_t name, const char* interface)
    {
        const auto take = [&](const wl_interface& wanted, wl_proxy*& proxy) {
            if (qstrcmp(interface, wanted.name) == 0)
                proxy = static_cast<wl_proxy*>(wl_registry_bind(registry, name, &wanted, 1));
        };
        take(wl_seat_interface, seat);
        take(virtualPointerManager, pointers);
        take(virtualKeyboardManager, keyboards);
    }

    template <typename... Argument>
    void point(Request request, Argument... argument) const
    {
        wl_proxy_marshal_flags(pointer, request, nullptr, 1, 0, argument...);
        wl_proxy_marshal_flags(pointer, Frame, nullptr, 1, 0);
        wl_display_roundtrip(connection);
    }

    void sendKey(unsigned code, unsigned modifiers) const
    {
        wl_proxy_marshal_flags(keyboard, Modifiers, nullptr, 1, 0, modifiers, 0U, 0U, 0U);
        for (const unsigned isDown : {1U, 0U})
            wl_proxy_marshal_flags(keyboard, Key, nullptr, 1, 0, time(), code, isDown);
        wl_proxy_marshal_flags(keyboard, Modifiers, nullptr, 1, 0, 0U, 0U, 0U, 0U);
        wl_display_roundtrip(connection);
    }

    [[nodiscard]] uint32_t time() const { return uint32_t(clock.elapsed()); }

    wl_display* connection;
    wl_proxy* seat = nullptr;
    wl_proxy* pointers = nullptr;
    wl_proxy* keyboards = nullptr;
    wl_proxy* pointer = nullptr;
    wl_proxy* keyboard = nullptr;
    QElapsedTimer clock;
};

WaylandServer::WaylandServer(QSize screen, int scale) : m_screen(screen), m_scale(scale)
{
    writeConfiguration();
    start();
    m_person = std::make_unique<Person>(m_display);
}

WaylandServer::~WaylandServer()
{
    m_person.reset();
    m_server.terminate();
    m_server.waitForFinished(patience);
}

void WaylandServer::writeConfiguration() const
{
    QFile file(m_folder.filePath("config"));
    if (!file.open(QIODevice::WriteOnly))
        return;
    QTextStream(&file) << "output HEADLESS-1 resolution " << m_screen.width() << 'x' << m_screen.height()
                       << " position 0 0 scale " << m_scale
                       << "\ndefault_border none\ndefault_floating_border none\nxwayland disable\n"
                          "for_window [app_id=\".*\"] floating enable\n";
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther);
}

void WaylandServer::start()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("XDG_RUNTIME_DIR", m_folder.path());
    environment.insert("WLR_BACKENDS", "headless");
    environment.insert("WLR_LIBINPUT_NO_DEVICES", "1");
    environment.insert("WLR_RENDERER", "pixman");
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "SWAYSOCK"})
        environment.remove(name);
    m_server.setProcessEnvironment(environment);
    m_server.setStandardErrorFile(m_folder.filePath("log"));
    QStringList command{"sway", "-c", m_folder.filePath("config")};
    if (geteuid() == 0) {
        if (chown(qPrintable(m_folder.path()), nobody, nobody) != 0)
            return;
        const QString id = QString::number(nobody);
        command = QStringList{"setpriv", "--reuid", id, "--regid", id, "--clear-groups"} + command;
    }
    m_server.start(command.takeFirst(), command);
    const auto find = [this](const char* pattern) {
        return QDir(m_folder.path()).entryList({pattern}, QDir::System).value(0);
    };
    QElapsedTimer timer;
    timer.start();
    while ((find("wayland-?").isEmpty() || find("sway-ipc*").isEmpty()) && timer.elapsed() < patience)
        QThread::msleep(10);
    m_display = m_folder.filePath(find("wayland-?"));
}

bool WaylandServer::isReady() const
{
    return m_person->pointer;
}

QByteArray WaylandServer::run(const QString& program, const QStringList& arguments) const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("XDG_RUNTIME_DIR", m_folder.path());
    environment.insert("WAYLAND_DISPLAY", m_display);
    environment.insert(
        "SWAYSOCK",
        m_folder.filePath(QDir(m_folder.path()).entryList({"sway-ipc*"}, QDir::System).value(0)));
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    process.waitForFinished(patience);
    return process.readAllStandardOutput();
}

void WaylandServer::moveTo(QPoint to)
{
    m_person->point(MotionAbsolute, m_person->time(), uint32_t(to.x()), uint32_t(to.y()),
                    uint32_t(m_screen.width()), uint32_t(m_screen.height()));
}

void WaylandServer::press()
{
    m_person->point(Button, m_person->time(), uint32_t(BTN_LEFT), uint32_t(1));
}

void WaylandServer::release()
{
    m_person->point(Button, m_person->time(), uint32_t(BTN_LEFT), uint32_t(0));
}

void WaylandServer::click(QPoint at)
{
    moveTo(at);
    press();
    release();
}

void WaylandServer::key(const char* name, bool withControl)
{
    for (const auto& row : keys) {
        if (qstrcmp(row.name, name) == 0) {
            m_person->sendKey(row.code, withControl ? control : 0);
            return;
        }
    }
    qFatal("The keyboard has no key %s", name);
}

QImage WaylandServer::screenshot() const
{
    return QImage::fromData(run("grim", {"-t", "ppm", "-"})).convertToFormat(QImage::Format_ARGB32);
}

QList<QRect> WaylandServer::windows() const
{
    QList<QRect> found;
    QList<QJsonObject> nodes{QJsonDocument::fromJson(run("swaymsg", {"-r", "-t", "get_tree"})).object()};
    while (!nodes.isEmpty()) {
        const QJsonObject node = nodes.takeLast();
        const QJsonObject rect = node["rect"].toObject();
        if (node.contains("pid"))
            found.append(QRect(rect["x"].toInt() * m_scale, rect["y"].toInt() * m_scale,
                               rect["width"].toInt() * m_scale, rect["height"].toInt() * m_scale));
        for (const char* children : {"nodes", "floating_nodes"}) {
            for (const QJsonValue child : node[children].toArray())
                nodes.append(child.toObject());
        }
    }
    return found;
}

void WaylandServer::resizeWindow(QSize size)
{
    (void)run("swaymsg",
              {QString("resize set width %1 px height %2 px").arg(size.width()).arg(size.height())});
}

QRect WaylandServer::waitForWindow(QSize size) const
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < patience) {
        const QList<QRect> all = windows();
        for (const QRect& window : all) {
            if (window.size() == size)
                return window;
        }
        QThread::msleep(20);
    }
    return {};
}

} // namespace support
