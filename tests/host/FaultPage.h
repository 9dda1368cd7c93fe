#pragma once

#include "support/PictureFiles.h"

#include <QtCore>

/// The tables of the page about faults, which the tests make.
namespace fixtures {

inline const QString faultPage = KORVA_SOURCE_DIR "/docs/faults.md";

[[nodiscard]] inline QString startOf(const QString& table)
{
    return "<!-- found: " + table + " -->\n";
}

/// What the page says.
[[nodiscard]] inline QString told(const QString& table)
{
    return QString::fromUtf8(support::contents(faultPage))
        .section(startOf(table), 1)
        .section("<!-- end -->", 0, 0);
}

/// Writes it anew, if the environment wants that.
inline void rewrite(const QString& table, const QString& found)
{
    if (!qEnvironmentVariableIsSet("KORVA_WRITE_FAULTS"))
        return;
    QString text = QString::fromUtf8(support::contents(faultPage));
    const qsizetype start = text.indexOf(startOf(table)) + startOf(table).size();
    text.replace(start, text.indexOf("<!-- end -->", start) - start, found);
    support::write(faultPage, text.toUtf8());
}

/// Without what is another one each time.
[[nodiscard]] inline QString withoutChance(QString text)
{
    text.remove(QRegularExpression("/\\S*/"));
    text.replace(QRegularExpression("living-[^.]+"), "living-*");
    text.replace(QRegularExpression("\\.korva\\.[0-9a-f]{32}"), ".korva.*");
    return text.replace(QRegularExpression("\\.png\\.[A-Za-z0-9]{6}"), ".png.*");
}

/// Whether it is a temporary file whose name is another one each time.
[[nodiscard]] inline bool isHalfMade(const QString& name)
{
    return withoutChance(name).endsWith('*');
}

} // namespace fixtures
