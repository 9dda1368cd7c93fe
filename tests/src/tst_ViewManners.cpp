#include "EditorFixtures.h"
#include "KORVA_Manners.h"
#include "KORVA_ScrollView.h"
#include "support/Fingers.h"

using fixtures::EditorDesk;
using support::sameImage;

namespace {

constexpr QSize size(80, 60);
const QList<int> rates{50, 100, 150, 200, 400, 800, KORVA_Features::fitToPage};

/// An editor on the screen with the pad's zooms.
struct ViewDesk : EditorDesk
{
    explicit ViewDesk(const KORVA_Manners& manners)
    {
        KORVA_Features features;
        features.zooms = rates;
        editor->setFeatures(features);
        editor->setManners(manners);
        setPicture(support::mosaic(size));
        editor->show();
        if (!QTest::qWaitForWindowExposed(editor.get()))
            QTest::qFail("the editor does not show", __FILE__, __LINE__);
    }
    void wheel(QPoint at, int eighths, Qt::KeyboardModifiers modifiers = {}, QPoint pixels = {},
               Qt::MouseButtons buttons = {})
    {
        QWheelEvent event(at, canvas().mapToGlobal(at), pixels, {0, eighths}, buttons, modifiers,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&canvas(), &event);
        if (!event.isAccepted()) // as the toolkit does with an event of the window system
            QCoreApplication::sendEvent(view().viewport(), &event);
    }
    [[nodiscard]] KORVA_ScrollView& view() const { return *canvas().scrollView(); }
    [[nodiscard]] QWidget* magnifier() const { return view().findChild<QWidget*>("magnifier"); }
};

KORVA_Manners with(bool KORVA_Manners::*switched)
{
    KORVA_Manners manners;
    manners.*switched = true;
    return manners;
}

} // namespace

class tst_ViewManners : public support::TestCase
{
    Q_OBJECT

private slots:
    void gridFrom400On_data();
    void gridFrom400On();
    void gridIsNeverSaved();
    void wheelGoesFromRowToRow();
    void placeUnderThePointerStays_data();
    void placeUnderThePointerStays();
    void middleStays_data();
    void middleStays();
    void wheelScrolls_data();
    void wheelScrolls();
    void strokeKeepsItsZoom();
    void stepsFromARateWithoutARow();
    void magnifierShowsTheSpot();
    void magnifierStaysInTheView_data();
    void magnifierStaysInTheView();
    void noMagnifier_data();
    void noMagnifier();
};

void tst_ViewManners::gridFrom400On_data()
{
    QTest::addColumn<int>("zoom");
    QTest::addColumn<bool>("isOn");
    for (const int zoom : {100, 200, 399, 400, 401, 800}) {
        QTest::addRow("modern, %d %%", zoom) << zoom << true;
        QTest::addRow("classic, %d %%", zoom) << zoom << false;
    }
}

void tst_ViewManners::gridFrom400On()
{
    QFETCH(const int, zoom);
    QFETCH(const bool, isOn);
    ViewDesk desk(isOn ? with(&KORVA_Manners::pixelGrid) : KORVA_Manners());
    desk.setPicture(support::sheet(QSize(12, 9), Qt::white));
    desk.editor->setZoom(zoom);
    const QImage plain = support::scaled(desk.picture(), zoom);
    QImage expected = plain;
    if (isOn && zoom >= 400) {
        QPainter painter(&expected);
        painter.setPen(QColor(128, 128, 128, 112));
        for (int x = 0; x < plain.width(); ++x) { // where another pixel begins
            if (x == 0 || x * 100 / zoom != (x - 1) * 100 / zoom)
                painter.drawLine(x, 0, x, plain.height());
        }
        for (int y = 0; y < plain.height(); ++y) {
            if (y == 0 || y * 100 / zoom != (y - 1) * 100 / zoom)
                painter.drawLine(0, y, plain.width(), y);
        }
    }
    QVERIFY(sameImage(desk.canvas().grab(), expected));
}

void tst_ViewManners::gridIsNeverSaved()
{
    ViewDesk desk(with(&KORVA_Manners::pixelGrid));
    desk.editor->setZoom(800);
    QVERIFY(sameImage(desk.editor->snapshot(), support::mosaic(size)));
    QVERIFY(
        sameImage(desk.canvas().zoomedPixmap()->toImage(), support::scaled(support::mosaic(size), 800)));
}

void tst_ViewManners::wheelGoesFromRowToRow()
{
    ViewDesk desk(with(&KORVA_Manners::wheelZooms));
    QList<int> seen;
    for (int i = 0; i < 6; ++i) {
        desk.wheel({40, 30}, 120);
        seen << desk.canvas().zoom();
    }
    QCOMPARE(seen, (QList<int>{150, 200, 400, 800, 800, 800}));
    QCOMPARE(desk.editor->zoomIndex(), 5);
    desk.wheel({40, 30}, -60); // half a notch, twice
    QCOMPARE(desk.canvas().zoom(), 800);
    desk.wheel({40, 30}, -60);
    QCOMPARE(desk.canvas().zoom(), 400);
    desk.wheel({40, 30}, -1200, Qt::ControlModifier);
    QCOMPARE(desk.canvas().zoom(), 50);
}

void tst_ViewManners::placeUnderThePointerStays_data()
{
    QTest::addColumn<QPoint>("inPicture");
    QTest::newRow("middle") << QPoint(120, 100);
    QTest::newRow("left half") << QPoint(80, 140);
    QTest::newRow("right half") << QPoint(200, 90);
}

void tst_ViewManners::placeUnderThePointerStays()
{
    QFETCH(const QPoint, inPicture);
    ViewDesk desk(with(&KORVA_Manners::wheelZooms));
    desk.setPicture(support::sheet(QSize(300, 240)));
    desk.editor->selectZoom(3);
    const QPoint onScreen = desk.view().viewport()->mapToGlobal(QPoint(100, 90));
    desk.view().setContentsPos(inPicture.x() * 2 - 100, inPicture.y() * 2 - 90);
    for (const int direction : {1, 1, -1, 1, -1, -1}) {
        desk.wheel(desk.canvas().mapFromGlobal(onScreen), direction * 120);
        const QPoint now = desk.canvas().mapFromGlobal(onScreen) * 100 / desk.canvas().zoom();
        QVERIFY2((now - inPicture).manhattanLength() <= 1,
                 qPrintable(QString("%1,%2 at %3").arg(now.x()).arg(now.y()).arg(desk.canvas().zoom())));
    }
}

void tst_ViewManners::middleStays_data()
{
    QTest::addColumn<bool>("isOn");
    QTest::newRow("steady") << true;
    QTest::newRow("classic") << false;
}

void tst_ViewManners::middleStays()
{
    QFETCH(const bool, isOn);
    ViewDesk desk(isOn ? with(&KORVA_Manners::steadyView) : KORVA_Manners());
    desk.setPicture(support::sheet(QSize(300, 240)));
    desk.editor->selectZoom(KORVA_ZOOM_200);
    desk.view().setContentsPos(180, 150);
    const auto middle = [&] {
        const QPoint inView = desk.view().viewport()->rect().center();
        const QPointF onCanvas = desk.canvas().mapFromGlobal(desk.view().viewport()->mapToGlobal(inView));
        return onCanvas * 100 / desk.canvas().zoom();
    };
    const QPointF before = middle();
    desk.editor->stepZoom(1);
    QVERIFY(desk.canvas().zoom() > 200);
    const bool stays = (middle() - before).manhattanLength() < 2;
    QCOMPARE(stays, isOn);
    desk.editor->stepZoom(-1);
    QVERIFY((middle() - before).manhattanLength() < 2); // and back
}

void tst_ViewManners::wheelScrolls_data()
{
    QTest::addColumn<bool>("isOn");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QPoint>("pixels");
    QTest::newRow("classic") << false << int(Qt::NoModifier) << QPoint();
    QTest::newRow("classic with Ctrl") << false << int(Qt::ControlModifier) << QPoint();
    QTest::newRow("with Shift") << true << int(Qt::ShiftModifier) << QPoint();
    QTest::newRow("on a touch pad") << true << int(Qt::NoModifier) << QPoint(0, -30);
}

void tst_ViewManners::wheelScrolls()
{
    QFETCH(const bool, isOn);
    QFETCH(const int, modifiers);
    QFETCH(const QPoint, pixels);
    ViewDesk desk(isOn ? with(&KORVA_Manners::wheelZooms) : KORVA_Manners());
    desk.editor->selectZoom(4);
    const QPoint before(desk.view().contentsX(), desk.view().contentsY());
    desk.wheel({40, 30}, -120, Qt::KeyboardModifiers(modifiers), pixels);
    QCOMPARE(desk.canvas().zoom(), 400);
    QVERIFY(QPoint(desk.view().contentsX(), desk.view().contentsY()) != before);
}

void tst_ViewManners::strokeKeepsItsZoom()
{
    ViewDesk desk(with(&KORVA_Manners::wheelZooms));
    support::Gestures stylus(desk.canvas());
    stylus.press({10, 10});
    desk.wheel({20, 20}, 120, {}, {}, Qt::LeftButton);
    QCOMPARE(desk.canvas().zoom(), 100);
    stylus.release({10, 10});
    desk.wheel({20, 20}, 120);
    QCOMPARE(desk.canvas().zoom(), 150);
}

void tst_ViewManners::stepsFromARateWithoutARow()
{
    ViewDesk desk({});
    desk.editor->setZoom(175);
    desk.editor->stepZoom(1);
    QCOMPARE(desk.canvas().zoom(), 200);
    desk.editor->setZoom(175);
    desk.editor->stepZoom(-1);
    QCOMPARE(desk.canvas().zoom(), 150);
    desk.editor->setZoom(1000);
    desk.editor->stepZoom(1);
    QCOMPARE(desk.canvas().zoom(), 1000);
}

void tst_ViewManners::magnifierShowsTheSpot()
{
    ViewDesk desk(with(&KORVA_Manners::magnifier));
    support::Fingers fingers(desk.canvas());
    fingers.press(0, {40, 40});
    for (const QPoint to : {QPoint(48, 44), QPoint(50, 50)})
        fingers.move(0, to);
    QVERIFY(desk.magnifier() && desk.magnifier()->isVisible());
    const QImage shown = desk.magnifier()->grab().toImage();
    const QPoint middle = shown.rect().center();
    QCOMPARE(shown.pixelColor(middle), QColor(Qt::red)); // what the pencil has just drawn
    const QImage picture = desk.canvas().zoomedPixmap()->toImage();
    for (const QPoint away : {QPoint(-9, -9), QPoint(9, -7), QPoint(-8, 9)})
        QCOMPARE(shown.pixelColor(middle + 3 * away), picture.pixelColor(QPoint(50, 50) + away));
    fingers.release(0);
    QVERIFY(!desk.magnifier()->isVisible());
    QVERIFY(!sameImage(desk.picture(), support::mosaic(size), "stroke-is-there"));
}

void tst_ViewManners::magnifierStaysInTheView_data()
{
    QTest::addColumn<QPoint>("at");
    for (const QPoint at : {QPoint(4, 4), QPoint(196, 4), QPoint(100, 6), QPoint(4, 160), QPoint(196, 160)})
        QTest::addRow("%d, %d", at.x(), at.y()) << at;
}

void tst_ViewManners::magnifierStaysInTheView()
{
    QFETCH(const QPoint, at);
    ViewDesk desk(with(&KORVA_Manners::magnifier));
    desk.setPicture(support::sheet(QSize(200, 170)));
    support::Fingers fingers(desk.canvas());
    fingers.press(0, at);
    const QPoint to = at + QPoint(at.x() < 100 ? 30 : -30, 0);
    fingers.move(0, to);
    QVERIFY(desk.magnifier() && desk.magnifier()->isVisible());
    QVERIFY(desk.view().viewport()->rect().contains(desk.magnifier()->geometry()));
    const QPoint finger = desk.view().viewport()->mapFromGlobal(desk.canvas().mapToGlobal(to));
    QVERIFY(!desk.magnifier()->geometry().contains(finger));
}

void tst_ViewManners::noMagnifier_data()
{
    QTest::addColumn<bool>("isOn");
    QTest::addColumn<int>("zoom");
    QTest::addColumn<bool>("isFinger");
    QTest::newRow("classic") << false << 100 << true;
    QTest::newRow("large pixels") << true << 400 << true;
    QTest::newRow("mouse") << true << 100 << false;
}

void tst_ViewManners::noMagnifier()
{
    QFETCH(const bool, isOn);
    QFETCH(const int, zoom);
    QFETCH(const bool, isFinger);
    ViewDesk desk(isOn ? with(&KORVA_Manners::magnifier) : KORVA_Manners());
    desk.editor->setZoom(zoom);
    support::Fingers fingers(desk.canvas());
    support::Gestures mouse(desk.canvas());
    if (isFinger) {
        fingers.press(0, {40, 40});
        fingers.move(0, {70, 50});
    } else {
        mouse.press({40, 40});
        mouse.move({70, 50});
    }
    QVERIFY(!desk.magnifier() || !desk.magnifier()->isVisible());
    if (!isFinger)
        mouse.release({70, 50});
}

int main(int argc, char** argv)
{
    return support::run<tst_ViewManners>(argc, argv);
}

#include "tst_ViewManners.moc"
