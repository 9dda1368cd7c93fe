#include "Languages.h"

#include <QtTest>

namespace support {

namespace {

const QString prefix = "korva_";
const QString suffix = ".ts";

/// One text, or a form for each kind of number.
QStringList translationsIn(QXmlStreamReader& xml)
{
    QStringList forms;
    QString text;
    while (xml.readNext() != QXmlStreamReader::EndElement || xml.name() != u"translation") {
        if (xml.isStartElement())
            forms << xml.readElementText();
        else if (xml.isCharacters())
            text += xml.text();
    }
    return forms.isEmpty() ? QStringList{text} : forms;
}

} // namespace

const QStringList& languages()
{
    static const QStringList codes = [] {
        const QDir folder(KORVA_SOURCE_DIR "/translations");
        QStringList found{"en"};
        for (const QString& name : folder.entryList({prefix + '*' + suffix}, QDir::Files))
            found << name.mid(prefix.size()).chopped(suffix.size());
        found.removeDuplicates();
        return found;
    }();
    return codes;
}

void addLanguages()
{
    QTest::addColumn<QString>("language");
    for (const QString& language : languages())
        if (QFileInfo::exists(sourceFile(language)))
            QTest::newRow(language.toUtf8()) << language;
}

QString sourceFile(const QString& language)
{
    return KORVA_SOURCE_DIR "/translations/" + prefix + language + suffix;
}

QList<Message> messagesOf(const QString& language)
{
    QFile file(sourceFile(language));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QXmlStreamReader xml(&file);
    QList<Message> all;
    QString context;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QStringView name = xml.name();
        if (name == u"name") {
            context = xml.readElementText();
        } else if (name == u"message") {
            all << Message{.context = context};
        } else if (name == u"source") {
            all.last().source = xml.readElementText();
        } else if (name == u"comment") {
            all.last().comment = xml.readElementText();
        } else if (name == u"translation") {
            all.last().isFinished = !xml.attributes().hasAttribute("type");
            all.last().translations = translationsIn(xml);
        }
    }
    return all;
}

} // namespace support
