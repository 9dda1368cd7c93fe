#pragma once

#include "ChildProcess.h"

#include <QtTest>
#include <QtWidgets>

namespace support {

/// The base of every test class: a warning that Qt logs fails the test function during which it is logged.
class TestCase : public QObject
{
    Q_OBJECT

protected slots:
    void init();
};

/// The main() of a test program.
template <typename Test>
int run(int argc, char** argv)
{
    QApplication app(argc, argv);
    Test test;
    if (const std::optional<int> exitCode = ChildProcess::runCase(test, QApplication::arguments()))
        return *exitCode;
    return QTest::qExec(&test, argc, argv);
}

} // namespace support
