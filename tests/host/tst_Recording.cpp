#include "Recording.h"

#include "support/TestCase.h"

using pad::Command;
using pad::Failure;
using pad::Recording;
using pad::Verb;

namespace {

std::vector<Command> parsed(const QByteArray& text)
{
    const auto recording = Recording::parse(text, "test.rec");
    return std::holds_alternative<Recording>(recording) ? std::get<Recording>(recording).commands()
                                                        : std::vector<Command>();
}

QString complaintAbout(const QByteArray& text)
{
    const auto recording = Recording::parse(text, "test.rec");
    const auto* failure = std::get_if<Failure>(&recording);
    return failure ? failure->message : QString("(no complaint)");
}

Command plain(Verb verb)
{
    Command command;
    command.verb = verb;
    command.line = 1;
    return command;
}

Command numbered(Verb verb, int number)
{
    Command command = plain(verb);
    command.number = number;
    return command;
}

Command at(Verb verb, QPoint point, Qt::MouseButton button = Qt::LeftButton)
{
    Command command = plain(verb);
    command.point = point;
    command.button = button;
    return command;
}

Command withText(Verb verb, const QString& text)
{
    Command command = plain(verb);
    command.text = text;
    return command;
}

Command withKey(QKeyCombination key)
{
    Command command = plain(Verb::Key);
    command.key = key;
    return command;
}

Command canvas(int type, QSize size)
{
    Command command = numbered(Verb::Canvas, type);
    command.size = size;
    return command;
}

Command colored(const QColor& color)
{
    Command command = plain(Verb::Color);
    command.color = color;
    return command;
}

} // namespace

class tst_Recording : public support::TestCase
{
    Q_OBJECT

private slots:
    void understands_data();
    void understands();
    void writesWhatItReads_data();
    void writesWhatItReads();
    void linesWithoutACommand_data();
    void linesWithoutACommand();
    void tellsWhatIsWrongAndWhere_data();
    void tellsWhatIsWrongAndWhere();
    void keepsOrderAndLineNumbers();
    void aMissingFile();
    void aFolder();
};

void tst_Recording::understands_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<Command>("command");

    const char* tools[] = {"pencil", "select", "line", "text", "rectangle", "ellipse", "eraser", "hand"};
    for (int id = 0; id < 8; ++id)
        QTest::addRow("tool %s", tools[id]) << QByteArray("tool ") + tools[id] << numbered(Verb::Tool, id);
    const char* zooms[] = {"50", "100", "150", "200", "400", "800", "fit"};
    for (int i = 0; i < 7; ++i)
        QTest::addRow("zoom %s", zooms[i]) << QByteArray("zoom ") + zooms[i] << numbered(Verb::Zoom, i);
    for (const int steps : {1, 50, 1000})
        QTest::addRow("history %d", steps)
            << "history " + QByteArray::number(steps) << numbered(Verb::History, steps);
    for (const char* words : {"modern", "classic", "joined-eraser"}) {
        QTest::addRow("manners %s", words)
            << QByteArray("manners ") + words << Command{.verb = Verb::Manners, .line = 1, .text = words};
    }
    for (const int on : {0, 1})
        QTest::addRow("bold %d", on) << QByteArray(on == 1 ? "bold on" : "bold off")
                                     << numbered(Verb::Bold, on);
    QTest::newRow("outline") << QByteArray("outline #12ab56")
                             << Command{.verb = Verb::Outline, .line = 1, .color = QColor("#12ab56")};
    const char* changes[] = {"turn-left", "turn-right", "flip", "double", "halve", "clear-white"};
    for (int i = 0; i < 6; ++i)
        QTest::addRow("piece %s", changes[i])
            << QByteArray("piece ") + changes[i] << numbered(Verb::Piece, i);
    QTest::newRow("place") << QByteArray("place -3 70")
                           << Command{.verb = Verb::Place, .line = 1, .point = {-3, 70}};
    QTest::newRow("move with Shift") << QByteArray("move 3 4 shift")
                                     << Command{
                                            .verb = Verb::Move, .line = 1, .point = {3, 4}, .isEven = true};
    QTest::newRow("release with Shift")
        << QByteArray("release 3 4 shift")
        << Command{.verb = Verb::Release, .line = 1, .point = {3, 4}, .isEven = true};
    const char* types[] = {"16bit", "1bit", "4bit", "8bit", "4bitb"};
    for (int i = 0; i < 5; ++i) {
        QTest::addRow("canvas %s", types[i])
            << QByteArray("canvas ") + types[i] + " 64 80" << canvas(i, QSize(64, 80));
    }
    const std::pair<const char*, Verb> words[] = {
        {"undo", Verb::Undo},   {"redo", Verb::Redo},   {"cut", Verb::Cut},
        {"copy", Verb::Copy},   {"paste", Verb::Paste}, {"selectall", Verb::SelectAll},
        {"clear", Verb::Clear},
    };
    for (const auto& [word, verb] : words)
        QTest::addRow("%s", word) << QByteArray(word) << plain(verb);

    QTest::newRow("option") << QByteArray("option 2") << numbered(Verb::Option, 2);
    QTest::newRow("wait") << QByteArray("wait 250") << numbered(Verb::Wait, 250);
    QTest::newRow("answer") << QByteArray("answer 1") << numbered(Verb::Answer, 1);
    QTest::newRow("press") << QByteArray("press 10 20") << at(Verb::Press, {10, 20});
    QTest::newRow("press of the right button")
        << QByteArray("press 10 20 right") << at(Verb::Press, {10, 20}, Qt::RightButton);
    QTest::newRow("release of the right button")
        << QByteArray("release 1 2 right") << at(Verb::Release, {1, 2}, Qt::RightButton);
    QTest::newRow("move beyond the canvas") << QByteArray("move -7 -300") << at(Verb::Move, {-7, -300});
    QTest::newRow("colour") << QByteArray("color #1f6feb") << colored(QColor(0x1f, 0x6f, 0xeb));
    QTest::newRow("colour in quotes")
        << QByteArray("color \"#1F6FEB\"") << colored(QColor(0x1f, 0x6f, 0xeb));
    QTest::newRow("colour with a comment") << QByteArray("color #00ff00 # green") << colored(Qt::green);
    QTest::newRow("key") << QByteArray("key Return") << withKey(Qt::Key_Return);
    QTest::newRow("key in other case") << QByteArray("key BackSpace") << withKey(Qt::Key_Backspace);
    QTest::newRow("key with modifiers")
        << QByteArray("key Ctrl+Shift+Left") << withKey(Qt::CTRL | Qt::SHIFT | Qt::Key_Left);
    QTest::newRow("a modifier") << QByteArray("key Shift") << withKey(Qt::Key_Shift);
    QTest::newRow("Shift held with itself")
        << QByteArray("key Shift+Shift") << withKey(Qt::SHIFT | Qt::Key_Shift);
    QTest::newRow("Ctrl held with itself")
        << QByteArray("key Ctrl+Control") << withKey(Qt::CTRL | Qt::Key_Control);
    QTest::newRow("Alt held with itself") << QByteArray("key Alt+Alt") << withKey(Qt::ALT | Qt::Key_Alt);
    QTest::newRow("Meta held with itself")
        << QByteArray("key Meta+Meta") << withKey(Qt::META | Qt::Key_Meta);
    QTest::newRow("a word as text") << QByteArray("type abc") << withText(Verb::Type, "abc");
    QTest::newRow("text with blanks") << QByteArray("type \" a  b \"") << withText(Verb::Type, " a  b ");
    QTest::newRow("every escape") << QByteArray(R"(type "\"\\\n\t")") << withText(Verb::Type, "\"\\\n\t");
    QTest::newRow("a comment's sign in quotes")
        << QByteArray("type \"#1\" # one") << withText(Verb::Type, "#1");
    QTest::newRow("a comment without a blank")
        << QByteArray("open a.png#old") << withText(Verb::Open, "a.png");
    QTest::newRow("a comment behind quotes")
        << QByteArray("open \"a b\"#old") << withText(Verb::Open, "a b");
    QTest::newRow("a backslash outside quotes")
        << QByteArray(R"(open a\nb)") << withText(Verb::Open, R"(a\nb)");
    QTest::newRow("text beyond ASCII") << QByteArray("type \"Grüße 🎨\"") << withText(Verb::Type, "Grüße 🎨");
    QTest::newRow("no text") << QByteArray("type \"\"") << withText(Verb::Type, "");
    QTest::newRow("save") << QByteArray("save /tmp/a.png") << withText(Verb::Save, "/tmp/a.png");
    QTest::newRow("paper") << QByteArray("paper a.gif") << withText(Verb::Paper, "a.gif");
    QTest::newRow("stamp") << QByteArray("stamp a.gif") << withText(Verb::Stamp, "a.gif");
    QTest::newRow("blanks all over") << QByteArray(" \t press\t 3   4  ") << at(Verb::Press, {3, 4});
    QTest::newRow("lines ended as on DOS") << QByteArray("undo\r\n") << plain(Verb::Undo);
}

void tst_Recording::understands()
{
    QFETCH(QByteArray, text);
    QFETCH(Command, command);
    QCOMPARE(complaintAbout(text), "(no complaint)");
    QCOMPARE(parsed(text).size(), 1U);
    QVERIFY(parsed(text).front() == command);
}

void tst_Recording::writesWhatItReads_data()
{
    understands_data();
}

void tst_Recording::writesWhatItReads()
{
    QFETCH(Command, command);
    const QString line = Recording::toLine(command);
    QCOMPARE(parsed(line.toUtf8()).size(), 1U);
    QVERIFY2(parsed(line.toUtf8()).front() == command, qPrintable(line));
}

void tst_Recording::linesWithoutACommand_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("an empty file") << QByteArray();
    QTest::newRow("an empty line") << QByteArray("\n");
    QTest::newRow("blanks") << QByteArray(" \t \r\n");
    QTest::newRow("a comment") << QByteArray("# undo");
    QTest::newRow("a comment after blanks") << QByteArray("   #undo\n");
}

void tst_Recording::linesWithoutACommand()
{
    QFETCH(QByteArray, text);
    QCOMPARE(complaintAbout(text), "(no complaint)");
    QVERIFY(parsed(text).empty());
}

void tst_Recording::tellsWhatIsWrongAndWhere_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("complaint");
    const auto row = [](const char* name, const char* text, const char* complaint) {
        QTest::newRow(name) << QByteArray(text) << QString(complaint);
    };
    row("unknown command", "undo\n\nscribble 1 2", "test.rec:3: unknown command 'scribble'");
    row("command in other case", "Undo", "test.rec:1: unknown command 'Undo'");
    row("number missing", "option", "test.rec:1: 'option' needs a number");
    row("not a number", "wait soon", "test.rec:1: 'wait' needs a number, not 'soon'");
    row("negative number", "answer -1", "test.rec:1: 'answer' needs a number, not '-1'");
    row("fraction", "press 1.5 2", "test.rec:1: 'press' needs X, not '1.5'");
    row("Y missing", "move 1", "test.rec:1: 'move' needs Y");
    row("coordinate without end", "move 1 99999999999", "test.rec:1: 'move' needs Y, not '99999999999'");
    row("coordinate far away", "move 100001 1", "test.rec:1: 'move' needs X, not '100001'");
    row("third word of a move", "move 1 2 right", "test.rec:1: 'right' is too much for 'move'");
    row("fourth word of a move", "move 1 2 shift shift", "test.rec:1: 'shift' is too much for 'move'");
    row("Shift at a press", "press 1 2 shift", "test.rec:1: 'press' needs 'right', not 'shift'");
    row("unknown button", "press 1 2 left", "test.rec:1: 'press' needs 'right', not 'left'");
    row("word after the button", "press 1 2 right 3", "test.rec:1: '3' is too much for 'press'");
    row("unknown tool", "# tools\ntool brush", "test.rec:2: 'tool' needs a tool, not 'brush'");
    row("history without an end", "history 1001",
        "test.rec:1: 'history' needs a number of steps, not '1001'");
    row("no history", "history 0", "test.rec:1: 'history' needs a number of steps, not '0'");
    row("no manners", "manners", "test.rec:1: 'manners' needs WORDS");
    row("bold or what", "bold maybe", "test.rec:1: 'bold' needs 'on', 'off', not 'maybe'");
    row("an outline without a colour", "outline", "test.rec:1: 'outline' needs a colour #rrggbb");
    row("unknown manners", "manners joined-eraser,polite",
        "test.rec:1: 'manners' needs WORDS, not 'joined-eraser,polite'");
    row("no change of a piece", "piece upside-down", "test.rec:1: 'piece' needs WORD, not 'upside-down'");
    row("half a place", "place 3", "test.rec:1: 'place' needs Y");
    row("unknown zoom", "zoom 75", "test.rec:1: 'zoom' needs a zoom, not '75'");
    row("unknown canvas type", "canvas 2bit 1 1", "test.rec:1: 'canvas' needs a canvas type, not '2bit'");
    row("canvas without width", "canvas 1bit 0 5", "test.rec:1: 'canvas' needs W, not '0'");
    row("canvas too large", "canvas 1bit 9000 9000", "test.rec:1: 'canvas' needs H, not '9000'");
    row("short colour", "color #fff", "test.rec:1: 'color' needs a colour #rrggbb, not '#fff'");
    row("colour by name", "color red", "test.rec:1: 'color' needs a colour #rrggbb, not 'red'");
    row("not a colour", "color #ggggg0", "test.rec:1: 'color' needs a colour #rrggbb, not '#ggggg0'");
    row("unknown key", "key Retrun", "test.rec:1: 'key' needs a key, not 'Retrun'");
    row("unknown modifier", "key Hyp+A", "test.rec:1: 'key' needs a key, not 'Hyp+A'");
    row("file name missing", "open", "test.rec:1: 'open' needs a file name");
    row("empty file name", "save \"\"", "test.rec:1: 'save' needs a file name, not ''");
    row("two words without quotes", "type a b", "test.rec:1: 'b' is too much for 'type'");
    row("argument too much", "undo 2", "test.rec:1: '2' is too much for 'undo'");
    row("open quote", "\ntype \"abc", "test.rec:2: the closing quote is missing");
    row("quote escaped at the end", "type \"abc\\\"", "test.rec:1: the closing quote is missing");
    row("backslash at the end", "type \"abc\\", "test.rec:1: the closing quote is missing");
    row("unknown escape", "type \"a\\x41\"", "test.rec:1: unknown escape '\\x'");
    row("no blank behind a quote", "type \"a\"b", "test.rec:1: a blank is missing at 'b'");
    row("quote in a word", "type a\"b\"", "test.rec:1: a blank is missing at '\"b\"'");
    row("not UTF-8", "undo\ntype \"\xff\"", "test.rec:2: this is not UTF-8 text");
}

void tst_Recording::tellsWhatIsWrongAndWhere()
{
    QFETCH(QByteArray, text);
    QTEST(complaintAbout(text), "complaint");
}

void tst_Recording::keepsOrderAndLineNumbers()
{
    const auto commands = parsed("press 1 1\n# between\n\nmove 2 2\nrelease 3 3\n");
    QCOMPARE(commands.size(), 3U);
    QCOMPARE(commands[0].line, 1);
    QCOMPARE(commands[1].line, 4);
    QCOMPARE(commands[2].line, 5);
    QCOMPARE(commands[2].verb, Verb::Release);
}

void tst_Recording::aMissingFile()
{
    const auto recording = Recording::read("/nowhere/a.rec");
    QVERIFY(std::holds_alternative<Failure>(recording));
    QCOMPARE(std::get<Failure>(recording).message,
             "cannot read '/nowhere/a.rec': No such file or directory");
}

void tst_Recording::aFolder()
{
    const QTemporaryDir folder;
    const auto recording = Recording::read(folder.path());
    QVERIFY(std::holds_alternative<Failure>(recording));
    QVERIFY(std::get<Failure>(recording).message.startsWith("cannot read '" + folder.path()));
}

int main(int argc, char** argv)
{
    return support::run<tst_Recording>(argc, argv);
}

#include "tst_Recording.moc"
