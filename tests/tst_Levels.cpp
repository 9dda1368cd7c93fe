#include "support/TestCase.h"

namespace {

// From the ground up. The examples and the plugin stand where hosts stand, on the public headers; the pad
// has tools of the examples.
const QStringList levels = {"toolkit", "platform", "src", "designer", "examples", "host"};
const QStringList outsiders = {"host", "examples", "designer"};

QString contents(const QString& path)
{
    QFile file(QString(KORVA_SOURCE_DIR "/") + path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// All sources and headers of a level, as "src/KORVA_Canvas.cpp".
QStringList filesOf(const QString& level)
{
    const QDir root(KORVA_SOURCE_DIR);
    QStringList files;
    QDirIterator walk(root.filePath(level), {"*.h", "*.cpp"}, QDir::Files, QDirIterator::Subdirectories);
    while (walk.hasNext())
        files << root.relativeFilePath(walk.next());
    files.sort();
    return files;
}

/// The level in which a header lives, by its file name; headers from elsewhere have none.
QHash<QString, QString> headerLevels()
{
    QHash<QString, QString> homes;
    for (const QString& level : levels)
        for (const QString& file : filesOf(level))
            if (file.endsWith(".h"))
                homes.insert(QFileInfo(file).fileName(), level);
    return homes;
}

/// What hosts may include, by file name.
QSet<QString> publicHeaders()
{
    const QRegularExpression list("set\\(korva_public_headers([^)]*)\\)");
    QSet<QString> names;
    for (const QString& path :
         list.match(contents("src/CMakeLists.txt")).captured(1).split(QRegularExpression("\\s+")))
        if (!path.isEmpty())
            names << QFileInfo(path).fileName();
    return names;
}

QStringList includesIn(const QString& text)
{
    static const QRegularExpression include("^\\s*#\\s*include\\s*[<\"]([^>\"]+)[>\"]",
                                            QRegularExpression::MultilineOption);
    QStringList names;
    for (const QRegularExpressionMatch& match : include.globalMatch(text))
        names << QFileInfo(match.captured(1)).fileName();
    return names;
}

/// The headers that a file of this level includes and must not.
QStringList wrongIncludes(const QString& level, const QString& text)
{
    static const QHash<QString, QString> homes = headerLevels();
    static const QSet<QString> publicOnes = publicHeaders();
    QStringList wrong;
    for (const QString& header : includesIn(text)) {
        const QString home = homes.value(header, level);
        const bool above = levels.indexOf(home) > levels.indexOf(level);
        const bool hidden =
            outsiders.contains(level) && !outsiders.contains(home) && !publicOnes.contains(header);
        if (above || hidden)
            wrong << header;
    }
    return wrong;
}

} // namespace

class tst_Levels : public support::TestCase
{
    Q_OBJECT

private slots:
    void levelsAndPublicHeadersAreFound();
    void wrongIncludesAreNoticed_data();
    void wrongIncludesAreNoticed();
    void headersHaveOneHome();
    void fileIncludesOnlyWhatItMay_data();
    void fileIncludesOnlyWhatItMay();
};

void tst_Levels::levelsAndPublicHeadersAreFound()
{
    for (const char* level : {"toolkit", "platform", "src", "host"})
        QVERIFY2(!filesOf(level).isEmpty(), level);
    QVERIFY(publicHeaders().contains("KORVA_Canvas.h"));
    QVERIFY(publicHeaders().contains("UTIL_Platform.h"));
    QVERIFY(!publicHeaders().contains("KORVA_ClassicPainter.h"));
}

void tst_Levels::wrongIncludesAreNoticed_data()
{
    QTest::addColumn<QString>("level");
    QTest::addColumn<QString>("line");
    QTest::addColumn<bool>("wrong");
    const auto row = [](const char* name, const char* level, const char* line, bool wrong) {
        QTest::newRow(name) << QString(level) << QString(line) << wrong;
    };
    row("engine in the toolkit", "toolkit", "#include \"KORVA_Canvas.h\"", true);
    row("engine by path in the toolkit", "toolkit", "  # include <../src/KORVA_Canvas.h>", true);
    row("platform in the toolkit", "toolkit", "#include \"UTIL_Platform.h\"", true);
    row("engine in the platform", "platform", "#include \"KORVA_Canvas.h\"", true);
    row("toolkit in the platform", "platform", "#include \"KORVA_Assert.h\"", false);
    row("toolkit in the engine", "src", "#include \"KORVA_ClassicPainter.h\"", false);
    row("engine in the engine", "src", "#include \"KORVA_Canvas.h\"", false);
    row("Qt", "toolkit", "#include <QPainter>", false);
    row("public header in the host", "host", "#include \"KORVA_Canvas.h\"", false);
    row("hidden header in the host", "host", "#include \"KORVA_ClassicPainter.h\"", true);
    row("hidden header in an example", "examples", "#include <UTIL_ImageReader.h>", true);
    row("hidden header in the plugin", "designer", "#include <UTIL_ImageReader.h>", true);
    row("public header in the plugin", "designer", "#include <KORVA_EditCanvas.h>", false);
    row("in a comment", "toolkit", "// #include \"KORVA_Canvas.h\"", false);
}

void tst_Levels::wrongIncludesAreNoticed()
{
    QFETCH(const QString, level);
    QFETCH(const QString, line);
    QFETCH(const bool, wrong);
    QCOMPARE(wrongIncludes(level, "#pragma once\n" + line + "\nint x;\n").size(), wrong ? 1 : 0);
}

void tst_Levels::headersHaveOneHome()
{
    int headers = 0;
    for (const QString& level : levels)
        headers += filesOf(level).filter(QRegularExpression("\\.h$")).size();
    QCOMPARE(headerLevels().size(), headers);
}

void tst_Levels::fileIncludesOnlyWhatItMay_data()
{
    QTest::addColumn<QString>("level");
    for (const QString& level : levels)
        for (const QString& file : filesOf(level))
            QTest::newRow(file.toUtf8()) << level;
}

void tst_Levels::fileIncludesOnlyWhatItMay()
{
    QFETCH(const QString, level);
    const QString text = contents(QTest::currentDataTag());
    QVERIFY(!text.isEmpty());
    QCOMPARE(wrongIncludes(level, text), QStringList());
}

int main(int argc, char** argv)
{
    return support::run<tst_Levels>(argc, argv);
}

#include "tst_Levels.moc"
