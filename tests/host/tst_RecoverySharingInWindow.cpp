#include "RecoveryFixtures.h"

using namespace fixtures;
using support::contents;
using support::PadOnScreen;

/// Several programs at one recovery folder: whose a drawing is, and who keeps out of it.
class tst_RecoverySharingInWindow : public fixtures::RecoveryTest
{
    Q_OBJECT

private slots:
    void livingDrawingIsNobodyElses();
    void withoutRecoveryNothingIsWrittenNorOffered();
    void replayWritesNoneAndIsOfferedNone();
};

void tst_RecoverySharingInWindow::livingDrawingIsNobodyElses()
{
    QVERIFY(m_pad->start());
    QVERIFY(m_pad->stroke(from, to));
    QVERIFY(waitForLiving());

    PadOnScreen second(m_home->path());
    QVERIFY(second.start());
    QTest::qWait(1000);
    QCOMPARE(second.box(), "");
    QVERIFY(second.stroke(from + below, to + below));
    QTRY_COMPARE_WITH_TIMEOUT(living().size(), 2, patience);
    second.process().kill();

    // The third is offered the second's, and the first goes on.
    PadOnScreen third(m_home->path());
    QVERIFY(third.start());
    QTRY_VERIFY_WITH_TIMEOUT(third.box().startsWith("A drawing of today at "), patience);
    third.key("Return");
    QVERIFY(third.waitForNoBox());
    QVERIFY(third.waitForColor(on + below, Qt::red));
    QVERIFY(third.waitForColor(on, Qt::white));
    QVERIFY(m_pad->stroke(from + 2 * below, to + 2 * below));
    const auto isWritten = [&] {
        for (const QString& file : living()) {
            const QImage picture = inRgb(recovery() + '/' + file);
            if (picture.pixelColor(on) == Qt::red && picture.pixelColor(on + 2 * below) == Qt::red)
                return true;
        }
        return false;
    };
    QTRY_VERIFY_WITH_TIMEOUT(isWritten(), patience);
    QCOMPARE(living().size(), 2);
}

void tst_RecoverySharingInWindow::withoutRecoveryNothingIsWrittenNorOffered()
{
    QVERIFY(m_pad->start({"--no-recovery"}));
    QVERIFY(m_pad->stroke(from, to));
    QTest::qWait(2500);
    m_pad->process().kill();
    QVERIFY(!QFileInfo::exists(recovery()));

    QVERIFY(m_pad->start());
    QVERIFY(m_pad->stroke(from, to));
    QVERIFY(waitForLiving());
    m_pad->process().kill();
    const QStringList left = living();
    QVERIFY(m_pad->start({"--no-recovery"}));
    QVERIFY(isNothingOffered());
    QCOMPARE(living(), left);
}

void tst_RecoverySharingInWindow::replayWritesNoneAndIsOfferedNone()
{
    QVERIFY(m_pad->start());
    QVERIFY(m_pad->stroke(from, to));
    QVERIFY(waitForLiving());
    m_pad->process().kill();
    const QStringList left = living();
    const QByteArray before = contents(recovery() + '/' + left[0]);

    support::write(m_home->filePath("line.rec"), "press 40 90\nmove 90 90\nrelease 90 90\nwait 1500\n");
    QVERIFY(m_pad->start({"--replay", m_home->filePath("line.rec")}));
    QVERIFY(m_pad->waitForColor({70, 90}, Qt::red));
    QTest::qWait(2500); // long after its end
    QVERIFY(isNothingOffered());
    QCOMPARE(living(), left);
    QVERIFY(contents(recovery() + '/' + left[0]) == before);
    QCOMPARE(earlier(), QStringList());
}

int main(int argc, char** argv)
{
    return support::run<tst_RecoverySharingInWindow>(argc, argv);
}

#include "tst_RecoverySharingInWindow.moc"
