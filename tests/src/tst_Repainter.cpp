#include "KORVA_Repainter.h"

#include "support/EventLoop.h"
#include "support/TestCase.h"

namespace {

constexpr int pace = 16; // ms: the screen has 60 Hz
constexpr QSize sheetSize(60, 40);

/// Shows a picture and notes which part of itself it painted.
class Sheet : public QWidget
{
public:
    Sheet()
    {
        setAttribute(Qt::WA_OpaquePaintEvent);
        resize(sheetSize);
        picture.fill(Qt::white);
        show();
        QCoreApplication::processEvents();
        painted.clear();
    }

    void draw(const QRect& rect, const QColor& color)
    {
        QPainter(&picture).fillRect(rect, color);
        repainter.add(rect);
    }
    /// Nothing was painted for so long that the next change is shown at once.
    static void letPass() { QTest::qSleep(pace + 2); }

    QImage picture{sheetSize, QImage::Format_RGB32};
    KORVA_Repainter repainter{this};
    QList<QRect> painted;

protected:
    void paintEvent(QPaintEvent* event) override
    {
        QPainter(this).drawImage(0, 0, picture);
        painted.append(event->region().boundingRect());
    }
};

} // namespace

class tst_Repainter : public support::TestCase
{
    Q_OBJECT

private slots:
    void theFirstChangeIsShownAtOnce();
    void onlyTheRectangleAroundTheChangeIsPainted();
    void whatComesSoonAfterWaitsForTheNextOrTheTime();
    void aSteadyStreamIsPaintedAtThePace();
    void aHiddenWidgetIsPaintedWhenItIsShown();
    void anEmptyChangePaintsNothing();
};

void tst_Repainter::theFirstChangeIsShownAtOnce()
{
    Sheet sheet;
    sheet.draw(QRect(10, 10, 5, 5), Qt::red);
    QCOMPARE(sheet.painted, QList{QRect(10, 10, 5, 5)});
    Sheet::letPass();
    sheet.draw(QRect(20, 10, 5, 5), Qt::red);
    QCOMPARE(sheet.painted.size(), 2);
}

void tst_Repainter::onlyTheRectangleAroundTheChangeIsPainted()
{
    Sheet sheet;
    sheet.draw(QRect(1, 1, 1, 1), Qt::red);
    sheet.draw(QRect(10, 10, 5, 5), Qt::red);
    sheet.draw(QRect(30, 20, 5, 5), Qt::red);
    support::strike(2 * pace);
    QRect area; // where the machine is slow, of more than one painting
    for (const QRect& rect : sheet.painted.mid(1))
        area |= rect;
    QCOMPARE(area, QRect(10, 10, 25, 15));
}

void tst_Repainter::whatComesSoonAfterWaitsForTheNextOrTheTime()
{
    constexpr int changes = 20;
    Sheet sheet;
    QElapsedTimer sinceFirst;
    sinceFirst.start();
    for (int i = 0; i < changes; ++i)
        sheet.draw(QRect(i, i, 1, 1), Qt::red);
    const qsizetype atOnce = sheet.painted.size();
    QCOMPARE_LE(atOnce, 1 + sinceFirst.elapsed() / pace);
    support::strike(pace + 1); // the last change's time was over before
    QVERIFY(!sheet.painted.isEmpty());
    QCOMPARE(sheet.painted.constLast().bottomRight(), QPoint(changes - 1, changes - 1));
    const qsizetype then = sheet.painted.size();
    QCOMPARE_LE(then, atOnce + 1); // all that waited goes together
    support::strike(3 * pace);
    QCOMPARE(sheet.painted.size(), then);
}

void tst_Repainter::aSteadyStreamIsPaintedAtThePace()
{
    constexpr int changes = 300;
    Sheet sheet;
    QElapsedTimer sinceBefore; // begins just before the last painting,
    QElapsedTimer sinceAfter;  // and this just after it
    for (int i = 0; i < changes; ++i) {
        QElapsedTimer change;
        change.start();
        const bool isDue = !sinceAfter.isValid() || sinceAfter.elapsed() >= pace;
        const qsizetype before = sheet.painted.size();
        sheet.draw(QRect(i % sheetSize.width(), i % sheetSize.height(), 1, 1), Qt::red);
        const bool isPainted = sheet.painted.size() > before;
        QVERIFY2(isPainted || !isDue, qPrintable(QString::number(i)));
        if (isPainted) {
            QVERIFY(!sinceBefore.isValid() || sinceBefore.elapsed() >= pace);
            sinceBefore = change;
            sinceAfter.start();
        }
        QTest::qSleep(1);
    }
    QCOMPARE_GE(sheet.painted.size(), 10);
}

void tst_Repainter::aHiddenWidgetIsPaintedWhenItIsShown()
{
    Sheet sheet;
    sheet.hide();
    sheet.draw(QRect(0, 0, 60, 40), Qt::green);
    QCOMPARE(sheet.painted, QList<QRect>());
    sheet.show();
    QTRY_COMPARE(sheet.painted.value(0), sheet.rect());
}

void tst_Repainter::anEmptyChangePaintsNothing()
{
    Sheet sheet;
    sheet.draw(QRect(), Qt::red);
    Sheet::letPass();
    QCoreApplication::processEvents();
    QCOMPARE(sheet.painted, QList<QRect>());
}

int main(int argc, char** argv)
{
    return support::run<tst_Repainter>(argc, argv);
}

#include "tst_Repainter.moc"
