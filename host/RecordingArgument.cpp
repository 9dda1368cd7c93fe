#include "RecordingArgument.h"

#include "KeyName.h"
#include "PadTools.h"
#include "RecordingLine.h"

#include <UTIL_Platform.h>

#include <algorithm>
#include <span>

namespace pad {

std::optional<KORVA_Manners> mannersFrom(const QString& word)
{
    if (word == QLatin1String("modern"))
        return KORVA_Manners::modern();
    return KORVA_Manners::ofWords(word == QLatin1String("classic") ? QStringList()
                                                                   : word.split(QLatin1Char(',')));
}

namespace {

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

} // namespace

namespace arguments {

const Argument x{{"X", nullptr}, readCoordinate<&QPoint::setX>, [](const Command& c) {
                     return QString::number(c.point.x());
                 }};
const Argument y{{"Y", nullptr}, readCoordinate<&QPoint::setY>, [](const Command& c) {
                     return QString::number(c.point.y());
                 }};
const Argument width{{"W", nullptr}, readSide<&QSize::setWidth>, [](const Command& c) {
                         return QString::number(c.size.width());
                     }};
const Argument height{{"H", nullptr}, readSide<&QSize::setHeight>, [](const Command& c) {
                          return QString::number(c.size.height());
                      }};
const Argument button{{"'right'", nullptr}, readButton, writeButton, true};
const Argument shift{{"'shift'", nullptr}, readShift, writeShift, true};
const Argument release{{"'right'", nullptr}, readRelease, writeRelease, true};
const Argument number{QT_TRANSLATE_NOOP3("pad::Recording", "a number", "recording; what a command needs"),
                      readNumber, writeNumber};
const Argument onOrOff{{"'on', 'off'", nullptr}, readName<switchNames>, writeName<switchNames>};
const Argument steps{
    QT_TRANSLATE_NOOP3("pad::Recording", "a number of steps", "recording; what a command needs"), readSteps,
    writeNumber};
const Argument tool{QT_TRANSLATE_NOOP3("pad::Recording", "a tool", "recording; what a command needs"),
                    readTool, writeTool};
const Argument zoom{QT_TRANSLATE_NOOP3("pad::Recording", "a zoom", "recording; what a command needs"),
                    readName<zoomNames>, writeName<zoomNames>};
const Argument canvasType{
    QT_TRANSLATE_NOOP3("pad::Recording", "a canvas type", "recording; what a command needs"),
    readName<canvasNames>, writeName<canvasNames>};
const Argument change{{"WORD", nullptr}, readName<pieceNames>, writeName<pieceNames>};
const Argument color{
    QT_TRANSLATE_NOOP3("pad::Recording", "a colour #rrggbb", "recording; what a command needs"), readColor,
    [](const Command& c) { return c.color.name(); }};
const Argument key{QT_TRANSLATE_NOOP3("pad::Recording", "a key", "recording; what a command needs"),
                   readKey, [](const Command& c) { return keyName(c.key); }};
const Argument text{QT_TRANSLATE_NOOP3("pad::Recording", "a text", "recording; what a command needs"),
                    readText, writeText};
const Argument fileName{
    QT_TRANSLATE_NOOP3("pad::Recording", "a file name", "recording; what a command needs"), readFileName,
    writeText};

const Argument manners{{"WORDS", nullptr}, readManners, writeManners};

} // namespace arguments

} // namespace pad
