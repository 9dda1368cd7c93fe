#pragma once

#include "EditorFixtures.h"

/// What the tests of hosts that call back have in common.
namespace fixtures {

inline constexpr int toolCount = 8;

inline void typeLetter(KORVA_Canvas& canvas, const QString& letter)
{
    QKeyEvent key(QEvent::KeyPress, 0, Qt::NoModifier, letter);
    QCoreApplication::sendEvent(&canvas, &key);
}

/// What is wrong where canvas, tools and manager are not of one mind; empty where they are.
inline QString disagreement(const KORVA_EditCanvas& editor)
{
    KORVA_Canvas& canvas = *editor.canvas();
    const KORVA_Manager& manager = *editor.manager();
    int active = 0;
    for (int id = 0; id < toolCount; ++id)
        active += manager.tool(id)->isActive();
    if (active != 1 || canvas.getCurrentTool() != manager.currentTool())
        return QString("%1 tools").arg(active);
    if (canvas.size() != canvas.zoomedPixmap()->size())
        return "the widget has another size than what it shows";
    return {};
}

/// The same, and whether the screen, painted anew, shows the picture. The hand is the tool afterwards.
inline QString trouble(const KORVA_EditCanvas& editor)
{
    if (const QString text = disagreement(editor); !text.isEmpty())
        return text;
    KORVA_Canvas& canvas = *editor.canvas();
    editor.manager()->setCurrentTool(Hand); // leaves no preview, no cursor, no piece
    canvas.updateZoomed();
    const QImage picture = canvas.pixmap()->toImage();
    if (!support::sameImage(*canvas.zoomedPixmap(), support::scaled(picture, canvas.zoom())))
        return "the screen shows another picture";
    return {};
}

} // namespace fixtures
