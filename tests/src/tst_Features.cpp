#include "EditorFixtures.h"
#include "KORVA_Features.h"
#include "support/Modal.h"

using fixtures::EditorDesk;
using support::filled;
using support::sameImage;

namespace {

QStringList namesOf(const QList<QAction*>& actions)
{
    QStringList names;
    for (const QAction* action : actions) {
        if (action->isVisible())
            names << action->text().section(QLatin1String(" <"), 0, 0);
    }
    return names;
}

KORVA_ToolOption sized(const QString& name, int width)
{
    QPixmap icon(20, 20);
    icon.fill(Qt::magenta);
    return {icon, name, width};
}

struct FeaturesDesk : EditorDesk
{
    using EditorDesk::EditorDesk;

    void set(const std::function<void(KORVA_Features&)>& change)
    {
        KORVA_Features features = editor->features();
        change(features);
        editor->setFeatures(features);
        (void)log.taken();
    }
    void draw() { support::Gestures(canvas()).drag({{10, 10}, {40, 40}}); }
    /// What a person can see of the controls.
    [[nodiscard]] QStringList controls() const
    {
        QStringList shown;
        for (const char* name : {"toolButton", "optionButton", "zoomBox", "colorButton"}) {
            if (!control<QWidget>(name).isHidden())
                shown << name;
        }
        return shown;
    }
};

} // namespace

class tst_Features : public support::TestCase
{
    Q_OBJECT

private slots:
    void everythingIsThereAtFirst();
    void takenToolIsNowhere();
    void toolInForceGivesWay();
    void withoutToolsThereIsTheHand();
    void takenOptionIsNowhere();
    void selectWithoutItsHand();
    void handWithoutSelecting();
    void eraserOf24Pixels();
    void ownOptionsAreRememberedApart();
    void ownOptionsInForceAtOnce();
    void addedToolCanBeTakenAway();
    void ownZooms();
    void zoomInForceGivesWay();
    void withoutZooms();
    void largeRowsForLargePictures();
    void takenFormatIsNotOpened_data();
    void takenFormatIsNotOpened();
    void takenFormatIsNotWritten();
    void viewTakesTheRoomOfTheControls();
    void withoutColors();
    void hostPicksTheColor();
    void withoutDialogs();
    void withoutOpening();
    void withoutSaving();
    void withoutPasting();
    void fixedCanvas();
    void pictureIsFittedIntoTheFixedCanvas_data();
    void pictureIsFittedIntoTheFixedCanvas();
    void readOnly();
    void readOnlyEndsWhatIsOpen();
    void nothingChangesWhenTheSameIsSet();
    void resetKeepsWhatIsOffered();
    void impossibleZoomsAreLeftOut();
    void whatIsOpenCloses();
};

void tst_Features::everythingIsThereAtFirst()
{
    FeaturesDesk desk;
    QCOMPARE(desk.tools().size(), 7);
    QCOMPARE(desk.controls().size(), 4);
    QCOMPARE(desk.zoomBox().count(), 5);
    QCOMPARE(namesOf(desk.canvas().contextMenu()->actions()).size(), 3);
}

void tst_Features::takenToolIsNowhere()
{
    FeaturesDesk desk;
    desk.set([](KORVA_Features& f) { f.withoutTools = {KORVA_TOOL_ELLIPSE, KORVA_TOOL_ERASER}; });
    QCOMPARE(namesOf(desk.tools()), (QStringList{"Select", "Line", "Pencil", "Text", "Rectangle"}));
    for (const int tool : {KORVA_TOOL_ELLIPSE, KORVA_TOOL_ERASER}) {
        desk.editor->selectTool(tool);
        QCOMPARE(desk.editor->tool(), int(KORVA_TOOL_PENCIL));
        QCOMPARE(desk.manager().currentToolID(), int(KORVA_TOOL_PENCIL));
    }
    desk.editor->slotSelChangeTool(101); // the eraser's entry
    QCOMPARE(desk.editor->tool(), int(KORVA_TOOL_PENCIL));
    QVERIFY(desk.log.taken().isEmpty());
    desk.set([](KORVA_Features& f) { f.withoutTools.clear(); });
    QCOMPARE(desk.tools().size(), 7);
    desk.editor->selectTool(KORVA_TOOL_ERASER);
    QCOMPARE(desk.editor->tool(), int(KORVA_TOOL_ERASER));
}

void tst_Features::toolInForceGivesWay()
{
    FeaturesDesk desk;
    desk.editor->selectTool(KORVA_TOOL_ELLIPSE);
    QSignalSpy tools(desk.editor.get(), &KORVA_EditCanvas::toolChanged);
    desk.set([](KORVA_Features& f) {
        f.withoutTools = {KORVA_TOOL_ELLIPSE, KORVA_TOOL_SELECT, KORVA_TOOL_HAND};
    });
    QCOMPARE(desk.editor->tool(), int(KORVA_TOOL_ERASER)); // the first of the pop-up
    QCOMPARE(tools.count(), 1);
    QVERIFY(fixtures::shows(desk.button("toolButton"), "DaApV_Eraser_Tool.gif"));
    desk.editor->selectAll();
    QVERIFY(desk.canvas().pasteLabel()->isHidden());
}

void tst_Features::withoutToolsThereIsTheHand()
{
    FeaturesDesk desk;
    desk.set([](KORVA_Features& f) { f.withoutTools = {0, 1, 2, 3, 4, 5, 6, 7}; });
    QCOMPARE(desk.editor->tool(), int(KORVA_TOOL_HAND));
    QCOMPARE(desk.controls(), (QStringList{"zoomBox", "colorButton"}));
    const QImage before = desk.picture();
    desk.draw();
    QVERIFY(sameImage(desk.picture(), before));
    desk.set([](KORVA_Features& f) { f.withoutTools = {KORVA_TOOL_SELECT}; });
    QCOMPARE(desk.editor->tool(), int(KORVA_TOOL_HAND));
    desk.editor->selectTool(KORVA_TOOL_PENCIL);
    desk.draw();
    QVERIFY(fixtures::hasInk(desk.picture()));
}

void tst_Features::takenOptionIsNowhere()
{
    FeaturesDesk desk;
    desk.set([](KORVA_Features& f) { f.withoutOptions[KORVA_TOOL_PENCIL] = {KORVA_OPTION_MEDIUM}; });
    QCOMPARE(namesOf(desk.options()), (QStringList{"Small", "Large"}));
    desk.editor->selectOption(KORVA_OPTION_MEDIUM);
    QCOMPARE(desk.editor->option(), int(KORVA_OPTION_SMALL));
    desk.editor->slotSelChangeToolOptions(desk.options()[0]->data().toInt() + 1);
    QVERIFY(desk.editor->option() != int(KORVA_OPTION_MEDIUM));
    desk.editor->selectOption(KORVA_OPTION_LARGE); // keeps its number
    QCOMPARE(desk.editor->option(), int(KORVA_OPTION_LARGE));
    QCOMPARE(desk.manager().currentTool()->leftPen().width(), 5);
    desk.editor->selectTool(KORVA_TOOL_LINE); // has all of them
    QCOMPARE(desk.options().size(), 3);
    desk.editor->selectOption(KORVA_OPTION_MEDIUM);
    desk.editor->selectTool(KORVA_TOOL_PENCIL); // the shared choice is not offered here
    QCOMPARE(desk.editor->option(), int(KORVA_OPTION_SMALL));
    QCOMPARE(desk.manager().currentTool()->leftPen().width(), 1);
}

void tst_Features::selectWithoutItsHand()
{
    FeaturesDesk desk;
    desk.editor->selectTool(KORVA_TOOL_HAND);
    desk.set([](KORVA_Features& f) { f.withoutTools = {KORVA_TOOL_HAND}; });
    QCOMPARE(desk.editor->tool(), int(KORVA_TOOL_SELECT));
    QCOMPARE(namesOf(desk.options()), QStringList{"Select area"});
    desk.editor->selectTool(KORVA_TOOL_HAND);
    QCOMPARE(desk.editor->tool(), int(KORVA_TOOL_SELECT));
}

void tst_Features::handWithoutSelecting()
{
    FeaturesDesk desk;
    desk.set([](KORVA_Features& f) { f.withoutTools = {KORVA_TOOL_SELECT}; });
    QCOMPARE(namesOf(desk.tools()).first(), QString("Select")); // it holds the hand
    desk.chooseTool(fixtures::AreaSelect);
    QCOMPARE(desk.editor->tool(), int(KORVA_TOOL_HAND));
    QCOMPARE(namesOf(desk.options()), QStringList{"Move view"});
    desk.editor->selectTool(KORVA_TOOL_SELECT);
    QCOMPARE(desk.editor->tool(), int(KORVA_TOOL_HAND));
}

void tst_Features::eraserOf24Pixels()
{
    FeaturesDesk desk;
    desk.setPicture(support::mosaic(QSize(80, 60)));
    desk.set([](KORVA_Features& f) {
        f.ownOptions[KORVA_TOOL_ERASER] = {sized("Fine", 2), sized("Broad", 24)};
    });
    desk.editor->selectTool(KORVA_TOOL_ERASER);
    QCOMPARE(namesOf(desk.options()), (QStringList{"Fine", "Broad"}));
    desk.options()[1]->trigger();
    support::Gestures(desk.canvas()).click({10, 20});
    QVERIFY(sameImage(desk.picture(),
                      filled(support::mosaic(QSize(80, 60)), QRect(10, 20, 24, 24), Qt::white)));
    QCOMPARE(desk.canvas().cursor().pixmap().size(), QSize(26, 26));
}

void tst_Features::ownOptionsAreRememberedApart()
{
    FeaturesDesk desk;
    desk.set([](KORVA_Features& f) {
        f.ownOptions[KORVA_TOOL_ERASER] = {sized("8", 8), sized("16", 16), sized("24", 24),
                                           sized("32", 32)};
    });
    desk.editor->selectTool(KORVA_TOOL_ERASER);
    desk.editor->selectOption(3);
    desk.editor->selectTool(KORVA_TOOL_PENCIL);
    QCOMPARE(desk.editor->option(), 0);
    desk.editor->selectOption(KORVA_OPTION_MEDIUM);
    desk.editor->selectTool(KORVA_TOOL_ERASER);
    QCOMPARE(desk.editor->option(), 3);
    QCOMPARE(desk.manager().currentTool()->leftPen().width(), 32);
    desk.editor->selectTool(KORVA_TOOL_LINE);
    QCOMPARE(desk.editor->option(), int(KORVA_OPTION_MEDIUM));
    desk.set([](KORVA_Features& f) { // those of shapes say what is filled
        f.ownOptions[KORVA_TOOL_RECTANGLE] = {sized("8", 8), sized("16", 16), sized("24", 24)};
    });
    desk.editor->selectTool(KORVA_TOOL_RECTANGLE);
    QCOMPARE(namesOf(desk.options()), (QStringList{"Outline", "Filled"}));
}

void tst_Features::ownOptionsInForceAtOnce()
{
    FeaturesDesk desk;
    desk.set([](KORVA_Features& f) { f.ownOptions[KORVA_TOOL_PENCIL] = {sized("Seven", 7)}; });
    QCOMPARE(desk.manager().currentTool()->leftPen().width(), 7);
    QCOMPARE(desk.button("optionButton").accessibleDescription(), QString("Seven"));
    desk.set([](KORVA_Features& f) { f.ownOptions.clear(); });
    QCOMPARE(desk.manager().currentTool()->leftPen().width(), 1);
}

void tst_Features::addedToolCanBeTakenAway()
{
    FeaturesDesk desk;
    const int own = desk.editor->addTool(std::make_unique<fixtures::RecordingTool>("own"), QIcon(), "Own");
    QCOMPARE(namesOf(desk.tools()).last(), QString("Own"));
    desk.set([own](KORVA_Features& f) { f.withoutTools = {own}; });
    QCOMPARE(desk.tools().size(), 7);
    desk.editor->selectTool(own);
    QCOMPARE(desk.editor->tool(), int(KORVA_TOOL_PENCIL));
}

void tst_Features::ownZooms()
{
    FeaturesDesk desk;
    desk.set([](KORVA_Features& f) { f.zooms = {25, 100, 400, 800, KORVA_Features::fitToPage}; });
    QCOMPARE(desk.zoomBox().count(), 5);
    QCOMPARE(desk.zoomBox().itemText(2), QString("400%"));
    QCOMPARE(desk.editor->zoomIndex(), 1);
    desk.setPicture(support::mosaic(QSize(40, 30)));
    for (const auto& [row, percent] : QMap<int, int>{{0, 25}, {2, 400}, {3, 800}, {1, 100}}.toStdMap()) {
        desk.editor->selectZoom(row);
        QCOMPARE(desk.canvas().zoom(), percent);
        QVERIFY(
            sameImage(desk.canvas().zoomedPixmap()->toImage(), support::scaled(desk.picture(), percent)));
    }
    desk.editor->selectZoom(4);
    QCOMPARE(desk.canvas().zoom(), 100 * 222 / 40);
    QCOMPARE(desk.editor->zoomIndex(), 4);
}

void tst_Features::zoomInForceGivesWay()
{
    FeaturesDesk desk;
    desk.editor->selectZoom(KORVA_ZOOM_200);
    QSignalSpy zooms(desk.editor.get(), &KORVA_EditCanvas::zoomChanged);
    desk.set([](KORVA_Features& f) { f.zooms = {50, 100}; });
    QCOMPARE(desk.canvas().zoom(), 100);
    QCOMPARE(desk.editor->zoomIndex(), 1);
    QCOMPARE(zooms.count(), 1);
    desk.set([](KORVA_Features& f) { f.zooms = {50, 300}; });
    QCOMPARE(desk.canvas().zoom(), 50);
    desk.set([](KORVA_Features& f) { f.zooms = {300, 50}; }); // still there
    QCOMPARE(desk.canvas().zoom(), 50);
    QCOMPARE(desk.editor->zoomIndex(), 1);
}

void tst_Features::withoutZooms()
{
    FeaturesDesk desk;
    desk.set([](KORVA_Features& f) { f.zooms.clear(); });
    QVERIFY(!desk.controls().contains("zoomBox"));
    desk.editor->selectZoom(0);
    desk.editor->slotSelZoomRate(3);
    QCOMPARE(desk.canvas().zoom(), 100);
    desk.editor->reset();
    desk.editor->setZoom(200); // the host's own
    QCOMPARE(desk.canvas().zoom(), 200);
}

void tst_Features::largeRowsForLargePictures()
{
    FeaturesDesk desk;
    desk.setPicture(support::sheet(QSize(640, 100)));
    desk.editor->selectZoom(KORVA_ZOOM_200);
    QCOMPARE(desk.canvas().zoom(), 100);
    desk.set([](KORVA_Features& f) { f.zooms = {100, 200, 250}; });
    desk.editor->selectZoom(1);
    QCOMPARE(desk.canvas().zoom(), 100);
    desk.editor->selectZoom(2);
    QCOMPARE(desk.canvas().zoom(), 250);
    KORVA_Manners manners;
    manners.trueZooms = true;
    desk.editor->setManners(manners);
    desk.editor->selectZoom(1);
    QCOMPARE(desk.canvas().zoom(), 200);
}

void tst_Features::takenFormatIsNotOpened_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("isOpened");
    QTest::newRow("what is left") << "a.png" << QByteArray("PNG") << true;
    QTest::newRow("taken") << "a.bmp" << QByteArray("BMP") << false;
    QTest::newRow("taken, under another name") << "a.png" << QByteArray("BMP") << false;
    QTest::newRow("taken JPEG") << "a.jpg" << QByteArray("JPEG") << false;
}

void tst_Features::takenFormatIsNotOpened()
{
    QFETCH(const QString, name);
    QFETCH(const QByteArray, content);
    QFETCH(const bool, isOpened);
    const fixtures::PictureFolder folder;
    const QString file = folder.written(name, fixtures::flag(), content.constData());
    FeaturesDesk desk;
    desk.set([](KORVA_Features& f) { f.formats = {"PNG"}; });
    QCOMPARE(desk.editor->openNewFilePrivate(KORVA_ACTION_OPEN, file), isOpened);
    QCOMPARE(sameImage(desk.picture(), isOpened ? fixtures::flag() : support::sheet(QSize(200, 170))),
             true);

    QFile bytes(file);
    QVERIFY(bytes.open(QIODevice::ReadOnly));
    QCOMPARE(desk.editor->setEncoded(bytes.readAll()), isOpened);
    desk.platform->picks = {std::nullopt};
    (void)desk.log.taken();
    desk.editor->clearModified();
    desk.editor->slotOpen();
    QVERIFY(desk.log.taken().join('\n').contains("| *.png"));
}

void tst_Features::takenFormatIsNotWritten()
{
    const fixtures::PictureFolder folder;
    FeaturesDesk desk;
    desk.set([](KORVA_Features& f) { f.formats = {"PNG"}; });
    desk.scribble();
    desk.editor->setFileName(folder.file("a.bmp"));
    desk.editor->saveFilePrivate();
    QVERIFY(folder.names().isEmpty());
    QCOMPARE(desk.editor->fileName(), folder.file("a.bmp"));
    desk.editor->setFileName(folder.file("a.png"));
    desk.editor->saveFilePrivate();
    QCOMPARE(folder.names(), QStringList{"a.png"});
    desk.editor->setFileName({});
    desk.scribble();
    desk.platform->names = {std::nullopt};
    desk.editor->slotSave();
    QVERIFY(desk.log.taken().join('\n').contains("name | /photos | *.png"));
}

void tst_Features::viewTakesTheRoomOfTheControls()
{
    FeaturesDesk desk;
    desk.editor->show();
    const QRect classicView = desk.editor->mainView()->geometry();
    QCOMPARE(classicView, QRect(2, 33, 228, 192));
    desk.set([](KORVA_Features& f) { f.controls = false; });
    QVERIFY(desk.controls().isEmpty());
    QCOMPARE(desk.editor->mainView()->geometry(), QRect(2, 2, 228, 223));
    desk.editor->resize(480, 300);
    QCOMPARE(desk.editor->mainView()->geometry(), QRect(2, 2, 468, 298));
    desk.setPicture(support::sheet(QSize(500, 100)));
    desk.editor->selectZoom(KORVA_ZOOM_FIT);
    QCOMPARE(desk.canvas().zoom(), 100 * 462 / 500);
    desk.editor->resize(240, 225);
    desk.set([](KORVA_Features& f) { f.controls = true; });
    QCOMPARE(desk.editor->mainView()->geometry(), classicView);
    QCOMPARE(desk.controls().size(), 4);
}

void tst_Features::withoutColors()
{
    FeaturesDesk desk;
    desk.set([](KORVA_Features& f) { f.colors = false; });
    QVERIFY(!desk.controls().contains("colorButton"));
    desk.editor->slotColor(); // would wait for a dialog
    desk.editor->setColor(Qt::blue);
    QCOMPARE(desk.editor->color(), QColor(Qt::blue));
}

void tst_Features::hostPicksTheColor()
{
    class Host : public UTIL_Platform
    {
    public:
        std::optional<QColor> pickColor(QWidget* parent, const QColor& present, int depth) override
        {
            asked << QString("%1 %2 %3").arg(parent->metaObject()->className(), present.name()).arg(depth);
            return answer;
        }
        QStringList asked;
        std::optional<QColor> answer = QColor(1, 2, 3);
    };
    auto owned = std::make_unique<Host>();
    Host& host = *owned;
    UTIL_Platform::install(std::move(owned));
    {
        KORVA_EditCanvas editor(KORVA_COLOR_8BIT);
        QSignalSpy colors(&editor, &KORVA_EditCanvas::colorChanged);
        editor.slotColor();
        QCOMPARE(editor.color(), QColor(1, 2, 3));
        QCOMPARE(colors.count(), 1);
        host.answer = editor.color(); // cancelled
        editor.slotColor();
        QCOMPARE(colors.count(), 1);
        QCOMPARE(host.asked, (QStringList{"KORVA_EditCanvas #ff0000 8", "KORVA_EditCanvas #010203 8"}));
        host.answer.reset();
        fixtures::mixColor(QColor(255, 255, 255));
        editor.slotColor(); // the library's own
        QVERIFY(editor.color() != QColor(1, 2, 3));
    }
    UTIL_Platform::install(nullptr);
}

void tst_Features::withoutDialogs()
{
    const fixtures::PictureFolder folder;
    FeaturesDesk desk;
    desk.set([](KORVA_Features& f) { f.dialogs = false; });
    desk.scribble();
    desk.editor->slotOpen(); // a question or a dialog would fail this test
    desk.editor->slotSave();
    desk.editor->slotDelete();
    desk.editor->setBuffer("no picture");
    QVERIFY(!desk.editor->openNewFilePrivate(KORVA_ACTION_OPEN, folder.file("missing.png")));
    QVERIFY(
        desk.log.taken().filter(QRegularExpression("^(question|message|information|pick|name)")).isEmpty());
    QVERIFY(fixtures::hasInk(desk.picture()));
    desk.editor->setFileName(folder.file("a.png"));
    desk.editor->saveFilePrivate();
    QCOMPARE(folder.names(), QStringList{"a.png"});
    QVERIFY(!desk.editor->isModified());
}

void tst_Features::withoutOpening()
{
    const fixtures::PictureFolder folder;
    const QString file = folder.written("a.png", fixtures::flag());
    FeaturesDesk desk;
    desk.set([](KORVA_Features& f) { f.opening = false; });
    desk.editor->slotOpen();
    QVERIFY(!desk.editor->openNewFilePrivate(KORVA_ACTION_OPEN, file));
    QVERIFY(!desk.editor->openNewFilePrivate(KORVA_ACTION_INSERT_STAMP, file));
    desk.editor->saveChangePic(KORVA_ACTION_INSERT_STAMP);
    QVERIFY(desk.editor->fileName().isEmpty());
    QVERIFY(!fixtures::hasInk(desk.picture()));
    QVERIFY(desk.log.taken().isEmpty());
}

void tst_Features::withoutSaving()
{
    const fixtures::PictureFolder folder;
    const QString file = folder.written("a.png", fixtures::flag());
    FeaturesDesk desk(file);
    desk.set([](KORVA_Features& f) { f.saving = false; });
    desk.scribble();
    desk.editor->slotSave();
    desk.editor->saveFilePrivate();
    desk.editor->savePic(KORVA_ACTION_SAVE);
    desk.editor->slotDelete();
    desk.editor->slotSaveDlgCloseBeforeOpen(folder.file("b.png"));
    QVERIFY(!desk.editor->save(folder.file("c.png"), "PNG"));
    QCOMPARE(folder.names(), QStringList{"a.png"});
    QVERIFY(sameImage(QImage(file), fixtures::flag()));
    QCOMPARE(desk.editor->fileName(), file);
    QVERIFY(desk.editor->isModified());
    QVERIFY(desk.log.taken().isEmpty());
    QVERIFY(!desk.editor->encoded("PNG").isEmpty()); // for the host's own use
    desk.platform->picks = {std::nullopt};
    desk.editor->slotOpen(); // and no question
    QVERIFY(desk.log.taken().join('\n').startsWith("pick"));
}

void tst_Features::withoutPasting()
{
    FeaturesDesk desk;
    QGuiApplication::clipboard()->setPixmap(QPixmap::fromImage(fixtures::flag()));
    emit desk.canvas().clipboard(true);
    desk.set([](KORVA_Features& f) { f.pasting = false; });
    QCOMPARE(namesOf(desk.canvas().contextMenu()->actions()), (QStringList{"Cut", "Copy"}));
    QCOMPARE(namesOf(desk.canvas().pasteLabel()->menu()->actions()), (QStringList{"Copy", "Cut"}));
    desk.editor->paste();
    desk.editor->paste(10, 10);
    QPixmap stamp = QPixmap::fromImage(fixtures::flag());
    desk.editor->insertStamp(stamp);
    QVERIFY(desk.canvas().pasteLabel()->isHidden());
    QVERIFY(!fixtures::hasInk(desk.picture()));
    QVERIFY(!desk.editor->isModified());
    desk.set([](KORVA_Features& f) { f.pasting = true; });
    desk.editor->paste();
    QVERIFY(!desk.canvas().pasteLabel()->isHidden());
    QGuiApplication::clipboard()->clear();
}

void tst_Features::fixedCanvas()
{
    FeaturesDesk desk;
    desk.draw();
    const QImage drawn = desk.picture();
    desk.set([](KORVA_Features& f) { f.resizing = false; });
    desk.editor->resizeImage(50, 50);
    desk.editor->setCanvasSize(60, 60);
    QVERIFY(sameImage(desk.picture(), drawn));
    desk.editor->chooseCanvas(KORVA_CANVAS_8BIT, 60, 60); // a new drawing, in the present size
    QVERIFY(sameImage(desk.picture(), support::sheet(drawn.size())));
    QCOMPARE(desk.editor->colorType(), KORVA_COLOR_8BIT);
}

void tst_Features::pictureIsFittedIntoTheFixedCanvas_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QRect>("place");
    QTest::addColumn<bool>("isReduced");
    QTest::newRow("smaller") << QSize(40, 30) << QRect(20, 15, 40, 30) << true;
    QTest::newRow("wider") << QSize(160, 60) << QRect(0, 15, 80, 30) << true;
    QTest::newRow("higher") << QSize(40, 120) << QRect(30, 0, 20, 60) << true;
    QTest::newRow("the same") << QSize(80, 60) << QRect(0, 0, 80, 60) << false;
}

void tst_Features::pictureIsFittedIntoTheFixedCanvas()
{
    QFETCH(const QSize, size);
    QFETCH(const QRect, place);
    QFETCH(const bool, isReduced);
    const fixtures::PictureFolder folder;
    const QString file = folder.written("a.png", support::sheet(size, Qt::blue));
    FeaturesDesk desk;
    desk.setPicture(support::sheet(QSize(80, 60)));
    desk.set([](KORVA_Features& f) { f.resizing = false; });
    QVERIFY(desk.editor->openNewFilePrivate(KORVA_ACTION_OPEN, file));
    const QImage expected = filled(support::sheet(QSize(80, 60)), place, Qt::blue);
    QVERIFY(sameImage(desk.picture(), expected));
    QCOMPARE(desk.editor->isReduced(), isReduced); // saving it would lose the file's own size

    desk.setPicture(support::sheet(size, Qt::blue));
    QVERIFY(sameImage(desk.picture(), expected));
    QFile bytes(file);
    QVERIFY(bytes.open(QIODevice::ReadOnly));
    QVERIFY(desk.editor->setEncoded(bytes.readAll()));
    QVERIFY(sameImage(desk.picture(), expected));
}

void tst_Features::readOnly()
{
    FeaturesDesk desk;
    desk.draw();
    QGuiApplication::clipboard()->setPixmap(QPixmap::fromImage(fixtures::flag()));
    const QImage drawn = desk.picture();
    desk.set([](KORVA_Features& f) { f.editing = false; });
    QCOMPARE(desk.controls(), QStringList{"zoomBox"});
    QCOMPARE(desk.editor->tool(), int(KORVA_TOOL_HAND));
    for (int tool = 0; tool < 8; ++tool)
        desk.editor->selectTool(tool);
    QCOMPARE(desk.editor->tool(), int(KORVA_TOOL_HAND));
    desk.draw();
    desk.editor->undo();
    desk.editor->redo();
    desk.editor->cut();
    desk.editor->copy();
    desk.editor->paste();
    desk.editor->deleteSelection();
    desk.editor->selectAll();
    desk.editor->clearCanvas();
    desk.editor->resizeImage(10, 10);
    desk.editor->setCanvasSize(10, 10);
    desk.editor->chooseCanvas(KORVA_CANVAS_16BIT, 10, 10);
    desk.editor->slotColor();
    desk.editor->slotDelete();
    desk.canvas().setKeyboardDrawing(true);
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Space, Qt::Key_Return, Qt::Key_A})
        support::Gestures(desk.canvas()).key(key);
    QVERIFY(sameImage(desk.picture(), drawn));
    QVERIFY(sameImage(QGuiApplication::clipboard()->image(), fixtures::flag()));
    support::Gestures(desk.canvas()).press({20, 20}, Qt::RightButton);
    QVERIFY(!QApplication::activePopupWidget());

    desk.editor->selectZoom(KORVA_ZOOM_200);
    QCOMPARE(desk.canvas().zoom(), 200);
    desk.setPicture(fixtures::flag()); // the host shows another
    QVERIFY(sameImage(desk.picture(), fixtures::flag()));
    desk.set([](KORVA_Features& f) { f.editing = true; });
    QCOMPARE(desk.controls().size(), 4);
    desk.editor->selectTool(KORVA_TOOL_PENCIL);
    desk.draw();
    QVERIFY(!sameImage(desk.picture(), fixtures::flag(), "drawn-again"));
    QGuiApplication::clipboard()->clear();
}

void tst_Features::readOnlyEndsWhatIsOpen()
{
    FeaturesDesk typing;
    typing.type("ab");
    const QImage shown = typing.editor->snapshot();
    typing.set([](KORVA_Features& f) { f.editing = false; });
    QVERIFY(sameImage(typing.picture(), shown)); // the text is committed, not lost
    QVERIFY(!typing.editor->currentText());

    FeaturesDesk floating;
    QPixmap stamp = QPixmap::fromImage(fixtures::flag());
    floating.editor->insertStamp(stamp);
    const QImage with = floating.editor->snapshot();
    floating.set([](KORVA_Features& f) { f.editing = false; });
    QVERIFY(floating.canvas().pasteLabel()->isHidden());
    QVERIFY(sameImage(floating.picture(), with));
}

void tst_Features::nothingChangesWhenTheSameIsSet()
{
    FeaturesDesk desk;
    desk.type("ab");
    desk.editor->clearModified();
    (void)desk.log.taken();
    const QImage before = desk.editor->grab().toImage();
    desk.editor->setFeatures(desk.editor->features());
    QVERIFY(desk.log.taken().isEmpty());
    QVERIFY(sameImage(desk.editor->grab(), before));
    QVERIFY(!desk.editor->isModified());
}

void tst_Features::resetKeepsWhatIsOffered()
{
    FeaturesDesk desk;
    desk.setPicture(support::sheet(QSize(80, 60), Qt::blue));
    desk.set([](KORVA_Features& f) {
        f.withoutTools = {KORVA_TOOL_PENCIL};
        f.zooms = {50, 400};
        f.resizing = false;
    });
    desk.editor->selectTool(KORVA_TOOL_LINE);
    desk.editor->reset();
    QCOMPARE(desk.editor->tool(), int(KORVA_TOOL_SELECT));
    QCOMPARE(desk.manager().currentToolID(), int(KORVA_TOOL_SELECT));
    QCOMPARE(desk.canvas().zoom(), 50);
    QVERIFY(sameImage(desk.picture(), support::sheet(QSize(80, 60))));
    QCOMPARE(desk.tools().size(), 6);
}

void tst_Features::impossibleZoomsAreLeftOut()
{
    FeaturesDesk desk;
    desk.set([](KORVA_Features& f) { f.zooms = {-100, 100, 100'000, 3200}; });
    QCOMPARE(desk.editor->features().zooms, (QList<int>{100, 3200}));
    QCOMPARE(desk.zoomBox().count(), 2);
}

void tst_Features::whatIsOpenCloses()
{
    FeaturesDesk desk;
    const QColor before = desk.editor->color();
    QTimer::singleShot(0, desk.editor.get(), [&desk] {
        QVERIFY(QApplication::activeModalWidget());
        KORVA_Features without = desk.editor->features();
        without.colors = false;
        desk.editor->setFeatures(without);
    });
    desk.editor->slotColor(); // returns, because the picker is closed
    QVERIFY(!QApplication::activeModalWidget());
    QCOMPARE(desk.editor->color(), before);
}

int main(int argc, char** argv)
{
    return support::run<tst_Features>(argc, argv);
}

#include "tst_Features.moc"
