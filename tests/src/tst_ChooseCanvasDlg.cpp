#include "KORVA_ChooseCanvasDlg.h"
#include "UTIL_ListBox.h"
#include "UTIL_PushButton.h"
#include "support/Modal.h"
#include "support/TestCase.h"

namespace {

struct Entry
{
    const char* text;
    QSize size;
};

constexpr std::array<Entry, 5> entries = {{
    {"32 X 40(stamp)", {32, 40}},
    {"64 X 80", {64, 80}},
    {"120 X 160", {120, 160}},
    {"200 X 170(normal)", {200, 170}},
    {"240 X 320", {240, 320}},
}};

UTIL_ListBox& listOf(const QDialog& dialog)
{
    return *dialog.findChild<UTIL_ListBox*>();
}

int flagsOf(const QDialog& dialog, const char* key)
{
    const auto* const button = qobject_cast<UTIL_PushButton*>(support::button(dialog, key));
    return button ? button->flags() : -1;
}

QList<int> marked(const QDialog& dialog)
{
    QList<int> rows;
    for (int row = 0; row < listOf(dialog).count(); ++row)
        if (listOf(dialog).item(row)->checkState() == Qt::Checked)
            rows << row;
    return rows;
}

void choose(QDialog& dialog, int row, bool byKeyboard)
{
    UTIL_ListBox& list = listOf(dialog);
    if (!byKeyboard) {
        const QPoint at = list.visualItemRect(list.item(row)).center();
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, at);
        return;
    }
    QCOMPARE(dialog.focusWidget(), &list);
    while (list.currentRow() != row)
        QTest::keyClick(&list, list.currentRow() < row ? Qt::Key_Down : Qt::Key_Up);
    QTest::keyClick(&list, Qt::Key_Space);
}

} // namespace

class tst_ChooseCanvasDlg : public support::TestCase
{
    Q_OBJECT

private slots:
    void theDialogIsAsDesigned()
    {
        QWidget parent;
        parent.setFixedSize(240, 320);
        parent.show();
        KORVA_ChooseCanvasDlg dialog(&parent, 3, "size", true);
        dialog.show();
        QCOMPARE(dialog.objectName(), QString("size"));
        QVERIFY(dialog.isModal());
        QVERIFY(parent.geometry().contains(dialog.geometry()));
        QCOMPARE(support::labels(dialog), QStringList("Canvas Size:"));
        const UTIL_ListBox& list = listOf(dialog);
        QCOMPARE(list.count(), int(entries.size()));
        for (int row = 0; row < list.count(); ++row) {
            QCOMPARE(list.item(row)->text(), QString(entries[size_t(row)].text));
            QVERIFY(list.viewport()->rect().contains(list.visualItemRect(list.item(row))));
        }
        QCOMPARE(list.frameShape(), QFrame::NoFrame);
        QVERIFY(support::button(dialog, "OK")->x() < support::button(dialog, "Cancel")->x());
        QVERIFY(!list.geometry().intersects(support::button(dialog, "OK")->geometry()));
        QCOMPARE(flagsOf(dialog, "OK"), UTIL_PushButton::Outlined | UTIL_PushButton::FirstSoftKey);
        QCOMPARE(flagsOf(dialog, "Cancel"), UTIL_PushButton::Outlined | UTIL_PushButton::SecondSoftKey);
    }

    void itNeedNotBeModal()
    {
        const KORVA_ChooseCanvasDlg dialog(nullptr, 0, nullptr, false);
        QVERIFY(!dialog.isModal());
    }

    void theIndexIsMarkedAtFirst_data()
    {
        QTest::addColumn<int>("index");
        for (int index = 0; index < int(entries.size()); ++index)
            QTest::addRow("%s", entries[size_t(index)].text) << index;
    }

    void theIndexIsMarkedAtFirst()
    {
        QFETCH(int, index);
        for (const bool byKeyboard : {false, true}) {
            KORVA_ChooseCanvasDlg dialog(nullptr, index);
            QCOMPARE(marked(dialog), QList<int>{index});
            support::whenOpen([&](QDialog& open) { support::press(open, "OK", byKeyboard); });
            QCOMPARE(dialog.exec(), 1);
            QCOMPARE(dialog.getIndex(), index);
            QCOMPARE(dialog.canvasSize(), entries[size_t(index)].size);
        }
    }

    void everySizeCanBeChosen_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<bool>("byKeyboard");
        for (int index = 0; index < int(entries.size()); ++index) {
            QTest::addRow("%s by pointer", entries[size_t(index)].text) << index << false;
            QTest::addRow("%s by keyboard", entries[size_t(index)].text) << index << true;
        }
    }

    void everySizeCanBeChosen()
    {
        QFETCH(int, index);
        QFETCH(bool, byKeyboard);
        KORVA_ChooseCanvasDlg dialog(nullptr, index == 3 ? 0 : 3);
        support::whenOpen([&](QDialog& open) {
            choose(open, index, byKeyboard);
            QCOMPARE(marked(open), QList<int>{index});
            QCOMPARE(dialog.getIndex(), index);
            support::press(open, "OK", byKeyboard);
        });
        QCOMPARE(dialog.exec(), 1);
        QCOMPARE(dialog.getIndex(), index);
        QCOMPARE(dialog.canvasSize(), entries[size_t(index)].size);
    }

    void theLastOfSeveralTapsHolds()
    {
        KORVA_ChooseCanvasDlg dialog(nullptr, 3);
        support::whenOpen([&](QDialog& open) {
            for (const int row : {0, 4, 2})
                choose(open, row, false);
            support::press(open, "OK", false);
        });
        QCOMPARE(dialog.exec(), 1);
        QCOMPARE(dialog.getIndex(), 2);
    }

    void cancellingBringsTheFirstIndexBack_data() { support::addWays(); }

    void cancellingBringsTheFirstIndexBack()
    {
        QFETCH(bool, byKeyboard);
        KORVA_ChooseCanvasDlg dialog(nullptr, 3);
        support::whenOpen([&](QDialog& open) {
            choose(open, 1, byKeyboard);
            QCOMPARE(dialog.getIndex(), 1);
            support::press(open, "Cancel", byKeyboard);
        });
        QCOMPARE(dialog.exec(), 0);
        QCOMPARE(dialog.getIndex(), 3);
    }

    void closingBringsTheFirstIndexBack()
    {
        KORVA_ChooseCanvasDlg dialog(nullptr, 3);
        support::whenOpen([&](QDialog& open) {
            choose(open, 1, false);
            open.close();
        });
        QCOMPARE(dialog.exec(), 0);
        QCOMPARE(dialog.getIndex(), 3);
    }

    void anIndexThatDoesNotExistStaysUntilATap_data()
    {
        QTest::addColumn<int>("index");
        QTest::newRow("-1") << -1;
        QTest::newRow("5") << 5;
        QTest::newRow("4711") << 4711;
    }

    void anIndexThatDoesNotExistStaysUntilATap()
    {
        QFETCH(int, index);
        for (const bool byKeyboard : {false, true}) {
            KORVA_ChooseCanvasDlg untouched(nullptr, index);
            QCOMPARE(marked(untouched), QList<int>{});
            QCOMPARE(untouched.canvasSize(), QSize(0, 0));
            support::whenOpen([&](QDialog& open) { support::press(open, "OK", byKeyboard); });
            QCOMPARE(untouched.exec(), 1);
            QCOMPARE(untouched.getIndex(), index);

            KORVA_ChooseCanvasDlg tapped(nullptr, index);
            support::whenOpen([&](QDialog& open) {
                choose(open, 2, byKeyboard);
                support::press(open, "OK", byKeyboard);
            });
            QCOMPARE(tapped.exec(), 1);
            QCOMPARE(tapped.getIndex(), 2);
            QCOMPARE(tapped.canvasSize(), entries[2].size);
        }
    }

    void aTapBelowTheRowsChoosesNothing()
    {
        KORVA_ChooseCanvasDlg dialog(nullptr, 7);
        dialog.show();
        const UTIL_ListBox& list = listOf(dialog);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, QPoint(100, list.viewport()->height() - 1));
        QCOMPARE(dialog.getIndex(), 7);
    }

    void onlyTheNamedSizesAreTranslated()
    {
        class Shouting : public QTranslator
        {
            QString translate(const char*, const char* source, const char*, int) const override
            {
                return QString::fromLatin1(source).toUpper() + "!";
            }
            bool isEmpty() const override { return false; }
        } shouting;
        QCoreApplication::installTranslator(&shouting);
        const KORVA_ChooseCanvasDlg dialog(nullptr, 3);
        QCoreApplication::removeTranslator(&shouting);
        QStringList texts;
        for (int row = 0; row < listOf(dialog).count(); ++row)
            texts << listOf(dialog).item(row)->text();
        QCOMPARE(texts, QStringList({"32 X 40(STAMP)!", "64 X 80", "120 X 160", "200 X 170(NORMAL)!",
                                     "240 X 320"}));
    }
};

int main(int argc, char** argv)
{
    return support::run<tst_ChooseCanvasDlg>(argc, argv);
}

#include "tst_ChooseCanvasDlg.moc"
