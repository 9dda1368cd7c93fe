#include "Colors.h"
#include "Commands.h"
#include "PadTools.h"
#include "PadWindow.h"
#include "Platform.h"
#include "Player.h"
#include "Recorder.h"

#include "support/Images.h"
#include "support/TestCase.h"

#include <KORVA_Canvas.h>
#include <KORVA_EditCanvas.h>

using support::sameImage;

namespace {

struct Pad
{
    Pad() { window.show(); }

    void behave() { pad::padtools::behave(editor, KORVA_Manners::modern()); }
    void send(QEvent::Type type, QPoint at, Qt::KeyboardModifiers held = {})
    {
        const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        const Qt::MouseButtons down = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, at, canvas.mapToGlobal(QPointF(at)), button, down, held);
        QCoreApplication::sendEvent(&canvas, &event);
    }
    void drag(QPoint from, QPoint to, Qt::KeyboardModifiers held = Qt::ShiftModifier)
    {
        send(QEvent::MouseButtonPress, from);
        send(QEvent::MouseMove, to, held);
        send(QEvent::MouseButtonRelease, to, held);
    }
    void tap(QPoint at)
    {
        send(QEvent::MouseButtonPress, at);
        send(QEvent::MouseButtonRelease, at);
    }
    [[nodiscard]] QImage picture() const { return editor.snapshot(); }
    [[nodiscard]] bool shows(const QString& text) const
    {
        const auto labels = window.findChildren<QLabel*>();
        return std::any_of(labels.begin(), labels.end(),
                           [&](auto* label) { return label->text() == text; });
    }

    pad::Platform& platform = pad::Platform::install();
    pad::PadWindow window{platform};
    KORVA_EditCanvas& editor = window.editor();
    KORVA_Canvas& canvas = *editor.canvas();
};

} // namespace

/// What the pad adds to the editor's modern manners: recordings, sizes of text, and what the window tells.
class tst_PadManners : public support::TestCase
{
    Q_OBJECT

private slots:
    void replaysEvenShapes_data();
    void replaysEvenShapes();
    void replaysTexts();
    void replaysAMovedText();
    void replaysBoldText();
    void replaysOutlines();
    void outlineIsTheSecondColor();
    void sixSizesOfText();
    void numbersAreSeenOnADarkDesktop();
    void numbersAreDrawnOnce();
    void fiveSizesOfTheEraser();
    void undoAfterAnotherSize();
    void classicRecordingsKeepTheirSizes();
    void statusTellsTheDraggedSize();
    void titleFollowsADroppedText();

private:
    template <typename Work>
    void checkReplay(const Work& work, const QStringList& lines);
    QTemporaryDir m_folder;
};

template <typename Work>
void tst_PadManners::checkReplay(const Work& work, const QStringList& lines)
{
    const QString file = m_folder.filePath("strokes.rec");
    QImage drawn;
    {
        Pad person;
        pad::Recorder recorder(person.editor);
        QVERIFY(!recorder.start(file));
        connect(&person.window.commands(), &pad::Commands::performed, &recorder, &pad::Recorder::write);
        connect(&person.window.colors(), &pad::Colors::performed, &recorder, &pad::Recorder::write);
        person.behave();
        recorder.write(pad::Recording::commandFor(person.editor.manners()));
        work(person);
        QVERIFY(!recorder.finish());
        drawn = person.picture();
    }
    const auto recording = pad::Recording::read(file);
    QVERIFY(std::holds_alternative<pad::Recording>(recording));
    QFile text(file);
    QVERIFY(text.open(QIODevice::ReadOnly));
    const QStringList written = QString::fromUtf8(text.readAll()).split('\n');
    for (const QString& line : lines)
        QVERIFY2(written.contains(line), qPrintable(line));
    Pad again;
    QVERIFY(!pad::Player(again.editor, again.platform).play(std::get<pad::Recording>(recording)));
    QVERIFY(sameImage(again.picture(), drawn));
    QVERIFY(!sameImage(support::sheet(drawn.size()), drawn) || lines.isEmpty());
}

void tst_PadManners::replaysEvenShapes_data()
{
    QTest::addColumn<int>("tool");
    QTest::addColumn<int>("row");
    for (const int tool : {KORVA_TOOL_LINE, KORVA_TOOL_RECTANGLE, KORVA_TOOL_ELLIPSE}) {
        for (const int row : {0, 1, 2, 3})
            QTest::addRow("tool %d, zoom %d", tool, row) << tool << row;
    }
}

void tst_PadManners::replaysEvenShapes()
{
    QFETCH(const int, tool);
    QFETCH(const int, row);
    checkReplay(
        [&](Pad& pad) {
            pad.editor.selectTool(tool);
            pad.editor.selectZoom(row);
            pad.drag({11, 13}, {40, 25});
            pad.drag({60, 61}, {31, 90});
            pad.drag({20, 70}, {50, 75}, {});
        },
        {"move 40 25 shift", "release 40 25 shift", "press 11 13", "move 50 75"});
}

void tst_PadManners::replaysTexts()
{
    checkReplay(
        [](Pad& pad) {
            pad.editor.selectTool(KORVA_TOOL_TEXT);
            pad.editor.selectOption(3);
            pad.tap({20, 60});
            QTest::keyClicks(&pad.canvas, "Happy birthday to all");
            pad.editor.undo();
            pad.window.commands().performed(pad::Command{.verb = pad::Verb::Undo});
            pad.tap({20, 140});
            QTest::keyClicks(&pad.canvas, "gone");
            QTest::keyClick(&pad.canvas, Qt::Key_Escape);
            pad.editor.selectTool(KORVA_TOOL_PENCIL);
        },
        {"option 3", "undo", "key Escape", "manners modern"});
}

void tst_PadManners::replaysAMovedText()
{
    checkReplay(
        [](Pad& pad) {
            pad.editor.selectTool(KORVA_TOOL_TEXT);
            pad.tap({20, 60});
            QTest::keyClicks(&pad.canvas, "one two");
            pad.drag({26, 56}, {90, 120}, {});
            QTest::keyClicks(&pad.canvas, " three");
            pad.editor.selectTool(KORVA_TOOL_PENCIL);
            QVERIFY(support::inkBounds(pad.picture()).top() > 100);
        },
        {"press 26 56", "move 90 120", "release 90 120"});
}

void tst_PadManners::replaysBoldText()
{
    checkReplay(
        [](Pad& pad) {
            pad.editor.selectTool(KORVA_TOOL_TEXT);
            pad.tap({20, 60});
            QTest::keyClicks(&pad.canvas, "one");
            QAction* bold = pad.editor.findChild<QPushButton*>("optionButton")->menu()->actions().last();
            bold->trigger();
            pad.tap({20, 100});
            QTest::keyClicks(&pad.canvas, "two");
            bold->trigger();
            pad.tap({20, 140});
            QTest::keyClicks(&pad.canvas, "three");
            pad.editor.selectTool(KORVA_TOOL_PENCIL);
        },
        {"bold on", "bold off"});
}

void tst_PadManners::replaysOutlines()
{
    checkReplay(
        [](Pad& pad) {
            pad.editor.selectTool(KORVA_TOOL_ELLIPSE);
            pad.editor.selectOption(2);
            pad.drag({10, 90}, {60, 130}, {}); // before there is a second colour
            pad.window.commands().takeColor(Qt::blue);
            pad.editor.selectTool(KORVA_TOOL_RECTANGLE);
            pad.editor.selectOption(3);
            pad.drag({10, 10}, {60, 60}, {});
            pad.window.commands().takeColor(Qt::yellow);
            pad.editor.selectTool(KORVA_TOOL_ELLIPSE);
            pad.drag({80, 20}, {150, 60}, {});
            QCOMPARE(pad.picture().pixelColor(10, 10), QColor(Qt::red));
            pad.window.colors().swap();
            pad.drag({80, 90}, {150, 130}, {});
        },
        {"option 2", "option 3", "color #ffff00"});
    const auto recording = pad::Recording::parse("manners modern\noutline #00ff00\ntool rectangle\n"
                                                 "option 2\npress 10 10\nrelease 60 60",
                                                 "test.rec");
    Pad pad;
    QVERIFY(!pad::Player(pad.editor, pad.platform).play(std::get<pad::Recording>(recording)));
    QCOMPARE(pad.picture().pixelColor(10, 10), QColor(Qt::green));
    QCOMPARE(pad.picture().pixelColor(11, 11), QColor(Qt::red));
}

void tst_PadManners::outlineIsTheSecondColor()
{
    Pad pad;
    pad.behave();
    QCOMPARE(pad.editor.outlineColor(), QColor(Qt::black)); // there is none yet
    pad.editor.setColor(Qt::blue);
    QCOMPARE(pad.editor.outlineColor(), QColor(Qt::red));
    pad.window.colors().swap();
    QCOMPARE(pad.editor.color(), QColor(Qt::red));
    QCOMPARE(pad.editor.outlineColor(), QColor(Qt::blue));
    pad.editor.selectTool(KORVA_TOOL_RECTANGLE);
    pad.editor.selectOption(2);
    pad.drag({10, 10}, {60, 60}, {});
    QCOMPARE(pad.picture().pixelColor(10, 10), QColor(Qt::blue));
    QCOMPARE(pad.picture().pixelColor(12, 12), QColor(Qt::red));
}

void tst_PadManners::sixSizesOfText()
{
    Pad pad;
    pad.editor.selectTool(KORVA_TOOL_TEXT);
    const auto* button = pad.editor.findChild<QPushButton*>("optionButton");
    QCOMPARE(button->menu()->actions().size(), 3);
    pad.behave();
    QCOMPARE(button->menu()->actions().size(), 6 + 1); // and the row for bold letters
    QSet<QByteArray> icons;
    for (int row = 0; row < 6; ++row) {
        const QAction* action = button->menu()->actions().at(row);
        const QString points = QString::number(QList{12, 16, 20, 28, 36, 48}[row]);
        QVERIFY2(action->text().contains(points), qPrintable(action->text()));
        const QImage icon = action->icon().pixmap(20, 20).toImage();
        icons << QByteArray(reinterpret_cast<const char*>(icon.constBits()), icon.sizeInBytes());
    }
    QCOMPARE(icons.size(), 6);
    pad.editor.selectOption(5);
    pad.editor.selectTool(KORVA_TOOL_PENCIL);
    QCOMPARE(pad.editor.option(), 0);
    pad.editor.selectTool(KORVA_TOOL_TEXT);
    QCOMPARE(pad.editor.option(), 5);
    pad::padtools::behave(pad.editor, {});
    QCOMPARE(button->menu()->actions().size(), 3);
}

void tst_PadManners::numbersAreSeenOnADarkDesktop()
{
    const auto brightest = [] {
        Pad pad;
        pad.behave();
        pad.editor.selectTool(KORVA_TOOL_TEXT);
        const QMenu* const menu = pad.editor.findChild<QPushButton*>("optionButton")->menu();
        const QImage image = menu->actions().at(0)->icon().pixmap(20, 20).toImage();
        int level = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (const QColor pixel = image.pixelColor(x, y); pixel.alpha() > 200)
                    level = qMax(level, pixel.lightness());
            }
        }
        return level;
    };
    QCOMPARE_LT(brightest(), 100);
    const QPalette before = QApplication::palette();
    QApplication::setPalette(QPalette(QColor(0x30, 0x30, 0x30), QColor(0x30, 0x30, 0x30)));
    const int dark = brightest();
    QApplication::setPalette(before);
    QCOMPARE_GT(dark, 180);
}

void tst_PadManners::numbersAreDrawnOnce()
{
    Pad pad;
    pad.behave();
    const QIcon icon = pad.editor.features().ownOptions[KORVA_TOOL_TEXT][0].icon;
    QVERIFY(!icon.pixmap(20, 20).isNull());
    QCOMPARE(icon.pixmap(20, 20).cacheKey(), icon.pixmap(20, 20).cacheKey());
    QCOMPARE_NE(icon.pixmap(20, 20).cacheKey(), icon.pixmap(30, 30).cacheKey());
    QCOMPARE_NE(icon.pixmap(20, 20).cacheKey(), icon.pixmap(20, 20, QIcon::Disabled).cacheKey());
}

void tst_PadManners::fiveSizesOfTheEraser()
{
    Pad pad;
    pad.editor.selectTool(KORVA_TOOL_ERASER);
    const auto* button = pad.editor.findChild<QPushButton*>("optionButton");
    QCOMPARE(button->menu()->actions().size(), 3);
    pad.behave();
    QCOMPARE(button->menu()->actions().size(), 5);
    pad.editor.setColor(Qt::blue);
    pad.editor.selectTool(KORVA_TOOL_RECTANGLE);
    pad.editor.selectOption(1); // filled
    pad.drag({10, 10}, {80, 80}, {});
    pad.editor.selectTool(KORVA_TOOL_ERASER);
    pad.editor.selectOption(4);
    pad.drag({30, 30}, {50, 30}, {});
    const QImage erased = pad.picture();
    QCOMPARE(erased.copy(30, 30, 40, 20), support::sheet({40, 20}).convertToFormat(erased.format()));
    for (const QPoint beside : {QPoint(29, 30), QPoint(30, 29), QPoint(70, 49), QPoint(69, 50)})
        QCOMPARE(erased.pixelColor(beside), QColor(Qt::blue));
    pad::padtools::behave(pad.editor, {});
    QCOMPARE(button->menu()->actions().size(), 3);
}

void tst_PadManners::undoAfterAnotherSize()
{
    Pad pad;
    pad.editor.setUndoSteps(50);
    pad.behave();
    pad.editor.selectTool(KORVA_TOOL_TEXT);
    const QImage before = pad.picture();
    pad.tap({20, 60});
    QTest::keyClicks(&pad.canvas, "one two");
    pad.editor.selectOption(3);
    const QImage typed = pad.picture();
    for (QAction* action : pad.window.actions()) {
        if (action->shortcut() == QKeySequence("Ctrl+Z")) {
            QVERIFY(action->isEnabled());
            action->trigger();
        }
    }
    QVERIFY(pad.picture() != typed);
    QVERIFY(pad.picture() != before);
    pad.editor.undo();
    pad.editor.undo();
    QVERIFY(sameImage(pad.picture(), before));
    QVERIFY(!pad.editor.hasChanges());
}

// The first three are the classic ones, but each tool has its own.
void tst_PadManners::classicRecordingsKeepTheirSizes()
{
    const auto replay = [](const QByteArray& manners) {
        Pad pad;
        pad.behave();
        const auto recording = pad::Recording::parse(
            manners + "option 2\ntool text\npress 20 60\nrelease 20 60\ntype \"Wg\"\ntool pencil",
            "test.rec");
        const bool isPlayed =
            !pad::Player(pad.editor, pad.platform).play(std::get<pad::Recording>(recording));
        return isPlayed ? pad.picture() : QImage();
    };
    Pad classic;
    classic.editor.selectOption(2);
    classic.editor.selectTool(KORVA_TOOL_TEXT);
    classic.tap({20, 60});
    QTest::keyClicks(&classic.canvas, "Wg");
    QVERIFY(sameImage(replay(""), classic.picture()));
    QVERIFY(replay("manners modern\n") != classic.picture()); // the pencil's size is not the text's
}

void tst_PadManners::statusTellsTheDraggedSize()
{
    Pad pad;
    pad.editor.selectTool(KORVA_TOOL_RECTANGLE);
    QTRY_VERIFY(pad.shows(u"200 \u00d7 170"_qs));
    pad.send(QEvent::MouseButtonPress, {10, 10});
    pad.send(QEvent::MouseMove, {74, 90});
    QTRY_VERIFY(pad.shows(u"64 \u00d7 80"_qs));
    QVERIFY(!pad.shows(u"200 \u00d7 170"_qs));
    pad.send(QEvent::MouseButtonRelease, {74, 90});
    QTRY_VERIFY(pad.shows(u"200 \u00d7 170"_qs));
    QVERIFY(!pad.shows(u"64 \u00d7 80"_qs));
}

void tst_PadManners::titleFollowsADroppedText()
{
    Pad pad;
    pad.behave();
    pad.editor.selectTool(KORVA_TOOL_TEXT);
    pad.editor.clearModified();
    pad.window.setWindowModified(false);
    pad.tap({20, 60});
    QTest::keyClicks(&pad.canvas, "word");
    QVERIFY(pad.window.isWindowModified());
    QTest::keyClick(&pad.canvas, Qt::Key_Escape);
    QVERIFY(!pad.window.isWindowModified());
    QVERIFY(!pad.editor.hasChanges());
}

int main(int argc, char** argv)
{
    return support::run<tst_PadManners>(argc, argv);
}

#include "tst_PadManners.moc"
