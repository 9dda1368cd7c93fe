#include "Recording.h"

#include "KeyName.h"
#include "PadTools.h"
#include "RecordingLine.h"

#include <KORVA_EditCanvas.h>
#include <UTIL_Platform.h>

#include <QFile>
#include <QStringDecoder>

#include <algorithm>
#include <array>
#include <span>

namespace pad {

namespace {

// --- Arguments: how each kind is read from its word and written back

using Names = std::span<const char* const>;

std::optional<int> indexOf(Names names, const QString& word)
{
    const auto found = std::find(names.begin(), names.end(), word);
    return found == names.end() ? std::nullopt : std::optional(int(found - names.begin()));
}

bool readInt(const QString& word, int lowest, int& number)
{
    bool isNumber = false;
    const int value = word.toInt(&isNumber);
    if (!isNumber || value < lowest)
        return false;
    number = value;
    return true;
}

template <void (QPoint::*set)(int)>
bool readCoordinate(const QString& word, Command& command)
{
    constexpr int farthest = 100'000;
    int value = 0;
    if (!readInt(word, -farthest, value) || value > farthest)
        return false;
    (command.point.*set)(value);
    return true;
}

template <void (QSize::*set)(int)>
bool readSide(const QString& word, Command& command)
{
    int value = 0;
    if (!readInt(word, 1, value))
        return false;
    (command.size.*set)(value);
    return command.size.isEmpty() ||
           qint64(command.size.width()) * command.size.height() <= UTIL_Platform::instance()->pixelLimit();
}

bool readNumber(const QString& word, Command& command)
{
    return readInt(word, 0, command.number);
}

bool readSteps(const QString& word, Command& command)
{
    constexpr int most = 1000;
    return readInt(word, 1, command.number) && command.number <= most;
}

QString writeNumber(const Command& command)
{
    return QString::number(command.number);
}

template <const auto& names>
bool readName(const QString& word, Command& command)
{
    const auto index = indexOf(names, word);
    command.number = index.value_or(0);
    return index.has_value();
}

template <const auto& names>
QString writeName(const Command& command)
{
    return QLatin1String(names[std::size_t(command.number)]);
}

bool readTool(const QString& word, Command& command)
{
    for (command.number = 0; !padtools::word(command.number).isEmpty(); ++command.number) {
        if (padtools::word(command.number) == word)
            return true;
    }
    return false;
}

QString writeTool(const Command& command)
{
    return padtools::word(command.number);
}

bool readButton(const QString& word, Command& command)
{
    command.button = Qt::RightButton;
    return word == QLatin1String("right");
}

QString writeButton(const Command& command)
{
    return command.button == Qt::RightButton ? QStringLiteral("right") : QString();
}

bool readShift(const QString& word, Command& command)
{
    command.isEven = word == QLatin1String("shift");
    return command.isEven;
}

QString writeShift(const Command& command)
{
    return command.isEven ? QStringLiteral("shift") : QString();
}

bool readRelease(const QString& word, Command& command)
{
    return readShift(word, command) || readButton(word, command);
}

QString writeRelease(const Command& command)
{
    return command.isEven ? writeShift(command) : writeButton(command);
}

bool readColor(const QString& word, Command& command)
{
    constexpr int length = 7; // "#rrggbb"
    if (word.size() != length || !word.startsWith(QLatin1Char('#')))
        return false;
    command.color = QColor(word);
    return command.color.isValid();
}

bool readKey(const QString& word, Command& command)
{
    const auto key = keyFromName(word);
    command.key = key.value_or(command.key);
    return key.has_value();
}

bool readText(const QString& word, Command& command)
{
    command.text = word;
    return true;
}

const QString modern = QStringLiteral("modern");
const QString classic = QStringLiteral("classic");

std::optional<KORVA_Manners> mannersFrom(const QString& word)
{
    if (word == modern)
        return KORVA_Manners::modern();
    return KORVA_Manners::ofWords(word == classic ? QStringList() : word.split(QLatin1Char(',')));
}

bool readManners(const QString& word, Command& command)
{
    return readText(word, command) && mannersFrom(word);
}

QString writeManners(const Command& command)
{
    return command.text;
}

bool readFileName(const QString& word, Command& command)
{
    return readText(word, command) && !word.isEmpty();
}

QString writeText(const Command& command)
{
    return quoted(command.text);
}

struct Argument
{
    struct
    {
        const char* text;
        const char* comment; ///< null: a word of the language, the same in all others
    } what;                  ///< for the messages
    bool (*read)(const QString& word, Command& command);
    QString (*write)(const Command& command); ///< returns the word; an empty one is left out
    bool optional = false;
};

constexpr Argument x{{"X", nullptr}, readCoordinate<&QPoint::setX>, [](const Command& c) {
                         return QString::number(c.point.x());
                     }};
constexpr Argument y{{"Y", nullptr}, readCoordinate<&QPoint::setY>, [](const Command& c) {
                         return QString::number(c.point.y());
                     }};
constexpr Argument width{{"W", nullptr}, readSide<&QSize::setWidth>, [](const Command& c) {
                             return QString::number(c.size.width());
                         }};
constexpr Argument height{{"H", nullptr}, readSide<&QSize::setHeight>, [](const Command& c) {
                              return QString::number(c.size.height());
                          }};
constexpr Argument button{{"'right'", nullptr}, readButton, writeButton, true};
constexpr Argument shift{{"'shift'", nullptr}, readShift, writeShift, true};
constexpr Argument release{{"'right'", nullptr}, readRelease, writeRelease, true};
constexpr Argument number{
    QT_TRANSLATE_NOOP3("pad::Recording", "a number", "recording; what a command needs"), readNumber,
    writeNumber};
constexpr Argument steps{
    QT_TRANSLATE_NOOP3("pad::Recording", "a number of steps", "recording; what a command needs"), readSteps,
    writeNumber};
constexpr Argument tool{QT_TRANSLATE_NOOP3("pad::Recording", "a tool", "recording; what a command needs"),
                        readTool, writeTool};
constexpr Argument zoom{QT_TRANSLATE_NOOP3("pad::Recording", "a zoom", "recording; what a command needs"),
                        readName<zoomNames>, writeName<zoomNames>};
constexpr Argument canvasType{
    QT_TRANSLATE_NOOP3("pad::Recording", "a canvas type", "recording; what a command needs"),
    readName<canvasNames>, writeName<canvasNames>};
constexpr Argument change{{"WORD", nullptr}, readName<pieceNames>, writeName<pieceNames>};
constexpr Argument color{
    QT_TRANSLATE_NOOP3("pad::Recording", "a colour #rrggbb", "recording; what a command needs"), readColor,
    [](const Command& c) { return c.color.name(); }};
constexpr Argument key{QT_TRANSLATE_NOOP3("pad::Recording", "a key", "recording; what a command needs"),
                       readKey, [](const Command& c) { return keyName(c.key); }};
constexpr Argument text{QT_TRANSLATE_NOOP3("pad::Recording", "a text", "recording; what a command needs"),
                        readText, writeText};
constexpr Argument fileName{
    QT_TRANSLATE_NOOP3("pad::Recording", "a file name", "recording; what a command needs"), readFileName,
    writeText};

constexpr Argument manners{{"WORDS", nullptr}, readManners, writeManners};

// --- The language

struct Rule
{
    const char* word;
    Verb verb;
    std::array<const Argument*, 3> arguments = {}; ///< null after the last one
};

constexpr Rule grammar[] = {
    {"tool", Verb::Tool, {&tool}},
    {"option", Verb::Option, {&number}},
    {"color", Verb::Color, {&color}},
    {"zoom", Verb::Zoom, {&zoom}},
    {"press", Verb::Press, {&x, &y, &button}},
    {"move", Verb::Move, {&x, &y, &shift}},
    {"release", Verb::Release, {&x, &y, &release}},
    {"type", Verb::Type, {&text}},
    {"key", Verb::Key, {&key}},
    {"undo", Verb::Undo},
    {"redo", Verb::Redo},
    {"cut", Verb::Cut},
    {"copy", Verb::Copy},
    {"paste", Verb::Paste},
    {"selectall", Verb::SelectAll},
    {"clear", Verb::Clear},
    {"delete", Verb::Delete},
    {"piece", Verb::Piece, {&change}},
    {"place", Verb::Place, {&x, &y}},
    {"canvas", Verb::Canvas, {&canvasType, &width, &height}},
    {"open", Verb::Open, {&fileName}},
    {"paper", Verb::Paper, {&fileName}},
    {"stamp", Verb::Stamp, {&fileName}},
    {"save", Verb::Save, {&fileName}},
    {"wait", Verb::Wait, {&number}},
    {"answer", Verb::Answer, {&number}},
    {"history", Verb::History, {&steps}},
    {"manners", Verb::Manners, {&manners}},
};

template <typename Predicate>
const Rule* findRule(Predicate matches)
{
    const Rule* found = std::find_if(std::begin(grammar), std::end(grammar), matches);
    return found == std::end(grammar) ? nullptr : found;
}

Expected<Command> understand(QStringList words)
{
    const QString word = words.takeFirst();
    const Rule* rule = findRule([&word](const Rule& r) { return word == QLatin1String(r.word); });
    if (!rule)
        return Failure{Recording::tr("unknown command '%1'", "recording").arg(word)};

    Command command;
    command.verb = rule->verb;
    for (const Argument* argument : rule->arguments) {
        if (!argument || (argument->optional && words.isEmpty()))
            break;
        const auto& [name, comment] = argument->what;
        const QString what = comment ? Recording::tr(name, comment) : QLatin1String(name);
        if (words.isEmpty())
            return Failure{Recording::tr("'%1' needs %2", "recording").arg(word, what)};
        const QString given = words.takeFirst();
        if (argument == &shift && !argument->read(given, command)) {
            words.prepend(given);
            break;
        }
        if (!argument->read(given, command))
            return Failure{Recording::tr("'%1' needs %2, not '%3'", "recording").arg(word, what, given)};
    }
    if (!words.isEmpty())
        return Failure{
            Recording::tr("'%1' is too much for '%2'", "recording").arg(words.constFirst(), word)};
    return command;
}

Failure failureIn(const QString& name, int line, const QString& message)
{
    return {QStringLiteral("%1:%2: %3").arg(name, QString::number(line), message)};
}

} // namespace

Expected<Recording> Recording::parse(const QByteArray& bytes, const QString& name)
{
    Recording recording;
    recording.m_name = name;
    int line = 0;
    for (const QByteArray& raw : bytes.split('\n')) {
        ++line;
        QStringDecoder decoder(QStringDecoder::Utf8);
        const QString decoded = decoder.decode(raw);
        if (decoder.hasError())
            return failureIn(name, line, tr("this is not UTF-8 text", "recording"));
        const auto words = splitLine(decoded);
        if (const auto* failure = std::get_if<Failure>(&words))
            return failureIn(name, line, failure->message);
        if (std::get<QStringList>(words).isEmpty())
            continue;
        auto command = understand(std::get<QStringList>(words));
        if (const auto* failure = std::get_if<Failure>(&command))
            return failureIn(name, line, failure->message);
        std::get<Command>(command).line = line;
        recording.m_commands.push_back(std::get<Command>(command));
    }
    return recording;
}

Expected<Recording> Recording::read(const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return Failure{tr("cannot read '%1': %2", "recording").arg(fileName, file.errorString())};
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return Failure{tr("cannot read '%1': %2", "recording").arg(fileName, file.errorString())};
    return parse(bytes, fileName);
}

QString Recording::toLine(const Command& command)
{
    const Rule* rule = findRule([&command](const Rule& r) { return r.verb == command.verb; });
    QStringList words{QLatin1String(rule->word)};
    for (const Argument* argument : rule->arguments) {
        const QString word = argument ? argument->write(command) : QString();
        if (!word.isEmpty())
            words.append(word);
    }
    return words.join(QLatin1Char(' '));
}

Command Recording::commandFor(const KORVA_Manners& manners)
{
    const QString words = manners.words().join(QLatin1Char(','));
    const QString word = words.isEmpty() ? classic : manners == KORVA_Manners::modern() ? modern : words;
    return {.verb = Verb::Manners, .text = word};
}

KORVA_Manners Recording::mannersOf(const Command& command)
{
    return mannersFrom(command.text).value_or(KORVA_Manners());
}

Failure Recording::failureAt(const Command& command, const QString& message) const
{
    return failureIn(m_name, command.line, message);
}

} // namespace pad
