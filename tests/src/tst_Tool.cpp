#include "Fixtures.h"

#include <csignal>

using fixtures::RecordingTool;
using support::ChildProcess;

class tst_Tool : public support::TestCase
{
    Q_OBJECT

public:
    Q_INVOKABLE void deactivatesFreshTool();
    Q_INVOKABLE void deactivatesTwice();
    Q_INVOKABLE void activatesOnBusyCanvas();

private slots:
    void newToolIsIdleAndUnnumbered();
    void activatingSeesTheCanvas();
    void deactivatingStillSeesTheCanvas();
    void toolLeavesTheCanvasAlone();
    void toolCanBeUsedAgain();
    void programmingErrorsAbort_data();
    void programmingErrorsAbort();
    void pensAndBrushesAreKept();
    void baseHandlersDoNothing();
};

void tst_Tool::newToolIsIdleAndUnnumbered()
{
    const KORVA_Tool unnamed;
    const KORVA_Tool named("Pencil");
    QCOMPARE(unnamed.name(), QString());
    QCOMPARE(named.name(), "Pencil");
    for (const KORVA_Tool* tool : {&unnamed, &named}) {
        QCOMPARE(tool->id(), -1);
        QVERIFY(!tool->isActive());
        QVERIFY(!tool->getTextKey());
        QVERIFY(!tool->canvas());
        QCOMPARE(tool->leftPen(), QPen());
        QCOMPARE(tool->rightPen(), QPen());
        QCOMPARE(tool->leftBrush(), QBrush());
        QCOMPARE(tool->rightBrush(), QBrush());
    }
}

void tst_Tool::activatingSeesTheCanvas()
{
    KORVA_Canvas canvas(nullptr, 10, 10);
    RecordingTool tool;
    tool.activate(&canvas);
    QCOMPARE(tool.log, QStringList("activating"));
    QVERIFY(tool.isActive());
    QCOMPARE(tool.canvas(), &canvas);
}

void tst_Tool::deactivatingStillSeesTheCanvas()
{
    KORVA_Canvas canvas(nullptr, 10, 10);
    RecordingTool tool;
    tool.activate(&canvas);
    tool.deactivate();
    QCOMPARE(tool.log, QStringList({"activating", "deactivating"}));
    QVERIFY(!tool.isActive());
    QVERIFY(!tool.canvas());
}

void tst_Tool::toolLeavesTheCanvasAlone()
{
    KORVA_Canvas canvas(nullptr, 10, 10);
    RecordingTool tool;
    tool.activate(&canvas);
    QVERIFY(!canvas.isActive()); // the manager's part
    canvas.activate(&tool);
    tool.deactivate();
    QVERIFY(canvas.isActive());
    canvas.deactivate();
}

void tst_Tool::toolCanBeUsedAgain()
{
    KORVA_Canvas canvas(nullptr, 10, 10);
    RecordingTool tool;
    for (int turn = 0; turn < 3; ++turn) {
        fixtures::use(canvas, tool);
        fixtures::stopUsing(canvas, tool);
    }
    QCOMPARE(tool.log.count("activating"), 3);
    QCOMPARE(tool.log.count("deactivating"), 3);
}

void tst_Tool::deactivatesFreshTool()
{
    KORVA_Tool().deactivate();
}

void tst_Tool::deactivatesTwice()
{
    KORVA_Canvas canvas(nullptr, 10, 10);
    KORVA_Tool tool;
    tool.activate(&canvas);
    tool.deactivate();
    tool.deactivate();
}

void tst_Tool::activatesOnBusyCanvas()
{
    KORVA_Canvas canvas(nullptr, 10, 10);
    KORVA_Tool first;
    KORVA_Tool second;
    fixtures::use(canvas, first);
    second.activate(&canvas);
}

void tst_Tool::programmingErrorsAbort_data()
{
    QTest::addColumn<QString>("expression");
    QTest::newRow("deactivatesFreshTool") << "active";
    QTest::newRow("deactivatesTwice") << "active";
    QTest::newRow("activatesOnBusyCanvas") << "!c->isActive()";
}

void tst_Tool::programmingErrorsAbort()
{
    QFETCH(const QString, expression);
    const ChildProcess child = ChildProcess::run(QTest::currentDataTag());
    QCOMPARE(child.signal, SIGABRT);
    QVERIFY2(fixtures::assertionText(expression, "src/KORVA_Tool").match(child.errors).hasMatch(),
             qPrintable(child.errors));
}

void tst_Tool::pensAndBrushesAreKept()
{
    KORVA_Canvas canvas(nullptr, 10, 10);
    canvas.clearModified();
    KORVA_Tool tool;
    fixtures::use(canvas, tool);
    tool.setLeftPen(QPen(Qt::red, 3));
    tool.setRightPen(QPen(Qt::green, 0));
    tool.setLeftBrush(Qt::blue);
    tool.setRightBrush(QBrush(Qt::yellow, Qt::Dense4Pattern));
    QCOMPARE(tool.leftPen(), QPen(Qt::red, 3));
    QCOMPARE(tool.rightPen(), QPen(Qt::green, 0));
    QCOMPARE(tool.leftBrush(), QBrush(Qt::blue));
    QCOMPARE(tool.rightBrush(), QBrush(Qt::yellow, Qt::Dense4Pattern));
    QVERIFY(!canvas.isModified());
}

void tst_Tool::baseHandlersDoNothing()
{
    KORVA_Canvas canvas(nullptr, 10, 10);
    canvas.clearModified();
    KORVA_Tool tool;
    support::SignalRecorder recorder;
    recorder.watch(&tool, &KORVA_Tool::modified);
    recorder.watch(&tool, &KORVA_Tool::TextToolClicked);
    fixtures::use(canvas, tool);
    support::Gestures gestures(canvas);
    gestures.drag({{1, 1}, {5, 5}});
    gestures.key(Qt::Key_A, "a");
    QEvent event(QEvent::None);
    tool.mouseDoubleClickEvent(nullptr);
    tool.enterEvent(&event);
    tool.leaveEvent(&event);
    fixtures::stopUsing(canvas, tool);
    QCOMPARE(recorder.taken(), QStringList());
    QVERIFY(!canvas.isModified());
    QVERIFY(support::sameImage(*canvas.pixmap(), support::sheet(QSize(10, 10))));
}

int main(int argc, char** argv)
{
    return support::run<tst_Tool>(argc, argv);
}

#include "tst_Tool.moc"
