#include "CommandLine.h"

#include <algorithm>

namespace pad {

namespace {

constexpr int largestScale = 8;

using Setter = std::optional<Failure> (*)(CommandLine&, const QString& value);

template <QString CommandLine::*field>
std::optional<Failure> setFile(CommandLine& line, const QString& value)
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
        return Failure{
            QStringLiteral("--scale takes a number from 1 to %1, not '%2'").arg(largestScale).arg(value)};
    line.scale = scale;
    return {};
}

struct Option
{
    const char* name;
    char letter;       ///< 0: none
    const char* value; ///< null: takes none
    Setter set;
    const char* help;
};

constexpr Option options[] = {
    {"scale", 0, "N", setScale, "show every pixel N x N (default: as last time, or what suits the screen)"},
    {"replay", 0, "FILE", setFile<&CommandLine::replay>, "play a recording; no pointer is needed"},
    {"record", 0, "FILE", setFile<&CommandLine::record>, "write a recording of what is drawn"},
    {"save", 0, "FILE", setFile<&CommandLine::save>, "save the drawing after the replay, then exit"},
    {"screenshot", 0, "FILE", setFile<&CommandLine::screenshot>, "write the window as PNG, then exit"},
    {"no-recovery", 0, nullptr, setFlag<&CommandLine::noRecovery>,
     "keep no copy of what is not saved, and offer none"},
    {"help", 'h', nullptr, setFlag<&CommandLine::help>, "show this text"},
    {"version", 'v', nullptr, setFlag<&CommandLine::version>, "show the version"},
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
        return Failure{QStringLiteral("the picture's name is empty")};
    if (!line.picture.isEmpty())
        return Failure{QStringLiteral("one picture at a time: '%1' and '%2'").arg(line.picture, name)};
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
        return Failure{QStringLiteral("unknown option '%1' (--help lists them)").arg(dashed)};
    if (seen.contains(dashed) && option->value)
        return Failure{QStringLiteral("%1 is given twice").arg(dashed)};
    seen.append(dashed);

    if (!option->value) {
        if (equals >= 0)
            return Failure{QStringLiteral("%1 takes no value").arg(dashed)};
        return option->set(line, {});
    }
    const QString value = equals >= 0      ? argument.mid(equals + 1)
                          : rest.isEmpty() ? QString()
                                           : rest.takeFirst();
    if (value.isEmpty())
        return Failure{QStringLiteral("%1 needs a value: %1 %2").arg(dashed, QLatin1String(option->value))};
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

QString CommandLine::helpText()
{
    QString text = QStringLiteral("Usage: korva-pad [options] [picture]\n"
                                  "A drawing pad: draws on a new canvas or on the picture given.\n\n"
                                  "Options:\n");
    for (const Option& option : options) {
        QString usage = QLatin1String("--") + QLatin1String(option.name);
        if (option.letter)
            usage.prepend(QStringLiteral("-%1, ").arg(QLatin1Char(option.letter)));
        if (option.value)
            usage += QLatin1Char(' ') + QLatin1String(option.value);
        text += QStringLiteral("  %1 %2\n").arg(usage, -18).arg(QLatin1String(option.help));
    }
    return text;
}

} // namespace pad
