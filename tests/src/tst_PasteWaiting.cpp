#include "EditorFixtures.h"

using fixtures::EditorDesk;

namespace {

constexpr QSize large(1200, 1000);

QImage rgb(const QImage& image)
{
    return image.convertToFormat(QImage::Format_RGB32);
}

/// Puts a picture on the clipboard as another program does.
void copyElsewhere(const QImage& image)
{
    QBuffer buffer;
    QVERIFY(image.save(&buffer, "PNG"));
    auto* data = new QMimeData;
    data->setData("image/png", buffer.data());
    QGuiApplication::clipboard()->setMimeData(data);
}

/// Ways to paste.
void addPlaces()
{
    QTest::addColumn<bool>("floats");
    QTest::newRow("as a piece") << true;
    QTest::newRow("into the picture") << false;
}

void paste(KORVA_EditCanvas& editor, bool floats)
{
    if (floats)
        editor.paste();
    else
        editor.paste(1, 1);
}

} // namespace

/// A large picture of another program's is pasted: what one sees, and what is left when it is cancelled.
class tst_PasteWaiting : public support::TestCase
{
    Q_OBJECT

private slots:
    void cleanup() { QThreadPool::globalInstance()->waitForDone(); }

    void aLargePictureIsPasted_data();
    void aLargePictureIsPasted();
    void aSmallPictureIsPastedAtOnce();
    void aPasteIsCancelled_data();
    void aPasteIsCancelled();
    void theEditorMayGoAwayWhilePasting();
};

void tst_PasteWaiting::aLargePictureIsPasted_data()
{
    addPlaces();
}

void tst_PasteWaiting::aLargePictureIsPasted()
{
    QFETCH(const bool, floats);
    EditorDesk desk;
    const QImage picture = fixtures::flag(large);
    copyElsewhere(picture);
    int waits = 0;
    desk.platform->whileWaiting = [&](const QFuture<void>& work) {
        ++waits;
        QFuture<void>(work).waitForFinished();
        return true;
    };
    paste(*desk.editor, floats);
    QCOMPARE(waits, 1);
    if (floats)
        QVERIFY(support::sameImage(rgb(desk.canvas().pasteLabel()->getImage().toImage()), rgb(picture)));
    else
        QVERIFY(support::sameImage(rgb(desk.picture().copy(1, 1, 100, 100)),
                                   rgb(picture.copy(0, 0, 100, 100))));
    QVERIFY(desk.editor->isModified());
}

void tst_PasteWaiting::aSmallPictureIsPastedAtOnce()
{
    EditorDesk desk;
    const QImage picture = fixtures::flag();
    copyElsewhere(picture);
    desk.platform->whileWaiting = [](const QFuture<void>&) {
        QTest::qFail("nobody needs to wait", __FILE__, __LINE__);
        return false;
    };
    desk.editor->paste();
    QVERIFY(support::sameImage(rgb(desk.canvas().pasteLabel()->getImage().toImage()), rgb(picture)));
    desk.editor->canvas()->mergePastePixmap();

    copyElsewhere(fixtures::flag(large)); // nor may a box be shown
    KORVA_Features quiet = desk.editor->features();
    quiet.dialogs = false;
    desk.editor->setFeatures(quiet);
    desk.editor->paste();
    QCOMPARE(desk.canvas().pasteLabel()->getImage().size(), large);
}

void tst_PasteWaiting::aPasteIsCancelled_data()
{
    addPlaces();
}

void tst_PasteWaiting::aPasteIsCancelled()
{
    QFETCH(const bool, floats);
    EditorDesk desk;
    desk.setPicture(fixtures::flag());
    QPixmap stamp(9, 9);
    stamp.fill(Qt::red);
    desk.editor->insertStamp(stamp); // floats
    (void)desk.log.taken();
    const QImage before = desk.editor->snapshot();
    copyElsewhere(fixtures::flag(large));
    desk.platform->whileWaiting = [](const QFuture<void>& work) {
        QFuture<void>(work).cancel();
        return false;
    };
    paste(*desk.editor, floats);
    QCOMPARE(desk.log.taken(), QStringList());
    QVERIFY(support::sameImage(desk.editor->snapshot(), before));
    QCOMPARE(desk.canvas().pasteLabel()->getImage().size(), stamp.size());
    QVERIFY(!desk.canvas().pasteLabel()->isHidden());
}

void tst_PasteWaiting::theEditorMayGoAwayWhilePasting()
{
    for (const bool floats : {true, false}) {
        EditorDesk desk;
        copyElsewhere(fixtures::flag(large));
        desk.platform->whileWaiting = [&](const QFuture<void>& work) {
            QFuture<void>(work).waitForFinished();
            desk.editor.reset();
            return true;
        };
        QPointer<KORVA_EditCanvas> editor = desk.editor.get();
        paste(*editor, floats);
        QVERIFY(!editor);
        QVERIFY(!desk.log.taken().contains("modified()"));
    }
}

int main(int argc, char** argv)
{
    return support::run<tst_PasteWaiting>(argc, argv);
}

#include "tst_PasteWaiting.moc"
