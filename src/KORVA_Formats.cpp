#include "KORVA_Formats.h"

#include <QFileInfo>

#include <algorithm>

namespace {

using KORVA_Formats::Row;

/// The patterns of the rows that are offered and for which a condition holds.
template <typename Condition>
QStringList patterns(const QStringList* formats, const Condition& holds)
{
    QStringList found;
    for (const Row& row : KORVA_Formats::rows) {
        const bool isWanted = !formats || formats->contains(QLatin1String(row.format));
        if (row.isOffered && isWanted && holds(row))
            found.append(QStringLiteral("*.%1").arg(QLatin1String(row.extension)));
    }
    return found;
}

} // namespace

const Row& KORVA_Formats::rowOf(const QString& fileName)
{
    const QString extension = QFileInfo(fileName).suffix();
    const auto* const row = std::find_if(rows.begin(), rows.end(), [&](const Row& each) {
        return extension.compare(QLatin1String(each.extension), Qt::CaseInsensitive) == 0;
    });
    return row != rows.end() ? *row : anyOther;
}

QByteArray KORVA_Formats::readFormat(const QString& fileName)
{
    return rowOf(fileName).format;
}

QByteArray KORVA_Formats::writeFormat(const QString& fileName)
{
    return rowOf(fileName).written;
}

QStringList KORVA_Formats::openPatterns(const QStringList* formats)
{
    return patterns(formats, [](const Row&) { return true; });
}

QStringList KORVA_Formats::savePatterns(const QStringList* formats)
{
    return patterns(formats, [](const Row& row) { return qstrcmp(row.written, row.format) == 0; });
}
