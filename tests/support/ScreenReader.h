#pragma once

#include <QtCore>

#include <memory>

class QDBusMessage;

namespace support {

/// A screen reader on a message bus of its own: what it finds in a program and what it is told. Programs
/// that start while there is one speak to it.
class ScreenReader : public QObject
{
    Q_OBJECT

public:
    /// Sets the environment for it, and takes that back at its end.
    ScreenReader();
    ~ScreenReader() override;

    /// Whether both buses and their registry run.
    [[nodiscard]] bool isReady() const;

    struct Node
    {
        QString role;
        QString name;
        QString description;
        quint64 states = 0;
        QList<Node> children;
        QString path; ///< of roles and names, from the program down

        [[nodiscard]] bool isChecked() const { return states >> 4 & 1; }
        [[nodiscard]] bool isFocused() const { return states >> 12 & 1; }
        [[nodiscard]] bool isShowing() const { return states >> 25 & 1; }
        /// All below it and itself that satisfy a condition, from the top.
        [[nodiscard]] QList<Node> all(const std::function<bool(const Node&)>& condition) const;
        /// The first of this role and name; an empty one where there is none.
        [[nodiscard]] Node find(const QString& role, const QString& name) const;
    };
    /// A program with all its windows; an empty one where it has none.
    [[nodiscard]] Node program(const QString& name) const;

    /// The descriptions of which it was told that they are others now, since the last call.
    [[nodiscard]] QStringList takeNews() { return std::exchange(m_news, {}); }
    /// The names of what has got the focus, since the last call.
    [[nodiscard]] QStringList takeFocus() { return std::exchange(m_focus, {}); }

private slots:
    void hearChange(const QDBusMessage& message);
    void hearState(const QDBusMessage& message);

private:
    struct Bus;

    std::unique_ptr<Bus> m_bus;
    QStringList m_news;
    QStringList m_focus;
};

} // namespace support
