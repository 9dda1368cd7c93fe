#include "PadWindow.h"

#include "Commands.h"
#include "PopupFence.h"
#include "StatusLine.h"
#include "Theme.h"

#include <KORVA_EditCanvas.h>
#include <UTIL_PushButton.h>

#include <QAction>
#include <QCloseEvent>
#include <QFileInfo>
#include <QMenu>
#include <QPixmap>

namespace pad {

PadWindow::PadWindow(Platform& platform, const QString& picture)
    : m_editor(new KORVA_EditCanvas(picture, KORVA_COLOR_16BIT, this, nullptr, {}, this)),
      m_commands(new Commands(*m_editor, platform, this)),
      m_status(new StatusLine(*m_editor, this)),
      m_menuKey(addKey(tr("Menu", "soft key"), theme::leftKey)),
      m_contextKey(addKey(QString(), theme::rightKey))
{
    setFixedSize(theme::window.size());
    m_editor->setGeometry(theme::editor);
    m_status->setGeometry(theme::status);
    new PopupFence(*this);

    m_menuKey->setShortcut(Qt::Key_F10);
    connect(m_menuKey, &QPushButton::clicked, this, &PadWindow::openMenu);
    connect(m_contextKey, &QPushButton::clicked, this, [this] { m_commands->contextAction()->trigger(); });
    connect(m_commands, &Commands::contextActionChanged, this, &PadWindow::updateContextKey);
    connect(m_commands, &Commands::documentChanged, this, &PadWindow::updateTitle);
    connect(m_editor, &KORVA_EditCanvas::modified, this, [this] { setWindowModified(true); });
    updateContextKey();
    updateTitle();
}

UTIL_PushButton* PadWindow::addKey(const QString& text, const QRect& place)
{
    auto* key = new UTIL_PushButton(QString(), text, this);
    key->setGeometry(place);
    key->setFocusPolicy(Qt::TabFocus); // a tap leaves what is being typed alone
    return key;
}

void PadWindow::openMenu()
{
    QMenu* menu = m_commands->menu();
    menu->popup(m_menuKey->mapToGlobal(QPoint(0, -menu->sizeHint().height())));
}

void PadWindow::updateContextKey()
{
    const QAction* action = m_commands->contextAction();
    m_contextKey->setText(action->text().remove(QLatin1Char('&')));
    m_contextKey->setEnabled(action->isEnabled());
}

void PadWindow::updateTitle()
{
    const QString name = QFileInfo(m_editor->fileName()).fileName();
    setWindowTitle(name.isEmpty() ? tr("Drawing[*] - Korva", "window title")
                                  : tr("%1[*] - Korva", "window title").arg(name));
    setWindowModified(m_editor->isModified());
}

void PadWindow::closeEvent(QCloseEvent* event)
{
    event->setAccepted(m_commands->mayClose());
}

QImage PadWindow::screenshot()
{
    m_status->refresh();
    return grab().toImage();
}

} // namespace pad
