#include "KORVA_WorkingLimits.h"
#include "UTIL_Platform.h"
#include "support/Images.h"
#include "support/TestCase.h"

#include <memory>

namespace {

/// What a host asks for.
class Device : public UTIL_Platform
{
public:
    Device(QSize box, int depth) : m_box(box), m_depth(depth) {}

    [[nodiscard]] QSize workingBox() const override { return m_box; }
    [[nodiscard]] int workingDepth() const override { return m_depth; }

private:
    QSize m_box;
    int m_depth;
};

} // namespace

class tst_WorkingLimits : public support::TestCase
{
    Q_OBJECT

private slots:
    void cleanup() { UTIL_Platform::install(nullptr); }

    void workingSize_data();
    void workingSize();
    void workingDepth_data();
    void workingDepth();
    void fullColorsStay_data();
    void fullColorsStay();
    void platformDecides_data();
    void platformDecides();
    void nullPictureIsNotConverted();
};

void tst_WorkingLimits::workingSize_data()
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

void tst_WorkingLimits::workingSize()
{
    QFETCH(QSize, size);
    QTEST(KORVA_WorkingLimits().sizeOf(size), "working");
}

void tst_WorkingLimits::workingDepth_data()
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

void tst_WorkingLimits::workingDepth()
{
    QFETCH(int, from);
    QFETCH(QSize, size);
    QFETCH(int, to);
    const QImage image = support::mosaic(size).convertToFormat(QImage::Format(from));
    const QImage working = KORVA_WorkingLimits().fitted(image);
    QCOMPARE(working.depth(), to);
    if (to == 16)
        QCOMPARE(working.format(), QImage::Format_RGB16);
    QCOMPARE(working.size(), KORVA_WorkingLimits().sizeOf(size));
}

void tst_WorkingLimits::fullColorsStay_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    const std::tuple<const char*, QImage::Format, QImage::Format> rows[] = {
        {"1 bit", QImage::Format_Mono, QImage::Format_RGB32},
        {"8 bits", QImage::Format_Indexed8, QImage::Format_Indexed8},
        {"16 bits", QImage::Format_RGB16, QImage::Format_RGB16},
        {"24 bits", QImage::Format_RGB888, QImage::Format_RGB888},
        {"32 bits", QImage::Format_RGB32, QImage::Format_RGB32},
        {"64 bits", QImage::Format_RGBX64, QImage::Format_RGB32},
    };
    for (const auto& [name, from, to] : rows)
        QTest::addRow("%s", name) << int(from) << int(to);
}

void tst_WorkingLimits::fullColorsStay()
{
    QFETCH(int, from);
    const KORVA_WorkingLimits limits{{2048, 2048}, 24};
    const QImage image = support::mosaic({400, 300}).convertToFormat(QImage::Format(from));
    const QImage fitted = limits.fitted(image);
    QTEST(int(fitted.format()), "to");
    QPixmap pixmap;
    QVERIFY(limits.convert(image, &pixmap));
    QVERIFY(support::sameImage(pixmap.toImage().convertToFormat(QImage::Format_RGB32),
                               image.convertToFormat(QImage::Format_RGB32)));
}

void tst_WorkingLimits::platformDecides_data()
{
    QTest::addColumn<QSize>("box");
    QTest::addColumn<int>("depth");
    QTest::addColumn<QSize>("boxInForce");
    QTest::addColumn<int>("depthInForce");
    QTest::addRow("a desktop") << QSize(2048, 1024) << 24 << QSize(2048, 1024) << 24;
    QTest::addRow("a smaller one") << QSize(120, 100) << 16 << QSize(120, 100) << 16;
    QTest::addRow("too large") << QSize(10000, 5000) << 32 << QSize(4096, 4096) << 24;
    QTest::addRow("nonsense") << QSize(0, -3) << 0 << QSize(352, 288) << 16;
}

void tst_WorkingLimits::platformDecides()
{
    QFETCH(QSize, box);
    QFETCH(int, depth);
    UTIL_Platform::install(std::make_unique<Device>(box, depth));
    QTEST(KORVA_WorkingLimits::ofPlatform().box, "boxInForce");
    QTEST(KORVA_WorkingLimits::ofPlatform().depth, "depthInForce");
    UTIL_Platform::install(nullptr);
    QCOMPARE(KORVA_WorkingLimits::ofPlatform().box, QSize(352, 288));
    QCOMPARE(KORVA_WorkingLimits::ofPlatform().depth, 16);
}

void tst_WorkingLimits::nullPictureIsNotConverted()
{
    QPixmap pixmap;
    QVERIFY(!KORVA_WorkingLimits().convert({}, &pixmap));
}

int main(int argc, char** argv)
{
    return support::run<tst_WorkingLimits>(argc, argv);
}

#include "tst_WorkingLimits.moc"
