#include "CommandLine.h"

#include "Wording.h"

#include <QRegularExpression>

#include <algorithm>

namespace pad {

namespace {

constexpr int largestScale = 8;
constexpr int mostUndoSteps = 1000;
constexpr int largestSide = 4096;

using Setter = std::optional<Failure> (*)(CommandLine&, const QString& value);

template <QString CommandLine::*field>
std::optional<Failure> setText(CommandLine& line, const QString& value)
{
    line.*field = value;
    return {};
}

template <bool CommandLine::*field>
std::optional<Failure> setFlag(CommandLine& line, const QString&)
{
    line.*field = true;
    return {};
}

std::optional<Failure> setScale(CommandLine& line, const QString& value)
{
    bool isNumber = false;
    const int scale = value.toInt(&isNumber);
    if (!isNumber || scale < 1 || scale > largestScale)
        return Failure{CommandLine::tr("--scale takes a number from 1 to %1, not '%2'", "command line")
                           .arg(QString::number(largestScale), value)};
    line.scale = scale;
    return {};
}

std::optional<Failure> setUndoSteps(CommandLine& line, const QString& value)
{
    bool isNumber = false;
    line.undoSteps = value.toInt(&isNumber);
    if (isNumber && line.undoSteps >= 1 && line.undoSteps <= mostUndoSteps)
        return {};
    return Failure{CommandLine::tr("--undo-steps takes a number from 1 to %1, not '%2'", "command line")
                       .arg(QString::number(mostUndoSteps), value)};
}

std::optional<Failure> setWorkingSize(CommandLine& line, const QString& value)
{
    static const QRegularExpression sides(QStringLiteral("^(\\d{1,4})x(\\d{1,4})$"));
    const QRegularExpressionMatch match = sides.match(value);
    line.workingSize = QSize(match.captured(1).toInt(), match.captured(2).toInt());
    const bool isWithin =
        line.workingSize.width() <= largestSide && line.workingSize.height() <= largestSide;
    if (!line.workingSize.isEmpty() && isWithin)
        return {};
    return Failure{CommandLine::tr("--working-size takes WxH, up to %1, not '%2'", "command line")
                       .arg(QStringLiteral("%1x%1").arg(largestSide), value)};
}

std::optional<Failure> setWorkingDepth(CommandLine& line, const QString& value)
{
    if (value != QLatin1String("16") && value != QLatin1String("24"))
        return Failure{
            CommandLine::tr("--working-depth takes 16 or 24, not '%1'", "command line").arg(value)};
    line.workingDepth = value.toInt();
    return {};
}

struct Option
{
    const char* name;
    char letter;       ///< 0: none
    const char* value; ///< null: takes none
    Setter set;
    struct
    {
        const char* text;
        const char* comment;
    } help;
};

constexpr Option options[] = {
    {"scale", 0, "N", setScale,
     QT_TRANSLATE_NOOP3("pad::CommandLine",
                        "show every pixel N x N (default: as last time, or what suits the screen)",
                        "help")},
    {"language", 0, "CODE", setText<&CommandLine::language>,
     QT_TRANSLATE_NOOP3("pad::CommandLine", "speak this language, like de or pt_BR", "help")},
    {"replay", 0, "FILE", setText<&CommandLine::replay>,
     QT_TRANSLATE_NOOP3("pad::CommandLine", "play a recording; no pointer is needed", "help")},
    {"record", 0, "FILE", setText<&CommandLine::record>,
     QT_TRANSLATE_NOOP3("pad::CommandLine", "write a recording of what is drawn", "help")},
    {"save", 0, "FILE", setText<&CommandLine::save>,
     QT_TRANSLATE_NOOP3("pad::CommandLine", "save the drawing after the replay, then exit", "help")},
    {"screenshot", 0, "FILE", setText<&CommandLine::screenshot>,
     QT_TRANSLATE_NOOP3("pad::CommandLine", "write the window as PNG, then exit", "help")},
    {"undo-steps", 0, "N", setUndoSteps,
     QT_TRANSLATE_NOOP3("pad::CommandLine", "how many steps can be undone (default: 50)", "help")},
    {"working-size", 0, "WxH", setWorkingSize,
     QT_TRANSLATE_NOOP3("pad::CommandLine", "fit opened pictures into this size (default: 352x288)",
                        "help")},
    {"working-depth", 0, "16|24", setWorkingDepth,
     QT_TRANSLATE_NOOP3("pad::CommandLine", "the colour depth of opened pictures (default: 16)", "help")},
    {"no-recovery", 0, nullptr, setFlag<&CommandLine::noRecovery>,
     QT_TRANSLATE_NOOP3("pad::CommandLine", "keep no copy of what is not saved, and offer none", "help")},
    {"help", 'h', nullptr, setFlag<&CommandLine::help>,
     QT_TRANSLATE_NOOP3("pad::CommandLine", "show this text", "help")},
    {"version", 'v', nullptr, setFlag<&CommandLine::version>,
     QT_TRANSLATE_NOOP3("pad::CommandLine", "show the version", "help")},
};

const Option* findOption(const QString& dashed)
{
    const auto matches = [&dashed](const Option& option) {
        return dashed == QLatin1String("--") + QLatin1String(option.name) ||
               (option.letter && dashed == QLatin1String("-") + QLatin1Char(option.letter));
    };
    const Option* found = std::find_if(std::begin(options), std::end(options), matches);
    return found == std::end(options) ? nullptr : found;
}

std::optional<Failure> setPicture(CommandLine& line, const QString& name)
{
    if (name.isEmpty())
        return wording::emptyName();
    if (!line.picture.isEmpty())
        return wording::twoPictures(line.picture, name);
    line.picture = name;
    return {};
}

/// Reads one argument, and the next one if that is its value.
std::optional<Failure> setOption(CommandLine& line, QStringList& rest, QStringList& seen)
{
    const QString argument = rest.takeFirst();
    const qsizetype equals =
        argument.startsWith(QLatin1String("--")) ? argument.indexOf(QLatin1Char('=')) : -1;
    const QString dashed = argument.left(equals);
    const Option* option = findOption(dashed);
    if (!option)
        return wording::unknownOption(dashed);
    if (seen.contains(dashed) && option->value)
        return Failure{CommandLine::tr("%1 is given twice", "command line").arg(dashed)};
    seen.append(dashed);

    if (!option->value) {
        if (equals >= 0)
            return Failure{CommandLine::tr("%1 takes no value", "command line").arg(dashed)};
        return option->set(line, {});
    }
    const QString value = equals >= 0      ? argument.mid(equals + 1)
                          : rest.isEmpty() ? QString()
                                           : rest.takeFirst();
    if (value.isEmpty())
        return wording::noValue(dashed, QLatin1String(option->value));
    return option->set(line, value);
}

} // namespace

Expected<CommandLine> CommandLine::parse(const QStringList& arguments)
{
    CommandLine line;
    QStringList rest = arguments;
    QStringList seen;
    bool onlyPictures = false;
    while (!rest.isEmpty()) {
        const QString& next = rest.constFirst();
        const bool isOption = !onlyPictures && next.size() > 1 && next.startsWith(QLatin1Char('-'));
        std::optional<Failure> failure;
        if (isOption && next == QLatin1String("--")) {
            onlyPictures = true;
            rest.removeFirst();
        } else {
            failure = isOption ? setOption(line, rest, seen) : setPicture(line, rest.takeFirst());
        }
        if (failure)
            return *failure;
    }
    return line;
}

QString CommandLine::languageIn(const QStringList& arguments)
{
    const QLatin1String option("--language");
    const qsizetype at = arguments.indexOf(option);
    if (at >= 0)
        return arguments.value(at + 1);
    for (const QString& argument : arguments) {
        if (argument.startsWith(option + QLatin1Char('=')))
            return argument.mid(option.size() + 1);
    }
    return {};
}

QString CommandLine::helpText()
{
    QString text = tr("Usage: korva-pad [options] [picture]", "help") + QLatin1Char('\n') +
                   tr("A drawing pad: draws on a new canvas or on the picture given.", "help") +
                   QLatin1String("\n\n") + tr("Options:", "help") + QLatin1Char('\n');
    for (const Option& option : options) {
        QString usage = QLatin1String("--") + QLatin1String(option.name);
        if (option.letter)
            usage.prepend(QStringLiteral("-%1, ").arg(QLatin1Char(option.letter)));
        if (option.value)
            usage += QLatin1Char(' ') + QLatin1String(option.value);
        text += QStringLiteral("  %1 %2\n").arg(usage, -18).arg(tr(option.help.text, option.help.comment));
    }
    return text;
}

} // namespace pad
