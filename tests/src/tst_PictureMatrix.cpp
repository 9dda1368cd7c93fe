#include "KORVA_Formats.h"
#include "KORVA_PictureFile.h"
#include "support/PictureFiles.h"
#include "support/TestCase.h"

/// Every kind of picture file that can be opened, compared with what an independent decoder sees in it.
class tst_PictureMatrix : public support::TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();

    void openedPictureIsWhatOthersSee_data();
    void openedPictureIsWhatOthersSee();

private:
    [[nodiscard]] QString path(const QString& name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
};

namespace {

/// What 16 bits a pixel cannot tell apart, and a little for the decoders' own rounding.
constexpr int rounding = 9;

struct Row
{
    const char* name;
    const char* making; ///< convert's options, separated by blanks
    const char* file;   ///< with the prefix that names its variety
    int tolerance = rounding;
};

const Row rows[] = {
    {"PNG, 1 bit of grey", "-monochrome", "PNG:a.png"},
    {"PNG, 2 bits of grey", "-colorspace Gray +dither -posterize 4 -depth 2 -type Grayscale", "PNG:a.png"},
    {"PNG, 4 bits of grey", "-colorspace Gray +dither -posterize 16 -depth 4 -type Grayscale", "PNG:a.png"},
    {"PNG, 8 bits of grey", "-colorspace Gray", "PNG:a.png"},
    {"PNG, 16 bits of grey", "-colorspace Gray -depth 16", "PNG:a.png"},
    {"PNG, grey with alpha", "-colorspace Gray -alpha set -channel A -evaluate set 40% +channel",
     "PNG:a.png"},
    {"PNG, palette of 2", "+dither -colors 2 -type Palette", "PNG8:a.png"},
    {"PNG, palette of 4", "+dither -colors 4 -type Palette", "PNG8:a.png"},
    {"PNG, palette of 16", "+dither -colors 16 -type Palette", "PNG8:a.png"},
    {"PNG, palette of 256", "+dither -colors 256 -type Palette", "PNG8:a.png"},
    {"PNG, palette with a transparent colour", "+dither -colors 16 -transparent yellow", "PNG8:a.png"},
    {"PNG, 24 bits", "", "PNG24:a.png"},
    {"PNG, 32 bits", "-alpha set -channel A -evaluate set 70% +channel", "PNG32:a.png"},
    {"PNG, 48 bits", "-depth 16", "PNG48:a.png"},
    {"PNG, 64 bits", "-depth 16 -alpha set -channel A -evaluate set 70% +channel", "PNG64:a.png"},
    {"PNG, interlaced, 24 bits", "-interlace PNG", "PNG24:a.png"},
    {"PNG, interlaced, palette", "-interlace PNG +dither -colors 16", "PNG8:a.png"},
    {"PNG, interlaced, 48 bits", "-interlace PNG -depth 16", "PNG48:a.png"},
    {"GIF, 1 bit", "+dither -colors 2", "a.gif"},
    {"GIF, 4 bits", "+dither -colors 16", "a.gif"},
    {"GIF, 8 bits", "+dither -colors 256", "a.gif"},
    {"GIF, interlaced", "+dither -colors 256 -interlace GIF", "a.gif"},
    {"GIF, grey", "-colorspace Gray", "a.gif"},
    {"BMP, 1 bit", "-monochrome", "BMP3:a.bmp"},
    {"BMP, 4 bits", "+dither -colors 16 -compress None", "BMP3:a.bmp"},
    {"BMP, 8 bits", "+dither -colors 256 -compress None", "BMP3:a.bmp"},
    {"BMP, 8 bits, packed", "+dither -colors 256 -compress RLE", "BMP3:a.bmp"},
    {"BMP, grey", "-colorspace Gray", "BMP3:a.bmp"},
    {"BMP, 16 bits", "-define bmp:subtype=RGB565", "BMP:a.bmp"},
    {"BMP, 24 bits", "-type TrueColor", "BMP3:a.bmp"},
    {"BMP, 24 bits, the oldest header", "-type TrueColor", "BMP2:a.bmp"},
    {"BMP, 32 bits", "-alpha set -channel A -evaluate set 70% +channel", "BMP:a.bmp"},
    {"JPEG, 24 bits", "-sampling-factor 1x1", "a.jpg"},
    {"JPEG, colour at half the size", "-sampling-factor 2x2", "a.jpeg"},
    {"JPEG, progressive", "-interlace JPEG", "a.jpe"},
    {"JPEG, grey", "-colorspace Gray", "a.jpg"},
    {"JPEG, CMYK", "-colorspace CMYK", "a.jpg", 2 * rounding},
    {"WBMP", "-monochrome", "a.wbmp"},
};

} // namespace

void tst_PictureMatrix::initTestCase()
{
    // Soft colours with hard edges; sides that no byte, block or pass of interlacing divides.
    QVERIFY(support::convert({"-size", "83x61", "gradient:#e03020-#20a0f0", "-fill", "yellow", "-draw",
                              "rectangle 10,8 40,30", "-fill", "black", "-draw", "line 0,60 82,0", "-depth",
                              "8", path("source.png")}));
}

void tst_PictureMatrix::openedPictureIsWhatOthersSee_data()
{
    QTest::addColumn<QString>("making");
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("orientation"); // 0: not noted
    QTest::addColumn<int>("tolerance");
    for (const Row& row : rows)
        QTest::addRow("%s", row.name) << QString(row.making) << QString(row.file) << 0 << row.tolerance;
    for (int orientation = 1; orientation <= 8; ++orientation)
        QTest::addRow("JPEG, orientation %d", orientation)
            << QString() << "a.jpg" << orientation << rounding;
}

void tst_PictureMatrix::openedPictureIsWhatOthersSee()
{
    QFETCH(QString, making);
    QFETCH(QString, file);
    QFETCH(int, orientation);
    QFETCH(int, tolerance);
    const QString name = path(file.section(':', -1));
    const QString variety = file.contains(':') ? file.section(':', 0, 0) + ':' : QString();
    const QStringList options = making.split(' ', Qt::SkipEmptyParts);
    QVERIFY(support::convert(QStringList{path("source.png")} + options + QStringList{variety + name}));
    if (orientation > 0)
        support::write(name, support::withOrientation(support::contents(name), orientation));

    KORVA_PictureFile picture(name);
    QCOMPARE(picture.check(KORVA_Formats::readFormat(name)), 0);
    QPixmap opened;
    QVERIFY(KORVA_WorkingLimits().convert(picture.take(), &opened));
    const support::Distance distance = support::distance(opened.toImage(), support::converted(name));
    QVERIFY2(distance.greatest <= tolerance,
             qPrintable(QString("%1, on the average %2").arg(distance.greatest).arg(distance.mean)));
}

int main(int argc, char** argv)
{
    return support::run<tst_PictureMatrix>(argc, argv);
}

#include "tst_PictureMatrix.moc"
