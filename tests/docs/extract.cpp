#include "Blocks.h"

#include <QDir>
#include <QSaveFile>

#include <cstdio>

namespace {

bool write(const QString& path, const QString& text)
{
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text.toUtf8()) >= 0 && file.commit();
}

} // namespace

/// extract FOLDER: writes the blocks that others compile or run: cpp.inc, and those of CMake and for the
/// shell that have a name, each as a file of that name.
int main(int argc, char** argv)
{
    if (argc != 2 || !QDir().mkpath(argv[1]))
        return 2;
    const QDir folder(argv[1]);
    const QList<docs::Block> blocks = docs::allBlocks();
    bool written = write(folder.filePath("cpp.inc"), docs::cppSource(blocks));
    for (const docs::Block& block : blocks) {
        if ((block.language == "cmake" || block.language == "sh") && !block.rule.isEmpty())
            written = written && write(folder.filePath(block.rule), block.text);
    }
    if (!written)
        std::perror("extract");
    return written ? 0 : 1;
}
