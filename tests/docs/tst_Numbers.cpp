#include "Blocks.h"
#include "support/TestCase.h"

#include <KORVA_Journal.h>
#include <UTIL_Platform.h>

using docs::captured;

namespace {

/// A number of the code, which may be written as a product or a shifted one.
qint64 constant(const QString& file, const QString& name)
{
    const QStringList found =
        captured(docs::contents(file), qPrintable("constexpr [^;=]*\\b" + name + " = ([^;]+);"));
    const QString text = found.value(0).remove('\'');
    const QStringList shifted = text.split(" << ");
    qint64 number = 1;
    for (const QString& factor : shifted[0].split(" * "))
        number *= factor.toLongLong();
    number <<= shifted.value(1).toInt();
    if (found.size() != 1 || number <= 0)
        QTest::qFail(qPrintable(file + " has no such number: " + name), __FILE__, __LINE__);
    return number;
}

QList<qint64> numbersIn(const QString& text)
{
    QList<qint64> numbers;
    for (QString digits : captured(text, "(\\d[\\d,]*)"))
        numbers << digits.remove(',').toLongLong();
    return numbers;
}

} // namespace

/// The numbers in the documents are those of the code.
class tst_Numbers : public support::TestCase
{
    Q_OBJECT

private slots:
    void limitsAreThoseOfTheCode();
};

void tst_Numbers::limitsAreThoseOfTheCode()
{
    const UTIL_Platform* desktop = UTIL_Platform::instance();
    const QSize box = desktop->workingBox();
    const QString sides =
        captured(docs::contents("src/KORVA_WorkingLimits.cpp"), "constexpr QSize mostBox\\((.*)\\);")
            .value(0);
    const qint64 ofToolkit = (qint64(QImageReader::allocationLimit()) << 20) / 4;
    const std::pair<const char*, QList<qint64>> limits[] = {
        {"pixels of a picture", {desktop->pixelLimit()}},
        {"passes of a JPEG", {constant("platform/UTIL_PictureProbe.cpp", "mostPasses")}},
        {"pixels of all passes of a JPEG",
         {constant("platform/UTIL_PictureProbe.cpp", "mostPixelsPassed")}},
        {"frames of a GIF", {constant("platform/UTIL_GifParser.cpp", "mostFrames")}},
        {"packed BMP and WBMP", {4, ofToolkit}},
        {"bytes that a row of a PNG",
         {constant("platform/UTIL_PngReader.cpp", "mostBeside"),
          constant("platform/UTIL_PngReader.cpp", "mostBytes")}},
        {"pixels that a preview", {constant("platform/UTIL_Thumbnails.cpp", "mostPixels")}},
        {"working size of a drawing", QList<qint64>{box.width(), box.height()} + numbersIn(sides)},
        {"what zooming and stretching", {constant("src/KORVA_Limit.h", "always")}},
        {"earlier drawings that are kept", {KORVA_Journal::mostEarlier}},
    };
    const QString table =
        docs::contents("docs/security.md").section("\n## Limits", 1).section("\n## ", 0, 0);
    const QStringList rows = captured(table, "^\\| (?!limit|-)(.*) \\|$");
    QCOMPARE(rows.size(), qsizetype(std::size(limits)));
    for (qsizetype i = 0; i < rows.size(); ++i) {
        const QStringList cells = rows[i].split(" | ");
        QVERIFY2(cells[0].startsWith(limits[i].first), qPrintable(rows[i]));
        QVERIFY2(numbersIn(cells[1]) == limits[i].second, qPrintable(rows[i]));
    }

    const QString patience = QString("for %1 ms").arg(constant("platform/UTIL_WaitBox.cpp", "patience"));
    QVERIFY(docs::contents("docs/embedding.md").contains(patience));
    QCOMPARE(constant("src/KORVA_PictureFile.cpp", "smallFile"), 64 * 1024);
    QCOMPARE(constant("src/KORVA_PictureFile.cpp", "smallPicture"), 1'000'000);
    QVERIFY(docs::contents("docs/embedding.md").contains("more than 64 KB or a million pixels"));
}

int main(int argc, char** argv)
{
    return support::run<tst_Numbers>(argc, argv);
}

#include "tst_Numbers.moc"
