#include "EditorFixtures.h"

#include "support/PictureFiles.h"

using fixtures::EditorDesk;
using fixtures::PictureFolder;

/// encoded(): what a save would write, in a format and in so many bytes at most.
class tst_Encoded : public support::TestCase
{
    Q_OBJECT

private slots:
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

} // namespace

void tst_Encoded::encodedFormats_data()
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

void tst_Encoded::encodedFormats()
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

void tst_Encoded::encodedFollowsTheName_data()
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

void tst_Encoded::encodedFollowsTheName()
{
    QFETCH(const QString, name);
    QFETCH(const QByteArray, start);
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    editor.setFileName(name);
    const QByteArray bytes = editor.encoded(nullptr);
    QCOMPARE(bytes.isEmpty(), start.isEmpty());
    QVERIFY(bytes.startsWith(start));
}

void tst_Encoded::encodedIsExact_data()
{
    QTest::addColumn<QByteArray>("format");
    QTest::newRow("PNG") << QByteArray("PNG");
    QTest::newRow("BMP") << QByteArray("BMP");
}

void tst_Encoded::encodedIsExact()
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

void tst_Encoded::jpegGivesUpQualityThenSize()
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

void tst_Encoded::stripsKeepAPixel()
{
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    give(editor, noise().copy(0, 0, 120, 2).scaled(1000, 2));
    const qsizetype least = jpegSize(support::sheet({1, 1}, Qt::gray), 30);
    const QByteArray bytes = editor.encoded("JPEG", least + 200);
    QVERIFY(!bytes.isEmpty());
    QVERIFY(bytes.size() <= least + 200);
    QCOMPARE(sizeOf(bytes).height(), 1);
}

void tst_Encoded::exactFormatsFitOrFail()
{
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    give(editor, noise());
    for (const char* format : {"PNG", "BMP"}) {
        const QByteArray bytes = editor.encoded(format);
        QCOMPARE(editor.encoded(format, bytes.size()), bytes);
        QCOMPARE(editor.encoded(format, bytes.size() - 1), QByteArray());
    }
}

void tst_Encoded::encodedTouchesNothing()
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

int main(int argc, char** argv)
{
    return support::run<tst_Encoded>(argc, argv);
}

#include "tst_Encoded.moc"
