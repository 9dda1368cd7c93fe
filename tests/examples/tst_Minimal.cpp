#include "support/TestCase.h"
#include "support/XServer.h"

using support::XServer;

namespace {

constexpr int patience = 20'000; // ms
constexpr QSize window(240, 280);
constexpr QPoint undoButton(120, 253);
constexpr QPoint onCanvas(60, 80);

} // namespace

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
    XServer server;
    QVERIFY(server.isReady());
    QProcess example;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("DISPLAY", server.display());
    environment.insert("QT_QPA_PLATFORM", "xcb");
    example.setProcessEnvironment(environment);
    example.start(KORVA_MINIMAL, {});
    const auto end = qScopeGuard([&example] {
        example.terminate();
        example.waitForFinished(patience);
    });
    const QRect place = server.waitForWindow(window);
    QCOMPARE(place.size(), window);
    const auto pixel = [&] { return server.screenshot().pixelColor(place.topLeft() + onCanvas); };
    QTRY_COMPARE_WITH_TIMEOUT(pixel(), QColor(Qt::white), patience);

    server.moveTo(place.topLeft() + onCanvas - QPoint(20, 0));
    server.press();
    server.moveTo(place.topLeft() + onCanvas + QPoint(20, 0));
    server.release();
    QTRY_COMPARE_WITH_TIMEOUT(pixel(), QColor(Qt::red), patience);
    server.click(place.topLeft() + undoButton);
    QTRY_COMPARE_WITH_TIMEOUT(pixel(), QColor(Qt::white), patience);
    QCOMPARE(example.state(), QProcess::Running);
}

int main(int argc, char** argv)
{
    return support::run<tst_Minimal>(argc, argv);
}

#include "tst_Minimal.moc"
