#include "KORVA_Formats.h"
#include "support/TestCase.h"

namespace formats = KORVA_Formats;

namespace {

QString textOf(const QString& name)
{
    QFile file(KORVA_SOURCE_DIR "/" + name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()).simplified() : QString();
}

/// "PNG, JPEG and BMP"
QString enumeration(QStringList names)
{
    names.removeDuplicates();
    const QString last = names.takeLast();
    return names.join(", ") + " and " + last;
}

} // namespace

/// All that names picture formats says the same.
class tst_Formats : public support::TestCase
{
    Q_OBJECT

private slots:
    void dialogsOfferThem();
    void extensionsDecide_data();
    void extensionsDecide();
    void theDesktopKnowsThem();
    void theDocumentsNameThem_data();
    void theDocumentsNameThem();
};

void tst_Formats::dialogsOfferThem()
{
    QCOMPARE(KORVA_Formats::openPatterns(),
             QStringList({"*.png", "*.gif", "*.jpeg", "*.jpg", "*.bmp", "*.wbmp"}));
    QCOMPARE(KORVA_Formats::savePatterns(), QStringList({"*.png", "*.jpeg", "*.jpg", "*.bmp"}));
}

void tst_Formats::extensionsDecide_data()
{
    QTest::addColumn<QByteArray>("read");
    QTest::addColumn<QByteArray>("written");
    const QByteArray none;
    const std::tuple<const char*, QByteArray, QByteArray> rows[] = {
        {"a.bmp", "BMP", "BMP"},    {"a.BMP", "BMP", "BMP"},     {"a.jpg", "JPEG", "JPEG"},
        {"a.Jpe", "JPEG", "JPEG"},  {"a.JPEG", "JPEG", "JPEG"},  {"a.gif", "GIF", none},
        {"a.Gif", "GIF", none},     {"a.wbmp", "WBMP", "PNG"},   {"a.png", "PNG", "PNG"},
        {"a.tif", "PNG", "PNG"},    {"a", "PNG", "PNG"},         {"gif", "PNG", "PNG"},
        {"a.", "PNG", "PNG"},       {"a.gif.png", "PNG", "PNG"}, {"a.png.gif", "GIF", none},
        {"/b.gif/a", "PNG", "PNG"}, {"", "PNG", "PNG"},          {".gif", "GIF", none},
    };
    for (const auto& [name, read, written] : rows)
        QTest::addRow("\"%s\"", name) << read << written;
}

void tst_Formats::extensionsDecide()
{
    QFETCH(QByteArray, read);
    QFETCH(QByteArray, written);
    const QString name = QString(QTest::currentDataTag()).remove('"');
    QCOMPARE(KORVA_Formats::readFormat(name), read);
    QCOMPARE(KORVA_Formats::writeFormat(name), written);
}

void tst_Formats::theDesktopKnowsThem()
{
    QStringList types;
    for (const formats::Row& row : formats::rows)
        types.append(row.mimeType);
    types.removeDuplicates();
    types.sort();

    const QString desktop = textOf("packaging/korva-pad.desktop");
    QStringList told = QRegularExpression("MimeType=(\\S+);").match(desktop).captured(1).split(';');
    told.sort();
    QCOMPARE(told, types);

    QStringList listed;
    const QString metainfo = textOf("packaging/org.korva.pad.metainfo.xml");
    auto match = QRegularExpression("<mediatype>([^<]+)</mediatype>").globalMatch(metainfo);
    while (match.hasNext())
        listed.append(match.next().captured(1));
    listed.sort();
    QCOMPARE(listed, types);
}

void tst_Formats::theDocumentsNameThem_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name : {"README.md", "docs/man/korva-pad.1", "packaging/org.korva.pad.metainfo.xml"})
        QTest::newRow(name) << name;
}

void tst_Formats::theDocumentsNameThem()
{
    QFETCH(const QString, name);
    QStringList read;
    QStringList written;
    for (const formats::Row& row : formats::rows) {
        read.append(row.format);
        if (qstrcmp(row.written, row.format) == 0)
            written.append(row.format);
    }
    const QString text = textOf(name);
    QVERIFY2(text.contains(enumeration(read)), qPrintable(enumeration(read)));
    QVERIFY2(text.contains(enumeration(written)), qPrintable(enumeration(written)));
}

int main(int argc, char** argv)
{
    return support::run<tst_Formats>(argc, argv);
}

#include "tst_Formats.moc"
