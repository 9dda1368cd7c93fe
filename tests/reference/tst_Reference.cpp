#include "support/TestCase.h"

#include <QXmlStreamReader>

/// Doxygen makes the reference without a warning, and nothing public is missing from it.
class tst_Reference : public support::TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void doxygenWarnsOfNothing();
    void everythingPublicIsThere_data();
    void everythingPublicIsThere();
    void whatIsNamedExists();

private:
    [[nodiscard]] QString html(const QString& page) const { return m_folder.filePath("reference/" + page); }

    QTemporaryDir m_folder;
    int m_exitCode = -1;
    QString m_warnings;
};

namespace {

QString contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList declared(const QString& source, const char* pattern)
{
    const QRegularExpression expression(pattern, QRegularExpression::MultilineOption);
    QStringList names;
    for (auto match = expression.globalMatch(source); match.hasNext();)
        names.append(match.next().captured(1));
    return names;
}

QString inFileName(QString name)
{
    return name.replace('_', "__");
}

/// What a docstring names that does not exist: parameters, in code style or in a list of them, and names of
/// ours that led to no link. `checked` counts the parameters that do.
QStringList strangers(const QString& path, int* checked)
{
    static const QRegularExpression identifier("^[a-z]\\w*$");
    static const QRegularExpression ours("\\b(?:KORVA|UTIL|RES)_\\w*[a-z]\\w*(?:::\\w+)?");
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {path};
    QXmlStreamReader xml(&file);
    QStringList found;
    QStringList parameters;
    QStringList words;
    int paragraphs = 0;
    while (!xml.atEnd()) {
        xml.readNext();
        const QStringView name = xml.name();
        if (name == u"para")
            paragraphs += xml.isStartElement() ? 1 : -1;
        if (xml.isCharacters() && paragraphs > 0) {
            for (auto match = ours.globalMatch(xml.text()); match.hasNext();)
                found.append(match.next().captured());
        } else if (xml.isStartElement() && name == u"memberdef") {
            parameters.clear();
            words.clear();
        } else if (xml.isStartElement() && name == u"declname") {
            parameters.append(xml.readElementText());
        } else if (xml.isStartElement() && (name == u"computeroutput" || name == u"parametername")) {
            words.append(xml.readElementText(QXmlStreamReader::IncludeChildElements));
        } else if (xml.isStartElement() && name == u"ref" && paragraphs > 0) {
            xml.skipCurrentElement();
        } else if (xml.isEndElement() && name == u"memberdef") {
            for (const QString& word : words.filter(identifier)) {
                if (parameters.contains(word))
                    ++*checked;
                else
                    found.append(word);
            }
        }
    }
    for (QString& each : found)
        each = QFileInfo(path).fileName() + ": " + each;
    return found;
}

} // namespace

void tst_Reference::initTestCase()
{
    QVERIFY(m_folder.isValid());
    QProcess doxygen;
    doxygen.start("doxygen", {"-"});
    QVERIFY2(doxygen.waitForStarted(), qPrintable(doxygen.errorString()));
    doxygen.write("@INCLUDE = \"" KORVA_DOXYFILE "\"\n"
                  "OUTPUT_DIRECTORY = \"" +
                  m_folder.path().toUtf8() +
                  "\"\n"
                  "GENERATE_XML = YES\n"
                  "XML_PROGRAMLISTING = NO\n");
    doxygen.closeWriteChannel();
    QVERIFY2(doxygen.waitForFinished(), qPrintable(doxygen.errorString()));
    m_exitCode = doxygen.exitCode();
    m_warnings = QString::fromUtf8(doxygen.readAllStandardError() + doxygen.readAllStandardOutput());
}

void tst_Reference::doxygenWarnsOfNothing()
{
    QVERIFY2(m_warnings.isEmpty(), qPrintable(m_warnings));
    QCOMPARE(m_exitCode, 0);
}

void tst_Reference::everythingPublicIsThere_data()
{
    QTest::addColumn<QString>("header");
    for (const QString& header : QStringLiteral(KORVA_PUBLIC_HEADERS).split(':'))
        QTest::newRow(qPrintable(QFileInfo(header).fileName())) << header;
}

void tst_Reference::everythingPublicIsThere()
{
    QFETCH(const QString, header);
    const QString page = inFileName(QFileInfo(header).completeBaseName()) + "_8h_source.html";
    QVERIFY2(QFileInfo::exists(html(page)), qPrintable(page));

    const QString source = contents(header);
    const QStringList classes = declared(source, R"(^class (?:KORVA_EXPORT )?(\w+)(?: :.*)?$)");
    for (const QString& name : classes)
        QVERIFY2(QFileInfo::exists(html("class" + inFileName(name) + ".html")), qPrintable(name));
    const QStringList structs = declared(source, R"(^struct (?:KORVA_EXPORT )?(\w+)$)");
    for (const QString& name : structs)
        QVERIFY2(QFileInfo::exists(html("struct" + inFileName(name) + ".html")), qPrintable(name));
    const QStringList others = declared(source, R"(^enum (\w+))") +
                               declared(source, R"(^KORVA_EXPORT .*?(\w+)\()") +
                               declared(source, R"(^#define (\w+))");
    const QStringList spaces = declared(source, R"(^namespace (\w+))");
    for (const QString& name : spaces)
        QVERIFY2(QFileInfo::exists(html("namespace" + inFileName(name) + ".html")), qPrintable(name));
    const QString index = contents(html("globals.html"));
    for (const QString& name : others)
        QVERIFY2(index.contains(QRegularExpression("<li>" + name + "\\b")), qPrintable(name));
    QVERIFY(!classes.isEmpty() || !structs.isEmpty() || !others.isEmpty() || !spaces.isEmpty());
}

void tst_Reference::whatIsNamedExists()
{
    const QDir xml(m_folder.filePath("xml"));
    QStringList found;
    int checked = 0;
    for (const QString& name : xml.entryList({"class*.xml", "struct*.xml", "*_8h.xml", "indexpage.xml"}))
        found += strangers(xml.filePath(name), &checked);
    QVERIFY2(found.isEmpty(), qPrintable(found.join('\n')));
    QVERIFY(checked > 0);
}

int main(int argc, char** argv)
{
    return support::run<tst_Reference>(argc, argv);
}

#include "tst_Reference.moc"
