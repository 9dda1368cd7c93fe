#include "Example.h"
#include "support/Images.h"

namespace {

constexpr QSize window(240, 320);
constexpr QPoint pickKey(120, 290);
constexpr QRect told(11, 252, 218, 18);
constexpr QPoint wallpaper(120, 120);
constexpr QPoint firstPicture(45, 105);
constexpr QPoint okKey(60, 294);
constexpr QSize previewWindow(220, 256);
constexpr QPoint confirmKey(55, 230);
constexpr QPoint cancelKey(160, 230);
constexpr QPoint pictureMiddle(112, 95);

} // namespace

/// The example that has a picture confirmed, as a person uses it.
class tst_Preview : public support::TestCase
{
    Q_OBJECT

private slots:
    void takesWhatWasConfirmed_data();
    void takesWhatWasConfirmed();
};

void tst_Preview::takesWhatWasConfirmed_data()
{
    QTest::addColumn<QPoint>("key");
    QTest::addColumn<bool>("taken");
    QTest::newRow("confirmed") << confirmKey << true;
    QTest::newRow("cancelled") << cancelKey << false;
}

void tst_Preview::takesWhatWasConfirmed()
{
    QFETCH(const QPoint, key);
    QFETCH(const bool, taken);
    const QTemporaryDir home;
    QVERIFY(QDir(home.path()).mkdir("Pictures"));
    QVERIFY(support::sheet(QSize(80, 60), Qt::blue).save(home.filePath("Pictures/sea.png")));
    Example host(window, {}, {{"HOME", home.path()}, {"XDG_CONFIG_HOME", home.path()}});
    QCOMPARE(host.place().size(), window);
    const auto ground = [&] { return host.shot().pixelColor(wallpaper); };
    QTRY_COMPARE_WITH_TIMEOUT(ground(), QColor(0xf4, 0xf5, 0xf7), Example::patience);
    const QImage before = host.shot().copy(told);
    host.click(pickKey);
    QVERIFY(host.shows(firstPicture, Qt::blue));
    host.click(firstPicture);
    host.click(okKey);
    const QRect preview = host.screen().waitForWindow(previewWindow);
    QCOMPARE(preview.size(), previewWindow);
    const QPoint origin = preview.topLeft() - host.place().topLeft();
    QVERIFY(host.shows(origin + pictureMiddle, Qt::blue));
    host.click(origin + key);
    QTRY_VERIFY_WITH_TIMEOUT(host.shot().copy(told) != before, Example::patience);
    QCOMPARE(ground() == QColor(Qt::blue), taken);
}

int main(int argc, char** argv)
{
    return support::run<tst_Preview>(argc, argv);
}

#include "tst_Preview.moc"
