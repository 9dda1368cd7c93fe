#include "ChildProcess.h"

#include <sys/resource.h>

namespace support {

namespace {

const QString caseOption = "--case";
constexpr int noSuchCase = 127;

} // namespace

ChildProcess ChildProcess::run(const char* caseName)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("ASAN_OPTIONS", "handle_abort=0:detect_leaks=0"); // an abort must look like one
    const QTemporaryDir runtimeFolder; // without one Qt has something to say too
    environment.insert("XDG_RUNTIME_DIR", runtimeFolder.path());
    process.setProcessEnvironment(environment);
    process.setChildProcessModifier([] {
        constexpr rlimit none{0, 0};
        setrlimit(RLIMIT_CORE, &none);
    });
    process.start(QCoreApplication::applicationFilePath(), {caseOption, caseName});
    process.waitForFinished();

    ChildProcess result;
    // Where a process was ended by a signal, QProcess gives its number as the exit code.
    (process.exitStatus() == QProcess::CrashExit ? result.signal : result.exitCode) = process.exitCode();
    result.output = QString::fromUtf8(process.readAllStandardOutput());
    result.errors = QString::fromUtf8(process.readAllStandardError());
    return result;
}

std::optional<int> ChildProcess::runCase(QObject& test, const QStringList& arguments)
{
    if (arguments.size() != 3 || arguments[1] != caseOption)
        return std::nullopt;
    const QMetaObject* meta = test.metaObject();
    const int index = meta->indexOfMethod(arguments[2].toLatin1() + "()");
    int exitCode = noSuchCase;
    if (index >= 0) {
        const QMetaMethod method = meta->method(index);
        exitCode = 0;
        if (method.returnType() == QMetaType::Int)
            method.invoke(&test, Q_RETURN_ARG(int, exitCode));
        else
            method.invoke(&test);
    }
    return exitCode;
}

} // namespace support
