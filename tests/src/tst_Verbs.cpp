#include "EditorFixtures.h"
#include "support/TestCase.h"

using fixtures::EditorDesk;

namespace {

constexpr int tools[] = {KORVA_TOOL_PENCIL,    KORVA_TOOL_SELECT,  KORVA_TOOL_LINE,   KORVA_TOOL_TEXT,
                         KORVA_TOOL_RECTANGLE, KORVA_TOOL_ELLIPSE, KORVA_TOOL_ERASER, KORVA_TOOL_HAND};
constexpr QRect stroke(QPoint(12, 10), QPoint(60, 47));

/// The same choices twice: once by the verbs, once in the pop-ups.
struct Twins
{
    EditorDesk verbs;
    EditorDesk popups;

    void both(const std::function<void(EditorDesk&)>& act)
    {
        act(verbs);
        act(popups);
    }
    void sayTheSame()
    {
        QCOMPARE(verbs.log.taken(), popups.log.taken());
        QVERIFY(support::sameImage(verbs.picture(), popups.picture()));
        QVERIFY(support::sameImage(verbs.editor->grab(), popups.editor->grab().toImage()));
        QCOMPARE(verbs.manager().currentToolID(), popups.manager().currentToolID());
        QCOMPARE(verbs.canvas().zoom(), popups.canvas().zoom());
        QCOMPARE(verbs.zoomBox().currentIndex(), popups.zoomBox().currentIndex());
    }
};

void inPopup(EditorDesk& desk, int tool)
{
    desk.chooseTool(tool == KORVA_TOOL_HAND ? fixtures::AreaSelect : fixtures::ToolID(tool));
    if (tool == KORVA_TOOL_HAND || tool == KORVA_TOOL_SELECT)
        desk.chooseOption(tool == KORVA_TOOL_HAND ? KORVA_OPTION_HAND : KORVA_OPTION_AREA);
}

void draw(EditorDesk& desk)
{
    support::Gestures(desk.canvas()).drag({stroke.topLeft(), stroke.bottomRight()});
}

/// What the editor tells of choices, in their order, and whether it was so when it was told.
class Choices
{
public:
    explicit Choices(KORVA_EditCanvas& editor)
    {
        QObject::connect(&editor, &KORVA_EditCanvas::toolChanged, &m_context, [&](int tool) {
            note("toolChanged", tool, editor.tool() == tool && editor.manager()->currentToolID() == tool);
        });
        QObject::connect(&editor, &KORVA_EditCanvas::optionChanged, &m_context,
                         [&](int option) { note("optionChanged", option, editor.option() == option); });
        QObject::connect(&editor, &KORVA_EditCanvas::zoomChanged, &m_context, [&](int percent) {
            note("zoomChanged", percent, editor.canvas()->zoom() == percent);
        });
        QObject::connect(&editor, &KORVA_EditCanvas::colorChanged, &m_context, [&](const QColor& color) {
            note("colorChanged", int(color.rgb() & 0xffffff), editor.color() == color);
        });
        QObject::connect(&editor, &KORVA_EditCanvas::chosen, &m_context,
                         [&](KORVA_CHOICETYPE what, int which) {
                             static constexpr const char* names[] = {"tool", "option", "zoom", "color"};
                             note(QByteArray("chosen ") + names[what], which, true);
                         });
    }

    [[nodiscard]] QStringList taken() { return std::exchange(m_lines, {}); }

private:
    void note(const QByteArray& what, int value, bool isSo)
    {
        m_lines << QString("%1 %2%3").arg(QString(what)).arg(value).arg(QString(isSo ? "" : " too early"));
    }

    QObject m_context;
    QStringList m_lines;
};

} // namespace

class tst_Verbs : public support::TestCase
{
    Q_OBJECT

private slots:
    void toolsAsInThePopup_data();
    void toolsAsInThePopup();
    void optionsAsInThePopup_data();
    void optionsAsInThePopup();
    void zoomsAsInTheBox_data();
    void zoomsAsInTheBox();
    void signalsTellWhatChanged();
    void theFirstOptionThatChangesIsTold();
    void whatDoesNotExistDoesNothing_data();
    void whatDoesNotExistDoesNothing();
    void zoomIsToldWhateverCausedIt();
    void selectAllTellsTheTool();
    void colorIsToldOnce();
    void whoHearsOfAToolMayChooseAnother();
};

void tst_Verbs::toolsAsInThePopup_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    for (const int from : tools)
        for (const int to : tools)
            QTest::addRow("%d to %d", from, to) << from << to;
}

void tst_Verbs::toolsAsInThePopup()
{
    QFETCH(const int, from);
    QFETCH(const int, to);
    Twins twins;
    twins.both([from](EditorDesk& desk) { inPopup(desk, from); });
    if (from == KORVA_TOOL_TEXT) {
        twins.both([](EditorDesk& desk) { desk.type("ab"); });
    } else {
        twins.both(draw);
    }
    twins.both([](EditorDesk& desk) { (void)desk.log.taken(); });
    inPopup(twins.popups, to);
    twins.verbs.editor->selectTool(to);
    // Between the hand and the frame the pop-ups take two choices, with a change of tools in between.
    if (from == to || (from == KORVA_TOOL_HAND && to == KORVA_TOOL_SELECT))
        twins.both([](EditorDesk& desk) { (void)desk.log.taken(); });
    twins.sayTheSame();
    twins.both(draw);
    twins.sayTheSame();
}

void tst_Verbs::optionsAsInThePopup_data()
{
    QTest::addColumn<int>("tool");
    QTest::addColumn<int>("option");
    constexpr int counts[] = {3, 2, 3, 3, 2, 2, 3, 2};
    for (const int tool : tools)
        for (int option = 0; option < counts[tool]; ++option)
            QTest::addRow("tool %d, row %d", tool, option) << tool << option;
}

void tst_Verbs::optionsAsInThePopup()
{
    QFETCH(const int, tool);
    QFETCH(const int, option);
    Twins twins;
    twins.both([tool](EditorDesk& desk) {
        inPopup(desk, tool);
        (void)desk.log.taken();
    });
    twins.popups.chooseOption(option);
    twins.verbs.editor->selectOption(option);
    twins.sayTheSame();
    QCOMPARE(twins.verbs.editor->option(), option);
    twins.both(draw);
    twins.sayTheSame();
}

void tst_Verbs::zoomsAsInTheBox_data()
{
    QTest::addColumn<int>("row");
    for (int row = KORVA_ZOOM_50; row <= KORVA_ZOOM_FIT; ++row)
        QTest::addRow("row %d", row) << row;
}

void tst_Verbs::zoomsAsInTheBox()
{
    QFETCH(const int, row);
    Twins twins;
    twins.both([](EditorDesk& desk) { desk.type("ab"); });
    twins.popups.chooseZoom(row);
    twins.verbs.editor->selectZoom(row);
    twins.sayTheSame();
}

void tst_Verbs::signalsTellWhatChanged()
{
    EditorDesk desk;
    Choices choices(*desk.editor);
    desk.editor->selectTool(KORVA_TOOL_LINE);
    QCOMPARE(choices.taken(), QStringList({"toolChanged 2", "optionChanged 0", "chosen tool 2"}));
    desk.editor->selectOption(KORVA_OPTION_LARGE);
    QCOMPARE(choices.taken(), QStringList({"optionChanged 2", "chosen option 2"}));
    desk.editor->selectOption(KORVA_OPTION_LARGE);
    QCOMPARE(choices.taken(), QStringList({"chosen option 2"}));
    desk.editor->selectTool(KORVA_TOOL_PENCIL); // has the size that the line had
    QCOMPARE(choices.taken(), QStringList({"toolChanged 0", "optionChanged 2", "chosen tool 0"}));
    desk.editor->selectTool(KORVA_TOOL_HAND);
    QCOMPARE(choices.taken(), QStringList({"toolChanged 7", "optionChanged 1", "chosen tool 7"}));
    desk.chooseOption(KORVA_OPTION_AREA);
    QCOMPARE(choices.taken(), QStringList({"toolChanged 1", "optionChanged 0", "chosen tool 1"}));
    desk.chooseTool(fixtures::Rectangle);
    QCOMPARE(choices.taken(), QStringList({"toolChanged 4", "optionChanged 0", "chosen tool 4"}));
    desk.editor->selectZoom(KORVA_ZOOM_200);
    QCOMPARE(choices.taken(), QStringList({"zoomChanged 200", "chosen zoom 3"}));
    desk.chooseZoom(KORVA_ZOOM_200);
    QCOMPARE(choices.taken(), QStringList({"chosen zoom 3"}));
    fixtures::mixColor(QColor(10, 20, 30));
    desk.button("colorButton").click();
    QCOMPARE(choices.taken(), QStringList({QString("colorChanged %1").arg(0x0a141e), "chosen color 0"}));
}

void tst_Verbs::theFirstOptionThatChangesIsTold()
{
    for (const int option : {1, 2}) {
        KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
        const QSignalSpy told(&editor, &KORVA_EditCanvas::optionChanged);
        editor.selectOption(0); // as it is
        QCOMPARE(told.count(), 0);
        editor.selectOption(option);
        QCOMPARE(told, QList<QVariantList>{{option}});
    }
}

void tst_Verbs::whatDoesNotExistDoesNothing_data()
{
    QTest::addColumn<int>("tool");
    QTest::addColumn<int>("option");
    QTest::addColumn<int>("zoom");
    QTest::addRow("below") << -1 << -1 << -1;
    QTest::addRow("above") << 8 << 3 << 5;
    QTest::addRow("a menu's number") << 101 << 201 << 100;
}

void tst_Verbs::whatDoesNotExistDoesNothing()
{
    QFETCH(const int, tool);
    QFETCH(const int, option);
    QFETCH(const int, zoom);
    EditorDesk desk;
    desk.editor->selectOption(KORVA_OPTION_MEDIUM);
    (void)desk.log.taken();
    Choices choices(*desk.editor);
    const QImage before = desk.editor->grab().toImage();
    desk.editor->selectTool(tool);
    desk.editor->selectOption(option);
    desk.editor->selectZoom(zoom);
    QCOMPARE(desk.log.taken(), QStringList());
    QCOMPARE(choices.taken(), QStringList());
    QVERIFY(support::sameImage(desk.editor->grab(), before));
    QCOMPARE(desk.editor->option(), int(KORVA_OPTION_MEDIUM));
}

void tst_Verbs::zoomIsToldWhateverCausedIt()
{
    EditorDesk desk;
    Choices choices(*desk.editor);
    desk.editor->setZoom(120);
    QCOMPARE(choices.taken(), QStringList({"zoomChanged 120"}));
    desk.canvas().setZoom(70);
    QCOMPARE(choices.taken(), QStringList({"zoomChanged 70"}));
    desk.editor->selectZoom(KORVA_ZOOM_FIT);
    QCOMPARE(choices.taken(), QStringList({"zoomChanged 109", "chosen zoom 4"}));
    QPixmap small(20, 20);
    small.fill(Qt::white);
    desk.editor->setPixmap(&small); // the page is fitted anew
    QCOMPARE(choices.taken(), QStringList({"zoomChanged 930"}));
    desk.editor->selectZoom(KORVA_ZOOM_200);
    (void)choices.taken();
    QPixmap large(5000, 4000); // too large for 200 %
    large.fill(Qt::white);
    desk.editor->setPixmap(&large);
    QCOMPARE(choices.taken(), QStringList({"zoomChanged 100"}));
}

void tst_Verbs::selectAllTellsTheTool()
{
    EditorDesk desk;
    Choices choices(*desk.editor);
    desk.editor->selectAll();
    QCOMPARE(choices.taken(), QStringList({"toolChanged 1", "optionChanged 0"}));
}

void tst_Verbs::colorIsToldOnce()
{
    EditorDesk desk;
    Choices choices(*desk.editor);
    desk.editor->setColor(Qt::blue);
    desk.editor->setColor(Qt::blue);
    QCOMPARE(choices.taken(), QStringList({"colorChanged 255"}));
}

void tst_Verbs::whoHearsOfAToolMayChooseAnother()
{
    EditorDesk desk;
    Choices choices(*desk.editor);
    QObject::connect(desk.editor.get(), &KORVA_EditCanvas::toolChanged, this, [&](int tool) {
        if (tool == KORVA_TOOL_LINE)
            desk.editor->selectTool(KORVA_TOOL_ELLIPSE);
    });
    desk.editor->selectTool(KORVA_TOOL_LINE);
    QCOMPARE(choices.taken(), QStringList({"toolChanged 2", "toolChanged 5", "optionChanged 0",
                                           "chosen tool 5", "chosen tool 5"}));
    QCOMPARE(desk.manager().currentToolID(), int(KORVA_TOOL_ELLIPSE));
}

int main(int argc, char** argv)
{
    return support::run<tst_Verbs>(argc, argv);
}

#include "tst_Verbs.moc"
