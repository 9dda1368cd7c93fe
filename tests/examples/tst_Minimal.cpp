#include "Example.h"

/// The example that shows how to embed the editor, as a person uses it.
class tst_Minimal : public support::TestCase
{
    Q_OBJECT

private slots:
    void isShort();
    void drawsAndUndoes();
};

void tst_Minimal::isShort()
{
    qsizetype lines = 0;
    for (const char* name : {"main.cpp", "CMakeLists.txt"}) {
        QFile file(QString(KORVA_SOURCE_DIR "/examples/minimal/") + name);
        QVERIFY(file.open(QIODevice::ReadOnly));
        lines += file.readAll().count('\n');
    }
    QVERIFY2(lines <= 25, qPrintable(QString::number(lines)));
}

void tst_Minimal::drawsAndUndoes()
{
    constexpr QSize window(240, 280);
    constexpr QPoint undoKey(120, 253);
    constexpr QPoint onCanvas(60, 80);
    Example example(window);
    QCOMPARE(example.place().size(), window);
    QVERIFY(example.shows(onCanvas, Qt::white));
    example.drag(onCanvas - QPoint(20, 0), onCanvas + QPoint(20, 0));
    QVERIFY(example.shows(onCanvas, Qt::red));
    example.click(undoKey);
    QVERIFY(example.shows(onCanvas, Qt::white));
    QVERIFY(example.isRunning());
}

int main(int argc, char** argv)
{
    return support::run<tst_Minimal>(argc, argv);
}

#include "tst_Minimal.moc"
