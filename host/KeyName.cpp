#include "KeyName.h"

#include <QMetaEnum>
#include <QStringList>

namespace pad {

namespace {

constexpr struct
{
    const char* name;
    Qt::KeyboardModifier modifier;
    Qt::Key key;
} modifiers[] = {
    {"Ctrl", Qt::ControlModifier, Qt::Key_Control},
    {"Shift", Qt::ShiftModifier, Qt::Key_Shift},
    {"Alt", Qt::AltModifier, Qt::Key_Alt},
    {"Meta", Qt::MetaModifier, Qt::Key_Meta},
};

constexpr QLatin1String prefix("Key_");

Qt::KeyboardModifier modifierFromName(const QString& name)
{
    for (const auto& row : modifiers) {
        if (name.compare(QLatin1String(row.name), Qt::CaseInsensitive) == 0)
            return row.modifier;
    }
    return Qt::NoModifier;
}

std::optional<Qt::Key> plainKeyFromName(const QString& name)
{
    const auto keys = QMetaEnum::fromType<Qt::Key>();
    for (int i = 0; i < keys.keyCount(); ++i) {
        if (name.compare(QLatin1String(keys.key(i) + prefix.size()), Qt::CaseInsensitive) == 0)
            return Qt::Key(keys.value(i));
    }
    return {};
}

} // namespace

std::optional<QKeyCombination> keyFromName(const QString& name)
{
    QStringList parts = name.split(QLatin1Char('+'));
    const auto key = plainKeyFromName(parts.takeLast());
    if (!key || *key == Qt::Key_unknown)
        return {};
    Qt::KeyboardModifiers held;
    for (const QString& part : std::as_const(parts)) {
        const Qt::KeyboardModifier modifier = modifierFromName(part);
        if (modifier == Qt::NoModifier)
            return {};
        held |= modifier;
    }
    return QKeyCombination(held, *key);
}

QKeyCombination withoutItself(QKeyCombination key)
{
    for (const auto& row : modifiers) {
        if (key.key() == row.key)
            return QKeyCombination(key.keyboardModifiers() & ~Qt::KeyboardModifiers(row.modifier),
                                   key.key());
    }
    return key;
}

QString keyName(QKeyCombination key)
{
    QString name;
    for (const auto& row : modifiers) {
        if (key.keyboardModifiers().testFlag(row.modifier))
            name += QLatin1String(row.name) + QLatin1Char('+');
    }
    const char* plain = QMetaEnum::fromType<Qt::Key>().valueToKey(key.key());
    return name + QLatin1String(plain ? plain + prefix.size() : "unknown");
}

} // namespace pad
