#include "UTIL_ItemLayout.h"
#include "UTIL_ListBox.h"
#include "UTIL_ListBoxItem.h"
#include "UTIL_ScrollBar.h"
#include "UTIL_Skin.h"
#include "support/TestCase.h"

namespace {

struct Choice
{
    int button;
    int row;
    QPoint position;
};

/// Three rows in a list that has room for five.
struct Stage
{
    QWidget window;
    UTIL_ListBox list{"%T5%R20%T5%T189", &window, "list"};
    QList<Choice> choices;

    Stage()
    {
        window.setFixedSize(240, 320);
        list.setGeometry(0, 40, 220, 180);
        list.setFrameStyle(QFrame::NoFrame);
        for (const char* text : {"one", "two", "three"}) {
            auto* item = new UTIL_ListBoxItem;
            item->setString(3, text);
            list.insertItem(item);
        }
        QObject::connect(&list, &UTIL_ListBox::mouseButtonClicked, &list,
                         [this](int button, QListWidgetItem* item, const QPoint& position) {
                             choices.push_back({button, list.row(item), position});
                         });
        window.show();
        list.setFocus();
    }

    [[nodiscard]] QPoint centre(int row) const { return list.visualItemRect(list.item(row)).center(); }
    [[nodiscard]] QList<int> marked() const
    {
        QList<int> rows;
        for (int row = 0; row < list.count(); ++row)
            if (list.item(row)->checkState() == Qt::Checked)
                rows << row;
        return rows;
    }
    void tap(QPoint at, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(list.viewport(), button, {}, at);
    }
};

} // namespace

class tst_ListBox : public support::TestCase
{
    Q_OBJECT

private slots:
    void theLayoutIsRead_data()
    {
        QTest::addColumn<QString>("layout");
        QTest::addColumn<QString>("fields");
        QTest::newRow("mark and text") << "%T5%R20%T5%T189"
                                       << "T0+5 R5+20 T25+5 T30+189 ";
        QTest::newRow("one text") << "%T100"
                                  << "T0+100 ";
        QTest::newRow("empty") << ""
                               << "";
        QTest::newRow("no field") << "hello"
                                  << "";
        QTest::newRow("unknown letter") << "%T5%X9%T7"
                                        << "T0+5 ";
        QTest::newRow("no width") << "%T5%R"
                                  << "T0+5 ";
        QTest::newRow("rest is left") << "%T5 %R20"
                                      << "T0+5 ";
    }

    void theLayoutIsRead()
    {
        QFETCH(QString, layout);
        QFETCH(QString, fields);
        QString read;
        const UTIL_ItemLayout parsed(layout);
        for (const UTIL_ItemLayout::Field& field : parsed.fields())
            read += QString("%1%2+%3 ")
                        .arg(field.kind == UTIL_ItemLayout::Kind::Text ? "T" : "R")
                        .arg(field.left)
                        .arg(field.width);
        QCOMPARE(read, fields);
    }

    void anItemHoldsTheTextsOfItsFields()
    {
        UTIL_ListBoxItem item;
        item.setString(3, "64 X 80");
        QCOMPARE(item.string(3), QString("64 X 80"));
        QCOMPARE(item.text(), QString("64 X 80"));
        item.setString(0, "*");
        QCOMPARE(item.text(), QString("* 64 X 80"));
        QCOMPARE(item.string(1), QString());
        QCOMPARE(item.string(9), QString());
        item.setString(-1, "nowhere");
        QCOMPARE(item.text(), QString("* 64 X 80"));
        QCOMPARE(item.checkState(), Qt::Unchecked);
    }

    void rowsAreInsertedAtTheirPosition()
    {
        Stage stage;
        auto* first = new UTIL_ListBoxItem;
        stage.list.insertItem(first, 0);
        auto* last = new UTIL_ListBoxItem;
        stage.list.insertItem(last, -1);
        QCOMPARE(stage.list.row(first), 0);
        QCOMPARE(stage.list.row(last), 4);
    }

    void checkItemMarksOneRow_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<bool>("checked");
        QTest::addColumn<QList<int>>("marked");
        QTest::newRow("another") << 2 << true << QList<int>{2};
        QTest::newRow("the same") << 1 << true << QList<int>{1};
        QTest::newRow("taken away") << 1 << false << QList<int>{};
        QTest::newRow("taken from another") << 0 << false << QList<int>{1};
        QTest::newRow("before the first") << -1 << true << QList<int>{1};
        QTest::newRow("past the last") << 3 << true << QList<int>{1};
    }

    void checkItemMarksOneRow()
    {
        QFETCH(int, row);
        QFETCH(bool, checked);
        QFETCH(QList<int>, marked);
        Stage stage;
        stage.list.checkItem(1, true);
        stage.list.checkItem(row, checked);
        QCOMPARE(stage.marked(), marked);
        QVERIFY(stage.choices.isEmpty());
    }

    void aTapMarksTheRowAndTells_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<Qt::MouseButton>("button");
        QTest::newRow("first") << 0 << Qt::LeftButton;
        QTest::newRow("already marked") << 1 << Qt::LeftButton;
        QTest::newRow("last") << 2 << Qt::LeftButton;
        QTest::newRow("right button") << 2 << Qt::RightButton;
    }

    void aTapMarksTheRowAndTells()
    {
        QFETCH(int, row);
        QFETCH(Qt::MouseButton, button);
        Stage stage;
        stage.list.checkItem(1, true);
        stage.tap(stage.centre(row), button);
        QCOMPARE(stage.marked(), QList<int>{row});
        QCOMPARE(stage.list.currentItemIndex(), row);
        QCOMPARE(stage.choices.size(), 1);
        QCOMPARE(stage.choices[0].button, int(button));
        QCOMPARE(stage.choices[0].row, row);
        QCOMPARE(stage.choices[0].position, stage.list.viewport()->mapToGlobal(stage.centre(row)));
    }

    void aTapBelowTheRowsDoesNothing()
    {
        Stage stage;
        stage.list.checkItem(1, true);
        stage.tap({100, 150});
        QCOMPARE(stage.marked(), QList<int>{1});
        QVERIFY(stage.choices.isEmpty());
    }

    void aPressThatLeavesItsRowDoesNothing()
    {
        Stage stage;
        QTest::mousePress(stage.list.viewport(), Qt::LeftButton, {}, stage.centre(0));
        QTest::mouseMove(stage.list.viewport(), stage.centre(2));
        QTest::mouseMove(stage.list.viewport(), stage.centre(0));
        QTest::mouseRelease(stage.list.viewport(), Qt::LeftButton, {}, stage.centre(0));
        QVERIFY(stage.choices.isEmpty());
        QCOMPARE(stage.marked(), QList<int>{});
    }

    void aRowThatGoesDuringThePressIsForgotten()
    {
        Stage stage;
        QTest::mousePress(stage.list.viewport(), Qt::LeftButton, {}, stage.centre(0));
        stage.list.clear();
        QTest::mouseRelease(stage.list.viewport(), Qt::LeftButton, {}, QPoint(100, 10));
        QVERIFY(stage.choices.isEmpty());
    }

    void keysChoose_data()
    {
        QTest::addColumn<QList<Qt::Key>>("keys");
        QTest::addColumn<QList<int>>("rows");
        QTest::newRow("Down") << QList<Qt::Key>{Qt::Key_Down} << QList<int>{2};
        QTest::newRow("Up") << QList<Qt::Key>{Qt::Key_Up} << QList<int>{0};
        QTest::newRow("Down at the end") << QList<Qt::Key>{Qt::Key_Down, Qt::Key_Down} << QList<int>{2};
        QTest::newRow("Home") << QList<Qt::Key>{Qt::Key_Home} << QList<int>{0};
        QTest::newRow("Space") << QList<Qt::Key>{Qt::Key_Space} << QList<int>{1};
        QTest::newRow("Return leaves it to the dialog") << QList<Qt::Key>{Qt::Key_Return} << QList<int>{};
    }

    void keysChoose()
    {
        QFETCH(QList<Qt::Key>, keys);
        QFETCH(QList<int>, rows);
        Stage stage;
        stage.list.checkItem(1, true);
        for (const Qt::Key key : keys)
            QTest::keyClick(&stage.list, key);
        QList<int> chosen;
        for (const Choice& choice : stage.choices) {
            chosen << choice.row;
            QCOMPARE(choice.button, 0);
        }
        QCOMPARE(chosen, rows);
        QCOMPARE(stage.marked(), rows.isEmpty() ? QList<int>{1} : rows);
    }

    void theMarkIsPaintedInItsField()
    {
        Stage stage;
        const auto markAt = [&](int row) {
            const QImage image = stage.list.viewport()->grab().toImage();
            return image.pixelColor(15, stage.centre(row).y());
        };
        stage.list.checkItem(1, true);
        QCOMPARE(markAt(1), UTIL_Skin::color(UTIL_Skin::Color::Accent));
        QCOMPARE(markAt(0), UTIL_Skin::color(UTIL_Skin::Color::Surface));
    }

    void theTextIsPaintedInItsField()
    {
        Stage stage;
        const QRect row = stage.list.visualItemRect(stage.list.item(2));
        const QImage with = stage.list.viewport()->grab().toImage();
        static_cast<UTIL_ListBoxItem*>(stage.list.item(2))->setString(3, QString());
        const QImage without = stage.list.viewport()->grab().toImage();
        QVERIFY(with.copy(row) != without.copy(row));
        QCOMPARE(with.copy(0, row.top(), 30, row.height()), without.copy(0, row.top(), 30, row.height()));
    }

    void thePressedRowShows()
    {
        Stage stage;
        const auto fillOf = [&](int row) {
            return stage.list.viewport()->grab().toImage().pixelColor(200, stage.centre(row).y());
        };
        QTest::mousePress(stage.list.viewport(), Qt::LeftButton, {}, stage.centre(2));
        QCOMPARE(fillOf(2), UTIL_Skin::look(UTIL_Skin::Control::Row, UTIL_Skin::State::Pressed).fill);
        QTest::mouseRelease(stage.list.viewport(), Qt::LeftButton, {}, stage.centre(2));
        QCOMPARE(fillOf(2), UTIL_Skin::look(UTIL_Skin::Control::Row, UTIL_Skin::State::Checked).fill);
    }

    void theBoxOfAMarkedRowStandsTwoPixelsIn()
    {
        Stage stage;
        stage.list.checkItem(1, true);
        const QRect row = stage.list.visualItemRect(stage.list.item(1));
        const QImage shown = stage.list.viewport()->grab().toImage();
        const auto isBox = [&](int x) {
            return shown.pixelColor(x, row.center().y()) != shown.pixelColor(row.left(), row.center().y());
        };
        QVERIFY(!isBox(row.left() + 1) && isBox(row.left() + 2));
        QVERIFY(!isBox(row.right() - 1) && isBox(row.right() - 2));
    }

    void itScrollsByTheBarOfTheSkin()
    {
        Stage stage;
        auto* bar = qobject_cast<UTIL_ScrollBar*>(stage.list.verticalScrollBar());
        QVERIFY(bar);
        QCOMPARE(bar->orientation(), Qt::Vertical);
    }
};

int main(int argc, char** argv)
{
    return support::run<tst_ListBox>(argc, argv);
}

#include "tst_ListBox.moc"
