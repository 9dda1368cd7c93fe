#pragma once

#include <QWidget>

class KORVA_EditCanvas;
class QColor;
class QMenu;

namespace pad {

class ChoiceGroup;
class Commands;

/// What stands beside the editor in a large window, all in one tap: the tools, the options of the one in
/// force, and a palette. It shows what the editor's own tool and option buttons offer, and follows them.
class SidePanel : public QWidget
{
    Q_OBJECT

public:
    /// The room that it takes, in logical pixels.
    static constexpr int extent = 124;

    /// Whether a window of this size has room for it.
    [[nodiscard]] static bool suits(const QSize& window);

    /// The first two arguments outlive this object.
    SidePanel(KORVA_EditCanvas& editor, const Commands& commands, QWidget* parent);

    /// Has Tab go on to this widget, behind the colours.
    void goOnTo(QWidget* next);

    /// Sees the editor's menus change.
    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void colorPicked(const QColor& color);

private:
    void refreshSoon();
    void refresh();
    void showColor();
    [[nodiscard]] QString keyOfTool(const QString& name) const;

    KORVA_EditCanvas& m_editor;
    const Commands& m_commands;
    QMenu* m_toolMenu;   // the editor's
    QMenu* m_optionMenu; // the editor's
    ChoiceGroup* m_tools;
    ChoiceGroup* m_options;
    ChoiceGroup* m_palette;
    bool m_isStale = false;
};

} // namespace pad
