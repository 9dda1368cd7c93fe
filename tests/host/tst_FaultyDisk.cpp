#include "FaultPage.h"
#include "FaultScenes.h"

#include "support/Faults.h"
#include "support/TestCase.h"

using fixtures::FaultScene;
using support::Faults;
using Call = Faults::Call;

namespace {

/// What is wrong with a whole disk or folder, and how that ends.
struct Trouble
{
    const char* name;
    bool (*begin)(const FaultScene& scene); ///< false where it cannot be
    void (*end)(const FaultScene& scene);
};

QString filler(const FaultScene& scene)
{
    return QFileInfo(scene.file()).path() + "/filler";
}

bool fill(const FaultScene& scene)
{
    QFile file(filler(scene));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return false;
    for (const qsizetype piece : {1 << 16, 1 << 9}) {
        while (file.write(QByteArray(piece, 'x')) == piece) {
        }
    }
    return true;
}

constexpr Trouble troubles[] = {
    {"the folder is gone",
     [](const FaultScene& scene) {
         return QDir().rename(scene.folder(), Faults::vanished(scene.folder()));
     },
     [](const FaultScene& scene) { scene.restore(); }},
    {"the disk is full", fill, [](const FaultScene& scene) { QFile::remove(filler(scene)); }},
    {"the disk can only be read", [](const FaultScene& scene) { return scene.disk().setReadOnly(true); },
     [](const FaultScene& scene) { (void)scene.disk().setReadOnly(false); }},
};

constexpr struct
{
    const char* name;
    std::unique_ptr<FaultScene> (*make)();
} savers[] = {
    {"korva-pad", [] { return std::unique_ptr<FaultScene>(new fixtures::PadScene); }},
    {"the editor", [] { return std::unique_ptr<FaultScene>(new fixtures::EditorScene); }},
    {"the editor, on another disk", [] { return std::unique_ptr<FaultScene>(new fixtures::AcrossScene); }},
    {"the unsaved drawing, again", [] { return std::unique_ptr<FaultScene>(new fixtures::RecoveryScene); }},
    {"the unsaved drawing, at first",
     [] { return std::unique_ptr<FaultScene>(new fixtures::FirstRecoveryScene); }},
};

constexpr int shown = 1000; ///< milliseconds within which a person must see why it takes so long
constexpr int stall = 500;

} // namespace

/// A disk that is full, can only be read, is gone or takes its time.
class tst_FaultyDisk : public support::TestCase
{
    Q_OBJECT

private slots:
    void nothingIsLost();
    void theWindowAsksNoDisk();
    void whatTakesItsTimeIsShown();
    void aCopyIsWaitedFor();

private:
    /// The calls of one more save.
    [[nodiscard]] static QList<Call> callsOf(fixtures::PadScene& scene, Faults& faults);
};

void tst_FaultyDisk::nothingIsLost()
{
    QString table = "| who saves | what is wrong | the file is then | what is said |\n|---|---|---|---|\n";
    for (const auto& saver : savers) {
        const std::unique_ptr<FaultScene> scene = saver.make();
        if (!scene->disk().isThere())
            QSKIP("mounting is not permitted here");
        scene->change();
        QVERIFY2(scene->isSuccess(scene->save()), saver.name);
        for (const Trouble& trouble : troubles) {
            const QByteArray what = QByteArray(saver.name) + ", " + trouble.name;
            scene->settle();
            const QByteArray before = support::contents(scene->file());
            const bool wasThere = QFile::exists(scene->file());
            scene->change();
            const QImage drawn = scene->drawing();
            if (!trouble.begin(*scene))
                continue; // its lock keeps the disk from being made so
            QString said = scene->save();
            const bool isNew = scene->isThere(drawn); // in a folder that was made anew
            trouble.end(*scene);
            QCOMPARE(scene->isSuccess(said), isNew);
            QCOMPARE(QFile::exists(scene->file()), wasThere);
            QVERIFY2(support::contents(scene->file()) == before, what);
            QVERIFY2(!scene->countsAsSaved(), what);
            QVERIFY2(support::sameImage(scene->drawing(), drawn), what);
            QVERIFY2(scene->left().isEmpty(), what + ": " + scene->left().join(' ').toUtf8());
            for (const int error : {ENOENT, ENOSPC, EROFS, EACCES})
                said.replace(std::strerror(error), "(the system's words)");
            table += QString("| %1 | %2 | %3 | %4 |\n")
                         .arg(saver.name, trouble.name,
                              isNew      ? "new, in a folder made anew"
                              : wasThere ? "old"
                                         : "none",
                              said.isEmpty() ? "–" : fixtures::withoutChance(said));
            scene->change();
            QVERIFY2(scene->isSuccess(scene->save()), what + ", later");
            QVERIFY2(scene->isThere(scene->drawing()), what + ", later");
        }
    }
    fixtures::rewrite("disk", table);
    QCOMPARE(fixtures::told("disk"), table);
}

QList<Call> tst_FaultyDisk::callsOf(fixtures::PadScene& scene, Faults& faults)
{
    scene.change();
    (void)faults.taken();
    if (!scene.isSuccess(scene.save()))
        QTest::qFail("not saved", __FILE__, __LINE__);
    return faults.taken();
}

/// Whatever its own thread asked would stop the window for as long as the disk takes to answer.
void tst_FaultyDisk::theWindowAsksNoDisk()
{
    fixtures::PadScene scene;
    Faults faults(scene.folder());
    scene.change();
    QVERIFY(scene.isSuccess(scene.save()));
    const QList<Call> calls = callsOf(scene, faults);
    QVERIFY(calls.size() > 10);
    for (const Call& call : calls)
        QVERIFY2(!call.isFirst, qPrintable(call.name + ' ' + call.path));
}

void tst_FaultyDisk::whatTakesItsTimeIsShown()
{
    fixtures::PadScene scene;
    Faults faults(scene.folder());
    scene.change();
    QVERIFY(scene.isSuccess(scene.save()));
    QString table = "| call that takes its time | within a second | the file is then | what is said |\n"
                    "|---|---|---|---|\n";
    for (const char* name : {"stat", "access", "open", "write", "fsync", "link", "rename"}) {
        const QList<Call> calls = callsOf(scene, faults);
        const auto call =
            std::find_if(calls.begin(), calls.end(), [&](const Call& each) { return each.name == name; });
        QVERIFY2(call != calls.end(), name);
        scene.change();
        faults.stall(*call, stall);
        const fixtures::PadScene::Seen seen = scene.saveWatched();
        faults.letGo();
        QVERIFY2(seen.sign >= 0 && seen.sign < shown, qPrintable(name + QString(" %1").arg(seen.sign)));
        QVERIFY2(seen.pause < shown, qPrintable(name + QString(" %1").arg(seen.pause)));
        QVERIFY2(scene.isThere(scene.drawing()), name);
        QVERIFY2(scene.countsAsSaved(), name);
        QVERIFY2(scene.left().isEmpty(), name);
        table +=
            QString("| %1 | \"Saving drawing\", and a way to cancel | new | %2 |\n").arg(name, seen.said);
    }
    fixtures::rewrite("slow disk", table);
    QCOMPARE(fixtures::told("slow disk"), table);
}

/// What is given up is kept among the earlier drawings first.
void tst_FaultyDisk::aCopyIsWaitedFor()
{
    fixtures::PadScene scene;
    Faults faults(scene.folder());
    scene.change();
    const QImage drawn = scene.drawing();
    faults.stall({QFileInfo(QCoreApplication::applicationFilePath()).fileName(), "fsync", {}, {}, 1, false},
                 stall);
    const fixtures::PadScene::Seen seen = scene.clearWatched();
    const QList<Call> calls = faults.taken();
    QVERIFY2(seen.sign >= 0 && seen.sign < shown, qPrintable(QString::number(seen.sign)));
    QVERIFY2(seen.pause < shown, qPrintable(QString::number(seen.pause)));
    QVERIFY(!support::sameImage(scene.drawing(), drawn));
    const QStringList kept = QDir(scene.folder()).entryList({"earlier-*.png"});
    QCOMPARE(kept.size(), 1);
    const QImage copy(scene.folder() + '/' + kept[0]);
    QVERIFY(support::sameImage(copy.convertToFormat(QImage::Format_RGB32), drawn));
    for (const Call& call : calls)
        QVERIFY2(call.name != "write" || !call.isFirst, qPrintable(call.path));
}

int main(int argc, char** argv)
{
    Faults::allow(argv);
    support::Mount::allow();
    return support::run<tst_FaultyDisk>(argc, argv);
}

#include "tst_FaultyDisk.moc"
