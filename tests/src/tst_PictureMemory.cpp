#include "KORVA_Formats.h"
#include "KORVA_PictureFile.h"
#include "support/Peak.h"
#include "support/PictureFiles.h"
#include "support/TestCase.h"

namespace {

#ifdef __SANITIZE_ADDRESS__
/// The picture itself; less would mean that nothing was counted.
constexpr qint64 leastBytes = 352 * 264 * 2;
#else
constexpr qint64 leastBytes = 0; // what was freed before may serve
#endif

constexpr qint64 megabyte = 1'000'000;

} // namespace

/// Opening a photograph of twelve megapixels must not cost what its pixels take.
class tst_PictureMemory : public support::TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();

    void openingStaysSmall_data();
    void openingStaysSmall();

private:
    [[nodiscard]] QString path(const QString& name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
};

void tst_PictureMemory::initTestCase()
{
    QVERIFY(support::convert({"-size", "1000x750", "-seed", "1", "plasma:red-blue", "-depth", "8",
                              "-sample", "400%", "-define", "png:compression-level=1", path("photo.png")}));
}

void tst_PictureMemory::openingStaysSmall_data()
{
    QTest::addColumn<QStringList>("making");
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("megabytes");
    QTest::addRow("JPEG") << QStringList{"-sampling-factor", "2x2"} << "it.jpg" << 4;
    QTest::addRow("JPEG, progressive")
        << QStringList{"-sampling-factor", "2x2", "-interlace", "JPEG"} << "it.jpg" << 12;
    QTest::addRow("PNG, 24 bits") << QStringList() << "PNG24:it.png" << 90;
    QTest::addRow("PNG, 64 bits") << QStringList{"-depth", "16", "-alpha", "set"} << "PNG64:it.png" << 90;
    QTest::addRow("PNG, interlaced") << QStringList{"-interlace", "PNG"} << "PNG24:it.png" << 90;
}

void tst_PictureMemory::openingStaysSmall()
{
    QFETCH(QStringList, making);
    QFETCH(QString, file);
    QFETCH(int, megabytes);
    const QString name = path(file.section(':', -1));
    const QString variety = file.contains(':') ? file.section(':', 0, 0) + ':' : QString();
    QVERIFY(support::convert(QStringList{path("photo.png")} + making +
                             QStringList{"-define", "png:compression-level=1", variety + name}));
    const support::Peak peak;
    KORVA_PictureFile picture(name);
    QCOMPARE(picture.check(KORVA_Formats::readFormat(name)), 0);
    QPixmap opened;
    QVERIFY(KORVA_WorkingLimits().convert(picture.take(), &opened));
    const qint64 bytes = peak.bytes();
    qInfo("%lld bytes", static_cast<long long>(bytes));
    QCOMPARE(opened.size(), QSize(352, 264));
    QVERIFY2(bytes >= leastBytes && bytes < megabytes * megabyte, qPrintable(QString::number(bytes)));
}

int main(int argc, char** argv)
{
    return support::run<tst_PictureMemory>(argc, argv);
}

#include "tst_PictureMemory.moc"
