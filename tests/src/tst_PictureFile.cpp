#include "KORVA_Formats.h"
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

    void pictureIsScaledToTheWorkingSize_data();
    void pictureIsScaledToTheWorkingSize();
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
    void ownAllowanceHoldsForEveryFormat();
    void takeDecodesOnce();
    void takeSeesAChangedFile();
    void takeWithoutCheckReadsTheFile();
    void fullScaleKeepsTheSize();
    void memoryIsRecognisedByItsContent();

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
    QCOMPARE(picture.check(KORVA_Formats::readFormat(file)), 0);
    QPixmap pixmap;
    QVERIFY(KORVA_WorkingLimits().convert(picture.take(), &pixmap));
    QCOMPARE(pixmap.size(), working);
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
    QVERIFY(KORVA_WorkingLimits().convert(KORVA_PictureFile(path("clear.png")).take(), &pixmap));
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
    QTEST(file.check(KORVA_Formats::readFormat(name)), "status");
}

/// In place of the platform's.
void tst_PictureFile::ownAllowanceHoldsForEveryFormat()
{
    for (const char* name : {"a.png", "a.jpg", "a.gif", "a.bmp", "a.wbmp"}) { // 60 by 40 pixels
        for (const qint64 pixels : {2399, 2400}) {
            KORVA_PictureFile file(path(name));
            file.setAllowance({pixels, {}});
            QVERIFY2(file.check(KORVA_Formats::readFormat(path(name))) == (pixels < 2400 ? -100 : 0), name);
        }
    }
    write(path("greater.gif"), support::gifOfFrames(QSize(9000, 8000), 1)); // than the platform allows
    KORVA_PictureFile greater(path("greater.gif"));
    QCOMPARE(greater.check("GIF"), -100);
    greater.setAllowance({72'000'000, {}});
    QCOMPARE(greater.check("GIF"), 0);
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
        QCOMPARE(KORVA_PictureFile::decoded(contents(path(name)), {}).size(), QSize(60, 40));
    QVERIFY(KORVA_PictureFile::decoded({}, {}).isNull());
    QVERIFY(KORVA_PictureFile::decoded("no picture", {}).isNull());
}

int main(int argc, char** argv)
{
    return support::run<tst_PictureFile>(argc, argv);
}

#include "tst_PictureFile.moc"
