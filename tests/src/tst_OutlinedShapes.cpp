#include "KORVA_EditCanvas.h"
#include "ToolFixtures.h"

#include <QSignalSpy>

using fixtures::painted;
using fixtures::ToolID;
using support::sameImage;

namespace {

constexpr QSize size(90, 70);

struct Editor
{
    explicit Editor(bool isModern = true)
    {
        QPixmap picture = QPixmap::fromImage(support::mosaic(size));
        editor.setPixmap(&picture);
        editor.setColor(Qt::yellow);
        editor.setOutlineColor(Qt::darkBlue);
        behave(isModern);
    }
    void behave(bool isModern)
    {
        KORVA_Manners manners;
        manners.outlinedShapes = isModern;
        editor.setManners(manners);
    }
    [[nodiscard]] QList<QAction*> rows() const
    {
        return editor.findChild<QPushButton*>("optionButton")->menu()->actions();
    }
    [[nodiscard]] QStringList names() const
    {
        QStringList names;
        for (const QAction* row : rows())
            names << row->text();
        return names;
    }
    [[nodiscard]] QImage picture() const { return editor.snapshot(); }
    [[nodiscard]] QImage screen() const { return editor.canvas()->zoomedPixmap()->toImage(); }

    KORVA_EditCanvas editor{KORVA_COLOR_16BIT};
    support::Gestures stylus{*editor.canvas()};
};

} // namespace

/// The options that fill a shape and outline it in a colour of its own.
class tst_OutlinedShapes : public support::TestCase
{
    Q_OBJECT

private slots:
    void fillsAndOutlines_data();
    void fillsAndOutlines();
    void withoutAColorOfItsOwn();
    void colorFollowsAtOnce();
    void otherToolsKeepTheirColor();
    void offeredOnlyModern();
    void everyOptionHasAnIcon();
};

void tst_OutlinedShapes::fillsAndOutlines_data()
{
    QTest::addColumn<ToolID>("tool");
    QTest::addColumn<int>("option");
    QTest::addColumn<int>("zoom");
    for (const ToolID tool : {fixtures::Rectangle, fixtures::Ellipse}) {
        for (const int option : {KORVA_OPTION_THIN_EDGE, KORVA_OPTION_THICK_EDGE}) {
            for (const int zoom : {50, 100, 150, 200, 400})
                QTest::addRow("tool %d, option %d, %d %%", tool, option, zoom) << tool << option << zoom;
        }
    }
}

void tst_OutlinedShapes::fillsAndOutlines()
{
    QFETCH(const ToolID, tool);
    QFETCH(const int, option);
    QFETCH(const int, zoom);
    const int width = option == KORVA_OPTION_THIN_EDGE ? 1 : 3;
    Editor desk;
    desk.editor.setZoom(zoom);
    desk.editor.selectTool(tool);
    desk.editor.selectOption(option);
    QCOMPARE(desk.editor.option(), option);
    const QImage before = desk.screen();
    for (const auto& [from, to] : {std::pair(QPoint(10, 12), QPoint(70, 50)), {{80, 60}, {20, 30}}}) {
        const QPoint begin = from * zoom / 100;
        const QPoint end = to * zoom / 100;
        desk.stylus.press(begin);
        desk.stylus.move(end);
        QVERIFY(sameImage(desk.screen(), fixtures::toggled(before, width * zoom / 100,
                                                           fixtures::shape(tool, begin, end))));
        desk.stylus.release(end);
        const auto drawn = [&](const QImage& paper, QPoint a, QPoint b, int penWidth) {
            return painted(paper, fixtures::solidPen(Qt::darkBlue, penWidth), QBrush(Qt::yellow),
                           fixtures::shape(tool, a, b));
        };
        QVERIFY(sameImage(desk.screen(), drawn(before, begin, end, width * zoom / 100)));
        QVERIFY(sameImage(desk.picture(),
                          drawn(support::mosaic(size), begin * 100 / zoom, end * 100 / zoom, width)));
        desk.editor.undo();
        QVERIFY(sameImage(desk.picture(), support::mosaic(size)));
    }
}

void tst_OutlinedShapes::withoutAColorOfItsOwn()
{
    Editor desk;
    desk.editor.setOutlineColor({});
    desk.editor.selectTool(KORVA_TOOL_RECTANGLE);
    desk.editor.selectOption(KORVA_OPTION_THIN_EDGE);
    desk.stylus.drag({{10, 10}, {40, 40}});
    QVERIFY(sameImage(desk.picture(),
                      support::filled(support::mosaic(size), QRect(10, 10, 30, 30), Qt::yellow)));
}

void tst_OutlinedShapes::colorFollowsAtOnce()
{
    Editor desk;
    desk.editor.selectTool(KORVA_TOOL_RECTANGLE);
    desk.editor.selectOption(KORVA_OPTION_THIN_EDGE);
    desk.editor.setOutlineColor(Qt::magenta);
    QCOMPARE(desk.editor.outlineColor(), QColor(Qt::magenta));
    desk.stylus.drag({{10, 10}, {40, 40}});
    QCOMPARE(desk.picture().pixelColor(10, 10), QColor(Qt::magenta));
    QCOMPARE(desk.picture().pixelColor(11, 11), QColor(Qt::yellow));
    desk.editor.setColor(Qt::green); // the one that fills
    desk.stylus.drag({{50, 10}, {80, 40}});
    QCOMPARE(desk.picture().pixelColor(50, 10), QColor(Qt::magenta));
    QCOMPARE(desk.picture().pixelColor(51, 11), QColor(Qt::green));
}

void tst_OutlinedShapes::otherToolsKeepTheirColor()
{
    Editor desk;
    desk.editor.selectTool(KORVA_TOOL_RECTANGLE);
    desk.editor.selectOption(KORVA_OPTION_THICK_EDGE);
    desk.editor.manager()->setCurrentTool(KORVA_TOOL_PENCIL); // by a host that passes the editor by
    QCOMPARE(desk.editor.manager()->currentTool()->leftPen().color(), QColor(Qt::yellow));
    for (const int tool : {KORVA_TOOL_PENCIL, KORVA_TOOL_LINE, KORVA_TOOL_TEXT}) {
        desk.editor.selectTool(tool);
        QCOMPARE(desk.editor.manager()->currentTool()->leftPen().color(), QColor(Qt::yellow));
    }
    desk.editor.selectTool(KORVA_TOOL_ELLIPSE); // the option is one choice for both shapes
    QCOMPARE(desk.editor.option(), int(KORVA_OPTION_THICK_EDGE));
    QCOMPARE(desk.editor.manager()->currentTool()->leftPen().color(), QColor(Qt::darkBlue));
    for (const int option : {KORVA_OPTION_OUTLINE, KORVA_OPTION_FILLED}) {
        desk.editor.selectOption(option);
        QCOMPARE(desk.editor.manager()->currentTool()->leftPen().color(), QColor(Qt::yellow));
        QCOMPARE(desk.editor.manager()->currentTool()->leftPen().width(), 1);
    }
}

void tst_OutlinedShapes::offeredOnlyModern()
{
    Editor desk(false);
    desk.editor.selectTool(KORVA_TOOL_ELLIPSE);
    QCOMPARE(desk.names(), QStringList({"Outline", "Filled"}));
    desk.editor.selectOption(KORVA_OPTION_THIN_EDGE);
    QCOMPARE(desk.editor.option(), int(KORVA_OPTION_OUTLINE));
    desk.behave(true);
    QCOMPARE(desk.names(), QStringList({"Outline", "Filled", "Thin edge", "Thick edge"}));
    QCOMPARE(desk.editor.option(), int(KORVA_OPTION_OUTLINE));
    QSignalSpy changed(&desk.editor, &KORVA_EditCanvas::optionChanged);
    desk.rows().at(3)->trigger();
    QCOMPARE(changed.takeLast().first().toInt(), int(KORVA_OPTION_THICK_EDGE));
    QVERIFY(desk.rows().at(3)->isChecked());
    desk.behave(false);
    QCOMPARE(desk.names(), QStringList({"Outline", "Filled"}));
    QCOMPARE(desk.editor.option(), int(KORVA_OPTION_OUTLINE));
    QCOMPARE(desk.editor.manager()->currentTool()->leftPen().color(), QColor(Qt::yellow));
    desk.stylus.drag({{10, 10}, {40, 40}});
    QCOMPARE(desk.picture().pixelColor(25, 25), support::mosaic(size).pixelColor(25, 25));
}

void tst_OutlinedShapes::everyOptionHasAnIcon()
{
    Editor desk;
    for (const int tool : {KORVA_TOOL_RECTANGLE, KORVA_TOOL_ELLIPSE}) {
        desk.editor.selectTool(tool);
        QList<QImage> icons;
        for (const QAction* row : desk.rows()) {
            const QImage icon = row->icon().pixmap(24, 18).toImage();
            QVERIFY(!icon.isNull());
            QVERIFY(!icons.contains(icon));
            icons << icon;
        }
    }
}

int main(int argc, char** argv)
{
    return support::run<tst_OutlinedShapes>(argc, argv);
}

#include "tst_OutlinedShapes.moc"
