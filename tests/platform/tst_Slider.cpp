#include "UTIL_Slider.h"
#include "support/TestCase.h"

namespace {

constexpr QSize handleSize(16, 10);

QPixmap plain(QSize size, const QColor& color)
{
    QPixmap picture(size);
    picture.fill(color);
    return picture;
}

/// A slider from 0 to 3 on a widget that could be a dialog: its handle is red, under a finger yellow.
struct Stage
{
    QWidget window;
    QPushButton other{"Other", &window};
    UTIL_Slider slider;

    explicit Stage(int maximum = 3, Qt::Orientation orientation = Qt::Horizontal,
                   const QPixmap& pressedHandle = plain(handleSize, Qt::yellow))
        : slider(plain(handleSize, Qt::red), pressedHandle, plain({162, 10}, Qt::gray), QPixmap(),
                 orientation, 0, maximum, 1, 0, &window, "slider")
    {
        window.setFixedSize(240, 320);
        slider.setGeometry(orientation == Qt::Horizontal ? QRect(46, 124, 162, 10)
                                                         : QRect(46, 24, 10, 162));
        window.show();
        window.activateWindow();
        other.setFocus();
        (void)QTest::qWaitForWindowActive(&window);
    }

    void pressWindow(QPoint at) { QTest::mousePress(&window, Qt::LeftButton, {}, at); }
    [[nodiscard]] QColor colorAt(QPoint at) { return slider.grab().toImage().pixelColor(at); }
};

} // namespace

class tst_Slider : public support::TestCase
{
    Q_OBJECT

private slots:
    void theConstructorsArgumentsAreKept()
    {
        const UTIL_Slider slider({}, {}, {}, {}, Qt::Horizontal, 2, 20, 3, 5, nullptr, "slider");
        QCOMPARE(slider.objectName(), QString("slider"));
        QCOMPARE(slider.minimum(), 2);
        QCOMPARE(slider.maximum(), 20);
        QCOMPARE(slider.singleStep(), 3);
        QCOMPARE(slider.value(), 5);
        QCOMPARE(slider.orientation(), Qt::Horizontal);
    }

    void aTapOnTheGrooveGoesThere_data()
    {
        QTest::addColumn<int>("maximum");
        QTest::addColumn<int>("x");
        QTest::addColumn<int>("value");
        QTest::newRow("left end") << 3 << 0 << 0;
        QTest::newRow("first third") << 3 << 57 << 1;
        QTest::newRow("second third") << 3 << 105 << 2;
        QTest::newRow("right end") << 3 << 161 << 3;
        QTest::newRow("two places, left half") << 1 << 70 << 0;
        QTest::newRow("two places, right half") << 1 << 92 << 1;
        QTest::newRow("256 places, left end") << 255 << 0 << 0;
        QTest::newRow("256 places, middle") << 255 << 81 << 127;
        QTest::newRow("256 places, right end") << 255 << 161 << 255;
    }

    void aTapOnTheGrooveGoesThere()
    {
        QFETCH(int, maximum);
        QFETCH(int, x);
        QFETCH(int, value);
        Stage stage(maximum);
        QTest::mouseClick(&stage.slider, Qt::LeftButton, {}, QPoint(x, 5));
        QVERIFY2(std::abs(stage.slider.value() - value) <= maximum / 255,
                 qPrintable(QString::number(stage.slider.value())));
        QVERIFY(!stage.slider.isSliderDown());
    }

    void theHandleFollowsThePointerFromWhereItWasHeld()
    {
        Stage stage(255);
        stage.slider.setValue(100);
        const QPoint hold = stage.slider.handleRect().topLeft() + QPoint(2, 5);
        QTest::mousePress(&stage.slider, Qt::LeftButton, {}, hold);
        QCOMPARE(stage.slider.value(), 100);
        QTest::mouseMove(&stage.slider, hold + QPoint(20, 40));
        QCOMPARE(stage.slider.handleRect().left(), hold.x() - 2 + 20);
        QTest::mouseMove(&stage.slider, QPoint(500, 0));
        QCOMPARE(stage.slider.value(), 255);
        QTest::mouseMove(&stage.slider, QPoint(-500, 0));
        QCOMPARE(stage.slider.value(), 0);
        QTest::mouseRelease(&stage.slider, Qt::LeftButton, {}, QPoint(-500, 0));
        QTest::mouseMove(&stage.slider, QPoint(80, 5));
        QCOMPARE(stage.slider.value(), 0);
    }

    void everyChangeIsTold()
    {
        Stage stage;
        QSignalSpy changed(&stage.slider, &QSlider::valueChanged);
        QTest::mouseClick(&stage.slider, Qt::LeftButton, {}, QPoint(161, 5));
        QTest::mouseClick(&stage.slider, Qt::LeftButton, {}, QPoint(161, 5));
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed[0][0].toInt(), 3);
    }

    void onlyTheLeftButtonMovesIt()
    {
        Stage stage;
        QTest::mouseClick(&stage.slider, Qt::RightButton, {}, QPoint(161, 5));
        QCOMPARE(stage.slider.value(), 0);
    }

    void aFingerBesideTheGrooveMovesIt_data()
    {
        QTest::addColumn<QPoint>("at");
        QTest::addColumn<bool>("caught");
        QTest::newRow("just above") << QPoint(207, 116) << true;
        QTest::newRow("just below") << QPoint(207, 141) << true;
        QTest::newRow("far above") << QPoint(207, 113) << false;
        QTest::newRow("far below") << QPoint(207, 144) << false;
        QTest::newRow("far to the right") << QPoint(220, 129) << false;
    }

    void aFingerBesideTheGrooveMovesIt()
    {
        QFETCH(QPoint, at);
        QFETCH(bool, caught);
        Stage stage;
        stage.pressWindow(at);
        QCOMPARE(stage.slider.value(), caught ? 3 : 0);
        QCOMPARE(stage.slider.hasFocus(), caught);
        QTest::mouseMove(&stage.window, QPoint(46, 200));
        QTest::mouseRelease(&stage.window, Qt::LeftButton, {}, QPoint(46, 200));
        QCOMPARE(stage.slider.value(), 0);
        QTest::mouseMove(&stage.window, at);
        QCOMPARE(stage.slider.value(), 0);
    }

    void aHiddenOrDisabledSliderIsNotCaughtFromBeside_data()
    {
        QTest::addColumn<bool>("hidden");
        QTest::newRow("hidden") << true;
        QTest::newRow("disabled") << false;
    }

    void aHiddenOrDisabledSliderIsNotCaughtFromBeside()
    {
        QFETCH(bool, hidden);
        Stage stage;
        hidden ? stage.slider.hide() : stage.slider.setEnabled(false);
        stage.pressWindow({207, 120});
        QCOMPARE(stage.slider.value(), 0);
    }

    void keysMoveIt_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<int>("value");
        QTest::newRow("Right") << Qt::Key_Right << 101;
        QTest::newRow("Up") << Qt::Key_Up << 101;
        QTest::newRow("Left") << Qt::Key_Left << 99;
        QTest::newRow("Down") << Qt::Key_Down << 99;
        QTest::newRow("Page Up") << Qt::Key_PageUp << 116;
        QTest::newRow("Page Down") << Qt::Key_PageDown << 84;
        QTest::newRow("Home") << Qt::Key_Home << 0;
        QTest::newRow("End") << Qt::Key_End << 255;
    }

    void keysMoveIt()
    {
        QFETCH(Qt::Key, key);
        QFETCH(int, value);
        Stage stage(255);
        stage.slider.setValue(100);
        stage.slider.setFocus();
        QTest::keyClick(stage.window.focusWidget(), key);
        QCOMPARE(stage.slider.value(), value);
    }

    void theHandleIsPaintedAtItsPlace()
    {
        Stage stage;
        QCOMPARE(stage.colorAt({5, 5}), QColor(Qt::red));
        QCOMPARE(stage.colorAt({100, 5}), QColor(Qt::gray));
        stage.slider.setValue(3);
        QCOMPARE(stage.slider.handleRect(), QRect(QPoint(162 - 16, 0), handleSize));
        QCOMPARE(stage.colorAt({5, 5}), QColor(Qt::gray));
        QCOMPARE(stage.colorAt({160, 5}), QColor(Qt::red));
    }

    void theHandleUnderAFingerHasItsOwnPicture()
    {
        Stage stage;
        QTest::mousePress(&stage.slider, Qt::LeftButton, {}, QPoint(5, 5));
        QCOMPARE(stage.colorAt({5, 5}), QColor(Qt::yellow));
        QTest::mouseRelease(&stage.slider, Qt::LeftButton, {}, QPoint(5, 5));
        QCOMPARE(stage.colorAt({5, 5}), QColor(Qt::red));
    }

    void withoutAPressedPictureTheHandleStaysAsItIs()
    {
        Stage stage(3, Qt::Horizontal, QPixmap());
        QTest::mousePress(&stage.slider, Qt::LeftButton, {}, QPoint(5, 5));
        QCOMPARE(stage.colorAt({5, 5}), QColor(Qt::red));
    }

    void focusShowsAroundIt()
    {
        Stage stage;
        const QPoint beside(127, 122);
        const QColor before = stage.window.grab().toImage().pixelColor(beside - QPoint(0, 2));
        stage.slider.setFocus();
        QVERIFY(stage.window.grab().toImage().pixelColor(beside - QPoint(0, 2)) != before);
        stage.other.setFocus();
        QCOMPARE(stage.window.grab().toImage().pixelColor(beside - QPoint(0, 2)), before);
    }

    void anUprightSliderStartsAtItsFoot()
    {
        Stage stage(3, Qt::Vertical);
        QTest::mouseClick(&stage.slider, Qt::LeftButton, {}, QPoint(5, 161));
        QCOMPARE(stage.slider.value(), 0);
        QTest::mouseClick(&stage.slider, Qt::LeftButton, {}, QPoint(5, 0));
        QCOMPARE(stage.slider.value(), 3);
        QCOMPARE(stage.slider.handleRect().top(), 0);
    }
};

int main(int argc, char** argv)
{
    return support::run<tst_Slider>(argc, argv);
}

#include "tst_Slider.moc"
