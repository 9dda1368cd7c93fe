#include "KORVA_ToolBar.h"

#include "KORVA_ClassicPainter.h"
#include "KORVA_ColorName.h"
#include "KORVA_EditCanvas.h"
#include "KORVA_EditorLayout.h"
#include "KORVA_ToolTable.h"
#include "RES_ICON_Reader.h"
#include "UTIL_ComboBox.h"
#include "UTIL_PopupMenu.h"
#include "UTIL_PushButton.h"

#include <QAbstractItemView>
#include <QMenu>
#include <QStyle>

namespace tables = KORVA_ToolTable;

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

void showIcon(QPushButton* button, const char* name)
{
    const QPixmap icon = name ? RES_ICON_Reader::getIcon(QString::fromLatin1(name)) : QPixmap();
    button->setIcon(icon);
    button->setIconSize(icon.deviceIndependentSize().toSize());
}

void addEntry(QMenu* menu, int id, const char* icon, const QString& name)
{
    QAction* action = menu->addAction(RES_ICON_Reader::getIcon(QString::fromLatin1(icon)), name);
    action->setToolTip(name);
    action->setData(id);
    action->setCheckable(true); // for screen readers: the menu shows no marks
}

/// What a control has chosen: for the eyes its icon, for a screen reader its row and its description.
void showChoice(QPushButton* button, int id, const QString& name)
{
    for (QAction* action : button->menu()->actions())
        action->setChecked(action->data().toInt() == id);
    button->setAccessibleDescription(name);
}

} // namespace

KORVA_ToolBar::KORVA_ToolBar(KORVA_EditCanvas& editor) : m_editor(editor)
{
    m_toolButton = createButton(&editor, "toolButton", KORVA_EditCanvas::tr("Tool", "tool bar"));
    auto* toolMenu = new UTIL_PopupMenu(m_toolButton);
    for (int place = 0; tables::toolAt(place) >= 0; ++place) {
        const tables::ToolRow& row = *tables::toolRow(tables::toolAt(place));
        addEntry(toolMenu, tables::toolMenuBase + place, row.icon,
                 KORVA_EditCanvas::tr(row.name.text, row.name.comment));
    }
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
    arrange();

    QObject::connect(toolMenu, &QMenu::triggered, &editor,
                     [&editor](const QAction* entry) { editor.slotSelChangeTool(entry->data().toInt()); });
    QObject::connect(m_optionMenu, &QMenu::triggered, &editor, [&editor](const QAction* entry) {
        editor.slotSelChangeToolOptions(entry->data().toInt());
    });
    QObject::connect(m_zoomBox, &QComboBox::activated, &editor, &KORVA_EditCanvas::slotSelZoomRate);
    QObject::connect(m_colorButton, &QPushButton::clicked, &editor, &KORVA_EditCanvas::slotColor);
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
    const tables::ToolRow& row = *tables::toolRow(tool);
    showIcon(m_toolButton, row.icon);
    showChoice(m_toolButton, tables::toolMenuBase + row.place,
               KORVA_EditCanvas::tr(row.name.text, row.name.comment));
}

void KORVA_ToolBar::showOption(int entry)
{
    const tables::OptionRow& row = tables::toolRow(m_optionTool)->options[std::size_t(entry)];
    showIcon(m_optionButton, row.icon);
    showChoice(m_optionButton, optionId(entry), KORVA_EditCanvas::tr(row.name.text, row.name.comment));
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
    int id = tables::firstOptionId(tool);
    const tables::ToolRow* const known = tables::toolRow(tool);
    for (const tables::OptionRow& row : known ? known->options : std::span<const tables::OptionRow>())
        addEntry(m_optionMenu, id++, row.icon, KORVA_EditCanvas::tr(row.name.text, row.name.comment));
}

int KORVA_ToolBar::optionId(int entry) const
{
    return m_optionMenu->actions().value(entry)->data().toInt();
}
