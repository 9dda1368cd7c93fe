#include "Example.h"
#include "support/Images.h"

namespace {

constexpr QSize window(240, 320);
constexpr QPoint openKey(44, 287);
constexpr QPoint saveKey(120, 287);
constexpr QPoint onCanvas(60, 80);
constexpr QPoint canvasMiddle(116, 129);
constexpr QPoint bannerCorner(3, 231);
constexpr QColor ink(0x2b, 0x34, 0x40);
constexpr QPoint firstPicture(60, 36);
constexpr QPoint toolButton(18, 14);
constexpr QPoint openMenu(120, 219); // a place in the tool menu that is not white without it
constexpr QPoint textTool(50, 163);
constexpr QPoint pencilTool(50, 133);

} // namespace

/// The example whose host has services of its own, as a person uses it.
class tst_Services : public support::TestCase
{
    Q_OBJECT

private slots:
    void init();
    void opensFromItsOwnList();
    void namesDrawingsItself();
    void refusesWhatIsTooLargeForIt();
    void bringsTheKeyboardForText();

private:
    [[nodiscard]] QString path(const QString& name) const { return m_folder->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_Services::init()
{
    TestCase::init();
    m_folder = std::make_unique<QTemporaryDir>();
}

void tst_Services::opensFromItsOwnList()
{
    QVERIFY(support::sheet(QSize(80, 60), Qt::blue).save(path("a.png")));
    Example kiosk(window, {m_folder->path()});
    QVERIFY(kiosk.shows(canvasMiddle, Qt::white));
    kiosk.click(openKey);
    QVERIFY(kiosk.shows(firstPicture, Qt::blue)); // its thumbnail
    kiosk.click(firstPicture);
    QVERIFY(kiosk.shows(canvasMiddle, Qt::blue));
    QVERIFY(kiosk.isRunning());
}

void tst_Services::namesDrawingsItself()
{
    QVERIFY(support::sheet(QSize(8, 6), Qt::blue).save(path("drawing-1.png")));
    Example kiosk(window, {m_folder->path()});
    QVERIFY(kiosk.shows(onCanvas, Qt::white));
    kiosk.drag(onCanvas - QPoint(20, 0), onCanvas + QPoint(20, 0));
    QVERIFY(kiosk.shows(onCanvas, Qt::red));
    kiosk.click(saveKey);
    QVERIFY(kiosk.shows(bannerCorner, ink));
    const QImage saved(path("drawing-2.png"));
    QCOMPARE(saved.size(), QSize(200, 170));
    QVERIFY(support::inkCount(saved) >= 40);
    QCOMPARE(QImage(path("drawing-1.png")).size(), QSize(8, 6));

    // The banner waits for nobody, and goes by itself.
    kiosk.drag(onCanvas + QPoint(-20, 20), onCanvas + QPoint(20, 20));
    QVERIFY(kiosk.shows(onCanvas + QPoint(0, 20), Qt::red));
    QTRY_VERIFY_WITH_TIMEOUT(kiosk.shot().pixelColor(bannerCorner) != ink, Example::patience);
}

void tst_Services::refusesWhatIsTooLargeForIt()
{
    QVERIFY(support::sheet(QSize(2500, 2000), Qt::blue).save(path("a.png")));
    Example kiosk(window, {m_folder->path()});
    QVERIFY(kiosk.shows(canvasMiddle, Qt::white));
    kiosk.click(openKey);
    QVERIFY(kiosk.shows(firstPicture, Qt::blue));
    kiosk.click(firstPicture);
    QVERIFY(kiosk.shows(bannerCorner, ink));
    QVERIFY(kiosk.shows(canvasMiddle, Qt::white));
}

void tst_Services::bringsTheKeyboardForText()
{
    constexpr QPoint keyH(132, 286);
    constexpr QPoint keyDone(228, 308);
    constexpr QPoint text(50, 70);
    Example kiosk(window, {m_folder->path()});
    QVERIFY(kiosk.shows(onCanvas, Qt::white));
    const QImage before = kiosk.shot();
    const QRect keys(0, 260, 240, 60);
    const auto choose = [&kiosk](QPoint tool) {
        kiosk.click(toolButton);
        const bool opened = kiosk.shows(openMenu, Qt::white);
        kiosk.click(tool);
        return opened;
    };
    QVERIFY(choose(textTool));
    QTRY_VERIFY_WITH_TIMEOUT(kiosk.shot().copy(keys) != before.copy(keys), Example::patience);
    kiosk.click(text);
    kiosk.click(keyH);
    kiosk.click(keyH);
    kiosk.click(keyDone);
    QVERIFY(choose(pencilTool)); // what was typed goes into the picture, and the keyboard goes away
    QTRY_COMPARE_WITH_TIMEOUT(kiosk.shot().copy(keys), before.copy(keys), Example::patience);
    const QRect written = support::inkBounds(kiosk.shot().copy(20, 50, 100, 50));
    QVERIFY(written.width() > 8 && written.width() < 40);
}

int main(int argc, char** argv)
{
    return support::run<tst_Services>(argc, argv);
}

#include "tst_Services.moc"
