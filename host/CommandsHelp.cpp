#include "ButtonsDialog.h"
#include "Commands.h"
#include "KeysDialog.h"
#include "Settings.h"
#include "Wording.h"

#include <QAction>
#include <QSettings>
#include <QWidget>

// What tells a person how the pad is used.

namespace pad {

namespace {

const QString buttonsShownKey = QStringLiteral("start/buttons");

} // namespace

void Commands::showKeys()
{
    QList<KeysDialog::Row> rows;
    for (const QAction* action : m_window->actions())
        rows.append(
            {action->shortcut().toString(QKeySequence::NativeText), wording::plainLabel(action->text())});
    rows.append({QKeySequence(Qt::Key_F10).toString(QKeySequence::NativeText), tr("Menu", "keys")});
    const QString arrows = tr("Arrows", "keys");
    const QString space = QKeySequence(Qt::Key_Space).toString(QKeySequence::NativeText);
    const QString enter = QKeySequence(Qt::Key_Return).toString(QKeySequence::NativeText);
    const QString escape = QKeySequence(Qt::Key_Escape).toString(QKeySequence::NativeText);
    rows.append({{arrows, tr("Move pen, piece", "keys")},
                 {tr("Shift+arrows", "keys"), tr("... by 10 pixels", "keys")},
                 {space, tr("Draw while held", "keys")},
                 {enter, tr("Pen down, up", "keys")},
                 {enter, tr("Put piece down", "keys")},
                 {tr("Alt+arrows", "keys"), tr("Stretch piece", "keys")},
                 {QStringLiteral("[   ]"), tr("Turn piece", "keys")},
                 {escape, tr("Drop piece", "keys")},
                 {escape, tr("End text", "keys")}});
    KeysDialog keys(m_window, rows);
    if (keys.exec() == KeysDialog::Buttons)
        showButtons();
}

void Commands::showButtons()
{
    ButtonsDialog(m_window, m_editor, *m_menu).exec();
}

void Commands::introduceButtons()
{
    QSettings settings(settingsFile(), QSettings::IniFormat);
    if (settings.value(buttonsShownKey).toBool())
        return;
    settings.setValue(buttonsShownKey, true);
    showButtons();
}

} // namespace pad
