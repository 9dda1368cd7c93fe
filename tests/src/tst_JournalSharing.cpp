#include "JournalFixtures.h"

#include "support/Mount.h"

#include <iostream>

using fixtures::Desk;
using fixtures::isSame;
using fixtures::numbered;
using fixtures::promised;
using support::Mount;

/// Several programs with one folder: whose a drawing is, and what is left of one that is killed.
class tst_JournalSharing : public fixtures::JournalTest
{
    Q_OBJECT

private slots:
    void twoInOneFolder();
    void twoProcesses();
    void killedAtAnyMoment();

public:
    Q_INVOKABLE int drawAndWait();
    Q_INVOKABLE int drawUntilKilled();
};

namespace {

constexpr auto folderVariable = "KORVA_TEST_FOLDER";
constexpr auto nameVariable = "KORVA_TEST_NAME";
constexpr int pictureTime = 15; // milliseconds

/// This program's other self, running one of its cases.
class Other
{
public:
    Other(const QString& folder, const QString& name, const char* caseName)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("ASAN_OPTIONS", "detect_leaks=0");
        environment.insert(folderVariable, folder);
        environment.insert(nameVariable, name);
        process.setProcessEnvironment(environment);
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start(QCoreApplication::applicationFilePath(), {"--case", caseName});
    }
    ~Other() { end(); }
    Other(const Other&) = delete;
    Other& operator=(const Other&) = delete;

    void end()
    {
        process.kill();
        process.waitForFinished();
    }
    [[nodiscard]] bool waitForLine()
    {
        constexpr int longTime = 20'000;
        return process.canReadLine() || process.waitForReadyRead(longTime);
    }

    QProcess process;
};

} // namespace

void tst_JournalSharing::twoInOneFolder()
{
    Desk one(folder());
    Desk other(folder());
    one.editor.draw();
    other.editor.take(numbered(1));
    other.editor.canvas()->markModified();
    QVERIFY(one.journal.flush() && other.journal.flush());
    QCOMPARE(living().size(), 2);
    {
        Desk third(folder());
        QVERIFY(!third.journal.adopt());
        QVERIFY(third.journal.earlier().isEmpty());
    }
    QCOMPARE(living().size(), 2);
    one.journal.settle();
    QVERIFY(!one.journal.adopt());
    QVERIFY(isSame(livingPicture(), numbered(1)));
}

int tst_JournalSharing::drawAndWait()
{
    Desk desk(qEnvironmentVariable(folderVariable));
    desk.editor.setFileName(qEnvironmentVariable(nameVariable));
    desk.editor.take(numbered(1));
    desk.editor.canvas()->markModified();
    std::cout << (desk.journal.flush() ? "written" : "failed") << std::endl;
    return QCoreApplication::exec();
}

void tst_JournalSharing::twoProcesses()
{
    Other other(folder(), "/photos/other.png", "drawAndWait");
    QVERIFY(other.waitForLine());
    QCOMPARE(other.process.readLine(), QByteArray("written\n"));
    QVERIFY(isSame(livingPicture(), numbered(1)));
    Desk desk(folder());
    QVERIFY(!desk.journal.adopt());
    QVERIFY(isSame(livingPicture(), numbered(1)));
    other.end();
    const auto found = desk.journal.adopt();
    QVERIFY(found);
    QCOMPARE(found->pictureName, "/photos/other.png");
    QVERIFY(isSame(KORVA_Journal::picture(*found), numbered(1)));
}

/// Tells each picture's number.
int tst_JournalSharing::drawUntilKilled()
{
    Desk desk(qEnvironmentVariable(folderVariable));
    desk.editor.setFileName(qEnvironmentVariable(nameVariable));
    int number = 0;
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&] {
        desk.editor.take(numbered(++number));
        desk.editor.canvas()->markModified();
        std::cout << number << std::endl;
    });
    timer.start(pictureTime);
    return QCoreApplication::exec();
}

void tst_JournalSharing::killedAtAnyMoment()
{
    constexpr int programs = 8;
    constexpr int longestLife = 2600;       // milliseconds
    const Mount disk(folder(), "size=16m"); // in memory, so that nothing waits for a real one
    QRandomGenerator random(5);
    int found = 0;
    std::vector<std::unique_ptr<Other>> others;
    for (int i = 0; i < programs; ++i) {
        others.push_back(
            std::make_unique<Other>(folder(), QString("/photos/%1.png").arg(i), "drawUntilKilled"));
    }
    for (const auto& other : others)
        QVERIFY(other->waitForLine());
    std::vector<std::pair<qint64, int>> deaths;
    for (int i = 0; i < programs; ++i)
        deaths.emplace_back(random.bounded(longestLife), i);
    std::sort(deaths.begin(), deaths.end());
    QElapsedTimer clock;
    clock.start();
    for (const auto& [time, i] : deaths) {
        QTest::qWait(int(qMax<qint64>(0, time - clock.elapsed())));
        others[size_t(i)]->end();
    }

    QMap<QString, QImage> left;
    for (const QString& file : living()) {
        const QImage picture(folder() + '/' + file);
        QVERIFY2(!picture.isNull(), qPrintable(file));
        left[QImageReader(folder() + '/' + file).text("PictureName")] = picture;
    }
    for (int i = 0; i < programs; ++i) {
        const QString name = QString("/photos/%1.png").arg(i);
        const int number = left.contains(name) ? int(left[name].pixel(0, 0) & 0xffffff) : 0;
        if (left.contains(name))
            QVERIFY(isSame(left[name], numbered(number)));
        found += left.contains(name);
        // Counted in pictures: a program that the machine lets wait draws fewer.
        int drawn = 0;
        QProcess& process = others[size_t(i)]->process;
        for (QByteArray line = process.readLine(); line.endsWith('\n'); line = process.readLine())
            drawn = line.toInt();
        QVERIFY(drawn >= number);
        QCOMPARE_LE(drawn - number, promised / pictureTime);
    }
    // And all of them are found.
    {
        Desk desk(folder());
        const qsizetype before = living().size() + earlier().size();
        QCOMPARE(bool(desk.journal.adopt()), !left.isEmpty());
        QCOMPARE(living().size() + earlier().size(), before);
        desk.journal.shelve();
    }
    QCOMPARE(living(), QStringList());
    QVERIFY2(found > programs / 2, qPrintable(QString::number(found)));
}

int main(int argc, char** argv)
{
    support::Mount::allow();
    return support::run<tst_JournalSharing>(argc, argv);
}

#include "tst_JournalSharing.moc"
