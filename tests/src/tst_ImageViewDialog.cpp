#include "KORVA_ImageView_Dialog.h"
#include "PreviewFixtures.h"
#include "support/Animation.h"
#include "support/EventLoop.h"
#include "support/PictureFiles.h"

using fixtures::Device;
using fixtures::display;
using fixtures::key;

namespace {

constexpr QRect displayRect(10, 10, 204, 171);
constexpr int longerThanTheDelay = 100; // ms

const QStringList loadErrorBox = {"question Dialog_Exclamatory_Mark.gif 'Picture load error.' OK"};
const QString failedBox = "timed Dialog_Complete.gif 'Failed to open file' 1";
const QString oversizeBox = "timed Dialog_Complete.gif 'The image is oversize' 1";

QString colorShown(const QDialog& dialog)
{
    const QPixmap picture = display(dialog)->pixmap();
    return picture.isNull() ? QString() : picture.toImage().pixelColor(0, 0).name();
}

/// Waits for the colour.
bool comesToShow(const QDialog& dialog, const QString& color)
{
    return QTest::qWaitFor([&] { return colorShown(dialog) == color; });
}

} // namespace

class tst_ImageViewDialog : public support::TestCase
{
    Q_OBJECT

    [[nodiscard]] QString path(const QString& name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
    const QImage m_photo = support::mosaic(QSize(100, 80));

private slots:
    void initTestCase()
    {
        QVERIFY(m_photo.save(path("photo.png")));
        QVERIFY(m_photo.save(path("photo.jpg")));
        const QByteArray jpeg = support::contents(path("photo.jpg"));
        support::write(path("cut.jpg"), jpeg.left(jpeg.size() / 2));
        support::write(path("text.png"), "this is no picture");
        support::write(path("text.gif"), "this is no picture");
        support::write(path("empty.png"), "");
        QVERIFY(support::writeGif(path("still.gif"), QSize(40, 30), {{Qt::red, 20}}));
        for (const char* name : {"lively.gif", "LIVELY.GIF", "lively.png"})
            QVERIFY(support::writeGif(path(name), QSize(40, 30), {{Qt::red, 30}, {Qt::blue, 30}}));
    }
    void cleanup() { UTIL_Platform::install(nullptr); }

    void theDialogIsAsDesigned()
    {
        KORVA_ImageView_Dialog dialog(path("photo.jpg"));
        QVERIFY(!dialog.isModal());
        QVERIFY(!dialog.parent());
        QVERIFY(dialog.objectName().isEmpty());
        QVERIFY(dialog.width() <= 240 && dialog.height() <= 320);
        QVERIFY(display(dialog));
        QCOMPARE(display(dialog)->geometry(), displayRect);

        const UTIL_PushButton* confirm = key(dialog, "Confirm");
        const UTIL_PushButton* cancel = key(dialog, "Cancel");
        QCOMPARE(confirm->flags(), 2);
        QCOMPARE(cancel->flags(), 1);
        QCOMPARE(confirm->y(), cancel->y());
        QVERIFY(confirm->geometry().right() < cancel->x());
        QVERIFY(confirm->y() > displayRect.bottom());
        QVERIFY(dialog.rect().contains(cancel->geometry()));
        QVERIFY(confirm->isEnabled() && cancel->isEnabled());
    }

    void theFileIsShown50MillisecondsLater()
    {
        const Device device;
        QElapsedTimer timer;
        timer.start();
        KORVA_ImageView_Dialog dialog(path("photo.png"));
        dialog.show();
        QVERIFY(display(dialog)->pixmap().isNull());
        qint64 loadedAfter = 0;
        QTimer watch;
        watch.callOnTimeout([&] {
            if (dialog.isLoaded() && !loadedAfter)
                loadedAfter = timer.elapsed();
        });
        watch.start(1);
        support::strike(longerThanTheDelay); // and the dialog's clock, which was set before, has struck
        QVERIFY(dialog.isLoaded());
        QVERIFY2(!loadedAfter || loadedAfter >= 45, qPrintable(QString::number(loadedAfter)));
        QVERIFY(support::sameImage(display(dialog)->pixmap(), m_photo));
        QCOMPARE(device.told(), QStringList());
    }

    void aReadableFileEnds_data() { fixtures::addEnds(); }
    void aReadableFileEnds()
    {
        QFETCH(fixtures::Way, way);
        KORVA_ImageView_Dialog dialog(path("photo.jpg"));
        support::whenOpen([&](QDialog& open) {
            QTRY_VERIFY(dialog.isLoaded());
            fixtures::end(open, way);
        });
        QTEST(dialog.exec(), "result");
    }

    void anUnreadableFileGivesItsMessages_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QStringList>("boxes");
        const QStringList failed = QStringList(failedBox) + loadErrorBox;
        QTest::newRow("missing") << "missing.jpg" << failed;
        QTest::newRow("no name") << QString() << failed;
        QTest::newRow("a folder") << "." << failed;
        QTest::newRow("text") << "text.png" << failed;
        QTest::newRow("empty") << "empty.png" << failed;
        QTest::newRow("cut off") << "cut.jpg" << failed;
        QTest::newRow("oversize") << "photo.png" << QStringList(oversizeBox) + loadErrorBox;
        // What cannot be parsed as a GIF either is told a second time.
        QTest::newRow("no GIF") << "text.gif" << failed + loadErrorBox;
        QTest::newRow("missing GIF") << "missing.gif" << failed + loadErrorBox;
    }

    void anUnreadableFileGivesItsMessages()
    {
        QFETCH(QString, name);
        QFETCH(QStringList, boxes);
        Device device;
        device.limit(QTest::currentDataTag() == QByteArray("oversize") ? 100 * 80 - 1 : 100 * 80);
        KORVA_ImageView_Dialog dialog(name.isNull() ? name : path(name));
        QCOMPARE(device.told(), boxes.mid(0, 1));
        QCOMPARE(device.parents(), QList<QWidget*>{&dialog});
        QVERIFY(!key(dialog, "Confirm")->isEnabled());
        QVERIFY(key(dialog, "Cancel")->isEnabled());
        dialog.show();
        QTRY_COMPARE(device.told(), boxes);
        QTest::qWait(longerThanTheDelay);
        QCOMPARE(device.told(), boxes);
        QVERIFY(!dialog.isLoaded());
        QVERIFY(!key(dialog, "Confirm")->isEnabled());
    }

    void anUnreadableFileCanOnlyBeCancelled_data()
    {
        QTest::addColumn<fixtures::Way>("way");
        QTest::newRow("by pointer") << fixtures::Way::CancelByPointer;
        QTest::newRow("by Escape") << fixtures::Way::Escape;
        QTest::newRow("by closing") << fixtures::Way::Close;
        QTest::newRow("by Return") << fixtures::Way::Return; // Cancel has the focus
    }

    void anUnreadableFileCanOnlyBeCancelled()
    {
        QFETCH(fixtures::Way, way);
        const Device device;
        KORVA_ImageView_Dialog dialog(path("missing.jpg"));
        support::whenOpen([&](QDialog& open) {
            fixtures::end(open, fixtures::Way::ConfirmByPointer);
            QVERIFY(open.isVisible());
            fixtures::end(open, way);
        });
        QCOMPARE(dialog.exec(), 0);
    }

    // The same with the boxes as the user sees them, the first one staying longer than the load waits.
    void theBoxesComeOneAfterTheOther()
    {
        UTIL_Platform::install(std::make_unique<fixtures::QuickPlatform>(2 * longerThanTheDelay));
        QStringList seen;
        const auto note = [&seen](const QDialog& box) {
            seen << box.property("iconName").toString() + ": " + support::labels(box).join(' ');
        };
        support::whenOpen([&](QDialog& first) {
            note(first);
            QCOMPARE(first.property("timeout").toInt(), 1);
            connect(&first, &QDialog::finished, [&seen] { seen << "closed"; });
        });
        KORVA_ImageView_Dialog dialog(path("missing.jpg"));
        QCOMPARE(seen, QStringList({"Dialog_Complete.gif: Failed to open file", "closed"}));

        support::whenOpen([&](QDialog& viewer) {
            QCOMPARE(&viewer, &dialog);
            support::whenOpen([&](QDialog& second) {
                note(second);
                QTest::mouseClick(support::button(second, "OK"), Qt::LeftButton);
                QTest::mouseClick(key(viewer, "Cancel"), Qt::LeftButton);
            });
        });
        QCOMPARE(dialog.exec(), 0);
        QCOMPARE(seen.mid(2), QStringList("Dialog_Exclamatory_Mark.gif: Picture load error."));
    }

    void anAnimationPlays_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("small letters") << "lively.gif";
        QTest::newRow("capitals") << "LIVELY.GIF";
    }

    void anAnimationPlays()
    {
        QFETCH(QString, name);
        const Device device;
        KORVA_ImageView_Dialog dialog(path(name));
        dialog.show();
        for (int round = 0; round < 3; ++round) {
            QVERIFY(comesToShow(dialog, "#ff0000"));
            QVERIFY(comesToShow(dialog, "#0000ff"));
        }
        QVERIFY(dialog.isLoaded());
        QCOMPARE(device.told(), QStringList());
    }

    void whatIsNoAnimationStandsStill_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("one frame") << "still.gif";
        QTest::newRow("not named so") << "lively.png";
    }

    void whatIsNoAnimationStandsStill()
    {
        QFETCH(QString, name);
        const Device device;
        KORVA_ImageView_Dialog dialog(path(name));
        dialog.show();
        QTRY_VERIFY(dialog.isLoaded());
        const qint64 picture = display(dialog)->pixmap().cacheKey();
        QCOMPARE(colorShown(dialog), "#ff0000");
        QTest::qWait(longerThanTheDelay);
        QCOMPARE(display(dialog)->pixmap().cacheKey(), picture);
        QCOMPARE(device.told(), QStringList());
    }

    void aGifThatBreaksOffLaterIsALoadErrorOnly()
    {
        const QByteArray data = support::contents(path("lively.gif"));
        const qsizetype secondFrame = data.lastIndexOf("\x21\xf9") + 8; // behind its delay
        // The trailer stays, so that only a look at every frame finds it.
        support::write(path("broken.gif"), data.left(secondFrame + 12) + ';');
        const Device device;
        KORVA_ImageView_Dialog dialog(path("broken.gif"));
        QCOMPARE(device.told(), QStringList());
        dialog.show();
        QTRY_COMPARE(device.told(), loadErrorBox);
        QCOMPARE(colorShown(dialog), "#ff0000"); // the first frame
        QVERIFY(!dialog.isLoaded());
        QVERIFY(key(dialog, "Confirm")->isEnabled());
    }

    void aFileThatVanishesAfterTheCheckIsALoadError()
    {
        QVERIFY(QFile::copy(path("photo.jpg"), path("fleeting.jpg")));
        const Device device;
        KORVA_ImageView_Dialog dialog(path("fleeting.jpg"));
        QVERIFY(QFile::remove(path("fleeting.jpg")));
        dialog.show();
        QTRY_COMPARE(device.told(), loadErrorBox);
        QVERIFY(!dialog.isLoaded());
        QVERIFY(key(dialog, "Confirm")->isEnabled());
    }

    void anImageIsShownWhereTheFileOfTheFixedNameIsReadable()
    {
        const QString before = QDir::currentPath();
        QTemporaryDir folder;
        QVERIFY(QDir::setCurrent(folder.path()));
        QVERIFY(support::sheet(QSize(9, 9), Qt::red).save("image.jpg"));
        const Device device;
        KORVA_ImageView_Dialog dialog(m_photo);
        QVERIFY(QDir::setCurrent(before));
        dialog.show();
        QVERIFY(support::sameImage(display(dialog)->pixmap(), m_photo));
        QVERIFY(key(dialog, "Confirm")->isEnabled());
        QTest::qWait(longerThanTheDelay); // and nothing takes its place
        QVERIFY(support::sameImage(display(dialog)->pixmap(), m_photo));
        QCOMPARE(device.told(), QStringList());
    }

    void anImageIsNotShownWhereThereIsNoFileOfTheFixedName()
    {
        const QString before = QDir::currentPath();
        QTemporaryDir folder;
        QVERIFY(QDir::setCurrent(folder.path()));
        const Device device;
        KORVA_ImageView_Dialog dialog(m_photo);
        QVERIFY(QDir::setCurrent(before));
        QCOMPARE(device.told(), QStringList(failedBox));
        dialog.show();
        QTest::qWait(longerThanTheDelay);
        QVERIFY(display(dialog)->pixmap().size() != m_photo.size());
        QVERIFY(!key(dialog, "Confirm")->isEnabled());
        QCOMPARE(device.told(), QStringList(failedBox)); // no load, so no second message
    }

    void theSizeCheckTakesAFormatByName()
    {
        const Device device;
        KORVA_ImageView_Dialog dialog(path("photo.png"));
        QVERIFY(dialog.isPicSizeNotOver(path("photo.png"), "PNG"));
        QVERIFY(dialog.isPicSizeNotOver(path("photo.jpg"), nullptr));
        QCOMPARE(device.told(), QStringList());
        QVERIFY(!dialog.isPicSizeNotOver(path("photo.jpg"), "PNG"));
        QCOMPARE(device.told(), QStringList(failedBox));
    }

    void aDialogThatIsGoneLoadsNothing()
    {
        Device device;
        auto dialog = std::make_unique<KORVA_ImageView_Dialog>(path("missing.jpg"));
        dialog.reset();
        QTest::qWait(longerThanTheDelay);
        QCOMPARE(device.told(), QStringList(failedBox));
    }

    void aDialogMayGoAwayDuringItsLastMessage()
    {
        Device device;
        QPointer<QDialog> dialog = new KORVA_ImageView_Dialog(path("missing.gif"));
        device.whenAsked([dialog] { delete dialog; });
        QTRY_VERIFY(!dialog);
        QCOMPARE(device.told(), QStringList(failedBox) + loadErrorBox);
    }
};

int main(int argc, char** argv)
{
    return support::run<tst_ImageViewDialog>(argc, argv);
}

#include "tst_ImageViewDialog.moc"
