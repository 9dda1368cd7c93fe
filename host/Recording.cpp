#include "Recording.h"

#include "RecordingArgument.h"
#include "RecordingLine.h"

#include <QFile>
#include <QStringDecoder>

#include <algorithm>
#include <array>

namespace pad {

namespace {

// --- The language

struct Rule
{
    const char* word;
    Verb verb;
    std::array<const Argument*, 3> arguments = {}; ///< null after the last one
};

constexpr Rule grammar[] = {
    {"tool", Verb::Tool, {&arguments::tool}},
    {"option", Verb::Option, {&arguments::number}},
    {"color", Verb::Color, {&arguments::color}},
    {"zoom", Verb::Zoom, {&arguments::zoom}},
    {"press", Verb::Press, {&arguments::x, &arguments::y, &arguments::button}},
    {"move", Verb::Move, {&arguments::x, &arguments::y, &arguments::shift}},
    {"release", Verb::Release, {&arguments::x, &arguments::y, &arguments::release}},
    {"type", Verb::Type, {&arguments::text}},
    {"key", Verb::Key, {&arguments::key}},
    {"undo", Verb::Undo},
    {"redo", Verb::Redo},
    {"cut", Verb::Cut},
    {"copy", Verb::Copy},
    {"paste", Verb::Paste},
    {"selectall", Verb::SelectAll},
    {"clear", Verb::Clear},
    {"delete", Verb::Delete},
    {"piece", Verb::Piece, {&arguments::change}},
    {"place", Verb::Place, {&arguments::x, &arguments::y}},
    {"canvas", Verb::Canvas, {&arguments::canvasType, &arguments::width, &arguments::height}},
    {"open", Verb::Open, {&arguments::fileName}},
    {"paper", Verb::Paper, {&arguments::fileName}},
    {"stamp", Verb::Stamp, {&arguments::fileName}},
    {"save", Verb::Save, {&arguments::fileName}},
    {"wait", Verb::Wait, {&arguments::number}},
    {"answer", Verb::Answer, {&arguments::number}},
    {"history", Verb::History, {&arguments::steps}},
    {"bold", Verb::Bold, {&arguments::onOrOff}},
    {"outline", Verb::Outline, {&arguments::color}},
    {"manners", Verb::Manners, {&arguments::manners}},
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
        if (argument == &arguments::shift && !argument->read(given, command)) {
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
    const QString word = words.isEmpty()                      ? QStringLiteral("classic")
                         : manners == KORVA_Manners::modern() ? QStringLiteral("modern")
                                                              : words;
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
