#include "ToolFixtures.h"

#include <csignal>

using fixtures::Desk;
using support::ChildProcess;
using support::sameImage;

namespace {

struct Row
{
    const char* className;
    const char* name;
};

constexpr Row tools[] = {{"KORVA_Pen", "Pencil"},          {"KORVA_AreaSelect", "Area Select"},
                         {"KORVA_Line", "Line"},           {"KORVA_Text", "Text"},
                         {"KORVA_Rectangle", "Rectangle"}, {"KORVA_Ellipse", "Ellipse"},
                         {"KORVA_Rubber", "Rubber"},       {"KORVA_Drag", "Drag"}};

} // namespace

class tst_Manager : public support::TestCase
{
    Q_OBJECT

public:
    Q_INVOKABLE void managesNoCanvas();
    Q_INVOKABLE void managesABusyCanvas();

private slots:
    void toolsHaveTheirNumbers();
    void pencilIsCurrentAtFirst();
    void programmingErrorsAbort_data();
    void programmingErrorsAbort();
    void everyToolCanBecomeCurrent();
    void unknownNumbersSelectThePencil_data();
    void unknownNumbersSelectThePencil();
    void currentToolAgainDoesNothing_data();
    void currentToolAgainDoesNothing();
    void changeMergesAFloatingPiece();
    void handOverOrder();
    void penKeepsItsStyleOnly();
    void brushKeepsItsPatternOnly();
    void colorsGoToTheirButtons();
    void widthGoesToBothPens();
    void onlyTheCurrentToolGetsProperties();
    void changeHandsOverPensAndBrushes();
    void changeDoesNotApplyTheWidthAgain();
    void modifiedMarksTheCanvas();
    void deletedManagerLeavesAnIdleCanvas();
    void canvasMayGoFirst();
    void onlyAreaSelectHearsOfSelections();
};

void tst_Manager::toolsHaveTheirNumbers()
{
    KORVA_Canvas canvas(nullptr, 10, 10);
    const KORVA_Manager manager(&canvas);
    for (int id = 0; id < int(std::size(tools)); ++id) {
        const KORVA_Tool* tool = manager.tool(id);
        QVERIFY(tool);
        QCOMPARE(tool->id(), id);
        QCOMPARE(tool->metaObject()->className(), tools[id].className);
        QCOMPARE(tool->name(), tools[id].name);
    }
    QVERIFY(!manager.tool(-1));
    QVERIFY(!manager.tool(8));
}

void tst_Manager::pencilIsCurrentAtFirst()
{
    KORVA_Canvas canvas(nullptr, 10, 10);
    const KORVA_Manager manager(&canvas);
    QCOMPARE(manager.currentToolID(), 0);
    QCOMPARE(manager.currentTool(), manager.tool(0));
    QCOMPARE(canvas.getCurrentTool(), manager.tool(0));
    QCOMPARE(canvas.getCurrentToolID(), 0);
    const KORVA_Tool& pencil = *manager.tool(0);
    QVERIFY(pencil.isActive());
    QCOMPARE(pencil.canvas(), &canvas);
    QCOMPARE(pencil.leftPen(), QPen(QColor(255, 0, 0), 1));
    QCOMPARE(pencil.rightPen(), QPen(QColor(255, 0, 0), 1));
    QCOMPARE(pencil.leftBrush().color(), QColor(255, 0, 0));
    QCOMPARE(pencil.leftBrush().style(), Qt::NoBrush);
    QCOMPARE(pencil.rightBrush().color(), QColor(255, 0, 0));
    for (int id = 1; id < 8; ++id)
        QVERIFY(!manager.tool(id)->isActive());
}

void tst_Manager::managesNoCanvas()
{
    KORVA_Manager manager(nullptr);
}

void tst_Manager::managesABusyCanvas()
{
    KORVA_Canvas canvas(nullptr, 10, 10);
    KORVA_Manager first(&canvas);
    KORVA_Manager second(&canvas);
}

void tst_Manager::programmingErrorsAbort_data()
{
    QTest::addColumn<QString>("expression");
    QTest::newRow("managesNoCanvas") << "c != 0";
    QTest::newRow("managesABusyCanvas") << "!(c->isActive())";
}

void tst_Manager::programmingErrorsAbort()
{
    QFETCH(const QString, expression);
    const ChildProcess child = ChildProcess::run(QTest::currentDataTag());
    QCOMPARE(child.signal, SIGABRT);
    QVERIFY2(fixtures::assertionText(expression, "src/KORVA_Manager").match(child.errors).hasMatch(),
             qPrintable(child.errors));
}

void tst_Manager::everyToolCanBecomeCurrent()
{
    KORVA_Canvas canvas(nullptr, 10, 10);
    KORVA_Manager manager(&canvas);
    for (int from = 0; from < 8; ++from) {
        for (int to = 0; to < 8; ++to) {
            manager.setCurrentTool(from);
            manager.setCurrentTool(to);
            QCOMPARE(manager.currentToolID(), to);
            QCOMPARE(canvas.getCurrentTool(), manager.tool(to));
            for (int id = 0; id < 8; ++id)
                QCOMPARE(manager.tool(id)->isActive(), id == to);
        }
    }
}

void tst_Manager::unknownNumbersSelectThePencil_data()
{
    QTest::addColumn<int>("id");
    QTest::newRow("8") << 8;
    QTest::newRow("-1") << -1;
    QTest::newRow("1000") << 1000;
}

void tst_Manager::unknownNumbersSelectThePencil()
{
    QFETCH(const int, id);
    KORVA_Canvas canvas(nullptr, 10, 10);
    KORVA_Manager manager(&canvas);
    manager.setCurrentTool(fixtures::Line);
    manager.setCurrentTool(id);
    QCOMPARE(manager.currentToolID(), 0);
    QCOMPARE(canvas.getCurrentToolID(), 0);
}

void tst_Manager::currentToolAgainDoesNothing_data()
{
    QTest::addColumn<int>("current");
    QTest::addColumn<int>("id");
    QTest::newRow("line") << 2 << 2;
    QTest::newRow("pencil") << 0 << 0;
    QTest::newRow("pencil by an unknown number") << 0 << 8;
}

void tst_Manager::currentToolAgainDoesNothing()
{
    QFETCH(const int, current);
    QFETCH(const int, id);
    Desk desk(fixtures::ToolID{});
    desk.manager.setCurrentTool(current);
    fixtures::setClipboard(support::sheet(QSize(8, 8), Qt::red));
    desk.canvas.paste();
    desk.canvas.setCursor(Qt::WaitCursor);
    desk.manager.setCurrentTool(id);
    QVERIFY(desk.canvas.isFloating());                      // not merged
    QCOMPARE(desk.canvas.cursor().shape(), Qt::WaitCursor); // not activated again
}

void tst_Manager::changeMergesAFloatingPiece()
{
    Desk desk(fixtures::Line);
    fixtures::setClipboard(support::sheet(QSize(8, 8), Qt::red));
    desk.canvas.paste();
    desk.manager.setCurrentTool(fixtures::Ellipse);
    QVERIFY(!desk.canvas.isFloating());
    QVERIFY(sameImage(desk.canvas.shown(), support::filled(desk.base, QRect(0, 0, 8, 8), Qt::red)));
}

// Seen from what the tools do in each step: the text's last commit comes while no tool is on the canvas and
// before the next tool sets its cursor.
void tst_Manager::handOverOrder()
{
    Desk desk(fixtures::Text);
    QStringList steps;
    connect(&desk.canvas, &KORVA_Canvas::modified, this, [&] {
        steps << QString("tool %1, cursor %2, text %3")
                     .arg(desk.canvas.getCurrentToolID())
                     .arg(desk.canvas.cursor().shape())
                     .arg(desk.manager.tool(fixtures::Text)->isActive() ? "active" : "idle");
    });
    desk.manager.setCurrentTool(fixtures::Line);
    QCOMPARE(steps, QStringList(QString("tool -1, cursor %1, text active").arg(Qt::BlankCursor)));
    QCOMPARE(desk.canvas.getCurrentToolID(), 2);
    QVERIFY(!desk.manager.tool(fixtures::Text)->isActive());
}

void tst_Manager::penKeepsItsStyleOnly()
{
    KORVA_Canvas canvas(nullptr, 10, 10);
    KORVA_Manager manager(&canvas);
    manager.setPenWidth(3);
    manager.setPen(QPen(Qt::blue, 5, Qt::DotLine, Qt::RoundCap, Qt::MiterJoin));
    const QPen expected(QColor(255, 0, 0), 3, Qt::DotLine, Qt::RoundCap, Qt::MiterJoin);
    QCOMPARE(manager.currentTool()->leftPen(), expected);
    QCOMPARE(manager.currentTool()->rightPen(), expected);
}

void tst_Manager::brushKeepsItsPatternOnly()
{
    KORVA_Canvas canvas(nullptr, 10, 10);
    KORVA_Manager manager(&canvas);
    manager.setBrush(QBrush(Qt::blue, Qt::Dense3Pattern));
    QCOMPARE(manager.currentTool()->leftBrush(), QBrush(QColor(255, 0, 0), Qt::Dense3Pattern));
    QCOMPARE(manager.currentTool()->rightBrush(), QBrush(QColor(255, 0, 0), Qt::Dense3Pattern));
}

void tst_Manager::colorsGoToTheirButtons()
{
    KORVA_Canvas canvas(nullptr, 10, 10);
    KORVA_Manager manager(&canvas);
    manager.setLMBColor(Qt::green);
    manager.setRMBColor(Qt::yellow);
    QCOMPARE(manager.currentTool()->leftPen().color(), QColor(Qt::green));
    QCOMPARE(manager.currentTool()->leftBrush().color(), QColor(Qt::green));
    QCOMPARE(manager.currentTool()->rightPen().color(), QColor(Qt::yellow));
    QCOMPARE(manager.currentTool()->rightBrush().color(), QColor(Qt::yellow));
}

void tst_Manager::widthGoesToBothPens()
{
    KORVA_Canvas canvas(nullptr, 10, 10);
    KORVA_Manager manager(&canvas);
    manager.setPenWidth(5);
    QCOMPARE(manager.currentTool()->leftPen().width(), 5);
    QCOMPARE(manager.currentTool()->rightPen().width(), 5);
}

void tst_Manager::onlyTheCurrentToolGetsProperties()
{
    KORVA_Canvas canvas(nullptr, 10, 10);
    KORVA_Manager manager(&canvas);
    manager.setLMBColor(Qt::green);
    manager.setPenWidth(5);
    manager.updateProperties();
    for (int id = 1; id < 8; ++id)
        QCOMPARE(manager.tool(id)->leftPen(), QPen());
}

void tst_Manager::changeHandsOverPensAndBrushes()
{
    KORVA_Canvas canvas(nullptr, 10, 10);
    KORVA_Manager manager(&canvas);
    manager.setLMBColor(Qt::green);
    manager.setRMBColor(Qt::yellow);
    manager.setBrush(Qt::SolidPattern);
    manager.setPenWidth(3);
    manager.setCurrentTool(fixtures::Rectangle);
    const KORVA_Tool& tool = *manager.currentTool();
    QCOMPARE(tool.leftPen(), QPen(QColor(Qt::green), 3));
    QCOMPARE(tool.rightPen(), QPen(QColor(Qt::yellow), 3));
    QCOMPARE(tool.leftBrush(), QBrush(Qt::green));
    QCOMPARE(tool.rightBrush(), QBrush(Qt::yellow));
}

// Every setter applies the width at once, so that it can be told only by what a change leaves alone.
void tst_Manager::changeDoesNotApplyTheWidthAgain()
{
    KORVA_Canvas canvas(nullptr, 10, 10);
    KORVA_Manager manager(&canvas);
    manager.setPenWidth(5);
    manager.setCurrentTool(fixtures::Line);
    manager.currentTool()->setLeftPen(QPen(Qt::black, 9));
    manager.setCurrentTool(fixtures::Ellipse);
    QCOMPARE(manager.currentTool()->leftPen().width(), 5);
    manager.setCurrentTool(fixtures::Line);
    QCOMPARE(manager.currentTool()->leftPen().width(), 5);
}

void tst_Manager::modifiedMarksTheCanvas()
{
    Desk desk(fixtures::Line);
    emit desk.manager.modified();
    QVERIFY(desk.canvas.isModified());
    QCOMPARE(desk.canvas.undoFlag(), 1);
}

void tst_Manager::deletedManagerLeavesAnIdleCanvas()
{
    KORVA_Canvas canvas(nullptr, 10, 10);
    {
        KORVA_Manager manager(&canvas);
        manager.setCurrentTool(fixtures::Text);
    }
    QVERIFY(!canvas.isActive());
    QCOMPARE(canvas.getCurrentToolID(), -1);
    support::Gestures(canvas).drag({{1, 1}, {5, 5}});
    const KORVA_Manager next(&canvas);
    QVERIFY(canvas.isActive());
}

void tst_Manager::canvasMayGoFirst()
{
    auto canvas = std::make_unique<KORVA_Canvas>(nullptr, 10, 10);
    KORVA_Manager manager(canvas.get());
    manager.setCurrentTool(fixtures::Text);
    support::Gestures(*canvas).click({5, 5});
    canvas.reset();
    QTimerEvent tick(1);
    QCoreApplication::sendEvent(manager.currentTool(), &tick); // a blink that comes late
    QVERIFY(!manager.currentTool()->canvas());
}

void tst_Manager::onlyAreaSelectHearsOfSelections()
{
    KORVA_Canvas canvas(nullptr, 40, 40);
    const KORVA_Manager manager(&canvas);
    for (int id = 0; id < 8; ++id) {
        const bool connected = QObject::disconnect(&canvas, qOverload<bool>(&KORVA_Canvas::selection),
                                                   manager.tool(id), nullptr);
        QCOMPARE(connected, id == fixtures::AreaSelect);
    }
}

int main(int argc, char** argv)
{
    return support::run<tst_Manager>(argc, argv);
}

#include "tst_Manager.moc"
