#include "ScreenReader.h"

#include <QtDBus>
#include <QtTest>

namespace support {

namespace {

constexpr int patience = 20'000; // ms
constexpr auto accessibleInterface = "org.a11y.atspi.Accessible";
constexpr auto objectEvents = "org.a11y.atspi.Event.Object";
constexpr auto registry = "org.a11y.atspi.Registry";
constexpr auto root = "/org/a11y/atspi/accessible/root";

/// An object of a program on the bus.
struct Object
{
    QString service;
    QDBusObjectPath path;
};

const QDBusArgument& operator>>(const QDBusArgument& argument, Object& object)
{
    argument.beginStructure();
    argument >> object.service >> object.path;
    argument.endStructure();
    return argument;
}

QDBusMessage call(const QDBusConnection& bus, const Object& object, const char* interface,
                  const char* method, const QVariantList& arguments = {})
{
    QDBusMessage question =
        QDBusMessage::createMethodCall(object.service, object.path.path(), interface, method);
    question.setArguments(arguments);
    return bus.call(question, QDBus::Block, patience);
}

QString readProperty(const QDBusConnection& bus, const Object& object, const char* name)
{
    const QDBusMessage answer =
        call(bus, object, "org.freedesktop.DBus.Properties", "Get", {accessibleInterface, name});
    return answer.arguments().value(0).value<QDBusVariant>().variant().toString();
}

QList<Object> childrenOf(const QDBusConnection& bus, const Object& object)
{
    QList<Object> children;
    const auto array =
        call(bus, object, accessibleInterface, "GetChildren").arguments().value(0).value<QDBusArgument>();
    if (array.currentType() != QDBusArgument::ArrayType)
        return children;
    array.beginArray();
    while (!array.atEnd()) {
        Object child;
        array >> child;
        children.append(child);
    }
    array.endArray();
    return children;
}

ScreenReader::Node read(const QDBusConnection& bus, const Object& object, const QString& above)
{
    ScreenReader::Node node;
    node.role = call(bus, object, accessibleInterface, "GetRoleName").arguments().value(0).toString();
    node.name = readProperty(bus, object, "Name");
    node.description = readProperty(bus, object, "Description");
    node.path = above + " / " + node.role + " \"" + node.name + '"';
    const auto states =
        qdbus_cast<QList<uint>>(call(bus, object, accessibleInterface, "GetState").arguments().value(0));
    node.states = states.value(0) | quint64(states.value(1)) << 32;
    for (const Object& child : childrenOf(bus, object))
        node.children.append(read(bus, child, node.path));
    return node;
}

} // namespace

struct ScreenReader::Bus
{
    QProcess daemon;
    QByteArray addressBefore = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    QDBusConnection connection{QString()};
};

ScreenReader::ScreenReader() : m_bus(std::make_unique<Bus>())
{
    m_bus->daemon.setProcessChannelMode(QProcess::SeparateChannels);
    m_bus->daemon.start("dbus-daemon", {"--session", "--nofork", "--print-address=1"});
    while (!m_bus->daemon.canReadLine() && m_bus->daemon.waitForReadyRead(patience))
        ;
    const QByteArray address = m_bus->daemon.readLine().trimmed();
    qputenv("DBUS_SESSION_BUS_ADDRESS", address);
    qputenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1");
    const QDBusConnection session = QDBusConnection::connectToBus(QString(address), "session");
    const QDBusMessage answer =
        call(session, {"org.a11y.Bus", QDBusObjectPath("/org/a11y/bus")}, "org.a11y.Bus", "GetAddress");
    m_bus->connection =
        QDBusConnection::connectToBus(answer.arguments().value(0).toString(), "accessibility");
    for (const char* event : {"object:property-change", "object:state-changed"})
        call(m_bus->connection, {registry, QDBusObjectPath("/org/a11y/atspi/registry")}, registry,
             "RegisterEvent", {event});
    m_bus->connection.connect({}, {}, objectEvents, "PropertyChange", this, SLOT(hearChange(QDBusMessage)));
    m_bus->connection.connect({}, {}, objectEvents, "StateChanged", this, SLOT(hearState(QDBusMessage)));
}

ScreenReader::~ScreenReader()
{
    QDBusConnection::disconnectFromBus("accessibility");
    QDBusConnection::disconnectFromBus("session");
    m_bus->daemon.terminate();
    m_bus->daemon.waitForFinished(patience);
    qputenv("DBUS_SESSION_BUS_ADDRESS", m_bus->addressBefore);
    qunsetenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON");
}

bool ScreenReader::isReady() const
{
    return m_bus->connection.isConnected() && m_bus->connection.interface()->isServiceRegistered(registry);
}

ScreenReader::Node ScreenReader::program(const QString& name) const
{
    for (const Object& program : childrenOf(m_bus->connection, {registry, QDBusObjectPath(root)})) {
        if (readProperty(m_bus->connection, program, "Name") == name)
            return read(m_bus->connection, program, {});
    }
    return {};
}

void ScreenReader::hearChange(const QDBusMessage& message)
{
    if (message.arguments().value(0) == "accessible-description")
        m_news << readProperty(m_bus->connection, {message.service(), QDBusObjectPath(message.path())},
                               "Description");
}

void ScreenReader::hearState(const QDBusMessage& message)
{
    if (message.arguments().value(0) == "focused" && message.arguments().value(1).toInt() == 1)
        m_focus << readProperty(m_bus->connection, {message.service(), QDBusObjectPath(message.path())},
                                "Name");
}

QList<ScreenReader::Node> ScreenReader::Node::all(const std::function<bool(const Node&)>& condition) const
{
    QList<Node> found;
    if (condition(*this))
        found << *this;
    for (const Node& child : children)
        found << child.all(condition);
    return found;
}

ScreenReader::Node ScreenReader::Node::find(const QString& wantedRole, const QString& wantedName) const
{
    return all([&](const Node& node) { return node.role == wantedRole && node.name == wantedName; })
        .value(0);
}

} // namespace support
