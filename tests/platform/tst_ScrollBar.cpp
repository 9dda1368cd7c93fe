#include "UTIL_ScrollBar.h"
#include "UTIL_Skin.h"
#include "support/TestCase.h"

namespace {

constexpr int thickness = 15;
constexpr int length = 150;

struct Bar : UTIL_ScrollBar
{
    explicit Bar(Qt::Orientation orientation, int maximum = 100) : UTIL_ScrollBar(orientation, nullptr)
    {
        setRange(0, maximum);
        setPageStep(20);
        resize(orientation == Qt::Horizontal ? QSize(length, thickness) : QSize(thickness, length));
        show();
    }

    /// The colour in the middle of the bar's thickness, so far along it.
    [[nodiscard]] QColor colorAlong(int distance)
    {
        const QPoint at(distance, thickness / 2);
        return grab().toImage().pixelColor(orientation() == Qt::Horizontal ? at : at.transposed());
    }
    [[nodiscard]] QRect slider() const
    {
        QStyleOptionSlider option;
        initStyleOption(&option);
        return style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, this);
    }
    [[nodiscard]] int sliderCentre() const
    {
        return orientation() == Qt::Horizontal ? slider().center().x() : slider().center().y();
    }
};

const QColor ground = UTIL_Skin::color(UTIL_Skin::Color::Ground);
const QColor handle = UTIL_Skin::look(UTIL_Skin::Control::Key, UTIL_Skin::State::Resting).border;
const QColor held = UTIL_Skin::look(UTIL_Skin::Control::Key, UTIL_Skin::State::Pressed).border;

} // namespace

class tst_ScrollBar : public support::TestCase
{
    Q_OBJECT

private slots:
    void theSliderIsWhereTheValueIs_data()
    {
        QTest::addColumn<Qt::Orientation>("orientation");
        QTest::newRow("lying") << Qt::Horizontal;
        QTest::newRow("standing") << Qt::Vertical;
    }

    void theSliderIsWhereTheValueIs()
    {
        QFETCH(const Qt::Orientation, orientation);
        Bar bar(orientation);
        const int atStart = bar.sliderCentre();
        QCOMPARE(bar.colorAlong(atStart), handle);
        bar.setValue(100);
        QVERIFY(bar.sliderCentre() > atStart + 40);
        QCOMPARE(bar.colorAlong(bar.sliderCentre()), handle);
        QCOMPARE(bar.colorAlong(atStart), ground);
    }

    void arrowsPointOutwards_data() { theSliderIsWhereTheValueIs_data(); }
    void arrowsPointOutwards()
    {
        QFETCH(const Qt::Orientation, orientation);
        Bar bar(orientation, 0); // no slider: all ink is the arrows'
        QImage image = bar.grab().toImage();
        if (orientation == Qt::Vertical)
            image = image.transformed(QTransform(0, 1, 1, 0, 0, 0));
        const auto inked = [&image](int x) {
            QList<int> rows;
            for (int y = 0; y < image.height(); ++y) {
                if (image.pixelColor(x, y).lightness() < 150)
                    rows << y;
            }
            return rows;
        };
        QList<int> columns;
        for (int x = 0; x < image.width(); ++x) {
            if (!inked(x).isEmpty())
                columns << x;
        }
        QVERIFY(columns.size() > 4);
        // A tip is one short stroke, the open end two that stand apart.
        const auto spread = [&](int x) { return inked(x).constLast() - inked(x).constFirst(); };
        const int middle = length / 2;
        const auto firstBehind =
            std::find_if(columns.begin(), columns.end(), [](int x) { return x > middle; });
        QVERIFY(firstBehind != columns.begin() && firstBehind != columns.end());
        QVERIFY(spread(columns.constFirst()) < spread(*(firstBehind - 1)));
        QVERIFY(spread(columns.constLast()) < spread(*firstBehind));
    }

    void aDragMovesTheValueAndIsSeen()
    {
        Bar bar(Qt::Vertical);
        const QPoint on = bar.slider().center();
        QTest::mousePress(&bar, Qt::LeftButton, {}, on);
        QTest::mouseMove(&bar, on + QPoint(0, 40));
        QVERIFY(bar.value() > 20);
        QCOMPARE(bar.colorAlong(bar.sliderCentre()), held);
        QTest::mouseRelease(&bar, Qt::LeftButton, {}, on + QPoint(0, 40));
    }

    void withoutARangeThereIsNoSlider()
    {
        Bar bar(Qt::Horizontal, 0);
        QCOMPARE(bar.colorAlong(length / 2), ground);
    }
};

int main(int argc, char** argv)
{
    return support::run<tst_ScrollBar>(argc, argv);
}

#include "tst_ScrollBar.moc"
