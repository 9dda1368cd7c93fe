#pragma once

#include <QtCore>

namespace support {

/// The codes of the languages that have a file in the sources, and English, which needs none.
[[nodiscard]] const QStringList& languages();
/// A column "language" with a row for each of them that has a file.
void addLanguages();

/// One message of a language's file.
struct Message
{
    QString context = {};
    QString source = {};
    QString comment = {};
    QStringList translations = {}; ///< more than one where a number decides
    bool isFinished = true;
};

[[nodiscard]] QString sourceFile(const QString& language);
[[nodiscard]] QList<Message> messagesOf(const QString& language);

} // namespace support
