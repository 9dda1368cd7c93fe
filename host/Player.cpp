#include "Player.h"

#include "Document.h"
#include "EditCommand.h"

#include <KORVA_Canvas.h>
#include <KORVA_EditCanvas.h>

#include <QApplication>
#include <QEventLoop>
#include <QKeyEvent>
#include <QTimer>

namespace pad {

namespace {

Qt::Key keyOf(char32_t letter)
{
    return letter > 0xffff ? Qt::Key_unknown : Qt::Key(QChar(char16_t(letter)).toUpper().unicode());
}

/// What a keyboard delivers with a key: letters and signs have a text, the others none.
QString textOf(QKeyCombination key)
{
    constexpr Qt::KeyboardModifiers commands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    if (key.key() < Qt::Key_Space || key.key() > Qt::Key_ydiaeresis || key.keyboardModifiers() & commands)
        return {};
    const QChar letter(char16_t(key.key()));
    return key.keyboardModifiers() & Qt::ShiftModifier ? letter : letter.toLower();
}

} // namespace

Player::Player(KORVA_EditCanvas& editor, Document& document)
    : m_editor(editor), m_document(document), m_pointer(editor.canvas())
{
}

std::optional<Failure> Player::play(const Recording& recording)
{
    for (const Command& command : recording.commands()) {
        if (const auto failure = perform(command))
            return recording.failureAt(command, failure->message);
    }
    return {};
}

std::optional<Failure> Player::perform(const Command& command)
{
    if (performOn(m_editor, command))
        return {};
    switch (command.verb) {
    case Verb::Press:
        m_pointer.press(command.point, command.button);
        return {};
    case Verb::Move:
        m_pointer.move(command.point);
        return {};
    case Verb::Release:
        m_pointer.release(command.point, command.button);
        return {};
    case Verb::Type:
        type(command.text);
        return {};
    case Verb::Key:
        pressKey(command.key, textOf(command.key));
        return {};
    case Verb::Open:
        return m_document.open(command.text);
    case Verb::Save:
        return m_document.saveAs(command.text);
    case Verb::Wait: {
        QEventLoop loop;
        QTimer::singleShot(command.number, Qt::PreciseTimer, &loop, &QEventLoop::quit);
        loop.exec();
        return {};
    }
    default:
        return Failure{QStringLiteral("'%1' has nothing to work on yet").arg(Recording::toLine(command))};
    }
}

void Player::type(const QString& text)
{
    for (const char32_t letter : text.toStdU32String()) {
        if (letter == U'\n')
            pressKey(QKeyCombination(Qt::Key_Return), {});
        else
            pressKey(QKeyCombination(keyOf(letter)), QString::fromUcs4(&letter, 1));
    }
}

void Player::pressKey(QKeyCombination key, const QString& text)
{
    QWidget* popup = QApplication::activePopupWidget();
    QWidget* receiver = popup ? popup : m_editor.canvas();
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key.key(), key.keyboardModifiers(), text);
        QCoreApplication::sendEvent(receiver, &event);
    }
}

} // namespace pad
