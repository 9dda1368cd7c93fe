#include "PadProcess.h"

namespace support {

namespace {

constexpr int patience = 20'000; // ms; the sanitizers are slow to start

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
