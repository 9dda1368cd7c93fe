#include "support/PadOnScreen.h"
#include "support/ScreenReader.h"
#include "support/TestCase.h"

using support::PadOnScreen;
using support::ScreenReader;
using Node = support::ScreenReader::Node;

namespace {

/// The cells of the first table in a document that is headed like this.
QList<QStringList> table(const QString& document, const QString& heading)
{
    QFile file(QStringLiteral(KORVA_SOURCE_DIR "/") + document);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QList<QStringList> rows;
    bool isInside = false;
    for (const QString& line : QString::fromUtf8(file.readAll()).split('\n')) {
        if (line == heading)
            isInside = true;
        else if (isInside && line.isEmpty())
            break;
        else if (isInside && !line.startsWith("|---"))
            rows << line.sliced(2).chopped(2).split(" | ");
    }
    return rows;
}

bool isNameless(const Node& node)
{
    return node.name.isEmpty() || node.role.isEmpty() || node.role == "unknown" || node.role == "invalid";
}

QString report(const QList<Node>& nodes)
{
    QStringList lines;
    for (const Node& node : nodes)
        lines << node.path;
    return lines.join('\n');
}

QStringList namesOf(const QList<Node>& nodes)
{
    QStringList names;
    for (const Node& node : nodes)
        names << node.name;
    return names;
}

bool isItem(const Node& node)
{
    return node.role.endsWith("item");
}

} // namespace

/// What is heard of the pad: on a bus of its own, from a program of its own, on a screen of its own.
class tst_ScreenReader : public support::TestCase
{
    Q_OBJECT

private slots:
    void init();
    void everythingHasANameAndARole_data();
    void everythingHasANameAndARole();
    void whatIsChosenIsTold();
    void messagesAreTold();
    void aDrawingInWords();
    void whatStandsBesideTheEditor();

private:
    [[nodiscard]] Node pad() const { return m_reader.program("korva-pad"); }
    [[nodiscard]] Node canvas() const { return pad().find("canvas", "Drawing"); }
    [[nodiscard]] bool waitFor(const std::function<bool()>& condition) const
    {
        return m_screen.waitFor(condition);
    }
    /// A key as a person names it: "Ctrl+Shift+Left".
    void press(const QString& name);

    ScreenReader m_reader;
    QTemporaryDir m_home;
    PadOnScreen m_screen{m_home.path()};
};

void tst_ScreenReader::init()
{
    TestCase::init();
    QVERIFY(m_reader.isReady());
    QVERIFY(m_screen.start({"--no-recovery"}));
    QVERIFY(waitFor([this] { return canvas().isFocused(); }));
}

void tst_ScreenReader::press(const QString& name)
{
    static const QHash<QString, const char*> names{{"Ctrl", "Control_L"}, {"Shift", "Shift_L"},
                                                   {"+", "plus"},         {"-", "minus"},
                                                   {"]", "bracketright"}, {"Space", "space"}};
    QStringList parts = name.endsWith("++") ? QStringList{name.chopped(2), "+"} : name.split('+');
    const QString last = parts.takeLast();
    const QByteArray key = names.contains(last) ? QByteArray(names[last])
                           : last.size() == 1   ? last.toLower().toLatin1()
                                                : last.toLatin1();
    if (parts.isEmpty())
        m_screen.key(key);
    else
        m_screen.key(key, {names[parts.constFirst()]});
}

void tst_ScreenReader::everythingHasANameAndARole_data()
{
    QTest::addColumn<QStringList>("keys");
    QTest::addColumn<QString>("role"); // of what they open
    QTest::addColumn<QString>("name");
    const auto row = [](const char* name, const QStringList& keys, const char* role, const char* opened) {
        QTest::newRow(name) << keys << role << opened;
    };
    row("window", {}, "frame", "Drawing - Korva");
    row("menu", {"F10"}, "popup menu", "Menu");
    row("keys", {"F1"}, "dialog", "Keys");
    row("color", {"C"}, "dialog", "Colors");
    row("canvas size", {"Ctrl+N"}, "dialog", "Canvas Size:");
    row("message", {"Ctrl+M"}, "dialog", "Save for a message");
    row("open", {"Ctrl+O"}, "dialog", "Open picture");
    row("save", {"Ctrl+S"}, "dialog", "Save picture as");
    row("question", {"Space", "Ctrl+O"}, "alert message", "Save changes to drawing before opening?");
    row("large picture", {"Ctrl++", "Ctrl++"}, "scroll bar", "Scroll sideways");
    row("floating piece", {"Ctrl+A"}, "graphic", "Floating piece");
}

void tst_ScreenReader::everythingHasANameAndARole()
{
    QFETCH(const QStringList, keys);
    QFETCH(const QString, role);
    QFETCH(const QString, name);
    for (const QString& key : keys) {
        const QString before = canvas().description;
        press(key);
        if (key != keys.constLast()) // a shortcut overtakes the keys before it
            QVERIFY(waitFor([&] { return canvas().description != before; }));
    }
    Node found;
    const bool isThere = waitFor([&] {
        found = pad();
        return found.find(role, name).isShowing();
    });
    QVERIFY2(isThere, qPrintable(report(found.children)));
    QVERIFY(found.all(isItem).size() > 50); // menus and all
    QCOMPARE(report(found.all(isNameless)), "");
}

void tst_ScreenReader::whatIsChosenIsTold()
{
    const auto told = [this] {
        const Node program = pad();
        const auto described = [&](const char* role, const char* name) {
            return program.find(role, name).description;
        };
        const auto checked = [](const Node& node) {
            return namesOf(node.all([](const Node& each) { return each.isChecked(); })).join(' ');
        };
        QStringList status;
        for (const Node& field : program.find("status bar", "Status").children)
            status << field.name;
        return QStringList{described("button menu", "Tool"),
                           checked(program.find("button menu", "Tool")),
                           described("button menu", "Tool option"),
                           checked(program.find("button menu", "Tool option")),
                           described("combo box", "Zoom"),
                           checked(program.find("combo box", "Zoom")),
                           described("push button", "Color"),
                           checked(program.find("popup menu", "Menu")),
                           status.join(", ")}
            .join(" | ");
    };
    QCOMPARE(told(), "Pencil | Pencil | Small | Small | 100% | 100% | #ff0000, red | Pencil Real size | "
                     "Tool: Pencil, Picture size: 200 × 170, Zoom: 100 %, Position");
    for (const char* key : {"L", "2", "Ctrl+-", "Shift+Left"})
        press(key);
    const QString expected = "Line | Line | Medium | Medium | 50% | 50% | #ff0000, red | Line | "
                             "Tool: Line, Picture size: 200 × 170, Zoom: 50 %, Position: 88, 84";
    QString last; // the status line changes while it is read, field by field
    (void)waitFor([&] { return (last = told()) == expected; });
    QCOMPARE(last, expected);
}

void tst_ScreenReader::messagesAreTold()
{
    press("Space"); // a dot
    QVERIFY(waitFor([this] { return canvas().description.endsWith("84"); }));
    press("Ctrl+N");
    constexpr auto question = "Save changes to drawing before creating?";
    QVERIFY(waitFor([&] { return pad().find("alert message", question).isShowing(); }));
    press("Escape");
    QVERIFY(waitFor([&] { return !pad().find("alert message", question).isShowing(); }));

    press("Ctrl+S");
    QVERIFY(waitFor([this] { return pad().find("dialog", "Save picture as").isShowing(); }));
    (void)m_reader.takeFocus();
    press("Return");
    QStringList heard;
    QVERIFY2(waitFor([&] {
                 heard += m_reader.takeFocus();
                 return heard.contains("Saved Successfully");
             }),
             qPrintable(heard.join(", ")));
    QVERIFY(waitFor([&] {
        heard += m_reader.takeFocus();
        return heard.constLast() == "Drawing"; // back where it was
    }));
}

void tst_ScreenReader::aDrawingInWords()
{
    const QList<QStringList> rows = table("docs/accessibility.md", "| key | the drawing's description |");
    QVERIFY(rows.size() >= 15);
    QString before = canvas().description;
    for (const QStringList& row : rows) {
        (void)m_reader.takeNews();
        press(row[0]);
        QString description;
        (void)waitFor([&] { return (description = canvas().description) == row[1]; });
        QCOMPARE(row[0] + " | " + description, row[0] + " | " + row[1]);
        QStringList news;
        if (description != before)
            QVERIFY2(waitFor([&] { return (news += m_reader.takeNews()).contains(description); }),
                     qPrintable(description));
        QTest::qWait(150);
        news += m_reader.takeNews();
        if (description == before)
            QVERIFY(!news.contains(description));
        before = description;
    }
}

void tst_ScreenReader::whatStandsBesideTheEditor()
{
    m_screen.process().kill();
    QSettings(m_home.filePath("XDG_CONFIG_HOME/korva/pad.conf"), QSettings::IniFormat)
        .setValue("window-800x600/size", QSize(700, 500));
    QVERIFY(m_screen.start({"--no-recovery"}));
    QVERIFY(waitFor([this] { return pad().find("panel", "Tool").isShowing(); }));
    const auto said = [this](const char* group) {
        QStringList names;
        for (const Node& key : pad().find("panel", group).children)
            names << key.role + ' ' + key.name + (key.isChecked() ? " (checked)" : "");
        return names.join(", ");
    };
    QCOMPARE(said("Tool"), "radio button Select, radio button Eraser, radio button Line, "
                           "radio button Pencil (checked), radio button Text, radio button Rectangle, "
                           "radio button Ellipse, radio button Fill, radio button Pick color");
    QCOMPARE(said("Tool option"), "radio button Small (checked), radio button Medium, radio button Large");
    QVERIFY(said("Color").contains("radio button #ff0000, red (checked), radio button #ff8000, orange"));
    QCOMPARE(report(pad().all(isNameless)), "");
}

int main(int argc, char** argv)
{
    support::XServer::allowThreads();
    return support::run<tst_ScreenReader>(argc, argv);
}

#include "tst_ScreenReader.moc"
