#include "KORVA_Canvas.h"
#include "KORVA_ChooseCanvasDlg.h"
#include "KORVA_EditCanvas.h"
#include "KORVA_MainView.h"
#include "KORVA_Manager.h"
#include "KORVA_Text.h"
#include "KORVA_Tool.h"
#include "UTIL_ListBox.h"
#include "support/Images.h"
#include "support/Modal.h"
#include "support/TestCase.h"
#include "support/XServer.h"

using support::XServer;

namespace {

enum Way { ByPointer, ByKeyboard };

// Where a person finds the controls, in the editor.
constexpr QPoint toolButton(18, 14);
constexpr QPoint optionButton(54, 14);
constexpr QPoint zoomBox(137, 14);
constexpr QPoint colorButton(215, 14);

/// A row of the tool pop-up.
struct ToolRow
{
    const char* name;
    int tool;
    int options;
};

constexpr ToolRow tools[] = {
    {"select", 1, 2}, {"eraser", 6, 3},    {"line", 2, 3},    {"pencil", 0, 3},
    {"text", 3, 3},   {"rectangle", 4, 2}, {"ellipse", 5, 2},
};
constexpr int pencilRow = 3;
constexpr int handTool = 7;

constexpr int tapInterval = 30; // ms; a tap on the zoom box and one on its list are no double click
constexpr int zooms[] = {50, 100, 150, 200, 109};

/// Does `work` once a pop-up is open: a button's menu runs an event loop of its own.
void whenPopupOpens(const std::function<void(QWidget&)>& work)
{
    auto* timer = new QTimer(qApp);
    timer->callOnTimeout(timer, [timer, work] {
        if (QWidget* popup = QApplication::activePopupWidget()) {
            timer->stop();
            timer->deleteLater();
            work(*popup);
        }
    });
    timer->start(1);
}

QString described(const QRect& rect)
{
    QString text;
    QDebug(&text) << rect;
    return text;
}

void addWays(const char* name, const std::function<void(QTestData&)>& add)
{
    add(QTest::addRow("%s by pointer", name) << int(ByPointer));
    add(QTest::addRow("%s by keyboard", name) << int(ByKeyboard));
}

} // namespace

/// The editor in a real window of a real X server, worked by pointer and by keyboard alone.
class tst_EditorWindow : public support::TestCase
{
    Q_OBJECT

public:
    explicit tst_EditorWindow(XServer& server) : m_x(server) {}

private slots:
    void init();
    void cleanup() { m_window.reset(); }

    void tabOrder();
    void everyTool_data();
    void everyTool();
    void everyOption_data();
    void everyOption();
    void everyZoom_data();
    void everyZoom();
    void arrowsOnTheZoomBox();
    void popupsAreLeft_data();
    void popupsAreLeft();
    void returnOpensWhatSpaceOpens_data();
    void returnOpensWhatSpaceOpens();
    void colorPicker_data();
    void colorPicker();
    void canvasSize_data();
    void canvasSize();
    void aStrokeAfterKeys();
    void keyboardComesBackToTheText_data();
    void keyboardComesBackToTheText();

private:
    [[nodiscard]] KORVA_EditCanvas& editor() const { return *m_editor; }
    [[nodiscard]] int currentTool() const { return m_editor->manager()->currentToolID(); }
    [[nodiscard]] QWidget* control(const char* name) const { return m_editor->findChild<QWidget*>(name); }
    [[nodiscard]] bool staysInWindow(const QWidget& popup) const
    {
        return m_window->geometry().contains(popup.geometry());
    }
    void click(QPoint inEditor) { m_x.click(m_editor->mapToGlobal(inEditor)); }
    void press(const char* key, int times = 1)
    {
        for (; times > 0; --times)
            m_x.key(key);
    }
    void tabTo(const char* name);
    void open(QPoint inEditor, const char* name, Way way, const char* key = "space");
    void openAndWork(QPoint inEditor, const char* name, Way way, const std::function<void(QWidget&)>& work,
                     const char* key = "space");
    void pick(QPoint inEditor, const char* name, Way way, int row);
    void pickTool(int row, Way way) { pick(toolButton, "toolButton", way, row); }

    XServer& m_x;
    std::unique_ptr<QWidget> m_window;
    KORVA_EditCanvas* m_editor = nullptr;
};

void tst_EditorWindow::init()
{
    support::TestCase::init();
    m_window = std::make_unique<QWidget>();
    m_window->setFixedSize(240, 320);
    m_window->move(100, 50);
    m_editor = new KORVA_EditCanvas(KORVA_COLOR_16BIT, m_window.get());
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    QTRY_COMPARE(QApplication::focusWidget(), m_editor->canvas());
}

// --- A person's gestures

void tst_EditorWindow::tabTo(const char* name)
{
    constexpr int most = 8;
    for (int i = 0; i < most && QApplication::focusWidget() != control(name); ++i) {
        const QWidget* before = QApplication::focusWidget();
        press("Tab");
        QTRY_VERIFY(QApplication::focusWidget() != before);
    }
    QCOMPARE(QApplication::focusWidget(), control(name));
}

void tst_EditorWindow::open(QPoint inEditor, const char* name, Way way, const char* key)
{
    if (way == ByPointer) {
        click(inEditor);
    } else {
        tabTo(name);
        press(key);
    }
}

void tst_EditorWindow::openAndWork(QPoint inEditor, const char* name, Way way,
                                   const std::function<void(QWidget&)>& work, const char* key)
{
    bool done = false;
    whenPopupOpens([&](QWidget& popup) {
        QTRY_VERIFY2(staysInWindow(popup), qPrintable(described(popup.geometry())));
        work(popup);
        const bool left = QTest::qWaitFor([] { return !QApplication::activePopupWidget(); });
        if (!left)
            popup.close(); // or its event loop never ends
        QVERIFY(left);
        done = true;
    });
    open(inEditor, name, way, key);
    QTRY_VERIFY(done);
}

void tst_EditorWindow::pick(QPoint inEditor, const char* name, Way way, int row)
{
    openAndWork(inEditor, name, way, [&](QWidget& popup) {
        auto* menu = qobject_cast<QMenu*>(&popup);
        QVERIFY(menu && menu->parentWidget() == control(name));
        QAction* entry = menu->actions().value(row);
        QVERIFY(entry);
        if (way == ByPointer) {
            m_x.click(menu->mapToGlobal(menu->actionGeometry(entry).center()));
            return;
        }
        for (int i = 0; menu->activeAction() != entry && i <= menu->actions().size(); ++i) {
            const QAction* before = menu->activeAction();
            press("Down");
            QTRY_VERIFY(menu->activeAction() != before);
        }
        press("Return");
    });
}

// --- The tests

void tst_EditorWindow::tabOrder()
{
    const QList<QWidget*> order{control("toolButton"), control("optionButton"), control("zoomBox"),
                                control("colorButton"), editor().canvas()};
    for (QWidget* next : order) {
        press("Tab");
        QTRY_COMPARE(QApplication::focusWidget(), next);
    }
    for (int i = int(order.size()) - 2; i >= 0; --i) {
        m_x.key("Tab", {"Shift_L"});
        QTRY_COMPARE(QApplication::focusWidget(), order[i]);
    }
}

void tst_EditorWindow::everyTool_data()
{
    QTest::addColumn<int>("way");
    QTest::addColumn<int>("row");
    for (int row = 0; row < int(std::size(tools)); ++row)
        addWays(tools[row].name, [row](QTestData& data) { data << row; });
}

void tst_EditorWindow::everyTool()
{
    QFETCH(const int, way);
    QFETCH(const int, row);
    pickTool(row == pencilRow ? 0 : pencilRow, ByPointer);
    QVERIFY(currentTool() != tools[row].tool);
    pickTool(row, Way(way));
    QTRY_COMPARE(currentTool(), tools[row].tool);
}

void tst_EditorWindow::everyOption_data()
{
    QTest::addColumn<int>("way");
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("option");
    for (int row = 0; row < int(std::size(tools)); ++row) {
        for (int option = 0; option < tools[row].options; ++option) {
            const QByteArray name = QByteArray(tools[row].name) + ' ' + QByteArray::number(option);
            addWays(name, [&](QTestData& data) { data << row << option; });
        }
    }
}

void tst_EditorWindow::everyOption()
{
    QFETCH(const int, way);
    QFETCH(const int, row);
    QFETCH(const int, option);
    pickTool(row, ByPointer);
    QMenu* menu = qobject_cast<QPushButton*>(control("optionButton"))->menu();
    QCOMPARE(menu->actions().size(), tools[row].options);
    const QAction* picked = nullptr;
    connect(menu, &QMenu::triggered, this, [&picked](const QAction* action) { picked = action; });
    const QAction* entry = menu->actions()[option];
    pick(optionButton, "optionButton", Way(way), option);
    QTRY_COMPARE(picked, entry);

    const KORVA_Tool* tool = editor().manager()->currentTool();
    switch (tools[row].tool) {
    case 1:
        QCOMPARE(currentTool(), option == 0 ? 1 : handTool);
        break;
    case 4:
    case 5:
        QCOMPARE(tool->leftBrush().style(), option == 0 ? Qt::NoBrush : Qt::SolidPattern);
        break;
    default:
        QCOMPARE(tool->leftPen().width(), 1 + 2 * option);
    }
}

void tst_EditorWindow::everyZoom_data()
{
    QTest::addColumn<int>("way");
    QTest::addColumn<int>("row");
    for (int row = 0; row < int(std::size(zooms)); ++row)
        addWays(QByteArray::number(zooms[row]), [row](QTestData& data) { data << row; });
}

void tst_EditorWindow::everyZoom()
{
    QFETCH(const int, way);
    QFETCH(const int, row);
    auto* box = qobject_cast<QComboBox*>(control("zoomBox"));
    editor().setZoom(77);
    openAndWork(zoomBox, "zoomBox", Way(way), [&](QWidget&) {
        QAbstractItemView* list = box->view();
        if (way == ByPointer) {
            QTest::qWait(tapInterval);
            const QRect entry = list->visualRect(box->model()->index(row, 0));
            m_x.click(list->viewport()->mapToGlobal(entry.center()));
            return;
        }
        const int from = list->currentIndex().row();
        press(row > from ? "Down" : "Up", qAbs(row - from));
        QTRY_COMPARE(list->currentIndex().row(), row);
        press("Return");
    });
    QTRY_COMPARE(editor().canvas()->zoom(), zooms[row]);
    QCOMPARE(box->currentIndex(), row);
}

void tst_EditorWindow::arrowsOnTheZoomBox()
{
    tabTo("zoomBox");
    press("Down");
    QTRY_COMPARE(editor().canvas()->zoom(), 150);
    press("Up", 2);
    QTRY_COMPARE(editor().canvas()->zoom(), 50);
}

void tst_EditorWindow::popupsAreLeft_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("tools") << QByteArray("toolButton");
    QTest::newRow("options") << QByteArray("optionButton");
    QTest::newRow("zoom") << QByteArray("zoomBox");
}

void tst_EditorWindow::popupsAreLeft()
{
    QFETCH(const QByteArray, name);
    openAndWork({}, name, ByKeyboard, [&](QWidget&) {
        press("Down");
        press("Escape");
    });
    QCOMPARE(currentTool(), 0);
    QCOMPARE(editor().manager()->currentTool()->leftPen().width(), 1);
    QCOMPARE(editor().canvas()->zoom(), 100);
    QTRY_COMPARE(QApplication::focusWidget(), control(name));
}

void tst_EditorWindow::returnOpensWhatSpaceOpens_data()
{
    popupsAreLeft_data();
}

void tst_EditorWindow::returnOpensWhatSpaceOpens()
{
    QFETCH(const QByteArray, name);
    openAndWork(
        {}, name, ByKeyboard, [&](QWidget&) { press("Escape"); }, "Return");
}

void tst_EditorWindow::colorPicker_data()
{
    QTest::addColumn<int>("way");
    QTest::addColumn<bool>("accept");
    QTest::addColumn<QColor>("expected");
    addWays("OK", [](QTestData& data) { data << true << QColor(255, 0, 255); });
    addWays("Cancel", [](QTestData& data) { data << false << QColor(255, 0, 0); });
}

void tst_EditorWindow::colorPicker()
{
    QFETCH(const int, way);
    QFETCH(const bool, accept);
    QFETCH(const QColor, expected);
    bool closed = false;
    support::whenOpen([&](QDialog& picker) {
        QTRY_VERIFY(picker.isAncestorOf(QApplication::focusWidget()));
        QVERIFY(staysInWindow(picker));
        QList<QAbstractSlider*> sliders = picker.findChildren<QAbstractSlider*>();
        std::sort(sliders.begin(), sliders.end(), [](auto* a, auto* b) { return a->y() < b->y(); });
        QAbstractSlider* blue = sliders.constLast();
        if (way == ByPointer) {
            m_x.click(blue->mapToGlobal(QPoint(blue->width() - 1, blue->height() / 2)));
        } else {
            press("Tab", 2); // from red over green
            QTRY_COMPARE(QApplication::focusWidget(), blue);
            press("End");
            press("Left");
            press("Right");
        }
        QTRY_COMPARE(blue->value(), 255);
        const QAbstractButton* key = support::button(picker, accept ? "OK" : "Cancel");
        if (way == ByPointer)
            m_x.click(key->mapToGlobal(key->rect().center()));
        else
            press(accept ? "Return" : "Escape");
        closed = true;
    });
    open(colorButton, "colorButton", Way(way));
    QTRY_VERIFY(closed);
    QTRY_VERIFY(!QApplication::activeModalWidget());
    QTRY_COMPARE(editor().color(), expected);
    QCOMPARE(editor().manager()->currentTool()->leftPen().color(), expected);
}

void tst_EditorWindow::canvasSize_data()
{
    QTest::addColumn<int>("way");
    QTest::addColumn<int>("row");
    QTest::addColumn<bool>("accept");
    static constexpr const char* names[] = {"32 X 40", "64 X 80", "120 X 160", "200 X 170", "240 X 320"};
    for (int row = 0; row < int(std::size(names)); ++row)
        addWays(names[row], [row](QTestData& data) { data << row << true; });
    addWays("none", [](QTestData& data) { data << 1 << false; });
}

void tst_EditorWindow::canvasSize()
{
    QFETCH(const int, way);
    QFETCH(const int, row);
    QFETCH(const bool, accept);
    constexpr int before = 3;
    KORVA_ChooseCanvasDlg dialog(m_window.get(), before);
    dialog.show();
    auto* list = dialog.findChild<UTIL_ListBox*>();
    QTRY_COMPARE(QApplication::focusWidget(), list);
    QVERIFY(staysInWindow(dialog));
    if (way == ByPointer) {
        m_x.click(list->viewport()->mapToGlobal(list->visualItemRect(list->item(row)).center()));
    } else {
        press(row > before ? "Down" : "Up", qAbs(row - before));
    }
    QTRY_COMPARE(list->item(row)->checkState(), Qt::Checked);
    const QAbstractButton* key = support::button(dialog, accept ? "OK" : "Cancel");
    if (way == ByPointer)
        m_x.click(key->mapToGlobal(key->rect().center()));
    else
        press(accept ? "Return" : "Escape");
    QTRY_VERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), accept ? QDialog::Accepted : QDialog::Rejected);
    QCOMPARE(dialog.getIndex(), accept ? row : before);
}

void tst_EditorWindow::aStrokeAfterKeys()
{
    pickTool(5, ByKeyboard);
    const QPoint at = editor().canvas()->mapToGlobal(QPoint(30, 20));
    m_x.moveTo(at);
    m_x.press();
    m_x.moveTo(at + QPoint(40, 30));
    m_x.release();
    QTRY_VERIFY(editor().isModified());
    QCOMPARE(support::inkBounds(editor().pixmap()->toImage()), QRect(30, 20, 40, 30));
    QTRY_COMPARE(m_x.screenshot().pixelColor(at), QColor(Qt::red)); // and a person sees it
    QCOMPARE(QApplication::focusWidget(), editor().canvas());
}

void tst_EditorWindow::keyboardComesBackToTheText_data()
{
    using Use = std::function<void(tst_EditorWindow&)>;
    QTest::addColumn<Use>("use");
    QTest::newRow("an option") << Use(
        [](tst_EditorWindow& test) { test.pick(optionButton, "optionButton", ByPointer, 2); });
    QTest::newRow("options that are closed") << Use([](tst_EditorWindow& test) {
        test.openAndWork(optionButton, "optionButton", ByPointer, [&](QWidget&) { test.press("Escape"); });
    });
    QTest::newRow("the same tool") << Use([](tst_EditorWindow& test) { test.pickTool(4, ByPointer); });
    QTest::newRow("a zoom") << Use([](tst_EditorWindow& test) {
        test.openAndWork(zoomBox, "zoomBox", ByPointer, [&](QWidget&) {
            QTest::qWait(tapInterval);
            const auto* box = qobject_cast<QComboBox*>(test.control("zoomBox"));
            const QRect entry = box->view()->visualRect(box->model()->index(1, 0));
            test.m_x.click(box->view()->viewport()->mapToGlobal(entry.center()));
        });
    });
    QTest::newRow("a color") << Use([](tst_EditorWindow& test) {
        bool closed = false;
        support::whenOpen([&](QDialog& picker) {
            QTRY_VERIFY(picker.isAncestorOf(QApplication::focusWidget()));
            test.press("Escape");
            closed = QTest::qWaitFor([&picker] { return !picker.isVisible(); });
        });
        test.click(colorButton);
        QTRY_VERIFY(closed);
    });
}

/// What has been typed goes on, without a tap that would end it.
void tst_EditorWindow::keyboardComesBackToTheText()
{
    QFETCH(const std::function<void(tst_EditorWindow&)>, use);
    pickTool(4, ByPointer);
    QVERIFY(editor().currentText());
    use(*this);
    QVERIFY(m_window->focusWidget() != editor().canvas()); // without a text the control keeps it
    m_x.click(editor().canvas()->mapToGlobal(QPoint(30, 60)));
    QTRY_VERIFY(editor().currentText()->takesText());
    use(*this);
    QTRY_COMPARE(m_window->focusWidget(), editor().canvas());
    m_window->activateWindow(); // there is no window manager to do so after a dialog
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    QVERIFY(editor().currentText()->takesText());
    const QImage before = editor().snapshot();
    press("a");
    QTRY_VERIFY(editor().snapshot() != before);
}

int main(int argc, char** argv)
{
    XServer server;
    if (!server.isReady())
        qFatal("Xvfb with the XTEST extension is needed");
    qputenv("DISPLAY", server.display().toLatin1());
    qputenv("QT_QPA_PLATFORM", "xcb");
    QApplication app(argc, argv);
    QApplication::setDoubleClickInterval(tapInterval);
    tst_EditorWindow test(server);
    return QTest::qExec(&test, argc, argv);
}

#include "tst_EditorWindow.moc"
