#include "Commands.h"
#include "Documents.h"
#include "PadWindow.h"
#include "Platform.h"
#include "Recovery.h"
#include "StatusLine.h"
#include "Theme.h"
#include "support/Images.h"
#include "support/Modal.h"
#include "support/PictureFiles.h"
#include "support/TestCase.h"

#include <KORVA_Canvas.h>
#include <KORVA_EditCanvas.h>

namespace {

constexpr QPoint besideTheCanvas(60, 285); // on the key "Menu"
constexpr QSize size(40, 30);

/// While it lives, the folder of earlier drawings would have to be below a file.
class NoRoom
{
public:
    explicit NoRoom(const QString& file) { qputenv(variable, QFile::encodeName(file)); }
    ~NoRoom() { qunsetenv(variable); }
    NoRoom(const NoRoom&) = delete;
    NoRoom& operator=(const NoRoom&) = delete;

private:
    static constexpr auto variable = "XDG_STATE_HOME";
};

} // namespace

/// What the window itself does: its end, its title, its status line and the key of its menu.
class tst_PadWindow : public support::TestCase
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void unchangedDrawingIsClosedUnasked();
    void changesAreAskedAbout_data();
    void changesAreAskedAbout();
    void theFileIsSavedBeforeTheEnd();
    void aSaveThatFailsKeepsTheWindow();
    void aSaveThatLosesColorsIsAskedAbout();
    void whatCannotBeKeptIsGivenUpOnlyWhenAsked();
    void whatCannotBeKeptIsTold();

    void titleNamesTheFile();
    void titleTellsOfChanges();

    void statusTellsWhatIsChosen();
    void statusFollowsThePointer();
    void statusFollowsAStrokeAtItsPace();
    void statusFollowsTheKeyboardsPen();
    void statusKnowsAnUndoneSize();

    void f10OpensTheMenu();
    void secondKeyIsUndoOrRedo();
    void aCommandWaitsForTheStrokesEnd();

private:
    void open(const QString& picture = {});
    [[nodiscard]] QString path(const char* name) const { return m_folder->filePath(name); }
    [[nodiscard]] KORVA_EditCanvas& editor() const { return m_window->editor(); }
    [[nodiscard]] KORVA_Canvas& canvas() const { return *editor().canvas(); }
    /// A point of the canvas in the window.
    [[nodiscard]] QPoint inWindow(QPoint at) const { return canvas().mapTo(m_window.get(), at); }
    void hover(QPoint at) const { QTest::mouseMove(m_window->windowHandle(), inWindow(at)); }
    void stroke() const;
    /// What the status line says of something, by the name that a tip gives it.
    [[nodiscard]] QString status(const QString& what) const;
    /// The key in this place.
    [[nodiscard]] QPushButton& key(const QRect& place) const;
    /// Closes the window; what it asks is answered by a button with such a text, or by Escape. What the
    /// boxes say.
    QStringList close(const QStringList& answers = {});

    std::optional<QTemporaryDir> m_folder;
    pad::Platform* m_platform = nullptr;
    std::unique_ptr<pad::PadWindow> m_window;
};

void tst_PadWindow::init()
{
    support::TestCase::init();
    m_folder.emplace();
    QVERIFY(support::sheet(size, Qt::blue).save(path("blue.png")));
    open();
}

void tst_PadWindow::cleanup()
{
    m_window.reset();
    UTIL_Platform::install(nullptr);
}

void tst_PadWindow::open(const QString& picture)
{
    m_window.reset();
    m_platform = &pad::Platform::install();
    m_window = std::make_unique<pad::PadWindow>(*m_platform, picture);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void tst_PadWindow::stroke() const
{
    QTest::mousePress(&canvas(), Qt::LeftButton, {}, {5, 5});
    QTest::mouseMove(&canvas(), {20, 20});
    QTest::mouseRelease(&canvas(), Qt::LeftButton, {}, {20, 20});
}

QString tst_PadWindow::status(const QString& what) const
{
    for (const QLabel* field : m_window->findChild<pad::StatusLine*>()->findChildren<QLabel*>()) {
        if (field->toolTip() == what)
            return field->text();
    }
    return "(no such field)";
}

QPushButton& tst_PadWindow::key(const QRect& place) const
{
    return *qobject_cast<QPushButton*>(m_window->childAt(place.center()));
}

QStringList tst_PadWindow::close(const QStringList& answers)
{
    QStringList told;
    QTimer clerk;
    clerk.callOnTimeout([&] {
        auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!box || !box->isVisible())
            return;
        if (told.isEmpty() || told.last() != box->windowTitle())
            told << box->windowTitle();
        for (const QString& answer : answers + QStringList("OK")) {
            if (QAbstractButton* button = support::button(*box, answer))
                return button->click();
        }
        QTest::keyClick(box, Qt::Key_Escape);
    });
    clerk.start(1);
    m_window->close();
    return told;
}

// --- The end

void tst_PadWindow::unchangedDrawingIsClosedUnasked()
{
    QCOMPARE(close(), QStringList());
    QVERIFY(m_window->isHidden());
    open(path("blue.png"));
    QCOMPARE(close(), QStringList());
    QVERIFY(m_window->isHidden());
}

void tst_PadWindow::changesAreAskedAbout_data()
{
    QTest::addColumn<QString>("answer");
    QTest::addColumn<bool>("isClosed");
    QTest::newRow("no") << "No" << true;
    QTest::newRow("cancel") << "Cancel" << false;
    QTest::newRow("escape") << "" << false;
}

void tst_PadWindow::changesAreAskedAbout()
{
    QFETCH(const QString, answer);
    QFETCH(const bool, isClosed);
    open(path("blue.png"));
    stroke();
    const QImage drawn = editor().snapshot();
    QCOMPARE(close({answer}), QStringList("Save changes to drawing before closing?"));
    QCOMPARE(m_window->isHidden(), isClosed);
    QCOMPARE(editor().snapshot(), drawn);
    QVERIFY(support::sameImage(QImage(path("blue.png")), support::sheet(size, Qt::blue)));
}

void tst_PadWindow::theFileIsSavedBeforeTheEnd()
{
    open(path("blue.png"));
    stroke();
    const QImage drawn = editor().snapshot();
    QCOMPARE(close({"Yes"}).last(), "Saved Successfully");
    QVERIFY(m_window->isHidden());
    QVERIFY(support::sameImage(QImage(path("blue.png")), drawn));
}

void tst_PadWindow::aSaveThatFailsKeepsTheWindow()
{
    open(path("blue.png"));
    stroke();
    QVERIFY(QFile::setPermissions(path("blue.png"), QFile::ReadOwner));
    const QStringList told = close({"Yes"});
    QCOMPARE(told.size(), 2);
    QVERIFY2(told[1].startsWith("Not saved: No permission"), qPrintable(told[1]));
    QVERIFY(!m_window->isHidden());
    QVERIFY(editor().hasChanges());
}

void tst_PadWindow::aSaveThatLosesColorsIsAskedAbout()
{
    QVERIFY(support::mosaic(size).save(path("photo.png")));
    const QByteArray before = support::contents(path("photo.png"));
    open(path("photo.png"));
    stroke();
    QCOMPARE(close({"Yes", "Cancel"}).last(),
             u"photo.png has more colors than the drawing of 40\u00a0\u00d7\u00a030 "
             u"pixels: replacing it would lose them."_qs);
    QVERIFY(!m_window->isHidden());
    QCOMPARE(support::contents(path("photo.png")), before);
}

void tst_PadWindow::whatCannotBeKeptIsGivenUpOnlyWhenAsked()
{
    const NoRoom disk(path("blue.png"));
    open();
    new pad::Recovery(editor(), m_window->documents(), *m_platform, m_window.get());
    stroke();
    const QString question = "No copy of the drawing can be kept. Give it up?";
    QCOMPARE(close({"No", "Cancel"}).last(), question);
    QVERIFY(!m_window->isHidden());
    QCOMPARE(close({"No", "Give it up"}).last(), question);
    QVERIFY(m_window->isHidden());
}

void tst_PadWindow::whatCannotBeKeptIsTold()
{
    const NoRoom disk(path("blue.png"));
    open();
    new pad::Recovery(editor(), m_window->documents(), *m_platform, m_window.get());
    stroke();
    QString told;
    QTimer reader;
    reader.callOnTimeout([&told] {
        auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!box || !box->isVisible())
            return;
        told = box->windowTitle();
        support::button(*box, "OK")->click();
    });
    reader.start(10);
    QTRY_VERIFY(!told.isEmpty());
    QVERIFY2(told.startsWith("No copy of the drawing can be kept: "), qPrintable(told));
}

// --- The title

void tst_PadWindow::titleNamesTheFile()
{
    QCOMPARE(m_window->windowTitle(), "Drawing[*] - Korva");
    m_window->documents().openNamed(path("blue.png"));
    QCOMPARE(m_window->windowTitle(), "blue.png[*] - Korva");
    open(path("blue.png"));
    QCOMPARE(m_window->windowTitle(), "blue.png[*] - Korva");
}

void tst_PadWindow::titleTellsOfChanges()
{
    open(path("blue.png"));
    QVERIFY(!m_window->isWindowModified());
    stroke();
    QVERIFY(m_window->isWindowModified());
    QVERIFY(m_window->documents().save());
    QVERIFY(!m_window->isWindowModified());

    editor().setManners(KORVA_Manners::modern());
    QPixmap stamp = QPixmap::fromImage(support::sheet(QSize(9, 9)));
    canvas().insertStamp(stamp);
    QVERIFY(m_window->isWindowModified());
    canvas().deleteSelection();
    QCOMPARE(m_window->isWindowModified(), editor().isModified());
}

// --- The status line

void tst_PadWindow::statusTellsWhatIsChosen()
{
    QCOMPARE(status("Tool"), "Pencil");
    QCOMPARE(status("Picture size"), u"200 \u00d7 170"_qs);
    QCOMPARE(status("Zoom"), "100 %");
    QCOMPARE(status("Position"), "");
    m_window->documents().openNamed(path("blue.png"));
    QTRY_COMPARE(status("Picture size"), u"40 \u00d7 30"_qs);
    editor().selectZoom(0);
    QTRY_COMPARE(status("Zoom"), "50 %");
    QPixmap larger = QPixmap::fromImage(support::sheet(QSize(41, 31)));
    canvas().setPixmap(&larger); // as large on the screen
    QTRY_COMPARE(status("Picture size"), u"41 \u00d7 31"_qs);
    editor().selectZoom(3);
    QTRY_COMPARE(status("Zoom"), "200 %");
    QCOMPARE(status("Picture size"), u"41 \u00d7 31"_qs);
    for (const int tool : {KORVA_TOOL_ERASER, KORVA_TOOL_HAND, KORVA_TOOL_TEXT}) {
        editor().selectTool(tool);
        QTRY_COMPARE(status("Tool"), KORVA_EditCanvas::toolName(tool));
    }
    editor().selectTool(KORVA_TOOL_PENCIL);
    QVERIFY(!m_window->screenshot().isNull()); // which does not wait
    QCOMPARE(status("Tool"), "Pencil");
}

void tst_PadWindow::statusFollowsThePointer()
{
    hover({30, 40});
    QTRY_COMPARE(status("Position"), "30, 40");
    hover({31, 41});
    QTRY_COMPARE(status("Position"), "31, 41");
    QTest::mouseMove(m_window->windowHandle(), besideTheCanvas);
    QTRY_COMPARE(status("Position"), "");
    editor().selectZoom(3);
    hover({30, 40});
    QTRY_COMPARE(status("Position"), "15, 20");
}

void tst_PadWindow::statusFollowsAStrokeAtItsPace()
{
    constexpr int pace = 200; // ms
    QWindow* window = m_window->windowHandle();
    hover({10, 10});
    QTest::mousePress(window, Qt::LeftButton, {}, inWindow({10, 10}));
    QTest::qWait(2 * pace + 50); // the hover is shown, and that is long ago
    hover({20, 30});
    QCOMPARE(status("Position"), "20, 30"); // now, not later
    hover({21, 31});
    QCOMPARE(status("Position"), "20, 30"); // not yet
    QTest::mouseRelease(window, Qt::LeftButton, {}, inWindow({22, 32}));
    QTRY_COMPARE(status("Position"), "22, 32");
}

void tst_PadWindow::statusFollowsTheKeyboardsPen()
{
    canvas().setFocus();
    QTest::keyClick(&canvas(), Qt::Key_Right);
    const std::optional<QPoint> pen = canvas().keyboardPen();
    QVERIFY(pen);
    QTRY_COMPARE(status("Position"), QString("%1, %2").arg(pen->x()).arg(pen->y()));
    QTest::keyClick(&canvas(), Qt::Key_Down, Qt::ShiftModifier);
    QVERIFY(canvas().keyboardPen() != pen);
    QTRY_COMPARE(status("Position"),
                 QString("%1, %2").arg(canvas().keyboardPen()->x()).arg(canvas().keyboardPen()->y()));
}

void tst_PadWindow::statusKnowsAnUndoneSize()
{
    editor().setUndoSteps(5);
    QPixmap other = QPixmap::fromImage(support::sheet(QSize(90, 80)));
    canvas().setPixmap(&other);
    QTRY_COMPARE(status("Picture size"), u"90 \u00d7 80"_qs);
    editor().undo();
    QTRY_COMPARE(
        status("Picture size"),
        QString(u"%1 \u00d7 %2"_qs).arg(editor().snapshot().width()).arg(editor().snapshot().height()));
}

// --- The keys

void tst_PadWindow::f10OpensTheMenu()
{
    QMenu* menu = m_window->commands().menu();
    const QPushButton& menuKey = key(pad::theme::firstKey);
    QCOMPARE(menuKey.text(), "Menu");
    QTest::keyClick(m_window->windowHandle(), Qt::Key_F10);
    QTRY_VERIFY(menu->isVisible());
    QCOMPARE(menu->x(), menuKey.mapToGlobal(QPoint(0, 0)).x());
    QVERIFY(m_window->geometry().contains(menu->geometry()));
    QTest::keyClick(menu, Qt::Key_Escape);
    QVERIFY(!menu->isVisible());
    QTest::mouseClick(&key(pad::theme::firstKey), Qt::LeftButton);
    QTRY_VERIFY(menu->isVisible());
}

void tst_PadWindow::secondKeyIsUndoOrRedo()
{
    QPushButton& second = key(pad::theme::secondKey);
    QCOMPARE(second.text(), "Undo");
    QCOMPARE(second.toolTip(), "Undo (Ctrl+Z)");
    QVERIFY(!second.isEnabled());
    const QImage before = editor().snapshot();
    stroke();
    const QImage drawn = editor().snapshot();
    QVERIFY(second.isEnabled());
    QTest::mouseClick(&second, Qt::LeftButton);
    QCOMPARE(editor().snapshot(), before);
    QCOMPARE(second.text(), "Redo");
    QTest::mouseClick(&second, Qt::LeftButton);
    QCOMPARE(editor().snapshot(), drawn);
    QCOMPARE(second.text(), "Undo");
}

void tst_PadWindow::aCommandWaitsForTheStrokesEnd()
{
    open();
    QWindow* const window = m_window->windowHandle();
    const QImage before = editor().snapshot();
    QTest::mousePress(window, Qt::LeftButton, {}, inWindow({10, 10}));
    QTest::mouseMove(window, inWindow({60, 10}));
    QTest::keyClick(m_window.get(), Qt::Key_Z, Qt::ControlModifier);
    QTest::mouseMove(window, inWindow({60, 60}));
    QTest::mouseRelease(window, Qt::LeftButton, {}, inWindow({60, 60}));
    const QImage stroke = editor().snapshot();
    QVERIFY(stroke.pixelColor(30, 10) != before.pixelColor(30, 10));
    QVERIFY(stroke.pixelColor(60, 30) != before.pixelColor(60, 30));
    QTest::keyClick(m_window.get(), Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(support::sameImage(editor().snapshot(), before));
}

int main(int argc, char** argv)
{
    return support::run<tst_PadWindow>(argc, argv);
}

#include "tst_PadWindow.moc"
