#include "EarlierDialog.h"

#include "support/Images.h"
#include "support/PadOnScreen.h"
#include "support/PictureFiles.h"
#include "support/StalledFile.h"
#include "support/TestCase.h"

#include <KORVA_Journal.h>

#include <QListWidget>

using support::StalledFile;

namespace {

constexpr QSize large(1200, 1000);
constexpr QSize small(60, 50);

/// A drawing in a folder.
KORVA_Journal::Entry drawing(const QString& file, QSize size, const QColor& color)
{
    if (!support::sheet(size, color).save(file, "PNG"))
        QTest::qFail("the drawing could not be written", __FILE__, __LINE__);
    return {file, {}, QDateTime::currentDateTime(), size};
}

QColor shown(const QListWidget& list, int row)
{
    const QImage image = list.item(row)->data(Qt::DecorationRole).value<QPixmap>().toImage();
    return image.pixelColor(image.rect().center() + QPoint(0, image.height() / 4));
}

} // namespace

/// Pictures that take long to be read do not keep the pad from going on.
class tst_SlowPictures : public support::TestCase
{
    Q_OBJECT

private slots:
    void cleanup() { QThreadPool::globalInstance()->waitForDone(); }

    void earlierDrawingsAreShownAsTheyAreRead();
    void earlierDrawingsNeedNotBeRead();
    void openingAtTheStart_data();
    void openingAtTheStart();
};

void tst_SlowPictures::earlierDrawingsAreShownAsTheyAreRead()
{
    const QTemporaryDir folder;
    const KORVA_Journal::Entry slow = drawing(folder.filePath("slow.png"), large, Qt::red);
    const KORVA_Journal::Entry quick = drawing(folder.filePath("quick.png"), small, Qt::blue);
    StalledFile stalled(slow.file);
    QWidget window;
    window.resize(240, 320);
    window.show();
    pad::EarlierDialog dialog(&window, {slow, quick});
    const auto* list = dialog.findChild<QListWidget*>();
    QCOMPARE(shown(*list, 1), QColor(Qt::blue));
    QVERIFY(shown(*list, 0) != QColor(Qt::red));
    const auto sign = [&] { return list->item(0)->data(Qt::DecorationRole).value<QPixmap>().toImage(); };
    QImage nothing = sign();
    nothing.fill(Qt::transparent);
    QVERIFY(sign() != nothing); // it can be seen that something comes
    QTRY_VERIFY(stalled.isWaitedFor());
    QVERIFY(stalled.letGo());
    QTRY_COMPARE(shown(*list, 0), QColor(Qt::red));
}

void tst_SlowPictures::earlierDrawingsNeedNotBeRead()
{
    const QTemporaryDir folder;
    const KORVA_Journal::Entry slow = drawing(folder.filePath("slow.png"), large, Qt::red);
    StalledFile stalled(slow.file);
    QWidget window;
    {
        const pad::EarlierDialog dialog(&window, {slow, slow});
        QTRY_VERIFY(stalled.isWaitedFor());
        QCOMPARE(dialog.chosen().file, slow.file);
    }
    QVERIFY(stalled.letGo()); // nobody has waited for it
}

void tst_SlowPictures::openingAtTheStart_data()
{
    QTest::addColumn<bool>("isCancelled");
    QTest::newRow("cancelled") << true;
    QTest::newRow("waited for") << false;
}

void tst_SlowPictures::openingAtTheStart()
{
    QFETCH(const bool, isCancelled);
    const QTemporaryDir home;
    support::PadOnScreen pad(home.path());
    QVERIFY(pad.server().isReady());
    const QString file = pad.pictures() + "/slow.bmp";
    QVERIFY(support::sheet(large, Qt::red).save(file));
    StalledFile stalled(file);
    bool isShown = false;
    QTimer person;
    person.callOnTimeout([&] {
        for (const support::XServer::Window& window : pad.server().windows()) {
            if (window.title != "Opening picture")
                continue;
            isShown = true;
            if (!isCancelled) {
                stalled.letGo();
                break;
            }
            pad.server().moveTo(window.place.center());
            pad.server().activateTopWindow();
            pad.server().key("Escape");
        }
    });
    person.start(50);
    QVERIFY(pad.start({file}));
    person.stop();
    QVERIFY(isShown);
    QVERIFY(stalled.letGo());
    QVERIFY(pad.waitForTitle(isCancelled ? "Drawing - Korva" : "slow.bmp - Korva"));
    if (!isCancelled) {
        QVERIFY(pad.waitForColor({100, 100}, Qt::red));
        return;
    }
    QVERIFY(pad.stroke({40, 30}, {90, 30})); // and it goes on
}

int main(int argc, char** argv)
{
    return support::run<tst_SlowPictures>(argc, argv);
}

#include "tst_SlowPictures.moc"
