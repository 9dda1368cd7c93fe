#include "EditorFixtures.h"

#include "support/PictureFiles.h"

using fixtures::EditorDesk;
using fixtures::PictureFolder;
using support::contents;

/// sourceSize() and isReduced(): what the file had that the drawing has not, and for how long.
class tst_SourceSize : public support::TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();

    void opened_data();
    void opened();
    void newDrawing();

    void savingUnderTheNameEndsIt();
    void savingElsewhereDoesNot();
    void failedSaveChangesNothing();
    void anotherName();
    void newCanvas();
    void deleted();
    void stampChangesNothing();
    void refusedOpenChangesNothing();
    void refusedBufferChangesNothing();
    void theNextPictureCounts();

private:
    QTemporaryDir m_pictures;
};

namespace {

constexpr int openAction = 0;
constexpr int stampAction = 3;

/// The file written by ImageMagick, and what is expected of it.
struct Source
{
    /// Eight bits a pixel that a JPEG file gives up for sixteen are kept where its data comes in memory.
    enum Buffer { AsFile, Whole };

    const char* row;
    const char* file;
    const char* making; ///< convert's arguments before the file name
    QSize size;
    bool isReduced;
    Buffer buffer = AsFile;
};

const Source sources[] = {
    {"PNG of exact colours",
     "a.png",
     "-size 40x30 xc:blue -fill yellow -draw 'point 3,3' PNG24:",
     {40, 30},
     false},
    {"PNG of 24-bit colours",
     "a.png",
     "-size 40x30 xc:blue -fill #010203 -draw 'point 3,3' PNG24:",
     {40, 30},
     true},
    {"PNG of 16-bit channels", "a.png", "-size 40x30 -depth 16 xc:#123456789abc PNG48:", {40, 30}, true},
    {"PNG of 16-bit channels that needs none",
     "a.png",
     "-size 40x30 -depth 16 xc:#0000ffff0000 PNG48:",
     {40, 30},
     false},
    {"PNG with a transparent pixel",
     "a.png",
     "-size 40x30 xc:blue -alpha set -region 1x1+5+5 -channel A -evaluate set 0 PNG32:",
     {40, 30},
     true},
    {"PNG with an alpha channel that hides nothing",
     "a.png",
     "-size 40x30 xc:blue -alpha set PNG32:",
     {40, 30},
     false},
    {"PNG with a palette",
     "a.png",
     "-size 40x30 gradient:#010203-#f0e0d0 +dither -colors 99 PNG8:",
     {40, 30},
     false},
    {"PNG with a transparent palette colour",
     "a.png",
     "-size 40x30 xc:blue -fill red -draw 'rectangle 3,3 9,9' -transparent red PNG8:",
     {40, 30},
     true},
    {"grey PNG", "a.png", "-size 40x30 gradient: -depth 8 -define png:color-type=0 PNG:", {40, 30}, false},
    {"grey PNG of 16 bits",
     "a.png",
     "-size 40x30 gradient: -depth 16 -define png:color-type=0 -define png:bit-depth=16 PNG:",
     {40, 30},
     true},
    {"PNG of 1 bit", "a.png", "-size 40x30 pattern:checkerboard -monochrome PNG:", {40, 30}, false},
    {"JPEG of exact colours", "a.jpg", "-size 40x30 xc:white JPEG:", {40, 30}, false},
    {"JPEG of other colours", "a.jpg", "-size 40x30 gradient:red-blue JPEG:", {40, 30}, true},
    {"grey JPEG", "a.jpg", "-size 40x30 gradient: -colorspace Gray JPEG:", {40, 30}, true, Source::Whole},
    {"GIF of exact colours",
     "a.gif",
     "-size 40x30 xc:blue -fill red -draw 'point 3,3' GIF:",
     {40, 30},
     false},
    {"GIF of other colours",
     "a.gif",
     "-size 40x30 gradient:#010203-#f0e0d0 +dither -colors 99 GIF:",
     {40, 30},
     true},
    {"GIF with a transparent colour",
     "a.gif",
     "-size 40x30 xc:blue -fill red -draw 'rectangle 3,3 9,9' -transparent red GIF:",
     {40, 30},
     true},
    {"GIF of two frames", "a.gif", "-size 40x30 xc:blue xc:red GIF:", {40, 30}, true},
    {"BMP of exact colours", "a.bmp", "-size 40x30 xc:blue -type TrueColor BMP3:", {40, 30}, false},
    {"BMP of 24-bit colours", "a.bmp", "-size 40x30 xc:#010203 -type TrueColor BMP3:", {40, 30}, true},
    {"BMP with a palette",
     "a.bmp",
     "-size 40x30 gradient:#010203-#f0e0d0 +dither -colors 99 -type Palette BMP3:",
     {40, 30},
     false},
    {"WBMP", "a.wbmp", "-size 40x30 pattern:checkerboard -monochrome WBMP:", {40, 30}, false},
    {"as large as the canvas", "a.png", "-size 352x288 xc:blue PNG24:", {352, 288}, false},
    {"long, but of no more pixels", "a.png", "-size 1000x100 xc:blue PNG24:", {1000, 100}, false},
    {"a little larger", "a.png", "-size 353x288 xc:blue PNG24:", {353, 288}, true},
    {"great PNG", "a.png", "-size 2500x2000 xc:blue PNG24:", {2500, 2000}, true},
    {"great JPEG", "a.jpg", "-size 1600x1200 xc:white JPEG:", {1600, 1200}, true},
    {"great GIF", "a.gif", "-size 400x300 xc:blue GIF:", {400, 300}, true},
    {"great BMP", "a.bmp", "-size 400x300 xc:blue BMP3:", {400, 300}, true},
};

} // namespace

void tst_SourceSize::initTestCase()
{
    // A picture by each name that the table and the others need.
    for (const Source& source : sources) {
        const QString folder = m_pictures.filePath(source.row);
        QVERIFY(QDir().mkpath(folder));
        QStringList arguments = QProcess::splitCommand(QString(source.making).replace('\'', '"'));
        arguments.last() += folder + '/' + source.file;
        QVERIFY2(support::convert(arguments), source.row);
    }
}

void tst_SourceSize::opened_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("isReduced");
    QTest::addColumn<bool>("isReducedAsBuffer");
    for (const Source& source : sources) {
        QTest::newRow(source.row) << m_pictures.filePath(source.row) + '/' + source.file << source.size
                                  << source.isReduced
                                  << (source.isReduced && source.buffer == Source::AsFile);
    }
    QImage odd(40, 30, QImage::Format_Mono);
    odd.setColorTable({qRgb(1, 2, 3), qRgb(161, 178, 195)});
    odd.fill(0);
    const QString oddFile = m_pictures.filePath("odd.png");
    QVERIFY(odd.save(oddFile));
    QTest::newRow("PNG of 1 bit and odd colours") << oddFile << odd.size() << true << true;
    for (const int orientation : {2, 3, 5, 6, 8}) {
        for (const bool isExact : {true, false}) {
            const QString plain = m_pictures.filePath(isExact ? "JPEG of exact colours/a.jpg"
                                                              : "JPEG of other colours/a.jpg");
            const QString file =
                m_pictures.filePath(QString("turned-%1-%2.jpg").arg(orientation).arg(isExact));
            support::write(file, support::withOrientation(contents(plain), orientation));
            QTest::addRow("JPEG turned by %d, %s", orientation, isExact ? "exact" : "not exact")
                << file << (orientation < 5 ? QSize(40, 30) : QSize(30, 40)) << !isExact << !isExact;
        }
    }
}

void tst_SourceSize::opened()
{
    QFETCH(const QString, file);
    QFETCH(const QSize, size);
    QFETCH(const bool, isReduced);
    QFETCH(const bool, isReducedAsBuffer);
    {
        const EditorDesk desk(file);
        QCOMPARE(desk.editor->fileName(), file);
        QCOMPARE(desk.editor->sourceSize(), size);
        QCOMPARE(desk.editor->isReduced(), isReduced);
        // What counts: whether the drawing is what an independent reader sees, where that holds 8 bits.
        if (!isReduced)
            QVERIFY(support::sameImage(desk.editor->snapshot(), support::converted(file)));
    }
    EditorDesk desk;
    QVERIFY(desk.editor->openNewFilePrivate(openAction, file));
    QCOMPARE(desk.editor->sourceSize(), size);
    QCOMPARE(desk.editor->isReduced(), isReduced);

    EditorDesk receiving;
    receiving.editor->setFileName(file);
    receiving.editor->setBuffer(contents(file));
    QCOMPARE(receiving.editor->sourceSize(), size);
    QCOMPARE(receiving.editor->isReduced(), isReducedAsBuffer);
}

void tst_SourceSize::newDrawing()
{
    const KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    QVERIFY(editor.sourceSize().isEmpty());
    QVERIFY(!editor.isReduced());
    EditorDesk unreadable("/nowhere.png");
    QVERIFY(unreadable.editor->sourceSize().isEmpty());
    QVERIFY(!unreadable.editor->isReduced());
}

namespace {

/// An editor with a reduced picture of its own folder open.
struct ReducedDesk : EditorDesk
{
    ReducedDesk() : EditorDesk(name()) { (void)log.taken(); }
    [[nodiscard]] bool isAsOpened() const { return editor->sourceSize() == QSize(400, 300); }

    static QString name() { return folder->written("great.png", support::sheet({400, 300}, Qt::blue)); }
    static inline std::optional<PictureFolder> folder;
};

} // namespace

void tst_SourceSize::savingUnderTheNameEndsIt()
{
    ReducedDesk::folder.emplace();
    ReducedDesk desk;
    QVERIFY(desk.editor->isReduced());
    desk.scribble();
    QVERIFY(desk.editor->isReduced());
    desk.editor->slotSave();
    QVERIFY(!desk.editor->isModified());
    QVERIFY(!desk.editor->isReduced()); // what was lost is lost
    QVERIFY(desk.isAsOpened());
    desk.editor->setFileName("/elsewhere.png");
    desk.editor->setFileName(ReducedDesk::folder->file("great.png"));
    QVERIFY(!desk.editor->isReduced());
    // Opened once more, nothing is missing.
    QVERIFY(desk.editor->openNewFilePrivate(openAction, ReducedDesk::folder->file("great.png")));
    QVERIFY(!desk.editor->isReduced());
    QVERIFY(!desk.isAsOpened());
    ReducedDesk::folder.reset();
}

void tst_SourceSize::savingElsewhereDoesNot()
{
    ReducedDesk::folder.emplace();
    ReducedDesk desk;
    QVERIFY(desk.editor->save(ReducedDesk::folder->file("copy.png"), "PNG"));
    QVERIFY(desk.editor->isReduced()); // the file of its name is as it was
    desk.editor->slotSaveDlgCloseBeforeOpen(ReducedDesk::folder->file("new.png"));
    QCOMPARE(desk.editor->fileName(), ReducedDesk::folder->file("new.png"));
    QVERIFY(!desk.editor->isReduced());
    QVERIFY(desk.isAsOpened());
    ReducedDesk::folder.reset();
}

void tst_SourceSize::failedSaveChangesNothing()
{
    ReducedDesk::folder.emplace();
    ReducedDesk desk;
    const QString name = ReducedDesk::folder->file("great.png");
    QVERIFY(QDir(ReducedDesk::folder->file("appwrite")).removeRecursively());
    QVERIFY(!desk.editor->save(name, "PNG"));
    QVERIFY(desk.editor->isReduced());
    desk.scribble();
    desk.editor->slotSave();
    QCOMPARE(desk.editor->fileName(), QString());
    QVERIFY(!desk.editor->isReduced());
    desk.editor->setFileName(name);
    QVERIFY(desk.editor->isReduced());
    ReducedDesk::folder.reset();
}

void tst_SourceSize::anotherName()
{
    ReducedDesk::folder.emplace();
    ReducedDesk desk;
    desk.editor->setFileName("/elsewhere.png");
    QVERIFY(!desk.editor->isReduced());
    QVERIFY(desk.isAsOpened());
    desk.editor->setFileName({});
    QVERIFY(!desk.editor->isReduced());
    desk.editor->setFileName(ReducedDesk::folder->file("great.png"));
    QVERIFY(desk.editor->isReduced());
    ReducedDesk::folder.reset();
}

void tst_SourceSize::newCanvas()
{
    ReducedDesk::folder.emplace();
    ReducedDesk desk;
    desk.editor->chooseCanvas(KORVA_CANVAS_16BIT, 100, 80);
    QVERIFY(desk.editor->sourceSize().isEmpty());
    QVERIFY(!desk.editor->isReduced());
    QCOMPARE(desk.editor->fileName(), ReducedDesk::folder->file("great.png"));
    ReducedDesk::folder.reset();
}

void tst_SourceSize::deleted()
{
    ReducedDesk::folder.emplace();
    ReducedDesk desk;
    desk.platform->answers = {1, 0};
    desk.editor->slotDelete();
    QVERIFY(desk.editor->isReduced() && desk.isAsOpened());
    desk.editor->slotDelete();
    QVERIFY(desk.editor->sourceSize().isEmpty());
    QVERIFY(!desk.editor->isReduced());
    ReducedDesk::folder.reset();
}

void tst_SourceSize::stampChangesNothing()
{
    ReducedDesk::folder.emplace();
    ReducedDesk desk;
    const QString stamp = ReducedDesk::folder->written("stamp.png", fixtures::flag());
    QVERIFY(desk.editor->openNewFilePrivate(stampAction, stamp));
    QVERIFY(desk.editor->isReduced() && desk.isAsOpened());
    const QString great = ReducedDesk::folder->written("other.png", support::mosaic({500, 400}));
    EditorDesk fresh;
    QVERIFY(fresh.editor->openNewFilePrivate(stampAction, great));
    QVERIFY(fresh.editor->sourceSize().isEmpty());
    QVERIFY(!fresh.editor->isReduced());
    ReducedDesk::folder.reset();
}

void tst_SourceSize::refusedOpenChangesNothing()
{
    ReducedDesk::folder.emplace();
    ReducedDesk desk;
    const QString name = desk.editor->fileName();
    const QString words = ReducedDesk::folder->file("words.png");
    support::write(words, "These are words.");
    desk.platform->limit = 1000;
    for (const QString& refused :
         {words, ReducedDesk::folder->file("missing.png"),
          ReducedDesk::folder->written("oversize.png", support::sheet({200, 100}))}) {
        QVERIFY(!desk.editor->openNewFilePrivate(openAction, refused));
        QVERIFY(desk.isAsOpened());
        desk.editor->setFileName(name);
        QVERIFY(desk.editor->isReduced());
    }
    ReducedDesk::folder.reset();
}

void tst_SourceSize::refusedBufferChangesNothing()
{
    ReducedDesk::folder.emplace();
    ReducedDesk desk;
    desk.editor->setBuffer("These are words.");
    QVERIFY(desk.editor->isReduced() && desk.isAsOpened());
    ReducedDesk::folder.reset();
}

void tst_SourceSize::theNextPictureCounts()
{
    ReducedDesk::folder.emplace();
    ReducedDesk desk;
    QVERIFY(desk.editor->openNewFilePrivate(openAction,
                                            ReducedDesk::folder->written("flag.png", fixtures::flag())));
    QCOMPARE(desk.editor->sourceSize(), QSize(40, 30));
    QVERIFY(!desk.editor->isReduced());
    ReducedDesk::folder.reset();
}

int main(int argc, char** argv)
{
    return support::run<tst_SourceSize>(argc, argv);
}

#include "tst_SourceSize.moc"
