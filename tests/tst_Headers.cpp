#include "support/TestCase.h"

/// The shapes are a few lines on top of what they share; it stays that way.
class tst_Headers : public support::TestCase
{
    Q_OBJECT

private slots:
    void shapesAreShort_data();
    void shapesAreShort();
};

void tst_Headers::shapesAreShort_data()
{
    QTest::addColumn<QString>("header");
    for (const char* name : {"KORVA_Line.h", "KORVA_Rectangle.h", "KORVA_Ellipse.h"})
        QTest::newRow(name) << QString(KORVA_SOURCE_DIR "/src/%1").arg(name);
}

void tst_Headers::shapesAreShort()
{
    QFETCH(const QString, header);
    QFile file(header);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const auto lines = file.readAll().count('\n');
    QVERIFY(lines > 0);
    QVERIFY2(lines < 40, qPrintable(QString::number(lines)));
}

int main(int argc, char** argv)
{
    return support::run<tst_Headers>(argc, argv);
}

#include "tst_Headers.moc"
