#include "StartMessages.h"

#include <QCoreApplication>
#include <QStringList>

#include <cstdio>
#include <cstdlib>

namespace pad::startmessages {

namespace {

struct State
{
    const char* program = "";
    bool isStarting = false;
    QStringList kept;
    QString nothingShown = QStringLiteral("cannot show anything on '%1': %2");
};

State& state()
{
    static State state;
    return state;
}

void say(const QString& line)
{
    std::fprintf(stderr, "%s\n", qPrintable(line));
}

void hear(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (message.startsWith(QLatin1String("QStandardPaths: ")))
        return;
    if (state().isStarting && type != QtFatalMsg) {
        state().kept.append(qFormatLogMessage(type, context, message));
    } else if (state().isStarting) {
        const QString told = reason().isEmpty() ? message.section(QLatin1Char('\n'), 0, 0) : reason();
        const QString place = qEnvironmentVariable("QT_QPA_PLATFORM");
        std::fprintf(stderr, "%s: %s\n", state().program, qPrintable(nothingShown().arg(place, told)));
        std::_Exit(1); // half-started, Qt cannot be taken down in order
    } else {
        say(qFormatLogMessage(type, context, message));
        if (type == QtFatalMsg)
            std::abort();
    }
}

} // namespace

void keep(const char* program)
{
    state().program = program;
    state().isStarting = true;
    qInstallMessageHandler(hear);
}

void translate()
{
    state().nothingShown =
        QCoreApplication::translate("pad::Display", "cannot show anything on '%1': %2", "display");
}

QString nothingShown()
{
    return state().nothingShown;
}

QString reason()
{
    return state().kept.value(0);
}

void forget()
{
    state().kept.clear();
}

void tell()
{
    for (const QString& line : std::as_const(state().kept))
        say(line);
    forget();
    state().isStarting = false;
}

} // namespace pad::startmessages
