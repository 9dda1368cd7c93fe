#include "KORVA_Characters.h"

#include <QTextBoundaryFinder>

#include <utility>

QStringList characters::all(const QString& text)
{
    QStringList found;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    for (qsizetype begin = 0, end = finder.toNextBoundary(); end > begin;
         begin = std::exchange(end, finder.toNextBoundary()))
        found.append(text.mid(begin, end - begin));
    return found;
}

QString characters::first(const QString& text)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    return text.left(finder.toNextBoundary());
}

QString characters::last(const QString& text)
{
    if (text.endsWith('\n'))
        return QStringLiteral("\n");
    const QString line = text.mid(text.lastIndexOf('\n') + 1);
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, line);
    finder.toEnd();
    return line.mid(finder.toPreviousBoundary());
}
