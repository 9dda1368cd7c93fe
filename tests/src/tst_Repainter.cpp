#include "KORVA_Repainter.h"

#include "support/TestCase.h"

namespace {

constexpr int pace = 8; // ms
constexpr QSize sheetSize(60, 40);

/// Shows a picture and notes which part of itself it painted, and when.
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
    QTRY_COMPARE(sheet.painted.size(), 2);
    QCOMPARE(sheet.painted.constLast(), QRect(10, 10, 25, 15));
}

void tst_Repainter::whatComesSoonAfterWaitsForTheNextOrTheTime()
{
    Sheet sheet;
    sheet.draw(QRect(1, 1, 1, 1), Qt::red);
    QElapsedTimer sinceChange;
    sinceChange.start();
    sheet.draw(QRect(2, 2, 1, 1), Qt::red);
    if (sinceChange.elapsed() >= pace)
        QSKIP("this machine is too slow to tell");
    QCOMPARE(sheet.painted.size(), 1);
    QTRY_COMPARE(sheet.painted.size(), 2);
    QTest::qWait(3 * pace);
    QCOMPARE(sheet.painted.size(), 2);
}

void tst_Repainter::aSteadyStreamIsPaintedAtThePace()
{
    Sheet sheet;
    QElapsedTimer running;
    running.start();
    int changes = 0;
    while (running.elapsed() < 40 * pace) {
        sheet.draw(QRect(changes % sheetSize.width(), changes % sheetSize.height(), 1, 1), Qt::red);
        ++changes;
        QTest::qSleep(1);
    }
    QVERIFY2(changes > 3 * sheet.painted.size(), qPrintable(QString::number(changes)));
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
