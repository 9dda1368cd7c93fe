#include "FolderFixtures.h"
#include "UTIL_PickDialog.h"
#include "UTIL_Skin.h"
#include "support/EventLoop.h"
#include "support/StalledFile.h"

#include <atomic>

#include <unistd.h>

using fixtures::Photos;

namespace {

const QStringList patterns{"*.png", "*.jpg", "*.bmp"};
const QStringList shown{"sub", "a.bmp", "B9.jpg", "b10.png", "bad.png"};

struct Stage : fixtures::Stage<UTIL_PickDialog>
{
    explicit Stage(const QString& folder, const QStringList& filter = patterns)
        : fixtures::Stage<UTIL_PickDialog>(folder, filter)
    {
        show();
    }
};

} // namespace

class tst_PickDialog : public support::TestCase
{
    Q_OBJECT

private slots:
    void cleanup() { UTIL_PictureDialog::setOrder(UTIL_PictureDialog::ByName); }

    void platformMakesIt();
    void fitsTheScreen();
    void showsFoldersAndWhatMatches();
    void nothingIsChosenAtFirst();
    void tapChoosesAndOkReturnsIt();
    void doubleTapReturnsIt();
    void cancelReturnsNothing_data();
    void cancelReturnsNothing();
    void foldersOpen_data();
    void foldersOpen();
    void okOnAFolderGoesThere();
    void keyboardGoesThroughFolders();
    void dragScrollsAndChoosesNothing();
    void thumbnailsAppear();
    void emptyOrMissingFolderSaysSo_data();
    void emptyOrMissingFolderSaysSo();
    void thousandsOfPicturesDoNotStall();
    void mayGoAwayWhileThumbnailsAreMade();
    void goesAwayWhileAThumbnailStalls();
    void itsKeysSayWhatItIsFor();
    void everyLetterOfANameIsSeen_data();
    void everyLetterOfANameIsSeen();
    void longNamesShowBothEnds();
    void typingFinds();
    void newestComesFirstWhereThatIsWanted();
    void theOrderIsChosenInAMenu();
    void samePlaceTheSecondTime();
    void fillsItsWindow_data();
    void fillsItsWindow();
    void followsItsWindow();

private:
    Photos m_photos;
};

void tst_PickDialog::platformMakesIt()
{
    QWidget window;
    UTIL_PictureDialog* dialog =
        UTIL_Platform::instance()->createPickDialog(&window, m_photos.path(), patterns);
    QVERIFY(qobject_cast<UTIL_PickDialog*>(dialog));
    QCOMPARE(dialog->parentWidget(), &window);
    support::whenOpen([&](QDialog& open) {
        auto* view = open.findChild<UTIL_PictureView*>();
        view->setCurrentIndex(view->model()->index(1, 0));
        QTest::mouseClick(support::button(open, "Open"), Qt::LeftButton);
    });
    QCOMPARE(dialog->exec(), 1);
    QCOMPARE(dialog->fileName(), m_photos.path("a.bmp"));
}

void tst_PickDialog::fitsTheScreen()
{
    Stage stage(m_photos.path());
    const QSize screen(UTIL_Skin::Size::screenWidth, UTIL_Skin::Size::screenHeight);
    QCOMPARE(stage.dialog.size(), screen);
    constexpr int finger = UTIL_Skin::Size::keyHeight;
    for (QAbstractButton* key : stage.dialog.findChildren<QAbstractButton*>()) {
        QVERIFY(key->height() >= finger && key->width() >= finger);
        QVERIFY(stage.dialog.rect().contains(key->geometry()));
    }
    QVERIFY(stage.view().gridSize().width() >= finger && stage.view().gridSize().height() >= finger);
}

void tst_PickDialog::showsFoldersAndWhatMatches()
{
    QCOMPARE(Stage(m_photos.path()).names(), shown);
    QCOMPARE(Stage(m_photos.path(), {"*.gif"}).names(), QStringList({"sub", "other.gif"}));
}

void tst_PickDialog::nothingIsChosenAtFirst()
{
    Stage stage(m_photos.path());
    QVERIFY(stage.dialog.fileName().isEmpty());
    QVERIFY(!stage.isEnabled("Open"));
    QTest::keyClick(&stage.view(), Qt::Key_Return);
    QVERIFY(stage.dialog.isVisible());
    QVERIFY(stage.names() == shown);
}

void tst_PickDialog::tapChoosesAndOkReturnsIt()
{
    Stage stage(m_photos.path());
    stage.tap("B9.jpg");
    QVERIFY(stage.dialog.isVisible());
    stage.tap("b10.png");
    stage.press("Open");
    QCOMPARE(stage.dialog.result(), 1);
    QCOMPARE(stage.dialog.fileName(), m_photos.path("b10.png"));
}

void tst_PickDialog::doubleTapReturnsIt()
{
    Stage stage(m_photos.path());
    stage.doubleTap("a.bmp");
    QVERIFY(!stage.dialog.isVisible());
    QCOMPARE(stage.dialog.result(), 1);
    QCOMPARE(stage.dialog.fileName(), m_photos.path("a.bmp"));
}

void tst_PickDialog::cancelReturnsNothing_data()
{
    QTest::addColumn<int>("way");
    QTest::addRow("key") << 0;
    QTest::addRow("Escape") << 1;
    QTest::addRow("closing") << 2;
}

void tst_PickDialog::cancelReturnsNothing()
{
    QFETCH(int, way);
    Stage stage(m_photos.path());
    stage.tap("a.bmp");
    if (way == 0)
        stage.press("Cancel");
    else if (way == 1)
        QTest::keyClick(&stage.view(), Qt::Key_Escape);
    else
        stage.dialog.close();
    QVERIFY(!stage.dialog.isVisible());
    QCOMPARE(stage.dialog.result(), 0);
    QVERIFY(stage.dialog.fileName().isEmpty());
}

void tst_PickDialog::foldersOpen_data()
{
    QTest::addColumn<bool>("isByKeyboard");
    QTest::addRow("by taps") << false;
    QTest::addRow("by keyboard") << true;
}

void tst_PickDialog::foldersOpen()
{
    QFETCH(bool, isByKeyboard);
    Stage stage(m_photos.path());
    const auto into = [&](const QString& name) {
        if (!isByKeyboard)
            return stage.tap(name);
        QTest::keyClick(&stage.view(), Qt::Key_Down);
        QCOMPARE(stage.view().currentIndex().data().toString(), name);
        QTest::keyClick(&stage.view(), Qt::Key_Return);
    };
    into("sub");
    QCOMPARE(stage.names(), QStringList({"deeper", "inside.png"}));
    QVERIFY(support::labels(stage.dialog).contains("sub"));
    into("deeper");
    QCOMPARE(stage.names(), QStringList());
    for (const char* name : {"deeper", "sub"}) {
        if (isByKeyboard)
            QTest::keyClick(&stage.view(), Qt::Key_Backspace);
        else
            stage.press("Up");
        QCOMPARE(stage.view().currentIndex().data().toString(), name); // where it came from
        QVERIFY(stage.dialog.fileName().isEmpty());
    }
    QCOMPARE(stage.names(), shown);
}

void tst_PickDialog::okOnAFolderGoesThere()
{
    Stage stage(m_photos.path());
    stage.view().setCurrentIndex(stage.view().model()->index(0, 0));
    stage.press("Open");
    QVERIFY(stage.dialog.isVisible());
    QCOMPARE(stage.names(), QStringList({"deeper", "inside.png"}));
    stage.tap("inside.png");
    stage.press("Open");
    QCOMPARE(stage.dialog.fileName(), m_photos.path("sub/inside.png"));
}

void tst_PickDialog::keyboardGoesThroughFolders()
{
    Stage stage(m_photos.path());
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Right, Qt::Key_Right})
        QTest::keyClick(&stage.view(), key);
    QCOMPARE(stage.dialog.fileName(), m_photos.path("B9.jpg"));
    QTest::keyClick(&stage.view(), Qt::Key_Return);
    QVERIFY(!stage.dialog.isVisible());
    QCOMPARE(stage.dialog.fileName(), m_photos.path("B9.jpg"));

    Stage root("/");
    QVERIFY(!root.isEnabled("Up"));
    QTest::keyClick(&root.view(), Qt::Key_Backspace);
    QVERIFY(root.dialog.isVisible());
}

void tst_PickDialog::dragScrollsAndChoosesNothing()
{
    QTemporaryDir folder;
    for (int i = 0; i < 30; ++i)
        QVERIFY(support::sheet(QSize(4, 4), Qt::red).save(folder.filePath(QString("%1.png").arg(i))));
    Stage stage(folder.path());
    QWidget* viewport = stage.view().viewport();
    QTest::mousePress(viewport, Qt::LeftButton, {}, QPoint(50, 150));
    QTest::mouseMove(viewport, QPoint(50, 120));
    QTest::mouseMove(viewport, QPoint(50, 60));
    QTest::mouseRelease(viewport, Qt::LeftButton, {}, QPoint(50, 60));
    QCOMPARE(stage.view().verticalScrollBar()->value(), 90);
    QVERIFY(stage.dialog.fileName().isEmpty());
}

void tst_PickDialog::thumbnailsAppear()
{
    Stage stage(m_photos.path());
    const auto colorOf = [&](const QString& name) {
        return stage.view().viewport()->grab().toImage().pixelColor(stage.centre(name) - QPoint(0, 10));
    };
    QTRY_COMPARE(colorOf("b10.png"), QColor(Qt::red));
    QTRY_COMPARE(colorOf("a.bmp"), QColor(Qt::red));
    QVERIFY(colorOf("bad.png") != QColor(Qt::red));

    const auto shot = [&](Stage& shown) {
        const QModelIndex bad = shown.view().model()->index(int(shown.names().indexOf("bad.png")), 0);
        return shown.view().viewport()->grab(shown.view().visualRect(bad)).toImage();
    };
    Stage fresh(m_photos.path());
    const QImage reading = shot(fresh);
    QTRY_VERIFY(shot(fresh) == shot(stage)); // struck out
    QVERIFY(shot(stage) != reading);
}

void tst_PickDialog::emptyOrMissingFolderSaysSo_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addRow("empty") << m_photos.path("sub/deeper");
    QTest::addRow("missing") << m_photos.path("missing");
    QTest::addRow("not to be looked into") << m_photos.path("notes.txt");
}

void tst_PickDialog::emptyOrMissingFolderSaysSo()
{
    QFETCH(QString, folder);
    Stage stage(folder);
    QCOMPARE(stage.names(), QStringList());
    QVERIFY(!stage.isEnabled("Open"));
    const QImage image = stage.view().viewport()->grab().toImage();
    const QRect ink = support::inkBounds(image.copy(image.rect().adjusted(8, 8, -8, -8)));
    QVERIFY(ink.width() > 50 && ink.height() < 40);
    if (folder.endsWith("notes.txt")) {
        Stage empty(m_photos.path("sub/deeper"));
        QVERIFY(empty.view().viewport()->grab().toImage() != image); // something else is said
    }
    stage.press("Up");
    QVERIFY(stage.names() != QStringList());
}

namespace {

/// Counts the readers that begin: each asks for the limit once.
class CountingPlatform : public UTIL_Platform
{
public:
    [[nodiscard]] qint64 pixelLimit() const override
    {
        ++begun;
        return UTIL_Platform::pixelLimit();
    }
    mutable std::atomic_int begun = 0;
};

} // namespace

/// While no picture can be read at all, the dialog is as quick as ever; and then it reads those that it
/// shows.
void tst_PickDialog::thousandsOfPicturesDoNotStall()
{
    constexpr int count = 5000;
    constexpr int fewScreens = 60; // of some nine pictures
    const QTemporaryDir folder;
    const QByteArray picture = folder.filePath("0.png").toUtf8();
    QVERIFY(support::sheet(QSize(640, 480), Qt::red).save(QString::fromUtf8(picture)));
    for (int i = 1; i < count; ++i)
        QVERIFY(::link(picture.constData(),
                       folder.filePath(QString("%1.png").arg(i)).toUtf8().constData()) == 0);
    auto owned = std::make_unique<CountingPlatform>();
    const CountingPlatform& platform = *owned;
    UTIL_Platform::install(std::move(owned));
    const auto restore = qScopeGuard([] { UTIL_Platform::install(nullptr); });

    support::StalledFile stalled(QString::fromUtf8(picture)); // by all its names
    Stage stage(folder.path());
    QCOMPARE(stage.view().model()->rowCount(), count);
    QTRY_VERIFY(stalled.isWaitedFor()); // by another thread
    QScrollBar* bar = stage.view().verticalScrollBar();
    for (int step = 0; step <= 40; ++step) {
        bar->setValue(bar->maximum() * step / 40);
        QCoreApplication::processEvents();
    }
    QTest::keyClick(&stage.view(), Qt::Key_Down);
    QTest::keyClick(&stage.view(), Qt::Key_End);
    QCOMPARE(stage.dialog.fileName(), folder.filePath("4999.png"));
    QCOMPARE(platform.begun.load(), 1);
    QVERIFY(stalled.letGo());

    const auto isMade = [&] {
        const QPoint place = stage.view().visualRect(stage.view().currentIndex()).center() - QPoint(0, 10);
        return stage.view().viewport()->grab().toImage().pixelColor(place) == Qt::red;
    };
    QTRY_VERIFY(isMade());
    for (int before = 0; before != platform.begun.load(); support::strike(300))
        before = platform.begun;
    QVERIFY2(platform.begun <= fewScreens, qPrintable(QString::number(platform.begun)));
}

void tst_PickDialog::mayGoAwayWhileThumbnailsAreMade()
{
    for (int i = 0; i < 20; ++i) {
        Stage stage(m_photos.path());
        QCoreApplication::processEvents();
    }
}

void tst_PickDialog::goesAwayWhileAThumbnailStalls()
{
    const QTemporaryDir folder;
    QVERIFY(support::sheet({400, 300}).save(folder.filePath("a.png")));
    support::StalledFile file(folder.filePath("a.png"));
    {
        Stage stage(folder.path());
        QTRY_VERIFY(file.isWaitedFor());
    }
    QVERIFY(file.letGo()); // it was still held then
}

void tst_PickDialog::itsKeysSayWhatItIsFor()
{
    Stage stage(m_photos.path());
    QCOMPARE(support::labels(stage.dialog).value(0), "Open picture");
    QVERIFY(stage.isEnabled("Cancel"));
    for (const QLabel* label : stage.dialog.findChildren<QLabel*>())
        QVERIFY2(label->sizeHint().width() <= label->width(), qPrintable(label->text()));
}

void tst_PickDialog::everyLetterOfANameIsSeen_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name : {"Zeichnung im Juni.png", "holiday_mountain.png", "IMG_20240315_12.png",
                             "summer_holiday_1.jpg", "2024-03-15 12-33.png"})
        QTest::newRow(name) << QString(name);
}

void tst_PickDialog::everyLetterOfANameIsSeen()
{
    QFETCH(QString, name);
    const auto shot = [&](const QString& shown) {
        const QTemporaryDir folder;
        for (int i = 0; i < 20; ++i) // enough for a scroll bar
            QFile(folder.filePath(QString("z%1.png").arg(i))).open(QIODevice::WriteOnly);
        QFile(folder.filePath(shown)).open(QIODevice::WriteOnly);
        Stage stage(folder.path());
        const QModelIndex index = stage.view().model()->index(int(stage.names().indexOf(shown)), 0);
        stage.view().setCurrentIndex(index);
        return stage.view().viewport()->grab(stage.view().visualRect(index)).toImage();
    };
    const QImage whole = shot(name);
    for (int letter = 0; letter < name.size() - 4; ++letter) {
        QString other = name;
        other[letter] = name[letter] == 'o' ? 'e' : 'o';
        QVERIFY2(shot(other) != whole, qPrintable(other));
    }
}

void tst_PickDialog::longNamesShowBothEnds()
{
    const QTemporaryDir folder;
    const QString stem = QString("Screenshot from 2024-03-15 12-33-").repeated(2);
    const QStringList names = {stem + "44.png", stem + "45.png"};
    for (const QString& name : names)
        QFile(folder.filePath(name)).open(QIODevice::WriteOnly);
    Stage stage(folder.path());
    QList<QImage> shots;
    for (const QString& name : names) {
        const QModelIndex index = stage.view().model()->index(int(stage.names().indexOf(name)), 0);
        stage.view().setCurrentIndex(index);
        shots << stage.view().viewport()->grab(stage.view().visualRect(index)).toImage();
        QCOMPARE(index.data(Qt::ToolTipRole).toString(), name);
    }
    QVERIFY(shots[0] != shots[1]);
}

void tst_PickDialog::typingFinds()
{
    const Photos photos;
    for (const char* name : {"Sea 1.png", "Sea 2.png", "south.png", "at the sea.png"})
        photos.add(name);
    Stage stage(photos.path());
    const auto type = [&](const char* text) {
        QTest::keyClicks(&stage.view(), text);
        return stage.view().currentIndex().data().toString();
    };
    const auto pause = [&] { QTest::qWait(1100); };
    QCOMPARE(type("so"), "south.png");
    QTest::keyClick(&stage.view(), Qt::Key_Backspace); // takes a letter back, and does not leave the folder
    QCOMPARE(type("ea 2"), "Sea 2.png");
    pause();
    QCOMPARE(type("THE"), "at the sea.png"); // inside a name, when none begins so
    pause();
    QCOMPARE(type("b"), "B9.jpg");
    QCOMPARE(type("b"), "b10.png");
    QCOMPARE(type("b"), "bad.png");
    QCOMPARE(stage.dialog.fileName(), photos.path("bad.png"));
    pause();
    QCOMPARE(type("nothing"), "bad.png");
    pause();
    QTest::keyClick(&stage.view(), Qt::Key_Backspace);
    QVERIFY(!stage.names().contains("B9.jpg"));
}

void tst_PickDialog::newestComesFirstWhereThatIsWanted()
{
    const Photos photos;
    const auto age = [&](const char* name, int days) {
        QFile file(photos.path(name));
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(QDateTime::currentDateTime().addDays(-days), QFile::FileModificationTime));
    };
    age("a.bmp", 3);
    age("B9.jpg", 1);
    age("b10.png", 2);
    age("bad.png", 9);
    UTIL_PictureDialog::setOrder(UTIL_PictureDialog::NewestFirst);
    QCOMPARE(Stage(photos.path()).names(), QStringList({"sub", "B9.jpg", "b10.png", "a.bmp", "bad.png"}));
}

void tst_PickDialog::theOrderIsChosenInAMenu()
{
    const auto entry = [](Stage& stage, const QString& name) {
        for (QAction* action : stage.dialog.findChild<QMenu*>()->actions())
            if (action->text() == name)
                return action;
        return static_cast<QAction*>(nullptr);
    };
    Stage stage(m_photos.path());
    stage.tap("a.bmp");
    QVERIFY(entry(stage, "By name")->isChecked());
    stage.press(QString());
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    QVERIFY(menu);
    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(menu->actions()[1]).center());
    QCOMPARE(UTIL_PictureDialog::order(), UTIL_PictureDialog::NewestFirst);
    QCOMPARE(stage.dialog.fileName(), m_photos.path("a.bmp")); // what was chosen stays so
    QCOMPARE(stage.view().currentIndex().data().toString(), "a.bmp");
    QVERIFY(stage.isEnabled("Open"));

    Stage second(m_photos.path());
    QVERIFY(entry(second, "Newest first")->isChecked());
    entry(second, "By name")->trigger();
    QCOMPARE(second.names(), shown);
    QCOMPARE(UTIL_PictureDialog::order(), UTIL_PictureDialog::ByName);
}

void tst_PickDialog::samePlaceTheSecondTime()
{
    const QTemporaryDir folder;
    for (int i = 0; i < 60; ++i)
        QVERIFY(support::sheet(QSize(4, 4), Qt::red).save(folder.filePath(QString("%1.png").arg(i))));
    int place = 0;
    {
        Stage stage(folder.path());
        stage.view().scrollTo(stage.view().model()->index(30, 0), QAbstractItemView::PositionAtTop);
        place = stage.view().verticalScrollBar()->value();
        QVERIFY(place > 0);
        stage.press("Cancel");
    }
    Stage second(folder.path());
    QCOMPARE(second.view().verticalScrollBar()->value(), place);
    QVERIFY(second.dialog.fileName().isEmpty());
    QVERIFY(!second.isEnabled("Open"));
    second.dialog.reject();
    Stage other(m_photos.path());
    QCOMPARE(other.view().verticalScrollBar()->value(), 0);
    other.dialog.reject();
    QCOMPARE(Stage(folder.path()).view().verticalScrollBar()->value(), 0); // only the last place
}

void tst_PickDialog::fillsItsWindow_data()
{
    QTest::addColumn<QSize>("window");
    QTest::addColumn<QSize>("dialog");
    QTest::newRow("the device's") << QSize(240, 320) << QSize(240, 320);
    QTest::newRow("lower") << QSize(240, 200) << QSize(240, 200);
    QTest::newRow("larger") << QSize(480, 400) << QSize(480, 400);
    QTest::newRow("too small") << QSize(100, 100) << QSize(240, 200);
    QTest::newRow("as large as a desk") << QSize(1000, 700) << QSize(560, 480);
}

void tst_PickDialog::fillsItsWindow()
{
    QFETCH(QSize, window);
    QWidget owner;
    owner.resize(window);
    owner.show();
    UTIL_PickDialog dialog(&owner, m_photos.path(), patterns);
    dialog.show();
    QTEST(dialog.size(), "dialog");
    for (const char* key : {"Open", "Cancel", "Up"})
        QVERIFY(dialog.rect().contains(support::button(dialog, key)->geometry()));
    QCOMPARE(support::labels(dialog).value(0), "Open picture");
    auto* view = dialog.findChild<UTIL_PictureView*>();
    const int columns = view->viewport()->width() / view->gridSize().width();
    QCOMPARE(columns, dialog.width() / 74);
}

void tst_PickDialog::followsItsWindow()
{
    QWidget window;
    window.resize(500, 420);
    window.show();
    UTIL_PickDialog dialog(&window, m_photos.path(), patterns);
    dialog.show();
    const auto head = [&dialog] {
        QList<QRect> places;
        for (const QLabel* label : dialog.findChildren<QLabel*>())
            places.append(label->isVisible() ? label->geometry() : QRect());
        return places;
    };
    const QList<QRect> atFirst = head();
    for (const QSize size : {QSize(300, 360), QSize(240, 200), QSize(500, 420)}) {
        window.resize(size);
        QTRY_COMPARE(dialog.size(), size);
        QCOMPARE(dialog.geometry().center(), window.geometry().center());
        for (const QAbstractButton* key : dialog.findChildren<QAbstractButton*>())
            QVERIFY(dialog.rect().contains(key->geometry()));
    }
    QTRY_COMPARE(head(), atFirst); // on a low one the title was in place of the folder's name
}

int main(int argc, char** argv)
{
    return support::run<tst_PickDialog>(argc, argv);
}

#include "tst_PickDialog.moc"
