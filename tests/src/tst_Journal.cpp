#include "EditorFixtures.h"

#include "KORVA_Journal.h"
#include "support/Mount.h"
#include "support/PictureFiles.h"

#include <sys/stat.h>

#include <chrono>
#include <csignal>
#include <deque>
#include <iostream>
#include <set>

using support::contents;
using support::Mount;

/// The unsaved drawing in a folder: when it is there, when it is gone, whose it is.
class tst_Journal : public support::TestCase
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void followsTheDrawing();
    void aLongStrokeIsWrittenMeanwhile();

    void flushWritesAtOnce();
    void settleLeavesNothing();
    void savingSettles();
    void openingSettles();
    void failedSaveDoesNot();
    void endLeavesTheUnsaved();
    void endRemovesTheSaved();

    void keptCopies();
    void theNewestTwentyAreKept();

    void adoptFindsWhatWasLeft();
    void adoptFindsTheNewest();
    void adoptWithNothingThere();
    void adoptedGoesByDecision_data();
    void adoptedGoesByDecision();
    void adoptedIsNotLostUndecided();
    void adoptedIsNotLostByDrawing();
    void oldDrawingsAreNotPrunedWhenShelved();
    void leftoversAreRemoved();

    void broughtBack();
    void broughtBackFromAmongEarlier();
    void goneIsNotBroughtBack();

    void twoInOneFolder();
    void twoProcesses();
    void killedAtAnyMoment();

    void onlyTheOwnerMayRead();
    void aFolderThatFails_data();
    void aFolderThatFails();
    void failureIsOverOnceSettled();
    void damagedFiles_data();
    void damagedFiles();
    void theEditorMayGoFirst();
    void theEditorMayOwnIt();

public:
    Q_INVOKABLE int drawAndWait();
    Q_INVOKABLE int drawUntilKilled();

private:
    [[nodiscard]] QString folder() const { return m_temporary->filePath("state/korva"); }
    [[nodiscard]] QStringList files(const QString& pattern = "*") const
    {
        return QDir(folder()).entryList({pattern}, QDir::Files | QDir::Hidden, QDir::Name);
    }
    [[nodiscard]] QStringList living() const { return files("living-*.png"); }
    [[nodiscard]] QStringList earlier() const { return files("earlier-*.png"); }
    [[nodiscard]] QImage livingPicture() const
    {
        return living().size() == 1 ? QImage(folder() + '/' + living().constFirst()) : QImage();
    }
    /// Leaves a drawing behind as a crash does, this long ago.
    void leave(const QColor& color, int seconds = 0, const QString& name = {});

    std::optional<QTemporaryDir> m_temporary;
};

namespace {

constexpr int promised = 2000; // milliseconds
constexpr auto folderVariable = "KORVA_TEST_FOLDER";
constexpr auto nameVariable = "KORVA_TEST_NAME";
constexpr QSize drawingSize(60, 50);

/// Says nothing to anybody.
class SilentPlatform : public UTIL_Platform
{
public:
    void timedMessage(QWidget*, const QString&, const QString&, int) override {}
    void timedInformation(QWidget*, const QString&, const QString&, const QString&, int) override {}
};

struct Editor : KORVA_EditCanvas
{
    Editor() : KORVA_EditCanvas(KORVA_COLOR_16BIT)
    {
        take(support::mosaic(drawingSize));
        clearModified();
    }
    void take(const QImage& image)
    {
        QPixmap picture = QPixmap::fromImage(image);
        setPixmap(&picture);
    }
    /// Something that a person draws: each time something else.
    void draw()
    {
        const int step = m_steps++;
        setColor(QColor::fromHsv((20 + step * 47) % 360, 255, 200));
        stylus.drag({{5 + step % 20, 5}, {5 + step % 20, 40}});
    }
    [[nodiscard]] QImage drawing() const { return snapshot(); }

    support::Gestures stylus{*canvas()};

private:
    int m_steps = 0;
};

/// An editor with its journal.
struct Desk
{
    explicit Desk(const QString& folder) : journal(&editor, folder) {}

    Editor editor;
    KORVA_Journal journal;
};

[[nodiscard]] bool isSame(const QImage& one, const QImage& other)
{
    return support::sameImage(one.convertToFormat(QImage::Format_RGB32),
                              other.convertToFormat(QImage::Format_RGB32));
}

void setTime(const QString& fileName, const QDateTime& time)
{
    QFile file(fileName);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(time, QFileDevice::FileModificationTime));
}

mode_t modeOf(const QString& fileName)
{
    struct stat status = {};
    return stat(QFile::encodeName(fileName).constData(), &status) == 0 ? status.st_mode & 07777 : 0;
}

/// What a clock says that no one sets and all processes share.
qint64 now()
{
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

/// A picture that tells its number, and whether all of it is there.
QImage numbered(int number)
{
    QRandomGenerator random{quint32(number)};
    QImage image(drawingSize, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, random.generate() | 0xff000000);
    image.setPixel(0, 0, QRgb(number) | 0xff000000);
    return image;
}

/// This program's other self, running one of its cases.
class Other
{
public:
    Other(const QString& folder, const QString& name, const char* caseName)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("ASAN_OPTIONS", "detect_leaks=0");
        environment.insert(folderVariable, folder);
        environment.insert(nameVariable, name);
        process.setProcessEnvironment(environment);
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start(QCoreApplication::applicationFilePath(), {"--case", caseName});
    }
    ~Other() { end(); }
    Other(const Other&) = delete;
    Other& operator=(const Other&) = delete;

    void end()
    {
        process.kill();
        process.waitForFinished();
    }
    [[nodiscard]] bool waitForLine()
    {
        constexpr int longTime = 20'000;
        return process.canReadLine() || process.waitForReadyRead(longTime);
    }

    QProcess process;
};

} // namespace

void tst_Journal::init()
{
    TestCase::init();
    m_temporary.emplace();
    UTIL_Platform::install(std::make_unique<SilentPlatform>());
}

void tst_Journal::cleanup()
{
    UTIL_Platform::install(nullptr);
    m_temporary.reset();
}

void tst_Journal::leave(const QColor& color, int seconds, const QString& name)
{
    const QStringList before = living();
    {
        Desk desk(folder());
        desk.editor.setFileName(name);
        desk.editor.take(support::sheet(drawingSize, color));
        desk.editor.canvas()->markModified();
    }
    for (const QString& file : living()) {
        if (!before.contains(file))
            setTime(folder() + '/' + file, QDateTime::currentDateTime().addSecs(-seconds));
    }
    QCOMPARE(living().size(), before.size() + 1);
}

// --- When it is written

namespace {

/// Something that happens to an editor, and whether its drawing is another one then.
struct Happening
{
    const char* name;
    bool isChange;
    std::function<void(Editor&)> what;
    std::function<void(Editor&)> before = {}; ///< done so long before that the journal has forgotten it
};

void typeInto(Editor& editor, const QString& text)
{
    const QList<QAction*> tools = editor.findChild<QPushButton*>("toolButton")->menu()->actions();
    editor.slotSelChangeTool(tools[4]->data().toInt());
    editor.stylus.click({10, 30});
    for (const QChar letter : text)
        editor.stylus.key(Qt::Key_unknown, letter);
}

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

} // namespace

/// All at once, for each has to be waited for.
void tst_Journal::followsTheDrawing()
{
    fixtures::setClipboard(support::sheet({9, 9}, Qt::red));
    std::vector<std::unique_ptr<Desk>> desks;
    const auto folderOf = [this](const Happening& each) { return m_temporary->filePath(each.name); };
    for (const Happening& each : happenings)
        desks.push_back(std::make_unique<Desk>(folderOf(each)));
    for (size_t i = 0; i < desks.size(); ++i) {
        if (happenings[i].before)
            happenings[i].before(desks[i]->editor);
    }
    QTest::qWait(1500);
    const qint64 start = now();
    for (size_t i = 0; i < desks.size(); ++i)
        happenings[i].what(desks[i]->editor);
    const qint64 end = now();

    const auto isThere = [&](size_t i) {
        const QStringList found = QDir(folderOf(happenings[i])).entryList({"living-*.png"});
        return found.size() == 1 &&
               QImage(folderOf(happenings[i]) + '/' + found[0]).convertToFormat(QImage::Format_RGB32) ==
                   desks[i]->editor.drawing().convertToFormat(QImage::Format_RGB32);
    };
    std::set<size_t> missing;
    for (size_t i = 0; i < desks.size(); ++i) {
        if (happenings[i].isChange)
            missing.insert(i);
    }
    while (!missing.empty() && now() < start + promised) {
        QTest::qWait(20);
        std::erase_if(missing, isThere);
    }
    for (const size_t i : missing)
        QFAIL(happenings[i].name);
    QTest::qWait(int(end + promised - now()));
    for (size_t i = 0; i < desks.size(); ++i)
        QVERIFY2(happenings[i].isChange || !QFile::exists(folderOf(happenings[i])), happenings[i].name);
}

void tst_Journal::aLongStrokeIsWrittenMeanwhile()
{
    Desk desk(folder());
    desk.editor.stylus.press({0, 0});
    const qint64 start = now();
    std::deque<std::pair<qint64, QImage>> states{{start, desk.editor.drawing()}};
    int writes = 0;
    QString last;
    for (int step = 1; now() < start + promised + 700; ++step) {
        desk.editor.stylus.move({step * 7 % 60, step * 11 % 50});
        states.emplace_back(now(), desk.editor.drawing());
        QTest::qWait(20);
        // What is on the disk was drawn no longer ago than promised.
        const QImage written = livingPicture().convertToFormat(QImage::Format_RGB32);
        while (!states.empty() && states.front().second.convertToFormat(QImage::Format_RGB32) != written &&
               states.size() > 1 && !written.isNull())
            states.pop_front();
        const qint64 nextState = states.size() > 1 ? states[1].first : now();
        QVERIFY2(now() - nextState <= promised, qPrintable(QString::number(now() - nextState)));
        const QString version =
            written.isNull()
                ? QString()
                : QString::number(
                      QFileInfo(folder() + '/' + living()[0]).lastModified().toMSecsSinceEpoch());
        writes += version != std::exchange(last, version);
    }
    QVERIFY2(writes >= 2, qPrintable(QString::number(writes)));
    QVERIFY2(writes <= 5, qPrintable(QString::number(writes))); // not with every move
}

void tst_Journal::flushWritesAtOnce()
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

// --- When it goes

void tst_Journal::settleLeavesNothing()
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

void tst_Journal::savingSettles()
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

void tst_Journal::openingSettles()
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

void tst_Journal::failedSaveDoesNot()
{
    Desk desk(folder());
    desk.editor.setFileName(m_temporary->filePath("missing/a.png"));
    desk.editor.draw();
    desk.journal.flush();
    desk.editor.slotSave();
    QVERIFY(desk.editor.isModified());
    QVERIFY(isSame(livingPicture(), desk.editor.drawing()));
    QVERIFY(!desk.editor.openNewFilePrivate(0, m_temporary->filePath("missing/b.png")));
    QVERIFY(isSame(livingPicture(), desk.editor.drawing()));
}

void tst_Journal::endLeavesTheUnsaved()
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

void tst_Journal::endRemovesTheSaved()
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

// --- Copies

void tst_Journal::keptCopies()
{
    Desk desk(folder());
    QVERIFY(desk.journal.earlier().isEmpty());
    desk.editor.setFileName(QString::fromUtf8("/photos/it's \xc3\xa4 \xe6\xbc\xa2.png"));
    QPixmap stamp = QPixmap::fromImage(support::sheet({9, 9}, Qt::red));
    desk.editor.insertStamp(stamp); // floats
    const QDateTime before = QDateTime::currentDateTime().addSecs(-1);
    QVERIFY(desk.journal.keep());
    QVERIFY(!desk.editor.canvas()->pasteLabel()->isHidden());
    QCOMPARE(living(), QStringList());

    const QList<KORVA_Journal::Entry> entries = desk.journal.earlier();
    QCOMPARE(entries.size(), 1);
    QCOMPARE(entries[0].pictureName, QString::fromUtf8("/photos/it's \xc3\xa4 \xe6\xbc\xa2.png"));
    QCOMPARE(entries[0].size, drawingSize);
    QVERIFY(entries[0].time >= before && entries[0].time <= QDateTime::currentDateTime());
    QCOMPARE(entries[0].file, folder() + '/' + earlier().constFirst());
    QVERIFY(isSame(KORVA_Journal::picture(entries[0]), desk.editor.drawing()));

    desk.editor.setFileName({});
    QVERIFY(desk.journal.keep());
    QCOMPARE(desk.journal.earlier().size(), 2);
    QCOMPARE(desk.journal.earlier()[0].pictureName, QString());
}

void tst_Journal::theNewestTwentyAreKept()
{
    constexpr int copies = 25;
    Desk desk(folder());
    for (int i = 0; i < copies; ++i) {
        desk.editor.take(numbered(i));
        QVERIFY(desk.journal.keep());
        QCOMPARE(earlier().size(), qMin(i + 1, KORVA_Journal::mostEarlier));
    }
    QCOMPARE(KORVA_Journal::mostEarlier, 20);
    const QList<KORVA_Journal::Entry> entries = desk.journal.earlier();
    for (int i = 0; i < entries.size(); ++i)
        QVERIFY(isSame(KORVA_Journal::picture(entries[i]), numbered(copies - 1 - i)));
}

// --- What a program left behind

void tst_Journal::adoptFindsWhatWasLeft()
{
    constexpr int age = 100; // seconds
    leave(Qt::red, age, "/photos/a b.png");
    Desk desk(folder());
    const QImage own = desk.editor.drawing();
    const auto found = desk.journal.adopt();
    QVERIFY(found);
    QCOMPARE(found->pictureName, "/photos/a b.png");
    QCOMPARE(found->size, drawingSize);
    QCOMPARE(found->file, folder() + '/' + living().constFirst());
    QVERIFY(qAbs(found->time.secsTo(QDateTime::currentDateTime()) - age) <= 2);
    QVERIFY(isSame(KORVA_Journal::picture(*found), support::sheet(drawingSize, Qt::red)));
    QVERIFY(isSame(desk.editor.drawing(), own));
    QVERIFY(!desk.editor.isModified());

    QVERIFY(!desk.journal.adopt()); // there is no second one
    Desk other(folder());
    QVERIFY(!other.journal.adopt()); // and this one is taken
}

void tst_Journal::adoptFindsTheNewest()
{
    leave(Qt::green, 50);
    leave(Qt::blue, 500);
    leave(Qt::red, 5);
    leave(Qt::yellow, 5000);
    Desk desk(folder());
    const auto found = desk.journal.adopt();
    QVERIFY(found);
    QVERIFY(isSame(KORVA_Journal::picture(*found), support::sheet(drawingSize, Qt::red)));
    QCOMPARE(living().size(), 1);
    const QList<KORVA_Journal::Entry> entries = desk.journal.earlier();
    QCOMPARE(entries.size(), 3);
    const QColor expected[] = {Qt::green, Qt::blue, Qt::yellow};
    for (int i = 0; i < 3; ++i) {
        QVERIFY(
            isSame(KORVA_Journal::picture(entries[i]), support::sheet(drawingSize, expected[size_t(i)])));
    }
}

void tst_Journal::adoptWithNothingThere()
{
    Desk desk(folder());
    QVERIFY(!desk.journal.adopt());
    QVERIFY(!QFile::exists(folder()));
    desk.editor.draw();
    desk.journal.flush();
    leave(Qt::red);
    QVERIFY(!desk.journal.adopt()); // it has a drawing
    desk.journal.settle();
    QVERIFY(desk.journal.adopt());
}

void tst_Journal::adoptedGoesByDecision_data()
{
    QTest::addColumn<QString>("decision");
    QTest::addColumn<int>("livingThen");
    QTest::addColumn<int>("earlierThen");
    QTest::newRow("brought back") << "bring back" << 1 << 0;
    QTest::newRow("brought back and saved") << "bring back, settle" << 0 << 0;
    QTest::newRow("shelved") << "shelve" << 0 << 1;
    QTest::newRow("thrown away") << "settle" << 0 << 0;
    QTest::newRow("shelved twice") << "shelve, shelve" << 0 << 1;
    QTest::newRow("brought back, then shelved") << "bring back, shelve" << 1 << 0;
}

void tst_Journal::adoptedGoesByDecision()
{
    QFETCH(const QString, decision);
    QFETCH(const int, livingThen);
    QFETCH(const int, earlierThen);
    leave(Qt::red);
    Desk desk(folder());
    const auto found = desk.journal.adopt();
    QVERIFY(found);
    for (const QString& step : decision.split(", ")) {
        if (step == "bring back")
            QVERIFY(desk.journal.bringBack(*found));
        else if (step == "shelve")
            desk.journal.shelve();
        else
            desk.journal.settle();
    }
    QCOMPARE(living().size(), livingThen);
    QCOMPARE(earlier().size(), earlierThen);
    QCOMPARE(files().size(), 2 * livingThen + earlierThen); // its lock is with it
    for (const QString& file : living() + earlier())
        QVERIFY(isSame(QImage(folder() + '/' + file), support::sheet(drawingSize, Qt::red)));

    desk.editor.draw(); // and it goes on
    QVERIFY(desk.journal.flush());
    QCOMPARE(earlier().size(), earlierThen);
    QVERIFY(isSame(livingPicture(), desk.editor.drawing()));
}

void tst_Journal::adoptedIsNotLostUndecided()
{
    const fixtures::PictureFolder photos;
    const QString name = photos.written("a.png", fixtures::flag());
    leave(Qt::red);
    {
        Desk desk(folder());
        QVERIFY(desk.journal.adopt());
        QVERIFY(desk.editor.openNewFilePrivate(0, name)); // that settles nothing but the editor's drawing
        QVERIFY(desk.journal.flush());
        QCOMPARE(living().size() + earlier().size(), 1);
    }
    QCOMPARE(living().size(), 1);
    Desk next(folder());
    QVERIFY(next.journal.adopt());
}

void tst_Journal::adoptedIsNotLostByDrawing()
{
    leave(Qt::red);
    QImage drawing;
    {
        Desk desk(folder());
        QVERIFY(desk.journal.adopt());
        desk.editor.draw();
        drawing = desk.editor.drawing();
    }
    QVERIFY(isSame(livingPicture(), drawing));
    QCOMPARE(earlier().size(), 1);
    QVERIFY(isSame(QImage(folder() + '/' + earlier()[0]), support::sheet(drawingSize, Qt::red)));
}

void tst_Journal::oldDrawingsAreNotPrunedWhenShelved()
{
    leave(Qt::red, 5000);
    Desk desk(folder());
    const auto found = desk.journal.adopt();
    QVERIFY(found);
    Desk other(folder()); // another program keeps many meanwhile
    for (int i = 0; i < KORVA_Journal::mostEarlier; ++i)
        QVERIFY(other.journal.keep());
    desk.journal.shelve();
    QCOMPARE(earlier().size(), KORVA_Journal::mostEarlier);
    QVERIFY(isSame(KORVA_Journal::picture(desk.journal.earlier().constFirst()),
                   support::sheet(drawingSize, Qt::red)));
}

void tst_Journal::leftoversAreRemoved()
{
    leave(Qt::red);
    const QString fresh = folder() + "/living-1-2.png.AbCdEf";
    const QString old = folder() + "/earlier-1-2.png.AbCdEf";
    const QString lock = folder() + "/living-1-2.lock";
    const QString foreign = folder() + "/notes.txt";
    for (const QString& file : {fresh, old, lock, foreign})
        support::write(file, "half of something");
    setTime(old, QDateTime::currentDateTime().addSecs(-3600));
    setTime(foreign, QDateTime::currentDateTime().addSecs(-3600));
    Desk desk(folder());
    QVERIFY(desk.journal.adopt());
    QVERIFY(QFile::exists(fresh)); // somebody may be writing it
    QVERIFY(!QFile::exists(old));
    QVERIFY(!QFile::exists(lock));
    QVERIFY(QFile::exists(foreign));
    QCOMPARE(living().size(), 1);
}

// --- Bringing back

void tst_Journal::broughtBack()
{
    leave(Qt::red, 0, "/photos/a.png");
    Desk desk(folder());
    desk.editor.setFileName("/photos/other.png");
    desk.editor.draw();
    desk.editor.clearModified();
    desk.journal.settle();
    typeInto(desk.editor, "typed");
    desk.editor.clearModified();
    desk.journal.settle();
    support::SignalRecorder log;
    log.watch(&desk.editor, &KORVA_EditCanvas::canUndo);
    log.watch(&desk.editor, &KORVA_EditCanvas::canRedo);
    const auto found = desk.journal.adopt();
    QVERIFY(found);
    QVERIFY(desk.journal.bringBack(*found));
    QVERIFY(isSame(desk.editor.drawing(), support::sheet(drawingSize, Qt::red))); // and no text
    QCOMPARE(desk.editor.fileName(), QString());
    QVERIFY(desk.editor.isModified());
    QVERIFY(desk.editor.hasChanges());
    QCOMPARE(desk.editor.canvas()->undoFlag(), 0);
    const QStringList lines = log.taken();
    QVERIFY(lines.lastIndexOf("canUndo(false)") > lines.lastIndexOf("canUndo(true)"));
    QVERIFY(lines.lastIndexOf("canRedo(false)") > lines.lastIndexOf("canRedo(true)"));
    QCOMPARE(living().size(), 1); // still safe
    QVERIFY(!Desk(folder()).journal.adopt());
}

void tst_Journal::broughtBackFromAmongEarlier()
{
    Desk desk(folder());
    desk.editor.take(numbered(1));
    QVERIFY(desk.journal.keep());
    desk.editor.take(numbered(2));
    desk.editor.canvas()->markModified();
    QVERIFY(desk.journal.flush());
    const auto entry = desk.journal.earlier().constFirst();
    QVERIFY(desk.journal.bringBack(entry));
    QVERIFY(isSame(desk.editor.drawing(), numbered(1)));
    QVERIFY(desk.editor.isModified());
    QVERIFY(isSame(livingPicture(), numbered(1))); // on the disk at once
    QVERIFY(isSame(KORVA_Journal::picture(entry), numbered(1)));
}

void tst_Journal::goneIsNotBroughtBack()
{
    Desk desk(folder());
    QVERIFY(desk.journal.keep());
    const auto entry = desk.journal.earlier().constFirst();
    QVERIFY(QFile::remove(entry.file));
    desk.editor.setFileName("/photos/a.png");
    const QImage drawing = desk.editor.drawing();
    QVERIFY(!desk.journal.bringBack(entry));
    QVERIFY(KORVA_Journal::picture(entry).isNull());
    QVERIFY(isSame(desk.editor.drawing(), drawing));
    QCOMPARE(desk.editor.fileName(), "/photos/a.png");
    QVERIFY(!desk.editor.isModified());
    QVERIFY(desk.journal.earlier().isEmpty());
}

// --- Several at once

void tst_Journal::twoInOneFolder()
{
    Desk one(folder());
    Desk other(folder());
    one.editor.draw();
    other.editor.take(numbered(1));
    other.editor.canvas()->markModified();
    QVERIFY(one.journal.flush() && other.journal.flush());
    QCOMPARE(living().size(), 2);
    {
        Desk third(folder());
        QVERIFY(!third.journal.adopt());
        QVERIFY(third.journal.earlier().isEmpty());
    }
    QCOMPARE(living().size(), 2);
    one.journal.settle();
    QVERIFY(!one.journal.adopt());
    QVERIFY(isSame(livingPicture(), numbered(1)));
}

int tst_Journal::drawAndWait()
{
    Desk desk(qEnvironmentVariable(folderVariable));
    desk.editor.setFileName(qEnvironmentVariable(nameVariable));
    desk.editor.take(numbered(1));
    desk.editor.canvas()->markModified();
    std::cout << (desk.journal.flush() ? "written" : "failed") << std::endl;
    return QCoreApplication::exec();
}

void tst_Journal::twoProcesses()
{
    Other other(folder(), "/photos/other.png", "drawAndWait");
    QVERIFY(other.waitForLine());
    QCOMPARE(other.process.readLine(), QByteArray("written\n"));
    QVERIFY(isSame(livingPicture(), numbered(1)));
    Desk desk(folder());
    QVERIFY(!desk.journal.adopt());
    QVERIFY(isSame(livingPicture(), numbered(1)));
    other.end();
    const auto found = desk.journal.adopt();
    QVERIFY(found);
    QCOMPARE(found->pictureName, "/photos/other.png");
    QVERIFY(isSame(KORVA_Journal::picture(*found), numbered(1)));
}

/// Tells each picture's number, and when it was in the editor.
int tst_Journal::drawUntilKilled()
{
    constexpr int pause = 15;
    Desk desk(qEnvironmentVariable(folderVariable));
    desk.editor.setFileName(qEnvironmentVariable(nameVariable));
    int number = 0;
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&] {
        desk.editor.take(numbered(++number));
        desk.editor.canvas()->markModified();
        std::cout << number << ' ' << now() << std::endl;
    });
    timer.start(pause);
    return QCoreApplication::exec();
}

void tst_Journal::killedAtAnyMoment()
{
    constexpr int programs = 8;
    constexpr int longestLife = 2600;       // milliseconds
    const Mount disk(folder(), "size=16m"); // in memory, so that nothing waits for a real one
    QRandomGenerator random(5);
    int found = 0;
    std::vector<std::unique_ptr<Other>> others;
    for (int i = 0; i < programs; ++i) {
        others.push_back(
            std::make_unique<Other>(folder(), QString("/photos/%1.png").arg(i), "drawUntilKilled"));
    }
    for (const auto& other : others)
        QVERIFY(other->waitForLine());
    std::vector<std::pair<qint64, int>> deaths;
    const qint64 start = now();
    for (int i = 0; i < programs; ++i)
        deaths.emplace_back(start + random.bounded(longestLife), i);
    std::sort(deaths.begin(), deaths.end());
    std::vector<qint64> deathOf(programs);
    for (const auto& [time, i] : deaths) {
        QTest::qWait(int(qMax<qint64>(0, time - now())));
        deathOf[size_t(i)] = now();
        others[size_t(i)]->end();
    }

    QMap<QString, QImage> left;
    for (const QString& file : living()) {
        const QImage picture(folder() + '/' + file);
        QVERIFY2(!picture.isNull(), qPrintable(file));
        left[QImageReader(folder() + '/' + file).text("PictureName")] = picture;
    }
    for (int i = 0; i < programs; ++i) {
        const QString name = QString("/photos/%1.png").arg(i);
        const int number = left.contains(name) ? int(left[name].pixel(0, 0) & 0xffffff) : 0;
        if (left.contains(name))
            QVERIFY(isSame(left[name], numbered(number)));
        found += left.contains(name);
        // The first picture that is missing was no older than promised.
        QProcess& process = others[size_t(i)]->process;
        for (QByteArray line = process.readLine(); line.endsWith('\n'); line = process.readLine()) {
            const QList<QByteArray> words = line.trimmed().split(' ');
            if (words[0].toInt() <= number)
                continue;
            const qint64 age = deathOf[size_t(i)] - words[1].toLongLong();
            QVERIFY2(age <= promised, qPrintable(QString("%1 ms").arg(age)));
            break;
        }
    }
    // And all of them are found.
    {
        Desk desk(folder());
        const qsizetype before = living().size() + earlier().size();
        QCOMPARE(bool(desk.journal.adopt()), !left.isEmpty());
        QCOMPARE(living().size() + earlier().size(), before);
        desk.journal.shelve();
    }
    QCOMPARE(living(), QStringList());
    QVERIFY2(found > programs / 2, qPrintable(QString::number(found)));
}

// --- The folder

void tst_Journal::onlyTheOwnerMayRead()
{
    const mode_t before = umask(0);
    Desk desk(folder());
    desk.editor.draw();
    const bool isWritten = desk.journal.flush() && desk.journal.keep();
    umask(before);
    QVERIFY(isWritten);
    QCOMPARE(modeOf(folder()), mode_t(0700));
    for (const QString& file : living() + earlier())
        QCOMPARE(modeOf(folder() + '/' + file), mode_t(0600));
    QCOMPARE(desk.journal.folder(), folder());
}

void tst_Journal::aFolderThatFails_data()
{
    QTest::addColumn<QString>("fault");
    QTest::newRow("a file is in its place") << "file";
    QTest::newRow("a file is in the way") << "file above";
    QTest::newRow("on a read-only disk") << "read-only";
    QTest::newRow("on a full disk") << "full";
}

void tst_Journal::aFolderThatFails()
{
    QFETCH(const QString, fault);
    std::optional<Mount> disk;
    const QString blocking = fault == "file above" ? m_temporary->filePath("state") : folder();
    const QString filler = m_temporary->filePath("disk/filler");
    const QString place = fault.startsWith("file") ? folder() : m_temporary->filePath("disk");
    if (fault.startsWith("file")) {
        QVERIFY(QDir().mkpath(QFileInfo(blocking).path()));
        support::write(blocking, "in the way");
    } else {
        disk.emplace(place, "size=64k");
        if (!disk->isThere())
            QSKIP("mounting is not permitted here");
    }
    QStringList failures;
    Desk desk(place);
    connect(&desk.journal, &KORVA_Journal::failed, this, [&](const QString& why) { failures << why; });
    const auto livingIn = [&] { return QDir(place).entryInfoList({"living-*.png"}, QDir::Files); };
    QImage written;
    if (disk) { // it begins well
        desk.editor.take(numbered(1));
        desk.editor.canvas()->markModified();
        QVERIFY(desk.journal.flush());
        written = desk.editor.drawing();
        if (fault == "full") {
            QFile file(filler);
            QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
            while (file.write(QByteArray(1024, 'x')) == 1024) {
            }
        } else {
            QVERIFY(disk->setReadOnly());
        }
    }

    for (int i = 0; i < 3; ++i) {
        desk.editor.take(numbered(2 + i));
        desk.editor.canvas()->markModified();
        QVERIFY(!desk.journal.flush());
    }
    QVERIFY(!desk.journal.keep());
    QCOMPARE(failures.size(), 1); // told once
    QVERIFY(!failures[0].isEmpty());
    QVERIFY(desk.editor.isModified());
    if (disk) { // what was there is whole
        QCOMPARE(livingIn().size(), 1);
        QVERIFY(isSame(QImage(livingIn()[0].filePath()), written));
    }
    if (fault == "read-only")
        return;

    QVERIFY(QFile::remove(disk ? filler : blocking)); // better again
    QVERIFY(desk.journal.flush());
    QCOMPARE(failures.size(), 1);
    QCOMPARE(livingIn().size(), 1);
    QVERIFY(isSame(QImage(livingIn()[0].filePath()), desk.editor.drawing()));
    QVERIFY(desk.journal.keep());
    QCOMPARE(desk.journal.earlier().size(), 1);

    QVERIFY(QDir(place).removeRecursively() || disk); // and worse once more
    if (disk)
        return;
    support::write(blocking == place ? place : blocking + ".x", "in the way");
    if (blocking != place)
        return;
    desk.editor.draw();
    QVERIFY(!desk.journal.flush());
    QCOMPARE(failures.size(), 2);
}

void tst_Journal::failureIsOverOnceSettled()
{
    QVERIFY(QDir().mkpath(QFileInfo(folder()).path()));
    support::write(folder(), "in the way");
    Desk desk(folder());
    desk.editor.draw();
    QVERIFY(!desk.journal.flush());
    desk.editor.clearModified(); // saved elsewhere
    desk.journal.settle();
    QVERIFY(desk.journal.flush()); // there is nothing that could be lost
}

void tst_Journal::damagedFiles_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QBuffer buffer;
    QVERIFY(numbered(1).save(&buffer, "PNG"));
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("words") << QByteArray("These are words.");
    QTest::newRow("cut off in the header") << buffer.data().first(20);
    QTest::newRow("cut off") << buffer.data().first(buffer.data().size() / 2);
}

void tst_Journal::damagedFiles()
{
    QFETCH(const QByteArray, bytes);
    leave(Qt::red, 100);
    support::write(folder() + "/living-20990101-000000-000-1.png", bytes);
    support::write(folder() + "/earlier-20990101-000000-000-1.png", bytes);
    Desk desk(folder());
    const auto found = desk.journal.adopt();
    QVERIFY(found); // the newest that is whole
    QVERIFY(desk.journal.bringBack(*found));
    QVERIFY(isSame(desk.editor.drawing(), support::sheet(drawingSize, Qt::red)));
    for (const KORVA_Journal::Entry& entry : desk.journal.earlier()) {
        QVERIFY(!desk.journal.bringBack(entry));
        QVERIFY(isSame(desk.editor.drawing(), support::sheet(drawingSize, Qt::red)));
    }
    QVERIFY(desk.journal.keep());
    QVERIFY(desk.journal.flush());
    QCOMPARE(living().size(), 1);
}

// --- Who goes first

void tst_Journal::theEditorMayGoFirst()
{
    auto editor = std::make_unique<Editor>();
    auto journal = std::make_unique<KORVA_Journal>(editor.get(), folder());
    editor->draw();
    QVERIFY(journal->flush());
    const QImage drawing = editor->drawing();
    editor->draw(); // its time is running
    editor.reset();
    QTest::qWait(1300);
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

void tst_Journal::theEditorMayOwnIt()
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
    Mount::allow();
    return support::run<tst_Journal>(argc, argv);
}

#include "tst_Journal.moc"
