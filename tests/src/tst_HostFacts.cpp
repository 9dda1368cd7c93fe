#include "EditorFixtures.h"

#include "KORVA_Text.h"
#include "support/PictureFiles.h"

using fixtures::EditorDesk;
using fixtures::PictureFolder;
using support::contents;

/// What a host must know of the drawing before it saves, replaces or drops it.
class tst_HostFacts : public support::TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();

    void encodedFormats_data();
    void encodedFormats();
    void encodedFollowsTheName_data();
    void encodedFollowsTheName();
    void encodedIsExact_data();
    void encodedIsExact();
    void jpegGivesUpQualityThenSize();
    void stripsKeepAPixel();
    void exactFormatsFitOrFail();
    void encodedTouchesNothing();

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

    void changes();
    void changesOfAPiece_data();
    void changesOfAPiece();
    void changesOfAText();
    void openedIsUnchanged();

    void deleteNothing();
    void deleteLifted_data();
    void deleteLifted();
    void deletePasted();
    void deleteTellsTheMenus();

private:
    QTemporaryDir m_pictures;
};

namespace {

constexpr QSize noisy(120, 90);

/// A picture that no encoder makes very small.
QImage noise()
{
    QRandomGenerator random(7);
    QImage image(noisy, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, random.generate() | 0xff000000);
    return image;
}

QSize sizeOf(const QByteArray& bytes)
{
    return QImage::fromData(bytes).size();
}

qsizetype jpegSize(const QImage& image, int quality)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    return image.save(&buffer, "JPEG", quality) ? bytes.size() : 0;
}

void give(KORVA_EditCanvas& editor, const QImage& image)
{
    QPixmap picture = QPixmap::fromImage(image);
    editor.setPixmap(&picture);
    editor.clearModified();
}

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

void tst_HostFacts::initTestCase()
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

// --- encoded()

void tst_HostFacts::encodedFormats_data()
{
    QTest::addColumn<QByteArray>("format");
    QTest::addColumn<QByteArray>("start");
    const auto add = [](const char* format, const char* start) {
        QTest::addRow("\"%s\"", format) << QByteArray(format) << QByteArray(start);
    };
    add("PNG", "\x89PNG");
    add("png", "\x89PNG");
    add("JPEG", "\xff\xd8\xff");
    add("JPG", "\xff\xd8\xff");
    add("jpg", "\xff\xd8\xff");
    add("BMP", "BM");
    add("GIF", "");
    add("WBMP", "");
    add("NONSENSE", "");
    add(" PNG", "");
    add("PNG ", "");
    add("../a.png", "");
    add("", "");
}

void tst_HostFacts::encodedFormats()
{
    QFETCH(const QByteArray, format);
    QFETCH(const QByteArray, start);
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    const QByteArray bytes = editor.encoded(format.constData());
    QCOMPARE(bytes.isEmpty(), start.isEmpty());
    QVERIFY(bytes.startsWith(start));
    QVERIFY(start.isEmpty() || sizeOf(bytes) == QSize(200, 170));
    QVERIFY(editor.encoded(format.constData(), 1).isEmpty());
    QCOMPARE(editor.encoded(format.constData(), 1 << 30), bytes);
    QCOMPARE(editor.encoded(format.constData(), std::numeric_limits<qsizetype>::max()), bytes);
    QCOMPARE(editor.encoded(format.constData(), 0), bytes);
    QCOMPARE(editor.encoded(format.constData(), -1), bytes);
}

void tst_HostFacts::encodedFollowsTheName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("start");
    const auto add = [](const char* name, const char* start) {
        QTest::addRow("\"%s\"", name) << QString(name) << QByteArray(start);
    };
    add("", "\x89PNG");
    add("/photos/a.png", "\x89PNG");
    add("/photos/a.PNG", "\x89PNG");
    add("/photos/a", "\x89PNG");
    add("/photos/a.wbmp", "\x89PNG");
    add("/photos/a.jpg", "\xff\xd8\xff");
    add("/photos/a.jpeg", "\xff\xd8\xff");
    add("/photos/a.bmp", "BM");
    add("/photos/a.gif", "");
}

void tst_HostFacts::encodedFollowsTheName()
{
    QFETCH(const QString, name);
    QFETCH(const QByteArray, start);
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    editor.setFileName(name);
    const QByteArray bytes = editor.encoded(nullptr);
    QCOMPARE(bytes.isEmpty(), start.isEmpty());
    QVERIFY(bytes.startsWith(start));
}

void tst_HostFacts::encodedIsExact_data()
{
    QTest::addColumn<QByteArray>("format");
    QTest::newRow("PNG") << QByteArray("PNG");
    QTest::newRow("BMP") << QByteArray("BMP");
}

void tst_HostFacts::encodedIsExact()
{
    QFETCH(const QByteArray, format);
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    give(editor, support::mosaic({61, 47}));
    QPixmap stamp = QPixmap::fromImage(support::sheet({10, 10}, Qt::red));
    editor.insertStamp(stamp);
    const PictureFolder folder;
    support::write(folder.file("a"), editor.encoded(format.constData()));
    QVERIFY(support::sameImage(support::converted(folder.file("a")),
                               support::filled(support::mosaic({61, 47}), {0, 0, 10, 10}, Qt::red)));
}

void tst_HostFacts::jpegGivesUpQualityThenSize()
{
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    give(editor, noise());
    const QByteArray best = editor.encoded("JPEG");
    constexpr int leastQuality = 30;
    const qsizetype plainest = jpegSize(noise(), leastQuality);
    QVERIFY(best.size() > 2 * plainest);

    QCOMPARE(editor.encoded("JPEG", best.size()), best);
    qsizetype lastSize = best.size() + 1;
    int lastWidth = noisy.width();
    int plainer = 0;
    int smaller = 0;
    for (qsizetype limit = best.size() - 1; limit > 0; limit = limit * 9 / 10) {
        const QByteArray bytes = editor.encoded("JPEG", limit);
        if (bytes.isEmpty()) {
            // Not even a pixel fits.
            QVERIFY(jpegSize(support::sheet({1, 1}, Qt::gray), leastQuality) > limit);
            continue;
        }
        QVERIFY(bytes.size() <= limit);
        QVERIFY(bytes.size() <= lastSize);
        const QSize size = sizeOf(bytes);
        QVERIFY(!size.isEmpty());
        QVERIFY(size.width() <= lastWidth);
        if (limit >= plainest) { // the size stays as long as a lower quality does it
            QCOMPARE(size, noisy);
            QVERIFY(bytes.size() * 2 > limit); // and no more is given up than must be
            ++plainer;
        } else {
            QVERIFY(size.width() < noisy.width());
            const double height = double(size.width()) * noisy.height() / noisy.width();
            QVERIFY(qAbs(height - size.height()) <= 1);
            ++smaller;
        }
        lastSize = bytes.size();
        lastWidth = size.width();
    }
    QVERIFY(plainer > 5 && smaller > 5);
}

void tst_HostFacts::stripsKeepAPixel()
{
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    give(editor, noise().copy(0, 0, 120, 2).scaled(1000, 2));
    const qsizetype least = jpegSize(support::sheet({1, 1}, Qt::gray), 30);
    const QByteArray bytes = editor.encoded("JPEG", least + 200);
    QVERIFY(!bytes.isEmpty());
    QVERIFY(bytes.size() <= least + 200);
    QCOMPARE(sizeOf(bytes).height(), 1);
}

void tst_HostFacts::exactFormatsFitOrFail()
{
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    give(editor, noise());
    for (const char* format : {"PNG", "BMP"}) {
        const QByteArray bytes = editor.encoded(format);
        QCOMPARE(editor.encoded(format, bytes.size()), bytes);
        QCOMPARE(editor.encoded(format, bytes.size() - 1), QByteArray());
    }
}

void tst_HostFacts::encodedTouchesNothing()
{
    EditorDesk desk;
    desk.setPicture(noise());
    desk.type("typed");
    QPixmap stamp = QPixmap::fromImage(support::sheet({10, 10}, Qt::red));
    desk.editor->insertStamp(stamp);
    desk.editor->clearModified();
    (void)desk.log.taken();
    const QImage screen = desk.editor->grab().toImage();
    for (const char* format : {"PNG", "JPEG", "BMP", "GIF"})
        (void)desk.editor->encoded(format, 2000);
    QCOMPARE(desk.log.taken(), QStringList());
    QVERIFY(!desk.editor->isModified());
    QVERIFY(!desk.canvas().pasteLabel()->isHidden());
    QVERIFY(support::sameImage(desk.editor->grab(), screen));
}

// --- sourceSize() and isReduced()

void tst_HostFacts::opened_data()
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

void tst_HostFacts::opened()
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

void tst_HostFacts::newDrawing()
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

void tst_HostFacts::savingUnderTheNameEndsIt()
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

void tst_HostFacts::savingElsewhereDoesNot()
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

void tst_HostFacts::failedSaveChangesNothing()
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

void tst_HostFacts::anotherName()
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

void tst_HostFacts::newCanvas()
{
    ReducedDesk::folder.emplace();
    ReducedDesk desk;
    desk.editor->chooseCanvas(KORVA_CANVAS_16BIT, 100, 80);
    QVERIFY(desk.editor->sourceSize().isEmpty());
    QVERIFY(!desk.editor->isReduced());
    QCOMPARE(desk.editor->fileName(), ReducedDesk::folder->file("great.png"));
    ReducedDesk::folder.reset();
}

void tst_HostFacts::deleted()
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

void tst_HostFacts::stampChangesNothing()
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

void tst_HostFacts::refusedOpenChangesNothing()
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

void tst_HostFacts::refusedBufferChangesNothing()
{
    ReducedDesk::folder.emplace();
    ReducedDesk desk;
    desk.editor->setBuffer("These are words.");
    QVERIFY(desk.editor->isReduced() && desk.isAsOpened());
    ReducedDesk::folder.reset();
}

void tst_HostFacts::theNextPictureCounts()
{
    ReducedDesk::folder.emplace();
    ReducedDesk desk;
    QVERIFY(desk.editor->openNewFilePrivate(openAction,
                                            ReducedDesk::folder->written("flag.png", fixtures::flag())));
    QCOMPARE(desk.editor->sourceSize(), QSize(40, 30));
    QVERIFY(!desk.editor->isReduced());
    ReducedDesk::folder.reset();
}

// --- hasChanges()

void tst_HostFacts::changes()
{
    EditorDesk desk;
    QVERIFY(!desk.editor->hasChanges());
    desk.scribble();
    QVERIFY(desk.editor->hasChanges());
    desk.editor->clearModified();
    QVERIFY(!desk.editor->hasChanges());
    desk.editor->undo();
    QVERIFY(!desk.editor->hasChanges() || desk.editor->isModified());
    desk.editor->clearCanvas();
    QVERIFY(desk.editor->hasChanges());
    (void)desk.log.taken();
    QVERIFY(desk.editor->hasChanges());
    QCOMPARE(desk.log.taken(), QStringList());
}

void tst_HostFacts::changesOfAPiece_data()
{
    QTest::addColumn<int>("zoom");
    for (const int zoom : {50, 100, 150, 200})
        QTest::addRow("%d %%", zoom) << zoom;
}

void tst_HostFacts::changesOfAPiece()
{
    QFETCH(const int, zoom);
    EditorDesk desk;
    desk.setPicture(support::mosaic({80, 60}));
    desk.editor->setZoom(zoom);
    desk.chooseTool(fixtures::AreaSelect);
    const int unit = zoom / 50; // a whole pixel of the picture, or two
    support::Gestures stylus(desk.canvas());
    stylus.drag({{2 * unit, 2 * unit}, {30 * unit, 26 * unit}});
    KORVA_PasteLabel& piece = *desk.canvas().pasteLabel();
    QVERIFY(!piece.isHidden());
    QVERIFY(!desk.editor->isModified());
    QVERIFY(!desk.editor->hasChanges()); // it lies where it was
    const QPoint place = piece.pos();
    (void)desk.log.taken();
    const auto dragBy = [&](QPoint distance) {
        const QPoint inside = piece.geometry().center();
        stylus.hover(inside);
        stylus.drag({inside, inside + distance});
    };
    dragBy({6 * unit, 4 * unit});
    QCOMPARE(piece.pos(), place + QPoint(6 * unit, 4 * unit));
    QVERIFY(!desk.editor->isModified());
    QVERIFY(desk.editor->hasChanges());
    desk.editor->clearModified(); // say, the host wrote the snapshot somewhere
    QVERIFY(!desk.editor->hasChanges());
    dragBy({-6 * unit, -4 * unit});
    QVERIFY(desk.editor->hasChanges());
    dragBy({6 * unit, 4 * unit});
    QVERIFY(!desk.editor->hasChanges());
    QCOMPARE(desk.log.taken(), QStringList());
}

void tst_HostFacts::changesOfAText()
{
    EditorDesk desk;
    desk.type({});
    QVERIFY(desk.editor->currentText()->takesText());
    desk.editor->clearModified();
    QVERIFY(!desk.editor->hasChanges()); // open, and nothing typed
    desk.type("a");
    QVERIFY(desk.editor->hasChanges());
    desk.editor->clearModified();
    QVERIFY(!desk.editor->hasChanges());
    QVERIFY(!desk.editor->isModified());
    QKeyEvent key(QEvent::KeyPress, Qt::Key_Backspace, Qt::NoModifier, "\b");
    QCoreApplication::sendEvent(&desk.canvas(), &key);
    QVERIFY(!desk.editor->isModified());
    QVERIFY(desk.editor->hasChanges()); // the letter that counts as saved is gone
}

void tst_HostFacts::openedIsUnchanged()
{
    const PictureFolder folder;
    const QString name = folder.written("a.png", support::mosaic({40, 30}));
    EditorDesk desk(name);
    const auto isUnchanged = [&desk] {
        if (desk.editor->hasChanges())
            return false;
        desk.chooseTool(fixtures::AreaSelect);
        support::Gestures(desk.canvas()).drag({{5, 5}, {20, 15}});
        return !desk.canvas().pasteLabel()->isHidden() && !desk.editor->hasChanges();
    };
    QVERIFY(isUnchanged());
    desk.chooseTool(fixtures::Pencil);
    desk.scribble();
    QVERIFY(desk.editor->hasChanges());
    QVERIFY(desk.editor->openNewFilePrivate(openAction, name));
    QVERIFY(isUnchanged());
}

// --- deleteSelection()

void tst_HostFacts::deleteNothing()
{
    EditorDesk desk;
    desk.setPicture(support::mosaic({80, 60}));
    desk.canvas().setUndoFlag(0);
    (void)desk.log.taken();
    desk.editor->deleteSelection();
    QCOMPARE(desk.log.taken(), QStringList());
    QVERIFY(!desk.editor->isModified());
    QVERIFY(support::sameImage(desk.picture(), support::mosaic({80, 60})));
    QCOMPARE(desk.canvas().undoFlag(), 0);
}

void tst_HostFacts::deleteLifted_data()
{
    QTest::addColumn<int>("zoom");
    QTest::addColumn<QRect>("hole"); // in the picture
    QTest::newRow("50 %") << 50 << QRect(20, 20, 40, 20);
    QTest::newRow("100 %") << 100 << QRect(10, 10, 20, 10);
    QTest::newRow("200 %") << 200 << QRect(5, 5, 10, 5);
}

void tst_HostFacts::deleteLifted()
{
    QFETCH(const int, zoom);
    QFETCH(const QRect, hole);
    const QImage mosaic = support::mosaic({80, 60});
    EditorDesk desk;
    desk.setPicture(mosaic);
    desk.editor->setZoom(zoom);
    desk.chooseTool(fixtures::AreaSelect);
    desk.canvas().setSelection(QRect(10, 10, 20, 10));
    KORVA_PasteLabel& piece = *desk.canvas().pasteLabel();
    const QImage lifted = piece.getImage().toImage();
    const QImage withHole = support::filled(mosaic, hole, Qt::white);
    piece.move(20, 14);
    const QPoint place = QPoint(20, 14) * 100 / zoom;
    (void)desk.log.taken();

    desk.editor->deleteSelection();
    QCOMPARE(desk.log.taken(),
             QStringList({"selection(false)", "modified()", "canUndo(true)", "canRedo(false)"}));
    QVERIFY(piece.isHidden());
    QVERIFY(!desk.canvas().hasSelection());
    QVERIFY(desk.editor->isModified());
    QCOMPARE(desk.canvas().undoFlag(), 1);
    QVERIFY(support::sameImage(*desk.canvas().zoomedPixmap(), support::scaled(withHole, zoom)));
    QVERIFY(support::sameImage(desk.picture(), withHole));

    desk.editor->undo(); // it is back where it lay
    QCOMPARE(desk.log.taken(), QStringList({"canUndo(false)", "canRedo(true)"}));
    const QImage merged = support::overlaid(withHole, place, lifted);
    QVERIFY(support::sameImage(desk.picture(), merged));
    QVERIFY(support::sameImage(*desk.canvas().zoomedPixmap(), support::scaled(merged, zoom)));
    desk.editor->redo();
    QVERIFY(support::sameImage(desk.picture(), withHole));

    (void)desk.log.taken();
    desk.editor->deleteSelection(); // there is no other one
    QCOMPARE(desk.log.taken(), QStringList());
}

void tst_HostFacts::deletePasted()
{
    const QImage mosaic = support::mosaic({80, 60});
    EditorDesk desk;
    desk.setPicture(mosaic);
    fixtures::setClipboard(support::sheet({10, 8}, Qt::red));
    desk.editor->paste();
    desk.canvas().pasteLabel()->move(20, 30);
    desk.editor->clearModified();
    (void)desk.log.taken();
    desk.editor->deleteSelection();
    QCOMPARE(desk.log.taken(),
             QStringList({"selection(false)", "modified()", "canUndo(true)", "canRedo(false)"}));
    QVERIFY(desk.editor->isModified());
    QVERIFY(support::sameImage(desk.picture(), mosaic)); // no hole
    QVERIFY(support::sameImage(fixtures::clipboardImage(), support::sheet({10, 8}, Qt::red)));
    desk.editor->undo();
    QVERIFY(support::sameImage(desk.picture(), support::filled(mosaic, {20, 30, 10, 8}, Qt::red)));
    desk.editor->redo();
    QVERIFY(support::sameImage(desk.picture(), mosaic));
}

void tst_HostFacts::deleteTellsTheMenus()
{
    EditorDesk desk;
    desk.setPicture(support::mosaic({80, 60}));
    desk.canvas().setSelection(QRect(10, 10, 20, 10));
    QCOMPARE(fixtures::enabledActions(desk.canvas().contextMenu()).left(2), "11");
    desk.editor->deleteSelection();
    QCOMPARE(fixtures::enabledActions(desk.canvas().contextMenu()).left(2), "00");
}

int main(int argc, char** argv)
{
    return support::run<tst_HostFacts>(argc, argv);
}

#include "tst_HostFacts.moc"
