#include "Commands.h"
#include "Documents.h"
#include "PadWindow.h"
#include "Platform.h"
#include "Player.h"
#include "Recorder.h"

#include "support/Gestures.h"
#include "support/Images.h"
#include "support/Modal.h"
#include "support/TestCase.h"

#include <KORVA_Canvas.h>
#include <KORVA_EditCanvas.h>
#include <UTIL_PictureDialog.h>

using support::sameImage;

namespace {

constexpr QRect scribbled(60, 50, 30, 1);

/// Answers the dialogs that come up while a command runs, one after the other.
class Clerk
{
public:
    using Step = std::function<void(QDialog& dialog)>;

    explicit Clerk(std::vector<Step> steps) : m_steps(std::move(steps))
    {
        QObject::connect(&m_timer, &QTimer::timeout, [this] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (dialog && m_done < m_steps.size())
                m_steps[m_done++](*dialog);
        });
        m_timer.start(10);
    }
    ~Clerk() { QCOMPARE(m_done, m_steps.size()); }

    static Step press(const QString& text)
    {
        return [text](const QDialog& dialog) { support::button(dialog, text)->click(); };
    }
    static Step choose(const QString& fileName)
    {
        return [fileName](QDialog& dialog) {
            dynamic_cast<UTIL_PictureDialog&>(dialog).setFileName(fileName);
            dialog.accept();
        };
    }
    static void refuse(QDialog& dialog) { dialog.reject(); }
    static void tap(QDialog& dialog) { QTest::mouseClick(&dialog, Qt::LeftButton); }

private:
    std::vector<Step> m_steps;
    std::size_t m_done = 0;
    QTimer m_timer;
};

/// The pad at its desk, and what is drawn in it.
struct Desk
{
    explicit Desk(int steps = 50) : window(pad::Platform::install())
    {
        window.editor().setUndoSteps(steps);
        window.show();
    }

    KORVA_EditCanvas& editor() { return window.editor(); }
    KORVA_Canvas& canvas() { return *window.editor().canvas(); }
    QImage picture() { return editor().snapshot(); }

    void choose(const char* text, std::vector<Clerk::Step> steps)
    {
        const Clerk clerk(std::move(steps));
        for (QAction* action : window.actions()) {
            if (action->text().remove('&') == text)
                action->trigger();
        }
    }
    void newFrom(const QString& fileName) { choose("New from picture ...", {Clerk::choose(fileName)}); }
    void scribble()
    {
        editor().selectTool(KORVA_TOOL_PENCIL);
        editor().selectOption(KORVA_OPTION_SMALL);
        support::Gestures(canvas()).drag({scribbled.topLeft(), scribbled.topRight()});
    }
    void erase()
    {
        editor().selectTool(KORVA_TOOL_ERASER);
        editor().selectOption(KORVA_OPTION_LARGE);
        support::Gestures hand(canvas());
        for (int x = scribbled.left() - 3; x < scribbled.right() + 3; x += 2)
            hand.click({x, scribbled.y() - 2});
    }

    pad::PadWindow window;
};

} // namespace

/// A new drawing whose paper is a picture.
class tst_NewFromPicture : public support::TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void eraserClearAndCutsBringThePictureBack_data();
    void eraserClearAndCutsBringThePictureBack();
    void isNewAndUnnamed();
    void asksFirst();
    void changesNothing_data();
    void changesNothing();
    void aPhotographIsFitted();
    void whitePaperComesBack_data();
    void whitePaperComesBack();
    void whatIsBroughtBackLiesOnWhitePaper();
    void isSavedWithThePicture();
    void playsAlike();
    void aReplayStops_data();
    void aReplayStops();

private:
    [[nodiscard]] QString path(const QString& name) const { return m_folder.filePath(name); }
    /// The picture as the editor shows it.
    [[nodiscard]] static QImage opened(const QString& fileName)
    {
        return KORVA_EditCanvas(fileName, KORVA_COLOR_16BIT).snapshot();
    }

    QTemporaryDir m_folder;
    QString m_sheet;
};

void tst_NewFromPicture::initTestCase()
{
    m_sheet = path("sheet.png");
    QVERIFY(support::mosaic({160, 120}).save(m_sheet));
    QVERIFY(support::mosaic({4000, 3000}).save(path("photo.jpg"), "JPEG", 90));
    QFile broken(path("broken.png"));
    QVERIFY(broken.open(QIODevice::WriteOnly) && broken.write("\x89PNG\r\n\x1a\nnothing") > 0);
}

void tst_NewFromPicture::eraserClearAndCutsBringThePictureBack_data()
{
    QTest::addColumn<int>("steps");
    QTest::newRow("one step") << 1;
    QTest::newRow("more") << 50;
}

void tst_NewFromPicture::eraserClearAndCutsBringThePictureBack()
{
    QFETCH(const int, steps);
    Desk desk(steps);
    desk.scribble();
    desk.editor().clearModified();
    desk.newFrom(m_sheet);
    const QImage sheet = opened(m_sheet);
    QVERIFY(sameImage(desk.picture(), sheet));

    desk.scribble();
    const QImage drawn = desk.picture();
    QCOMPARE(drawn.pixelColor(scribbled.center()), QColor(Qt::red));
    desk.erase();
    QVERIFY(sameImage(desk.picture(), sheet));
    QVERIFY(sameImage(*desk.canvas().zoomedPixmap(), sheet));

    desk.scribble();
    desk.choose("Clear", {});
    QVERIFY(sameImage(desk.picture(), sheet));
    desk.choose("Undo", {});
    QVERIFY(sameImage(desk.picture(), drawn));
    desk.choose("Select all", {});
    desk.choose("Cut", {});
    QVERIFY(sameImage(desk.picture(), sheet));
}

void tst_NewFromPicture::isNewAndUnnamed()
{
    Desk desk(1);
    desk.editor().setFileName(path("old.png"));
    QSignalSpy undo(&desk.editor(), &KORVA_EditCanvas::canUndo);
    desk.newFrom(m_sheet);
    QCOMPARE(desk.editor().fileName(), "");
    QVERIFY(!desk.editor().isModified());
    QVERIFY(!desk.editor().hasChanges());
    QVERIFY(!desk.editor().isReduced());
    QCOMPARE(undo.last().first(), QVariant(false));
    QCOMPARE(desk.window.windowTitle(), "Drawing[*] - Korva");
    QVERIFY(!desk.window.isWindowModified());
}

void tst_NewFromPicture::asksFirst()
{
    Desk desk;
    desk.scribble();
    const QImage drawn = desk.picture();
    QString asked;
    desk.choose("New from picture ...", {[&asked](QDialog& box) {
                    asked = box.windowTitle();
                    Clerk::press("Cancel")(box);
                }});
    QCOMPARE(asked, "Save changes to drawing before creating?");
    QVERIFY(sameImage(desk.picture(), drawn));
    QVERIFY(desk.editor().isModified());
    desk.choose("New from picture ...", {Clerk::press("No"), Clerk::choose(m_sheet)});
    QVERIFY(sameImage(desk.picture(), opened(m_sheet)));
}

void tst_NewFromPicture::changesNothing_data()
{
    QTest::addColumn<QString>("picture");
    QTest::newRow("cancelled pick") << QString();
    QTest::newRow("wrong file") << path("broken.png");
    QTest::newRow("missing file") << path("missing.png");
}

void tst_NewFromPicture::changesNothing()
{
    QFETCH(const QString, picture);
    Desk desk;
    desk.newFrom(m_sheet);
    desk.editor().setFileName(path("mine.png"));
    desk.scribble();
    const QImage drawn = desk.picture();
    std::vector<Clerk::Step> steps{Clerk::press("No")};
    if (picture.isEmpty())
        steps.insert(steps.end(), {Clerk::refuse});
    else
        steps.insert(steps.end(), {Clerk::choose(picture), Clerk::tap});
    desk.choose("New from picture ...", steps);
    QVERIFY(sameImage(desk.picture(), drawn));
    QCOMPARE(desk.editor().fileName(), path("mine.png"));
    QVERIFY(desk.editor().isModified());
    desk.erase(); // the paper stays, too
    QVERIFY(sameImage(desk.picture(), opened(m_sheet)));
}

void tst_NewFromPicture::aPhotographIsFitted()
{
    Desk desk;
    desk.newFrom(path("photo.jpg"));
    QCOMPARE(desk.picture().size(), QSize(352, 264));
    const QImage fitted = opened(path("photo.jpg"));
    desk.scribble();
    desk.erase();
    QVERIFY(sameImage(desk.picture(), fitted));
}

void tst_NewFromPicture::whitePaperComesBack_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<int>("steps");
    for (const int steps : {1, 50}) {
        QTest::addRow("New, %d", steps) << "New ..." << steps;
        QTest::addRow("Open, %d", steps) << "Open ..." << steps;
    }
}

void tst_NewFromPicture::whitePaperComesBack()
{
    QFETCH(const QString, command);
    QFETCH(const int, steps);
    const bool isOpen = command == "Open ...";
    Desk desk(steps);
    desk.newFrom(m_sheet);
    if (isOpen) // the paper itself, as a drawing
        desk.choose("Open ...", {Clerk::choose(m_sheet)});
    else
        desk.choose("New ...", {Clerk::press("OK"), Clerk::press("16 colors")});
    const QImage begun = desk.picture();
    if (isOpen)
        QVERIFY(sameImage(begun, opened(m_sheet)));
    else
        QCOMPARE(support::inkCount(begun), 0);
    QVERIFY(!desk.editor().isModified());
    desk.scribble();
    desk.choose("Clear", {});
    QCOMPARE(support::inkCount(desk.picture()), 0);
    desk.choose("Undo", {});
    desk.choose("Undo", {});
    if (steps > 1)
        QVERIFY(sameImage(desk.picture(), begun));
}

void tst_NewFromPicture::whatIsBroughtBackLiesOnWhitePaper()
{
    Desk desk;
    desk.newFrom(m_sheet);
    QPixmap found(m_sheet); // looks like the paper
    desk.editor().setPixmap(&found);
    desk.canvas().markModified();
    const QImage before = desk.picture();
    desk.window.documents().takeBroughtBack({});
    QVERIFY(sameImage(desk.picture(), before));
    QVERIFY(desk.editor().isModified());
    desk.choose("Clear", {});
    QCOMPARE(support::inkCount(desk.picture()), 0);
}

void tst_NewFromPicture::isSavedWithThePicture()
{
    Desk desk;
    desk.newFrom(m_sheet);
    desk.scribble();
    const QString name = path("mine.png");
    desk.choose("Save", {Clerk::choose(name), Clerk::tap});
    QCOMPARE(desk.editor().fileName(), name);
    QVERIFY(sameImage(QImage(name), desk.picture()));
    desk.erase();
    desk.choose("Save", {Clerk::tap}); // without a question
    QVERIFY(sameImage(QImage(name), opened(m_sheet)));
    QVERIFY(!desk.editor().isModified());
}

void tst_NewFromPicture::playsAlike()
{
    const QString file = path("paper.rec");
    QImage drawn;
    {
        Desk desk(1);
        pad::Recorder recorder(desk.editor());
        connect(&desk.window.commands(), &pad::Commands::performed, &recorder, &pad::Recorder::write);
        QVERIFY(!recorder.start(file));
        desk.scribble();
        desk.choose("New from picture ...", {Clerk::press("No"), Clerk::choose(m_sheet)});
        desk.scribble();
        desk.choose("Clear", {});
        desk.editor().selectTool(KORVA_TOOL_ELLIPSE);
        support::Gestures(desk.canvas()).drag({{10, 10}, {80, 90}});
        desk.erase();
        drawn = desk.picture();
        QVERIFY(!recorder.finish());
    }
    QFile recorded(file);
    QVERIFY(recorded.open(QIODevice::ReadOnly));
    QVERIFY(recorded.readAll().contains("answer 1\npaper \"" + m_sheet.toUtf8() + "\"\n"));

    pad::Platform& platform = pad::Platform::install();
    pad::PadWindow again(platform);
    again.show();
    const auto recording = pad::Recording::read(file);
    QVERIFY(std::holds_alternative<pad::Recording>(recording));
    QVERIFY(!pad::Player(again.editor(), platform).play(std::get<pad::Recording>(recording)));
    QVERIFY(sameImage(again.editor().snapshot(), drawn));
    const auto more = pad::Recording::parse("clear\nanswer 1\ncanvas 16bit 40 30\nclear", "more");
    QVERIFY(!pad::Player(again.editor(), platform).play(std::get<pad::Recording>(more)));
    QCOMPARE(support::inkCount(again.editor().snapshot()), 0);
}

void tst_NewFromPicture::aReplayStops_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("failure");
    QTest::newRow("wrong file") << "paper " + path("broken.png")
                                << "test:1: cannot open '" + path("broken.png") + "': Failed to open file";
    QTest::newRow("unasked")
        << "press 9 9\nrelease 9 9\npaper " + m_sheet
        << "test:3: the question 'Save changes to drawing before choosing canvas?' has no answer";
}

void tst_NewFromPicture::aReplayStops()
{
    QFETCH(const QString, text);
    QFETCH(const QString, failure);
    pad::Platform& platform = pad::Platform::install();
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    editor.show();
    const auto recording = pad::Recording::parse(text.toUtf8(), "test");
    const auto stopped = pad::Player(editor, platform).play(std::get<pad::Recording>(recording));
    QVERIFY(stopped);
    QCOMPARE(stopped->message, failure);
    QCOMPARE(editor.snapshot().size(), QSize(200, 170));
}

int main(int argc, char** argv)
{
    return support::run<tst_NewFromPicture>(argc, argv);
}

#include "tst_NewFromPicture.moc"
