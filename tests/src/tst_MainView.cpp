#include "Fixtures.h"
#include "KORVA_MainView.h"
#include "KORVA_ScrollView.h"

class tst_MainView : public support::TestCase
{
    Q_OBJECT

private slots:
    void constructionCentresWithoutCorrection_data();
    void constructionCentresWithoutCorrection();
    void widgetsAreNestedAsHostsReckon();
    void editorAsParentBecomesTheCanvasEditor();
    void layoutPlacesTheCanvas_data();
    void layoutPlacesTheCanvas();
    void canvasIsCentredOnScreen();
    void largeCanvasScrolls();
    void zoomUpdatesTheLayout();
    void focusGoesToTheCanvas();
};

void tst_MainView::constructionCentresWithoutCorrection_data()
{
    QTest::addColumn<bool>("child");
    QTest::addColumn<QPoint>("place");
    QTest::newRow("window of 640 x 480") << false << QPoint(220, 155);
    QTest::newRow("child of 100 x 30") << true << QPoint(0, 0);
}

void tst_MainView::constructionCentresWithoutCorrection()
{
    QFETCH(const bool, child);
    QFETCH(const QPoint, place);
    QWidget parent;
    const KORVA_MainView view(child ? &parent : nullptr, "view");
    QCOMPARE(view.objectName(), "view");
    QCOMPARE(view.canvas()->pos(), place);
    QCOMPARE(view.canvas()->size(), QSize(200, 170));
    QCOMPARE(view.scrollView()->size(), QSize(200, 170));
}

void tst_MainView::widgetsAreNestedAsHostsReckon()
{
    const KORVA_MainView view;
    QCOMPARE(view.canvas()->parentWidget(), view.scrollView()->viewport());
    QCOMPARE(view.scrollView()->viewport()->parentWidget(), view.scrollView());
    QCOMPARE(view.scrollView()->parentWidget(), &view);
    auto* layout = qobject_cast<QBoxLayout*>(view.layout());
    QVERIFY(layout);
    QCOMPARE(layout->direction(), QBoxLayout::TopToBottom);
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->itemAt(0)->widget(), view.scrollView());
}

void tst_MainView::editorAsParentBecomesTheCanvasEditor()
{
    const KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    support::SignalRecorder recorder;
    recorder.watch(&editor, &KORVA_EditCanvas::modified);
    editor.mainView()->canvas()->markModified();
    QCOMPARE(recorder.taken(), QStringList("modified()"));
}

void tst_MainView::layoutPlacesTheCanvas_data()
{
    QTest::addColumn<QSize>("view");
    QTest::addColumn<QPoint>("place");
    QTest::newRow("equal") << QSize(200, 170) << QPoint(0, 0);
    QTest::newRow("3 pixels free") << QSize(203, 173) << QPoint(0, 0);
    QTest::newRow("4 pixels free") << QSize(204, 174) << QPoint(0, 0);
    QTest::newRow("5 pixels free") << QSize(205, 175) << QPoint(0, 0);
    QTest::newRow("6 pixels free") << QSize(206, 176) << QPoint(1, 1);
    QTest::newRow("10 pixels free") << QSize(210, 180) << QPoint(3, 3);
    QTest::newRow("wide and low") << QSize(300, 100) << QPoint(48, 0);
    QTest::newRow("narrow and high") << QSize(100, 301) << QPoint(0, 63);
    QTest::newRow("smaller") << QSize(150, 120) << QPoint(0, 0);
}

void tst_MainView::layoutPlacesTheCanvas()
{
    QFETCH(const QSize, view);
    QFETCH(const QPoint, place);
    KORVA_MainView mainView;
    mainView.resize(view);
    mainView.show();
    QCOMPARE(mainView.canvas()->pos(), place);
    QCOMPARE(mainView.scrollView()->contentsWidth(), 200);
    QCOMPARE(mainView.scrollView()->contentsHeight(), 170);

    mainView.canvas()->move(77, 77);
    mainView.updateLayout();
    QCOMPARE(mainView.canvas()->pos(), place);
}

void tst_MainView::canvasIsCentredOnScreen()
{
    KORVA_MainView view;
    view.resize(240, 220);
    view.show();
    view.canvas()->clearCanvas(Qt::red);
    const QImage screen = view.grab().toImage();
    QRect red;
    for (int y = 0; y < screen.height(); ++y)
        for (int x = 0; x < screen.width(); ++x)
            if (screen.pixelColor(x, y) == Qt::red)
                red |= QRect(x, y, 1, 1);
    QCOMPARE(red, QRect(20, 25, 200, 170));
}

void tst_MainView::largeCanvasScrolls()
{
    KORVA_MainView view;
    view.resize(150, 120);
    view.show();
    QVERIFY(view.scrollView()->horizontalScrollBar()->isVisible());
    QVERIFY(view.scrollView()->verticalScrollBar()->isVisible());
    view.scrollView()->setContentsPos(30, 20);
    QCOMPARE(view.canvas()->pos(), QPoint(-30, -20));
    view.resize(300, 300);
    QCoreApplication::processEvents(); // the bars go with the next turn of the event loop
    QVERIFY(!view.scrollView()->horizontalScrollBar()->isVisible());
    QVERIFY(!view.scrollView()->verticalScrollBar()->isVisible());
    QCOMPARE(view.canvas()->pos(), QPoint(48, 63));
}

void tst_MainView::zoomUpdatesTheLayout()
{
    KORVA_MainView view;
    view.resize(240, 220);
    view.show();
    view.canvas()->setZoom(50);
    QCOMPARE(view.canvas()->pos(), QPoint((240 - 100) / 2 - 2, (220 - 85) / 2 - 2));
    QCOMPARE(view.scrollView()->contentsWidth(), 100);
    view.canvas()->setZoom(200);
    QCOMPARE(view.canvas()->pos(), QPoint(0, 0));
    QCOMPARE(view.scrollView()->contentsWidth(), 400);
    QCOMPARE(view.scrollView()->contentsHeight(), 340);
}

void tst_MainView::focusGoesToTheCanvas()
{
    KORVA_MainView view;
    view.setFocus();
    QCOMPARE(view.focusWidget(), view.canvas());
}

int main(int argc, char** argv)
{
    return support::run<tst_MainView>(argc, argv);
}

#include "tst_MainView.moc"
