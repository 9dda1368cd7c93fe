#include "EditorControls.h"

#include "Recording.h"

#include <KORVA_EditCanvas.h>
#include <KORVA_Manager.h>

#include <QComboBox>
#include <QMenu>
#include <QPushButton>

namespace pad {

namespace {

constexpr int selectTool = 1;
constexpr int handTool = 7;
constexpr int areaOption = 0;
constexpr int handOption = 1;

/// Where a tool stands in the tool pop-up, by its identifier.
constexpr int toolRows[] = {3, 0, 2, 4, 5, 6, 1, 0};

QMenu* menuOf(const KORVA_EditCanvas& editor, const char* button)
{
    return editor.findChild<QPushButton*>(QLatin1String(button))->menu();
}

} // namespace

EditorControls::EditorControls(KORVA_EditCanvas& editor, QObject* parent)
    : QObject(parent),
      m_editor(editor),
      m_tools(menuOf(editor, "toolButton")),
      m_options(menuOf(editor, "optionButton")),
      m_zooms(editor.findChild<QComboBox*>(QStringLiteral("zoomBox"))),
      m_color(editor.findChild<QPushButton*>(QStringLiteral("colorButton")))
{
    watch();
}

void EditorControls::chooseTool(int tool)
{
    m_tools->actions().at(toolRows[tool])->trigger();
    if (tool == selectTool || tool == handTool)
        chooseOption(tool == handTool ? handOption : areaOption);
}

bool EditorControls::chooseOption(int option)
{
    QAction* entry = m_options->actions().value(option);
    if (entry)
        entry->trigger();
    return entry;
}

void EditorControls::chooseZoom(int index)
{
    m_zooms->setCurrentIndex(index);
    emit m_zooms->activated(index);
}

int EditorControls::zoom() const
{
    return m_zooms->currentIndex();
}

void EditorControls::pickColor()
{
    m_color->click();
}

void EditorControls::watch()
{
    connect(m_tools, &QMenu::triggered, this, &EditorControls::announceTool);
    connect(m_options, &QMenu::triggered, this, [this](QAction* entry) {
        const int tool = m_editor.manager()->currentToolID();
        if (tool == selectTool || tool == handTool)
            announceTool();
        else
            emit chosen(Command{.verb = Verb::Option, .number = int(m_options->actions().indexOf(entry))});
    });
    connect(m_zooms, &QComboBox::activated, this,
            [this](int index) { emit chosen(Command{.verb = Verb::Zoom, .number = index}); });
    connect(m_color, &QAbstractButton::clicked, this,
            [this] { emit chosen(Command{.verb = Verb::Color, .color = m_editor.color()}); });
}

void EditorControls::announceTool()
{
    emit chosen(Command{.verb = Verb::Tool, .number = m_editor.manager()->currentToolID()});
}

} // namespace pad
