#include "JournalFixtures.h"

using fixtures::Desk;
using fixtures::drawingSize;
using fixtures::isSame;
using fixtures::numbered;
using fixtures::setTime;
using fixtures::typeInto;

/// What a program left behind is found, decided on and brought back.
class tst_JournalFinding : public fixtures::JournalTest
{
    Q_OBJECT

private slots:
    void adoptFindsWhatWasLeft();
    void adoptFindsTheNewest();
    void adoptWithNothingThere();
    void adoptedGoesByDecision_data();
    void adoptedGoesByDecision();
    void adoptedIsNotLostUndecided();
    void adoptedIsNotLostByDrawing();

    void leftoversAreRemoved();
    void damagedFiles_data();
    void damagedFiles();

    void broughtBack();
    void broughtBackFromAmongEarlier();
    void goneIsNotBroughtBack();
};

void tst_JournalFinding::adoptFindsWhatWasLeft()
{
    constexpr int age = 100; // seconds
    leave(Qt::red, age, "/photos/a b.png");
    Desk desk(folder());
    const QImage own = desk.editor.drawing();
    const auto found = desk.journal.adopt();
    QVERIFY(found);
    QCOMPARE(found->pictureName, "/photos/a b.png");
    QCOMPARE(found->size, drawingSize);
    QCOMPARE(found->file, folder() + '/' + living().constFirst());
    QVERIFY(qAbs(found->time.secsTo(QDateTime::currentDateTime()) - age) <= 2);
    QVERIFY(isSame(KORVA_Journal::picture(*found), support::sheet(drawingSize, Qt::red)));
    QVERIFY(isSame(desk.editor.drawing(), own));
    QVERIFY(!desk.editor.isModified());

    QVERIFY(!desk.journal.adopt()); // there is no second one
    Desk other(folder());
    QVERIFY(!other.journal.adopt()); // and this one is taken
}

void tst_JournalFinding::adoptFindsTheNewest()
{
    leave(Qt::green, 50);
    leave(Qt::blue, 500);
    leave(Qt::red, 5);
    leave(Qt::yellow, 5000);
    Desk desk(folder());
    const auto found = desk.journal.adopt();
    QVERIFY(found);
    QVERIFY(isSame(KORVA_Journal::picture(*found), support::sheet(drawingSize, Qt::red)));
    QCOMPARE(living().size(), 1);
    const QList<KORVA_Journal::Entry> entries = desk.journal.earlier();
    QCOMPARE(entries.size(), 3);
    const QColor expected[] = {Qt::green, Qt::blue, Qt::yellow};
    for (int i = 0; i < 3; ++i) {
        QVERIFY(
            isSame(KORVA_Journal::picture(entries[i]), support::sheet(drawingSize, expected[size_t(i)])));
    }
}

void tst_JournalFinding::adoptWithNothingThere()
{
    Desk desk(folder());
    QVERIFY(!desk.journal.adopt());
    QVERIFY(!QFile::exists(folder()));
    desk.editor.draw();
    desk.journal.flush();
    leave(Qt::red);
    QVERIFY(!desk.journal.adopt()); // it has a drawing
    desk.journal.settle();
    QVERIFY(desk.journal.adopt());
}

void tst_JournalFinding::adoptedGoesByDecision_data()
{
    QTest::addColumn<QString>("decision");
    QTest::addColumn<int>("livingThen");
    QTest::addColumn<int>("earlierThen");
    QTest::newRow("brought back") << "bring back" << 1 << 0;
    QTest::newRow("brought back and saved") << "bring back, settle" << 0 << 0;
    QTest::newRow("shelved") << "shelve" << 0 << 1;
    QTest::newRow("thrown away") << "settle" << 0 << 0;
    QTest::newRow("shelved twice") << "shelve, shelve" << 0 << 1;
    QTest::newRow("brought back, then shelved") << "bring back, shelve" << 1 << 0;
}

void tst_JournalFinding::adoptedGoesByDecision()
{
    QFETCH(const QString, decision);
    QFETCH(const int, livingThen);
    QFETCH(const int, earlierThen);
    leave(Qt::red);
    Desk desk(folder());
    const auto found = desk.journal.adopt();
    QVERIFY(found);
    for (const QString& step : decision.split(", ")) {
        if (step == "bring back")
            QVERIFY(desk.journal.bringBack(*found));
        else if (step == "shelve")
            desk.journal.shelve();
        else
            desk.journal.settle();
    }
    QCOMPARE(living().size(), livingThen);
    QCOMPARE(earlier().size(), earlierThen);
    QCOMPARE(files().size(), 2 * livingThen + earlierThen); // its lock is with it
    for (const QString& file : living() + earlier())
        QVERIFY(isSame(QImage(folder() + '/' + file), support::sheet(drawingSize, Qt::red)));

    desk.editor.draw(); // and it goes on
    QVERIFY(desk.journal.flush());
    QCOMPARE(earlier().size(), earlierThen);
    QVERIFY(isSame(livingPicture(), desk.editor.drawing()));
}

void tst_JournalFinding::adoptedIsNotLostUndecided()
{
    const fixtures::PictureFolder photos;
    const QString name = photos.written("a.png", fixtures::flag());
    leave(Qt::red);
    {
        Desk desk(folder());
        QVERIFY(desk.journal.adopt());
        QVERIFY(desk.editor.openNewFilePrivate(0, name)); // that settles nothing but the editor's drawing
        QVERIFY(desk.journal.flush());
        QCOMPARE(living().size() + earlier().size(), 1);
    }
    QCOMPARE(living().size(), 1);
    Desk next(folder());
    QVERIFY(next.journal.adopt());
}

void tst_JournalFinding::adoptedIsNotLostByDrawing()
{
    leave(Qt::red);
    QImage drawing;
    {
        Desk desk(folder());
        QVERIFY(desk.journal.adopt());
        desk.editor.draw();
        drawing = desk.editor.drawing();
    }
    QVERIFY(isSame(livingPicture(), drawing));
    QCOMPARE(earlier().size(), 1);
    QVERIFY(isSame(QImage(folder() + '/' + earlier()[0]), support::sheet(drawingSize, Qt::red)));
}

void tst_JournalFinding::leftoversAreRemoved()
{
    leave(Qt::red);
    const QString fresh = folder() + "/living-1-2.png.AbCdEf";
    const QString old = folder() + "/earlier-1-2.png.AbCdEf";
    const QString lock = folder() + "/living-1-2.lock";
    const QString foreign = folder() + "/notes.txt";
    for (const QString& file : {fresh, old, lock, foreign})
        support::write(file, "half of something");
    setTime(old, QDateTime::currentDateTime().addSecs(-3600));
    setTime(foreign, QDateTime::currentDateTime().addSecs(-3600));
    Desk desk(folder());
    QVERIFY(desk.journal.adopt());
    QVERIFY(QFile::exists(fresh)); // somebody may be writing it
    QVERIFY(!QFile::exists(old));
    QVERIFY(!QFile::exists(lock));
    QVERIFY(QFile::exists(foreign));
    QCOMPARE(living().size(), 1);
}

void tst_JournalFinding::damagedFiles_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("listed"); // for what looks sound until its pixels are read
    QBuffer buffer;
    QVERIFY(numbered(1).save(&buffer, "PNG"));
    QByteArray otherPixels = buffer.data();
    otherPixels[otherPixels.size() / 2] ^= 1;
    QTest::newRow("empty") << QByteArray() << 0;
    QTest::newRow("words") << QByteArray("These are words.") << 0;
    QTest::newRow("cut off in the header") << buffer.data().first(20) << 0;
    QTest::newRow("cut off") << buffer.data().first(buffer.data().size() / 2) << 0;
    QTest::newRow("one wrong bit") << otherPixels << 2;
}

void tst_JournalFinding::damagedFiles()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const int, listed);
    leave(Qt::red, 100);
    support::write(folder() + "/living-20990101-000000-000-1.png", bytes);
    support::write(folder() + "/earlier-20990101-000000-000-1.png", bytes);
    Desk desk(folder());
    const auto found = desk.journal.adopt();
    QVERIFY(found); // the newest that is whole
    QVERIFY(desk.journal.bringBack(*found));
    QVERIFY(isSame(desk.editor.drawing(), support::sheet(drawingSize, Qt::red)));
    QCOMPARE(desk.journal.earlier().size(), listed);
    for (const KORVA_Journal::Entry& entry : desk.journal.earlier()) {
        QVERIFY(!desk.journal.bringBack(entry));
        QVERIFY(isSame(desk.editor.drawing(), support::sheet(drawingSize, Qt::red)));
    }
    QVERIFY(desk.journal.keep());
    QVERIFY(desk.journal.flush());
    QCOMPARE(living().size(), 1);
}

void tst_JournalFinding::broughtBack()
{
    leave(Qt::red, 0, "/photos/a.png");
    Desk desk(folder());
    desk.editor.setFileName("/photos/other.png");
    desk.editor.draw();
    desk.editor.clearModified();
    desk.journal.settle();
    typeInto(desk.editor, "typed");
    desk.editor.clearModified();
    desk.journal.settle();
    support::SignalRecorder log;
    log.watch(&desk.editor, &KORVA_EditCanvas::canUndo);
    log.watch(&desk.editor, &KORVA_EditCanvas::canRedo);
    const auto found = desk.journal.adopt();
    QVERIFY(found);
    QVERIFY(desk.journal.bringBack(*found));
    QVERIFY(isSame(desk.editor.drawing(), support::sheet(drawingSize, Qt::red))); // and no text
    QCOMPARE(desk.editor.fileName(), QString());
    QVERIFY(desk.editor.isModified());
    QVERIFY(desk.editor.hasChanges());
    QCOMPARE(desk.editor.canvas()->undoFlag(), 0);
    const QStringList lines = log.taken();
    QVERIFY(lines.lastIndexOf("canUndo(false)") > lines.lastIndexOf("canUndo(true)"));
    QVERIFY(lines.lastIndexOf("canRedo(false)") > lines.lastIndexOf("canRedo(true)"));
    QCOMPARE(living().size(), 1); // still safe
    QVERIFY(!Desk(folder()).journal.adopt());
}

void tst_JournalFinding::broughtBackFromAmongEarlier()
{
    Desk desk(folder());
    desk.editor.take(numbered(1));
    QVERIFY(desk.journal.keep());
    desk.editor.take(numbered(2));
    desk.editor.canvas()->markModified();
    QVERIFY(desk.journal.flush());
    const auto entry = desk.journal.earlier().constFirst();
    QVERIFY(desk.journal.bringBack(entry));
    QVERIFY(isSame(desk.editor.drawing(), numbered(1)));
    QVERIFY(desk.editor.isModified());
    QVERIFY(isSame(livingPicture(), numbered(1))); // on the disk at once
    QVERIFY(isSame(KORVA_Journal::picture(entry), numbered(1)));
}

void tst_JournalFinding::goneIsNotBroughtBack()
{
    Desk desk(folder());
    QVERIFY(desk.journal.keep());
    const auto entry = desk.journal.earlier().constFirst();
    QVERIFY(QFile::remove(entry.file));
    desk.editor.setFileName("/photos/a.png");
    const QImage drawing = desk.editor.drawing();
    QVERIFY(!desk.journal.bringBack(entry));
    QVERIFY(KORVA_Journal::picture(entry).isNull());
    QVERIFY(isSame(desk.editor.drawing(), drawing));
    QCOMPARE(desk.editor.fileName(), "/photos/a.png");
    QVERIFY(!desk.editor.isModified());
    QVERIFY(desk.journal.earlier().isEmpty());
}

int main(int argc, char** argv)
{
    return support::run<tst_JournalFinding>(argc, argv);
}

#include "tst_JournalFinding.moc"
