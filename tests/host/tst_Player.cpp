#include "Document.h"
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
    pad::Document document{editor};
    pad::Player player{editor, document};
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
    void zoomedStroke_data();
    void zoomedStroke();
    void clearing();
    void aMoveWithoutAPressIsAHover();
    void thePieceTakesWhatFallsOnIt();
    void aPressBesideThePieceMergesIt();
    void stretchingByAHandle();
    void theRightButtonOpensTheMenu();
    void openAndSave();
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

void tst_Player::openAndSave()
{
    const QTemporaryDir folder;
    const QString before = folder.filePath("before.png");
    const QString after = folder.filePath("after.bmp");
    sheet(QSize(30, 20), Qt::green).save(before);
    Pad pad;
    QCOMPARE(pad.play("open \"" + before.toUtf8() + "\"\npress 5 5\nrelease 5 5\nsave \"" + after.toUtf8() +
                      '"'),
             "");
    QCOMPARE(pad.editor.canvas()->size(), QSize(30, 20));
    QVERIFY(!pad.editor.canvas()->isModified());
    QVERIFY(sameImage(QImage(after), filled(sheet(QSize(30, 20), Qt::green), QRect(5, 5, 1, 1), Qt::red)));
}

void tst_Player::stopsAtTheFirstFailure()
{
    Pad pad;
    QCOMPARE(pad.play("press 10 20\nrelease 10 20\n\nopen /nowhere.png\nclear"),
             "test.rec:4: cannot open '/nowhere.png': File not found");
    QVERIFY(sameImage(pad.picture(), filled(sheet(newCanvas), QRect(10, 20, 1, 1), Qt::red)));
}

int main(int argc, char** argv)
{
    return support::run<tst_Player>(argc, argv);
}

#include "tst_Player.moc"
