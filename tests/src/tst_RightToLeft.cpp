#include "KORVA_Canvas.h"
#include "KORVA_ChooseCanvasDlg.h"
#include "KORVA_ColorPicker.h"
#include "KORVA_EditCanvas.h"
#include "KORVA_MainView.h"
#include "KORVA_ScrollView.h"
#include "UTIL_ListBox.h"
#include "UTIL_PictureDialog.h"
#include "UTIL_Platform.h"
#include "support/Gestures.h"
#include "support/Images.h"
#include "support/PaintedTexts.h"
#include "support/TestCase.h"

namespace {

QRect mirrored(const QRect& place, const QWidget& window)
{
    return {window.width() - place.x() - place.width(), place.y(), place.width(), place.height()};
}

QRect placeOf(const QWidget& widget)
{
    return {widget.mapTo(widget.window(), QPoint()), widget.size()};
}

/// Where everything of a window lies that a person works.
QMap<QString, QRect> controls(const QWidget& window)
{
    QMap<QString, QRect> places;
    for (const QAbstractButton* button : window.findChildren<QAbstractButton*>())
        places[button->text() + button->objectName()] = placeOf(*button);
    for (const QComboBox* box : window.findChildren<QComboBox*>())
        places[box->objectName()] = placeOf(*box);
    return places;
}

/// The first dark point of a line from an edge.
int inkFrom(const QImage& image, int y, bool right)
{
    for (int i = 0; i < image.width(); ++i)
        if (qGray(image.pixel(right ? image.width() - 1 - i : i, y)) < 128)
            return i;
    return -1;
}

} // namespace

/// A program that runs from right to left: the controls are mirrored, and the picture is not.
class tst_RightToLeft : public support::TestCase
{
    Q_OBJECT

private slots:
    void cleanup() { QGuiApplication::setLayoutDirection(Qt::LeftToRight); }

    void editorIsMirrored_data();
    void editorIsMirrored();
    void editorTurnsRound();
    void pictureIsTheSame();
    void barsScrollThePictureAlike();
    void softKeysAreMirrored();
    void listIsMirrored();
    void zoomBoxIsMirrored();
    void keysOfABoxAreMirrored();
    void channelsStay();
    void folderDialogIsMirrored();
};

void tst_RightToLeft::editorIsMirrored_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("as made") << QSize(240, 225);
    QTest::newRow("larger") << QSize(480, 500);
}

void tst_RightToLeft::editorIsMirrored()
{
    QFETCH(const QSize, size);
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    KORVA_EditCanvas here(KORVA_COLOR_16BIT);
    if (here.size() == size) // where nothing is resized nothing tells it where it is
        QCOMPARE(placeOf(*here.mainView()), mirrored(QRect(2, 33, 228, 192), here));
    here.resize(size);
    here.show();
    const QMap<QString, QRect> places = controls(here);
    QVERIFY(places.size() >= 4);
    const QMap<QString, QRect> made{{"toolButton", {2, 2, 33, 24}},
                                    {"optionButton", {38, 2, 33, 24}},
                                    {"zoomBox", {74, 2, 126, 24}},
                                    {"colorButton", {203, 2, 25, 24}}};
    for (auto it = made.begin(); it != made.end(); ++it)
        QCOMPARE(places.value(it.key()), mirrored(it.value(), here));
    const QSize more = size - QSize(240, 225);
    QCOMPARE(placeOf(*here.mainView()), mirrored(QRect(QPoint(2, 33), QSize(228, 192) + more), here));
}

void tst_RightToLeft::editorTurnsRound()
{
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    editor.show();
    const QMap<QString, QRect> before = controls(editor);
    editor.setLayoutDirection(Qt::RightToLeft);
    for (const char* name : {"toolButton", "optionButton", "zoomBox", "colorButton"})
        QCOMPARE(controls(editor).value(name), mirrored(before.value(name), editor));
    editor.setLayoutDirection(Qt::LeftToRight);
    QCOMPARE(controls(editor), before);
}

void tst_RightToLeft::pictureIsTheSame()
{
    const auto drawn = [](Qt::LayoutDirection direction) {
        QGuiApplication::setLayoutDirection(direction);
        KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
        editor.show();
        support::Gestures person(*editor.canvas());
        editor.selectTool(2);
        person.drag({{10, 10}, {60, 30}});
        editor.selectTool(3);
        person.click({20, 60});
        QTest::keyClicks(editor.canvas(), "Ab, 12 (x).");
        editor.selectTool(0);
        return editor.snapshot();
    };
    const QImage plain = drawn(Qt::LeftToRight);
    QVERIFY(support::inkCount(plain.copy(0, 0, 100, 50)) > 30);   // the line
    QVERIFY(support::inkCount(plain.copy(10, 55, 150, 60)) > 30); // the text
    QCOMPARE(drawn(Qt::RightToLeft), plain);
}

void tst_RightToLeft::barsScrollThePictureAlike()
{
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    editor.show();
    editor.setZoom(200);
    KORVA_ScrollView& view = *editor.mainView()->scrollView();
    QScrollBar& bar = *view.horizontalScrollBar();
    QVERIFY(bar.maximum() > 50);
    bar.setValue(0);
    QCOMPARE(editor.canvas()->x(), 0);
    QVERIFY(!bar.isRightToLeft());
    bar.triggerAction(QAbstractSlider::SliderPageStepAdd);
    QVERIFY(bar.value() > 0);
    QCOMPARE(editor.canvas()->x(), -bar.value());
    QCoreApplication::processEvents(); // the bars come in their own time
    QVERIFY(view.verticalScrollBar()->isVisible());
    QVERIFY(view.verticalScrollBar()->mapTo(&view, QPoint()).x() > view.width() / 2);
}

void tst_RightToLeft::softKeysAreMirrored()
{
    const KORVA_ChooseCanvasDlg there(nullptr, 0);
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    const KORVA_ChooseCanvasDlg here(nullptr, 0);
    for (const char* key : {"OK", "Cancel"}) {
        QVERIFY(controls(there).contains(key));
        QCOMPARE(controls(here).value(key), mirrored(controls(there).value(key), here));
    }
}

void tst_RightToLeft::listIsMirrored()
{
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    KORVA_ChooseCanvasDlg dialog(nullptr, 0);
    dialog.show();
    const auto* list = dialog.findChild<UTIL_ListBox*>();
    const QList<support::PaintedText> texts = support::paintedTexts(dialog);
    const auto row = std::find_if(texts.begin(), texts.end(),
                                  [](const support::PaintedText& text) { return text.text == "64 X 80"; });
    QVERIFY(row != texts.end()); // in one piece: a size is not turned round
    const QRect place = placeOf(*list->viewport());
    QVERIFY(qAbs(place.right() - 30 - row->place.right()) < 4);
    const QRect mark = list->visualItemRect(list->item(1)).translated(place.topLeft());
    const QImage shown = dialog.grab().toImage();
    QVERIFY(inkFrom(shown.copy(mark.adjusted(4, 4, -4, -4)), mark.height() / 2 - 4, true) < 20);
}

void tst_RightToLeft::zoomBoxIsMirrored()
{
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    editor.show();
    auto* box = editor.findChild<QComboBox*>("zoomBox");
    const auto texts = [box] { return support::paintedTexts(*box); };
    QCOMPARE(texts().size(), 1);
    const QRectF before = texts().constFirst().place;
    QVERIFY(before.center().x() < box->width() / 2.0);
    editor.setLayoutDirection(Qt::RightToLeft);
    const QRectF after = texts().constFirst().place;
    QVERIFY(qAbs(box->width() - before.left() - after.right()) <= 1);
    const QImage shown = box->grab().toImage(); // the mark that it opens
    QVERIFY(inkFrom(shown.copy(4, 4, shown.width() - 8, shown.height() - 8), shown.height() / 2 - 4,
                    false) < 20);
}

void tst_RightToLeft::keysOfABoxAreMirrored()
{
    const auto xs = [](Qt::LayoutDirection direction) {
        QGuiApplication::setLayoutDirection(direction);
        QPair<int, int> found;
        QTimer::singleShot(0, [&found] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            found = {controls(*dialog).value("Yes").x(), controls(*dialog).value("Cancel").x()};
            dialog->reject();
        });
        (void)UTIL_Platform::instance()->question(nullptr, "", "Well?", {"Yes", "Cancel"});
        return found;
    };
    const QPair<int, int> plain = xs(Qt::LeftToRight);
    QVERIFY(plain.first < plain.second);
    QCOMPARE(xs(Qt::RightToLeft), qMakePair(plain.second, plain.first));
}

void tst_RightToLeft::channelsStay()
{
    KORVA_ColorPicker there(KORVA_COLOR_16BIT, Qt::red, nullptr);
    there.show();
    const QList<support::PaintedText> plain = support::paintedTexts(there);
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    KORVA_ColorPicker here(KORVA_COLOR_16BIT, Qt::red, nullptr);
    here.show();
    const auto placeIn = [](const QList<support::PaintedText>& texts, const QString& text) {
        for (const support::PaintedText& each : texts)
            if (each.text == text)
                return each.place;
        return QRectF();
    };
    const QList<support::PaintedText> turned = support::paintedTexts(here);
    for (const char* channel : {"R", "G", "B"}) {
        QVERIFY(!placeIn(plain, channel).isEmpty());
        QCOMPARE(placeIn(turned, channel), placeIn(plain, channel));
    }
    QCOMPARE(here.findChildren<QSlider*>().at(0)->geometry(),
             there.findChildren<QSlider*>().at(0)->geometry());
}

void tst_RightToLeft::folderDialogIsMirrored()
{
    const QTemporaryDir folder;
    QImage picture(20, 20, QImage::Format_RGB32);
    for (const char* name : {"a.png", "b.png"})
        QVERIFY(picture.save(folder.filePath(name)));
    QWidget parent;
    parent.resize(240, 320);
    parent.show();
    const auto places = [&](Qt::LayoutDirection direction) {
        QGuiApplication::setLayoutDirection(direction);
        const std::unique_ptr<UTIL_PictureDialog> dialog(
            UTIL_Platform::instance()->createPickDialog(&parent, folder.path(), {"*.png"}));
        dialog->show();
        QMap<QString, QRect> found = controls(*dialog);
        auto* view = dialog->findChild<QListView*>();
        for (int row = 0; row < view->model()->rowCount(); ++row)
            found[view->model()->index(row, 0).data().toString()] =
                view->visualRect(view->model()->index(row, 0))
                    .translated(placeOf(*view->viewport()).topLeft());
        return found;
    };
    const QMap<QString, QRect> plain = places(Qt::LeftToRight);
    const QMap<QString, QRect> turned = places(Qt::RightToLeft);
    for (const char* key : {"Open", "Cancel", "Up"})
        QCOMPARE(turned.value(key), mirrored(plain.value(key), parent));
    QVERIFY(plain.value("a.png").x() < plain.value("b.png").x());
    QVERIFY(turned.value("a.png").x() > turned.value("b.png").x());
}

int main(int argc, char** argv)
{
    return support::run<tst_RightToLeft>(argc, argv);
}

#include "tst_RightToLeft.moc"
