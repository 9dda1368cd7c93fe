#include "Faults.h"

#include "PictureFiles.h"

#include <unistd.h>

namespace support {

namespace {

constexpr auto preload = "LD_PRELOAD";
constexpr auto sanitizer = "ASAN_OPTIONS";
constexpr auto folderName = "KORVA_FAULT_FOLDER";
constexpr auto logName = "KORVA_FAULT_LOG";
constexpr auto faultName = "KORVA_FAULT";

/// Temporary files have names that nobody else has.
QString withoutChance(QString path)
{
    static const QRegularExpression ends("\\.(png|bmp|jpg)\\.[A-Za-z0-9]{6}$");
    static const QRegularExpression middle("(?<=\\.korva\\.)[0-9a-f]{32}|(?<=living-)[^.]+");
    static const QRegularExpression unnamed("#[0-9]+( \\(deleted\\))?$");
    path.replace(ends, ".\\1.*");
    path.replace(unnamed, "(no name yet)");
    path.remove(" (deleted)");
    return path.replace(middle, "*");
}

} // namespace

void Faults::allow(char** arguments)
{
    const QByteArray before = qgetenv(preload);
    if (before.contains(KORVA_FAULTY_CALLS))
        return;
    qputenv(preload, before.isEmpty() ? QByteArray(KORVA_FAULTY_CALLS) : KORVA_FAULTY_CALLS ":" + before);
    // The sanitizer wants to be the first one; what is before it here only hands on.
    qputenv(sanitizer, qgetenv(sanitizer) + ":verify_asan_link_order=0");
    execv("/proc/self/exe", arguments);
    qFatal("cannot be started anew");
}

Faults::Faults(const QString& folder)
{
    qputenv(logName, m_own.filePath("log").toUtf8());
    restart();
    qputenv(folderName, QFileInfo(folder).canonicalFilePath().toUtf8());
}

Faults::~Faults()
{
    for (const char* name : {folderName, logName, faultName})
        qunsetenv(name);
}

QList<Faults::Call> Faults::taken()
{
    QList<Call> calls;
    QHash<QString, int> counts;
    const QStringList lines =
        QString::fromUtf8(contents(m_own.filePath("log"))).split('\n', Qt::SkipEmptyParts);
    for (const QString& line : lines) {
        const QStringList parts = line.split('\t');
        const int ordinal = ++counts[parts[0] + ' ' + parts[1]];
        calls.append({parts[0], parts[1], withoutChance(parts[3]), withoutChance(parts.value(4)), ordinal,
                      parts[2] == "first"});
    }
    restart();
    return calls;
}

void Faults::fail(const Call& call, int error)
{
    QFile::remove(m_own.filePath("log"));
    qputenv(faultName, QString("%1 %2 %3 %4 %5")
                           .arg(++m_serial)
                           .arg(call.program, call.name)
                           .arg(call.ordinal)
                           .arg(error)
                           .toUtf8());
}

void Faults::letGo()
{
    restart();
}

void Faults::restart()
{
    QFile::remove(m_own.filePath("log"));
    qputenv(faultName, QByteArray::number(++m_serial));
}

} // namespace support
