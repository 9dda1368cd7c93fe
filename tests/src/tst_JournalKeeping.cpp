#include "JournalFixtures.h"

#include "support/Mount.h"

#include <sys/stat.h>

using fixtures::Desk;
using fixtures::drawingSize;
using fixtures::isSame;
using fixtures::numbered;
using support::Mount;

/// What is kept in the folder, for whom, and what happens where it cannot be.
class tst_JournalKeeping : public fixtures::JournalTest
{
    Q_OBJECT

private slots:
    void keptCopies();
    void theNewestTwentyAreKept();
    void oldDrawingsAreNotPrunedWhenShelved();

    void onlyTheOwnerMayRead();

    void aFolderThatFails_data();
    void aFolderThatFails();
    void failureIsOverOnceSettled();
};

namespace {

mode_t modeOf(const QString& fileName)
{
    struct stat status = {};
    return stat(QFile::encodeName(fileName).constData(), &status) == 0 ? status.st_mode & 07777 : 0;
}

} // namespace

void tst_JournalKeeping::keptCopies()
{
    Desk desk(folder());
    QVERIFY(desk.journal.earlier().isEmpty());
    desk.editor.setFileName(QString::fromUtf8("/photos/it's \xc3\xa4 \xe6\xbc\xa2.png"));
    QPixmap stamp = QPixmap::fromImage(support::sheet({9, 9}, Qt::red));
    desk.editor.insertStamp(stamp); // floats
    const QDateTime before = QDateTime::currentDateTime().addSecs(-1);
    QVERIFY(desk.journal.keep());
    QVERIFY(!desk.editor.canvas()->pasteLabel()->isHidden());
    QCOMPARE(living(), QStringList());

    const QList<KORVA_Journal::Entry> entries = desk.journal.earlier();
    QCOMPARE(entries.size(), 1);
    QCOMPARE(entries[0].pictureName, QString::fromUtf8("/photos/it's \xc3\xa4 \xe6\xbc\xa2.png"));
    QCOMPARE(entries[0].size, drawingSize);
    QVERIFY(entries[0].time >= before && entries[0].time <= QDateTime::currentDateTime());
    QCOMPARE(entries[0].file, folder() + '/' + earlier().constFirst());
    QVERIFY(isSame(KORVA_Journal::picture(entries[0]), desk.editor.drawing()));

    desk.editor.setFileName({});
    QVERIFY(desk.journal.keep());
    QCOMPARE(desk.journal.earlier().size(), 2);
    QCOMPARE(desk.journal.earlier()[0].pictureName, QString());
}

void tst_JournalKeeping::theNewestTwentyAreKept()
{
    constexpr int copies = 25;
    Desk desk(folder());
    for (int i = 0; i < copies; ++i) {
        desk.editor.take(numbered(i));
        QVERIFY(desk.journal.keep());
        QCOMPARE(earlier().size(), qMin(i + 1, KORVA_Journal::mostEarlier));
    }
    QCOMPARE(KORVA_Journal::mostEarlier, 20);
    const QList<KORVA_Journal::Entry> entries = desk.journal.earlier();
    for (int i = 0; i < entries.size(); ++i)
        QVERIFY(isSame(KORVA_Journal::picture(entries[i]), numbered(copies - 1 - i)));
}

void tst_JournalKeeping::oldDrawingsAreNotPrunedWhenShelved()
{
    leave(Qt::red, 5000);
    Desk desk(folder());
    const auto found = desk.journal.adopt();
    QVERIFY(found);
    Desk other(folder()); // another program keeps many meanwhile
    for (int i = 0; i < KORVA_Journal::mostEarlier; ++i)
        QVERIFY(other.journal.keep());
    desk.journal.shelve();
    QCOMPARE(earlier().size(), KORVA_Journal::mostEarlier);
    QVERIFY(isSame(KORVA_Journal::picture(desk.journal.earlier().constFirst()),
                   support::sheet(drawingSize, Qt::red)));
}

void tst_JournalKeeping::onlyTheOwnerMayRead()
{
    const mode_t before = umask(0);
    Desk desk(folder());
    desk.editor.draw();
    const bool isWritten = desk.journal.flush() && desk.journal.keep();
    umask(before);
    QVERIFY(isWritten);
    QCOMPARE(modeOf(folder()), mode_t(0700));
    for (const QString& file : living() + earlier())
        QCOMPARE(modeOf(folder() + '/' + file), mode_t(0600));
    QCOMPARE(desk.journal.folder(), folder());
}

void tst_JournalKeeping::aFolderThatFails_data()
{
    QTest::addColumn<QString>("fault");
    QTest::newRow("a file is in its place") << "file";
    QTest::newRow("a file is in the way") << "file above";
    QTest::newRow("on a read-only disk") << "read-only";
    QTest::newRow("on a full disk") << "full";
}

void tst_JournalKeeping::aFolderThatFails()
{
    QFETCH(const QString, fault);
    std::optional<Mount> disk;
    const QString blocking = fault == "file above" ? path("state") : folder();
    const QString filler = path("disk/filler");
    const QString place = fault.startsWith("file") ? folder() : path("disk");
    if (fault.startsWith("file")) {
        QVERIFY(QDir().mkpath(QFileInfo(blocking).path()));
        support::write(blocking, "in the way");
    } else {
        disk.emplace(place, "size=64k");
        if (!disk->isThere())
            QSKIP("mounting is not permitted here");
    }
    QStringList failures;
    Desk desk(place);
    connect(&desk.journal, &KORVA_Journal::failed, this, [&](const QString& why) { failures << why; });
    const auto livingIn = [&] { return QDir(place).entryInfoList({"living-*.png"}, QDir::Files); };
    QImage written;
    if (disk) { // it begins well
        desk.editor.take(numbered(1));
        desk.editor.canvas()->markModified();
        QVERIFY(desk.journal.flush());
        written = desk.editor.drawing();
        if (fault == "full") {
            QFile file(filler);
            QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
            while (file.write(QByteArray(1024, 'x')) == 1024) {
            }
        } else {
            QVERIFY(disk->setReadOnly());
        }
    }

    for (int i = 0; i < 3; ++i) {
        desk.editor.take(numbered(2 + i));
        desk.editor.canvas()->markModified();
        QVERIFY(!desk.journal.flush());
    }
    QVERIFY(!desk.journal.keep());
    QCOMPARE(failures.size(), 1); // told once
    QVERIFY(!failures[0].isEmpty());
    QVERIFY(desk.editor.isModified());
    if (disk) { // what was there is whole
        QCOMPARE(livingIn().size(), 1);
        QVERIFY(isSame(QImage(livingIn()[0].filePath()), written));
    }
    if (fault == "read-only")
        return;

    QVERIFY(QFile::remove(disk ? filler : blocking)); // better again
    QVERIFY(desk.journal.flush());
    QCOMPARE(failures.size(), 1);
    QCOMPARE(livingIn().size(), 1);
    QVERIFY(isSame(QImage(livingIn()[0].filePath()), desk.editor.drawing()));
    QVERIFY(desk.journal.keep());
    QCOMPARE(desk.journal.earlier().size(), 1);

    QVERIFY(QDir(place).removeRecursively() || disk); // and worse once more
    if (disk)
        return;
    support::write(blocking == place ? place : blocking + ".x", "in the way");
    if (blocking != place)
        return;
    desk.editor.draw();
    QVERIFY(!desk.journal.flush());
    QCOMPARE(failures.size(), 2);
}

void tst_JournalKeeping::failureIsOverOnceSettled()
{
    QVERIFY(QDir().mkpath(QFileInfo(folder()).path()));
    support::write(folder(), "in the way");
    Desk desk(folder());
    desk.editor.draw();
    QVERIFY(!desk.journal.flush());
    desk.editor.clearModified(); // saved elsewhere
    desk.journal.settle();
    QVERIFY(desk.journal.flush()); // there is nothing that could be lost
}

int main(int argc, char** argv)
{
    support::Mount::allow();
    return support::run<tst_JournalKeeping>(argc, argv);
}

#include "tst_JournalKeeping.moc"
