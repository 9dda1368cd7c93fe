#include "KORVA_Canvas.h"
#include "KORVA_EditCanvas.h"
#include "KORVA_Manager.h"
#include "support/Gestures.h"
#include "support/Images.h"
#include "support/TestCase.h"

#include <clocale>
#include <malloc.h>
#include <memory>
#include <vector>

#if defined(__SANITIZE_ADDRESS__)
extern "C" size_t __sanitizer_get_current_allocated_bytes(); // its header is in no package
#endif

namespace {

/// What is allocated and not freed.
size_t bytesInUse()
{
#if defined(__SANITIZE_ADDRESS__)
    return __sanitizer_get_current_allocated_bytes();
#else
    return mallinfo2().uordblks;
#endif
}

/// Everything that the whole program shares and a library could spoil.
QStringList globals()
{
    QStringList all;
    const auto add = [&all](const char* name, const auto& value) {
        QString text;
        QDebug(&text) << name << value;
        all << text;
    };
    add("style", static_cast<const void*>(QApplication::style()));
    add("style sheet", qApp->styleSheet());
    add("palette", QApplication::palette());
    add("palette of buttons", QApplication::palette("QPushButton"));
    add("font", QApplication::font());
    add("font of labels", QApplication::font("QLabel"));
    add("locale", QLocale());
    add("C locale", std::setlocale(LC_ALL, nullptr));
    add("a text", QCoreApplication::translate("KORVA_Canvas", "Cut", "2.11.1;MENU"));
    add("children", qApp->children());
    add("names", QStringList{QCoreApplication::organizationName(), QCoreApplication::organizationDomain(),
                             QCoreApplication::applicationName(), QGuiApplication::desktopFileName()});
    add("override cursor", static_cast<const void*>(QGuiApplication::overrideCursor()));
    add("quits on last window", QGuiApplication::quitOnLastWindowClosed());
    add("double click", QApplication::doubleClickInterval());
    add("cursor flash", QApplication::cursorFlashTime());
    add("layout direction", QGuiApplication::layoutDirection());
    add("icon", QApplication::windowIcon().isNull());
    add("folder", QDir::currentPath());
    add("environment", QProcessEnvironment::systemEnvironment().toStringList());
    add("library paths", QCoreApplication::libraryPaths());
    add("icon theme", QIcon::themeName());
    for (int i = 0; i < Qt::AA_AttributeCount; ++i)
        all << QString("attribute %1: %2")
                   .arg(i)
                   .arg(QCoreApplication::testAttribute(Qt::ApplicationAttribute(i)));
    return all;
}

QStringList filesBelow(const QString& folder)
{
    QStringList files;
    QDirIterator walk(folder, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                      QDirIterator::Subdirectories);
    while (walk.hasNext())
        files << walk.next();
    return files;
}

/// A stroke over the canvas at the height given.
void drawAt(KORVA_EditCanvas& editor, int y)
{
    support::Gestures(*editor.canvas()).drag({{20, y}, {60, y}, {100, y}});
}

/// What a session touches: tools, options, zoom, text, the clipboard and both of its menus.
void work(KORVA_EditCanvas& editor)
{
    constexpr int firstTool = 100;
    constexpr int toolCount = 7;
    for (int tool = 0; tool < toolCount; ++tool) {
        editor.slotSelChangeTool(firstTool + tool);
        drawAt(editor, 30 + 10 * tool);
    }
    support::Gestures(*editor.canvas()).key(Qt::Key_A, "a");
    editor.slotSelZoomRate(3);
    editor.selectAll();
    editor.copy();
    editor.paste();
    editor.undo();
    editor.redo();
    editor.setCanvasSize(120, 100);
    (void)editor.grab();
}

} // namespace

/// The library as a guest in somebody's program.
class tst_Guest : public support::TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void editorsLiveSideBySide_data();
    void editorsLiveSideBySide();
    void aThousandEditorsLeaveNothingBehind();
    void globalsStayAsTheyAre();
    void noKeyIsTakenFromTheProgram();
    void typedLettersRunNoCommand();

private:
    QTemporaryDir m_home;
};

void tst_Guest::initTestCase()
{
    qputenv("HOME", m_home.path().toLocal8Bit());
    for (const char* name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_STATE_HOME"})
        qunsetenv(name);
}

void tst_Guest::editorsLiveSideBySide_data()
{
    QTest::addColumn<int>("count");
    QTest::newRow("two") << 2;
    QTest::newRow("ten") << 10;
}

void tst_Guest::editorsLiveSideBySide()
{
    QFETCH(const int, count);
    constexpr int pencil = 103;
    std::vector<std::unique_ptr<KORVA_EditCanvas>> editors;
    std::vector<int> changes(size_t(count), 0);
    for (int i = 0; i < count; ++i) {
        editors.push_back(std::make_unique<KORVA_EditCanvas>(KORVA_COLOR_16BIT));
        KORVA_EditCanvas& editor = *editors.back();
        editor.slotSelChangeTool(pencil);
        editor.manager()->setLMBColor(QColor::fromHsv(30 * i, 255, 200));
        connect(&editor, &KORVA_EditCanvas::modified, &editor, [&changes, i] { ++changes[size_t(i)]; });
    }
    const QImage empty = editors.front()->pixmap()->toImage();

    // Each draws one more stroke than the one before it; the others see nothing of it.
    std::vector<QImage> pictures(size_t(count), empty);
    for (int i = 0; i < count; ++i) {
        for (int stroke = 0; stroke <= i; ++stroke)
            drawAt(*editors[size_t(i)], 20 + 10 * stroke);
        pictures[size_t(i)] = editors[size_t(i)]->pixmap()->toImage();
        QVERIFY(pictures[size_t(i)] != empty);
        for (int other = 0; other < count; ++other)
            QCOMPARE(editors[size_t(other)]->pixmap()->toImage(), pictures[size_t(other)]);
        QCOMPARE(changes[size_t(i)], i + 1);
        QCOMPARE(pictures[size_t(i)].pixel(60, 20), QColor::fromHsv(30 * i, 255, 200).rgb());
    }

    // One takes its stroke back, one changes its zoom, one goes.
    editors[0]->undo();
    QCOMPARE(editors[0]->pixmap()->toImage(), empty);
    editors[1]->slotSelZoomRate(3);
    editors.erase(editors.begin());
    for (int i = 1; i < count; ++i) {
        KORVA_EditCanvas& editor = *editors[size_t(i - 1)];
        QCOMPARE(editor.pixmap()->toImage(), pictures[size_t(i)]);
        QCOMPARE(editor.canvas()->zoom(), i == 1 ? 200 : 100);
        QCOMPARE(editor.canvas()->undoFlag(), 1);
        QCOMPARE(editor.manager()->currentToolID(), 0);
    }
}

void tst_Guest::aThousandEditorsLeaveNothingBehind()
{
    const auto live = [] {
        KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
        drawAt(editor, 50);
    };
    const auto settle = [] {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    };
    constexpr int all = 1000;
    constexpr int first = 500; // by then the toolkit's caches have nearly what they want
    constexpr int crumbs = 50; // what they still take for each; the smallest object of ours is greater
    size_t before = 0;
    qsizetype widgets = 0;
    for (int i = 0; i < all; ++i) {
        live();
        if (i == first) {
            settle();
            before = bytesInUse();
            widgets = QApplication::allWidgets().size();
        }
    }
    settle();
    QCOMPARE(QApplication::allWidgets().size(), widgets);
    const auto growth = qint64(bytesInUse()) - qint64(before);
    QVERIFY2(growth < crumbs * (all - first), qPrintable(QString("%1 bytes").arg(growth)));
}

void tst_Guest::globalsStayAsTheyAre()
{
    QLineEdit plain; // what the toolkit itself makes when it is first used is none of ours
    plain.show();
    QTest::mouseClick(&plain, Qt::LeftButton);
    QTest::keyClick(&plain, Qt::Key_A);
    const QStringList before = globals();
    const QStringList filesBefore = filesBelow(m_home.path());
    {
        QWidget window;
        KORVA_EditCanvas editor(KORVA_COLOR_16BIT, &window);
        window.show();
        QCOMPARE(globals(), before);
        work(editor);
        QCOMPARE(globals(), before);
    }
    QCOMPARE(globals(), before);
    QCOMPARE(filesBelow(m_home.path()), filesBefore);
}

void tst_Guest::noKeyIsTakenFromTheProgram()
{
    QWidget window;
    const KORVA_EditCanvas editor(KORVA_COLOR_16BIT, &window);
    QCOMPARE(window.findChildren<QShortcut*>().size(), 0);
    for (const QAction* action : window.findChildren<QAction*>())
        QVERIFY2(action->shortcuts().isEmpty(), qPrintable(action->text()));
    for (const QAbstractButton* button : window.findChildren<QAbstractButton*>())
        QVERIFY2(button->shortcut().isEmpty(), qPrintable(button->objectName()));
}

void tst_Guest::typedLettersRunNoCommand()
{
    constexpr int pencil = 103;
    constexpr int text = 104;
    QWidget window;
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT, &window);
    QStringList run;
    for (const char* keys : {"L", "Ctrl+L", "F5", "Backspace"}) {
        auto* command = new QAction(&window);
        command->setShortcut(QKeySequence(keys));
        connect(command, &QAction::triggered, &window, [&run, keys] { run << keys; });
        window.addAction(command);
    }
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    const auto pressAll = [&] {
        run.clear();
        QTest::keyClick(editor.canvas(), Qt::Key_L);
        // With the text that a window system gives it.
        QTest::sendKeyEvent(QTest::Click, editor.canvas(), Qt::Key_L, QString("\f"), Qt::ControlModifier);
        QTest::keyClick(editor.canvas(), Qt::Key_F5);
        QTest::keyClick(editor.canvas(), Qt::Key_Backspace);
        return run;
    };
    editor.slotSelChangeTool(pencil);
    QCOMPARE(pressAll(), QStringList({"L", "Ctrl+L", "F5", "Backspace"}));
    editor.slotSelChangeTool(text);
    QCOMPARE(pressAll(), QStringList({"L", "Ctrl+L", "F5", "Backspace"})); // no text is open yet
    support::Gestures(*editor.canvas()).click({20, 50});
    QCOMPARE(pressAll().join(' '), "Ctrl+L F5");
}

int main(int argc, char** argv)
{
    return support::run<tst_Guest>(argc, argv);
}

#include "tst_Guest.moc"
