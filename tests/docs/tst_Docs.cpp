#include "Blocks.h"
#include "Recording.h"
#include "support/Images.h"
#include "support/PictureFiles.h"
#include "support/TestCase.h"

#include <KORVA_EditCanvas.h>

using docs::Block;
using docs::captured;

namespace {

constexpr int patience = 60'000; // ms

const QStringList languages = {"cpp", "cmake", "python", "sh", "korva", "text", ""};

/// The first column of the table below a heading, without the code marks.
QStringList firstColumn(const QString& document, const QString& heading)
{
    const QString section = docs::contents(document).section("\n## " + heading, 1).section("\n## ", 0, 0);
    QStringList cells;
    for (const QString& cell : captured(section, "^\\| (`[^|]*`) \\|"))
        cells << captured(cell, "`([^`]*)`");
    return cells;
}

/// As the documents write a signal or slot, without the parameters' names.
QStringList methods(QMetaMethod::MethodType type)
{
    const QMetaObject& meta = KORVA_EditCanvas::staticMetaObject;
    QStringList all;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        if (meta.method(i).methodType() == type)
            all << QString(meta.method(i).methodSignature()).replace("(QString)", "(const QString&)");
    return all;
}

QString ran(const QString& folder, const QString& program, const QStringList& arguments, int* exitCode)
{
    QProcess process;
    process.setWorkingDirectory(folder);
    process.setProcessChannelMode(QProcess::MergedChannels);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("PATH", KORVA_PROGRAMS ":" + environment.value("PATH"));
    environment.insert("HOME", folder);
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    environment.remove("KIV_LOCAL_DOWNLOAD_PATH");
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    *exitCode = process.waitForFinished(patience) ? process.exitCode() : -1;
    return QString::fromUtf8(process.readAll());
}

} // namespace

/// The documents: every block of code is proven by some test, and the tables are complete.
class tst_Docs : public support::TestCase
{
    Q_OBJECT

private slots:
    void documentsAreFound();
    void everyBlockHasAProof();
    void programsAreTheFiles();
    void blocksOfOneNameAreOne();
    void diagramsNameWhatIsThere();
    void linksLeadSomewhere();
    void signalsAndSlotsAreComplete();
    void servicesAreComplete();
    void everyCommandHasAnExample();
    void expectationsNameTests();
    void blocksRun_data();
    void blocksRun();

private:
    void prepare(const QDir& folder, const QList<Block>& blocks);
};

void tst_Docs::documentsAreFound()
{
    const QStringList found = docs::documents();
    for (const char* name : {"README.md", "CONTRIBUTING.md", "docs/embedding.md", "packaging/README.md"})
        QVERIFY2(found.contains(name), name);
    QVERIFY(docs::allBlocks().size() > 30);
}

void tst_Docs::everyBlockHasAProof()
{
    for (const Block& block : docs::allBlocks()) {
        const QByteArray place = block.place().toUtf8();
        QVERIFY2(languages.contains(block.language), place);
        QVERIFY2(!block.text.isEmpty(), place);
        if (block.language == "text")
            QVERIFY2(block.kind == "output", place);
        else if (block.language.isEmpty())
            QVERIFY2(block.kind == "diagram", place);
        else if (!block.kind.isEmpty() || block.language == "cpp" || block.language == "cmake" ||
                 block.language == "python")
            QVERIFY2(block.kind == block.language && (block.kind == "sh" || !block.rule.isEmpty()), place);
        // Who has a name is run by the test install/name, which reads it under that name.
        if (block.language == "cmake" || (block.language == "sh" && !block.rule.isEmpty())) {
            const QString script = docs::contents("tests/install/" + block.rule + ".cmake");
            QVERIFY2(script.contains("compose(" + block.rule) || script.contains("${blocks}/" + block.rule),
                     place);
            QVERIFY2(
                docs::contents("tests/install/CMakeLists.txt").contains("install_test(" + block.rule + ")"),
                place);
        }
    }
}

void tst_Docs::programsAreTheFiles()
{
    int programs = 0;
    for (const Block& block : docs::allBlocks()) {
        if ((block.language != "cpp" && block.language != "python") || !block.rule.startsWith("program "))
            continue;
        ++programs;
        const QString file = block.rule.section(' ', 1);
        QVERIFY2(file.startsWith("examples/"), qPrintable(block.place())); // they are built and driven
        QCOMPARE(block.text, docs::contents(file));
    }
    QCOMPARE(programs, 2);
}

void tst_Docs::blocksOfOneNameAreOne()
{
    QHash<QString, QString> texts;
    for (const Block& block : docs::allBlocks()) {
        if (block.language != "cmake" && (block.language != "sh" || block.rule.isEmpty()))
            continue;
        QVERIFY2(texts.value(block.rule, block.text) == block.text, qPrintable(block.place()));
        texts.insert(block.rule, block.text);
    }
    QVERIFY(texts.size() >= 4);
}

void tst_Docs::diagramsNameWhatIsThere()
{
    int names = 0;
    for (const Block& block : docs::allBlocks()) {
        if (block.kind != "diagram")
            continue;
        for (const QString& name : captured(block.text, "\\b(KORVA_\\w+)")) {
            ++names;
            QVERIFY2(!docs::contents("src/" + name + ".h").isEmpty() ||
                         !docs::contents("toolkit/" + name + ".h").isEmpty(),
                     qPrintable(name));
        }
    }
    QVERIFY(names >= 20);
}

void tst_Docs::linksLeadSomewhere()
{
    int links = 0;
    for (const QString& document : docs::documents()) {
        const QDir folder = QFileInfo(QString(KORVA_SOURCE_DIR "/") + document).dir();
        for (const QString& link : captured(docs::contents(document), "\\]\\(([^)#\\s]+)[^)\\s]*\\)")) {
            ++links;
            QVERIFY2(link.startsWith("http") || folder.exists(link), qPrintable(document + ": " + link));
        }
    }
    QVERIFY(links > 5);
}

void tst_Docs::signalsAndSlotsAreComplete()
{
    QCOMPARE(firstColumn("docs/embedding.md", "Signals"), methods(QMetaMethod::Signal));
    QCOMPARE(firstColumn("docs/embedding.md", "Operations and slots"), methods(QMetaMethod::Slot));
    QCOMPARE(methods(QMetaMethod::Signal).size(), 16);
    QCOMPARE(methods(QMetaMethod::Slot).size(), 9);
}

void tst_Docs::servicesAreComplete()
{
    QStringList replaced;
    for (const Block& block : docs::blocksIn("docs/embedding.md"))
        if (block.rule == "member")
            replaced << captured(block.text, "(\\w+)\\([^;]*(?:const )?override");
    QStringList services = captured(docs::contents("platform/UTIL_Platform.h"),
                                    "^ +(?:\\[\\[nodiscard\\]\\] )?virtual [^~;]*?(\\w+)\\(");
    QVERIFY(services.size() >= 11);
    services.sort();
    replaced.sort();
    QCOMPARE(replaced, services);
}

void tst_Docs::everyCommandHasAnExample()
{
    QString text;
    for (const Block& block : docs::blocksIn("docs/recording.md"))
        if (block.language == "korva" && !block.rule.endsWith("stops"))
            text += block.text;
    const auto hasLine = [&text](const QString& start) {
        return QRegularExpression("^" + start + "\\b", QRegularExpression::MultilineOption)
            .match(text)
            .hasMatch();
    };
    const QStringList words = captured(docs::contents("host/Recording.cpp"), "\\{\"(\\w+)\", Verb::");
    QVERIFY(words.size() >= 22);
    const QStringList inManual =
        captured(docs::contents("docs/man/korva-pad.1").section(".SH RECORDINGS", 1), "([a-z]+)");
    for (const QString& word : words) {
        QVERIFY2(hasLine(word), qPrintable(word));
        QVERIFY2(inManual.contains(word), qPrintable("the manual page lacks " + word));
    }
    for (int tool = 0; !KORVA_EditCanvas::toolWord(tool).isEmpty(); ++tool) {
        const QString word = KORVA_EditCanvas::toolWord(tool);
        QVERIFY2(hasLine("tool " + word), qPrintable(word));
    }
    for (const char* name : pad::zoomNames)
        QVERIFY2(hasLine(QString("zoom %1").arg(name)), name);
    for (const char* name : pad::canvasNames)
        QVERIFY2(hasLine(QString("canvas %1").arg(name)), name);

    QStringList described;
    for (const QString& cell : firstColumn("docs/recording.md", "The language"))
        described << cell.section(' ', 0, 0);
    QCOMPARE(QSet<QString>(described.begin(), described.end()), QSet<QString>(words.begin(), words.end()));
}

/// The rows of expectations.md name tests that there are, functions included, and each row names one.
void tst_Docs::expectationsNameTests()
{
    int exitCode = 0;
    const QString listed = ran(KORVA_BUILD_DIR, KORVA_CTEST, {"--show-only=json-v1"}, &exitCode);
    QHash<QString, QString> programs;
    for (const QJsonValue test : QJsonDocument::fromJson(listed.toUtf8())["tests"].toArray())
        programs.insert(test["name"].toString(), test["command"].toArray().last().toString());
    QVERIFY(programs.size() > 70);

    QHash<QString, QString> functions;
    int rows = 0;
    for (const QString& line : docs::contents("docs/expectations.md").split('\n')) {
        if (!line.startsWith("| ") || line.startsWith("| an embedder expects |"))
            continue;
        ++rows;
        const QStringList named = captured(line.section('|', 3, 3), "`([^`]+)`");
        QVERIFY2(!named.isEmpty(), qPrintable(line));
        for (const QString& name : named) {
            const QString test = name.section("::", 0, 0);
            const QString function = name.section("::", 1);
            QVERIFY2(programs.contains(test), qPrintable(name));
            if (function.isEmpty())
                continue;
            if (!functions.contains(test))
                functions.insert(test,
                                 '\n' + ran(KORVA_BUILD_DIR, programs[test], {"-functions"}, &exitCode));
            QVERIFY2(functions[test].contains('\n' + function + "()\n"), qPrintable(name));
        }
    }
    QVERIFY(rows > 30);
}

/// What the blocks of a document find in their folder.
void tst_Docs::prepare(const QDir& folder, const QList<Block>& blocks)
{
    const QImage photo = support::sheet(QSize(80, 60), Qt::blue);
    for (const char* name : {"photo.png", "photo.jpg", "photo.bmp"})
        QVERIFY(photo.save(folder.filePath(name)));
    for (const char* name : {"photo.gif", "photo.wbmp"})
        QVERIFY(support::convert({folder.filePath("photo.png"), folder.filePath(name)}));
    for (const Block& block : blocks)
        if (block.language == "korva" && !block.rule.isEmpty())
            support::write(folder.filePath(block.rule.section(' ', 0, 0)), block.text.toUtf8());

    // The scripts at the root build for minutes. Standing in for them: their own syntax is checked, then
    // what they would start is started, and for the tests only found.
    const auto standIn = [&folder](const QString& name, const QString& work) {
        const QString real = KORVA_SOURCE_DIR "/" + name;
        support::write(folder.filePath(name),
                       QString("#!/bin/sh -eu\ntest -x '%1'\nbash -n '%1'\n%2\n").arg(real, work).toUtf8());
        QFile::setPermissions(folder.filePath(name),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    };
    standIn("run", "exec korva-pad --screenshot run.png \"$@\"");
    standIn("bench", "exec python3 " KORVA_SOURCE_DIR "/benchmarks/bench.py --help");
    standIn("test", QString("'%1' --test-dir '%2' -N \"$@\" | grep '^Total Tests: [1-9]'")
                        .arg(KORVA_CTEST, KORVA_BUILD_DIR));
}

void tst_Docs::blocksRun_data()
{
    QTest::addColumn<QString>("document");
    for (const QString& document : docs::documents()) {
        const QList<Block> blocks = docs::blocksIn(document);
        if (std::any_of(blocks.begin(), blocks.end(), [](const Block& block) {
                return block.language == "korva" || (block.language == "sh" && block.rule.isEmpty());
            }))
            QTest::newRow(document.toUtf8()) << document;
    }
}

/// One after the other in one folder, as a reader would do.
void tst_Docs::blocksRun()
{
    QFETCH(const QString, document);
    const QTemporaryDir folder;
    const QList<Block> blocks = docs::blocksIn(document);
    prepare(QDir(folder.path()), blocks);
    QString output;
    int exitCode = 0;
    for (const Block& block : blocks) {
        const QByteArray place = block.place().toUtf8();
        if (block.language == "sh" && block.rule.isEmpty()) {
            output = ran(folder.path(), "sh", {"-euc", block.text}, &exitCode);
            QVERIFY2(exitCode == 0, place + '\n' + output.toUtf8());
        } else if (block.kind == "output") {
            QVERIFY2(output == block.text, place + '\n' + output.toUtf8());
        } else if (block.language == "korva") {
            support::write(folder.filePath("block.rec"), block.text.toUtf8());
            const bool stops = block.rule.endsWith(" stops");
            output = ran(folder.path(), KORVA_PROGRAMS "/korva-pad",
                         {"--replay", "block.rec", "--save", "block.png"}, &exitCode);
            QVERIFY2(exitCode == (stops ? 1 : 0), place + '\n' + output.toUtf8());
            QVERIFY2(stops || !QImage(folder.filePath("block.png")).isNull(), place);
        }
    }
}

int main(int argc, char** argv)
{
    return support::run<tst_Docs>(argc, argv);
}

#include "tst_Docs.moc"
