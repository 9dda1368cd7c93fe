#include "EditorFixtures.h"

#include "KORVA_Text.h"

using fixtures::EditorDesk;
using fixtures::ToolID;
using support::Gestures;

namespace {

const QSize normal(200, 170);

} // namespace

/// The zoom box: which rate each entry means for which picture.
class tst_ZoomBox : public support::TestCase
{
    Q_OBJECT

private slots:
    void entries();
    void rates_data();
    void rates();
    void nullPicture();
    void canvasChangedChoosesAgain();
    void theHostMayListenToTheBox();
    void committedBeforeZooming();
    void pointsOfTheZoomedPicture();
    void theListMarksTheRateInForce();
    void theListShowsTheCurrentRow();
    void anotherPictureIsFitted();
    void withoutFittingAPictureKeepsTheRate();
};

void tst_ZoomBox::entries()
{
    const EditorDesk desk;
    const QComboBox& box = desk.zoomBox();
    QStringList texts;
    for (int i = 0; i < box.count(); ++i)
        texts << box.itemText(i);
    QCOMPARE(texts, QStringList({"50%", "100%", "150%", "200%", "Fit to page <2.11.1;MENU>"}));
    QVERIFY(!box.isEditable());
}

void tst_ZoomBox::rates_data()
{
    QTest::addColumn<QSize>("picture");
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("rate");
    const auto add = [](const char* name, QSize picture, int index, int rate) {
        QTest::newRow(name) << picture << index << rate;
    };
    add("50%", normal, 0, 50);
    add("100%", normal, 1, 100);
    add("150%", normal, 2, 150);
    add("200%", normal, 3, 200);
    add("50% of a large one", {640, 480}, 0, 50);
    add("150% of 639 x 479", {639, 479}, 2, 150);
    add("200% of 639 x 479", {639, 479}, 3, 200);
    add("150% of 640 wide", {640, 10}, 2, 100);
    add("200% of 640 wide", {640, 10}, 3, 100);
    add("150% of 480 high", {10, 480}, 2, 100);
    add("200% of 480 high", {10, 480}, 3, 100);
    add("200% of both", {640, 480}, 3, 100);
    add("fit 111 x 93", {111, 93}, 4, 200);
    add("fit 444 x 186", {444, 186}, 4, 50);
    add("fit 222 x 186", {222, 186}, 4, 100);
    add("fit the width", {300, 10}, 4, 74);
    add("fit the height", {10, 300}, 4, 62);
    add("a pixel wider than the page", {223, 10}, 4, 99);
    add("a pixel higher than the page", {10, 187}, 4, 99);
    add("fit the normal canvas", normal, 4, 109);
    add("fit the stamp", {32, 40}, 4, 465);
    add("fit a dot", {1, 1}, 4, 18600);
    add("fit the largest", {352, 288}, 4, 63);
    add("fit what is wider than the page in parts of a hundred", {22201, 1}, 4, 1);
    add("past the last", normal, 5, 100);
    add("far past the last", normal, 1000, 100);
    add("none", normal, -1, 100);
}

void tst_ZoomBox::rates()
{
    QFETCH(const QSize, picture);
    QFETCH(const int, index);
    QFETCH(const int, rate);
    EditorDesk desk;
    desk.setPicture(support::sheet(picture));
    desk.editor->setZoom(77);
    desk.editor->slotSelZoomRate(index);
    QCOMPARE(desk.canvas().zoom(), rate);
    const QSize zoomed(picture.width() * rate / 100, picture.height() * rate / 100);
    QCOMPARE(desk.canvas().size(), zoomed.isEmpty() ? QSize(0, 0) : zoomed);
    QCOMPARE(desk.zoomBox().currentIndex(), 1);
}

void tst_ZoomBox::nullPicture()
{
    EditorDesk desk;
    for (int index = 0; index < 5; ++index) {
        QPixmap none;
        desk.editor->setPixmap(&none);
        QVERIFY(desk.canvas().pixmap()->isNull());
        desk.editor->setZoom(77);
        desk.editor->slotSelZoomRate(index);
        const int rates[] = {50, 100, 150, 200, 100};
        QCOMPARE(desk.canvas().zoom(), rates[index]);
    }
}

void tst_ZoomBox::canvasChangedChoosesAgain()
{
    EditorDesk desk;
    desk.setPicture(support::sheet({111, 93}));
    desk.editor->setZoom(77);
    emit desk.editor->canvasChanged(4);
    QCOMPARE(desk.canvas().zoom(), 200);
    emit desk.editor->canvasChanged(0);
    QCOMPARE(desk.canvas().zoom(), 50);
    QCOMPARE(desk.zoomBox().currentIndex(), 1); // the box itself did not move
}

void tst_ZoomBox::theHostMayListenToTheBox()
{
    EditorDesk desk;
    desk.log.watch(&desk.zoomBox(), &QComboBox::activated, "box");
    desk.zoomBox().setCurrentIndex(2);
    desk.editor->chooseCanvas(KORVA_CANVAS_16BIT, 64, 80);
    const QStringList lines = desk.log.taken();
    QCOMPARE(lines.count("canvasChanged(2)"), 1);
    QCOMPARE(lines.count("box.activated(2)"), 1);
    QCOMPARE(desk.canvas().zoom(), 150);
}

void tst_ZoomBox::committedBeforeZooming()
{
    EditorDesk desk;
    desk.type("Hm");
    QVERIFY(!fixtures::hasInk(desk.picture()));
    desk.chooseZoom(3);
    QVERIFY(fixtures::hasInk(desk.picture()));
    QVERIFY(!desk.manager().currentTool()->getTextKey());
    QVERIFY(support::sameImage(*desk.canvas().zoomedPixmap(), support::scaled(desk.picture(), 200)));
}

void tst_ZoomBox::pointsOfTheZoomedPicture()
{
    EditorDesk desk;
    desk.chooseZoom(3);
    Gestures(desk.canvas()).click({100, 60});
    QCOMPARE(support::inkBounds(desk.picture()), QRect(50, 30, 1, 1));
}

void tst_ZoomBox::theListMarksTheRateInForce()
{
    EditorDesk desk;
    desk.editor->show();
    const auto marked = [&] {
        desk.zoomBox().showPopup();
        desk.zoomBox().hidePopup();
        QList<int> rows;
        for (int row = 0; row < desk.zoomBox().count(); ++row)
            if (desk.zoomBox().itemData(row, Qt::CheckStateRole).toInt() == Qt::Checked)
                rows << row;
        return rows;
    };
    QCOMPARE(marked(), QList<int>{1});
    for (const int row : {0, 2, 3, 4, 1}) {
        desk.chooseZoom(row);
        QCOMPARE(marked(), QList<int>{row});
    }
    desk.editor->setZoom(200); // as a host may, without the box
    QCOMPARE(marked(), QList<int>{3});
    desk.editor->setZoom(77);
    QCOMPARE(marked(), QList<int>());
    desk.setPicture(support::sheet({640, 480}));
    desk.chooseZoom(3); // too large for it
    QCOMPARE(marked(), QList<int>{1});
}

// With a background of one colour from end to end.
void tst_ZoomBox::theListShowsTheCurrentRow()
{
    const EditorDesk desk;
    QComboBox& box = desk.zoomBox();
    box.showPopup();
    for (const int current : {3, 0}) {
        box.view()->setCurrentIndex(box.model()->index(current, 0));
        const QImage shown = box.view()->viewport()->grab().toImage();
        for (const int row : {0, 3}) {
            const QRect place = box.view()->visualRect(box.model()->index(row, 0));
            const QColor expected =
                box.view()->palette().color(row == current ? QPalette::Highlight : QPalette::Base);
            QCOMPARE(shown.pixelColor(place.topLeft() + QPoint(1, 1)), expected);
            QCOMPARE(shown.pixelColor(place.bottomRight() - QPoint(1, 1)), expected);
        }
    }
    box.hidePopup();
}

void tst_ZoomBox::anotherPictureIsFitted()
{
    EditorDesk desk;
    desk.chooseZoom(4);
    QCOMPARE(desk.canvas().zoom(), 109);
    (void)desk.log.taken();
    QPixmap picture = QPixmap::fromImage(support::sheet({111, 93}));
    desk.editor->setPixmap(&picture);
    QCOMPARE(desk.canvas().zoom(), 200);
    QCOMPARE(desk.log.taken(), QStringList({"canUndo(false)", "canRedo(false)", "pixmapChanged(111x93)",
                                            "sizeChanged()", "sizeChanged()"}));
    QVERIFY(!desk.editor->isModified());
    desk.editor->setPixmap(&picture); // of the same size: nothing but the classic signals
    QCOMPARE(desk.log.taken(), QStringList({"canUndo(false)", "canRedo(false)", "pixmapChanged(111x93)"}));
}

void tst_ZoomBox::withoutFittingAPictureKeepsTheRate()
{
    EditorDesk desk;
    QPixmap picture = QPixmap::fromImage(support::sheet({111, 93}));
    desk.editor->slotSelZoomRate(4); // by a host: the box still shows 100 %
    desk.editor->setPixmap(&picture);
    QCOMPARE(desk.canvas().zoom(), 109);
    desk.chooseZoom(4);
    desk.editor->setZoom(50); // in force is what the host set
    QPixmap other = QPixmap::fromImage(support::sheet({200, 170}));
    desk.editor->setPixmap(&other);
    QCOMPARE(desk.canvas().zoom(), 50);
}

int main(int argc, char** argv)
{
    return support::run<tst_ZoomBox>(argc, argv);
}

#include "tst_ZoomBox.moc"
