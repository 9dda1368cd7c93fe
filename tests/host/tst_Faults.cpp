#include "FaultPage.h"
#include "FaultScenes.h"

#include "support/Faults.h"
#include "support/TestCase.h"

#include <cerrno>
#include <cstring>

using support::Faults;
using Call = Faults::Call;

namespace {

constexpr int halfWritten = Faults::Half;
constexpr int vanishes = Faults::Vanishes;

struct Error
{
    int code;
    const char* name;
    const char* sentence; ///< of the pad, where it has words of its own
};

constexpr const char* full = "Not saved: The disk is full.";
constexpr const char* protectedFolder = "Not saved: No permission to write in disk.";
constexpr const char* readOnly = "Not saved: disk is on a disk that can only be read.";
constexpr const char* trouble = "Not saved: The disk reports an error.";
constexpr const char* gone = "Not saved: The folder disk is not there.";

const QList<Error> errors{
    {halfWritten, "half", nullptr},
    {EINTR, "EINTR", nullptr},
    {EIO, "EIO", trouble},
    {EACCES, "EACCES", protectedFolder},
    {EPERM, "EPERM", protectedFolder},
    {EROFS, "EROFS", readOnly},
    {ENOSPC, "ENOSPC", full},
    {EDQUOT, "EDQUOT", full},
    {ENOLCK, "ENOLCK", nullptr},
    {vanishes, "gone", gone},
};

const QHash<QString, QList<int>> possible{
    {"open", {EINTR, EIO, EACCES, EROFS, ENOSPC, EDQUOT, vanishes}},
    {"write", {halfWritten, EINTR, EIO, ENOSPC, EDQUOT, vanishes}},
    {"fsync", {EINTR, EIO, EROFS, ENOSPC, EDQUOT, vanishes}},
    {"fdatasync", {EINTR, EIO, EROFS, ENOSPC, EDQUOT, vanishes}},
    {"rename", {EIO, EACCES, EROFS, ENOSPC, EDQUOT, vanishes}},
    {"link", {EIO, EACCES, EROFS, ENOSPC, EDQUOT, vanishes}},
    {"mkdir", {EIO, EACCES, EROFS, ENOSPC, EDQUOT}},
    {"unlink", {EIO, EACCES, EROFS, vanishes}},
    {"stat", {EIO, EACCES}},
    {"access", {EIO, EACCES, EROFS}},
    {"chmod", {EIO, EPERM, EROFS}},
    {"chown", {EIO, EPERM, EROFS}},
    {"flock", {EINTR, ENOLCK}},
    {"close", {EINTR, EIO, ENOSPC, EDQUOT}},
};

const Error& errorOf(int code)
{
    return *std::find_if(errors.begin(), errors.end(),
                         [code](const Error& each) { return each.code == code; });
}

/// What followed a fault.
struct Outcome
{
    QString file;
    QString said;
    QString left;
};

/// "1–3, 5"; the numbers ascend.
QString ranges(const QList<int>& numbers)
{
    QStringList parts;
    for (qsizetype i = 0; i < numbers.size(); ++i) {
        const qsizetype first = i;
        while (i + 1 < numbers.size() && numbers[i + 1] == numbers[i] + 1)
            ++i;
        parts.append(QString::number(numbers[first]) +
                     (i > first ? "–" + QString::number(numbers[i]) : ""));
    }
    return parts.join(", ");
}

/// The table of a scene as the page has it: calls of the same kind with the same outcome share a row.
class Table
{
public:
    /// `ordinal` is that among the calls of this name on this file.
    void add(const Call& call, int ordinal, int error, const Outcome& outcome)
    {
        const QString program =
            call.program == "mv" || call.program == "sh" ? call.program + ": " : QString();
        const QString paths =
            '`' + call.path + '`' + (call.other.isEmpty() ? "" : " → `" + call.other + '`');
        const QString before = "| " + program + call.name + ' ' + paths + " | ";
        QString said = outcome.said.isEmpty() ? "–" : outcome.said;
        const int system = error == vanishes ? ENOENT : error;
        if (system != halfWritten)
            said.replace(std::strerror(system), "(the system's words)");
        const QString left = outcome.left.isEmpty() ? "–" : '`' + outcome.left + '`';
        const QString after = fixtures::withoutChance(" | " + outcome.file + " | " + said + " | ") +
                              fixtures::withoutChance(left) + " |\n";
        const auto same = [&](const Row& row) { return row.before == before && row.after == after; };
        auto row = std::find_if(m_rows.begin(), m_rows.end(), same);
        if (row == m_rows.end())
            row = m_rows.insert(m_rows.end(), {before, after, {}, {}});
        if (!row->errors.contains(errorOf(error).name))
            row->errors.append(errorOf(error).name);
        if (!row->ordinals.contains(ordinal))
            row->ordinals.append(ordinal);
    }
    [[nodiscard]] QString text() const
    {
        QString text = "| call | which | fails with | the file is then | what is said | left behind "
                       "|\n|---|---|---|---|---|---|\n";
        for (const Row& row : m_rows)
            text += row.before + ranges(row.ordinals) + " | " + row.errors.join(", ") + row.after;
        return text;
    }

private:
    struct Row
    {
        QString before;
        QString after;
        QStringList errors;
        QList<int> ordinals;
    };
    QList<Row> m_rows;
};

using MakeScene = std::unique_ptr<fixtures::FaultScene> (*)();

template <typename Scene>
std::unique_ptr<fixtures::FaultScene> make()
{
    return std::make_unique<Scene>();
}

/// The place of the last call that fulfils a condition; -1 if none does.
template <typename Condition>
qsizetype lastOf(const QList<Call>& calls, const Condition& isMeant)
{
    const auto found = std::find_if(calls.rbegin(), calls.rend(), isMeant);
    return calls.rend() - found - 1;
}

bool isChange(const Call& call)
{
    return QStringList{"write", "fsync", "rename", "link", "unlink", "chmod"}.contains(call.name);
}

} // namespace

Q_DECLARE_METATYPE(MakeScene)

/// What follows when one of the system's calls fails while a drawing is written: each in turn, with each
/// error that it may have.
class tst_Faults : public support::TestCase
{
    Q_OBJECT

private slots:
    void nothingIsLost_data();
    void nothingIsLost();
    void isOnTheDiskBeforeItIsMoved_data();
    void isOnTheDiskBeforeItIsMoved();
    void nothingIsMovedAcrossDisks_data();
    void nothingIsMovedAcrossDisks();

private:
    void scenes();
    /// The calls of one write that succeeds.
    [[nodiscard]] static QList<Call> callsOf(fixtures::FaultScene& scene, Faults& faults);
};

void tst_Faults::scenes()
{
    QTest::addColumn<MakeScene>("make");
    QTest::newRow("pad") << &make<fixtures::PadScene>;
    QTest::newRow("editor") << &make<fixtures::EditorScene>;
    QTest::newRow("another disk") << &make<fixtures::AcrossScene>;
    QTest::newRow("recovery") << &make<fixtures::RecoveryScene>;
    QTest::newRow("first recovery") << &make<fixtures::FirstRecoveryScene>;
}

QList<Call> tst_Faults::callsOf(fixtures::FaultScene& scene, Faults& faults)
{
    scene.change();
    scene.settle();
    scene.makePrivate();
    scene.change();
    (void)faults.taken();
    const QString said = scene.save();
    const QList<Call> calls = faults.taken();
    if (!scene.isSuccess(said) || !scene.isThere(scene.drawing()))
        QTest::qFail(qPrintable("not saved: " + said), __FILE__, __LINE__);
    return calls;
}

void tst_Faults::nothingIsLost_data()
{
    scenes();
}

void tst_Faults::nothingIsLost()
{
    QFETCH(const MakeScene, make);
    const QString name = QTest::currentDataTag();
    const std::unique_ptr<fixtures::FaultScene> scene = make();
    const auto* across = dynamic_cast<fixtures::AcrossScene*>(scene.get());
    if (across && !across->isPossible())
        QSKIP("mounting is not permitted here");
    Faults faults(scene->folder());
    scene->change();
    QVERIFY(scene->isSuccess(scene->save()));
    const QList<Call> calls = callsOf(*scene, faults);
    QVERIFY(calls.size() > 5);
    Table table;
    QHash<QString, int> ordinals;
    for (const Call& call : calls) {
        const int ordinal = ++ordinals[call.program + ' ' + call.name + ' ' + call.path + ' ' + call.other];
        int reached = 0;
        for (const int error : possible.value(call.name)) {
            const QByteArray what =
                QString("%1 %2 %3 %4 %5, %6")
                    .arg(call.program, call.name, call.path, call.other, errorOf(error).name)
                    .arg(call.ordinal)
                    .toUtf8();
            scene->settle();
            scene->makePrivate();
            const QByteArray before = support::contents(scene->file());
            const bool wasThere = QFile::exists(scene->file());
            scene->change();
            const QImage drawn = scene->drawing();
            faults.fail(call, error);
            const QString said = scene->save();
            const QList<Call> made = faults.taken();
            scene->restore();
            if (std::none_of(made.begin(), made.end(), [&call](const Call& each) {
                    return each.program == call.program && each.name == call.name &&
                           each.ordinal == call.ordinal;
                }))
                continue; // a drawing that packs into fewer pieces
            ++reached;

            const bool isNew = scene->isThere(drawn);
            const bool isOld =
                QFile::exists(scene->file()) == wasThere && support::contents(scene->file()) == before;
            QVERIFY2(isNew || isOld, what + ": neither the old file nor the new one");
            QVERIFY2(isNew == scene->isSuccess(said), what + ": " + said.toUtf8());
            QCOMPARE(scene->countsAsSaved(), isNew);
            QVERIFY2(support::sameImage(scene->drawing(), drawn), what);
            QVERIFY2(!wasThere || scene->isPrivate(), what);
            const QStringList left = scene->left();
            QVERIFY2(left.isEmpty() || call.name == "unlink" || error == vanishes,
                     what + ": " + left.join(' ').toUtf8());
            const char* sentence = errorOf(error).sentence;
            if (name == "pad" && said.startsWith("Not saved") && sentence)
                QCOMPARE(said, QString(sentence));
            table.add(call, ordinal, error,
                      {isNew      ? "new"
                       : wasThere ? "old"
                                  : "none",
                       said, left.join(' ')});

            scene->change();
            QString later = scene->save();
            if (later.startsWith("asked"))
                later = scene->save();
            QVERIFY2(scene->isSuccess(later), what + ", later: " + later.toUtf8());
            QVERIFY2(scene->isThere(scene->drawing()), what);
            for (const QString& stays : scene->left()) {
                // It has got a name of its own, and when it was to be removed its folder was not there.
                QVERIFY2(error == vanishes && left.contains(stays) && fixtures::isHalfMade(stays),
                         what + ": " + stays.toUtf8());
                QFile::remove(scene->folder() + '/' + stays);
            }
        }
        QVERIFY2(reached > 0 || call.name == "write" || possible.value(call.name).isEmpty(),
                 qPrintable(QString("%1 %2 %3").arg(call.name, call.path).arg(call.ordinal)));
    }
    fixtures::rewrite(name, table.text());
    QCOMPARE(fixtures::told(name), table.text());
}

void tst_Faults::isOnTheDiskBeforeItIsMoved_data()
{
    scenes();
}

/// Else a power cut leaves an empty file in the old one's place, or none of the new names.
void tst_Faults::isOnTheDiskBeforeItIsMoved()
{
    QFETCH(const MakeScene, make);
    const std::unique_ptr<fixtures::FaultScene> scene = make();
    Faults faults(scene->folder());
    scene->change();
    (void)scene->save();
    const QList<Call> calls = callsOf(*scene, faults);
    const qsizetype move = lastOf(calls, [](const Call& call) {
        return (call.name == "rename" || call.name == "link") && call.other.endsWith(".png");
    });
    QVERIFY(move >= 0);
    const qsizetype written = lastOf(calls, [](const Call& call) { return call.name == "write"; });
    const QString file = calls.value(written).path; // it may have got its name later
    const qsizetype synced =
        lastOf(calls, [&](const Call& call) { return call.name == "fsync" && call.path == file; });
    QVERIFY2(written >= 0 && written < synced && synced < move, qPrintable(file));
    const QString place = calls[move].other.contains('/') ? calls[move].other.section('/', 0, -2) : ".";
    const qsizetype named =
        lastOf(calls, [&](const Call& call) { return call.name == "fsync" && call.path == place; });
    QVERIFY2(named > move, qPrintable(place));
}

void tst_Faults::nothingIsMovedAcrossDisks_data()
{
    QTest::addColumn<MakeScene>("make");
    QTest::newRow("another disk") << &make<fixtures::AcrossScene>;
    QTest::newRow("another mount") << &make<fixtures::AcrossMountsScene>;
}

/// There a move is a removal and a copy: what dies in between leaves no file, or half of one.
void tst_Faults::nothingIsMovedAcrossDisks()
{
    QFETCH(const MakeScene, make);
    const std::unique_ptr<fixtures::FaultScene> made = make();
    auto& scene = dynamic_cast<fixtures::AcrossScene&>(*made);
    if (!scene.isPossible())
        QSKIP("mounting is not permitted here");
    Faults faults(scene.folder());
    scene.change();
    (void)scene.save();
    const QList<Call> calls = callsOf(scene, faults);
    int changes = 0;
    for (const Call& call : calls) {
        const bool isTarget = call.path == "other/drawing.png" || call.other == "other/drawing.png";
        if (!isTarget || !isChange(call))
            continue;
        ++changes;
        QCOMPARE(call.name, "rename");
        QVERIFY2(call.path.startsWith("other/"), qPrintable(call.path));
    }
    QVERIFY(changes > 0);
}

int main(int argc, char** argv)
{
    Faults::allow(argv);
    support::Mount::allow();
    return support::run<tst_Faults>(argc, argv);
}

#include "tst_Faults.moc"
