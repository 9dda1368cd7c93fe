#include "Display.h"

#include "Language.h"
#include "StartMessages.h"
#include "XScreen.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QScreen>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstring>

namespace pad {

namespace {

enum class Kind { X, Wayland, Other };

bool isSet(const char* variable)
{
    return !qEnvironmentVariableIsEmpty(variable);
}

Kind kindOf(const QByteArray& platform)
{
    return platform.startsWith("xcb")       ? Kind::X
           : platform.startsWith("wayland") ? Kind::Wayland
                                            : Kind::Other;
}

// --- Wayland

QString waylandName()
{
    return isSet("WAYLAND_DISPLAY") ? qEnvironmentVariable("WAYLAND_DISPLAY") : QStringLiteral("wayland-0");
}

bool waylandAnswers()
{
    if (isSet("WAYLAND_SOCKET"))
        return true;
    const QByteArray path =
        QFile::encodeName(QDir(qEnvironmentVariable("XDG_RUNTIME_DIR")).absoluteFilePath(waylandName()));
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.size() >= qsizetype(sizeof address.sun_path))
        return false;
    std::memcpy(address.sun_path, path.constData(), size_t(path.size()));
    const int socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const bool answers =
        ::connect(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
    ::close(socket);
    return answers;
}

bool waylandPluginIsThere()
{
    QStringList folders = QCoreApplication::libraryPaths();
    folders.append(QLibraryInfo::path(QLibraryInfo::PluginsPath));
    for (QString& folder : folders)
        folder += QLatin1String("/platforms");
    folders.prepend(qEnvironmentVariable("QT_QPA_PLATFORM_PLUGIN_PATH"));
    for (const QString& folder : std::as_const(folders)) {
        if (!QDir(folder).entryList({QStringLiteral("libqwayland-*.so")}).isEmpty())
            return true;
    }
    return false;
}

// --- Which

/// Why the platform can't be used, as the end of a sentence that says what can't be done; none if it can.
std::optional<QString> objection(const QByteArray& platform)
{
    const QString display = QStringLiteral("'%1'");
    switch (kindOf(platform)) {
    case Kind::X:
        if (!xscreen::answers())
            return display.arg(qEnvironmentVariable("DISPLAY"));
        break;
    case Kind::Wayland:
        if (!waylandAnswers())
            return display.arg(waylandName());
        if (!waylandPluginIsThere()) {
            const language::Early words;
            return Display::tr("%1: the toolkit's plugin for Wayland (%2) is not installed",
                               "display; %1: its name, %2: a package")
                .arg(display.arg(waylandName()), QLatin1String("qt6-wayland"));
        }
        break;
    case Kind::Other:
        break;
    }
    return {};
}

QList<QByteArray> candidates(bool needsNobody)
{
    if (isSet("QT_QPA_PLATFORM"))
        return qgetenv("QT_QPA_PLATFORM").split(';');
    QList<QByteArray> list;
    if (isSet("DISPLAY"))
        list.append("xcb");
    if (isSet("WAYLAND_DISPLAY") || isSet("WAYLAND_SOCKET"))
        list.insert(qgetenv("XDG_SESSION_TYPE") == "wayland" ? 0 : list.size(), "wayland");
    if (list.isEmpty() && needsNobody)
        list.append("offscreen");
    return list;
}

std::optional<Screen> anyScreen()
{
    int argc = 1;
    char name[] = "korva";
    char* argv[] = {name, nullptr};
    const QGuiApplication probe(argc, argv);
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (!screen)
        return {};
    const double ratio = screen->devicePixelRatio();
    Screen result{(QSizeF(screen->size()) * ratio).toSize()};
    result.toolkitsOwnRatio = ratio;
    result.setMillimetres(screen->physicalSize().toSize());
    return result;
}

} // namespace

Expected<Display> Display::find(bool needsNobody)
{
    QStringList objections;
    Display display;
    for (const QByteArray& platform : candidates(needsNobody)) {
        const auto reason = objection(platform);
        if (!reason) {
            display.platform = platform;
            break;
        }
        objections.append(*reason);
    }
    if (display.platform.isEmpty()) {
        const language::Early words;
        if (objections.isEmpty())
            return Failure{tr("there is no display", "display")};
        QString names = objections.takeFirst();
        for (const QString& next : std::as_const(objections))
            names = tr("%1 or %2", "display; names of displays").arg(names, next);
        return Failure{tr("cannot open display %1", "display").arg(names)};
    }
    if (display.platform == "minimal")
        display.platform += ":enable_fonts"; // without it there are no letters
    qputenv("QT_QPA_PLATFORM", display.platform);

    if (display.platform == "offscreen" || display.platform.startsWith("minimal"))
        return display;
    if (kindOf(display.platform) == Kind::X)
        display.screen = xscreen::ask();
    if (!display.screen)
        display.screen = anyScreen();
    if (!display.screen) {
        const language::Early words;
        const QString reason = startmessages::reason();
        return Failure{startmessages::nothingShown().arg(
            QString::fromLatin1(display.platform),
            reason.isEmpty() ? tr("there is no screen", "display") : reason)};
    }
    startmessages::forget(); // Qt will say them again
    return display;
}

void Display::setScale(int scale) const
{
    const double factor = scale / (screen ? screen->toolkitsOwnRatio : 1);
    qputenv("QT_SCALE_FACTOR", QByteArray::number(factor));
    qputenv("QT_ENABLE_HIGHDPI_SCALING", "0"); // the screen's own density must not multiply it
}

} // namespace pad
