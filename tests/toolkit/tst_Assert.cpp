#include "KORVA_Assert.h"
#include "support/TestCase.h"

#include <csignal>

using support::ChildProcess;

class tst_Assert : public support::TestCase
{
    Q_OBJECT

public:
    static constexpr int failingLine = __LINE__ + 1;
    Q_INVOKABLE void fails() { KORVA_ASSERT((m_calls == 1) || !isTrue()); }
    Q_INVOKABLE void failsInTheEngine() { korvaAssertionFailed("e", "/home/me/src/KORVA_Canvas.cpp", 12); }
    Q_INVOKABLE void failsWithoutFolder() { korvaAssertionFailed("e", "KORVA_Canvas.cpp", 12); }
    Q_INVOKABLE void failsWithARelativePath() { korvaAssertionFailed("e", "src/KORVA_Canvas.cpp", 12); }
    Q_INVOKABLE void failsWithoutExtension() { korvaAssertionFailed("e", "/a/b/c/d", 12); }

private slots:
    void abortsWithTheTrueLine();
    void sourceIsNamedByFolderAndStem_data();
    void sourceIsNamedByFolderAndStem();
    void evaluatesOnceAndGoesOn();

private:
    bool isTrue() { return ++m_calls > 0; }

    int m_calls = 0;
};

void tst_Assert::abortsWithTheTrueLine()
{
    const ChildProcess child = ChildProcess::run("fails");
    QCOMPARE(child.signal, SIGABRT);
    QCOMPARE(child.errors,
             QString("Assertion \"(m_calls == 1) || !isTrue()\" failed in toolkit/tst_Assert, line %1\n")
                 .arg(failingLine));
    QCOMPARE(child.output, QString());
}

void tst_Assert::sourceIsNamedByFolderAndStem_data()
{
    QTest::addColumn<QString>("source");
    QTest::newRow("failsInTheEngine") << "src/KORVA_Canvas";
    QTest::newRow("failsWithoutFolder") << "KORVA_Canvas";
    QTest::newRow("failsWithARelativePath") << "src/KORVA_Canvas";
    QTest::newRow("failsWithoutExtension") << "c/d";
}

void tst_Assert::sourceIsNamedByFolderAndStem()
{
    QFETCH(const QString, source);
    const ChildProcess child = ChildProcess::run(QTest::currentDataTag());
    QCOMPARE(child.signal, SIGABRT);
    QCOMPARE(child.errors, "Assertion \"e\" failed in " + source + ", line 12\n");
}

void tst_Assert::evaluatesOnceAndGoesOn()
{
    KORVA_ASSERT(isTrue());
    QCOMPARE(m_calls, 1);
}

int main(int argc, char** argv)
{
    return support::run<tst_Assert>(argc, argv);
}

#include "tst_Assert.moc"
