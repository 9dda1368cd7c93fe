#include "texts.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTextStream>
#include <QTranslator>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <memory>
#include <vector>

// Run by the build: writes the desktop file and the metainfo in all languages.
// desktop_files FOLDER DESKTOP METAINFO LANGUAGE.qm...

namespace {

struct Language
{
    QString code;
    QTranslator translator;
};

using Languages = std::vector<std::unique_ptr<Language>>;

[[noreturn]] void stop(const QString& reason)
{
    std::fprintf(stderr, "desktop_files: %s\n", qPrintable(reason));
    std::exit(1);
}

QString contents(const QString& name)
{
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly))
        stop(name + ": " + file.errorString());
    return QString::fromUtf8(file.readAll());
}

/// What a language says where it says something else than English.
QString said(const Language& language, const QString& english)
{
    const auto is = [&english](const auto& row) { return english == QLatin1String(row.text); };
    const auto* row = std::find_if(std::begin(desktopTexts), std::end(desktopTexts), is);
    if (row == std::end(desktopTexts))
        stop("'" + english + "' is not among the texts to be translated");
    const QString translated = language.translator.translate("desktop", row->text, row->comment);
    return translated == english ? QString() : translated;
}

/// Behind each match what each language makes of it.
QString extended(const QString& text, const QRegularExpression& pattern,
                 const std::function<QString(const QRegularExpressionMatch&, const Language&)>& line,
                 const Languages& languages)
{
    QString result;
    qsizetype done = 0;
    for (const QRegularExpressionMatch& match : pattern.globalMatch(text)) {
        result += text.mid(done, match.capturedEnd() - done);
        done = match.capturedEnd();
        for (const auto& language : languages)
            result += line(match, *language);
    }
    return result + text.mid(done);
}

QString desktop(const QString& text, const Languages& languages)
{
    static const QRegularExpression pattern("^(Name|GenericName|Comment|Keywords)=(.*)\n",
                                            QRegularExpression::MultilineOption);
    const auto line = [](const QRegularExpressionMatch& match, const Language& language) {
        const QString words = said(language, match.captured(2));
        return words.isEmpty() ? QString()
                               : QString("%1[%2]=%3\n").arg(match.captured(1), language.code, words);
    };
    return extended(text, pattern, line, languages);
}

QString metainfo(const QString& text, const Languages& languages)
{
    static const QRegularExpression pattern(" *<(name|summary|p)>([^<]*)</\\1>\n");
    const auto line = [](const QRegularExpressionMatch& match, const Language& language) {
        const QString words = said(language, match.captured(2).simplified());
        const QString indent = match.captured().left(match.captured().indexOf('<'));
        return words.isEmpty() ? QString()
                               : QString("%1<%2 xml:lang=\"%3\">%4</%2>\n")
                                     .arg(indent, match.captured(1), language.code, words.toHtmlEscaped());
    };
    return extended(text, pattern, line, languages);
}

void write(const QDir& folder, const QString& source, const QString& text)
{
    QFile file(folder.filePath(QFileInfo(source).fileName()));
    if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0 || !file.flush())
        stop(file.fileName() + ": " + file.errorString());
}

} // namespace

int main(int argc, char** argv)
{
    constexpr int first = 4; // argument that is a language
    if (argc < first)
        stop("FOLDER DESKTOP METAINFO LANGUAGE.qm...");
    const QDir folder(argv[1]);
    Languages languages;
    for (int i = first; i < argc; ++i) {
        auto language = std::make_unique<Language>();
        language->code = QFileInfo(argv[i]).completeBaseName().section('_', 1);
        if (!language->translator.load(argv[i]))
            stop(QString(argv[i]) + ": is not a language");
        languages.push_back(std::move(language));
    }
    write(folder, argv[2], desktop(contents(argv[2]), languages));
    write(folder, argv[3], metainfo(contents(argv[3]), languages));
    return 0;
}
