#include "KORVA_Text.h"

#include "KORVA_Canvas.h"
#include "KORVA_Characters.h"

#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>

// Typing by an input method or an on-screen keyboard, and what these are told of the text. A text grows
// only at its end, where the cursor is.

void KORVA_Text::tellInputMethod(Qt::InputMethodQueries changed) const
{
    if (canvas() && QGuiApplication::focusObject() == canvas())
        QGuiApplication::inputMethod()->update(changed);
}

void KORVA_Text::inputMethodEvent(QInputMethodEvent* event)
{
    if (!canvas() || m_state != Open) {
        event->ignore();
        return;
    }
    std::vector<QKeyEvent*> keys;
    const auto type = [&](Qt::Key code, const QString& character) {
        const QKeyEvent key(QEvent::KeyPress, code, Qt::NoModifier, character);
        if (!isTyping(key))
            return;
        record(key);
        keys.push_back(m_keys.back().get());
    };

    // The replaced part may end before the cursor: the rest is deleted with it, and typed again.
    const qsizetype size = m_text.size();
    const qsizetype begin = qBound(qsizetype(0), size + event->replacementStart(), size);
    const qsizetype end =
        qBound(begin, size + event->replacementStart() + event->replacementLength(), size);
    QString kept = m_text;
    while (begin < end && kept.size() > begin) {
        kept.chop(characters::last(kept).size());
        type(Qt::Key_Backspace, QStringLiteral("\b"));
    }
    const QString before = m_text.mid(kept.size(), begin - kept.size());
    const QString behind = begin < end ? m_text.mid(end) : QString();
    for (const QString& character : characters::all(before + event->commitString() + behind))
        type(character.contains('\n') ? Qt::Key_Return : Qt::Key_unknown, character);

    if (!keys.empty())
        typeKeys(keys);
    if (canvas() && m_state == Open) // a slot may have left the tool
        showText(m_text + event->preeditString());
}

QVariant KORVA_Text::inputMethodQuery(Qt::InputMethodQuery query) const
{
    if (!canvas())
        return {};
    const QString text = m_state == Open ? m_text : QString();
    const QString line = text.mid(text.lastIndexOf('\n') + 1);
    switch (query) {
    case Qt::ImCursorRectangle:
    case Qt::ImAnchorRectangle:
        return cursorRect();
    case Qt::ImFont:
        return textFont();
    case Qt::ImHints:
        return int(canvas()->inputMethodHints() | Qt::ImhMultiLine);
    case Qt::ImEnterKeyType:
        return int(Qt::EnterKeyReturn);
    case Qt::ImSurroundingText:
        return line;
    case Qt::ImCursorPosition:
    case Qt::ImAnchorPosition:
        return int(line.size());
    case Qt::ImTextBeforeCursor:
        return text;
    case Qt::ImAbsolutePosition:
        return int(text.size());
    case Qt::ImTextAfterCursor:
    case Qt::ImCurrentSelection:
        return QString();
    default:
        return {};
    }
}
