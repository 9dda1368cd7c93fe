#include "KORVA_PictureFile.h"
#include "support/Images.h"
#include "support/PictureFiles.h"
#include "support/TestCase.h"

using support::contents;
using support::write;

class tst_PictureFile : public support::TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();

    void patterns();
    void formats_data();
    void formats();
    void workingSize_data();
    void workingSize();
    void pictureIsScaledToTheWorkingSize_data();
    void pictureIsScaledToTheWorkingSize();
    void workingDepth_data();
    void workingDepth();
    void transparencyComesOutWhite_data();
    void transparencyComesOutWhite();
    void transparentColorOfAGifShows();
    void gifNeedsEveryFrameSound();
    void damagedGifFailsAlikeAtEverySize_data();
    void damagedGifFailsAlikeAtEverySize();
    void extensionDecidesHowAFileIsOpened_data();
    void extensionDecidesHowAFileIsOpened();
    void checkTellsWhatIsWrong_data();
    void checkTellsWhatIsWrong();
    void takeDecodesOnce();
    void takeSeesAChangedFile();
    void takeWithoutCheckReadsTheFile();
    void fullScaleKeepsTheSize();
    void memoryIsRecognisedByItsContent();
    void nullPictureIsNotConverted();

private:
    [[nodiscard]] QString path(const QString& name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
};

void tst_PictureFile::initTestCase()
{
    const QStringList source{"-size", "60x40", "-seed", "1", "plasma:red-blue", "-depth", "8"};
    for (const char* name : {"a.png", "a.jpg", "a.gif", "a.bmp"})
        QVERIFY(support::convert(source + QStringList{path(name)}));
    QVERIFY(support::convert(source + QStringList{"-monochrome", path("a.wbmp")}));
}

void tst_PictureFile::patterns()
{
    QCOMPARE(picturefile::openPatterns(),
             QStringList({"*.png", "*.gif", "*.jpeg", "*.jpg", "*.bmp", "*.wbmp"}));
    QCOMPARE(picturefile::savePatterns(), QStringList({"*.png", "*.jpeg", "*.jpg", "*.bmp"}));
}

void tst_PictureFile::formats_data()
{
    QTest::addColumn<QByteArray>("read");
    QTest::addColumn<QByteArray>("written");
    const QByteArray none;
    const std::tuple<const char*, QByteArray, QByteArray> rows[] = {
        {"a.bmp", "BMP", "BMP"},    {"a.BMP", "BMP", "BMP"},     {"a.jpg", "JPEG", "JPEG"},
        {"a.Jpe", "JPEG", "JPEG"},  {"a.JPEG", "JPEG", "JPEG"},  {"a.gif", "GIF", none},
        {"a.Gif", "GIF", none},     {"a.wbmp", "WBMP", "PNG"},   {"a.png", "PNG", "PNG"},
        {"a.tif", "PNG", "PNG"},    {"a", "PNG", "PNG"},         {"gif", "PNG", "PNG"},
        {"a.", "PNG", "PNG"},       {"a.gif.png", "PNG", "PNG"}, {"a.png.gif", "GIF", none},
        {"/b.gif/a", "PNG", "PNG"}, {"", "PNG", "PNG"},          {".gif", "GIF", none},
    };
    for (const auto& [name, read, written] : rows)
        QTest::addRow("\"%s\"", name) << read << written;
}

void tst_PictureFile::formats()
{
    QFETCH(QByteArray, read);
    QFETCH(QByteArray, written);
    const QString name = QString(QTest::currentDataTag()).remove('"');
    QCOMPARE(picturefile::readFormat(name), read);
    QCOMPARE(picturefile::writeFormat(name), written);
}

void tst_PictureFile::workingSize_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QSize>("working");
    QTest::addRow("the box itself") << QSize(352, 288) << QSize(352, 288);
    QTest::addRow("of the same shape") << QSize(704, 576) << QSize(352, 288);
    QTest::addRow("wide") << QSize(1000, 200) << QSize(352, 70);
    QTest::addRow("tall") << QSize(200, 1000) << QSize(57, 288);
    QTest::addRow("wider than the box but of fewer pixels") << QSize(400, 250) << QSize(400, 250);
    QTest::addRow("one row too many") << QSize(352, 289) << QSize(350, 288);
    QTest::addRow("one column too many") << QSize(353, 288) << QSize(352, 287);
    QTest::addRow("a long strip of as many pixels") << QSize(101376, 1) << QSize(101376, 1);
    QTest::addRow("a strip one pixel longer") << QSize(101377, 1) << QSize(352, 1);
    QTest::addRow("an upright one") << QSize(1, 101377) << QSize(1, 288);
    QTest::addRow("a photograph") << QSize(4000, 3000) << QSize(352, 264);
    QTest::addRow("an upright photograph") << QSize(3000, 4000) << QSize(216, 288);
    QTest::addRow("sides whose product passes 32 bits") << QSize(60000, 60000) << QSize(288, 288);
}

void tst_PictureFile::workingSize()
{
    QFETCH(QSize, size);
    QTEST(picturefile::workingSize(size), "working");
}

void tst_PictureFile::pictureIsScaledToTheWorkingSize_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QSize>("working");
    const std::pair<QSize, QSize> sizes[] = {{{704, 576}, {352, 288}},
                                             {{1000, 200}, {352, 70}},
                                             {{200, 1000}, {57, 288}},
                                             {{400, 250}, {400, 250}}};
    for (const char* file : {"sized.png", "sized.jpg", "sized.bmp"})
        for (const auto& [size, working] : sizes)
            QTest::addRow("%s %dx%d", file, size.width(), size.height())
                << QString(file) << size << working;
}

void tst_PictureFile::pictureIsScaledToTheWorkingSize()
{
    QFETCH(QString, file);
    QFETCH(QSize, size);
    QFETCH(QSize, working);
    QVERIFY(support::mosaic(size).scaled(size).save(path(file), nullptr, 96));
    KORVA_PictureFile picture(path(file));
    QCOMPARE(picture.check(picturefile::readFormat(file)), 0);
    QPixmap pixmap;
    QVERIFY(picturefile::convert(picture.take(), &pixmap));
    QCOMPARE(pixmap.size(), working);
}

void tst_PictureFile::workingDepth_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("to");
    const QSize small(30, 20);
    const QSize great(400, 300);
    const std::tuple<const char*, QImage::Format, int> rows[] = {
        {"1 bit", QImage::Format_Mono, 16},     {"1 bit, reversed", QImage::Format_MonoLSB, 16},
        {"8 bits", QImage::Format_Indexed8, 8}, {"8 bits of grey", QImage::Format_Grayscale8, 8},
        {"16 bits", QImage::Format_RGB16, 16},  {"24 bits", QImage::Format_RGB888, 16},
        {"32 bits", QImage::Format_RGB32, 16},  {"32 bits with alpha", QImage::Format_ARGB32, 16},
        {"64 bits", QImage::Format_RGBA64, 16},
    };
    for (const auto& [name, format, depth] : rows) {
        QTest::addRow("%s", name) << int(format) << small << depth;
        QTest::addRow("%s, scaled", name)
            << int(format) << great << (format == QImage::Format_Grayscale8 ? 8 : 16);
    }
}

void tst_PictureFile::workingDepth()
{
    QFETCH(int, from);
    QFETCH(QSize, size);
    QFETCH(int, to);
    const QImage image = support::mosaic(size).convertToFormat(QImage::Format(from));
    const QImage working = picturefile::workingImage(image);
    QCOMPARE(working.depth(), to);
    if (to == 16)
        QCOMPARE(working.format(), QImage::Format_RGB16);
    QCOMPARE(working.size(), picturefile::workingSize(size));
}

void tst_PictureFile::transparencyComesOutWhite_data()
{
    QTest::addColumn<QStringList>("making");
    QTest::addColumn<QString>("file");
    const QStringList clear{"-size", "20x20", "xc:none", "-fill", "blue", "-draw", "rectangle 0,0 9,19"};
    QTest::addRow("true colour") << clear << "PNG32:clear.png";
    QTest::addRow("palette") << clear << "PNG8:clear.png";
    QTest::addRow("scaled") << clear + QStringList{"-sample", "400x400!"} << "PNG32:clear.png";
    QTest::addRow("scaled palette") << clear + QStringList{"-sample", "400x400!"} << "PNG8:clear.png";
}

void tst_PictureFile::transparencyComesOutWhite()
{
    QFETCH(QStringList, making);
    QFETCH(QString, file);
    QVERIFY(support::convert(making + QStringList{file.replace(':', ':' + m_folder.path() + '/')}));
    QPixmap pixmap;
    QVERIFY(picturefile::convert(KORVA_PictureFile(path("clear.png")).take(), &pixmap));
    const QImage image = pixmap.toImage();
    QCOMPARE(image.pixelColor(image.width() / 4, 5), QColor(Qt::blue));
    QCOMPARE(image.pixelColor(image.width() * 3 / 4, 5), QColor(Qt::white));
    QVERIFY(!pixmap.hasAlpha());
}

void tst_PictureFile::transparentColorOfAGifShows()
{
    QVERIFY(support::convert(
        {"-size", "20x20", "xc:red", "-fill", "blue", "-draw", "rectangle 0,0 9,19", path("solid.gif")}));
    QByteArray gif = contents(path("solid.gif"));
    constexpr qsizetype palette = 13;
    const qsizetype red = (gif.indexOf(QByteArray("\xff\0\0", 3), palette) - palette) / 3;
    gif.insert(gif.indexOf(','), QByteArray("!\xf9\x04\x01\0\0", 6) + char(red) + '\0');
    write(path("clear.gif"), gif);

    for (const bool isChecked : {false, true}) {
        KORVA_PictureFile file(path("clear.gif"));
        if (isChecked)
            QCOMPARE(file.check("GIF"), 0);
        const QImage image = file.take();
        QVERIFY(!image.hasAlphaChannel());
        QCOMPARE(image.pixelColor(5, 5), QColor(Qt::blue));
        QCOMPARE(image.pixelColor(15, 5), QColor(Qt::red));
    }
}

void tst_PictureFile::gifNeedsEveryFrameSound()
{
    QVERIFY(support::convert({"-size", "40x30", "xc:red", "xc:blue", "xc:lime", path("frames.gif")}));
    const QByteArray whole = contents(path("frames.gif"));
    write(path("cut.gif"), whole.first(whole.lastIndexOf(',') + 12));
    KORVA_PictureFile sound(path("frames.gif"));
    QCOMPARE(sound.check("GIF"), 0);
    QVERIFY(!sound.take().isNull());
    KORVA_PictureFile cut(path("cut.gif"));
    QCOMPARE(cut.check("GIF"), 0); // its first frame can be read
    QVERIFY(cut.take().isNull());
}

void tst_PictureFile::damagedGifFailsAlikeAtEverySize_data()
{
    QTest::addColumn<QString>("size");
    QTest::addColumn<bool>("isInterlaced");
    for (const char* size : {"60x40", "2500x2000"})
        for (const bool isInterlaced : {false, true})
            QTest::addRow("%s%s", size, isInterlaced ? ", interlaced" : "")
                << QString(size) << isInterlaced;
}

void tst_PictureFile::damagedGifFailsAlikeAtEverySize()
{
    QFETCH(QString, size);
    QFETCH(bool, isInterlaced);
    QVERIFY(support::convert({"-size", size, "gradient:red-blue", "-interlace",
                              isInterlaced ? "GIF" : "None", path("sound.gif")}));
    const QByteArray whole = contents(path("sound.gif"));
    const QByteArray scratched =
        QByteArray(whole).replace(whole.size() * 3 / 10, 6, "\xff\xff\xff\xff\xff\xff");
    for (const QByteArray& damaged :
         {whole.first(whole.size() / 2), whole.first(whole.size() * 9 / 10), scratched}) {
        for (const auto scale : {KORVA_PictureFile::Full, KORVA_PictureFile::Working}) {
            write(path("damaged.gif"), damaged);
            KORVA_PictureFile file(path("damaged.gif"), scale);
            QCOMPARE(file.check("GIF"), 0); // a part of it can be read
            QVERIFY(file.take().isNull());
        }
    }
}

void tst_PictureFile::extensionDecidesHowAFileIsOpened_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<bool>("isTaken");
    const std::tuple<const char*, const char*, bool> rows[] = {
        {"a.png", "x.png", true},   {"a.jpg", "x.png", true},  {"a.gif", "x.bmp", true},
        {"a.bmp", "x.tif", true},   {"a.png", "x", true},      {"a.wbmp", "x.wbmp", true},
        {"a.jpg", "x.jpe", true},   {"a.png", "x.jpg", false}, {"a.png", "x.gif", false},
        {"a.gif", "x.JPEG", false}, {"a.gif", "x.GIF", true},
    };
    for (const auto& [content, name, isTaken] : rows)
        QTest::addRow("%s named %s", content, name) << QString(content) << isTaken;
}

void tst_PictureFile::extensionDecidesHowAFileIsOpened()
{
    QFETCH(QString, content);
    QFETCH(bool, isTaken);
    const QString name = path(QString(QTest::currentDataTag()).section(' ', -1));
    write(name, contents(path(content)));
    QCOMPARE(!KORVA_PictureFile(name).take().isNull(), isTaken);
    KORVA_PictureFile checked(name);
    QCOMPARE(checked.check(nullptr), 0);
    QCOMPARE(!checked.take().isNull(), isTaken);
}

void tst_PictureFile::checkTellsWhatIsWrong_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("status");
    const QByteArray png = contents(path("a.png"));
    QTest::addRow("sound.png") << png << 0;
    QTest::addRow("wrong.gif") << png << 1;
    QTest::addRow("wrong.tif") << contents(path("a.jpg")) << 1;
    QTest::addRow("cut.png") << png.first(png.size() / 2) << 1;
    QTest::addRow("empty.png") << QByteArray() << 1;
    QTest::addRow("great.png") << support::pngStart(60000, 60000) << -100;
    QTest::addRow("great.gif") << support::gifOfFrames(QSize(60000, 60000), 1) << -100;
    QTest::addRow("great and damaged.gif") << support::gifOfFrames(QSize(60000, 60000), 65535) << -100;
    QTest::addRow("hostile.gif") << support::gifOfFrames(QSize(8000, 8000), 65535) << 0;
}

void tst_PictureFile::checkTellsWhatIsWrong()
{
    QFETCH(QByteArray, bytes);
    const QString name = path(QTest::currentDataTag());
    write(name, bytes);
    KORVA_PictureFile file(name);
    QTEST(file.check(picturefile::readFormat(name)), "status");
}

void tst_PictureFile::takeDecodesOnce()
{
    write(path("once.png"), contents(path("a.png")));
    KORVA_PictureFile file(path("once.png"));
    QCOMPARE(file.check("PNG"), 0);
    // Nothing but its version tells the new content from the old, and that is set back.
    const QDateTime time = QFileInfo(path("once.png")).lastModified();
    QFile changed(path("once.png"));
    QVERIFY(changed.open(QIODevice::ReadWrite));
    changed.write(QByteArray(changed.size(), 'x'));
    QVERIFY(changed.flush() && changed.setFileTime(time, QFileDevice::FileModificationTime));
    QVERIFY(!file.take().isNull());
    QVERIFY(file.take().isNull());
}

void tst_PictureFile::takeSeesAChangedFile()
{
    write(path("changed.png"), contents(path("a.png")));
    KORVA_PictureFile file(path("changed.png"));
    QCOMPARE(file.check("PNG"), 0);
    QVERIFY(support::sheet(QSize(7, 5), Qt::red).save(path("changed.png")));
    QCOMPARE(file.take().size(), QSize(7, 5));
}

void tst_PictureFile::takeWithoutCheckReadsTheFile()
{
    QCOMPARE(KORVA_PictureFile(path("a.png")).take().size(), QSize(60, 40));
    QVERIFY(KORVA_PictureFile(path("missing.png")).take().isNull());
    QVERIFY(KORVA_PictureFile(path("missing.gif")).take().isNull());
    QVERIFY(KORVA_PictureFile().take().isNull());
}

void tst_PictureFile::fullScaleKeepsTheSize()
{
    QVERIFY(support::mosaic(QSize(704, 576)).save(path("full.jpg")));
    KORVA_PictureFile file(path("full.jpg"), KORVA_PictureFile::Full);
    QCOMPARE(file.check("JPEG"), 0);
    const QImage image = file.take();
    QCOMPARE(image.size(), QSize(704, 576));
    QCOMPARE(image.format(), QImage::Format_RGB16);
}

void tst_PictureFile::memoryIsRecognisedByItsContent()
{
    for (const char* name : {"a.png", "a.jpg", "a.gif", "a.bmp", "a.wbmp"})
        QCOMPARE(picturefile::decoded(contents(path(name))).size(), QSize(60, 40));
    QVERIFY(picturefile::decoded({}).isNull());
    QVERIFY(picturefile::decoded("no picture").isNull());
}

void tst_PictureFile::nullPictureIsNotConverted()
{
    QPixmap pixmap;
    QVERIFY(!picturefile::convert({}, &pixmap));
}

int main(int argc, char** argv)
{
    return support::run<tst_PictureFile>(argc, argv);
}

#include "tst_PictureFile.moc"
