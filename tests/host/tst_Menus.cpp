#include "support/Images.h"
#include "support/PadOnScreen.h"
#include "support/PictureFiles.h"
#include "support/TestCase.h"

using support::PadOnScreen;

namespace {

constexpr QSize smallest(240, 320);
constexpr QSize drawingSize(200, 170);
constexpr QPoint menuKey(60, 285);
constexpr QPoint toolButton(18, 14);
constexpr QPoint optionButton(54, 14);
constexpr QPoint zoomBox(137, 14);
constexpr QPoint onDrawing(120, 130);
constexpr QPoint beside(200, 200); // still on it

/// What a tap on a row leads to.
struct Effect
{
    enum Kind { Line, Box, End, FullScreen, FingersPan, Copied } kind;
    QString text; ///< the recording's last line, or what the box says
};

Effect line(const QString& text)
{
    return {Effect::Line, text};
}

Effect box(const QString& title)
{
    return {Effect::Box, title};
}

/// Pixels of a row that stand out from its ground, the colour in the middle of its left edge.
int inkOf(const QImage& screen, const QRect& row)
{
    constexpr int contrast = 80; // of 255
    const int ground = qGray(screen.pixel(row.left() + 2, row.center().y()));
    int ink = 0;
    for (int y = row.top(); y <= row.bottom(); ++y) {
        for (int x = row.left() + 2; x < row.right() - 1; ++x)
            ink += qAbs(qGray(screen.pixel(x, y)) - ground) > contrast;
    }
    return ink;
}

} // namespace

/// Every row of every menu, found on the screenshot and tapped by a finger on the smallest screen.
class tst_Menus : public support::TestCase
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void mainPage();
    void picturePage();
    void picturePageWithFewColors();
    void editPage();
    void toolPage();
    void viewPage();
    void fingersPan();
    void quit();
    void aDoubleTapChoosesNothing_data();
    void aDoubleTapChoosesNothing();
    void keysWorkAfterEveryDialog();
    void toolPopup();
    void optionPopups();
    void zoomList();
    void canvasMenu();
    void pieceMenu();

private:
    enum MainRow { New, Open, Save, SaveAs, Keys, Quit, Picture, Edit, Tool, View, MainRows };

    [[nodiscard]] bool start(const QStringList& arguments = {});
    [[nodiscard]] QString lastLine() const;
    /// What lies over the pad's window.
    [[nodiscard]] QList<QRect> over() const;
    /// The picture that another program finds on the clipboard; null if there is none.
    [[nodiscard]] QImage clipboard() const;
    /// Waits until so many pop-ups are open and the top one has settled.
    [[nodiscard]] bool waitForPopups(int count) const;
    /// Taps a row of the menu on top, which has so many; it must be whole on the screen, and be seen.
    [[nodiscard]] bool tapRow(int row, int rows, const QString& name);
    [[nodiscard]] bool takesEffect(const Effect& effect);
    /// A tap on the Menu key, then on rows: of the main page, and of the page behind it.
    [[nodiscard]] bool fromMenu(MainRow page, int row, int rows, const Effect& effect);
    [[nodiscard]] bool fromMenu(MainRow row, const Effect& effect);
    /// Escape, until nothing lies over the window.
    [[nodiscard]] bool leaveBox();
    /// Lifts a part of the drawing.
    [[nodiscard]] bool select();

    std::unique_ptr<QTemporaryDir> m_home;
    std::unique_ptr<PadOnScreen> m_pad;
    QString m_recording;
};

void tst_Menus::init()
{
    support::TestCase::init();
    m_home = std::make_unique<QTemporaryDir>();
    m_recording = m_home->filePath("menus.rec");
    m_pad = std::make_unique<PadOnScreen>(m_home->path(), smallest);
    QVERIFY(m_pad->server().isReady());
}

void tst_Menus::cleanup()
{
    m_pad.reset();
}

bool tst_Menus::start(const QStringList& arguments)
{
    // With one step the recording begins with the manners.
    return m_pad->start(QStringList{"--undo-steps", "1", "--record", m_recording} + arguments);
}

QString tst_Menus::lastLine() const
{
    QFile file(m_recording);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QStringList lines = QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts);
    lines.removeIf([](const QString& line) { return line.startsWith("place "); }); // where a paste came
    return lines.isEmpty() ? QString() : lines.constLast();
}

QList<QRect> tst_Menus::over() const
{
    QList<QRect> places;
    bool isAbove = false;
    for (const support::XServer::Window& window : m_pad->server().windows()) {
        if (isAbove)
            places.append(window.place);
        isAbove = isAbove || window.title.endsWith(" - Korva");
    }
    return places;
}

QImage tst_Menus::clipboard() const
{
    QProcess reader;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("DISPLAY", m_pad->server().display());
    reader.setProcessEnvironment(environment);
    reader.start("xclip", {"-selection", "clipboard", "-t", "image/png", "-o"});
    return reader.waitForFinished() ? QImage::fromData(reader.readAllStandardOutput(), "PNG") : QImage();
}

bool tst_Menus::waitForPopups(int count) const
{
    if (!m_pad->waitFor([&] { return over().size() == count; })) {
        qInfo("%d pop-ups instead of %d", int(over().size()), count);
        return false;
    }
    return true;
}

bool tst_Menus::tapRow(int row, int rows, const QString& name)
{
    const QRect menu = over().constLast();
    constexpr int inset = 2;
    const int height = (menu.height() - 2 * inset) / rows;
    const QRect place(menu.left(), menu.top() + inset + row * height, menu.width(), height);
    if (!QRect(QPoint(), smallest).contains(place)) {
        qInfo("'%s' is not on the screen", qPrintable(name));
        return false;
    }
    constexpr int fewLetters = 20;
    if (!m_pad->waitFor([&] { return inkOf(m_pad->server().screenshot(), place) > fewLetters; })) {
        qInfo("'%s' cannot be seen", qPrintable(name));
        return false;
    }
    m_pad->server().screenshot().save(
        QString(KORVA_TEST_OUTPUT "/host_tst_Menus-%1-%2.png").arg(QTest::currentTestFunction(), name));
    m_pad->server().moveTo(place.center());
    m_pad->server().press();
    m_pad->server().release();
    return true;
}

bool tst_Menus::takesEffect(const Effect& effect)
{
    switch (effect.kind) {
    case Effect::Box:
        return m_pad->waitForBox(effect.text) && leaveBox();
    case Effect::End:
        return m_pad->process().waitForEnd();
    case Effect::FullScreen:
        return m_pad->waitFor([this] { return m_pad->server().isFullScreenAskedFor(); });
    case Effect::FingersPan:
        return m_pad->waitFor([this] {
            const QString file = m_home->filePath("XDG_CONFIG_HOME/korva/pad.conf");
            return QSettings(file, QSettings::IniFormat).value("fingers/pan").toBool();
        });
    case Effect::Copied:
        return m_pad->waitFor([this] { return clipboard().size() == drawingSize; });
    case Effect::Line:
        break;
    }
    const bool isDone = m_pad->waitFor([&] { return lastLine() == effect.text; });
    if (!isDone)
        qInfo("'%s' instead of '%s'", qPrintable(lastLine()), qPrintable(effect.text));
    return isDone && waitForPopups(0);
}

bool tst_Menus::fromMenu(MainRow page, int row, int rows, const Effect& effect)
{
    m_pad->click(menuKey);
    if (!waitForPopups(1) || !tapRow(page, MainRows, QString("%1").arg(page)) || !waitForPopups(2))
        return false;
    return tapRow(row, rows, QString("%1-%2").arg(page).arg(row)) && takesEffect(effect);
}

bool tst_Menus::fromMenu(MainRow row, const Effect& effect)
{
    m_pad->click(menuKey);
    return waitForPopups(1) && tapRow(row, MainRows, QString("%1").arg(row)) && takesEffect(effect);
}

bool tst_Menus::leaveBox()
{
    m_pad->key("Escape");
    return waitForPopups(0);
}

bool tst_Menus::select()
{
    m_pad->key("p"); // what floats is merged
    m_pad->key("s");
    m_pad->server().moveTo(onDrawing - QPoint(40, 40));
    m_pad->server().press();
    m_pad->server().moveTo(onDrawing);
    m_pad->server().moveTo(onDrawing + QPoint(40, 40));
    m_pad->server().release();
    return m_pad->waitFor([&] { return lastLine() == "release 144 126"; });
}

void tst_Menus::mainPage()
{
    QVERIFY(start());
    QVERIFY(fromMenu(New, box("Canvas Size:")));
    QVERIFY(fromMenu(Open, box("Open picture")));
    QVERIFY(fromMenu(Save, box("Save picture as")));
    QVERIFY(fromMenu(SaveAs, box("Save picture as")));
    QVERIFY(fromMenu(Keys, box("Keys")));
}

void tst_Menus::picturePage()
{
    const QString name = m_pad->pictures() + "/flag.png";
    QVERIFY(support::sheet(drawingSize, Qt::yellow).save(name));
    constexpr int rows = 8;
    QVERIFY(start({name}));
    QVERIFY(fromMenu(Picture, 0, rows, box("New from picture")));
    QVERIFY(fromMenu(Picture, 1, rows, box("Insert stamp")));
    QVERIFY(fromMenu(Picture, 2, rows, line("clear")));
    QVERIFY(m_pad->waitForColor({10, 10}, Qt::white));
    QVERIFY(fromMenu(Picture, 3, rows, box("Save for a message")));
    QVERIFY(fromMenu(Picture, 5, rows, box("Print")));
    QVERIFY(fromMenu(Picture, 6, rows, box("Earlier drawings")));
    QVERIFY(fromMenu(Picture, 7, rows, box("Move flag.png to the trash?")));
}

void tst_Menus::picturePageWithFewColors()
{
    constexpr int rows = 8;
    constexpr int fewColors = 4;
    QVERIFY(start());
    m_pad->click(menuKey);
    QVERIFY(waitForPopups(1) && tapRow(Picture, MainRows, "picture") && waitForPopups(2));
    QVERIFY(tapRow(fewColors, rows, "all colors")); // which can be chosen for a canvas of few only
    QTest::qWait(300);
    QCOMPARE(over().size(), 2);
    m_pad->key("Escape");
    m_pad->key("Escape");
    QVERIFY(waitForPopups(0));

    m_pad->key("n", {"Control_L"});
    QVERIFY(m_pad->waitForBox("Canvas Size:"));
    m_pad->key("Return");
    QVERIFY(m_pad->waitForBox("How many colors?"));
    m_pad->key("Tab");
    m_pad->key("Return"); // 256 of them
    QVERIFY(waitForPopups(0));
    QVERIFY(fromMenu(Picture, fewColors, rows, box("Save in few colors")));
}

void tst_Menus::editPage()
{
    constexpr int rows = 8;
    const auto edit = [this](int row, const char* word) { return fromMenu(Edit, row, rows, line(word)); };
    QVERIFY(start());
    QVERIFY(m_pad->stroke({10, 10}, {100, 10}));
    QVERIFY(edit(0, "undo"));
    QVERIFY(m_pad->waitForColor({100, 10}, Qt::white));
    QVERIFY(edit(1, "redo"));
    QVERIFY(m_pad->waitForColor({100, 10}, Qt::red));
    QVERIFY(edit(6, "selectall"));
    QVERIFY(edit(3, "copy"));
    QVERIFY(edit(5, "delete"));
    QVERIFY(m_pad->waitForColor({100, 10}, Qt::white));
    QVERIFY(edit(4, "paste"));
    QVERIFY(m_pad->waitForColor({100, 10}, Qt::red));
    QVERIFY(edit(6, "selectall"));
    QVERIFY(edit(2, "cut"));
    QVERIFY(m_pad->waitForColor({100, 10}, Qt::white));
    QVERIFY(select());
    QVERIFY(edit(3, "copy"));
    QVERIFY(clipboard().size() != drawingSize);
    QVERIFY(fromMenu(Edit, 7, rows, {Effect::Copied, {}}));
}

void tst_Menus::toolPage()
{
    constexpr const char* tools[] = {"pencil", "line", "rectangle", "ellipse",
                                     "eraser", "text", "select",    "hand"};
    constexpr int rows = std::size(tools) + 1;
    QVERIFY(start());
    int row = 0;
    for (const char* tool : tools)
        QVERIFY(fromMenu(Tool, row++, rows, line(QString("tool %1").arg(tool))));
    QVERIFY(fromMenu(Tool, row, rows, box("Colors")));
}

void tst_Menus::viewPage()
{
    constexpr const char* zooms[] = {"150", "100", "100", "fit"};
    constexpr int rows = std::size(zooms) + 2;
    QVERIFY(start());
    int row = 0;
    for (const char* zoom : zooms)
        QVERIFY(fromMenu(View, row++, rows, line(QString("zoom %1").arg(zoom))));
    QVERIFY(fromMenu(View, row, rows, {Effect::FullScreen, {}}));
}

void tst_Menus::fingersPan()
{
    QVERIFY(m_pad->start({}));
    QVERIFY(fromMenu(View, 5, 6, {Effect::FingersPan, {}}));
}

void tst_Menus::quit()
{
    QVERIFY(start());
    QVERIFY(fromMenu(Quit, {Effect::End, {}}));
    QCOMPARE(m_pad->process().exitCode(), 0);
}

void tst_Menus::aDoubleTapChoosesNothing_data()
{
    QTest::addColumn<QPoint>("key");
    QTest::newRow("menu") << menuKey;
    QTest::newRow("menu's lower edge") << menuKey + QPoint(0, 15);
    QTest::newRow("tools") << toolButton;
    QTest::newRow("options") << optionButton;
    QTest::newRow("zoom") << zoomBox;
}

void tst_Menus::aDoubleTapChoosesNothing()
{
    QFETCH(const QPoint, key);
    QVERIFY(start());
    m_pad->click(key);
    m_pad->click(key);
    QTest::qWait(QApplication::doubleClickInterval());
    QVERIFY2(m_pad->process().isRunning(), qPrintable(m_pad->process().errors()));
    QVERIFY(over().size() <= 1);                                    // open, or closed again
    QVERIFY(QStringList({"", "korva-pad"}).contains(m_pad->box())); // which a pop-up is called
    QCOMPARE(lastLine(), QString("manners modern"));                // its own first word
}

void tst_Menus::keysWorkAfterEveryDialog()
{
    constexpr int settled = 200; // ms; until the keyboard has come
    QVERIFY(start());
    QTest::qWait(settled);
    // Without a window manager, and with the pointer where it is.
    m_pad->server().moveTo(onDrawing);
    for (int i = 0; i < 2; ++i) {
        for (const auto& [name, title] : {std::pair("F1", "Keys"), std::pair("c", "Colors")}) {
            m_pad->server().key(name);
            QVERIFY(m_pad->waitForBox(title));
            QTest::qWait(settled);
            m_pad->server().key("Escape");
            QVERIFY(m_pad->waitForNoBox());
            QTest::qWait(settled);
        }
    }
}

void tst_Menus::toolPopup()
{
    constexpr const char* tools[] = {"select",    "eraser",  "line", "pencil", "text",
                                     "rectangle", "ellipse", "fill", "picker"};
    QVERIFY(start());
    int row = 0;
    for (const char* tool : tools) {
        m_pad->click(toolButton);
        QVERIFY(waitForPopups(1));
        QVERIFY(tapRow(row++, std::size(tools), tool));
        QVERIFY(takesEffect(line(QString("tool %1").arg(tool))));
    }
}

void tst_Menus::optionPopups()
{
    constexpr struct
    {
        const char* key;
        int options;
        int others = 0;
    } tools[] = {{"p", 3}, {"l", 3}, {"t", 6, 1}, {"r", 4}, {"o", 4}, {"e", 5}};
    QVERIFY(start());
    for (const auto& tool : tools) {
        m_pad->key(tool.key);
        for (int option = 0; option < tool.options; ++option) {
            m_pad->click(optionButton);
            QVERIFY(waitForPopups(1));
            QVERIFY(tapRow(option, tool.options + tool.others, QString("%1-%2").arg(tool.key).arg(option)));
            QVERIFY(takesEffect(line(QString("option %1").arg(option))));
        }
        for (const char* bold : {"on", "off"}) {
            if (tool.others == 0)
                continue;
            m_pad->click(optionButton);
            QVERIFY(waitForPopups(1));
            QVERIFY(tapRow(tool.options, tool.options + 1, QString("bold-%1").arg(bold)));
            QVERIFY(takesEffect(line(QString("bold %1").arg(bold))));
        }
    }
    m_pad->key("s");
    int row = 0;
    for (const char* tool : {"select", "hand"}) {
        m_pad->click(optionButton);
        QVERIFY(waitForPopups(1));
        QVERIFY(tapRow(row++, 2, tool));
        QVERIFY(takesEffect(line(QString("tool %1").arg(tool))));
    }
}

void tst_Menus::zoomList()
{
    constexpr const char* zooms[] = {"50", "100", "150", "200", "400", "800", "fit"};
    QVERIFY(start());
    int row = 0;
    for (const char* zoom : zooms) {
        m_pad->click(zoomBox);
        QVERIFY(waitForPopups(1));
        QTest::qWait(QApplication::doubleClickInterval()); // the first row lies where the tap was
        QVERIFY(tapRow(row++, std::size(zooms), zoom));
        QVERIFY(takesEffect(line(QString("zoom %1").arg(zoom))));
    }
}

void tst_Menus::canvasMenu()
{
    constexpr int rows = 3;
    QVERIFY(start());
    int row = 0;
    for (const char* word : {"cut", "copy", "paste"}) {
        QVERIFY(select());
        m_pad->server().click(beside, 3);
        QVERIFY(waitForPopups(1));
        QVERIFY(tapRow(row++, rows, word));
        QVERIFY(takesEffect(line(word)));
    }
}

void tst_Menus::pieceMenu()
{
    constexpr int rows = 10;
    constexpr struct
    {
        int row;
        const char* word;
    } choices[] = {{0, "copy"},       {1, "cut"},          {3, "piece turn-left"}, {4, "piece turn-right"},
                   {5, "piece flip"}, {6, "piece double"}, {7, "piece halve"},     {8, "piece clear-white"},
                   {9, "delete"},     {2, "paste"}};
    QVERIFY(start());
    for (const auto& [row, word] : choices) {
        if (!lastLine().startsWith("piece")) // else it still floats there
            QVERIFY(select());
        m_pad->server().click(onDrawing, 3);
        QVERIFY(waitForPopups(1));
        QVERIFY(tapRow(row, rows, word));
        QVERIFY(takesEffect(line(word)));
    }
}

int main(int argc, char** argv)
{
    return support::run<tst_Menus>(argc, argv);
}

#include "tst_Menus.moc"
