#include "support/Gestures.h"
#include "support/Images.h"
#include "support/Modal.h"
#include "support/TestCase.h"

#include <KORVA_Canvas.h>
#include <KORVA_Manager.h>
#include <KORVA_PasteLabel.h>
#include <UTIL_Platform.h>

namespace {

/// What the guides leave to the reader of "Services of the platform": it writes down what it is asked for.
class Device : public UTIL_Platform
{
public:
    QStringList log;
    bool m_keyboardHidesItself = true;

protected:
    int askOnOwnPanel(const QString& text, const QStringList& buttons)
    {
        log << text + ": " + buttons.join(" or ");
        return 1;
    }
    void showBanner(const QString& text, int milliseconds)
    {
        log << QString("%1 for %2 ms").arg(text).arg(milliseconds);
    }
    QColor crayonAfter(const QColor& present)
    {
        log << "crayon after " + present.name();
        return Qt::green;
    }
    void deliverTouchAsMouse(const QWidget* widget) { log << widget->metaObject()->className(); }
};

} // namespace

// Every block is called below: one that is not stops the compiler.
#pragma GCC diagnostic ignored "-Wunused-parameter"
#include "cpp.inc"

namespace {

void drawOn(KORVA_EditCanvas* editor)
{
    support::Gestures(*editor->canvas()).drag({{20, 30}, {60, 30}});
}

QAction* action(const QMenu& menu, const QString& text)
{
    for (QAction* each : menu.actions())
        if (each->text() == text)
            return each;
    return nullptr;
}

} // namespace

/// The blocks of C++ in the documents do what their text says.
class tst_CppBlocks : public support::TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup() { UTIL_Platform::install(nullptr); }

    void readmeEmbeds();
    void everyCommandIsWired();
    void buttonsOfItsOwnChoose();
    void aHostOffersLess();
    void aKioskServesTheNext();
    void aKioskHasItsOwnKeysAndBoxes();
    void aKioskTakesBytesIn();
    void aKioskBeginsAnewWhenNobodyIsThere();
    void aToolIsWritten();
    void aNewDrawing_data();
    void aNewDrawing();
    void closingAsks_data();
    void closingAsks();
    void savesItsOwnWay();
    void theJournalBringsBack_data();
    void theJournalBringsBack();
    void thePreviewTells_data();
    void thePreviewTells();
    void thePreviewShowsTheDrawing();
    void servicesAreInstalled();
    void servicesAreReplaced();
    void theKeyboardDraws();
    void languages();
    void fingersPan();
    void everyPointIsDrawn();
    void aScaleIsSet();
    void aSoftKeyIsAdded();

private:
    [[nodiscard]] QString path(const QString& name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
};

/// Also what "Documents" says about saving.
void tst_CppBlocks::initTestCase()
{
    qunsetenv("KIV_LOCAL_DOWNLOAD_PATH");
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    drawOn(&editor);
    QVERIFY(!editor.save(path("early.png"), "PNG"));
    embedding::prepareSaving(path("downloads"));
    QVERIFY(editor.save(path("drawing.png"), "PNG"));
    QVERIFY(support::inkCount(QImage(path("drawing.png"))) >= 40);
}

void tst_CppBlocks::readmeEmbeds()
{
    QWidget window;
    QAction undo;
    QAction save;
    undo.setEnabled(false);
    readme::embed(&window, &undo, &save);
    auto* editor = window.findChild<KORVA_EditCanvas*>();
    drawOn(editor);
    QVERIFY(undo.isEnabled());
    editor->setFileName(path("readme.png"));
    support::whenOpen([](QDialog& told) { QTest::mouseClick(&told, Qt::LeftButton); });
    save.trigger();
    QVERIFY(support::inkCount(QImage(path("readme.png"))) >= 40);
    undo.trigger();
    QVERIFY(!undo.isEnabled());
    QCOMPARE(support::inkCount(editor->pixmap()->toImage()), 0);
}

void tst_CppBlocks::everyCommandIsWired()
{
    QWidget window;
    QMenu menu;
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT, &window);
    embedding::wire(&editor, &menu, &window);
    const auto enabled = [&menu] {
        QStringList texts;
        for (const QAction* each : menu.actions())
            if (each->isEnabled())
                texts << each->text();
        return texts.join(' ');
    };
    const QString always = "Open Save %1Paste Select all Clear";
    QCOMPARE(enabled(), always.arg(""));
    drawOn(&editor);
    QCOMPARE(enabled(), always.arg("Undo "));
    QVERIFY(window.isWindowModified());
    action(menu, "Undo")->trigger();
    QCOMPARE(enabled(), always.arg("Redo "));
    action(menu, "Redo")->trigger();
    action(menu, "Select all")->trigger();
    QCOMPARE(enabled(), always.arg("Undo Cut Copy "));
    action(menu, "Copy")->trigger();
    action(menu, "Cut")->trigger();
    QCOMPARE(support::inkCount(editor.pixmap()->toImage()), 0);
    action(menu, "Paste")->trigger();
    QVERIFY(support::inkCount(editor.pixmap()->toImage()) >= 40);

    editor.setFileName(path("wired.png"));
    support::whenOpen([](QDialog& told) { QTest::mouseClick(&told, Qt::LeftButton); });
    action(menu, "Save")->trigger();
    QVERIFY(!window.isWindowModified());
    QCOMPARE(window.windowTitle(), "wired.png[*]");
    QVERIFY(action(menu, "Delete")->isEnabled());
    support::whenOpen([](QDialog& asked) { support::button(asked, "OK")->click(); });
    action(menu, "Delete")->trigger();
    QVERIFY(!QFile::exists(path("wired.png")));
    QVERIFY(!action(menu, "Delete")->isEnabled());
    QCOMPARE(window.windowTitle(), "[*]");

    drawOn(&editor);
    action(menu, "Clear")->trigger();
    QCOMPARE(support::inkCount(editor.pixmap()->toImage()), 0);
    editor.clearModified();
    support::whenOpen([](QDialog& picking) { picking.reject(); });
    action(menu, "Open")->trigger();
}

void tst_CppBlocks::buttonsOfItsOwnChoose()
{
    QPushButton filledCircle;
    QLabel rate;
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    embedding::ownButtons(&editor, &filledCircle, &rate);
    QCOMPARE(rate.text(), QString("%1 %").arg(editor.canvas()->zoom()));
    filledCircle.click();
    QCOMPARE(editor.tool(), int(KORVA_TOOL_ELLIPSE));
    QCOMPARE(editor.option(), int(KORVA_OPTION_FILLED));
    QVERIFY(filledCircle.isDown());
    editor.selectTool(KORVA_TOOL_LINE);
    QVERIFY(!filledCircle.isDown());
}

void tst_CppBlocks::aHostOffersLess()
{
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    embedding::offerLess(&editor, QIcon());
    editor.selectTool(KORVA_TOOL_TEXT);
    QCOMPARE(editor.tool(), int(KORVA_TOOL_PENCIL));
    editor.selectTool(KORVA_TOOL_ERASER);
    editor.selectOption(1);
    QCOMPARE(editor.manager()->currentTool()->leftPen().width(), 24);
    editor.selectZoom(2);
    QCOMPARE(editor.canvas()->zoom(), 400);
    embedding::behave(&editor);
    QVERIFY(editor.manners().joinedEraser);
}

void tst_CppBlocks::aKioskServesTheNext()
{
    const QImage form = support::mosaic({200, 170});
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QVERIFY(form.save(&buffer, "PNG"));
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    QTimer idle;
    idle.setSingleShot(true);
    idle.setInterval(1);
    embedding::serve(&editor, &idle, bytes);
    QVERIFY(support::sameImage(editor.snapshot(), form));
    drawOn(&editor);
    QVERIFY(editor.snapshot() != form.convertToFormat(editor.snapshot().format()));
    QTRY_VERIFY(!idle.isActive());
    QVERIFY(support::sameImage(editor.snapshot(), form));
}

void tst_CppBlocks::aKioskHasItsOwnKeysAndBoxes()
{
    UTIL_Platform::install(std::make_unique<kiosk::LargeBoxes>());
    QWidget window;
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT, &window);
    QPushButton* const undo = kiosk::addUndo(&window, &editor);
    QVERIFY(!undo->isEnabled());
    drawOn(&editor);
    QVERIFY(undo->isEnabled());
    undo->click();
    QCOMPARE(support::inkCount(editor.snapshot()), 0);

    const auto ask = [&editor] {
        return UTIL_Platform::instance()->question(&editor, {}, "?", {"Yes", "No"});
    };
    support::whenOpen([](QDialog& asked) { support::button(asked, "Yes")->click(); });
    QCOMPARE(ask(), 0);
    support::whenOpen([](QDialog& asked) { support::button(asked, "No")->click(); });
    QCOMPARE(ask(), 1);
    support::whenOpen([&editor](QDialog&) { editor.cancelDialogs(); });
    QCOMPARE(ask(), 1);

    QCOMPARE(kiosk::word("Undo", "Zurück"), "Undo");
    QVERIFY(KORVA_Translations::load(QLocale(QLocale::German)));
    QCOMPARE(kiosk::word("Undo", "Zurück"), "Zurück");
    KORVA_Translations::unload();
}

void tst_CppBlocks::aKioskTakesBytesIn()
{
    UTIL_Platform::install(std::make_unique<kiosk::LargeBoxes>());
    const QImage page = support::mosaic({600, 420});
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QVERIFY(page.save(&buffer, "PNG"));
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    QVERIFY(!kiosk::layPage(&editor, "no picture"));
    QCOMPARE(support::inkCount(editor.snapshot()), 0);
    QVERIFY(kiosk::layPage(&editor, bytes));
    kiosk::beginVisit(&editor, page.size());
    QVERIFY(support::sameImage(editor.snapshot(), page));
    QVERIFY(kiosk::drawingOf(&editor).isEmpty());
    drawOn(&editor);
    const QByteArray drawing = kiosk::drawingOf(&editor);
    QVERIFY(drawing.size() <= 30'000);
    QVERIFY(!QImage::fromData(drawing, "JPEG").isNull());
    editor.undo();
    editor.undo(); // there was only one step
    QVERIFY(support::sameImage(editor.snapshot(), page));
}

void tst_CppBlocks::aKioskBeginsAnewWhenNobodyIsThere()
{
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    editor.show();
    QLabel warning;
    QTimer second;
    second.setInterval(20);
    QList<QByteArray> sent;
    QStringList warnings;
    kiosk::watch(&editor, &warning, &second, [&](const QByteArray& drawing) { sent << drawing; });
    connect(&second, &QTimer::timeout, this, [&] {
        if (warning.isVisible())
            warnings << warning.text();
    });
    drawOn(&editor);
    QVERIFY(!second.isActive()); // what a program sends is not a person's
    const auto touch = [&editor] {
        QTest::mouseClick(editor.windowHandle(), Qt::LeftButton, {}, QPoint(230, 220));
    };
    touch();
    QTRY_VERIFY(warning.isVisible());
    touch();
    QVERIFY(warning.isHidden());
    warnings.clear();
    support::whenOpen([](const QDialog& picker) { QVERIFY(picker.isVisible()); }); // and leaves it open
    editor.slotColor();
    QCOMPARE(warnings, QString("10 9 8 7 6 5 4 3 2 1").split(' '));
    QVERIFY(warning.isHidden());
    QCOMPARE(sent.size(), 1);
    QVERIFY(support::inkCount(QImage::fromData(sent.first(), "JPEG")) >= 40);
    QCOMPARE(editor.snapshot().size(), QSize(600, 420));
    QCOMPARE(support::inkCount(editor.snapshot()), 0);
    QVERIFY(!second.isActive());
}

void tst_CppBlocks::aToolIsWritten()
{
    QPixmap icon(20, 20);
    icon.fill(Qt::red);
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    const int ring = tools::addRing(&editor, icon, icon, icon);
    QCOMPARE(ring, KORVA_TOOL_HAND + 1);
    QCOMPARE(editor.tool(), ring);
    support::Gestures(*editor.canvas()).click({60, 50});
    const QImage expected = support::sheet({200, 170}, Qt::white, [](QPainter& painter) {
        painter.setPen(Qt::red);
        painter.drawEllipse(QPoint(60, 50), 10, 10);
    });
    QVERIFY(support::sameImage(editor.snapshot(), expected));
    editor.undo();
    QCOMPARE(support::inkCount(editor.snapshot()), 0);
}

void tst_CppBlocks::aNewDrawing_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QSize>("size");
    QTest::newRow("OK") << "OK" << QSize(200, 170);
    QTest::newRow("Cancel") << "Cancel" << QSize(10, 10);
}

void tst_CppBlocks::aNewDrawing()
{
    QFETCH(const QString, key);
    QFETCH(const QSize, size);
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    editor.setCanvasSize(10, 10);
    editor.clearModified();
    editor.setFileName(path("old.png"));
    support::whenOpen([&key](QDialog& sizes) { support::press(sizes, key, false); });
    embedding::newDrawing(&editor);
    QCOMPARE(editor.pixmap()->size(), size);
    QCOMPARE(editor.fileName().isEmpty(), key == "OK");
    QVERIFY(!editor.isModified());
}

void tst_CppBlocks::closingAsks_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<bool>("may");
    QTest::newRow("Yes") << "Yes" << true;
    QTest::newRow("No") << "No" << true;
    QTest::newRow("Cancel") << "Cancel" << false;
}

void tst_CppBlocks::closingAsks()
{
    QFETCH(const QString, key);
    QFETCH(const bool, may);
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    QVERIFY(embedding::mayClose(&editor));
    editor.setFileName(path(key + ".png"));
    drawOn(&editor);
    editor.clearModified();
    editor.selectAll();
    QVERIFY(embedding::mayClose(&editor)); // the drawing is still the same
    editor.canvas()->pasteLabel()->move(5, 5);
    support::whenOpen([&key](QDialog& asked) {
        if (key == "Yes")
            support::whenOpen([](QDialog& told) { QTest::mouseClick(&told, Qt::LeftButton); });
        support::button(asked, key)->click();
    });
    QCOMPARE(embedding::mayClose(&editor), may);
    QCOMPARE(QFile::exists(path(key + ".png")), key == "Yes");
}

void tst_CppBlocks::savesItsOwnWay()
{
    const QString name = path("it's large.png");
    QVERIFY(support::mosaic(QSize(400, 300)).save(name));
    QVERIFY(QFile::setPermissions(name, QFile::ReadOwner | QFile::WriteOwner));
    KORVA_EditCanvas editor(name, KORVA_COLOR_16BIT);
    drawOn(&editor);
    QVERIFY(!embedding::saveOwnWay(&editor, name, false));
    QCOMPARE(QImage(name).size(), QSize(400, 300));
    QVERIFY(editor.isModified());
    QVERIFY(embedding::saveOwnWay(&editor, name, true));
    QCOMPARE(QImage(name).size(), QSize(352, 264));
    QVERIFY(!editor.isModified());
    constexpr auto everybodyElse = QFile::ReadGroup | QFile::ReadOther;
    QVERIFY(!(QFile::permissions(name) & everybodyElse));
}

void tst_CppBlocks::theJournalBringsBack_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<bool>("isBack");
    QTest::addRow("bring it back") << "Bring it back" << true;
    QTest::addRow("not now") << "Not now" << false;
}

void tst_CppBlocks::theJournalBringsBack()
{
    QFETCH(QString, button);
    QFETCH(bool, isBack);
    const QString folder = path(button);
    {
        KORVA_EditCanvas lost(KORVA_COLOR_16BIT);
        embedding::protect(&lost, folder);
        drawOn(&lost);
        lost.findChild<KORVA_Journal*>()->flush();
        // What a crash leaves is there while nobody holds its lock.
    }
    QCOMPARE(QDir(folder).entryList({"living-*.png"}).size(), 1);
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    support::whenOpen([&](QDialog& asked) {
        for (auto* key : asked.findChildren<QAbstractButton*>())
            if (key->text() == button)
                key->click();
    });
    embedding::protect(&editor, folder);
    QCOMPARE(support::inkCount(editor.snapshot()) >= 40, isBack);
    QCOMPARE(editor.isModified(), isBack);
    QCOMPARE(editor.findChild<KORVA_Journal*>()->earlier().size(), isBack ? 0 : 1);
}

void tst_CppBlocks::thePreviewTells_data()
{
    QTest::addColumn<QString>("key");
    QTest::newRow("confirmed") << "Confirm";
    QTest::newRow("cancelled") << "Cancel";
}

void tst_CppBlocks::thePreviewTells()
{
    QFETCH(const QString, key);
    support::whenOpen([&key](QDialog& preview) { support::button(preview, key)->click(); });
    QCOMPARE(embedding::isWanted(path("drawing.png")), key == "Confirm");
}

void tst_CppBlocks::thePreviewShowsTheDrawing()
{
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    drawOn(&editor);
    KORVA_PreviewWidget preview;
    preview.resize(editor.snapshot().size());
    embedding::showDrawing(&preview, &editor);
    QVERIFY(support::sameImage(preview.grab().toImage().convertToFormat(QImage::Format_RGB32),
                               editor.snapshot().convertToFormat(QImage::Format_RGB32)));
}

void tst_CppBlocks::servicesAreInstalled()
{
    embedding::installServices();
    QCOMPARE(UTIL_Platform::instance()->photoFolder(), "/media/pictures");
    UTIL_Platform::install(nullptr);
    QVERIFY(UTIL_Platform::instance()->photoFolder() != "/media/pictures");
}

void tst_CppBlocks::servicesAreReplaced()
{
    auto* services = new embedding::Services;
    UTIL_Platform::install(std::unique_ptr<UTIL_Platform>(services));
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    QCOMPARE(services->log, QStringList({"KORVA_Canvas", "KORVA_PasteLabel"}));
    QVERIFY(!services->m_keyboardHidesItself);
    services->log.clear();
    drawOn(&editor);
    editor.slotDelete();
    editor.setFileName(path("services.png"));
    editor.slotSave();
    QCOMPARE(services->log,
             QStringList({"Delete drawing?: OK or Cancel", "Saved Successfully for 2000 ms"}));

    services->log.clear();
    editor.slotColor();
    QCOMPARE(services->log, QStringList("crayon after #ff0000"));
    QCOMPARE(editor.color(), QColor(Qt::green));

    QCOMPARE(services->iconFolder(), "/usr/share/kiosk/icons");
    QCOMPARE(services->photoFolder(), "/media/card/DCIM");
    QCOMPARE(services->pixelLimit(), 12'000'000);
    const QDir folder(m_folder.path());
    const std::unique_ptr<UTIL_PictureDialog> pick(
        services->createPickDialog(&editor, folder.path(), {"drawing.*"}));
    QCOMPARE(pick->exec(), 1);
    QCOMPARE(pick->fileName(), path("drawing.png"));
    const std::unique_ptr<UTIL_PictureDialog> none(
        services->createPickDialog(&editor, folder.path(), {"*.none"}));
    QCOMPARE(none->exec(), 0);
    const std::unique_ptr<UTIL_PictureDialog> save(services->createSaveDialog(&editor, folder.path(), {}));
    QCOMPARE(save->fileName(), path("drawing.png"));
}

void tst_CppBlocks::theKeyboardDraws()
{
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    editor.show();
    QLabel status;
    embedding::drawByKeyboard(&editor, &status);
    support::Gestures keys(*editor.canvas());
    keys.key(Qt::Key_Left);
    QVERIFY(status.text().endsWith(", 84"));
    QCOMPARE(support::inkCount(editor.pixmap()->toImage()), 0);
    keys.key(Qt::Key_Space);
    QCOMPARE(support::inkCount(editor.pixmap()->toImage()), 1);
    editor.canvas()->setKeyboardDrawing(false);
    QCOMPARE(status.text(), "");
}

void tst_CppBlocks::languages()
{
    QVERIFY(embedding::speak(QLocale(QLocale::German)));
    const KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    QCOMPARE(editor.findChild<QPushButton*>("colorButton")->toolTip(), "Farbe");
    QVERIFY(!embedding::speak(QLocale(QLocale::Icelandic)));
    KORVA_Translations::unload();
}

void tst_CppBlocks::fingersPan()
{
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    embedding::letFingersPan(&editor);
    QCOMPARE(editor.canvas()->fingerUse(), KORVA_Canvas::FingerPans);
}

void tst_CppBlocks::everyPointIsDrawn()
{
    QCoreApplication::setAttribute(Qt::AA_CompressHighFrequencyEvents); // as on X11
    embedding::drawEveryPoint();
    QVERIFY(!QCoreApplication::testAttribute(Qt::AA_CompressHighFrequencyEvents));
}

void tst_CppBlocks::aScaleIsSet()
{
    porting::scaleBy(3);
    QCOMPARE(qgetenv("QT_SCALE_FACTOR"), "3");
    QCOMPARE(qgetenv("QT_ENABLE_HIGHDPI_SCALING"), "0");
    qunsetenv("QT_SCALE_FACTOR");
    qunsetenv("QT_ENABLE_HIGHDPI_SCALING");
}

void tst_CppBlocks::aSoftKeyIsAdded()
{
    QWidget window;
    const QPushButton* key = porting::addSoftKey(&window);
    QCOMPARE(key->parentWidget(), &window);
    QCOMPARE(key->text(), "Menu");
}

int main(int argc, char** argv)
{
    return support::run<tst_CppBlocks>(argc, argv);
}

#include "tst_CppBlocks.moc"
