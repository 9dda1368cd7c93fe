#include "Blocks.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>

namespace docs {

QString contents(const QString& path)
{
    QFile file(QString(KORVA_SOURCE_DIR "/") + path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList documents()
{
    const QDir root(KORVA_SOURCE_DIR);
    QStringList found = root.entryList({"*.md"}, QDir::Files);
    for (const QString& folder : root.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        if (folder.startsWith("build"))
            continue;
        QDirIterator walk(root.filePath(folder), {"*.md"}, QDir::Files, QDirIterator::Subdirectories);
        while (walk.hasNext())
            found << root.relativeFilePath(walk.next());
    }
    found.sort();
    return found;
}

QList<Block> blocksIn(const QString& document)
{
    static const QRegularExpression comment("^<!-- *(\\w+)(?:: *(.*?))? *-->$");
    QList<Block> blocks;
    Block next{.document = document};
    bool inside = false;
    int number = 0;
    for (const QString& line : contents(document).split('\n')) {
        ++number;
        if (line.trimmed().startsWith("```")) {
            if (inside)
                blocks << std::exchange(next, Block{.document = document});
            next.line = number + 1;
            next.language = line.trimmed().mid(3);
            inside = !inside;
        } else if (inside) {
            next.text += line + '\n';
        } else if (const auto match = comment.match(line); match.hasMatch()) {
            next.kind = match.captured(1);
            next.rule = match.captured(2);
        } else if (!line.isEmpty()) {
            next = {.document = document};
        }
    }
    if (inside)
        blocks << next;
    return blocks;
}

QList<Block> allBlocks()
{
    QList<Block> blocks;
    for (const QString& document : documents())
        blocks << blocksIn(document);
    return blocks;
}

QString cppSource(const QList<Block>& blocks)
{
    QString includes;
    QMap<QString, QString> free;
    QMap<QString, QString> members;
    for (const Block& block : blocks) {
        if (block.language != "cpp" || block.rule.startsWith("program "))
            continue;
        QString code;
        for (const QString& line : block.text.split('\n')) {
            const bool isInclude = line.startsWith("#include");
            if (isInclude)
                includes += line + '\n';
            code += (isInclude ? QString() : line) + '\n';
        }
        const bool isBody = block.rule != "file" && block.rule != "member";
        if (isBody) // which begins in the two lines above
            code = block.rule + "\n{\n" + code + "}\n";
        code.prepend(QString("#line %1 \"%2\"\n")
                         .arg(block.line - (isBody ? 2 : 0))
                         .arg(KORVA_SOURCE_DIR "/" + block.document));
        QString& others = free[block.document];
        if (block.rule == "member")
            members[block.document] += code;
        else
            others += code;
    }
    QString source = includes + "namespace {\n";
    for (auto it = free.begin(); it != free.end(); ++it) {
        const QString name = it.key().section('/', -1).section('.', 0, 0).toLower();
        source += "namespace " + name + " {\n" + it.value();
        if (const QString inside = members.value(it.key()); !inside.isEmpty())
            source += "class Services : public Device\n{\npublic:\n" + inside + "};\n";
        source += "}\n";
    }
    return source + "}\n";
}

QStringList captured(const QString& text, const char* pattern)
{
    QStringList all;
    for (const auto& match :
         QRegularExpression(pattern, QRegularExpression::MultilineOption).globalMatch(text))
        all << match.captured(1);
    return all;
}

} // namespace docs
