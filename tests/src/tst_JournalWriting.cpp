#include "JournalFixtures.h"

#include "support/EventLoop.h"

#include <deque>

using fixtures::Desk;
using fixtures::Editor;
using fixtures::isSame;
using fixtures::promised;
using fixtures::typeInto;
using support::comesWithoutEvents;
using support::strike;

/// When the unsaved drawing is on the disk, and when it is gone.
class tst_JournalWriting : public fixtures::JournalTest
{
    Q_OBJECT

private slots:
    void followsTheDrawing();
    void aLongStrokeIsWrittenMeanwhile();
    void flushWritesAtOnce();

    void settleLeavesNothing();
    void savingSettles();
    void openingSettles();
    void failedSaveDoesNot();
    void endLeavesTheUnsaved();
    void endRemovesTheSaved();

    void theEditorMayGoFirst();
    void theEditorMayOwnIt();
};

namespace {

/// Something that happens to an editor, and whether its drawing is another one then.
struct Happening
{
    const char* name;
    bool isChange;
    std::function<void(Editor&)> what;
    std::function<void(Editor&)> before = {}; ///< done so long before that the journal has forgotten it
};

void lift(Editor& editor)
{
    const QList<QAction*> tools = editor.findChild<QPushButton*>("toolButton")->menu()->actions();
    editor.slotSelChangeTool(tools[0]->data().toInt());
    editor.stylus.drag({{5, 5}, {50, 40}});
}

void dragPiece(Editor& editor, QPoint from, QPoint distance)
{
    const QPoint at = editor.canvas()->pasteLabel()->pos() + from;
    editor.stylus.hover(at);
    editor.stylus.drag({at, at + distance});
}

const Happening happenings[] = {
    {"stroke", true, [](Editor& editor) { editor.draw(); }},
    {"stroke without its end", true,
     [](Editor& editor) {
         editor.stylus.press({5, 5});
         editor.stylus.move({20, 30});
     }},
    {"undo", true,
     [](Editor& editor) {
         editor.draw();
         editor.undo();
         editor.redo();
     }},
    {"moved piece", true,
     [](Editor& editor) {
         dragPiece(editor, {20, 15}, {5, 4});
     },
     lift},
    {"stretched piece", true,
     [](Editor& editor) {
         dragPiece(editor, {43, 33}, {-9, -9});
     },
     lift},
    {"turned piece", true,
     [](Editor& editor) {
         dragPiece(editor, {43, 2}, {0, 9});
     },
     lift},
    {"removed piece", true, [](Editor& editor) { editor.deleteSelection(); }, lift},
    {"stamp", true,
     [](Editor& editor) {
         QPixmap stamp = QPixmap::fromImage(support::sheet({9, 9}, Qt::red));
         editor.insertStamp(stamp);
     }},
    {"pasted into", true, [](Editor& editor) { editor.paste(3, 4); }},
    {"typed text", true, [](Editor& editor) { typeInto(editor, "Wa"); }},
    {"deleted letter", true, [](Editor& editor) { editor.stylus.key(Qt::Key_Backspace, "\b"); },
     [](Editor& editor) { typeInto(editor, "Wa"); }},
    {"text of an input method", true,
     [](Editor& editor) {
         QInputMethodEvent event;
         event.setCommitString("WW");
         QCoreApplication::sendEvent(editor.canvas(), &event);
     },
     [](Editor& editor) { typeInto(editor, {}); }},
    {"cleared", true, [](Editor& editor) { editor.clearCanvas(); }},
    {"other size", true, [](Editor& editor) { editor.setCanvasSize(30, 20); }},
    {"picture of the host's", true,
     [](Editor& editor) {
         editor.take(support::mosaic({20, 20}));
         editor.canvas()->markModified();
     }},

    {"nothing", false, [](Editor&) {}},
    {"hovering", false,
     [](Editor& editor) {
         editor.stylus.hover({9, 9});
     }},
    {"another tool", false, [](Editor& editor) { typeInto(editor, {}); }},
    {"another zoom", false, [](Editor& editor) { editor.slotSelZoomRate(3); }},
    {"lifted piece where it was", false, [](Editor& editor) { lift(editor); }},
    {"key that is none of ours", false, [](Editor& editor) { editor.stylus.key(Qt::Key_F5); }},
    {"picture of the host's, as saved", false,
     [](Editor& editor) {
         editor.take(support::mosaic({20, 20}));
         editor.clearModified();
     }},
};

constexpr int patience = 30'000; // ms

QImage inRgb(const QImage& image)
{
    return image.convertToFormat(QImage::Format_RGB32);
}

} // namespace

/// All at once, for each has to be waited for. Judged by the order of events, which no load changes: what
/// is on its way to the disk when a clock of the same event loop strikes was handed over in time.
void tst_JournalWriting::followsTheDrawing()
{
    fixtures::setClipboard(support::sheet({9, 9}, Qt::red));
    std::vector<std::unique_ptr<Desk>> desks;
    const auto folderOf = [this](const Happening& each) { return path(each.name); };
    for (const Happening& each : happenings)
        desks.push_back(std::make_unique<Desk>(folderOf(each)));
    for (size_t i = 0; i < desks.size(); ++i) {
        if (happenings[i].before)
            happenings[i].before(desks[i]->editor);
    }
    strike(1500);
    for (size_t i = 0; i < desks.size(); ++i)
        happenings[i].what(desks[i]->editor);
    strike(promised);

    for (size_t i = 0; i < desks.size(); ++i) {
        const QString folder = folderOf(happenings[i]);
        const auto isThere = [&] {
            const QStringList found = QDir(folder).entryList({"living-*.png"});
            return found.size() == 1 &&
                   inRgb(QImage(folder + '/' + found[0])) == inRgb(desks[i]->editor.drawing());
        };
        if (happenings[i].isChange)
            QVERIFY2(comesWithoutEvents(isThere), happenings[i].name);
        else
            QVERIFY2(!QFile::exists(folder), happenings[i].name);
    }
}

void tst_JournalWriting::aLongStrokeIsWrittenMeanwhile()
{
    constexpr int leastPause = 900; // milliseconds, between two writes
    Desk desk(folder());
    desk.editor.stylus.press({0, 0});
    std::deque<QImage> states{inRgb(desk.editor.drawing())};
    int steps = 0;
    int writes = 0;
    QTimer stylus;
    stylus.callOnTimeout([&] {
        ++steps;
        desk.editor.stylus.move({steps * 7 % 60, steps * 11 % 50});
        states.push_back(inRgb(desk.editor.drawing()));
        const QImage written = inRgb(livingPicture());
        if (states.empty() || written.isNull() || written == states.front())
            return;
        while (!states.empty() && states.front() != written) // which was drawn since the one before
            states.pop_front();
        ++writes;
    });
    QElapsedTimer running;
    running.start();
    stylus.start(20);
    strike(promised);
    QVERIFY(comesWithoutEvents([this] { return !living().isEmpty(); })); // the first, in time
    const int before = writes;
    QTRY_VERIFY_WITH_TIMEOUT(writes > before && writes > 1, patience); // and it goes on
    QVERIFY(!states.empty());
    QCOMPARE_LE(writes, running.elapsed() / leastPause + 1); // not with every move
}

void tst_JournalWriting::flushWritesAtOnce()
{
    Desk desk(folder());
    QVERIFY(desk.journal.flush());
    QVERIFY(!QFile::exists(folder())); // there was nothing to write
    for (int i = 0; i < 3; ++i) {
        desk.editor.draw();
        QVERIFY(desk.journal.flush());
        QVERIFY(isSame(livingPicture(), desk.editor.drawing()));
    }
    QVERIFY(desk.editor.isModified()); // it is no save
}

void tst_JournalWriting::settleLeavesNothing()
{
    Desk desk(folder());
    desk.editor.draw();
    desk.journal.flush();
    QCOMPARE(living().size(), 1);
    desk.journal.settle();
    QCOMPARE(files(), QStringList());
    QVERIFY(desk.journal.flush()); // the same drawing is not written again
    QCOMPARE(files(), QStringList());
    desk.editor.draw();
    desk.journal.flush();
    QVERIFY(isSame(livingPicture(), desk.editor.drawing()));
}

void tst_JournalWriting::savingSettles()
{
    const fixtures::PictureFolder photos;
    Desk desk(folder());
    desk.editor.setFileName(photos.file("a.png"));
    desk.editor.draw();
    desk.journal.flush();
    QCOMPARE(living().size(), 1);
    desk.editor.slotSave();
    QVERIFY(!desk.editor.isModified());
    QCOMPARE(files(), QStringList());
}

void tst_JournalWriting::openingSettles()
{
    const fixtures::PictureFolder photos;
    const QString name = photos.written("a.png", fixtures::flag());
    Desk desk(folder());
    desk.editor.draw();
    desk.journal.flush();
    QVERIFY(desk.editor.openNewFilePrivate(0, name));
    QCOMPARE(files(), QStringList());
    desk.journal.flush();
    QCOMPARE(files(), QStringList());
}

void tst_JournalWriting::failedSaveDoesNot()
{
    Desk desk(folder());
    desk.editor.setFileName(path("missing/a.png"));
    desk.editor.draw();
    desk.journal.flush();
    desk.editor.slotSave();
    QVERIFY(desk.editor.isModified());
    QVERIFY(isSame(livingPicture(), desk.editor.drawing()));
    QVERIFY(!desk.editor.openNewFilePrivate(0, path("missing/b.png")));
    QVERIFY(isSame(livingPicture(), desk.editor.drawing()));
}

void tst_JournalWriting::endLeavesTheUnsaved()
{
    QImage drawing;
    {
        Desk desk(folder());
        desk.editor.draw();
        desk.journal.flush();
        desk.editor.draw(); // a moment before
        drawing = desk.editor.drawing();
    }
    QVERIFY(isSame(livingPicture(), drawing));
}

void tst_JournalWriting::endRemovesTheSaved()
{
    {
        Desk desk(folder());
        desk.editor.draw();
        desk.journal.flush();
        QCOMPARE(living().size(), 1);
        desk.editor.clearModified(); // the host saved it and did not say so
    }
    QCOMPARE(files(), QStringList());
}

void tst_JournalWriting::theEditorMayGoFirst()
{
    auto editor = std::make_unique<Editor>();
    auto journal = std::make_unique<KORVA_Journal>(editor.get(), folder());
    editor->draw();
    QVERIFY(journal->flush());
    const QImage drawing = editor->drawing();
    editor->draw(); // its time is running
    editor.reset();
    strike(1300);
    QVERIFY(journal->flush());
    journal->settle(); // which settles what is there
    QCOMPARE(files(), QStringList());

    editor = std::make_unique<Editor>();
    journal = std::make_unique<KORVA_Journal>(editor.get(), folder());
    editor->draw();
    QVERIFY(journal->flush());
    editor.reset();
    QVERIFY(!journal->adopt());
    journal.reset();
    QVERIFY(isSame(livingPicture(), drawing));
    Desk next(folder());
    QVERIFY(next.journal.adopt());
}

void tst_JournalWriting::theEditorMayOwnIt()
{
    QImage drawing;
    {
        Editor editor;
        auto* journal = new KORVA_Journal(&editor, folder(), &editor);
        editor.draw();
        QVERIFY(journal->flush());
        drawing = editor.drawing();
        editor.draw();
    }
    QVERIFY(isSame(livingPicture(), drawing));
    Desk next(folder());
    QVERIFY(next.journal.adopt());
}

int main(int argc, char** argv)
{
    return support::run<tst_JournalWriting>(argc, argv);
}

#include "tst_JournalWriting.moc"
