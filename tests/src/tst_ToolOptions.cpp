#include "EditorFixtures.h"

#include "KORVA_Text.h"

using fixtures::EditorDesk;
using fixtures::ToolID;
using support::Gestures;

namespace {

constexpr int unset = -1;

/// What choosing an option makes of the manager's current tool.
struct Setting
{
    ToolID chosen; ///< in the tool pop-up
    int row;       ///< in the option pop-up
    const char* icon;
    ToolID current; ///< in the manager afterwards
    int penWidth = unset;
    QColor color = QColor(Qt::blue); ///< the drawing colour here
    int brush = unset;
};

const Setting settings[] = {
    {ToolID::Pencil, 0, "DaApV_Line_Tool_Opt_S.gif", ToolID::Pencil, 1},
    {ToolID::Pencil, 1, "DaApV_Line_Tool_Opt_M.gif", ToolID::Pencil, 3},
    {ToolID::Pencil, 2, "DaApV_Line_Tool_Opt_L.gif", ToolID::Pencil, 5},
    {ToolID::AreaSelect, 0, "DaApV_Sel_Tool_Opt_Rect.gif", ToolID::AreaSelect, 1, QColor(Qt::black),
     Qt::NoBrush},
    {ToolID::AreaSelect, 1, "DaApV_Sel_Tool_Opt_Hand.gif", ToolID::Hand},
    {ToolID::Line, 0, "DaApV_Line_Tool_Opt_S.gif", ToolID::Line, 1},
    {ToolID::Line, 1, "DaApV_Line_Tool_Opt_M.gif", ToolID::Line, 3},
    {ToolID::Line, 2, "DaApV_Line_Tool_Opt_L.gif", ToolID::Line, 5},
    {ToolID::Text, 0, "DaApV_Text_Tool_Opt_7pt.gif", ToolID::Text, 1},
    {ToolID::Text, 1, "DaApV_Text_Tool_Opt_9pt.gif", ToolID::Text, 3},
    {ToolID::Text, 2, "DaApV_Text_Tool_Opt_11pt.gif", ToolID::Text, 5},
    {ToolID::Rectangle, 0, "DaApV_Rectangle_Tool_Opt_Border.gif", ToolID::Rectangle, 1, QColor(Qt::blue),
     Qt::NoBrush},
    {ToolID::Rectangle, 1, "DaApV_Rectangle_Tool_Opt_N_Border.gif", ToolID::Rectangle, 1, QColor(Qt::blue),
     Qt::SolidPattern},
    {ToolID::Ellipse, 0, "DaApV_Ellipse_Tool_Opt_Border.gif", ToolID::Ellipse, 1, QColor(Qt::blue),
     Qt::NoBrush},
    {ToolID::Ellipse, 1, "DaApV_Ellipse_Tool_Opt_N_Border.gif", ToolID::Ellipse, 1, QColor(Qt::blue),
     Qt::SolidPattern},
    {ToolID::Eraser, 0, "DaApV_Eraser_Tool_Opt_S.gif", ToolID::Eraser, 1, QColor(Qt::white)},
    {ToolID::Eraser, 1, "DaApV_Eraser_Tool_Opt_M.gif", ToolID::Eraser, 3, QColor(Qt::white)},
    {ToolID::Eraser, 2, "DaApV_Eraser_Tool_Opt_L.gif", ToolID::Eraser, 5, QColor(Qt::white)},
};

/// The kind of option that several tools share.
struct Family
{
    const char* name;
    QList<ToolID> tools;
    int options;
};

const Family families[] = {
    {"size", {ToolID::Pencil, ToolID::Line, ToolID::Text, ToolID::Eraser}, 3},
    {"fill", {ToolID::Rectangle, ToolID::Ellipse}, 2},
};

const char* iconOf(ToolID tool, int row)
{
    for (const Setting& setting : settings) {
        if (setting.chosen == tool && setting.row == row)
            return setting.icon;
    }
    return nullptr;
}

/// Makes blue the drawing colour.
void makeBlue(EditorDesk& desk)
{
    fixtures::mixColor(Qt::blue);
    desk.editor->slotColor();
    QCOMPARE(desk.editor->color(), QColor(Qt::blue));
}

/// The eraser's cursor: white with a black frame of one pixel around it.
QImage eraserCursor(int side)
{
    return support::filled(support::sheet(QSize(side + 2, side + 2), Qt::black), QRect(1, 1, side, side),
                           Qt::white);
}

bool hasEraserCursor(const KORVA_Canvas& canvas, int side)
{
    return canvas.cursor().hotSpot() == QPoint(0, 0) &&
           support::sameImage(canvas.cursor().pixmap(), eraserCursor(side));
}

} // namespace

/// The tool and the option pop-up: what they offer, what a choice sets and what is remembered.
class tst_ToolOptions : public support::TestCase
{
    Q_OBJECT

private slots:
    void settingOfEachOption_data();
    void settingOfEachOption();
    void optionsOfEachTool_data();
    void optionsOfEachTool();
    void rememberedAcrossTools_data();
    void rememberedAcrossTools();
    void eraserAfterLineM();
    void theColorIsGivenAgain();

    void unknownIdentifiers_data();
    void unknownIdentifiers();
    void unknownToolIsTheLine_data();
    void unknownToolIsTheLine();
    void identifiersAreNoToolNumbers();

    void handMode();
    void leavingTextCommits();
    void stayingInTextKeepsTyping();
    void textSizeShowsAtOnce();

    void eraserCursor_data();
    void eraserCursor();
    void eraserCursorFollows();
    void otherToolsHaveTheirOwnCursor();
};

// --- The table

void tst_ToolOptions::settingOfEachOption_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < int(std::size(settings)); ++i)
        QTest::addRow("%s of tool %d", settings[i].icon, settings[i].chosen) << i;
}

void tst_ToolOptions::settingOfEachOption()
{
    QFETCH(const int, index);
    const Setting& setting = settings[index];
    EditorDesk desk;
    makeBlue(desk);
    // Something else in every field first.
    desk.chooseTool(ToolID::Ellipse);
    desk.chooseOption(setting.brush == Qt::NoBrush ? 1 : 0);
    desk.chooseTool(setting.chosen);
    desk.chooseOption(setting.row == 0 ? 1 : 0);

    QAction* entry = desk.options().value(setting.row);
    QVERIFY(entry);
    QVERIFY(support::sameImage(fixtures::iconPicture(entry->icon(), {24, 18}),
                               fixtures::iconPicture(setting.icon)));
    entry->trigger();
    const KORVA_Tool* tool = desk.manager().currentTool();
    QCOMPARE(tool->id(), int(setting.current));
    QCOMPARE(desk.canvas().getCurrentTool(), tool);
    QCOMPARE(tool->leftPen().color(), setting.color);
    if (setting.penWidth != unset)
        QCOMPARE(tool->leftPen().width(), setting.penWidth);
    if (setting.brush != unset)
        QCOMPARE(int(tool->leftBrush().style()), setting.brush);
    QVERIFY(fixtures::shows(desk.button("optionButton"), setting.icon));
}

void tst_ToolOptions::optionsOfEachTool_data()
{
    QTest::addColumn<int>("tool");
    QTest::addColumn<int>("count");
    for (int tool = ToolID::Pencil; tool <= ToolID::Eraser; ++tool) {
        const auto count = std::count_if(std::begin(settings), std::end(settings),
                                         [tool](const Setting& setting) { return setting.chosen == tool; });
        QTest::addRow("tool %d", tool) << tool << int(count);
    }
    QTest::newRow("the hand") << 7 << 0;
    QTest::newRow("no tool") << 8 << 0;
    QTest::newRow("a negative tool") << -1 << 0;
}

void tst_ToolOptions::optionsOfEachTool()
{
    QFETCH(const int, tool);
    QFETCH(const int, count);
    EditorDesk desk;
    desk.editor->loadToolOptions(tool);
    QCOMPARE(desk.options().size(), count);
    for (int row = 0; row < count; ++row) {
        const QString icon = iconOf(ToolID(tool), row);
        QVERIFY(support::sameImage(fixtures::iconPicture(desk.options()[row]->icon(), {24, 18}),
                                   fixtures::iconPicture(icon)));
    }
    QCOMPARE(desk.manager().currentToolID(), int(ToolID::Pencil));
}

// --- What is remembered

void tst_ToolOptions::rememberedAcrossTools_data()
{
    QTest::addColumn<int>("family");
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("second");
    for (int f = 0; f < int(std::size(families)); ++f) {
        for (const ToolID first : families[f].tools) {
            for (const ToolID second : families[f].tools) {
                for (int row = 0; row < families[f].options; ++row)
                    QTest::addRow("%s %d from tool %d to tool %d", families[f].name, row, first, second)
                        << f << row << int(first) << int(second);
            }
        }
    }
}

void tst_ToolOptions::rememberedAcrossTools()
{
    QFETCH(const int, family);
    QFETCH(const int, row);
    QFETCH(const int, first);
    QFETCH(const int, second);
    EditorDesk desk;
    desk.chooseTool(ToolID(first));
    desk.chooseOption(row);
    // A tool with another kind of option, and its choice, change nothing.
    const ToolID other = families[1 - family].tools.constFirst();
    desk.chooseTool(other);
    desk.chooseOption(1);
    desk.chooseTool(ToolID(second));
    QVERIFY(fixtures::shows(desk.button("optionButton"), iconOf(ToolID(second), row)));
    const KORVA_Tool* tool = desk.manager().currentTool();
    if (family == 0)
        QCOMPARE(tool->leftPen().width(), 1 + 2 * row);
    else
        QCOMPARE(tool->leftBrush().style(), row == 0 ? Qt::NoBrush : Qt::SolidPattern);
}

void tst_ToolOptions::eraserAfterLineM()
{
    EditorDesk desk;
    desk.chooseTool(ToolID::Line);
    desk.chooseOption(1);
    desk.chooseTool(ToolID::Eraser);
    QVERIFY(fixtures::shows(desk.button("optionButton"), "DaApV_Eraser_Tool_Opt_M.gif"));
    QCOMPARE(desk.manager().currentTool()->leftPen().width(), 3);
    QVERIFY(hasEraserCursor(desk.canvas(), 3));
}

void tst_ToolOptions::theColorIsGivenAgain()
{
    EditorDesk desk;
    makeBlue(desk);
    for (const ToolID whiteOrBlack : {ToolID::Eraser, ToolID::AreaSelect}) {
        desk.chooseTool(whiteOrBlack);
        QVERIFY(desk.manager().currentTool()->leftPen().color() != QColor(Qt::blue));
        desk.chooseTool(ToolID::Pencil);
        QCOMPARE(desk.manager().currentTool()->leftPen().color(), QColor(Qt::blue));
        QCOMPARE(desk.manager().currentTool()->leftBrush().color(), QColor(Qt::blue));
    }
}

// --- Identifiers

void tst_ToolOptions::unknownIdentifiers_data()
{
    QTest::addColumn<int>("tool");
    QTest::addColumn<int>("identifier");
    for (int tool = ToolID::Pencil; tool <= ToolID::Eraser; ++tool) {
        for (const int identifier : {0, -1, 7, 9999})
            QTest::addRow("%d for tool %d", identifier, tool) << tool << identifier;
        QTest::addRow("another tool's for tool %d", tool) << tool << unset - 1;
    }
}

void tst_ToolOptions::unknownIdentifiers()
{
    QFETCH(const int, tool);
    QFETCH(const int, identifier);
    EditorDesk desk;
    const bool isRectangle = tool == ToolID::Rectangle;
    desk.chooseTool(isRectangle ? ToolID::Ellipse : ToolID::Rectangle);
    const int strange = desk.options().constFirst()->data().toInt();
    desk.chooseTool(ToolID(tool));
    desk.chooseOption(0);
    desk.editor->slotSelChangeToolOptions(identifier < unset ? strange : identifier);

    const int last = int(desk.options().size()) - 1;
    QVERIFY(fixtures::shows(desk.button("optionButton"), iconOf(ToolID(tool), last)));
    const KORVA_Tool* current = desk.manager().currentTool();
    if (tool == ToolID::AreaSelect)
        QCOMPARE(current->id(), int(ToolID::Hand));
    else if (tool == ToolID::Rectangle || tool == ToolID::Ellipse)
        QCOMPARE(current->leftBrush().style(), Qt::SolidPattern);
    else
        QCOMPARE(current->leftPen().width(), 5);
}

void tst_ToolOptions::unknownToolIsTheLine_data()
{
    QTest::addColumn<int>("identifier");
    QTest::newRow("0") << 0;
    QTest::newRow("a tool's number") << int(ToolID::Ellipse);
    QTest::newRow("-1") << -1;
    QTest::newRow("9999") << 9999;
    const EditorDesk desk;
    QTest::newRow("before the first") << desk.tools().constFirst()->data().toInt() - 1;
    QTest::newRow("behind the last") << desk.tools().constLast()->data().toInt() + 1;
}

void tst_ToolOptions::unknownToolIsTheLine()
{
    QFETCH(const int, identifier);
    EditorDesk desk;
    desk.chooseTool(ToolID::Ellipse);
    desk.editor->slotSelChangeTool(identifier);
    QCOMPARE(desk.manager().currentToolID(), int(ToolID::Line));
    QVERIFY(fixtures::shows(desk.button("toolButton"), "DaApV_Line_Tool.gif"));
    QVERIFY(fixtures::shows(desk.button("optionButton"), "DaApV_Line_Tool_Opt_S.gif"));
}

void tst_ToolOptions::identifiersAreNoToolNumbers()
{
    EditorDesk desk;
    QSet<int> seen;
    const auto check = [&seen](const QAction* entry) {
        const int identifier = entry->data().toInt();
        QVERIFY(identifier > ToolID::Hand);
        QVERIFY2(!seen.contains(identifier), "an identifier twice");
        seen << identifier;
    };
    for (const QAction* entry : desk.tools())
        check(entry);
    for (int tool = ToolID::Pencil; tool <= ToolID::Eraser; ++tool) {
        desk.editor->loadToolOptions(tool);
        for (const QAction* entry : desk.options())
            check(entry);
    }
    QCOMPARE(seen.size(), 7 + int(std::size(settings)));
}

// --- The hand and the text

void tst_ToolOptions::handMode()
{
    EditorDesk desk;
    desk.chooseTool(ToolID::AreaSelect);
    desk.chooseOption(1);
    QCOMPARE(desk.manager().currentToolID(), int(ToolID::Hand));
    QVERIFY(fixtures::shows(desk.button("toolButton"), "DaApV_Selection_Tool.gif"));
    QCOMPARE(desk.options().size(), 2); // the hand is left by the other option

    desk.chooseTool(ToolID::Pencil);
    desk.chooseTool(ToolID::AreaSelect);
    QCOMPARE(desk.manager().currentToolID(), int(ToolID::Hand));
    desk.chooseTool(ToolID::AreaSelect);
    QCOMPARE(desk.manager().currentToolID(), int(ToolID::Hand));
    desk.chooseOption(0);
    QCOMPARE(desk.manager().currentToolID(), int(ToolID::AreaSelect));
    desk.chooseTool(ToolID::AreaSelect);
    QCOMPARE(desk.manager().currentToolID(), int(ToolID::AreaSelect));
}

void tst_ToolOptions::leavingTextCommits()
{
    EditorDesk desk;
    desk.type("Hm");
    QVERIFY(!fixtures::hasInk(desk.picture()));
    QVERIFY(desk.manager().currentTool()->getTextKey());
    auto* text = qobject_cast<KORVA_Text*>(desk.manager().currentTool());
    desk.chooseTool(ToolID::Pencil);
    QVERIFY(fixtures::hasInk(desk.picture()));
    QVERIFY(text->isBufferEmpty());
    QVERIFY(!text->getTextKey());
    // What is on the screen is the picture: no cursor, no preview stays behind.
    QVERIFY(support::sameImage(*desk.canvas().zoomedPixmap(), desk.picture()));
    QVERIFY(desk.log.taken().contains("signalTextTool(false)"));
}

void tst_ToolOptions::stayingInTextKeepsTyping()
{
    EditorDesk desk;
    desk.type("Hm");
    desk.chooseTool(ToolID::Text);
    QVERIFY(!fixtures::hasInk(desk.picture()));
    QVERIFY(desk.manager().currentTool()->getTextKey());
    QCOMPARE(desk.log.taken().count("signalTextTool(true)"), 1);
}

void tst_ToolOptions::textSizeShowsAtOnce()
{
    EditorDesk desk;
    desk.type("Hm");
    const QRect small = support::inkBounds(desk.canvas().zoomedPixmap()->toImage());
    desk.chooseOption(2);
    const QRect large = support::inkBounds(desk.canvas().zoomedPixmap()->toImage());
    QVERIFY(large.width() > small.width());
    QVERIFY(!fixtures::hasInk(desk.picture())); // still to be committed
}

// --- The eraser's cursor

void tst_ToolOptions::eraserCursor_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("rate");
    QTest::addColumn<int>("side");
    for (const int width : {1, 3, 5}) {
        QTest::addRow("%d at 100 %%", width) << width << 100 << width;
        QTest::addRow("%d at 200 %%", width) << width << 200 << 2 * width;
        QTest::addRow("%d at 1000 %%", width) << width << 1000 << 10 * width;
    }
    QTest::newRow("5 at 150 %") << 5 << 150 << 8;
    QTest::newRow("3 at 50 %") << 3 << 50 << 2;
    QTest::newRow("5 at 50 %") << 5 << 50 << 3;
}

void tst_ToolOptions::eraserCursor()
{
    QFETCH(const int, width);
    QFETCH(const int, rate);
    QFETCH(const int, side);
    EditorDesk desk;
    desk.editor->setRubberCursor(width, rate);
    QVERIFY(hasEraserCursor(desk.canvas(), side));
}

void tst_ToolOptions::eraserCursorFollows()
{
    EditorDesk desk;
    desk.chooseTool(ToolID::Eraser);
    QVERIFY(hasEraserCursor(desk.canvas(), 1));
    desk.chooseOption(2);
    QVERIFY(hasEraserCursor(desk.canvas(), 5));
    desk.chooseZoom(3);
    QVERIFY(hasEraserCursor(desk.canvas(), 10));
    desk.chooseOption(1);
    QVERIFY(hasEraserCursor(desk.canvas(), 6));
    desk.chooseTool(ToolID::Pencil);
    desk.editor->setZoom(100);
    QCOMPARE(desk.canvas().cursor().shape(), Qt::CrossCursor);
    desk.chooseTool(ToolID::Eraser);
    QVERIFY(hasEraserCursor(desk.canvas(), 3));
}

void tst_ToolOptions::otherToolsHaveTheirOwnCursor()
{
    EditorDesk desk;
    desk.chooseTool(ToolID::Eraser);
    desk.chooseTool(ToolID::Rectangle);
    QCOMPARE(desk.canvas().cursor().shape(), Qt::CrossCursor);
    desk.chooseTool(ToolID::Text);
    QCOMPARE(desk.canvas().cursor().shape(), Qt::BlankCursor);
    desk.chooseTool(ToolID::AreaSelect);
    desk.chooseOption(1);
    QCOMPARE(desk.canvas().cursor().shape(), Qt::PointingHandCursor);
}

int main(int argc, char** argv)
{
    return support::run<tst_ToolOptions>(argc, argv);
}

#include "tst_ToolOptions.moc"
