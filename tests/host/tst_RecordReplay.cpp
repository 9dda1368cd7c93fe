#include "ColorPopup.h"
#include "Commands.h"
#include "PadWindow.h"
#include "Platform.h"
#include "Player.h"
#include "Recorder.h"

#include "support/Images.h"
#include "support/TestCase.h"

#include <KORVA_Canvas.h>
#include <KORVA_EditCanvas.h>
#include <KORVA_PasteLabel.h>
#include <UTIL_PictureDialog.h>

using support::sameImage;

namespace {

QStringList linesOf(const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return {"(no such file)"};
    return QString::fromUtf8(file.readAll().chopped(1)).split('\n');
}

/// Answers the dialogs that come up while a command runs, one after the other.
class Clerk
{
public:
    using Step = std::function<void(QWidget* dialog)>;

    explicit Clerk(std::vector<Step> steps) : m_steps(std::move(steps))
    {
        QObject::connect(&m_timer, &QTimer::timeout, [this] {
            QWidget* dialog = QApplication::activeModalWidget();
            if (dialog && m_done < m_steps.size())
                m_steps[m_done++](dialog);
        });
        m_timer.start(10);
    }

    static Step press(const QString& text)
    {
        return [text](const QWidget* dialog) {
            for (auto* button : dialog->findChildren<QAbstractButton*>()) {
                if (button->text() == text)
                    return button->click();
            }
        };
    }

    static Step choose(const QString& fileName)
    {
        return [fileName](QWidget* widget) {
            auto* dialog = qobject_cast<UTIL_PictureDialog*>(widget);
            dialog->setFileName(fileName);
            dialog->accept();
        };
    }

private:
    std::vector<Step> m_steps;
    std::size_t m_done = 0;
    QTimer m_timer;
};

/// A person at the window: everything goes through the window system's own delivery.
class Person
{
public:
    Person(pad::PadWindow& window, quint32 seed)
        : m_window(window), m_canvas(*window.editor().canvas()), m_random(seed)
    {
    }

    void draw()
    {
        for (int i = 0; i < 25; ++i)
            doSomething();
    }

private:
    void doSomething()
    {
        static constexpr const char* commands[] = {"Undo", "Redo", "Paste", "Cut", "Copy", "Select all"};
        static constexpr const char* rows[] = {"Turn left", "Turn right", "Flip",  "Double",
                                               "Halve",     "Delete",     "Paste", "White is clear"};
        if (m_window.editor().manners() == KORVA_Manners::modern() && m_random.bounded(4) == 0)
            return pick(m_canvas.pasteLabel()->menu(), rows[m_random.bounded(8)]);
        switch (m_random.bounded(12)) {
        case 0:
            return pick(&m_window, commands[m_random.bounded(6)]);
        case 1:
            return pickAny("toolButton");
        case 2:
            return pickAny("optionButton");
        case 3:
            return zoom();
        case 4:
            return color();
        case 5:
            drag(); // where the keyboard is taken along
            type(QString("a%1 Q\"").arg(m_random.bounded(100)));
            return;
        case 6:
        case 7:
            drag();
            return drawByKeys();
        default:
            return drag();
        }
    }

    static void pick(const QWidget* from, const QString& text)
    {
        for (QAction* action : from->actions()) {
            if (action->text().remove('&') == text)
                action->trigger();
        }
    }

    void type(const QString& text)
    {
        for (const QChar letter : text)
            QTest::keyClick(m_window.windowHandle(), letter.toLatin1());
        QTest::keyClick(m_window.windowHandle(), Qt::Key_Backspace);
    }

    void drawByKeys()
    {
        static constexpr Qt::Key keys[] = {Qt::Key_Left,        Qt::Key_Right,        Qt::Key_Up,
                                           Qt::Key_Down,        Qt::Key_Down,         Qt::Key_Right,
                                           Qt::Key_BracketLeft, Qt::Key_BracketRight, Qt::Key_Return};
        static constexpr Qt::KeyboardModifier held[] = {Qt::NoModifier, Qt::ShiftModifier, Qt::AltModifier};
        QWindow* window = m_window.windowHandle();
        const bool isHolding = m_random.bounded(2);
        if (isHolding)
            QTest::keyPress(window, Qt::Key_Space);
        for (int i = 0; i < 12; ++i)
            QTest::keyClick(window, keys[m_random.bounded(9)], held[m_random.bounded(3)]);
        if (isHolding)
            QTest::keyRelease(window, Qt::Key_Space);
        if (m_random.bounded(2))
            QTest::keyClick(window, Qt::Key_Escape);
    }

    void pickAny(const char* button)
    {
        const QList<QAction*> entries = m_window.findChild<QPushButton*>(button)->menu()->actions();
        if (!entries.isEmpty()) // not every tool has options
            entries.at(m_random.bounded(int(entries.size())))->trigger();
    }

    void zoom()
    {
        auto* box = m_window.findChild<QComboBox*>("zoomBox");
        box->setCurrentIndex(m_random.bounded(box->count()));
        emit box->activated(box->currentIndex());
    }

    void color()
    {
        const auto mix = [this] {
            auto* picker = QApplication::activeModalWidget();
            if (!picker)
                return;
            for (auto* slider : picker->findChildren<QAbstractSlider*>())
                slider->setValue(m_random.bounded(slider->maximum() + 1));
            QTest::keyClick(picker, Qt::Key_Return);
        };
        QTimer::singleShot(0, [this, mix] {
            const auto buttons = pad::ColorPopup::current()->findChildren<QAbstractButton*>();
            QTimer::singleShot(0, mix); // if it is the one that leads to the picker
            buttons.at(m_random.bounded(int(buttons.size())))->click();
        });
        QTest::mouseClick(m_window.findChild<QPushButton*>("colorButton"), Qt::LeftButton);
    }

    void drag()
    {
        const QRect view = m_canvas.visibleRegion().boundingRect();
        const QRect piece = m_canvas.pasteLabel()->geometry() & view;
        const bool onPiece = m_canvas.pasteLabel()->isVisible() && !piece.isEmpty() && m_random.bounded(4);
        QPoint at = inside(onPiece ? piece : view);
        move(at - QPoint(1, 1));
        move(at);
        QTest::mousePress(m_window.windowHandle(), Qt::LeftButton, {}, inWindow(at));
        for (int i = m_random.bounded(6); i > 0; --i) {
            at += QPoint(m_random.bounded(-15, 16), m_random.bounded(-15, 16));
            move(at);
        }
        QTest::mouseRelease(m_window.windowHandle(), Qt::LeftButton, {}, inWindow(at));
    }

    void move(QPoint to) { QTest::mouseMove(m_window.windowHandle(), inWindow(to)); }

    QPoint inside(const QRect& rect)
    {
        return rect.topLeft() + QPoint(m_random.bounded(rect.width()), m_random.bounded(rect.height()));
    }

    [[nodiscard]] QPoint inWindow(QPoint at) const
    {
        const QPoint place = m_canvas.mapTo(&m_window, at);
        return {qBound(0, place.x(), m_window.width() - 1), qBound(0, place.y(), m_window.height() - 1)};
    }

    pad::PadWindow& m_window;
    KORVA_Canvas& m_canvas;
    QRandomGenerator m_random;
};

} // namespace

class tst_RecordReplay : public support::TestCase
{
    Q_OBJECT

private slots:
    void cleanupTestCase() { QVERIFY(m_ink > 10'000); } // the drawings were not all empty
    void givesTheSamePicture_data();
    void givesTheSamePicture();
    void drawnByKeys();
    void whatIsTypedBesideATextChangesNothing();
    void keysAndText();
    void textOfAnInputMethod();
    void theControls();
    void documents();
    void menusOfCanvasAndPiece();
    void modernMenuOfThePiece();

private:
    int m_ink = 0;
};

void tst_RecordReplay::givesTheSamePicture_data()
{
    QTest::addColumn<quint32>("seed");
    QTest::addColumn<bool>("isModern");
    for (quint32 seed = 1; seed <= 20; ++seed) {
        QTest::addRow("drawing %u", seed) << seed << false;
        QTest::addRow("modern drawing %u", seed) << seed << true;
    }
}

void tst_RecordReplay::givesTheSamePicture()
{
    QFETCH(quint32, seed);
    QFETCH(const bool, isModern);
    const QTemporaryDir folder;
    const QString file = folder.filePath("drawing.rec");
    const QImage stamp = support::mosaic(QSize(40, 30));

    QGuiApplication::clipboard()->setImage(stamp);
    QImage drawn;
    {
        pad::PadWindow window(pad::Platform::install());
        pad::Recorder recorder(window.editor());
        QObject::connect(&window.commands(), &pad::Commands::performed, &recorder, &pad::Recorder::write);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QVERIFY(!recorder.start(file));
        if (isModern) {
            window.editor().setManners(KORVA_Manners::modern());
            recorder.write(pad::Recording::commandFor(KORVA_Manners::modern()));
        }
        Person(window, seed).draw();
        drawn = window.editor().pixmap()->toImage();
        QVERIFY(!recorder.finish());
    }
    m_ink += support::inkCount(drawn);

    QGuiApplication::clipboard()->setImage(stamp);
    pad::Platform& platform = pad::Platform::install();
    pad::PadWindow again(platform);
    again.show();
    pad::Player player(again.editor(), platform);
    const auto recording = pad::Recording::read(file);
    QVERIFY(std::holds_alternative<pad::Recording>(recording));
    QVERIFY(!player.play(std::get<pad::Recording>(recording)));
    QVERIFY(sameImage(again.editor().pixmap()->toImage(), drawn));
}

void tst_RecordReplay::drawnByKeys()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath("drawing.rec");
    QImage drawn;
    {
        pad::PadWindow window(pad::Platform::install());
        pad::Recorder recorder(window.editor());
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QVERIFY(!recorder.start(file));
        QWindow* handle = window.windowHandle();
        const auto click = [handle](Qt::Key key, Qt::KeyboardModifiers held = {}) {
            QTest::keyClick(handle, key, held);
        };
        click(Qt::Key_Left, Qt::ShiftModifier); // from the middle, (99, 84)
        click(Qt::Key_L);                       // the line
        QTest::keyPress(handle, Qt::Key_Space);
        click(Qt::Key_Down, Qt::ControlModifier);
        click(Qt::Key_Down);
        QTest::keyRelease(handle, Qt::Key_Space);
        click(Qt::Key_S);
        click(Qt::Key_Return);
        click(Qt::Key_Left, Qt::ShiftModifier);
        click(Qt::Key_Up, Qt::ShiftModifier);
        click(Qt::Key_Return);
        click(Qt::Key_Up, Qt::ShiftModifier);
        click(Qt::Key_Right, Qt::AltModifier);
        click(Qt::Key_BracketRight);
        click(Qt::Key_Return);
        click(Qt::Key_T);
        click(Qt::Key_Space);
        click(Qt::Key_P); // a letter here
        click(Qt::Key_Space);
        click(Qt::Key_Escape);
        drawn = window.editor().pixmap()->toImage();
        QVERIFY(!recorder.finish());
    }
    QStringList lines = linesOf(file);
    lines.removeIf([](const QString& line) {
        return line == "key Shift" || line == "key Control" || line == "key Alt"; // what holds them down
    });
    QCOMPARE(lines.join(", "),
             "tool line, press 89 84, move 89 94, move 89 95, release 89 95, "
             "tool select, press 89 95, move 79 95, move 79 85, release 79 85, "
             "key Shift+Up, key Alt+Right, key BracketRight, key Return, "
             "tool text, press 79 85, release 79 85, type \"p\", type \" \", press 79 85, release 79 88");

    pad::Platform& platform = pad::Platform::install();
    KORVA_EditCanvas again(KORVA_COLOR_16BIT); // of a host that has not asked for the pen
    again.show();
    pad::Player player(again, platform);
    const auto recording = pad::Recording::read(file);
    QVERIFY(std::holds_alternative<pad::Recording>(recording));
    QVERIFY(!player.play(std::get<pad::Recording>(recording)));
    QVERIFY(support::inkCount(drawn) > 10);
    QVERIFY(sameImage(again.pixmap()->toImage(), drawn));
    QVERIFY(!again.canvas()->isKeyboardDrawing());
}

void tst_RecordReplay::whatIsTypedBesideATextChangesNothing()
{
    pad::Platform& platform = pad::Platform::install();
    pad::PadWindow window(platform);
    window.show();
    const QImage before = window.editor().pixmap()->toImage();
    pad::Player player(window.editor(), platform);
    const auto recording =
        pad::Recording::parse("tool text\ntype \"a b\\n c\"\ntool pencil\ntype \" \"", "typed");
    QVERIFY(!player.play(std::get<pad::Recording>(recording)));
    QVERIFY(sameImage(window.editor().pixmap()->toImage(), before));

    // A key is a key.
    const auto pressed = pad::Recording::parse("key Shift+Left\nkey Space", "pressed");
    QVERIFY(!player.play(std::get<pad::Recording>(pressed)));
    QCOMPARE(window.editor().pixmap()->toImage().pixelColor(89, 84), QColor(Qt::red));
}

void tst_RecordReplay::keysAndText()
{
    const QTemporaryDir folder;
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    pad::Recorder recorder(editor);
    QVERIFY(!recorder.start(folder.filePath("keys.rec")));
    QTest::keyClick(editor.canvas(), 'a');
    QTest::keyClick(editor.canvas(), 'B', Qt::ShiftModifier);
    QTest::keyClick(editor.canvas(), '"');
    QTest::keyClick(editor.canvas(), Qt::Key_Return);
    QTest::keyClick(editor.canvas(), Qt::Key_Backspace);
    QTest::keyClick(editor.canvas(), Qt::Key_Left, Qt::ShiftModifier);
    QVERIFY(!recorder.finish());
    QCOMPARE(linesOf(folder.filePath("keys.rec")),
             QStringList({"type \"a\"", "key Shift", "type \"B\"", "type \"\\\"\"", "key Return",
                          "key Backspace", "key Shift", "key Shift+Left"}));
}

void tst_RecordReplay::textOfAnInputMethod()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath("composed.rec");
    QImage drawn;
    {
        pad::PadWindow window(pad::Platform::install());
        window.show();
        KORVA_EditCanvas& editor = window.editor();
        pad::Recorder recorder(editor);
        QVERIFY(!recorder.start(file));
        const auto compose = [&editor](const QString& shown, const QString& text, int from = 0,
                                       int length = 0) {
            QInputMethodEvent event(shown, {});
            event.setCommitString(text, from, length);
            QCoreApplication::sendEvent(editor.canvas(), &event);
            QCOMPARE(event.isAccepted(), editor.tool() == KORVA_TOOL_TEXT);
        };
        editor.selectTool(KORVA_TOOL_TEXT);
        QTest::mouseClick(editor.canvas(), Qt::LeftButton, {}, {20, 60});
        compose("ni", {});
        compose("h", u"x\u03b1 "_qs);
        compose({}, "teh");
        compose({}, "the", -3, 3);
        compose({}, u"e\u0301"_qs);
        compose({}, u"o"_qs, -2, 2);
        compose({}, u"\nan e"_qs);
        compose({}, u"\u0301"_qs); // to the letter before
        editor.selectTool(KORVA_TOOL_PENCIL);
        compose({}, "nowhere");
        QVERIFY(!recorder.finish());
        drawn = editor.snapshot();
    }
    QVERIFY(support::inkCount(drawn) > 100);
    QCOMPARE(linesOf(file),
             QStringList({"tool text", "press 20 60", "release 20 60", u"type \"x\u03b1 \""_qs,
                          "type \"teh\"", "key Backspace", "key Backspace", "type \"he\"",
                          u"type \"e\u0301\""_qs, "key Backspace", "type \"o\"", "type \"\\nan e\"",
                          u"type \"\u0301\""_qs, "tool pencil"}));

    const auto recording = pad::Recording::read(file);
    pad::Platform& platform = pad::Platform::install();
    pad::PadWindow again(platform);
    again.show();
    QVERIFY(!pad::Player(again.editor(), platform).play(std::get<pad::Recording>(recording)));
    QVERIFY(sameImage(again.editor().snapshot(), drawn));
}

void tst_RecordReplay::theControls()
{
    const QTemporaryDir folder;
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    pad::Recorder recorder(editor);
    QVERIFY(!recorder.start(folder.filePath("controls.rec")));
    const auto choose = [&editor](const char* button, int row) {
        editor.findChild<QPushButton*>(button)->menu()->actions().at(row)->trigger();
    };
    for (int row = 0; row < 7; ++row)
        choose("toolButton", row);
    choose("optionButton", 1);
    choose("toolButton", 0);
    choose("optionButton", 1);
    choose("optionButton", 0);
    for (int index = 0; index < 5; ++index)
        emit editor.findChild<QComboBox*>("zoomBox")->activated(index);
    QVERIFY(!recorder.finish());
    QCOMPARE(linesOf(folder.filePath("controls.rec")),
             QStringList({"tool select", "tool eraser", "tool line", "tool pencil", "tool text",
                          "tool rectangle", "tool ellipse", "option 1", "tool select", "tool hand",
                          "tool select", "zoom 50", "zoom 100", "zoom 150", "zoom 200", "zoom fit"}));
}

void tst_RecordReplay::documents()
{
    const QTemporaryDir folder;
    const QString picture = folder.filePath("picture.png");
    const QString recordingFile = folder.filePath("documents.rec");
    support::mosaic(QSize(40, 30)).save(picture);
    pad::PadWindow window(pad::Platform::install());
    pad::Recorder recorder(window.editor());
    connect(&window.commands(), &pad::Commands::performed, &recorder, &pad::Recorder::write);
    window.show();
    QVERIFY(!recorder.start(recordingFile));
    const auto choose = [&window](const char* text) {
        for (QAction* action : window.actions()) {
            if (action->text().remove('&') == text)
                action->trigger();
        }
    };

    window.editor().canvas()->markModified();
    Clerk opening({Clerk::press("No"), Clerk::choose(picture)});
    choose("Open ...");
    Clerk stamping({Clerk::choose(picture)});
    choose("Insert stamp ...");
    Clerk cancelled({Clerk::press("No"), Clerk::press("Cancel")});
    choose("New ...");
    Clerk creating({Clerk::press("No"), Clerk::press("OK"), Clerk::press("16 colors")});
    choose("New ...");
    QCOMPARE(window.editor().canvas()->size(), QSize(200, 170));
    QCOMPARE(window.editor().fileName(), "");
    QVERIFY(!window.editor().isModified());
    QVERIFY(!recorder.finish());
    QCOMPARE(linesOf(recordingFile),
             QStringList({"answer 1", "open \"" + picture + '"', "stamp \"" + picture + '"', "zoom 100",
                          "answer 1", "canvas 4bit 200 170"}));
}

void tst_RecordReplay::menusOfCanvasAndPiece()
{
    const QTemporaryDir folder;
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    QGuiApplication::clipboard()->setImage(support::mosaic(QSize(40, 30)));
    editor.canvas()->paste();
    pad::Recorder recorder(editor);
    QVERIFY(!recorder.start(folder.filePath("menus.rec")));
    editor.canvas()->slotSelection(true);
    editor.canvas()->contextMenu()->actions().at(1)->trigger();
    editor.canvas()->pasteLabel()->menu()->actions().at(0)->trigger();
    editor.canvas()->pasteLabel()->menu()->actions().at(1)->trigger();
    editor.canvas()->contextMenu()->actions().at(2)->trigger();
    QVERIFY(!recorder.finish());
    QCOMPARE(linesOf(folder.filePath("menus.rec")), QStringList({"copy", "copy", "cut", "paste"}));
}

void tst_RecordReplay::modernMenuOfThePiece()
{
    const QTemporaryDir folder;
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    editor.setManners(KORVA_Manners::modern());
    editor.show();
    QGuiApplication::clipboard()->setImage(support::mosaic(QSize(40, 30)));
    pad::Recorder recorder(editor);
    QVERIFY(!recorder.start(folder.filePath("menus.rec")));
    editor.canvas()->slotClipBoard(true);
    editor.canvas()->contextMenu()->actions().at(2)->trigger();
    const QList<QAction*> rows = editor.canvas()->pasteLabel()->menu()->actions();
    for (qsizetype i = 3; i < rows.size(); ++i)
        rows[i]->trigger();
    QVERIFY(!recorder.finish());
    QCOMPARE(
        linesOf(folder.filePath("menus.rec")).join(", "),
        "paste, place 80 70, piece turn-left, piece turn-right, piece flip, piece double, piece halve, "
        "piece clear-white, delete");
}

int main(int argc, char** argv)
{
    return support::run<tst_RecordReplay>(argc, argv);
}

#include "tst_RecordReplay.moc"
