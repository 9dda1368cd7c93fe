#include "Fixtures.h"

using fixtures::PictureCanvas;
using fixtures::RecordingTool;
using support::mosaic;
using support::sameImage;
using support::SignalRecorder;

namespace {

constexpr QSize size(20, 10);

/// A canvas that was changed from the mosaic to blue, and what its editor hears since.
struct ChangedCanvas
{
    ChangedCanvas()
    {
        QPixmap picture = QPixmap::fromImage(mosaic(size));
        canvas.setPixmap(&picture);
        canvas.clearCanvas(Qt::blue);
        canvas.clearModified();
        fixtures::watchPicture(recorder, canvas);
    }

    [[nodiscard]] bool showsBefore()
    {
        return sameImage(*canvas.pixmap(), mosaic(size)) && sameImage(*canvas.zoomedPixmap(), mosaic(size));
    }
    [[nodiscard]] bool showsAfter()
    {
        const QImage blue = support::sheet(size, Qt::blue);
        return sameImage(*canvas.pixmap(), blue) && sameImage(*canvas.zoomedPixmap(), blue);
    }

    KORVA_EditCanvas editor{KORVA_COLOR_16BIT};
    KORVA_Canvas canvas{&editor, size.width(), size.height()};
    SignalRecorder recorder;
};

} // namespace

class tst_Undo : public support::TestCase
{
    Q_OBJECT

private slots:
    void recordOffersUndo();
    void undoOffersRedo();
    void redoOffersUndo();
    void setUndoFlagOffersTheReverse_data();
    void setUndoFlagOffersTheReverse();
    void editorHearsUndoBeforeRedo();

    void everyModificationOffersUndo();
    void undoTwiceBringsBackTheAfterState();
    void redoIsTheSameExchange();
    void undoneStateIsLostWithANewChange();
    void newCanvasUndoesToWhite();
    void neitherTouchesTheModifiedFlag();
    void typedTextKeepsThePictureButNotTheSignals();
    void withoutAToolThePicturesAreExchanged();
    void aToolWithoutTextExchangesThePictures();
    void undoCommitsAFloatingPieceFirst();
    void undoAfterAMergeKeepsThePiece();
    void snapshotComesBeforeTheChange_data();
    void snapshotComesBeforeTheChange();
    void theScreenFollowsBackOverAResize();
    void liftingTakesNoSnapshot();
    void undoWorksAtEveryZoom();
};

// --- The four orders of signals

void tst_Undo::recordOffersUndo()
{
    ChangedCanvas c;
    c.canvas.record();
    QCOMPARE(c.recorder.taken(), QStringList({"canUndo(true)", "canRedo(false)"}));
    QCOMPARE(c.canvas.undoFlag(), 1);
}

void tst_Undo::undoOffersRedo()
{
    ChangedCanvas c;
    c.canvas.undo();
    QCOMPARE(c.recorder.taken(), QStringList({"canUndo(false)", "canRedo(true)"}));
    QCOMPARE(c.canvas.undoFlag(), 2);
    QVERIFY(c.showsBefore());
}

void tst_Undo::redoOffersUndo()
{
    ChangedCanvas c;
    c.canvas.undo();
    static_cast<void>(c.recorder.taken());
    c.canvas.redo();
    QCOMPARE(c.recorder.taken(), QStringList({"canUndo(true)", "canRedo(false)"}));
    QCOMPARE(c.canvas.undoFlag(), 1);
    QVERIFY(c.showsAfter());
}

void tst_Undo::setUndoFlagOffersTheReverse_data()
{
    QTest::addColumn<int>("flag");
    QTest::addColumn<QStringList>("heard");
    QTest::newRow("0 offers nothing") << 0 << QStringList{"canRedo(false)", "canUndo(false)"};
    QTest::newRow("1 offers redo") << 1 << QStringList{"canRedo(true)", "canUndo(false)"};
    QTest::newRow("2 offers undo") << 2 << QStringList{"canRedo(false)", "canUndo(true)"};
    QTest::newRow("3 says nothing") << 3 << QStringList();
    QTest::newRow("-1 says nothing") << -1 << QStringList();
    QTest::newRow("a huge one says nothing") << INT_MAX << QStringList();
}

void tst_Undo::setUndoFlagOffersTheReverse()
{
    QFETCH(const int, flag);
    QFETCH(const QStringList, heard);
    ChangedCanvas c;
    c.canvas.setUndoFlag(flag);
    QCOMPARE(c.recorder.taken(), heard);
    QCOMPARE(c.canvas.undoFlag(), flag);
    QVERIFY(c.showsAfter());
}

void tst_Undo::editorHearsUndoBeforeRedo()
{
    ChangedCanvas c;
    SignalRecorder recorder;
    recorder.watch(&c.editor, &KORVA_EditCanvas::canUndo, "editor");
    recorder.watch(&c.editor, &KORVA_EditCanvas::canRedo, "editor");
    c.canvas.undo();
    c.canvas.setUndoFlag(0);
    QCOMPARE(recorder.taken(), QStringList({"editor.canUndo(false)", "editor.canRedo(true)",
                                            "editor.canRedo(false)", "editor.canUndo(false)"}));
}

// --- What they do to the picture

void tst_Undo::everyModificationOffersUndo()
{
    ChangedCanvas c;
    c.canvas.undo();
    static_cast<void>(c.recorder.taken());
    c.canvas.markModified();
    QCOMPARE(c.canvas.undoFlag(), 1);
    QCOMPARE(c.recorder.taken(), QStringList({"canUndo(true)", "canRedo(false)", "modified()"}));
}

void tst_Undo::undoTwiceBringsBackTheAfterState()
{
    ChangedCanvas c;
    c.canvas.undo();
    QVERIFY(c.showsBefore());
    c.canvas.undo();
    QVERIFY(c.showsAfter());
    QCOMPARE(c.canvas.undoFlag(), 2);
    QCOMPARE(c.recorder.taken().mid(2), QStringList({"canUndo(false)", "canRedo(true)"}));
}

void tst_Undo::redoIsTheSameExchange()
{
    ChangedCanvas c;
    c.canvas.redo();
    QVERIFY(c.showsBefore());
    c.canvas.undo();
    QVERIFY(c.showsAfter());
}

void tst_Undo::undoneStateIsLostWithANewChange()
{
    ChangedCanvas c;
    c.canvas.undo();
    c.canvas.clearCanvas(Qt::red);
    c.canvas.undo();
    QVERIFY(c.showsBefore());
    c.canvas.redo();
    QVERIFY(sameImage(*c.canvas.pixmap(), support::sheet(size, Qt::red)));
}

void tst_Undo::newCanvasUndoesToWhite()
{
    KORVA_Canvas canvas(nullptr, 20, 10);
    canvas.undo();
    QVERIFY(sameImage(*canvas.pixmap(), support::sheet(size)));
}

void tst_Undo::neitherTouchesTheModifiedFlag()
{
    ChangedCanvas c;
    c.canvas.undo();
    c.canvas.redo();
    QVERIFY(!c.canvas.isModified());
    c.canvas.markModified();
    c.canvas.undo();
    c.canvas.redo();
    QVERIFY(c.canvas.isModified());
}

void tst_Undo::typedTextKeepsThePictureButNotTheSignals()
{
    ChangedCanvas c;
    RecordingTool tool;
    fixtures::use(c.canvas, tool);
    tool.setTextKey(true);
    c.canvas.undo();
    QVERIFY(c.showsAfter());
    QCOMPARE(c.canvas.undoFlag(), 2);
    c.canvas.redo();
    QVERIFY(c.showsAfter());
    QCOMPARE(c.canvas.undoFlag(), 1);
    QCOMPARE(c.recorder.taken(),
             QStringList({"canUndo(false)", "canRedo(true)", "canUndo(true)", "canRedo(false)"}));

    tool.setTextKey(false);
    c.canvas.undo();
    QVERIFY(c.showsBefore());
}

void tst_Undo::withoutAToolThePicturesAreExchanged()
{
    ChangedCanvas c;
    QVERIFY(!c.canvas.getCurrentTool());
    c.canvas.undo();
    QVERIFY(c.showsBefore());
    c.canvas.redo();
    QVERIFY(c.showsAfter());
}

void tst_Undo::aToolWithoutTextExchangesThePictures()
{
    ChangedCanvas c;
    RecordingTool tool;
    fixtures::use(c.canvas, tool);
    c.canvas.undo();
    QVERIFY(c.showsBefore());
}

void tst_Undo::undoCommitsAFloatingPieceFirst()
{
    ChangedCanvas c;
    fixtures::setClipboard(support::sheet(QSize(4, 4), Qt::red));
    c.canvas.paste();
    static_cast<void>(c.recorder.taken());
    c.canvas.undo();
    QVERIFY(c.canvas.pasteLabel()->isHidden());
    QCOMPARE(c.recorder.taken(), QStringList({"canUndo(true)", "canRedo(false)", "modified()",
                                              "canUndo(false)", "canRedo(true)"}));
    // The snapshot is taken after the merge: before and after are the same.
    const QImage merged = support::filled(support::sheet(size, Qt::blue), QRect(0, 0, 4, 4), Qt::red);
    QVERIFY(sameImage(*c.canvas.pixmap(), merged));
    c.canvas.undo();
    QVERIFY(sameImage(*c.canvas.pixmap(), merged));
}

void tst_Undo::undoAfterAMergeKeepsThePiece()
{
    ChangedCanvas c;
    fixtures::setClipboard(support::sheet(QSize(4, 4), Qt::red));
    c.canvas.paste();
    c.canvas.mergePastePixmap();
    c.canvas.saveOldPix();
    c.canvas.pixmap()->fill(Qt::green);
    c.canvas.markModified();
    c.canvas.undo();
    QVERIFY(sameImage(*c.canvas.pixmap(),
                      support::filled(support::sheet(size, Qt::blue), QRect(0, 0, 4, 4), Qt::red)));
}

void tst_Undo::snapshotComesBeforeTheChange_data()
{
    using Change = std::function<void(KORVA_Canvas&)>;
    QTest::addColumn<Change>("change");
    QTest::newRow("paste at a place") << Change([](KORVA_Canvas& canvas) { canvas.paste(1, 2); });
    QTest::newRow("paste") << Change([](KORVA_Canvas& canvas) { canvas.paste(); });
    QTest::newRow("clearCanvas") << Change([](KORVA_Canvas& canvas) { canvas.clearCanvas(Qt::red); });
    QTest::newRow("setDepth") << Change([](KORVA_Canvas& canvas) { canvas.setDepth(16); });
    QTest::newRow("resizeImage") << Change([](KORVA_Canvas& canvas) { canvas.resizeImage(5, 5); });
}

void tst_Undo::snapshotComesBeforeTheChange()
{
    QFETCH(const std::function<void(KORVA_Canvas&)>, change);
    ChangedCanvas c;
    fixtures::setClipboard(support::sheet(QSize(4, 4), Qt::red));
    change(c.canvas);
    QVERIFY(c.canvas.isModified());
    QCOMPARE(c.canvas.undoFlag(), 1);
    c.canvas.pasteLabel()->hide(); // what floats is not yet part of the picture
    c.canvas.undo();
    QVERIFY(sameImage(*c.canvas.pixmap(), support::sheet(size, Qt::blue)));
}

void tst_Undo::theScreenFollowsBackOverAResize()
{
    ChangedCanvas c;
    c.canvas.setZoom(200);
    c.canvas.resizeImage(5, 5);
    c.canvas.undo();
    QVERIFY(sameImage(*c.canvas.zoomedPixmap(), support::sheet(2 * size, Qt::blue)));
    QCOMPARE(c.canvas.size(), 2 * size);
}

void tst_Undo::liftingTakesNoSnapshot()
{
    ChangedCanvas c;
    c.canvas.setSelection(QRect(0, 0, 5, 5));
    QCOMPARE(c.recorder.taken(), QStringList());
    QVERIFY(!c.canvas.isModified());
    c.canvas.pasteLabel()->hide();
    c.canvas.undo();
    QVERIFY(c.showsBefore());
    c.canvas.undo();
    QVERIFY(sameImage(*c.canvas.pixmap(),
                      support::filled(support::sheet(size, Qt::blue), QRect(0, 0, 5, 5), Qt::white)));
}

void tst_Undo::undoWorksAtEveryZoom()
{
    ChangedCanvas c;
    for (const int zoom : {37, 50, 150, 333}) {
        c.canvas.setZoom(zoom);
        c.canvas.undo();
        QVERIFY(sameImage(*c.canvas.zoomedPixmap(), support::scaled(mosaic(size), zoom)));
        c.canvas.redo();
        QVERIFY(sameImage(*c.canvas.zoomedPixmap(), support::scaled(support::sheet(size, Qt::blue), zoom)));
    }
}

int main(int argc, char** argv)
{
    return support::run<tst_Undo>(argc, argv);
}

#include "tst_Undo.moc"
