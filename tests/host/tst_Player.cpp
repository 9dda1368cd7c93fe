#include "DownloadFolder.h"
#include "Platform.h"
#include "Player.h"

#include "support/Images.h"
#include "support/TestCase.h"

#include <KORVA_Canvas.h>
#include <KORVA_EditCanvas.h>
#include <KORVA_PasteLabel.h>

using pad::Recording;
using support::filled;
using support::sameImage;
using support::sheet;

namespace {

constexpr QSize newCanvas(200, 170);

pad::Platform& platform()
{
    static pad::Platform& installed = pad::Platform::install();
    return installed;
}

/// An editor in a window, and what a recording does to it.
struct Pad
{
    Pad() { editor.show(); }

    QString play(const QByteArray& text)
    {
        const auto recording = Recording::parse(text, "test.rec");
        if (const auto* failure = std::get_if<pad::Failure>(&recording))
            return failure->message;
        const auto failure = player.play(std::get<Recording>(recording));
        return failure ? failure->message : QString();
    }

    QImage picture() { return editor.canvas()->pixmap()->toImage(); }

    KORVA_EditCanvas editor{KORVA_COLOR_16BIT};
    pad::Player player{editor, platform()};
};

/// Counts the mouse events that reach a widget.
class Listener : public QObject
{
public:
    explicit Listener(QWidget* widget) { widget->installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::MouseMove)
            ++moves;
        return false;
    }

    int moves = 0;
};

} // namespace

class tst_Player : public support::TestCase
{
    Q_OBJECT

private slots:
    void aStroke();
    void undoAndRedo();
    void undoStaysInTheDocument_data();
    void undoStaysInTheDocument();
    void mannersHoldForTheRecording();
    void piecesAreChanged();
    void historyWalksAsFarAsItSays();
    void zoomedStroke_data();
    void zoomedStroke();
    void clearing();
    void aMoveWithoutAPressIsAHover();
    void thePieceTakesWhatFallsOnIt();
    void aPressBesideThePieceMergesIt();
    void stretchingByAHandle();
    void theRightButtonOpensTheMenu();
    void everyToolIsReached_data();
    void everyToolIsReached();
    void selectComesBackFromTheHand();
    void options_data();
    void options();
    void anOptionThatIsNotThere();
    void colors();
    void fitToPage();
    void typing();
    void selectAllAndCut();
    void canvases_data();
    void canvases();
    void openAndSave();
    void stamps();
    void saveAddsTypedTextAndTheFloatingPiece();
    void unsavedChanges_data();
    void unsavedChanges();
    void answerIsUsedUp();
    void anAnswerThatIsNotThere();
    void saveBeforeOpening();
    void stopsAtTheFirstFailure_data();
    void stopsAtTheFirstFailure();
};

void tst_Player::aStroke()
{
    Pad pad;
    QCOMPARE(pad.play("press 10 20\nmove 30 20\nrelease 30 20\nmove 30 60"), "");
    QVERIFY(sameImage(pad.picture(), filled(sheet(newCanvas), QRect(10, 20, 21, 1), Qt::red)));
}

void tst_Player::undoAndRedo()
{
    Pad pad;
    QCOMPARE(pad.play("press 10 20\nrelease 10 20\nundo"), "");
    QVERIFY(sameImage(pad.picture(), sheet(newCanvas)));
    QCOMPARE(pad.play("redo"), "");
    QVERIFY(sameImage(pad.picture(), filled(sheet(newCanvas), QRect(10, 20, 1, 1), Qt::red)));
}

void tst_Player::undoStaysInTheDocument_data()
{
    QTest::addColumn<QByteArray>("begin");
    QTest::newRow("opened") << QByteArray("open ");
    QTest::newRow("new") << QByteArray("canvas 16bit 40 30\n");
    QTest::newRow("on a picture") << QByteArray("paper ");
}

void tst_Player::undoStaysInTheDocument()
{
    QFETCH(QByteArray, begin);
    QTemporaryDir folder;
    const QString name = folder.filePath("blue.png");
    QVERIFY(sheet(QSize(40, 30), Qt::blue).save(name));
    if (begin.endsWith(' '))
        begin += name.toUtf8() + '\n';
    Pad pad;
    QCOMPARE(pad.play("history 5\npress 10 20\nrelease 10 20\nanswer 1\n" + begin), "");
    const QImage begun = pad.picture();
    QCOMPARE(begun.size(), QSize(40, 30));
    QCOMPARE(pad.play("undo\nundo"), ""); // not into the drawing before, whose file is another one
    QVERIFY(sameImage(pad.picture(), begun));
    QCOMPARE(pad.play("press 5 5\nrelease 5 5\nundo\nundo"), "");
    QVERIFY(sameImage(pad.picture(), begun));
}

void tst_Player::mannersHoldForTheRecording()
{
    const QImage black = sheet(newCanvas, Qt::black);
    const auto play = [&](Pad& pad, const QByteArray& manners) {
        QPixmap paint = QPixmap::fromImage(black);
        pad.editor.setPixmap(&paint);
        return pad.play(manners + "tool eraser\npress 10 20\nmove 30 20\nrelease 30 20");
    };
    const QImage squares = filled(black, QRect(30, 20, 1, 1), Qt::white);
    const QImage joined = filled(black, QRect(10, 20, 21, 1), Qt::white);
    Pad pad;
    pad.editor.setManners(KORVA_Manners::modern());
    QCOMPARE(play(pad, {}), "");
    QVERIFY(sameImage(pad.picture(), squares));
    QCOMPARE(pad.editor.manners(), KORVA_Manners::modern()); // the person's again
    QCOMPARE(play(pad, "manners joined-eraser\n"), "");
    QVERIFY(sameImage(pad.picture(), joined));
    QCOMPARE(play(pad, "manners modern\nmanners classic\n"), "");
    QVERIFY(sameImage(pad.picture(), squares));
}

void tst_Player::piecesAreChanged()
{
    const QByteArray dash = "manners modern\npress 10 20\nmove 19 20\nrelease 19 20\ntool select\n"
                            "press 10 20\nmove 20 22\nrelease 20 22\n";
    const QImage paper = sheet(newCanvas);
    Pad pad;
    QCOMPARE(pad.play(dash + "piece turn-right\nplace 50 60\nzoom 50\nzoom 200\ntool pencil"), "");
    QVERIFY(sameImage(pad.picture(), filled(paper, QRect(51, 60, 1, 10), Qt::red)));
    Pad dropped;
    QCOMPARE(dropped.play(dash + "piece double\nplace 50 60\nkey Escape"), "");
    QVERIFY(sameImage(dropped.picture(), filled(paper, QRect(10, 20, 10, 1), Qt::red)));
}

void tst_Player::historyWalksAsFarAsItSays()
{
    const QByteArray dots = "press 10 20\nrelease 10 20\npress 30 20\nrelease 30 20\n"
                            "press 50 20\nrelease 50 20\n";
    const QImage first = filled(sheet(newCanvas), QRect(10, 20, 1, 1), Qt::red);
    const QImage second = filled(first, QRect(30, 20, 1, 1), Qt::red);
    Pad without;
    QCOMPARE(without.play(dots + "undo\nundo"), "");
    QVERIFY(sameImage(without.picture(), filled(second, QRect(50, 20, 1, 1), Qt::red)));
    Pad longer;
    QCOMPARE(longer.play("history 2\n" + dots + "undo\nundo\nundo"), "");
    QVERIFY(sameImage(longer.picture(), first));
    QCOMPARE(longer.play("redo"), "");
    QVERIFY(sameImage(longer.picture(), second));
}

void tst_Player::zoomedStroke_data()
{
    QTest::addColumn<QByteArray>("zoom");
    QTest::addColumn<QPoint>("dot");
    QTest::newRow("50") << QByteArray("zoom 50") << QPoint(80, 40);
    QTest::newRow("100") << QByteArray("zoom 100") << QPoint(40, 20);
    QTest::newRow("200") << QByteArray("zoom 200") << QPoint(20, 10);
}

void tst_Player::zoomedStroke()
{
    QFETCH(QByteArray, zoom);
    QFETCH(QPoint, dot);
    Pad pad;
    QCOMPARE(pad.play(zoom + "\npress 40 20\nrelease 40 20"), "");
    QVERIFY(sameImage(pad.picture(), filled(sheet(newCanvas), QRect(dot, QSize(1, 1)), Qt::red)));
}

void tst_Player::clearing()
{
    Pad pad;
    QCOMPARE(pad.play("press 10 20\nrelease 90 90\nclear"), "");
    QVERIFY(sameImage(pad.picture(), sheet(newCanvas)));
}

void tst_Player::aMoveWithoutAPressIsAHover()
{
    Pad pad;
    const Listener canvas(pad.editor.canvas());
    const Listener piece(pad.editor.canvas()->pasteLabel());
    QGuiApplication::clipboard()->setImage(sheet(QSize(40, 30), Qt::blue));
    QCOMPARE(pad.play("paste\nmove 20 15\nmove 100 100"), "");
    QCOMPARE(piece.moves, 1);
    QCOMPARE(canvas.moves, 0); // it hears moves only while a button is down
    QCOMPARE(pad.editor.canvas()->pasteLabel()->cursor().shape(), Qt::PointingHandCursor);
}

void tst_Player::thePieceTakesWhatFallsOnIt()
{
    Pad pad;
    QGuiApplication::clipboard()->setImage(sheet(QSize(40, 30), Qt::blue));
    QCOMPARE(pad.play("paste\nmove 20 15\npress 20 15\nmove 70 55\nrelease 70 55"), "");
    QVERIFY(pad.editor.canvas()->pasteLabel()->isVisible());
    QVERIFY(sameImage(pad.picture(), filled(sheet(newCanvas), QRect(50, 40, 40, 30), Qt::blue)));
}

void tst_Player::aPressBesideThePieceMergesIt()
{
    Pad pad;
    QGuiApplication::clipboard()->setImage(sheet(QSize(40, 30), Qt::blue));
    QCOMPARE(pad.play("paste\npress 100 100\nrelease 100 100"), "");
    QVERIFY(!pad.editor.canvas()->pasteLabel()->isVisible());
    const QImage merged = filled(sheet(newCanvas), QRect(0, 0, 40, 30), Qt::blue);
    QVERIFY(sameImage(pad.picture(), filled(merged, QRect(100, 100, 1, 1), Qt::red)));
}

void tst_Player::stretchingByAHandle()
{
    Pad pad;
    QGuiApplication::clipboard()->setImage(sheet(QSize(40, 30), Qt::blue));
    QCOMPARE(pad.play("paste\nmove 38 28\npress 38 28\nmove 78 58\nrelease 78 58"), "");
    QVERIFY(sameImage(pad.picture(), filled(sheet(newCanvas), QRect(0, 0, 80, 60), Qt::blue)));
}

void tst_Player::theRightButtonOpensTheMenu()
{
    Pad pad;
    QCOMPARE(pad.play("press 10 10 right\nrelease 10 10 right"), "");
    QVERIFY(pad.editor.canvas()->contextMenu()->isVisible());
    QVERIFY(sameImage(pad.picture(), sheet(newCanvas)));
    QCOMPARE(pad.play("key Escape\npress 10 20\nrelease 10 20"), "");
    QVERIFY(!pad.editor.canvas()->contextMenu()->isVisible());
    QVERIFY(sameImage(pad.picture(), filled(sheet(newCanvas), QRect(10, 20, 1, 1), Qt::red)));
}

void tst_Player::everyToolIsReached_data()
{
    QTest::addColumn<int>("id");
    for (int id = 0; id < 8; ++id)
        QTest::newRow(qPrintable(KORVA_EditCanvas::toolWord(id))) << id;
}

void tst_Player::everyToolIsReached()
{
    QFETCH(int, id);
    Pad pad;
    QCOMPARE(pad.play("tool " + KORVA_EditCanvas::toolWord(id).toLatin1()), "");
    QCOMPARE(pad.editor.canvas()->getCurrentToolID(), id);
}

void tst_Player::selectComesBackFromTheHand()
{
    Pad pad;
    QCOMPARE(pad.play("tool hand\ntool pencil\ntool select"), "");
    QCOMPARE(pad.editor.canvas()->getCurrentToolID(), 1);
}

void tst_Player::options_data()
{
    QTest::addColumn<QByteArray>("option");
    QTest::addColumn<int>("width");
    QTest::newRow("small") << QByteArray("option 0") << 1;
    QTest::newRow("medium") << QByteArray("option 1") << 3;
    QTest::newRow("large") << QByteArray("option 2") << 5;
}

void tst_Player::options()
{
    QFETCH(QByteArray, option);
    QFETCH(int, width);
    Pad pad;
    QCOMPARE(pad.play(option + "\npress 50 50\nrelease 50 50"), "");
    QCOMPARE(support::inkBounds(pad.picture()).size(), QSize(width, width));
}

void tst_Player::anOptionThatIsNotThere()
{
    Pad pad;
    QCOMPARE(pad.play("tool ellipse\noption 2"), "test.rec:2: the tool has no option 2");
}

void tst_Player::colors()
{
    Pad pad;
    QCOMPARE(
        pad.play(
            "color #1f6feb\npress 10 20\nrelease 10 20\ntool line\npress 50 50\nmove 60 50\nrelease 60 50"),
        "");
    const QColor blue(0x1f, 0x6f, 0xeb);
    QCOMPARE(pad.editor.color(), blue);
    QVERIFY(sameImage(pad.picture(), filled(filled(sheet(newCanvas), QRect(10, 20, 1, 1), blue),
                                            QRect(50, 50, 11, 1), blue)));
}

void tst_Player::fitToPage()
{
    Pad pad;
    QCOMPARE(pad.play("canvas 16bit 111 93\nzoom fit\npress 40 20\nrelease 40 20"), "");
    QCOMPARE(pad.editor.canvas()->zoom(), 200);
    QVERIFY(sameImage(pad.picture(), filled(sheet(QSize(111, 93)), QRect(20, 10, 1, 1), Qt::red)));
}

void tst_Player::typing()
{
    Pad pad;
    QCOMPARE(pad.play("tool text\npress 20 40\nrelease 20 40\ntype \"He#y\"\nkey BackSpace\nkey BackSpace\n"
                      "key Y\nkey Return\ntype \"to\\nyou\"\ntool pencil"),
             "");
    Pad other;
    QCOMPARE(other.play("tool text\npress 20 40\nrelease 20 40\ntype \"Hey\\nto\\nyou\"\ntool pencil"), "");
    QVERIFY(support::inkCount(pad.picture()) > 50);
    QVERIFY(sameImage(pad.picture(), other.picture()));
}

void tst_Player::selectAllAndCut()
{
    Pad pad;
    QCOMPARE(pad.play("press 10 20\nrelease 10 20\nselectall\ncut"), "");
    QVERIFY(sameImage(pad.picture(), sheet(newCanvas)));
    QVERIFY(sameImage(QGuiApplication::clipboard()->image(),
                      filled(sheet(newCanvas), QRect(10, 20, 1, 1), Qt::red)));
}

void tst_Player::canvases_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<int>("colors");
    QTest::newRow("16bit") << QByteArray("16bit") << int(KORVA_COLOR_16BIT);
    QTest::newRow("1bit") << QByteArray("1bit") << int(KORVA_COLOR_1BIT);
    QTest::newRow("4bit") << QByteArray("4bit") << int(KORVA_COLOR_4BIT);
    QTest::newRow("8bit") << QByteArray("8bit") << int(KORVA_COLOR_8BIT);
    QTest::newRow("4bitb") << QByteArray("4bitb") << int(KORVA_COLOR_4BIT);
}

void tst_Player::canvases()
{
    QFETCH(QByteArray, type);
    QFETCH(int, colors);
    Pad pad;
    QCOMPARE(pad.play("canvas " + type + " 32 40"), "");
    QCOMPARE(int(pad.editor.colorType()), colors);
    QVERIFY(!pad.editor.isModified());
    QVERIFY(sameImage(pad.picture(), sheet(QSize(32, 40))));
}

void tst_Player::openAndSave()
{
    const QTemporaryDir folder;
    const QString before = folder.filePath("be fore.png");
    const QString after = folder.filePath("after.bmp");
    sheet(QSize(30, 20), Qt::green).save(before);
    Pad pad;
    QCOMPARE(pad.play("open \"" + before.toUtf8() + "\"\npress 5 5\nrelease 5 5\nsave \"" + after.toUtf8() +
                      '"'),
             "");
    QCOMPARE(pad.editor.canvas()->size(), QSize(30, 20));
    QCOMPARE(pad.editor.fileName(), after);
    QVERIFY(!pad.editor.isModified());
    QVERIFY(sameImage(QImage(after), filled(sheet(QSize(30, 20), Qt::green), QRect(5, 5, 1, 1), Qt::red)));
}

void tst_Player::stamps()
{
    const QTemporaryDir folder;
    const QString stamp = folder.filePath("stamp.png");
    sheet(QSize(30, 20), Qt::green).save(stamp);
    Pad pad;
    QCOMPARE(
        pad.play("stamp \"" + stamp.toUtf8() + "\"\nmove 10 10\npress 10 10\nmove 110 60\nrelease 110 60"),
        "");
    QCOMPARE(pad.editor.fileName(), "");
    QVERIFY(sameImage(pad.picture(), filled(sheet(newCanvas), QRect(100, 50, 30, 20), Qt::green)));
}

void tst_Player::saveAddsTypedTextAndTheFloatingPiece()
{
    const QTemporaryDir folder;
    const QByteArray out = folder.filePath("out.png").toUtf8();
    QGuiApplication::clipboard()->setImage(sheet(QSize(40, 30), Qt::blue));
    Pad pad;
    QCOMPARE(pad.play("tool text\npress 20 80\nrelease 20 80\ntype abc\npaste\nsave \"" + out + '"'), "");
    const QImage saved(out);
    QCOMPARE(saved.pixelColor(39, 29), QColor(Qt::blue));
    QVERIFY(support::inkCount(saved.copy(20, 60, 60, 25)) > 20);
}

void tst_Player::unsavedChanges_data()
{
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<QString>("question");
    QTest::addColumn<QSize>("size");
    QTest::newRow("open") << QByteArray("open PICTURE") << "Save changes to drawing before opening?"
                          << QSize(30, 20);
    QTest::newRow("canvas") << QByteArray("canvas 16bit 64 80")
                            << "Save changes to drawing before choosing canvas?" << QSize(64, 80);
}

void tst_Player::unsavedChanges()
{
    QFETCH(QByteArray, command);
    QFETCH(QString, question);
    QFETCH(QSize, size);
    const QTemporaryDir folder;
    const QString picture = folder.filePath("picture.png");
    sheet(QSize(30, 20), Qt::green).save(picture);
    command.replace("PICTURE", picture.toUtf8());

    Pad unanswered;
    QCOMPARE(unanswered.play("press 10 20\nrelease 10 20\n" + command),
             "test.rec:3: the question '" + question + "' has no answer");
    QVERIFY(sameImage(unanswered.picture(), filled(sheet(newCanvas), QRect(10, 20, 1, 1), Qt::red)));

    Pad refused;
    QCOMPARE(refused.play("press 10 20\nrelease 10 20\nanswer 1\n" + command), "");
    QCOMPARE(refused.editor.canvas()->size(), size);

    Pad unchanged;
    QCOMPARE(unchanged.play(command), "");
    QCOMPARE(unchanged.editor.canvas()->size(), size);
}

void tst_Player::answerIsUsedUp()
{
    Pad pad;
    QCOMPARE(pad.play("answer 1\npress 1 1\nrelease 1 1\ncanvas 16bit 64 80\npress 1 1\nrelease 1 1\n"
                      "canvas 16bit 32 40"),
             "test.rec:7: the question 'Save changes to drawing before choosing canvas?' has no answer");
    QCOMPARE(pad.editor.canvas()->size(), QSize(64, 80));
}

void tst_Player::anAnswerThatIsNotThere()
{
    Pad pad;
    QCOMPARE(pad.play("press 1 1\nrelease 1 1\nanswer 2\ncanvas 16bit 64 80"),
             "test.rec:4: the question 'Save changes to drawing before choosing canvas?' has no answer");
    QCOMPARE(pad.editor.canvas()->size(), newCanvas);
}

void tst_Player::saveBeforeOpening()
{
    const QTemporaryDir folder;
    const QByteArray mine = folder.filePath("mine.png").toUtf8();
    const QByteArray other = folder.filePath("other.png").toUtf8();
    sheet(QSize(30, 20), Qt::green).save(other);

    Pad unnamed;
    QCOMPARE(unnamed.play("press 1 1\nrelease 1 1\nanswer 0\nopen " + other),
             "test.rec:4: the drawing has no name to be saved under");
    QVERIFY(sameImage(unnamed.picture(), filled(sheet(newCanvas), QRect(1, 1, 1, 1), Qt::red)));

    Pad named;
    QCOMPARE(named.play("save " + mine + "\npress 1 1\nrelease 1 1\nanswer 0\nopen " + other), "");
    QVERIFY(sameImage(QImage(mine), filled(sheet(newCanvas), QRect(1, 1, 1, 1), Qt::red)));
    QVERIFY(sameImage(named.picture(), sheet(QSize(30, 20), Qt::green)));
}

void tst_Player::stopsAtTheFirstFailure_data()
{
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<QString>("complaint");
    const auto row = [](const char* name, const char* command, const char* complaint) {
        QTest::newRow(name) << QByteArray(command) << QString(complaint);
    };
    row("a picture that is not there", "open /nowhere.png",
        "cannot open '/nowhere.png': Failed to open file");
    row("a stamp that is not there", "stamp /nowhere.png",
        "cannot open '/nowhere.png': Failed to open file");
    row("a folder that is not there", "save /nowhere/a.png",
        "cannot write '/nowhere/a.png': No such file or directory");
    row("a format that is only read", "save /tmp/a.gif",
        "cannot write '/tmp/a.gif': GIF pictures are only read");
}

void tst_Player::stopsAtTheFirstFailure()
{
    QFETCH(QByteArray, command);
    QFETCH(QString, complaint);
    Pad pad;
    QCOMPARE(pad.play("press 10 20\nrelease 10 20\n\n" + command + "\nclear"), "test.rec:4: " + complaint);
    QVERIFY(pad.editor.isModified());
    QVERIFY(sameImage(pad.picture(), filled(sheet(newCanvas), QRect(10, 20, 1, 1), Qt::red)));
}

int main(int argc, char** argv)
{
    const pad::DownloadFolder downloads;
    return support::run<tst_Player>(argc, argv);
}

#include "tst_Player.moc"
