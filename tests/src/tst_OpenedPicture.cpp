#include "EditorFixtures.h"

using fixtures::EditorDesk;
using fixtures::PictureFolder;

namespace {

const QString bufferFailed = "message | Dialog_Error.gif | open buffer fail! <2.11.2.9;DIALOG_ICON_50> | 1";
constexpr int openAction = 0;

} // namespace

/// What an encoded picture becomes: its format by name, its size and depth, from files and from memory.
class tst_OpenedPicture : public support::TestCase
{
    Q_OBJECT

private slots:
    void bufferBecomesTheDrawing();
    void badBuffer_data();
    void badBuffer();
    void bufferKnowsNoLimitOfItsOwn();
    void formatByExtension_data();
    void formatByExtension();
    void sizeAndDepth_data();
    void sizeAndDepth();
    void nullPictureIsNotConverted();
    void failedReadLeavesTheImage();
    void everyFormatOpens_data();
    void everyFormatOpens();
};

// --- From memory

void tst_OpenedPicture::bufferBecomesTheDrawing()
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QVERIFY(fixtures::flag().save(&buffer, "BMP"));
    EditorDesk desk;
    desk.editor->setFileName("/photos/drawing.png");
    desk.editor->setBuffer(bytes);
    QCOMPARE(desk.log.taken(),
             QStringList({"canUndo(false)", "canRedo(false)", "pixmapChanged(40x30)", "sizeChanged()"}));
    QVERIFY(support::sameImage(desk.picture(), fixtures::flag()));
    QCOMPARE(desk.editor->fileName(), "/photos/drawing.png");
}

void tst_OpenedPicture::badBuffer_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("words") << QByteArray("These are words.");
    QTest::newRow("only a beginning") << QByteArray("\x89PNG\r\n\x1a\n", 8);
}

void tst_OpenedPicture::badBuffer()
{
    QFETCH(const QByteArray, bytes);
    EditorDesk desk;
    desk.scribble();
    const QImage before = desk.picture();
    desk.editor->setBuffer(bytes);
    QCOMPARE(desk.log.taken(), QStringList(bufferFailed));
    QVERIFY(support::sameImage(desk.picture(), before));
    QVERIFY(desk.editor->isModified());
}

void tst_OpenedPicture::bufferKnowsNoLimitOfItsOwn()
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QVERIFY(fixtures::flag({1000, 200}).save(&buffer, "PNG"));
    EditorDesk desk;
    desk.editor->setBuffer(bytes);
    QCOMPARE(desk.picture().size(), QSize(352, 70));
}

// --- Formats, size and depth

void tst_OpenedPicture::formatByExtension_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("format");
    const auto add = [](const char* name, const char* format) { QTest::newRow(name) << name << format; };
    add("a.bmp", "BMP");
    add("a.BMP", "BMP");
    add("a.jpg", "JPEG");
    add("a.Jpe", "JPEG");
    add("a.jpeg", "JPEG");
    add("a.gif", "GIF");
    add("a.wbmp", "WBMP");
    add("a.png", "PNG");
    add("a.tif", "PNG");
    add("a", "PNG");
    add("", "PNG");
    add("a.", "PNG");
    add("jpg", "PNG");
    add("a.jpg.bmp", "BMP");
    add("a.bmp.txt", "PNG");
}

void tst_OpenedPicture::formatByExtension()
{
    QFETCH(const QString, name);
    QFETCH(const QString, format);
    const KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    QString found = "something else before";
    editor.getFileFormat(name, found);
    QCOMPARE(found, format);
}

void tst_OpenedPicture::sizeAndDepth_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("format");
    QTest::addColumn<QSize>("expectedSize");
    QTest::addColumn<int>("expectedDepth");
    const auto add = [](const char* name, QSize size, QSize expected,
                        QImage::Format format = QImage::Format_RGB32, int depth = 16) {
        QTest::newRow(name) << size << int(format) << expected << depth;
    };
    add("704 x 576", {704, 576}, {352, 288});
    add("1000 x 200", {1000, 200}, {352, 70});
    add("200 x 1000", {200, 1000}, {57, 288});
    add("400 x 250 stays", {400, 250}, {400, 250});
    add("352 x 288 stays", {352, 288}, {352, 288});
    add("353 x 288", {353, 288}, {352, 287});
    add("352 x 289", {352, 289}, {350, 288});
    add("101376 x 1 stays", {101376, 1}, {101376, 1});
    add("1 bit", {40, 30}, {40, 30}, QImage::Format_Mono);
    add("8 bits stay", {40, 30}, {40, 30}, QImage::Format_Indexed8, 8);
    add("16 bits", {40, 30}, {40, 30}, QImage::Format_RGB16);
    add("24 bits", {40, 30}, {40, 30}, QImage::Format_RGB888);
    add("32 bits with alpha", {40, 30}, {40, 30}, QImage::Format_ARGB32);
    add("64 bits", {40, 30}, {40, 30}, QImage::Format_RGBA64);
    add("8 bits, scaled", {704, 576}, {352, 288}, QImage::Format_Indexed8);
}

void tst_OpenedPicture::sizeAndDepth()
{
    QFETCH(const QSize, size);
    QFETCH(const int, format);
    QFETCH(const QSize, expectedSize);
    QFETCH(const int, expectedDepth);
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    QImage image = support::sheet(size, Qt::blue).convertToFormat(QImage::Format(format));
    QPixmap pixmap;
    QVERIFY(editor.convertScaleImage(&image, &pixmap));
    QCOMPARE(image.size(), expectedSize);
    QCOMPARE(image.depth(), expectedDepth);
    QCOMPARE(pixmap.size(), expectedSize);
}

void tst_OpenedPicture::nullPictureIsNotConverted()
{
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    QImage none;
    QPixmap pixmap;
    QVERIFY(!editor.convertScaleImage(&none, &pixmap));
    QVERIFY(pixmap.isNull());
}

void tst_OpenedPicture::failedReadLeavesTheImage()
{
    EditorDesk desk;
    const QImage before = fixtures::flag();
    QImage image = before;
    QVERIFY(!desk.editor->getImage(&image, "/nowhere/missing.png"));
    QCOMPARE(image, before);
}

void tst_OpenedPicture::everyFormatOpens_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name : {"a.png", "a.bmp", "a.jpg", "a.jpeg", "a.Jpe", "a.wbmp"})
        QTest::newRow(name) << name;
}

void tst_OpenedPicture::everyFormatOpens()
{
    QFETCH(const QString, name);
    const PictureFolder folder;
    EditorDesk desk;
    QString format;
    desk.editor->getFileFormat(name, format);
    const QImage half =
        support::filled(support::sheet({40, 30}, Qt::white), QRect(0, 0, 20, 30), Qt::black);
    const QString file = folder.written(name, half, format.toLatin1());

    QVERIFY(desk.editor->isPicSizeNotOver(file, format.toLatin1()));
    QVERIFY(desk.editor->isPicSizeNotOver(file, nullptr));
    QImage image;
    QVERIFY(desk.editor->getImage(&image, file));
    QCOMPARE(image.size(), QSize(40, 30));
    QVERIFY(desk.editor->openNewFilePrivate(openAction, file));
    QVERIFY(desk.picture().pixelColor(5, 15).lightness() < 10);
    QVERIFY(desk.picture().pixelColor(35, 15).lightness() > 245);
}

int main(int argc, char** argv)
{
    return support::run<tst_OpenedPicture>(argc, argv);
}

#include "tst_OpenedPicture.moc"
