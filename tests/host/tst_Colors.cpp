#include "ColorPopup.h"
#include "Colors.h"
#include "PadWindow.h"
#include "Platform.h"
#include "Settings.h"

#include "support/Modal.h"
#include "support/TestCase.h"

#include <KORVA_Canvas.h>
#include <KORVA_ColorPicker.h>
#include <KORVA_EditCanvas.h>
#include <KORVA_Text.h>

namespace {

constexpr QSize smallest(240, 320);
constexpr int finger = 30; // pixels

struct Pad
{
    Pad()
    {
        window.show();
        QObject::connect(&window.colors(), &pad::Colors::performed, &window,
                         [this](const pad::Command& command) { log << pad::Recording::toLine(command); });
        QObject::connect(&editor, &KORVA_EditCanvas::chosen, &window,
                         [this](KORVA_CHOICETYPE what) { chosen << int(what); });
    }

    void clickButton() { QTest::mouseClick(&button, Qt::LeftButton); }
    /// Clicks the button and does this while its pop-up is open.
    void open(const std::function<void(QWidget& popup)>& work)
    {
        bool isOpen = false;
        QTimer::singleShot(0, &window, [&] {
            QWidget* popup = pad::ColorPopup::current();
            isOpen = popup;
            if (popup)
                work(*popup);
        });
        clickButton();
        QVERIFY(isOpen);
    }

    pad::Platform& platform = pad::Platform::install();
    pad::PadWindow window{platform};
    KORVA_EditCanvas& editor = window.editor();
    QPushButton& button = *editor.findChild<QPushButton*>("colorButton");
    QStringList log;
    QList<int> chosen;
};

QAbstractButton* swatch(const QWidget& popup, const QColor& color)
{
    for (auto* found : popup.findChildren<QAbstractButton*>()) {
        if (found->accessibleName().startsWith(color.name()))
            return found;
    }
    return nullptr;
}

void type(QWidget& popup, const QString& value)
{
    auto* field = popup.findChild<QLineEdit*>();
    field->setFocus();
    field->clear();
    QTest::keyClicks(field, value);
    QTest::keyClick(field, Qt::Key_Return);
}

} // namespace

/// The pop-up of the colour button, and the change back to the last colour.
class tst_Colors : public support::TestCase
{
    Q_OBJECT

private slots:
    void aSwatchIsTwoTapsAway();
    void sixteenAndTheLastEight();
    void fitsTheSmallestScreen();
    void typedValues_data();
    void typedValues();
    void valuesAreTypedAtOnce();
    void escapeKeepsTheColor();
    void aPressBesideCloses();
    void moreOpensThePicker();
    void fewerBitsHaveThePicker();
    void theWindowMayGo();
    void rightButtonSwaps();
    void longPressSwaps();
    void menuKeySwaps();
    void nothingToSwap();
    void keptForTheNextRun();
    void swappingKeepsTheTextOpen();
};

void tst_Colors::aSwatchIsTwoTapsAway()
{
    Pad pad;
    pad.open([](QWidget& popup) { QTest::mouseClick(swatch(popup, Qt::blue), Qt::LeftButton); });
    QCOMPARE(pad.editor.color(), QColor(Qt::blue));
    QCOMPARE(pad.chosen, QList<int>{KORVA_CHOICE_COLOR}); // which a recorder writes
    QVERIFY(!pad::ColorPopup::current());
}

void tst_Colors::sixteenAndTheLastEight()
{
    Pad pad;
    QCOMPARE(pad.window.colors().recent(), QList<QColor>{Qt::red});
    QList<QColor> expected;
    for (int i = 0; i < 10; ++i) {
        pad.editor.setColor(QColor(i, 2, 3));
        expected.prepend(QColor(i, 2, 3));
    }
    pad.editor.setColor(QColor(5, 2, 3)); // once more
    expected.removeOne(QColor(5, 2, 3));
    expected.prepend(QColor(5, 2, 3));
    QCOMPARE(pad.window.colors().recent(), expected.mid(0, 8));
    pad.open([&](const QWidget& popup) {
        QSet<QString> names;
        for (const auto* button : popup.findChildren<QAbstractButton*>()) {
            if (button->accessibleName().startsWith('#'))
                names << button->accessibleName();
        }
        QCOMPARE(names.size(), 16 + 8);
        for (const QColor& color : expected.mid(0, 8))
            QVERIFY(swatch(popup, color));
        QVERIFY(swatch(popup, QColor(5, 2, 3))->isChecked());
        QVERIFY(!swatch(popup, QColor(6, 2, 3))->isChecked());
        pad::ColorPopup::current()->close();
    });
    QCOMPARE(pad.editor.color(), QColor(5, 2, 3));
}

void tst_Colors::fitsTheSmallestScreen()
{
    Pad pad;
    for (int i = 0; i < 8; ++i)
        pad.editor.setColor(QColor(i, 2, 3));
    QCOMPARE(pad.window.size(), smallest);
    pad.open([&](QWidget& popup) {
        QVERIFY(QRect(pad.window.mapToGlobal(QPoint()), smallest).contains(popup.geometry()));
        QList<QRect> places;
        for (const QWidget* part : popup.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
            QVERIFY(popup.rect().contains(part->geometry()));
            QVERIFY(part->width() >= finger && part->height() >= finger);
            for (const QRect& place : places)
                QVERIFY(!place.intersects(part->geometry()));
            places << part->geometry();
            QVERIFY(!part->accessibleName().isEmpty() || !part->property("text").toString().isEmpty());
        }
        QCOMPARE(places.size(), 16 + 8 + 2);
        const QAbstractButton* white = swatch(popup, Qt::white);
        QCOMPARE(popup.grab().toImage().pixelColor(white->geometry().center()), QColor(Qt::white));
        popup.close();
    });
}

void tst_Colors::typedValues_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QColor>("expected");
    QTest::newRow("hexadecimal") << "#12a4Ff" << QColor(0x12, 0xa4, 0xff);
    QTest::newRow("without a sign") << " 12a4ff " << QColor(0x12, 0xa4, 0xff);
    QTest::newRow("numbers") << "18, 164,255" << QColor(18, 164, 255);
    QTest::newRow("numbers with blanks") << "0 0 7" << QColor(0, 0, 7);
    QTest::newRow("too large") << "18, 164, 256" << QColor();
    QTest::newRow("too few") << "18, 164" << QColor();
    QTest::newRow("too short") << "#12a" << QColor();
    QTest::newRow("a word") << "red" << QColor();
    QTest::newRow("nothing") << "" << QColor();
}

void tst_Colors::typedValues()
{
    QFETCH(const QString, text);
    QFETCH(const QColor, expected);
    QCOMPARE(pad::ColorPopup::colorOf(text).isValid(), expected.isValid());
    Pad pad;
    pad.open([&](QWidget& popup) {
        type(popup, text);
        QCOMPARE(popup.isVisible(), !expected.isValid());
        popup.close();
    });
    QCOMPARE(pad.editor.color(), expected.isValid() ? expected : QColor(Qt::red));
}

// The pop-up has the keyboard, but not the field, which would call a screen keyboard.
void tst_Colors::valuesAreTypedAtOnce()
{
    Pad pad;
    pad.open([](QWidget& popup) {
        QWidget* first = popup.focusWidget();
        QVERIFY(first && first != popup.findChild<QLineEdit*>());
        QTest::keyClick(first, Qt::Key_4, {});
        QTest::keyClicks(popup.focusWidget(), "0,130 210");
        QTest::keyClick(popup.focusWidget(), Qt::Key_Return);
    });
    QCOMPARE(pad.editor.color(), QColor(40, 130, 210));
}

void tst_Colors::escapeKeepsTheColor()
{
    Pad pad;
    pad.open([](QWidget& popup) {
        popup.findChild<QLineEdit*>()->setText("#123456");
        QTest::keyClick(&popup, Qt::Key_Escape);
        QVERIFY(!popup.isVisible());
    });
    QCOMPARE(pad.editor.color(), QColor(Qt::red));
}

void tst_Colors::aPressBesideCloses()
{
    Pad pad;
    pad.editor.clearModified();
    pad.open([&](QWidget& popup) {
        QTest::mouseClick(pad.editor.canvas(), Qt::LeftButton, {}, QPoint(20, 20));
        QVERIFY(!popup.isVisible());
    });
    QCOMPARE(pad.editor.color(), QColor(Qt::red));
    QVERIFY(!pad.editor.isModified()); // the press was for the pop-up alone
    pad.open([&](QWidget& popup) {
        QTest::mouseClick(&pad.button, Qt::LeftButton);
        QVERIFY(!popup.isVisible());
    });
    QVERIFY(!pad::ColorPopup::current());
    pad.open([&](QWidget&) { pad.editor.cancelDialogs(); });
    QVERIFY(!pad::ColorPopup::current());
}

void tst_Colors::moreOpensThePicker()
{
    Pad pad;
    bool isPicker = false;
    support::whenOpen([&](QDialog& dialog) {
        isPicker = qobject_cast<KORVA_ColorPicker*>(&dialog);
        support::press(dialog, "Cancel", false);
    });
    pad.open([](QWidget& popup) {
        auto* more = popup.findChild<QPushButton*>();
        QCOMPARE(more->text(), "More ...");
        QTest::mouseClick(more, Qt::LeftButton);
    });
    QVERIFY(isPicker);
    QCOMPARE(pad.editor.color(), QColor(Qt::red));
}

void tst_Colors::fewerBitsHaveThePicker()
{
    Pad pad;
    pad.editor.chooseCanvas(KORVA_CANVAS_8BIT, 100, 100);
    bool isPicker = false;
    support::whenOpen([&](QDialog& dialog) {
        isPicker = qobject_cast<KORVA_ColorPicker*>(&dialog);
        support::press(dialog, "Cancel", false);
    });
    pad.clickButton();
    QVERIFY(isPicker);
}

void tst_Colors::theWindowMayGo()
{
    auto& platform = pad::Platform::install();
    auto window = std::make_unique<pad::PadWindow>(platform);
    window->show();
    QTimer::singleShot(0, qApp, [&] {
        QVERIFY(pad::ColorPopup::current());
        window.reset();
    });
    const QColor before = window->editor().color();
    QCOMPARE(platform.pickColor(&window->editor(), before, 16), before);
    QVERIFY(!window);
}

void tst_Colors::rightButtonSwaps()
{
    Pad pad;
    pad.editor.setColor(Qt::blue);
    QTest::mouseClick(&pad.button, Qt::RightButton);
    QCOMPARE(pad.editor.color(), QColor(Qt::red));
    QTest::mouseClick(&pad.button, Qt::RightButton);
    QCOMPARE(pad.editor.color(), QColor(Qt::blue));
    QCOMPARE(pad.log, QStringList({"color #ff0000", "color #0000ff"}));
    QVERIFY(pad.chosen.isEmpty()); // or it would be recorded twice
}

void tst_Colors::longPressSwaps()
{
    Pad pad;
    pad.editor.setColor(Qt::blue);
    QTest::mousePress(&pad.button, Qt::LeftButton);
    QVERIFY(QTest::qWaitFor([&] { return pad.editor.color() == QColor(Qt::red); }, 3000));
    QVERIFY(!pad.button.isDown());
    QTest::mouseRelease(&pad.button, Qt::LeftButton);
    QVERIFY(!pad::ColorPopup::current());
    QCOMPARE(pad.log, QStringList{"color #ff0000"});
    pad.open([](QWidget& popup) { popup.close(); }); // a short press does what it did
    QCOMPARE(pad.editor.color(), QColor(Qt::red));
}

void tst_Colors::menuKeySwaps()
{
    Pad pad;
    pad.editor.setColor(Qt::blue);
    QContextMenuEvent event(QContextMenuEvent::Keyboard, {5, 5}, pad.button.mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(&pad.button, &event);
    QCOMPARE(pad.editor.color(), QColor(Qt::red));
}

void tst_Colors::nothingToSwap()
{
    Pad pad;
    QTest::mouseClick(&pad.button, Qt::RightButton);
    QCOMPARE(pad.editor.color(), QColor(Qt::red));
    QVERIFY(pad.log.isEmpty());
}

void tst_Colors::keptForTheNextRun()
{
    const QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
    const auto restore = qScopeGuard([] { qunsetenv("XDG_CONFIG_HOME"); });
    {
        Pad passing; // somebody who does not stay
        passing.editor.setColor(Qt::blue);
        QVERIFY(!QFile::exists(pad::settingsFile()));
    }
    QList<QColor> expected{Qt::red};
    for (int run = 0; run < 2; ++run) {
        Pad pad;
        pad.window.colors().remember();
        QCOMPARE(pad.editor.color(), QColor(Qt::red)); // each run begins with it
        expected.removeOne(QColor(Qt::red));
        expected.prepend(Qt::red);
        QCOMPARE(pad.window.colors().recent(), expected);
        if (run == 1)
            QCOMPARE(pad.editor.outlineColor(), expected[1]);
        for (int i = 0; i < 5; ++i) {
            const QColor color(10 * run + i, 2, 3);
            pad.editor.setColor(color);
            expected.prepend(color);
        }
        expected = expected.mid(0, 8);
        QCOMPARE(pad.window.colors().recent(), expected);
    }
    QSettings(pad::settingsFile(), QSettings::IniFormat)
        .setValue("colors/recent", QStringList{"no colour", "#010203", "#010203", ""});
    Pad pad;
    pad.window.colors().remember();
    QCOMPARE(pad.window.colors().recent(), QList<QColor>({Qt::red, QColor(1, 2, 3)}));
}

void tst_Colors::swappingKeepsTheTextOpen()
{
    Pad pad;
    pad.window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&pad.window));
    pad.editor.setColor(Qt::blue);
    pad.editor.selectTool(KORVA_TOOL_TEXT);
    QTest::mouseClick(pad.editor.canvas(), Qt::LeftButton, {}, {30, 60});
    QTest::mousePress(&pad.button, Qt::LeftButton);
    pad.button.setFocus(Qt::MouseFocusReason);
    QVERIFY(QTest::qWaitFor([&] { return pad.editor.color() == QColor(Qt::red); }, 3000));
    QTest::mouseRelease(&pad.button, Qt::LeftButton);
    QVERIFY(pad.editor.currentText()->takesText());
    QCOMPARE(pad.window.focusWidget(), pad.editor.canvas());
}

int main(int argc, char** argv)
{
    return support::run<tst_Colors>(argc, argv);
}

#include "tst_Colors.moc"
