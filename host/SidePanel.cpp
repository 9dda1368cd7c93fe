#include "SidePanel.h"

#include "ChoiceGroup.h"
#include "Commands.h"
#include "KeysDialog.h"
#include "Palette16.h"

#include <KORVA_EditCanvas.h>
#include <UTIL_PushButton.h>
#include <UTIL_Skin.h>

#include <QAction>
#include <QActionGroup>
#include <QCoreApplication>
#include <QEvent>
#include <QMenu>
#include <QPainter>
#include <QVBoxLayout>

#include <algorithm>

namespace pad {

namespace {

constexpr QSize smallestWindow(640, 400);
constexpr QSize toolCell(34, 32);
constexpr int toolGap = 3;
constexpr QSize colorCell(27, 27);
constexpr int toolColumns = 3;
constexpr int colorColumns = 4;
constexpr int margin = 8;
constexpr int top = 2; // as the editor's controls
constexpr int gap = 10;

/// A colour of the palette; a ring is around the one in force.
class Swatch : public UTIL_PushButton
{
public:
    Swatch(const QColor& color, QWidget* parent)
        : UTIL_PushButton(QString(), QString(), parent), m_color(color)
    {
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        using Size = UTIL_Skin::Size;
        constexpr int inset = 4;
        constexpr double half = 0.5;
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(UTIL_Skin::color(underMouse() ? UTIL_Skin::Color::Ink : UTIL_Skin::Color::Edge),
                            Size::hairline));
        painter.setBrush(m_color);
        painter.drawRoundedRect(
            QRectF(rect()).adjusted(inset + half, inset + half, -inset - half, -inset - half), inset,
            inset);
        if (isChecked()) {
            painter.setPen(QPen(UTIL_Skin::color(UTIL_Skin::Color::Ink), Size::focusWidth));
            painter.setBrush(Qt::NoBrush);
            painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), Size::radius, Size::radius);
        }
        if (hasFocus())
            UTIL_Skin::paintFocus(painter, rect());
    }

private:
    QColor m_color;
};

class Palette : public ChoiceGroup
{
public:
    using ChoiceGroup::ChoiceGroup;

protected:
    [[nodiscard]] UTIL_PushButton* makeKey(int index) override
    {
        return new Swatch(QColor(palette16[index].rgb), this);
    }
};

/// The pop-up of one of the editor's buttons.
QMenu* menuOf(const KORVA_EditCanvas& editor, const char* button)
{
    return editor.findChild<QPushButton*>(QLatin1String(button))->menu();
}

} // namespace

bool SidePanel::suits(const QSize& window)
{
    return window.expandedTo(smallestWindow) == window;
}

SidePanel::SidePanel(KORVA_EditCanvas& editor, const Commands& commands, QWidget* parent)
    : QWidget(parent),
      m_editor(editor),
      m_commands(commands),
      m_toolMenu(menuOf(editor, "toolButton")),
      m_optionMenu(menuOf(editor, "optionButton")),
      m_tools(new ChoiceGroup(m_toolMenu->accessibleName(), toolColumns, toolCell, toolGap, this)),
      m_options(new ChoiceGroup(m_optionMenu->accessibleName(), toolColumns, toolCell, toolGap, this)),
      m_palette(new Palette(editor.findChild<QPushButton*>(QStringLiteral("colorButton"))->accessibleName(),
                            colorColumns, colorCell, 0, this))
{
    setAccessibleName(KeysDialog::tr("Buttons", "keys; title, of the tool bar's buttons"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(margin, top, extent - margin - colorColumns * colorCell.width(), 0);
    column->setSpacing(gap);
    for (ChoiceGroup* group : {m_tools, m_options, m_palette})
        column->addWidget(group);
    column->addStretch();

    const auto choosesIn = [this](ChoiceGroup* group, QMenu* menu) {
        connect(group, &ChoiceGroup::chosen, this, [this, menu](int row) {
            refreshSoon(); // what a host does about it may leave another one in force
            if (QAction* action = menu->actions().value(row))
                action->trigger();
        });
        menu->installEventFilter(this);
    };
    // Even if there are none: the first keeps its place among the stops of Tab.
    m_tools->setCount(1);
    m_options->setCount(1);
    choosesIn(m_tools, m_toolMenu);
    choosesIn(m_options, m_optionMenu);

    m_palette->setCount(int(std::size(palette16)));
    for (int i = 0; i < m_palette->count(); ++i) {
        const PaletteColor& row = palette16[i];
        m_palette->describe(
            i, QColor(row.rgb).name() + QStringLiteral(", ") +
                   QCoreApplication::translate("KORVA_EditCanvas", row.word.text, row.word.comment));
    }
    connect(m_palette, &ChoiceGroup::chosen, this,
            [this](int index) { emit colorPicked(QColor(palette16[index].rgb)); });
    connect(&editor, &KORVA_EditCanvas::colorChanged, this, &SidePanel::showColor);
    refresh();
    showColor();
}

void SidePanel::goOnTo(QWidget* next)
{
    UTIL_PushButton& last = m_palette->key(m_palette->count() - 1);
    const Qt::FocusPolicy policy = last.focusPolicy();
    last.setFocusPolicy(Qt::TabFocus); // what Tab passes by has no order
    setTabOrder(&last, next);
    last.setFocusPolicy(policy);
}

bool SidePanel::eventFilter(QObject*, QEvent* event)
{
    const QEvent::Type type = event->type();
    if (type == QEvent::ActionAdded || type == QEvent::ActionChanged || type == QEvent::ActionRemoved)
        refreshSoon();
    return false;
}

/// A menu is emptied and filled action by action.
void SidePanel::refreshSoon()
{
    if (!std::exchange(m_isStale, true))
        QMetaObject::invokeMethod(this, &SidePanel::refresh, Qt::QueuedConnection);
}

void SidePanel::refresh()
{
    m_isStale = false;
    const auto show = [](ChoiceGroup& group, const QMenu& menu, const auto& keyOf) {
        const QList<QAction*> rows = menu.actions();
        group.setCount(int(rows.size()));
        int checked = -1;
        int apart = -1;
        for (int i = 0; i < group.count(); ++i) {
            const QAction& row = *rows.at(i);
            const bool isApart = row.actionGroup(); // no choice among the others, but on or off
            const QString& name = isApart ? row.toolTip() : row.text();
            group.key(i).setIcon(row.icon());
            group.describe(i, name, keyOf(i, name));
            if (isApart)
                apart = i;
            else if (row.isChecked())
                checked = i;
        }
        group.mark(checked);
        if (apart >= 0)
            group.markApart(apart, rows.at(apart)->isChecked());
    };
    show(*m_tools, *m_toolMenu, [this](int, const QString& name) { return keyOfTool(name); });
    show(*m_options, *m_optionMenu,
         [this](int row, const QString&) { return m_commands.keyFor(KORVA_CHOICE_OPTION, row); });
}

void SidePanel::showColor()
{
    const auto* const found = std::ranges::find(palette16, m_editor.color().rgb(), &PaletteColor::rgb);
    m_palette->mark(found == std::end(palette16) ? -1 : int(found - std::begin(palette16)));
}

/// The editor's menus carry numbers of their own.
QString SidePanel::keyOfTool(const QString& name) const
{
    QString each;
    for (int tool = 0; !(each = m_editor.nameOfTool(tool)).isEmpty(); ++tool) {
        if (each == name)
            return m_commands.keyFor(KORVA_CHOICE_TOOL, tool);
    }
    return {};
}

} // namespace pad
