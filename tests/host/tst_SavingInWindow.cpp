#include "support/Images.h"
#include "support/Mount.h"
#include "support/PadOnScreen.h"
#include "support/PictureFiles.h"
#include "support/TestCase.h"

#include <UTIL_Skin.h>

#include <sys/stat.h>
#include <unistd.h>

using support::contents;
using support::Mount;
using support::PadOnScreen;
using support::write;

namespace {

using Size = UTIL_Skin::Size;

constexpr QSize photoSize(1600, 1200);
constexpr QSize workingSize(352, 264); // what opening makes of it
constexpr QSize exactSize(160, 120);
constexpr QPoint from(60, 60);
constexpr QPoint to(110, 60);
constexpr QPoint on(90, 60);
constexpr mode_t privately = 0600;

const QString saveDialog = QStringLiteral("Save picture as");
const QString saved = QStringLiteral("Saved Successfully");
const QString reducedPhoto = QStringLiteral("photo.jpg has 1,600 × 1,200 pixels and the drawing 352 × 264: "
                                            "replacing it would lose the rest.");

mode_t modeOf(const QString& fileName)
{
    struct stat status = {};
    return lstat(QFile::encodeName(fileName).constData(), &status) == 0 ? status.st_mode & 07777 : 0;
}

bool setMode(const QString& fileName, mode_t mode)
{
    return chmod(QFile::encodeName(fileName).constData(), mode) == 0;
}

/// A picture that the working depth leaves alone.
QImage exactPicture()
{
    return support::filled(support::sheet(exactSize), QRect(0, 100, 160, 20), QColor(0, 130, 66));
}

QImage withStroke(QImage picture)
{
    return support::filled(std::move(picture), QRect(from, to), Qt::red);
}

QImage inRgb(const QString& fileName)
{
    return QImage(fileName).convertToFormat(QImage::Format_RGB32);
}

/// JPEG does not keep colours exactly.
bool hasReddish(const QImage& picture, QPoint at)
{
    const QColor color = picture.pixelColor(at);
    return color.red() - color.green() > 60 && color.red() - color.blue() > 60;
}

} // namespace

/// Opening, saving and deleting as a person does it, on a real screen with real files.
class tst_SavingInWindow : public support::TestCase
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void reducedPhotographIsAskedAbout_data();
    void reducedPhotographIsAskedAbout();
    void newFileIsSavedUnaskedAfterwards();
    void exactPictureIsSavedUnasked_data();
    void exactPictureIsSavedUnasked();
    void formatThatIsOnlyReadGetsANewFile_data();
    void formatThatIsOnlyReadGetsANewFile();
    void refusedOpenChangesNothing_data();
    void refusedOpenChangesNothing();
    void nothingFollowsAFailedSave_data();
    void nothingFollowsAFailedSave();
    void saveAsProposesAFreeName();
    void saveAsAsksBeforeItReplaces();
    void deleteKeyRemovesTheSelection();
    void deletedPictureGoesToTheTrash();
    void withoutATrashItIsAskedAgain();
    void anotherProgramsChangeIsAskedAbout();

private:
    [[nodiscard]] QString path(const QString& name) const { return m_pad->pictures() + '/' + name; }
    [[nodiscard]] QStringList files() const
    {
        return QDir(m_pad->pictures()).entryList(QDir::Files | QDir::Hidden | QDir::System);
    }
    /// A picture of the running row for the folder of test output.
    [[nodiscard]] static QString shotName(const char* what)
    {
        QString row = QTest::currentDataTag() ? QTest::currentDataTag() : "";
        return QString("host_tst_SavingInWindow-%1-%2-%3")
            .arg(QTest::currentTestFunction(), row.replace(' ', '_'), what);
    }
    /// The box that tells of the save comes, and is tapped away.
    [[nodiscard]] bool isTold(const QString& text)
    {
        if (!m_pad->waitForBox(text))
            return false;
        m_pad->key("Return");
        return m_pad->waitForNoBox();
    }
    /// Presses a button of the box on top with the pointer: those of a column, counted from its bottom.
    void clickFromBottom(int index)
    {
        const QRect box = m_pad->boxPlace();
        m_pad->click({box.center().x(), box.bottom() - Size::spacing - Size::keyHeight / 2 -
                                            index * (Size::keyHeight + Size::spacing)});
    }

    std::unique_ptr<QTemporaryDir> m_home;
    std::unique_ptr<PadOnScreen> m_pad;
};

void tst_SavingInWindow::init()
{
    support::TestCase::init();
    m_home = std::make_unique<QTemporaryDir>();
    m_pad = std::make_unique<PadOnScreen>(m_home->path());
    m_pad->setPictureSize(exactSize);
    QVERIFY(m_pad->server().isReady());
}

void tst_SavingInWindow::cleanup()
{
    m_pad.reset();
    m_home.reset();
}

// --- Saving

void tst_SavingInWindow::reducedPhotographIsAskedAbout_data()
{
    enum : int { ByReturn, ByEscape, ByKeys, ByPointer };
    QTest::addColumn<int>("answer");
    QTest::newRow("Return saves as new") << int(ByReturn);
    QTest::newRow("Escape changes nothing") << int(ByEscape);
    QTest::newRow("replaced by keys") << int(ByKeys);
    QTest::newRow("replaced by the pointer") << int(ByPointer);
}

void tst_SavingInWindow::reducedPhotographIsAskedAbout()
{
    enum : int { ByReturn, ByEscape, ByKeys, ByPointer };
    QFETCH(int, answer);
    QImage photo(photoSize, QImage::Format_RGB32);
    for (int y = 0; y < photo.height(); ++y) {
        for (int x = 0; x < photo.width(); ++x)
            photo.setPixel(x, y, qRgb(200, 150 + x / 16, 150 + y / 12));
    }
    QVERIFY(photo.save(path("photo.jpg"), "JPG", 95));
    QVERIFY(setMode(path("photo.jpg"), privately));
    const QByteArray before = contents(path("photo.jpg"));

    m_pad->setPictureSize(workingSize);
    QVERIFY(m_pad->start({path("photo.jpg")}));
    QVERIFY(m_pad->stroke(from, to));
    m_pad->key("s", {"Control_L"});
    QVERIFY(m_pad->waitForBox(reducedPhoto, shotName("question")));
    switch (answer) {
    case ByReturn:
        m_pad->key("Return");
        QVERIFY(isTold(saved));
        QCOMPARE(files(), QStringList({"photo 2.jpg", "photo.jpg"}));
        QCOMPARE(inRgb(path("photo 2.jpg")).size(), workingSize);
        QVERIFY(hasReddish(inRgb(path("photo 2.jpg")), on));
        QVERIFY(m_pad->waitForTitle("photo 2.jpg - Korva"));
        break;
    case ByEscape:
        m_pad->key("Escape");
        QVERIFY(m_pad->waitForNoBox());
        QCOMPARE(files(), QStringList("photo.jpg"));
        QCOMPARE(m_pad->title(), "photo.jpg* - Korva");
        QVERIFY(m_pad->waitForColor(on, Qt::red));
        break;
    case ByKeys:
        m_pad->key("Tab");
        m_pad->key("Return");
        break;
    default:
        clickFromBottom(1);
        break;
    }
    if (answer == ByReturn || answer == ByEscape) {
        QVERIFY(contents(path("photo.jpg")) == before);
        QCOMPARE(modeOf(path("photo.jpg")), privately);
        return;
    }
    QVERIFY(isTold(saved));
    QCOMPARE(files(), QStringList("photo.jpg"));
    QCOMPARE(inRgb(path("photo.jpg")).size(), workingSize);
    QVERIFY(hasReddish(inRgb(path("photo.jpg")), on));
    QCOMPARE(modeOf(path("photo.jpg")), privately);

    // The person has agreed: the same is not asked again.
    QVERIFY(m_pad->stroke(from + QPoint(0, 30), to + QPoint(0, 30)));
    m_pad->key("s", {"Control_L"});
    QVERIFY(isTold(saved));
    QVERIFY(hasReddish(inRgb(path("photo.jpg")), on + QPoint(0, 30)));
    QCOMPARE(files(), QStringList("photo.jpg"));
}

void tst_SavingInWindow::newFileIsSavedUnaskedAfterwards()
{
    QVERIFY(support::sheet(photoSize, Qt::white).save(path("photo.png")));
    m_pad->setPictureSize(workingSize);
    QVERIFY(m_pad->start({path("photo.png")}));
    QVERIFY(m_pad->stroke(from, to));
    m_pad->key("s", {"Control_L"});
    QVERIFY(m_pad->waitForBox("photo.png has 1,600 × 1,200 pixels and the drawing 352 × 264: "
                              "replacing it would lose the rest."));
    m_pad->key("Return");
    QVERIFY(isTold(saved));
    QVERIFY(m_pad->stroke(from + QPoint(0, 30), to + QPoint(0, 30)));
    m_pad->key("s", {"Control_L"});
    QVERIFY(isTold(saved));
    QCOMPARE(files(), QStringList({"photo 2.png", "photo.png"}));
    QCOMPARE(inRgb(path("photo 2.png")).pixelColor(on + QPoint(0, 30)), QColor(Qt::red));
}

void tst_SavingInWindow::exactPictureIsSavedUnasked_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isLink");
    QTest::newRow("private file") << "exact.png" << false;
    QTest::newRow("link") << "link.png" << true;
    QTest::newRow("name with a quote") << "it's mine.png" << false;
    QTest::newRow("name with more signs") << "-50% \"a\" $b `c`; é 画.png" << false;
}

void tst_SavingInWindow::exactPictureIsSavedUnasked()
{
    QFETCH(QString, name);
    QFETCH(bool, isLink);
    const QString file = isLink ? m_home->filePath("elsewhere.png") : path(name);
    QVERIFY(exactPicture().save(file));
    QVERIFY(setMode(file, privately));
    if (isLink)
        QVERIFY(QFile::link("../elsewhere.png", path(name)));

    QVERIFY(m_pad->start({path(name)}));
    QVERIFY(m_pad->stroke(from, to));
    QCOMPARE(m_pad->title(), name + "* - Korva");
    m_pad->key("s", {"Control_L"});
    QVERIFY(isTold(saved));
    QVERIFY(m_pad->waitForTitle(name + " - Korva"));
    QVERIFY(support::sameImage(inRgb(file), withStroke(exactPicture())));
    QCOMPARE(modeOf(file), privately);
    QCOMPARE(files(), QStringList(name));
    if (isLink)
        QCOMPARE(QFile(path(name)).symLinkTarget(), file);
}

void tst_SavingInWindow::formatThatIsOnlyReadGetsANewFile_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("question");
    QTest::newRow("GIF")
        << "old.gif"
        << "GIF pictures can only be opened: the drawing of 160 × 120 pixels needs a new file.";
    QTest::newRow("WBMP")
        << "old.wbmp"
        << "WBMP pictures can only be opened: the drawing of 160 × 120 pixels needs a new file.";
}

void tst_SavingInWindow::formatThatIsOnlyReadGetsANewFile()
{
    QFETCH(QString, name);
    QFETCH(QString, question);
    QVERIFY(support::sheet(exactSize).save(path("white.png")));
    QVERIFY(support::convert({path("white.png"), path(name)}));
    QVERIFY(QFile::remove(path("white.png")));
    const QByteArray before = contents(path(name));

    QVERIFY(m_pad->start({path(name)}));
    QVERIFY(m_pad->stroke(from, to));
    m_pad->key("s", {"Control_L"});
    QVERIFY(m_pad->waitForBox(question, shotName("question")));
    m_pad->key("Tab"); // there is no Replace between the two
    m_pad->key("Return");
    QVERIFY(m_pad->waitForNoBox());
    QCOMPARE(m_pad->title(), name + "* - Korva");
    QCOMPARE(files(), QStringList(name));

    m_pad->key("s", {"Control_L"});
    QVERIFY(m_pad->waitForBox(question));
    m_pad->key("Return");
    QVERIFY(isTold(saved));
    QVERIFY(m_pad->waitForTitle("old.png - Korva"));
    QVERIFY(contents(path(name)) == before);
    QVERIFY(support::sameImage(inRgb(path("old.png")), withStroke(support::sheet(exactSize))));
}

// --- Opening

void tst_SavingInWindow::refusedOpenChangesNothing_data()
{
    QTest::addColumn<QByteArray>("refused");
    QTest::addColumn<QString>("told");
    QTest::newRow("oversize") << support::pngStart(60'000, 60'000) << "The image is oversize";
    QTest::newRow("text") << QByteArray("This is no picture.\n") << "Failed to open file";
}

void tst_SavingInWindow::refusedOpenChangesNothing()
{
    QFETCH(QByteArray, refused);
    QFETCH(QString, told);
    const QString old = m_home->filePath("old.png");
    QVERIFY(exactPicture().save(old));
    write(path("refused.png"), refused);

    QVERIFY(m_pad->start({old}));
    QVERIFY(m_pad->stroke(from, to));
    m_pad->key("o", {"Control_L"});
    QVERIFY(m_pad->waitForBox("Save changes to drawing before opening?", shotName("changes")));
    m_pad->key("Tab");
    m_pad->key("Return"); // No
    QVERIFY(m_pad->waitForBox("Open picture"));
    m_pad->key("Home");
    m_pad->key("Return");
    QVERIFY(isTold(told));
    QCOMPARE(m_pad->title(), "old.png* - Korva");
    QVERIFY(m_pad->waitForColor(on, Qt::red));

    m_pad->key("s", {"Control_L"});
    QVERIFY(isTold(saved));
    QVERIFY(support::sameImage(inRgb(old), withStroke(exactPicture())));
    QVERIFY(contents(path("refused.png")) == refused);
    QCOMPARE(m_pad->title(), "old.png - Korva");
}

// --- Failing

namespace {

enum class Obstacle { FullDisk, ReadOnlyDisk, ProtectedFolder, ForeignFolder };

} // namespace

void tst_SavingInWindow::nothingFollowsAFailedSave_data()
{
    QTest::addColumn<int>("obstacle");
    QTest::addColumn<QString>("reason");
    QTest::newRow("full disk") << int(Obstacle::FullDisk) << "Not saved: The disk is full.";
    QTest::newRow("disk for reading")
        << int(Obstacle::ReadOnlyDisk) << "Not saved: shelf is on a disk that can only be read.";
    QTest::newRow("protected folder")
        << int(Obstacle::ProtectedFolder) << "Not saved: No permission to write in shelf.";
    QTest::newRow("another user's folder")
        << int(Obstacle::ForeignFolder) << "Not saved: No permission to write in shelf.";
}

void tst_SavingInWindow::nothingFollowsAFailedSave()
{
    QFETCH(int, obstacle);
    QFETCH(QString, reason);
    const QString shelf = m_home->filePath("shelf");
    const QString file = shelf + "/old.png";
    std::optional<Mount> disk;
    QStringList through;
    switch (Obstacle(obstacle)) {
    case Obstacle::FullDisk:
    case Obstacle::ReadOnlyDisk:
        disk.emplace(shelf, "size=64k");
        if (!disk->isThere())
            QSKIP("Mounting is not permitted here");
        break;
    case Obstacle::ForeignFolder:
        if (geteuid() != 0 || qEnvironmentVariableIsSet("FAKEROOTKEY"))
            QSKIP("Only who may do anything can be somebody else");
        through = QStringList{"setpriv", "--reuid=65534", "--regid=65534", "--clear-groups"};
        [[fallthrough]];
    default:
        QVERIFY(QDir().mkpath(shelf));
        break;
    }
    QVERIFY(exactPicture().save(file));
    switch (Obstacle(obstacle)) {
    case Obstacle::FullDisk: {
        QFile filler(shelf + "/filler");
        QVERIFY(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        while (filler.write(QByteArray(512, 'x')) == 512) {
        }
        break;
    }
    case Obstacle::ReadOnlyDisk:
        QVERIFY(disk->setReadOnly());
        break;
    case Obstacle::ProtectedFolder:
        QVERIFY(setMode(shelf, 0555));
        break;
    case Obstacle::ForeignFolder:
        QVERIFY(setMode(m_home->path(), 0777)); // its own only is the shelf
        QVERIFY(setMode(m_home->filePath("XDG_CONFIG_HOME"), 0777));
        QVERIFY(setMode(shelf, 0755));
        break;
    }
    const QByteArray before = contents(file);

    QVERIFY(m_pad->start({file}, through));
    QVERIFY(m_pad->stroke(from, to));
    const auto isAsBefore = [&] {
        QTest::qWait(200); // for what must not come
        return m_pad->box().isEmpty() && m_pad->title() == "old.png* - Korva" &&
               m_pad->waitForColor(on, Qt::red) && contents(file) == before;
    };
    m_pad->key("s", {"Control_L"});
    QVERIFY(m_pad->waitForBox(reason, shotName("reason")));
    QVERIFY(isTold(reason));
    QVERIFY(isAsBefore());

    const std::pair<const char*, const char*> next[] = {
        {"o", "Save changes to drawing before opening?"},
        {"n", "Save changes to drawing before creating?"},
        {"q", "Save changes to drawing before closing?"},
    };
    for (const auto& [key, question] : next) {
        m_pad->key(key, {"Control_L"});
        QVERIFY(m_pad->waitForBox(question, shotName(key)));
        m_pad->key("Return"); // Yes
        QVERIFY(isTold(reason));
        QVERIFY2(isAsBefore(), question);
    }
    QVERIFY(m_pad->process().isRunning());
}

// --- Save as

void tst_SavingInWindow::saveAsProposesAFreeName()
{
    QVERIFY(exactPicture().save(path("exact.png")));
    QVERIFY(exactPicture().save(path("exact 2.png")));
    const QByteArray before = contents(path("exact.png"));
    QVERIFY(m_pad->start({path("exact.png")}));
    QVERIFY(m_pad->stroke(from, to));
    m_pad->key("s", {"Control_L", "Shift_L"});
    QVERIFY(m_pad->waitForBox(saveDialog, shotName("dialog")));
    m_pad->key("Return");
    QVERIFY(isTold(saved));
    QVERIFY(m_pad->waitForTitle("exact 3.png - Korva"));
    QVERIFY(support::sameImage(inRgb(path("exact 3.png")), withStroke(exactPicture())));
    QVERIFY(contents(path("exact.png")) == before);
    QVERIFY(contents(path("exact 2.png")) == before);
}

void tst_SavingInWindow::saveAsAsksBeforeItReplaces()
{
    QVERIFY(exactPicture().save(path("exact.png")));
    QVERIFY(exactPicture().save(path("a.png")));
    QVERIFY(setMode(path("a.png"), privately));
    const QByteArray before = contents(path("a.png"));
    QVERIFY(m_pad->start({path("exact.png")}));
    QVERIFY(m_pad->stroke(from, to));
    m_pad->key("s", {"Control_L", "Shift_L"});
    QVERIFY(m_pad->waitForBox(saveDialog));
    m_pad->key("a", {"Control_L"});
    m_pad->key("a");
    m_pad->key("Return");
    QVERIFY(m_pad->waitForBox("Replace a.png?", shotName("question")));
    m_pad->key("Return"); // loses nothing
    QVERIFY(m_pad->waitForBox(saveDialog));
    QVERIFY(contents(path("a.png")) == before);

    m_pad->key("Return");
    QVERIFY(m_pad->waitForBox("Replace a.png?"));
    m_pad->key("Tab");
    m_pad->key("Return");
    QVERIFY(isTold(saved));
    QVERIFY(m_pad->waitForTitle("a.png - Korva"));
    QVERIFY(support::sameImage(inRgb(path("a.png")), withStroke(exactPicture())));
    QCOMPARE(modeOf(path("a.png")), privately);
}

// --- Deleting

void tst_SavingInWindow::deleteKeyRemovesTheSelection()
{
    QVERIFY(exactPicture().save(path("exact.png")));
    const QByteArray before = contents(path("exact.png"));
    QVERIFY(m_pad->start({path("exact.png")}));
    QVERIFY(m_pad->stroke(from, to));
    m_pad->key("Delete"); // nothing is selected
    QTest::qWait(300);
    QCOMPARE(m_pad->box(), "");
    QVERIFY(m_pad->waitForColor(on, Qt::red));

    m_pad->key("a", {"Control_L"});
    m_pad->key("Delete");
    QVERIFY(m_pad->waitForColor(on, Qt::white));
    QCOMPARE(m_pad->box(), "");
    m_pad->key("z", {"Control_L"});
    QVERIFY(m_pad->waitForColor(on, Qt::red));
    QVERIFY(contents(path("exact.png")) == before);
}

void tst_SavingInWindow::deletedPictureGoesToTheTrash()
{
    QVERIFY(exactPicture().save(path("exact.png")));
    const QByteArray before = contents(path("exact.png"));
    QVERIFY(m_pad->start({path("exact.png")}));
    QVERIFY(m_pad->stroke(from, to));
    m_pad->key("Delete", {"Control_L"});
    QVERIFY(m_pad->waitForBox("Move exact.png to the trash?", shotName("question")));
    m_pad->key("Return"); // Cancel
    QVERIFY(m_pad->waitForNoBox());
    QVERIFY(contents(path("exact.png")) == before);
    QCOMPARE(m_pad->title(), "exact.png* - Korva");
    QVERIFY(m_pad->waitForColor(on, Qt::red));

    m_pad->key("Delete", {"Control_L"});
    QVERIFY(m_pad->waitForBox("Move exact.png to the trash?"));
    m_pad->key("Tab");
    m_pad->key("Return");
    QVERIFY(m_pad->waitForTitle("Drawing - Korva"));
    QCOMPARE(files(), QStringList());
    QVERIFY(contents(m_home->filePath("XDG_DATA_HOME/Trash/files/exact.png")) == before);
    QVERIFY(m_pad->waitForColor(on, Qt::white));
}

void tst_SavingInWindow::withoutATrashItIsAskedAgain()
{
    write(m_home->filePath("XDG_DATA_HOME"), "no folder"); // in which no trash can be made
    QVERIFY(exactPicture().save(path("exact.png")));
    QVERIFY(m_pad->start({path("exact.png")}));
    const auto answerTheFirst = [this] {
        m_pad->key("Delete", {"Control_L"});
        if (!m_pad->waitForBox("Move exact.png to the trash?"))
            return false;
        m_pad->key("Tab");
        m_pad->key("Return");
        return m_pad->waitForBox("There is no trash for exact.png. Delete it for good?",
                                 shotName("question"));
    };
    QVERIFY(answerTheFirst());
    m_pad->key("Return"); // Cancel
    QVERIFY(m_pad->waitForNoBox());
    QCOMPARE(files(), QStringList("exact.png"));
    QCOMPARE(m_pad->title(), "exact.png - Korva");

    QVERIFY(answerTheFirst());
    m_pad->key("Tab");
    m_pad->key("Return");
    QVERIFY(m_pad->waitForTitle("Drawing - Korva"));
    QCOMPARE(files(), QStringList());
}

// --- Others

void tst_SavingInWindow::anotherProgramsChangeIsAskedAbout()
{
    QVERIFY(exactPicture().save(path("exact.png")));
    QVERIFY(m_pad->start({path("exact.png")}));
    QVERIFY(m_pad->stroke(from, to));
    QVERIFY(support::sheet(exactSize, Qt::blue).save(path("exact.png")));
    const QByteArray changed = contents(path("exact.png"));
    m_pad->key("s", {"Control_L"});
    QVERIFY(m_pad->waitForBox("exact.png was changed since it was opened: replacing it would lose that.",
                              shotName("question")));
    m_pad->key("Return");
    QVERIFY(isTold(saved));
    QVERIFY(m_pad->waitForTitle("exact 2.png - Korva"));
    QVERIFY(contents(path("exact.png")) == changed);
    QVERIFY(support::sameImage(inRgb(path("exact 2.png")), withStroke(exactPicture())));
}

int main(int argc, char** argv)
{
    Mount::allow();
    return support::run<tst_SavingInWindow>(argc, argv);
}

#include "tst_SavingInWindow.moc"
