#include "Display.h"

#include <QGuiApplication>
#include <QScreen>

#include <xcb/xcb.h>

namespace pad {

namespace {

constexpr int tallScreen = 900;

bool isSet(const char* variable)
{
    return !qEnvironmentVariableIsEmpty(variable);
}

/// The height of the X screen, asked for directly because that takes less than a millisecond; 0 without
/// one. The connection stays: many a server starts anew when its last client leaves, and would turn away
/// the program that comes right after.
int xScreenHeight()
{
    static const std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> connection(
        xcb_connect(nullptr, nullptr), &xcb_disconnect);
    if (xcb_connection_has_error(connection.get()))
        return 0;
    const auto screen = xcb_setup_roots_iterator(xcb_get_setup(connection.get()));
    return screen.rem ? screen.data->height_in_pixels : 0;
}

int anyScreenHeight()
{
    int argc = 1;
    char name[] = "korva-pad";
    char* argv[] = {name, nullptr};
    const QGuiApplication probe(argc, argv);
    return QGuiApplication::primaryScreen() ? QGuiApplication::primaryScreen()->size().height() : 0;
}

} // namespace

std::optional<Failure> prepareDisplay(const CommandLine& line)
{
    QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    if (platform.isEmpty() && !isSet("DISPLAY") && !isSet("WAYLAND_DISPLAY")) {
        if (!line.endsByItself() && line.replay.isEmpty())
            return Failure{QStringLiteral("there is no display")};
        platform = "offscreen";
        qputenv("QT_QPA_PLATFORM", platform);
    }

    const bool isX = platform.startsWith("xcb") || (platform.isEmpty() && isSet("DISPLAY"));
    const int xHeight = isX ? xScreenHeight() : 0;
    if (isX && xHeight == 0)
        return Failure{QStringLiteral("cannot open display '%1'").arg(qEnvironmentVariable("DISPLAY"))};

    int scale = line.scale.value_or(0);
    if (!scale) {
        const bool hasScreen = platform != "offscreen" && platform != "minimal";
        const int height = isX ? xHeight : hasScreen ? anyScreenHeight() : 0;
        scale = height >= tallScreen ? 2 : 1;
    }
    qputenv("QT_SCALE_FACTOR", QByteArray::number(scale));
    qputenv("QT_ENABLE_HIGHDPI_SCALING", "0"); // the screen's own density must not multiply it
    return {};
}

} // namespace pad
