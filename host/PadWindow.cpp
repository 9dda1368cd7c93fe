#include "PadWindow.h"

#include "Commands.h"
#include "Document.h"
#include "PopupFence.h"
#include "SoftKey.h"
#include "StatusLine.h"
#include "Theme.h"

#include <KORVA_EditCanvas.h>

#include <QAction>
#include <QFileInfo>
#include <QMenu>
#include <QPixmap>

namespace pad {

PadWindow::PadWindow()
    : m_editor(new KORVA_EditCanvas(KORVA_COLOR_16BIT, this)),
      m_document(new Document(*m_editor, this)),
      m_commands(new Commands(*m_editor, *m_document, this)),
      m_status(new StatusLine(*m_editor, this)),
      m_menuKey(new SoftKey(tr("Menu", "soft key"), this)),
      m_contextKey(new SoftKey(QString(), this))
{
    setFixedSize(theme::window.size());
    m_editor->setGeometry(theme::editor);
    m_status->setGeometry(theme::status);
    m_menuKey->setGeometry(theme::leftKey);
    m_contextKey->setGeometry(theme::rightKey);
    new PopupFence(*this);

    m_menuKey->setShortcut(Qt::Key_F10);
    connect(m_menuKey, &SoftKey::clicked, this, &PadWindow::openMenu);
    connect(m_contextKey, &SoftKey::clicked, this, [this] { m_commands->contextAction()->trigger(); });
    connect(m_commands, &Commands::contextActionChanged, this, &PadWindow::updateContextKey);
    connect(m_document, &Document::fileNameChanged, this, &PadWindow::updateTitle);
    updateContextKey();
    updateTitle();
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
    m_contextKey->update();
}

void PadWindow::updateTitle()
{
    const QString name = QFileInfo(m_document->fileName()).fileName();
    setWindowTitle(name.isEmpty() ? tr("Korva", "window title")
                                  : tr("%1 - Korva", "window title").arg(name));
}

QImage PadWindow::screenshot()
{
    m_status->refresh();
    return grab().toImage();
}

} // namespace pad
