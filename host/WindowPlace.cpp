#include "WindowPlace.h"

#include "Settings.h"

#include <QScreen>
#include <QSettings>
#include <QWidget>

namespace pad {

namespace {

constexpr auto scaleKey = "scale";
constexpr auto sizeKey = "size"; // in logical pixels
constexpr auto stateKey = "state";

constexpr struct
{
    Qt::WindowState state;
    const char* name;
} states[] = {
    {Qt::WindowFullScreen, "fullscreen"},
    {Qt::WindowMaximized, "maximized"},
};

} // namespace

WindowPlace::WindowPlace(const QSize& screen)
    : m_group(QStringLiteral("window-%1x%2").arg(screen.width()).arg(screen.height()))
{
    QSettings settings(settingsFile(), QSettings::IniFormat);
    settings.beginGroup(m_group);
    if (const int scale = settings.value(scaleKey).toInt(); scale > 0)
        m_scale = scale;
}

void WindowPlace::restore(QWidget& window) const
{
    QSettings settings(settingsFile(), QSettings::IniFormat);
    settings.beginGroup(m_group);
    const QSize room = window.screen()->availableSize();
    if (const QSize size = settings.value(sizeKey).toSize(); size.isValid())
        window.resize(size.boundedTo(room).expandedTo(window.minimumSize()));
    const QString state = settings.value(stateKey).toString();
    for (const auto& row : states) {
        if (state == QLatin1String(row.name))
            window.setWindowState(row.state);
    }
}

void WindowPlace::save(const QWidget& window) const
{
    QSettings settings(settingsFile(), QSettings::IniFormat);
    settings.beginGroup(m_group);
    if (m_scale)
        settings.setValue(scaleKey, *m_scale);
    settings.remove(stateKey);
    for (const auto& row : states) {
        if (window.windowState() & row.state && !settings.contains(stateKey))
            settings.setValue(stateKey, QString::fromLatin1(row.name));
    }
    const bool isPlain = !settings.contains(stateKey);
    const QSize size = isPlain ? window.size() : window.normalGeometry().size();
    if (!size.isEmpty())
        settings.setValue(sizeKey, size);
}

} // namespace pad
