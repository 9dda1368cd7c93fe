#include "Screen.h"

#include "support/TestCase.h"

/// At which scale the pad opens on which screen.
class tst_Screen : public support::TestCase
{
    Q_OBJECT

private slots:
    void scales_data()
    {
        QTest::addColumn<QSize>("pixels");
        QTest::addColumn<QSize>("millimetres");
        QTest::addColumn<int>("suitable");
        QTest::addColumn<int>("largest");
        QTest::addColumn<int>("plain");
        const QSize unknown;
        QTest::newRow("the device's own") << QSize(240, 320) << unknown << 1 << 1 << 1;
        QTest::newRow("smaller than the pad") << QSize(160, 120) << unknown << 1 << 1 << 1;
        QTest::newRow("low and wide") << QSize(800, 480) << unknown << 1 << 1 << 1;
        QTest::newRow("low and wide, of a hand's size") << QSize(800, 480) << QSize(154, 86) << 1 << 1 << 1;
        QTest::newRow("laptop") << QSize(1366, 768) << unknown << 1 << 2 << 1;
        QTest::newRow("laptop of 14 inches") << QSize(1366, 768) << QSize(310, 174) << 2 << 2 << 1;
        QTest::newRow("one row too low") << QSize(1600, 899) << unknown << 1 << 2 << 1;
        QTest::newRow("high enough") << QSize(1600, 900) << unknown << 2 << 2 << 2;
        QTest::newRow("desktop") << QSize(1920, 1080) << unknown << 2 << 3 << 2;
        QTest::newRow("counted from 96 dots") << QSize(1366, 768) << QSize(361, 203) << 1 << 2 << 1;
        QTest::newRow("tablet of 10 inches") << QSize(1920, 1200) << QSize(217, 136) << 3 << 3 << 2;
        QTest::newRow("large and fine") << QSize(3840, 2160) << unknown << 4 << 6 << 2;
        QTest::newRow("laptop, fine") << QSize(3840, 2160) << QSize(309, 174) << 4 << 6 << 2;
        QTest::newRow("telephone") << QSize(1080, 2400) << QSize(68, 151) << 4 << 4 << 2;
    }

    void scales()
    {
        QFETCH(QSize, pixels);
        QFETCH(QSize, millimetres);
        pad::Screen screen{pixels};
        screen.setMillimetres(millimetres);
        QTEST(screen.suitableScale(), "suitable");
        QTEST(screen.largestScale(), "largest");
        QTEST(screen.plainScale(), "plain");
    }

    void noKeyIsSmallerThanAFingertipWhereThatFits()
    {
        constexpr int smallestKey = 24;
        for (int density = 30; density <= 600; density += 7) { // dots an inch
            const double dotsPerMillimetre = density / 25.4;
            for (const QSize pixels : {QSize(1366, 768), QSize(1920, 1080), QSize(3840, 2160)}) {
                const pad::Screen screen{pixels, dotsPerMillimetre};
                const int scale = screen.suitableScale();
                QVERIFY(scale == screen.largestScale() || smallestKey * scale / dotsPerMillimetre >= 7);
            }
        }
    }
};

int main(int argc, char** argv)
{
    return support::run<tst_Screen>(argc, argv);
}

#include "tst_Screen.moc"
