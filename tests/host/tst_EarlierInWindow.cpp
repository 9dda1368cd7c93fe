#include "RecoveryFixtures.h"

#include <KORVA_Journal.h>

using namespace fixtures;

/// The earlier drawings: what is given up is kept among them and comes back from there.
class tst_EarlierInWindow : public fixtures::RecoveryTest
{
    Q_OBJECT

private slots:
    void whatIsGivenUpIsKept_data();
    void whatIsGivenUpIsKept();
    void earlierDrawingIsBroughtBack();
    void oldestOfAllIsBroughtBack();
    void theNewestTwentyAreKept();
};

namespace {

enum class Way { Close, Open, New, Clear };

} // namespace

void tst_EarlierInWindow::whatIsGivenUpIsKept_data()
{
    QTest::addColumn<int>("way");
    QTest::newRow("closed") << int(Way::Close);
    QTest::newRow("another one opened") << int(Way::Open);
    QTest::newRow("new one") << int(Way::New);
    QTest::newRow("cleared") << int(Way::Clear);
}

void tst_EarlierInWindow::whatIsGivenUpIsKept()
{
    QFETCH(int, way);
    QVERIFY(support::sheet(framedSize, Qt::blue).save(m_pad->pictures() + "/blue.png"));
    QVERIFY(m_pad->start());
    QVERIFY(m_pad->stroke(from, to));
    const auto answerNo = [this](const char* question) {
        if (!m_pad->waitForBox(question))
            return false;
        m_pad->key("Tab");
        m_pad->key("Return");
        return true;
    };
    switch (Way(way)) {
    case Way::Close:
        m_pad->key("q", {"Control_L"});
        QVERIFY(answerNo("Save changes to drawing before closing?"));
        QVERIFY(m_pad->process().waitForEnd());
        break;
    case Way::Open:
        m_pad->key("o", {"Control_L"});
        QVERIFY(answerNo("Save changes to drawing before opening?"));
        QVERIFY(m_pad->waitForBox("Open picture"));
        m_pad->key("Home");
        m_pad->key("Return");
        QVERIFY(m_pad->waitForTitle("blue.png - Korva"));
        break;
    case Way::New:
        m_pad->key("n", {"Control_L"});
        QVERIFY(answerNo("Save changes to drawing before creating?"));
        QTRY_VERIFY_WITH_TIMEOUT(m_pad->boxPlace().isValid() && !m_pad->box().startsWith("Save"), patience);
        QTest::qWait(300);
        m_pad->key("Return");
        QVERIFY(m_pad->waitForBox("How many colors?"));
        m_pad->key("Return");
        QVERIFY(m_pad->waitForTitle("Drawing - Korva"));
        break;
    case Way::Clear:
        m_pad->key("l", {"Control_L"});
        QVERIFY(m_pad->waitForColor(on, Qt::white));
        break;
    }
    QTRY_COMPARE_WITH_TIMEOUT(earlier().size(), 1, patience);
    QVERIFY(
        support::sameImage(inRgb(recovery() + '/' + earlier()[0]), withStroke(support::sheet(newDrawing))));
}

void tst_EarlierInWindow::earlierDrawingIsBroughtBack()
{
    QVERIFY(m_pad->start());
    m_pad->key("e", {"Control_L"});
    QVERIFY(m_pad->waitForBox("Earlier drawings", "host_tst_EarlierInWindow-none"));
    m_pad->key("Escape");
    QVERIFY(m_pad->waitForNoBox());

    QVERIFY(m_pad->stroke(from, to));
    m_pad->key("l", {"Control_L"});
    QVERIFY(m_pad->waitForColor(on, Qt::white));
    QTRY_COMPARE_WITH_TIMEOUT(earlier().size(), 1, patience);
    QVERIFY(m_pad->stroke(from + below, to + below));
    m_pad->key("l", {"Control_L"});
    QVERIFY(m_pad->waitForColor(on + below, Qt::white));
    QTRY_COMPARE_WITH_TIMEOUT(earlier().size(), 2, patience);

    m_pad->key("e", {"Control_L"});
    QVERIFY(m_pad->waitForBox("Earlier drawings", "host_tst_EarlierInWindow-earlier"));
    m_pad->key("Down"); // the older one
    m_pad->key("Return");
    QVERIFY(m_pad->waitForBox("Save changes to drawing before bringing another one back?",
                              "host_tst_EarlierInWindow-changes"));
    m_pad->key("Tab");
    m_pad->key("Return"); // No
    QVERIFY(m_pad->waitForNoBox());
    QVERIFY(m_pad->waitForColor(on, Qt::red));
    QVERIFY(m_pad->waitForColor(on + below, Qt::white));
    QVERIFY(m_pad->waitForTitle("Drawing* - Korva"));
    QTRY_COMPARE_WITH_TIMEOUT(earlier().size(), 3, patience); // the one that it replaced, too
    QVERIFY(waitForLiving());
    QVERIFY(
        support::sameImage(inRgb(recovery() + '/' + living()[0]), withStroke(support::sheet(newDrawing))));
}

void tst_EarlierInWindow::oldestOfAllIsBroughtBack()
{
    QVERIFY(QDir().mkpath(recovery()));
    for (int i = 0; i < KORVA_Journal::mostEarlier; ++i) {
        const QImage picture = i ? support::sheet(newDrawing) : withStroke(support::sheet(newDrawing));
        QVERIFY(picture.save(
            QString("%1/earlier-20200101-0000%2-000-0.png").arg(recovery()).arg(i, 2, 10, QChar('0'))));
    }
    QVERIFY(m_pad->start());
    QVERIFY(m_pad->stroke(from + below, to + below));
    m_pad->key("e", {"Control_L"});
    QVERIFY(m_pad->waitForBox("Earlier drawings"));
    m_pad->key("End");
    m_pad->key("Return");
    QVERIFY(m_pad->waitForBox("Save changes to drawing before bringing another one back?"));
    m_pad->key("Tab");
    m_pad->key("Return"); // No: what is kept of this one makes the oldest one too many
    QVERIFY(m_pad->waitForNoBox());
    QVERIFY(m_pad->waitForColor(on, Qt::red));
    QVERIFY(m_pad->waitForColor(on + below, Qt::white));
}

void tst_EarlierInWindow::theNewestTwentyAreKept()
{
    QVERIFY(m_pad->start());
    QStringList all;
    for (int i = 0; i < 25; ++i) {
        const QPoint down(0, 5 * i);
        QVERIFY(m_pad->stroke(from + down, to + down));
        m_pad->key("l", {"Control_L"});
        QVERIFY(m_pad->waitForColor(on + down, Qt::white));
        const auto isKept = [&] { return !earlier().isEmpty() && !all.contains(earlier().constLast()); };
        QTRY_VERIFY_WITH_TIMEOUT(isKept(), patience);
        all.append(earlier().constLast());
    }
    QTRY_COMPARE_WITH_TIMEOUT(earlier(), all.last(KORVA_Journal::mostEarlier), patience);
}

int main(int argc, char** argv)
{
    return support::run<tst_EarlierInWindow>(argc, argv);
}

#include "tst_EarlierInWindow.moc"
