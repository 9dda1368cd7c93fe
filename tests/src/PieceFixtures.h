#pragma once

#include "EditorFixtures.h"
#include "KORVA_Manners.h"

namespace fixtures {

inline constexpr QSize pieceDeskSize(120, 90);
inline constexpr QSize pieceSize(33, 27);

/// An editor with these switches on, over a picture in which every pixel counts.
struct PieceDesk : EditorDesk
{
    explicit PieceDesk(std::initializer_list<bool KORVA_Manners::*> modern, QSize picture = pieceDeskSize)
    {
        KORVA_Manners manners;
        for (const auto each : modern)
            manners.*each = true;
        begin(manners, picture);
    }
    explicit PieceDesk(const KORVA_Manners& manners) { begin(manners, pieceDeskSize); }

    void begin(const KORVA_Manners& manners, QSize picture)
    {
        editor->setManners(manners);
        setPicture(support::mosaic(picture));
        setClipboard(clip);
    }

    [[nodiscard]] KORVA_PasteLabel& piece() const { return *canvas().pasteLabel(); }
    [[nodiscard]] bool floats() const { return !piece().isHidden(); }
    /// What a save would write.
    [[nodiscard]] QImage whole() const { return editor->snapshot(); }
    void lift(const QRect& onScreen) const
    {
        editor->selectTool(KORVA_TOOL_SELECT);
        support::Gestures(canvas()).drag({onScreen.topLeft(), onScreen.bottomRight() + QPoint(1, 1)});
    }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const
    {
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, modifiers);
            QCoreApplication::sendEvent(&canvas(), &event);
        }
    }
    [[nodiscard]] QAction* row(const QString& text) const
    {
        for (QAction* action : piece().menu()->actions()) {
            if (action->text() == text)
                return action;
        }
        return nullptr;
    }
    [[nodiscard]] QStringList rows() const
    {
        QStringList texts;
        for (const QAction* action : piece().menu()->actions())
            texts << action->text();
        return texts;
    }

    QImage clip = support::inverted(support::mosaic(pieceSize));
};

/// A blue bar on white.
inline QImage dotted()
{
    return support::sheet(QSize(20, 16), Qt::white, [](QPainter& p) { p.fillRect(3, 4, 9, 5, Qt::blue); });
}

} // namespace fixtures
