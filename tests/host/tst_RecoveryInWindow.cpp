#include "RecoveryFixtures.h"

#include <sys/stat.h>

using namespace fixtures;
using support::contents;

/// What is left of a drawing when its program ends before it is saved, and is offered by the next, on a
/// real screen.
class tst_RecoveryInWindow : public fixtures::RecoveryTest
{
    Q_OBJECT

private slots:
    void killedDrawingIsBroughtBack_data();
    void killedDrawingIsBroughtBack();
    void notNowPutsItAmongTheEarlier();
    void programThatIsToldToEndKeepsTheDrawing();
    void nothingIsOfferedOfWhatWasSaved();
};

void tst_RecoveryInWindow::killedDrawingIsBroughtBack_data()
{
    QTest::addColumn<bool>("isNamed");
    QTest::newRow("new drawing") << false;
    QTest::newRow("opened picture") << true;
}

void tst_RecoveryInWindow::killedDrawingIsBroughtBack()
{
    QFETCH(bool, isNamed);
    const QString file = m_pad->pictures() + "/photo.png";
    const QSize size = isNamed ? framedSize : newDrawing;
    m_pad->setPictureSize(size);
    QVERIFY(support::sheet(size).save(file));
    const QByteArray before = contents(file);

    QVERIFY(m_pad->start(isNamed ? QStringList(file) : QStringList()));
    QVERIFY(m_pad->stroke(from, to));
    QVERIFY(waitForLiving());
    m_pad->process().kill();
    struct stat status = {};
    QCOMPARE(stat(QFile::encodeName(recovery()).constData(), &status), 0);
    QCOMPARE(status.st_mode & 0777, 0700U);
    QCOMPARE(stat(QFile::encodeName(recovery() + '/' + living().value(0)).constData(), &status), 0);
    QCOMPARE(status.st_mode & 0777, 0600U);

    QVERIFY(m_pad->start());
    QVERIFY(isOffered(isNamed ? "photo.png" : ""));
    m_pad->key("Return");
    QVERIFY(m_pad->waitForNoBox());
    QVERIFY(m_pad->waitForColor(on, Qt::red));
    QVERIFY(m_pad->waitForTitle(isNamed ? "photo.png* - Korva" : "Drawing* - Korva"));
    QVERIFY(contents(file) == before);

    // It has no name of its own, so that it overwrites nothing.
    m_pad->key("s", {"Control_L"});
    QVERIFY(m_pad->waitForBox(saveDialog));
    m_pad->key("Return");
    QVERIFY(m_pad->waitForBox(saved));
    const QString written = m_pad->pictures() + (isNamed ? "/photo 2.png" : "/Drawing.png");
    QVERIFY(support::sameImage(inRgb(written), withStroke(support::sheet(size))));
    QVERIFY(contents(file) == before);
    QTRY_COMPARE_WITH_TIMEOUT(living(), QStringList(), patience);
}

void tst_RecoveryInWindow::notNowPutsItAmongTheEarlier()
{
    QVERIFY(m_pad->start());
    QVERIFY(m_pad->stroke(from, to));
    QVERIFY(waitForLiving());
    m_pad->process().kill();

    QVERIFY(m_pad->start());
    QVERIFY(isOffered());
    m_pad->key("Tab");
    m_pad->key("Return");
    QVERIFY(m_pad->waitForNoBox());
    QTRY_COMPARE_WITH_TIMEOUT(earlier().size(), 1, patience);
    QCOMPARE(living(), QStringList());
    QVERIFY(m_pad->waitForColor(on, Qt::white));
    QCOMPARE(m_pad->title(), "Drawing - Korva");
    QVERIFY(
        support::sameImage(inRgb(recovery() + '/' + earlier()[0]), withStroke(support::sheet(newDrawing))));
    m_pad->process().kill();

    QVERIFY(m_pad->start()); // and is not offered again
    QVERIFY(isNothingOffered());
}

void tst_RecoveryInWindow::programThatIsToldToEndKeepsTheDrawing()
{
    QVERIFY(m_pad->start());
    QVERIFY(m_pad->stroke(from, to));
    m_pad->process().terminate(); // long before it would have been written
    QVERIFY(m_pad->process().waitForEnd());
    QCOMPARE(m_pad->process().exitCode(), 0);
    QCOMPARE(living().size(), 1);

    QVERIFY(m_pad->start());
    QVERIFY(isOffered());
    m_pad->process().terminate(); // and while it is asked
    QVERIFY(m_pad->process().waitForEnd());
    QCOMPARE(living().size() + earlier().size(), 1);
    const QString kept = recovery() + '/' + (living() + earlier())[0];
    QVERIFY(support::sameImage(inRgb(kept), withStroke(support::sheet(newDrawing))));
}

void tst_RecoveryInWindow::nothingIsOfferedOfWhatWasSaved()
{
    const QString file = m_pad->pictures() + "/photo.png";
    m_pad->setPictureSize(framedSize);
    QVERIFY(support::sheet(framedSize).save(file));
    QVERIFY(m_pad->start({file}));
    QVERIFY(m_pad->stroke(from, to));
    QVERIFY(waitForLiving());
    m_pad->key("s", {"Control_L"});
    QVERIFY(m_pad->waitForBox(saved));
    QTRY_COMPARE_WITH_TIMEOUT(living(), QStringList(), patience);
    m_pad->process().kill();
    QVERIFY(m_pad->start());
    QVERIFY(isNothingOffered());
}

int main(int argc, char** argv)
{
    return support::run<tst_RecoveryInWindow>(argc, argv);
}

#include "tst_RecoveryInWindow.moc"
