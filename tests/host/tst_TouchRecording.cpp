#include "Commands.h"
#include "PadTools.h"
#include "PadWindow.h"
#include "Platform.h"
#include "Player.h"
#include "Recorder.h"
#include "Settings.h"

#include "support/Fingers.h"
#include "support/Images.h"
#include "support/Tablet.h"
#include "support/TestCase.h"

#include <KORVA_Canvas.h>
#include <KORVA_EditCanvas.h>
#include <KORVA_PasteLabel.h>

using support::sameImage;
using support::Tablet;

namespace {

QStringList linesOf(const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return {"(no such file)"};
    return QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts);
}

/// A pad that is recorded, with fingers and a pen over its canvas.
struct RecordedPad
{
    explicit RecordedPad(const QString& fileName) : file(fileName)
    {
        QGuiApplication::clipboard()->setImage(support::mosaic(QSize(40, 30)));
        QObject::connect(&window.commands(), &pad::Commands::performed, &recorder, &pad::Recorder::write);
        window.show();
        if (!QTest::qWaitForWindowExposed(&window) || recorder.start(file))
            QTest::qFail("the pad could not be recorded", __FILE__, __LINE__);
    }

    [[nodiscard]] KORVA_EditCanvas& editor() const { return window.editor(); }
    [[nodiscard]] KORVA_Canvas& canvas() const { return *editor().canvas(); }
    [[nodiscard]] QStringList lines() const { return linesOf(file); }
    void choose(const char* button, int row) const
    {
        editor().findChild<QPushButton*>(button)->menu()->actions().value(row)->trigger();
    }
    void command(const QString& text) const
    {
        for (QAction* action : window.actions()) {
            if (action->text().remove('&').remove(QStringLiteral("\u2713 ")) == text)
                action->trigger();
        }
    }

    QString file;
    pad::PadWindow window{pad::Platform::install()};
    pad::Recorder recorder{window.editor()};
    support::Fingers fingers{canvas()};
    Tablet pen{canvas()};
};

/// Plays the recording on another pad.
QImage replayed(const QString& file)
{
    QGuiApplication::clipboard()->setImage(support::mosaic(QSize(40, 30)));
    pad::Platform& platform = pad::Platform::install();
    pad::PadWindow window(platform);
    window.show();
    const auto recording = pad::Recording::read(file);
    if (!std::holds_alternative<pad::Recording>(recording))
        return {};
    if (const auto failure =
            pad::Player(window.editor(), platform).play(std::get<pad::Recording>(recording)))
        qInfo() << failure->message;
    return window.editor().pixmap()->toImage();
}

/// A person who draws with fingers and a pen, with both hands.
class Person
{
public:
    Person(RecordedPad& pad, quint32 seed) : m_pad(pad), m_random(seed) {}

    void draw()
    {
        for (int i = 0; i < 30; ++i)
            doSomething();
    }

private:
    void doSomething()
    {
        static constexpr const char* commands[] = {"Undo", "Redo", "Paste", "Cut", "Copy", "Select all"};
        switch (m_random.bounded(12)) {
        case 0:
            return m_pad.command(commands[m_random.bounded(6)]);
        case 1:
        case 2:
            return m_pad.choose("toolButton", m_random.bounded(7));
        case 3:
            return m_pad.editor().findChild<QPushButton*>("optionButton")->menu()->isEmpty()
                       ? void()
                       : m_pad.choose("optionButton", 0);
        case 4:
            return pinch();
        case 5:
        case 6:
            return pen(Tablet::Tip);
        case 7:
            return pen(Tablet::Eraser);
        case 8:
            return stroke(true);
        default:
            return stroke(false);
        }
    }

    void stroke(bool takenBack)
    {
        QPoint at = place();
        m_pad.fingers.press(0, at);
        for (int i = m_random.bounded(6); i > 0; --i) {
            at += step();
            m_pad.fingers.move(0, at);
        }
        if (takenBack) {
            if (m_random.bounded(2))
                m_pad.fingers.press(1, place());
            else
                m_pad.fingers.cancel();
        }
        for (const int finger : {1, 0}) {
            if (!m_pad.fingers.onScreen(finger).isNull())
                m_pad.fingers.release(finger);
        }
    }

    void pinch()
    {
        const QPoint middle = m_pad.canvas().mapToGlobal(place());
        const auto finger = [&](int side, int apart) {
            return m_pad.canvas().mapFromGlobal(middle + QPoint(side ? apart / 2 : -apart / 2, 0));
        };
        m_pad.fingers.press(0, finger(0, 40));
        m_pad.fingers.press(1, finger(1, 40));
        const int apart = m_random.bounded(20, 90);
        m_pad.fingers.move({{0, finger(0, apart)}, {1, finger(1, apart)}});
        m_pad.fingers.release(1);
        m_pad.fingers.release(0);
    }

    void pen(Tablet::End end)
    {
        QPointF at = place();
        m_pad.pen.press(at, end);
        for (int i = m_random.bounded(6); i > 0; --i) {
            at += QPointF(step()) * 0.37;
            m_pad.pen.move(at, end);
        }
        m_pad.pen.release(at, end);
        m_pad.pen.leave(end);
        QTest::qWait(510); // until the hand is gone
    }

    QPoint step() { return {m_random.bounded(-15, 16), m_random.bounded(-15, 16)}; }

    /// On the piece now and then, where there is one.
    QPoint place()
    {
        const QRect seen = m_pad.canvas().visibleRegion().boundingRect();
        const QRect piece = m_pad.canvas().pasteLabel()->geometry() & seen;
        const bool onPiece =
            m_pad.canvas().pasteLabel()->isVisible() && !piece.isEmpty() && m_random.bounded(3);
        const QRect in = onPiece ? piece : seen;
        return in.topLeft() + QPoint(m_random.bounded(in.width()), m_random.bounded(in.height()));
    }

    RecordedPad& m_pad;
    QRandomGenerator m_random;
};

} // namespace

/// What fingers and pens do, recorded and played again.
class tst_TouchRecording : public support::TestCase
{
    Q_OBJECT

private slots:
    void cleanupTestCase() { QVERIFY(m_ink > 5'000); } // the drawings were not all empty
    void givesTheSamePicture_data();
    void givesTheSamePicture();
    void aStrokeIsWrittenWhenItIsOver();
    void aStrokeTakenBackIsNotInIt();
    void aSecondTapIsShift();
    void whatIsChosenMeanwhileIs();
    void aPinchIsAZoom();
    void theEraserEndIsAChangeOfTools();
    void aWideHandleIsTheSameOnAnyScreen();
    void theTitleKnowsWhatIsTakenBack();
    void whatAFingerDoesIsRemembered();

private:
    int m_ink = 0;
};

void tst_TouchRecording::givesTheSamePicture_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 12; ++seed)
        QTest::addRow("drawing %u", seed) << seed;
}

void tst_TouchRecording::givesTheSamePicture()
{
    QFETCH(quint32, seed);
    const QTemporaryDir folder;
    const QString file = folder.filePath("drawing.rec");
    QImage drawn;
    {
        RecordedPad pad(file);
        Person(pad, seed).draw();
        drawn = pad.editor().pixmap()->toImage();
        QVERIFY(!pad.recorder.finish());
    }
    m_ink += support::inkCount(drawn);
    QVERIFY(sameImage(replayed(file), drawn));
}

void tst_TouchRecording::aStrokeIsWrittenWhenItIsOver()
{
    const QTemporaryDir folder;
    RecordedPad pad(folder.filePath("stroke.rec"));
    pad.fingers.press(0, {20, 20});
    pad.fingers.move(0, {40, 30});
    QCOMPARE(pad.lines(), QStringList());
    pad.fingers.release(0);
    QCOMPARE(pad.lines(), QStringList({"press 20 20", "move 40 30", "release 40 30"}));

    pad.fingers.press(0, {50, 50});
    pad.fingers.move(0, {60, 60});
    QVERIFY(!pad.recorder.finish()); // what is on the drawing then is in it
    QCOMPARE(pad.lines().mid(3), QStringList({"press 50 50", "move 60 60"}));
}

void tst_TouchRecording::aStrokeTakenBackIsNotInIt()
{
    const QTemporaryDir folder;
    RecordedPad pad(folder.filePath("stroke.rec"));
    pad.fingers.press(0, {20, 20});
    pad.fingers.move(0, {40, 30});
    pad.fingers.press(1, {90, 90});
    pad.fingers.release(1);
    pad.fingers.release(0);
    pad.fingers.press(0, {20, 20});
    pad.fingers.move(0, {40, 30});
    pad.fingers.cancel();
    pad.fingers.release(0);
    pad.fingers.tap({70, 70});
    QCOMPARE(pad.lines(), QStringList({"press 70 70", "release 70 70"}));
}

void tst_TouchRecording::aSecondTapIsShift()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath("shape.rec");
    QImage drawn;
    {
        RecordedPad pad(file);
        pad::padtools::behave(pad.editor(), KORVA_Manners::modern());
        pad.recorder.write(pad::Recording::commandFor(pad.editor().manners()));
        pad.editor().selectTool(KORVA_TOOL_RECTANGLE);
        pad.fingers.press(0, {20, 20});
        pad.fingers.move(0, {60, 30});
        pad.fingers.press(1, {150, 120});
        pad.fingers.release(1);
        pad.fingers.move(0, {70, 40});
        pad.fingers.release(0);
        QCOMPARE(pad.lines().mid(2), QStringList({"press 20 20", "move 60 30", "move 60 30 shift",
                                                  "move 70 40 shift", "release 70 40 shift"}));
        QVERIFY(!pad.recorder.finish());
        drawn = pad.editor().snapshot();
        QCOMPARE(support::inkBounds(drawn), QRect(20, 20, 50, 50));
    }
    QVERIFY(sameImage(replayed(file), drawn));
}

void tst_TouchRecording::whatIsChosenMeanwhileIs()
{
    const QTemporaryDir folder;
    RecordedPad pad(folder.filePath("stroke.rec"));
    pad.fingers.press(0, {20, 20});
    pad.fingers.move(0, {40, 30});
    pad.choose("optionButton", 1);
    pad.fingers.press(1, {90, 90});
    QCOMPARE(pad.lines(), QStringList({"option 1"}));
}

void tst_TouchRecording::aPinchIsAZoom()
{
    const QTemporaryDir folder;
    RecordedPad pad(folder.filePath("pinch.rec"));
    pad.fingers.press(0, {60, 60});
    pad.fingers.press(1, {100, 60});
    pad.fingers.move({{0, {45, 60}}, {1, {115, 60}}});
    QCOMPARE(pad.lines(), QStringList({"zoom 150"}));
}

void tst_TouchRecording::theEraserEndIsAChangeOfTools()
{
    const QTemporaryDir folder;
    RecordedPad pad(folder.filePath("eraser.rec"));
    pad.pen.press({20.7, 20.2}, Tablet::Eraser);
    pad.pen.move({40.9, 30.4}, Tablet::Eraser);
    pad.pen.release({40.9, 30.4}, Tablet::Eraser);
    QCOMPARE(pad.lines(),
             QStringList({"tool eraser", "press 20 20", "move 40 30", "release 40 30", "tool pencil"}));
}

void tst_TouchRecording::aWideHandleIsTheSameOnAnyScreen()
{
    const QTemporaryDir folder;
    RecordedPad pad(folder.filePath("handle.rec"));
    pad.command("Paste");
    pad.canvas().pasteLabel()->move(60, 60);
    pad.fingers.drag({{115, 105}, {120, 110}, {135, 125}}); // outside of its 40 x 30
    QCOMPARE(pad.canvas().pasteLabel()->size(), QSize(60, 50));
    QCOMPARE(pad.lines(), QStringList({"paste", "move 99 89", "press 99 89", "move 104 94", "move 119 109",
                                       "release 119 109"}));
}

void tst_TouchRecording::theTitleKnowsWhatIsTakenBack()
{
    const QTemporaryDir folder;
    RecordedPad pad(folder.filePath("title.rec"));
    pad.fingers.press(0, {20, 20});
    pad.fingers.move(0, {40, 30});
    QVERIFY(pad.window.isWindowModified());
    pad.fingers.press(1, {90, 90});
    QVERIFY(!pad.window.isWindowModified());
}

void tst_TouchRecording::whatAFingerDoesIsRemembered()
{
    const QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
    const auto restore = qScopeGuard([] { qunsetenv("XDG_CONFIG_HOME"); });
    {
        const QTemporaryDir folder;
        RecordedPad pad(folder.filePath("fingers.rec"));
        pad.command("Finger pans"); // by somebody who does not stay
        QCOMPARE(pad.canvas().fingerUse(), KORVA_Canvas::FingerPans);
        pad.command("Finger pans");
        QCOMPARE(pad.canvas().fingerUse(), KORVA_Canvas::FingerDraws);
        pad.command("Finger pans");
        QVERIFY(!QFile::exists(pad::settingsFile()));
        QCOMPARE(pad.lines(), QStringList()); // it draws nothing
    }
    for (const auto use :
         {KORVA_Canvas::FingerDraws, KORVA_Canvas::FingerPans, KORVA_Canvas::FingerDraws}) {
        pad::PadWindow window(pad::Platform::install());
        window.commands().rememberChoices();
        QCOMPARE(window.editor().canvas()->fingerUse(), use);
        for (QAction* action : window.actions()) {
            if (action->text().remove('&').endsWith(QStringLiteral("Finger pans"))) { // after a tick
                QCOMPARE(action->isChecked(), use == KORVA_Canvas::FingerPans);
                action->trigger();
            }
        }
    }
}

int main(int argc, char** argv)
{
    return support::run<tst_TouchRecording>(argc, argv);
}

#include "tst_TouchRecording.moc"
