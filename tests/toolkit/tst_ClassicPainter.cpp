#include "KORVA_ClassicPainter.h"
#include "support/TestCase.h"

class tst_ClassicPainter : public support::TestCase
{
    Q_OBJECT

private slots:
    void thinRectangleCoversItsSize();
};

void tst_ClassicPainter::thinRectangleCoversItsSize()
{
    QPixmap canvas = classic::filled(QSize(40, 30), Qt::white);
    KORVA_ClassicPainter(&canvas).drawRect(10, 10, 20, 10);
    QImage expected(40, 30, QImage::Format_RGB32);
    expected.fill(Qt::white);
    for (int y = 10; y < 20; ++y)
        for (int x = 10; x < 30; ++x)
            if (x == 10 || x == 29 || y == 10 || y == 19)
                expected.setPixel(x, y, 0xff000000);
    QCOMPARE(canvas.toImage(), expected);
}

int main(int argc, char** argv)
{
    return support::run<tst_ClassicPainter>(argc, argv);
}

#include "tst_ClassicPainter.moc"
