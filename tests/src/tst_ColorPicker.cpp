#include "KORVA_ColorPicker.h"
#include "support/Modal.h"
#include "support/TestCase.h"

namespace {

/// The sliders from top to bottom, hidden ones too.
QList<QAbstractSlider*> sliders(const QDialog& dialog)
{
    QList<QAbstractSlider*> all = dialog.findChildren<QAbstractSlider*>();
    std::sort(all.begin(), all.end(), [](const auto* a, const auto* b) { return a->y() < b->y(); });
    return all;
}

QColor swatchColor(const QDialog& dialog)
{
    for (const QLabel* label : dialog.findChildren<QLabel*>())
        if (label->geometry() == QRect(68, 36, 80, 80))
            return label->pixmap().toImage().pixelColor(40, 40);
    return {};
}

QList<int> positions(const QDialog& dialog)
{
    QList<int> result;
    for (const QAbstractSlider* slider : sliders(dialog))
        result << slider->value();
    return result;
}

QColor pick(int type, const QColor& color, const std::function<void(QDialog&)>& work)
{
    support::whenOpen(work);
    return KORVA_ColorPicker::getColor(KORVA_COLORTYPE(type), color);
}

/// Takes a slider to its right end.
void maximise(QDialog& dialog, int channel, bool byKeyboard)
{
    QAbstractSlider* slider = sliders(dialog)[channel];
    if (!byKeyboard) {
        QTest::mouseClick(slider, Qt::LeftButton, {}, QPoint(slider->width() - 1, slider->height() / 2));
        return;
    }
    while (dialog.focusWidget() != slider)
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
    for (int i = slider->value(); i < slider->maximum(); ++i)
        QTest::keyClick(slider, Qt::Key_Right);
}

} // namespace

class tst_ColorPicker : public support::TestCase
{
    Q_OBJECT

private slots:
    void theDialogIsAsDesigned()
    {
        (void)pick(KORVA_COLOR_16BIT, Qt::red, [](QDialog& dialog) {
            QVERIFY(dialog.isModal());
            QVERIFY(dialog.width() <= 240 && dialog.height() <= 320);
            QCOMPARE(support::labels(dialog), QStringList({"Color", "R", "G", "B"}));
            QList<QRect> captions;
            for (const QLabel* label : dialog.findChildren<QLabel*>())
                if (label->text().size() == 1)
                    captions << label->geometry();
            QCOMPARE(captions, QList<QRect>({{21, 121, 32, 24}, {21, 150, 32, 24}, {21, 179, 32, 24}}));
            QVERIFY(support::button(dialog, "OK")->x() < support::button(dialog, "Cancel")->x());
            QStringList names;
            for (const QAbstractSlider* slider : sliders(dialog)) {
                QCOMPARE(slider->minimum(), 0);
                QCOMPARE(slider->singleStep(), 1);
                QCOMPARE(slider->orientation(), Qt::Horizontal);
                names << slider->accessibleName();
            }
            QCOMPARE(names, QStringList({"Red", "Green", "Blue"}));
            dialog.reject();
        });
    }

    void theColourTypeDecidesTheSliders_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<int>("shown");
        QTest::addColumn<int>("maximum");
        QTest::addColumn<int>("height");
        QTest::newRow("1 bit") << 0 << 1 << 1 << 10;
        QTest::newRow("4 bits") << 1 << 1 << 3 << 10;
        QTest::newRow("8 bits") << 2 << 3 << 3 << 10;
        QTest::newRow("16 bits") << 3 << 3 << 255 << 20;
        QTest::newRow("above 3") << 4 << 3 << 255 << 20;
        QTest::newRow("far above 3") << 99 << 3 << 255 << 20;
        QTest::newRow("below 0") << -1 << 3 << 255 << 20;
    }

    void theColourTypeDecidesTheSliders()
    {
        QFETCH(int, type);
        QFETCH(int, shown);
        QFETCH(int, maximum);
        QFETCH(int, height);
        (void)pick(type, Qt::red, [&](QDialog& dialog) {
            const QList<QAbstractSlider*> all = dialog.findChildren<QAbstractSlider*>();
            QCOMPARE(all.size(), 3);
            constexpr std::array<int, 3> tops = {124, 153, 182};
            int visible = 0;
            for (const QAbstractSlider* slider : all) {
                QCOMPARE(slider->maximum(), maximum);
                if (slider->isVisible()) {
                    QCOMPARE(slider->geometry(), QRect(46, tops[size_t(visible)], 162, height));
                    ++visible;
                }
            }
            QCOMPARE(visible, shown);
            dialog.reject();
        });
    }

    void itOpensWithTheColour_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QColor>("color");
        QTest::addColumn<QList<int>>("start");
        QTest::addColumn<QColor>("swatch");
        const auto same = [](int position) { return QList<int>{position, position, position}; };
        const QColor cyan(0, 255, 255);
        QTest::newRow("1 bit, black") << 0 << QColor(Qt::black) << same(0) << QColor(Qt::black);
        QTest::newRow("1 bit, white") << 0 << QColor(Qt::white) << same(1) << QColor(Qt::white);
        QTest::newRow("1 bit, dark grey") << 0 << QColor(Qt::darkGray) << same(1) << QColor(Qt::white);
        QTest::newRow("1 bit, nearly black") << 0 << QColor(0, 0, 1) << same(1) << QColor(Qt::white);
        QTest::newRow("4 bits, red 63") << 1 << QColor(63, 9, 9) << same(0) << QColor(63, 9, 9);
        QTest::newRow("4 bits, red 64") << 1 << QColor(64, 9, 9) << same(1) << QColor(64, 9, 9);
        QTest::newRow("4 bits, red 191") << 1 << QColor(191, 9, 9) << same(2) << QColor(191, 9, 9);
        QTest::newRow("8 bits, red 192") << 2 << QColor(192, 0, 0) << same(3) << QColor(192, 0, 0);
        QTest::newRow("8 bits, no red") << 2 << cyan << same(0) << cyan;
        QTest::newRow("16 bits") << 3 << QColor(12, 34, 56) << QList<int>{12, 34, 56} << QColor(12, 34, 56);
        QTest::newRow("above 3") << 7 << QColor(12, 34, 56) << QList<int>{12, 34, 56} << QColor(12, 34, 56);
    }

    void itOpensWithTheColour()
    {
        QFETCH(int, type);
        QFETCH(QColor, color);
        QFETCH(QList<int>, start);
        QFETCH(QColor, swatch);
        (void)pick(type, color, [&](QDialog& dialog) {
            QList<int> given = positions(dialog);
            std::sort(given.begin(), given.end());
            QCOMPARE(given, start); // ascending in every row
            if (sliders(dialog)[2]->isVisible())
                QCOMPARE(positions(dialog), start);
            QCOMPARE(swatchColor(dialog), swatch);
            dialog.reject();
        });
    }

    void aPositionIsAChannelValue_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QList<int>>("positions");
        QTest::addColumn<QList<int>>("values");
        QTest::newRow("1 bit") << 0 << QList<int>{0, 1, 2, -1, 3} << QList<int>{0, 255, 0, 0, 0};
        const QList<int> twoBits = {0, 1, 2, 3, 4, -1};
        QTest::newRow("4 bits") << 1 << twoBits << QList<int>{0, 85, 170, 255, 0, 0};
        QTest::newRow("8 bits") << 2 << twoBits << QList<int>{0, 85, 170, 255, 0, 0};
        QTest::newRow("16 bits") << 3 << QList<int>{0, 1, 200, 255} << QList<int>{0, 1, 200, 255};
        QTest::newRow("above 3") << 4 << QList<int>{0, 1, 200, 255} << QList<int>{0, 1, 200, 255};
    }

    void aPositionIsAChannelValue()
    {
        QFETCH(int, type);
        QFETCH(QList<int>, positions);
        QFETCH(QList<int>, values);
        KORVA_ColorPicker picker(KORVA_COLORTYPE(type), Qt::red);
        QList<int> given;
        for (const int position : positions)
            given << picker.CalActualValue(position);
        QCOMPARE(given, values);
    }

    void acceptingAtOnceReturnsTheColour_data() { support::addWays(); }

    void acceptingAtOnceReturnsTheColour()
    {
        QFETCH(bool, byKeyboard);
        const QColor given = pick(KORVA_COLOR_16BIT, QColor(12, 34, 56),
                                  [&](QDialog& dialog) { support::press(dialog, "OK", byKeyboard); });
        QCOMPARE(given, QColor(12, 34, 56));
    }

    void acceptingAtOnceWithOneBitReturnsBlackOrWhite()
    {
        const auto accept = [](QDialog& dialog) { dialog.accept(); };
        QCOMPARE(pick(KORVA_COLOR_1BIT, Qt::darkGray, accept), QColor(Qt::white));
        QCOMPARE(pick(KORVA_COLOR_1BIT, Qt::black, accept), QColor(Qt::black));
    }

    void cancellingReturnsTheColourPassedIn_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<bool>("byKeyboard");
        for (int type = 0; type < 4; ++type) {
            QTest::addRow("type %d by pointer", type) << type << false;
            QTest::addRow("type %d by keyboard", type) << type << true;
        }
    }

    void cancellingReturnsTheColourPassedIn()
    {
        QFETCH(int, type);
        QFETCH(bool, byKeyboard);
        const QColor passed(10, 200, 30, 77);
        const QColor given = pick(type, passed, [&](QDialog& dialog) {
            const QColor before = swatchColor(dialog);
            if (type > 0) {
                maximise(dialog, 0, byKeyboard);
                QVERIFY(swatchColor(dialog) != before);
            }
            support::press(dialog, "Cancel", byKeyboard);
        });
        QCOMPARE(given, passed);
    }

    void closingReturnsTheColourPassedIn()
    {
        const QColor given = pick(KORVA_COLOR_16BIT, QColor(1, 2, 3), [](QDialog& dialog) {
            maximise(dialog, 1, false);
            dialog.close();
        });
        QCOMPARE(given, QColor(1, 2, 3));
    }

    void aSliderChangesItsChannelOnly_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<int>("channel");
        QTest::addColumn<bool>("byKeyboard");
        QTest::addColumn<QColor>("result");
        const QColor start(10, 20, 30);
        for (const bool byKeyboard : {false, true}) {
            const char* way = byKeyboard ? "keyboard" : "pointer";
            for (const int type : {2, 3}) {
                QTest::addRow("type %d, red by %s", type, way)
                    << type << 0 << byKeyboard << QColor(255, 20, 30);
                QTest::addRow("type %d, green by %s", type, way)
                    << type << 1 << byKeyboard << QColor(10, 255, 30);
                QTest::addRow("type %d, blue by %s", type, way)
                    << type << 2 << byKeyboard << QColor(10, 20, 255);
            }
            QTest::addRow("type 1, red by %s", way) << 1 << 0 << byKeyboard << QColor(255, 20, 30);
        }
    }

    void aSliderChangesItsChannelOnly()
    {
        QFETCH(int, type);
        QFETCH(int, channel);
        QFETCH(bool, byKeyboard);
        QFETCH(QColor, result);
        const QColor given = pick(type, QColor(10, 20, 30), [&](QDialog& dialog) {
            maximise(dialog, channel, byKeyboard);
            QCOMPARE(swatchColor(dialog), result);
            support::press(dialog, "OK", byKeyboard);
        });
        QCOMPARE(given, result);
    }

    void withOneBitOnlyRedCanBeTakenAway_data() { support::addWays(); }

    void withOneBitOnlyRedCanBeTakenAway()
    {
        QFETCH(bool, byKeyboard);
        const QColor given = pick(KORVA_COLOR_1BIT, Qt::white, [&](QDialog& dialog) {
            if (byKeyboard)
                QTest::keyClick(dialog.focusWidget(), Qt::Key_Left);
            else
                QTest::mouseClick(sliders(dialog)[0], Qt::LeftButton, {}, QPoint(4, 5));
            support::press(dialog, "OK", byKeyboard);
        });
        QCOMPARE(given, QColor(0, 255, 255));
    }

    void theSwatchIsFilledWhole()
    {
        (void)pick(KORVA_COLOR_16BIT, QColor(12, 34, 56), [](QDialog& dialog) {
            const QImage image = dialog.grab(QRect(68, 36, 80, 80)).toImage();
            QImage expected(image.size(), image.format());
            expected.fill(QColor(12, 34, 56));
            QCOMPARE(image, expected);
            dialog.reject();
        });
    }

    void theKeyboardReachesEverything()
    {
        (void)pick(KORVA_COLOR_16BIT, Qt::red, [](QDialog& dialog) {
            QList<QWidget*> order;
            for (int i = 0; i < 5; ++i) {
                order << dialog.focusWidget();
                QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
            }
            QList<QWidget*> expected;
            for (QAbstractSlider* slider : sliders(dialog))
                expected << slider;
            expected << support::button(dialog, "OK") << support::button(dialog, "Cancel");
            QCOMPARE(order, expected);
            QCOMPARE(dialog.focusWidget(), order.front());
            dialog.reject();
        });
    }

    void theParentAndNameArePassedOn()
    {
        QWidget parent;
        parent.setFixedSize(240, 320);
        parent.show();
        support::whenOpen([&](QDialog& dialog) {
            QCOMPARE(dialog.objectName(), QString("picker"));
            QCOMPARE(dialog.parentWidget(), &parent);
            QVERIFY(parent.geometry().contains(dialog.geometry()));
            dialog.accept();
        });
        QCOMPARE(KORVA_ColorPicker::getColor(KORVA_COLOR_16BIT, Qt::blue, &parent, "picker"),
                 QColor(Qt::blue));
        QVERIFY(parent.findChildren<QDialog*>().isEmpty());
    }
};

int main(int argc, char** argv)
{
    return support::run<tst_ColorPicker>(argc, argv);
}

#include "tst_ColorPicker.moc"
