#include "UTIL_PushButton.h"
#include "UTIL_Skin.h"
#include "support/TestCase.h"

namespace {

using Control = UTIL_Skin::Control;
using State = UTIL_Skin::State;

/// A key in a dialog with another key, which is the default, and with a field that has the focus.
struct Stage
{
    QDialog dialog;
    QLineEdit* field = new QLineEdit(&dialog);
    UTIL_PushButton* other = new UTIL_PushButton({}, "Other", &dialog);
    UTIL_PushButton* key = new UTIL_PushButton({}, {}, &dialog, "key");

    Stage()
    {
        dialog.setFixedSize(240, 100);
        other->setGeometry(10, 50, 100, 36);
        key->setGeometry(10, 10, 100, 36);
        key->setCheckable(true);
        field->setGeometry(120, 10, 100, 36);
        other->setFlags(UTIL_PushButton::FirstSoftKey);
    }

    void show()
    {
        dialog.show();
        dialog.activateWindow();
        field->setFocus();
        (void)QTest::qWaitForWindowActive(&dialog);
    }

    [[nodiscard]] QColor fill() const { return key->grab().toImage().pixelColor(50, 18); }
    [[nodiscard]] QColor outline() const { return key->grab().toImage().pixelColor(50, 0); }
};

} // namespace

class tst_PushButton : public support::TestCase
{
    Q_OBJECT

private slots:
    void everyStateShows_data()
    {
        QTest::addColumn<int>("state");
        QTest::newRow("resting") << int(State::Resting);
        QTest::newRow("pressed") << int(State::Pressed);
        QTest::newRow("checked") << int(State::Checked);
        QTest::newRow("disabled") << int(State::Disabled);
    }

    void everyStateShows()
    {
        QFETCH(int, state);
        Stage stage;
        stage.key->setChecked(State(state) == State::Checked);
        stage.key->setDown(State(state) == State::Pressed);
        stage.key->setEnabled(State(state) != State::Disabled);
        stage.show();
        QCOMPARE(stage.fill(), UTIL_Skin::look(Control::Key, State(state)).fill);
    }

    void focusShowsAsARing()
    {
        Stage stage;
        stage.show();
        QVERIFY(stage.outline() != UTIL_Skin::color(UTIL_Skin::Color::Accent));
        stage.key->setFocus();
        QVERIFY(stage.key->hasFocus());
        QCOMPARE(stage.outline(), UTIL_Skin::color(UTIL_Skin::Color::Accent));
    }

    void flagsGiveTheRole_data()
    {
        QTest::addColumn<int>("flags");
        QTest::addColumn<bool>("isDefault");
        QTest::addColumn<bool>("isOutlined");
        QTest::newRow("1") << 1 << false << false;
        QTest::newRow("2") << 2 << true << false;
        QTest::newRow("9") << 9 << false << true;
        QTest::newRow("10") << 10 << true << true;
    }

    void flagsGiveTheRole()
    {
        QFETCH(int, flags);
        QFETCH(bool, isDefault);
        QFETCH(bool, isOutlined);
        Stage stage;
        stage.key->setFlags(flags);
        stage.show();
        QCOMPARE(stage.key->flags(), flags);
        QCOMPARE(stage.key->isDefault(), isDefault);
        const UTIL_Skin::Look look =
            UTIL_Skin::look(isDefault ? Control::PrimaryKey : Control::Key, State::Resting);
        QCOMPARE(stage.fill(), look.fill);
        QCOMPARE(stage.outline(), isOutlined ? look.border : look.fill);
    }

    void theFilledKeyIsTheOneThatReturnPresses()
    {
        Stage stage;
        stage.show();
        QVERIFY(stage.other->isDefault());
        QCOMPARE(stage.fill(), UTIL_Skin::look(Control::Key, State::Resting).fill);
        stage.key->setFocus();
        QCOMPARE(stage.fill(), UTIL_Skin::look(Control::PrimaryKey, State::Resting).fill);
        QVERIFY(!stage.other->isDefault());
    }

    void anIconIsFoundByItsFileName()
    {
        const UTIL_PushButton key("DaApV_Pencil_Tool.gif", {}, nullptr);
        QVERIFY(!key.icon().isNull());
        QCOMPARE(key.iconSize(), QSize(24, 18));
        QVERIFY(UTIL_PushButton("DaApV_Spray_Tool.gif", "Spray").icon().isNull());
    }

    void aLongTextIsShortenedWithinTheKey()
    {
        UTIL_PushButton key({}, "Zwischenablage überschreiben");
        key.resize(100, 36);
        const QImage image = key.grab().toImage();
        const UTIL_Skin::Look look = UTIL_Skin::look(Control::Key, State::Resting);
        for (int y = 4; y < 32; ++y)
            for (const int x : {2, 4, 95, 97})
                QCOMPARE(image.pixelColor(x, y), look.fill);
        QVERIFY(key.sizeHint().width() > 100);
        QCOMPARE(key.text(), QString("Zwischenablage überschreiben"));
    }

    void theSizeHintHoldsIconAndText()
    {
        const UTIL_PushButton icon("DaApV_Pencil_Tool.gif", {});
        const UTIL_PushButton text({}, "Pencil");
        const UTIL_PushButton both("DaApV_Pencil_Tool.gif", "Pencil");
        QVERIFY(both.sizeHint().width() > icon.sizeHint().width());
        QVERIFY(both.sizeHint().width() > text.sizeHint().width() + 24);
    }
};

int main(int argc, char** argv)
{
    return support::run<tst_PushButton>(argc, argv);
}

#include "tst_PushButton.moc"
