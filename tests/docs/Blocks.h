#pragma once

#include <QList>
#include <QString>

/// The fenced code blocks of the documents, and what the tests make of them.
///
/// A comment before a block, which a reader does not see, says how it is proven: "<!-- cpp: int f(int x)
/// -->".
namespace docs {

struct Block
{
    QString document = {}; ///< relative to the root, as "docs/embedding.md"
    int line = 0;          ///< of its first line of code, from 1
    QString language = {}; ///< empty for none
    QString kind = {};     ///< of the comment before it, as "cpp"; empty for none
    QString rule = {};     ///< what follows in the comment
    QString text = {};

    [[nodiscard]] QString place() const { return QString("%1:%2").arg(document).arg(line); }
};

[[nodiscard]] QString contents(const QString& path);
/// Every Markdown document of the project, relative to the root.
[[nodiscard]] QStringList documents();
[[nodiscard]] QList<Block> blocksIn(const QString& document);
[[nodiscard]] QList<Block> allBlocks();

/// One source of all blocks of C++, for inclusion: each document is a namespace, in which a block with the
/// rule "file" stands as it is, one with the rule "member" in the class Services, and one with a signature
/// is that function's body. Includes come first. A program, which is also a file of its own, is left out.
[[nodiscard]] QString cppSource(const QList<Block>& blocks);

/// What the first group of a pattern finds in a text, in which ^ and $ stand for those of a line.
[[nodiscard]] QStringList captured(const QString& text, const char* pattern);

} // namespace docs
