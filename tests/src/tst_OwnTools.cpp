#include "EditorFixtures.h"
#include "examples/tools/FillTool.h"
#include "examples/tools/PickerTool.h"
#include "examples/tools/PolygonTool.h"
#include "examples/tools/SprayTool.h"
#include "support/TestCase.h"

#include <QRandomGenerator>

using fixtures::EditorDesk;
using support::filled;
using support::sameImage;
using support::sheet;

namespace {

constexpr int firstOwn = KORVA_TOOL_HAND + 1;
constexpr QSize size(200, 170); // of a new drawing

QIcon icon(const QColor& color)
{
    QPixmap picture(20, 20);
    picture.fill(color);
    return picture;
}

/// An editor with the four tools of the example.
struct Workshop : EditorDesk
{
    Workshop()
    {
        fill = editor->addTool(std::make_unique<FillTool>(), icon(Qt::red), "Fill");
        spray = editor->addTool(std::make_unique<SprayTool>(), icon(Qt::green), "Spray",
                                {{icon(Qt::gray), "Narrow", 1}, {icon(Qt::black), "Wide", 3}});
        polygon = editor->addTool(std::make_unique<PolygonTool>(), icon(Qt::blue), "Polygon");
        picker = editor->addTool(std::make_unique<PickerTool>(*editor), icon(Qt::yellow), "Pick");
    }
    [[nodiscard]] support::Gestures hand() const { return support::Gestures(canvas()); }

    int fill;
    int spray;
    int polygon;
    int picker;
};

/// Both pictures show the same.
bool agrees(const EditorDesk& desk)
{
    return sameImage(*desk.canvas().zoomedPixmap(),
                     support::scaled(desk.editor->snapshot(), desk.canvas().zoom()));
}

} // namespace

class tst_OwnTools : public support::TestCase
{
    Q_OBJECT

private slots:
    void identifiersFollowTheLibrarys();
    void theyStandBehindTheSevenInThePopup();
    void theCurrentToolStaysMarked();
    void theirOptionsAreTheirOwn();
    void numbersOfThePopupsWorkForThem();
    void fillsAConnectedArea_data();
    void fillsAConnectedArea();
    void fillChangesNothingWithoutAnotherColor();
    void spraysAlikeEveryTime();
    void polygonClosesAtItsFirstCorner();
    void pickerTakesTheColorBelow();
    void textIsCommittedBeforeThem();
    void floatingPieceIsMergedBeforeThem();
    void undoTakesThemBack();
    void resetKeepsThem();
    void randomSequences_data();
    void randomSequences();
};

void tst_OwnTools::identifiersFollowTheLibrarys()
{
    Workshop desk;
    QCOMPARE(QList<int>({desk.fill, desk.spray, desk.polygon, desk.picker}),
             QList<int>({firstOwn, firstOwn + 1, firstOwn + 2, firstOwn + 3}));
    QCOMPARE(desk.editor->addTool(nullptr, {}, "none"), -1);
    QCOMPARE(desk.manager().tool(desk.spray)->id(), desk.spray);
    QCOMPARE(desk.editor->nameOfTool(desk.picker), QString("Pick"));
    QCOMPARE(desk.editor->nameOfTool(firstOwn + 4), QString());
    QCOMPARE(desk.manager().currentToolID(), int(KORVA_TOOL_PENCIL));
}

void tst_OwnTools::theyStandBehindTheSevenInThePopup()
{
    Workshop desk;
    QCOMPARE(desk.tools().size(), 11);
    QCOMPARE(desk.tools().at(8)->text(), QString("Spray"));
    desk.tools().at(8)->trigger();
    QCOMPARE(desk.editor->tool(), desk.spray);
    QCOMPARE(desk.manager().currentToolID(), desk.spray);
    QVERIFY(sameImage(fixtures::iconPicture(desk.button("toolButton").icon(), {20, 20}),
                      sheet({20, 20}, Qt::green)));
    QCOMPARE(desk.options().size(), 2);
    QCOMPARE(desk.options().at(1)->text(), QString("Wide"));
}

// For a screen reader; the rows are made anew with each tool.
void tst_OwnTools::theCurrentToolStaysMarked()
{
    Workshop desk;
    desk.editor->addTool(std::make_unique<FillTool>(), {}, "Fill more");
    QStringList marked;
    for (const QAction* row : desk.tools()) {
        if (row->isChecked())
            marked << row->text();
    }
    QCOMPARE(marked, QStringList(desk.editor->nameOfTool(KORVA_TOOL_PENCIL)));
}

void tst_OwnTools::theirOptionsAreTheirOwn()
{
    Workshop desk;
    desk.editor->selectOption(KORVA_OPTION_LARGE); // the pencil's
    desk.editor->selectTool(desk.spray);
    QCOMPARE(desk.editor->option(), 0);
    QCOMPARE(desk.manager().currentTool()->leftPen().width(), 1);
    desk.editor->selectOption(1);
    QCOMPARE(desk.manager().currentTool()->leftPen().width(), 3);
    desk.editor->selectTool(desk.fill);
    QCOMPARE(desk.editor->option(), -1);
    QCOMPARE(desk.options().size(), 0);
    QVERIFY(desk.button("optionButton").icon().isNull());
    desk.editor->selectOption(0); // there is none
    desk.editor->selectTool(KORVA_TOOL_PENCIL);
    QCOMPARE(desk.editor->option(), int(KORVA_OPTION_LARGE));
    QCOMPARE(desk.manager().currentTool()->leftPen().width(), 5);
    desk.editor->selectTool(desk.spray);
    QCOMPARE(desk.editor->option(), 1);
}

void tst_OwnTools::numbersOfThePopupsWorkForThem()
{
    Workshop desk;
    desk.editor->slotSelChangeTool(desk.tools().at(8)->data().toInt());
    QCOMPARE(desk.editor->tool(), desk.spray);
    desk.editor->slotSelChangeToolOptions(desk.options().at(0)->data().toInt());
    QCOMPARE(desk.editor->option(), 0);
    desk.editor->slotSelChangeTool(4711); // the line, as ever
    QCOMPARE(desk.editor->tool(), int(KORVA_TOOL_LINE));
}

void tst_OwnTools::fillsAConnectedArea_data()
{
    QTest::addColumn<int>("zoom");
    for (int zoom = KORVA_ZOOM_50; zoom <= KORVA_ZOOM_200; ++zoom)
        QTest::addRow("row %d", zoom) << zoom;
}

void tst_OwnTools::fillsAConnectedArea()
{
    QFETCH(const int, zoom);
    Workshop desk;
    // A yellow ring with an island, and a corner where two white areas only touch.
    QImage picture = filled(sheet(size), {20, 20, 90, 70}, Qt::yellow);
    picture = filled(picture, {30, 30, 70, 50}, Qt::white);
    picture = filled(picture, {50, 40, 20, 20}, Qt::darkCyan);
    const QImage before = filled(picture, {100, 80, 1, 1}, Qt::white);
    desk.setPicture(before);
    desk.editor->selectTool(desk.fill);
    desk.editor->selectZoom(zoom);
    desk.hand().click(KORVA_Zoom(desk.canvas().zoom()).toWidget(QPoint(40, 36)));
    QImage expected = filled(before, {30, 30, 70, 50}, Qt::red);
    expected = filled(expected, {50, 40, 20, 20}, Qt::darkCyan);
    QVERIFY(sameImage(desk.picture(), expected));
    QVERIFY(agrees(desk));
    QVERIFY(desk.editor->isModified());
    desk.editor->undo();
    QVERIFY(sameImage(desk.picture(), before));
}

void tst_OwnTools::fillChangesNothingWithoutAnotherColor()
{
    Workshop desk;
    desk.setPicture(sheet(size, Qt::red));
    desk.editor->selectTool(desk.fill);
    (void)desk.log.taken();
    desk.hand().click({5, 5});
    QCOMPARE(desk.log.taken(), QStringList());
    QVERIFY(!desk.editor->isModified());
}

void tst_OwnTools::spraysAlikeEveryTime()
{
    QImage once;
    for (int round = 0; round < 2; ++round) {
        Workshop desk;
        desk.editor->selectTool(desk.spray);
        desk.editor->selectOption(1);
        desk.hand().drag({{60, 60}, {90, 80}, {120, 60}});
        QVERIFY(fixtures::hasInk(desk.picture()));
        QVERIFY(QRect(40, 40, 105, 65).contains(support::inkBounds(desk.picture())));
        QVERIFY(agrees(desk));
        if (round == 1)
            QVERIFY(sameImage(desk.picture(), once));
        once = desk.picture();
        desk.hand().move({20, 150}); // a hover
        QVERIFY(sameImage(desk.picture(), once));
    }
}

void tst_OwnTools::polygonClosesAtItsFirstCorner()
{
    Workshop desk;
    desk.editor->selectTool(desk.polygon);
    const QList<QPoint> corners{{20, 20}, {80, 20}, {80, 70}};
    for (const QPoint corner : corners)
        desk.hand().click(corner);
    desk.hand().click({22, 23}); // near the first
    const QImage closed = sheet(size, Qt::white, [&](QPainter& painter) {
        painter.setPen(QPen(Qt::red, 1));
        painter.drawPoint(corners[0]);
        painter.drawLine(corners[0], corners[1]);
        painter.drawLine(corners[1], corners[2]);
        painter.drawLine(corners[2], corners[0]);
    });
    QVERIFY(sameImage(desk.picture(), closed));
    desk.hand().click({150, 100}); // another one begins
    QVERIFY(sameImage(desk.picture(), filled(closed, {150, 100, 1, 1}, Qt::red)));
}

void tst_OwnTools::pickerTakesTheColorBelow()
{
    Workshop desk;
    desk.setPicture(filled(sheet(size, Qt::darkGreen), {50, 50, 10, 10}, Qt::magenta));
    desk.editor->selectTool(desk.picker);
    desk.hand().click({55, 55});
    QCOMPARE(desk.editor->color(), QColor(Qt::magenta));
    desk.hand().click({5, 5});
    QCOMPARE(desk.editor->color(), QColor(Qt::darkGreen));
    QVERIFY(!desk.editor->isModified());
    desk.editor->selectTool(KORVA_TOOL_PENCIL);
    desk.hand().click({100, 100});
    QCOMPARE(desk.picture().pixelColor(100, 100), QColor(Qt::darkGreen));
}

void tst_OwnTools::textIsCommittedBeforeThem()
{
    Workshop desk;
    desk.type("abc");
    desk.editor->selectTool(desk.fill);
    QVERIFY(fixtures::hasInk(desk.picture()));
}

void tst_OwnTools::floatingPieceIsMergedBeforeThem()
{
    Workshop desk;
    QGuiApplication::clipboard()->setImage(sheet({30, 30}, Qt::blue));
    desk.editor->selectTool(desk.fill);
    desk.editor->paste();
    desk.hand().click({100, 100});
    QVERIFY(desk.canvas().pasteLabel()->isHidden());
    QVERIFY(sameImage(desk.picture(), filled(sheet(size, Qt::red), {0, 0, 30, 30}, Qt::blue)));
}

void tst_OwnTools::undoTakesThemBack()
{
    Workshop desk;
    desk.editor->setUndoSteps(50);
    const QImage empty = desk.picture();
    desk.editor->selectTool(desk.spray);
    desk.hand().drag({{60, 60}, {90, 80}});
    const QImage sprayed = desk.picture();
    desk.editor->selectTool(desk.fill);
    desk.hand().click({1, 1});
    desk.editor->undo();
    QVERIFY(sameImage(desk.picture(), sprayed));
    desk.editor->undo();
    QVERIFY(sameImage(desk.picture(), empty));
}

void tst_OwnTools::resetKeepsThem()
{
    Workshop desk;
    desk.editor->selectTool(desk.spray);
    desk.editor->selectOption(1);
    desk.editor->reset();
    QCOMPARE(desk.editor->tool(), int(KORVA_TOOL_PENCIL));
    QCOMPARE(desk.tools().size(), 11);
    desk.editor->selectTool(desk.spray);
    QCOMPARE(desk.editor->option(), 0);
    desk.hand().drag({{60, 60}, {90, 80}});
    QVERIFY(fixtures::hasInk(desk.picture()));
}

void tst_OwnTools::randomSequences_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 1000; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void tst_OwnTools::randomSequences()
{
    QFETCH(const quint32, seed);
    QRandomGenerator random(seed);
    const auto number = [&random](int from, int to) { return random.bounded(from, to + 1); };
    Workshop desk;
    desk.editor->setUndoSteps(100);
    QList<QImage> states{desk.picture()};
    for (int act = 0; act < 8; ++act) {
        const int tool = number(KORVA_TOOL_PENCIL, desk.picker);
        desk.editor->selectTool(tool);
        desk.editor->selectOption(number(0, 2));
        if (number(0, 3) == 0)
            desk.editor->selectZoom(number(KORVA_ZOOM_50, KORVA_ZOOM_200));
        desk.editor->setColor(QColor::fromRgb(random.generate()));
        const QSize area = desk.canvas().size();
        const auto place = [&] {
            return QPoint(number(0, area.width() - 1), number(0, area.height() - 1));
        };
        const QImage before = desk.editor->snapshot();
        desk.hand().drag({place(), place(), place()});
        if (tool >= firstOwn && desk.editor->snapshot() != before)
            QVERIFY(agrees(desk));
        desk.editor->selectTool(KORVA_TOOL_PENCIL); // what floats or is typed goes in
        if (const QImage state = desk.picture(); state != states.last())
            states << state;
    }
    for (qsizetype i = states.size() - 2; i >= 0; --i) {
        int steps = 0;
        do {
            desk.editor->undo();
            QVERIFY(++steps < 10);
        } while (desk.picture() != states[i]);
    }
}

int main(int argc, char** argv)
{
    return support::run<tst_OwnTools>(argc, argv);
}

#include "tst_OwnTools.moc"
