#include "KORVA_ToolBar.h"

#include "KORVA_Canvas.h"
#include "KORVA_ClassicPainter.h"
#include "KORVA_ColorName.h"
#include "KORVA_EditCanvas.h"
#include "KORVA_EditorLayout.h"
#include "KORVA_Text.h"
#include "KORVA_ToolSet.h"
#include "KORVA_ToolTable.h"
#include "RES_ICON_Reader.h"
#include "UTIL_ComboBox.h"
#include "UTIL_PopupMenu.h"
#include "UTIL_PushButton.h"

#include <QAbstractItemView>
#include <QActionGroup>
#include <QMenu>
#include <QStyle>

namespace {

void setUp(QWidget* control, const QString& tip)
{
    control->setToolTip(tip);
    control->setAccessibleName(tip);
}

QPushButton* createButton(QWidget* parent, const char* name, const QString& tip)
{
    auto* button = new UTIL_PushButton({}, {}, parent, name);
    setUp(button, tip);
    return button;
}

void showIcon(QPushButton* button, const QPixmap& icon)
{
    button->setIcon(icon);
    button->setIconSize(icon.deviceIndependentSize().toSize());
}

QAction* addEntry(QMenu* menu, int id, const QPixmap& icon, const QString& name)
{
    QAction* action = menu->addAction(icon, name);
    action->setToolTip(name);
    action->setData(id);
    action->setCheckable(true); // for screen readers: the menu shows no marks
    return action;
}

/// What a control has chosen: for the eyes its icon, for a screen reader its row and its description.
void showChoice(QPushButton* button, int id, const QString& name)
{
    for (QAction* action : button->menu()->actions()) {
        if (!action->actionGroup()) // which parts what is not among the choices
            action->setChecked(action->data().toInt() == id);
    }
    button->setAccessibleDescription(name);
}

} // namespace

KORVA_ToolBar::KORVA_ToolBar(KORVA_EditCanvas& editor, const KORVA_ToolSet& tools)
    : m_editor(editor), m_tools(tools)
{
    m_toolButton = createButton(&editor, "toolButton", KORVA_EditCanvas::tr("Tool", "tool bar"));
    auto* toolMenu = new UTIL_PopupMenu(m_toolButton);
    toolMenu->setAccessibleName(m_toolButton->accessibleName());
    m_toolButton->setMenu(toolMenu);

    m_optionButton = createButton(&editor, "optionButton", KORVA_EditCanvas::tr("Tool option", "tool bar"));
    m_optionMenu = new UTIL_PopupMenu(m_optionButton);
    m_optionMenu->setAccessibleName(m_optionButton->accessibleName());
    m_optionButton->setMenu(m_optionMenu);

    m_zoomBox = new UTIL_ComboBox(&editor);
    m_zoomBox->setObjectName("zoomBox");
    setUp(m_zoomBox, KORVA_EditCanvas::tr("Zoom", "tool bar"));
    m_zoomBox->view()->setAccessibleName(m_zoomBox->accessibleName());

    m_colorButton = createButton(&editor, "colorButton", KORVA_EditCanvas::tr("Color", "tool bar"));
    m_colorButton->setFlat(true);
    offer();
    arrange();

    QObject::connect(toolMenu, &QMenu::triggered, &editor,
                     [&editor](const QAction* entry) { editor.slotSelChangeTool(entry->data().toInt()); });
    QObject::connect(m_optionMenu, &QMenu::triggered, &editor, [&editor](const QAction* entry) {
        editor.slotSelChangeToolOptions(entry->data().toInt());
    });
    QObject::connect(m_zoomBox, &QComboBox::activated, &editor, &KORVA_EditCanvas::slotSelZoomRate);
    QObject::connect(m_colorButton, &QPushButton::clicked, &editor, &KORVA_EditCanvas::slotColor);

    const auto giveKeyboard = [this] { giveKeyboardToText(); };
    for (const QMenu* menu : {static_cast<QMenu*>(toolMenu), m_optionMenu})
        QObject::connect(menu, &QMenu::aboutToHide, &editor, giveKeyboard);
    QObject::connect(m_zoomBox, &QComboBox::activated, &editor, giveKeyboard);
    QObject::connect(m_colorButton, &QPushButton::clicked, &editor, giveKeyboard);
}

/// A control that was pressed has taken it.
void KORVA_ToolBar::giveKeyboardToText() const
{
    const KORVA_Text* const text = m_editor.currentText();
    if (text && text->takesText())
        m_editor.canvas()->setFocus();
}

void KORVA_ToolBar::offer()
{
    const KORVA_Features& features = m_tools.features();
    const QList<int> tools = m_tools.inOrder();
    QMenu* const menu = m_toolButton->menu();
    menu->clear();
    for (const int tool : tools)
        addEntry(menu, m_tools.toolEntry(tool), m_tools.icon(tool), m_tools.name(tool));
    showTool(m_tool);

    const bool areTools = features.controls && !tools.isEmpty();
    const auto let = [](QWidget* control, bool isShown) {
        if (control->isHidden() == isShown)
            control->setVisible(isShown);
    };
    let(m_toolButton, areTools);
    let(m_optionButton, areTools);
    let(m_zoomBox, features.controls && !features.zooms.isEmpty());
    let(m_colorButton, features.controls && features.colors && features.editing);
}

void KORVA_ToolBar::arrange()
{
    const QRect whole(QPoint(), m_editor.size().expandedTo(layout::editor));
    const auto place = [this, &whole](QWidget* control, const QRect& fromLeft) {
        control->setGeometry(QStyle::visualRect(m_editor.layoutDirection(), whole, fromLeft));
    };
    place(m_toolButton, layout::toolButton);
    place(m_optionButton, layout::optionButton);
    place(m_zoomBox, layout::zoomBox);
    place(m_colorButton, layout::colorButton);
}

void KORVA_ToolBar::showTool(int tool)
{
    m_tool = tool;
    showIcon(m_toolButton, m_tools.icon(tool));
    showChoice(m_toolButton, m_tools.toolEntry(tool), m_tools.name(tool));
}

void KORVA_ToolBar::showOption(int entry)
{
    const bool isThere = entry >= 0 && entry < m_tools.optionCount(m_optionTool);
    showIcon(m_optionButton, isThere ? m_tools.optionIcon(m_optionTool, entry) : QPixmap());
    showChoice(m_optionButton, isThere ? m_tools.firstOptionEntry(m_optionTool) + entry : -1,
               isThere ? m_tools.optionName(m_optionTool, entry) : QString());
}

void KORVA_ToolBar::showColor(const QColor& color)
{
    QPixmap swatch = classic::filled(m_colorButton->size(), color);
    {
        KORVA_ClassicPainter painter(&swatch);
        painter.setPen(m_editor.palette().color(QPalette::Light));
        painter.drawRect(1, 1, swatch.width() - 2, swatch.height() - 2);
    }
    m_colorButton->setAccessibleDescription(colorname::spoken(color));
    m_colorButton->setIcon(swatch);
    m_colorButton->setIconSize(swatch.size());
}

void KORVA_ToolBar::loadOptions(int tool)
{
    m_optionMenu->clear();
    m_optionTool = tool;
    for (int row = 0; row < m_tools.optionCount(tool); ++row) {
        if (m_tools.isOptionOffered(tool, row))
            addEntry(m_optionMenu, m_tools.firstOptionEntry(tool) + row, m_tools.optionIcon(tool, row),
                     m_tools.optionName(tool, row));
    }
    if (m_tools.offersBold(tool)) {
        QAction* const bold = addEntry(m_optionMenu, KORVA_ToolTable::boldEntry,
                                       RES_ICON_Reader::getIcon("DaApV_Text_Tool_Opt_Bold.gif"), {});
        auto* const apart = new QActionGroup(bold);
        apart->setExclusionPolicy(QActionGroup::ExclusionPolicy::None);
        apart->addAction(bold);
        showBold();
    }
}

void KORVA_ToolBar::showBold()
{
    for (QAction* action : m_optionMenu->actions()) {
        if (action->data().toInt() != KORVA_ToolTable::boldEntry)
            continue;
        const QString name = KORVA_EditCanvas::tr("Bold", "tool option");
        action->setText(m_editor.isBold() ? QStringLiteral("\u2713 ") + name : name); // menus draw no marks
        action->setToolTip(name);
        action->setChecked(m_editor.isBold());
    }
}
