#include "PadProcess.h"

#include "CommandLine.h"

namespace support {

namespace {

constexpr int patience = 20'000; // ms; the sanitizers are slow to start

/// A scripted run leaves no settings behind, and tests look whether that is so.
bool isScripted(const QStringList& arguments)
{
    const auto parsed = pad::CommandLine::parse(arguments);
    const auto* line = std::get_if<pad::CommandLine>(&parsed);
    return !line || line->isScripted();
}

void rememberStart(const QString& folder)
{
    const QString key = "start/buttons";
    QSettings settings(folder + "/korva/pad.conf", QSettings::IniFormat);
    if (!settings.contains(key))
        settings.setValue(key, true);
}

} // namespace

PadProcess::PadProcess(const QStringList& arguments, const QString& display, const QString& folder,
                       const QString& home, const QStringList& through)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    if (!display.isEmpty()) {
        environment.insert("DISPLAY", display);
        environment.insert("QT_QPA_PLATFORM", "xcb");
    }
    const QString user = home.isEmpty() ? m_ownHome.path() : home;
    for (const char* variable : {"XDG_STATE_HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME"})
        environment.insert(variable, user + '/' + variable);
    if (!isScripted(arguments))
        rememberStart(user + "/XDG_CONFIG_HOME");
    m_process.setProcessEnvironment(environment);
    m_process.setWorkingDirectory(folder);
    const QStringList command = through + QStringList{KORVA_PAD} + arguments;
    m_process.start(command.constFirst(), command.sliced(1));
    m_process.waitForStarted(patience);
}

PadProcess::~PadProcess()
{
    if (!isRunning())
        return;
    m_process.terminate();
    m_process.waitForFinished(patience);
}

void PadProcess::kill()
{
    m_process.kill();
    m_process.waitForFinished(patience);
}

bool PadProcess::waitForEnd()
{
    return !isRunning() || m_process.waitForFinished(patience);
}

bool PadProcess::isRunning() const
{
    return m_process.state() != QProcess::NotRunning;
}

int PadProcess::exitCode() const
{
    return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
}

QString PadProcess::output()
{
    return QString::fromUtf8(m_process.readAllStandardOutput());
}

QString PadProcess::errors()
{
    return QString::fromUtf8(m_process.readAllStandardError());
}

} // namespace support
