#pragma once

#include <QPixmap>
#include <QtCore>

namespace support {

/// Keeps the order in which the signals of several objects come, with their arguments, as lines that read
/// "canUndo(true)", or "editor.canUndo(true)" where the object was given a name. A picture is told by its
/// size: "pixmapChanged(32x40)".
class SignalRecorder : public QObject
{
public:
    template <typename Sender, typename Class, typename... Args>
    void watch(const Sender* sender, void (Class::*signal)(Args...), const QString& objectName = {})
    {
        const QString method = QMetaMethod::fromSignal(signal).name();
        const QString name = objectName.isEmpty() ? method : objectName + '.' + method;
        connect(sender, signal, this, [this, name](Args... arguments) {
            note(name + '(' + QStringList({readable(arguments)...}).join(", ") + ')');
        });
    }

    /// Puts in a line of the test's own.
    void note(const QString& line) { m_lines << line; }
    /// All lines since the last call.
    [[nodiscard]] QStringList taken() { return std::exchange(m_lines, {}); }

private:
    template <typename T>
    static QString readable(const T& value)
    {
        QString text;
        QDebug(&text).nospace().noquote() << value;
        return text;
    }
    static QString readable(QPixmap* picture)
    {
        return picture ? QString("%1x%2").arg(picture->width()).arg(picture->height()) : "null";
    }

    QStringList m_lines;
};

} // namespace support
