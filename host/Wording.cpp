#include "Wording.h"

#include "CommandLine.h"

#include <QLocale>
#include <QRegularExpression>

namespace pad {

QString wording::inPixels(QSize size)
{
    const QLocale locale;
    return QStringLiteral("%1\u00a0×\u00a0%2")
        .arg(locale.toString(size.width()), locale.toString(size.height()));
}

QString wording::plainNumber(int number)
{
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale.toString(number);
}

QString wording::withoutMnemonic(const QString& label)
{
    static const QRegularExpression behind(QStringLiteral(" *\\(&\\w\\)"));
    return QString(label).remove(behind).remove(QLatin1Char('&'));
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
