#include "Wording.h"

#include "CommandLine.h"
#include "Documents.h"
#include "StatusLine.h"

#include <QFileInfo>
#include <QLocale>

namespace pad {

namespace {

/// Nothing of it goes to another line.
QString inKilobytes(const QString& number)
{
    return Documents::tr("%1 kB", "size of a file")
        .arg(number)
        .replace(QLatin1Char(' '), QChar(QChar::Nbsp));
}

} // namespace

QString wording::inPixels(QSize size)
{
    const QLocale locale;
    return QStringLiteral("%1\u00a0×\u00a0%2")
        .arg(locale.toString(size.width()), locale.toString(size.height()));
}

QString wording::fileSize(qint64 bytes)
{
    return pad::inKilobytes(QLocale().toString(double(bytes) / kilobyte, 'f', 1));
}

QString wording::inKilobytes(int count)
{
    return pad::inKilobytes(QLocale().toString(count));
}

QString wording::inColors(int count, bool areBlackAndWhite)
{
    return areBlackAndWhite ? Documents::tr("Black and white", "canvas type")
                            : Documents::tr("%Ln colors", "canvas type", count);
}

QString wording::zoom()
{
    return StatusLine::tr("Zoom", "status line");
}

QString wording::percent(int number)
{
    return StatusLine::tr("%1 %", "zoom").arg(plainNumber(number));
}

QString wording::shortName(const QString& path)
{
    constexpr int most = 40;
    constexpr int end = 12; // with the extension
    const QString name = QFileInfo(path).fileName();
    return name.size() <= most ? name : name.left(most - end) + QChar(0x2026) + name.right(end);
}

QString wording::plainNumber(int number)
{
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale.toString(number);
}

QString wording::withoutMnemonic(const QString& label)
{
    constexpr qsizetype length = 4; // of "(&S)", which some languages put behind the word
    const qsizetype at = label.indexOf(QLatin1String("(&"));
    if (at < 0 || label.indexOf(QLatin1Char(')'), at) != at + length - 1)
        return QString(label).remove(QLatin1Char('&'));
    return label.left(at).trimmed() + label.mid(at + length);
}

QString wording::plainLabel(const QString& label)
{
    return withoutMnemonic(label).remove(QLatin1String(" ..."));
}

QString wording::withKey(const QString& name, const QString& key)
{
    return key.isEmpty() ? name : QStringLiteral("%1 (%2)").arg(name, key);
}

Failure wording::unknownOption(const QString& option)
{
    return {CommandLine::tr("unknown option '%1' (--help lists them)", "command line").arg(option)};
}

Failure wording::noValue(const QString& option, const QString& value)
{
    return {CommandLine::tr("%1 needs a value: %1 %2", "command line").arg(option, value)};
}

Failure wording::twoPictures(const QString& one, const QString& other)
{
    return {CommandLine::tr("one picture at a time: '%1' and '%2'", "command line").arg(one, other)};
}

Failure wording::emptyName()
{
    return {CommandLine::tr("the picture's name is empty", "command line")};
}

} // namespace pad
