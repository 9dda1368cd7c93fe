#include "PadWindow.h"

#include "Accessible.h"
#include "Colors.h"
#include "Commands.h"
#include "Documents.h"
#include "DragOut.h"
#include "PadTools.h"
#include "Platform.h"
#include "PopupFence.h"
#include "SidePanel.h"
#include "StatusLine.h"
#include "Theme.h"
#include "Wording.h"

#include <KORVA_Canvas.h>
#include <KORVA_EditCanvas.h>
#include <UTIL_PushButton.h>

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QMimeData>
#include <QPixmap>
#include <QStyle>
#include <QUrl>

namespace pad {

PadWindow::PadWindow(Platform& platform, const QString& picture)
    : m_editor(new KORVA_EditCanvas(picture, KORVA_COLOR_16BIT, this, nullptr, {}, this)),
      m_documents(new Documents(*m_editor, platform, this)),
      m_commands(new Commands(*m_editor, *m_documents, this)),
      m_status(new StatusLine(*m_editor, this)),
      m_colors(new Colors(*m_editor, this)),
      m_menuKey(addKey(tr("Menu", "soft key"))),
      m_contextKey(addKey(QString()))
{
    installAccessibility();
    padtools::addTo(*m_editor);
    platform.offerColors(m_colors);
    setMinimumSize(theme::window.size());
    resize(theme::window.size());
    arrange();
    setAcceptDrops(true);
    new PopupFence(*this);
    new DragOut(*m_editor, *m_documents, m_status);
    m_editor->canvas()->setKeyboardDrawing(true);

    m_menuKey->setShortcut(Qt::Key_F10);
    m_menuKey->setToolTip(
        wording::withKey(m_menuKey->text(), m_menuKey->shortcut().toString(QKeySequence::NativeText)));
    connect(m_menuKey, &QPushButton::clicked, this, &PadWindow::openMenu);
    connect(m_contextKey, &QPushButton::clicked, this, [this] { m_commands->contextAction()->trigger(); });
    connect(m_commands, &Commands::contextActionChanged, this, &PadWindow::updateContextKey);
    connect(m_documents, &Documents::changed, this, &PadWindow::updateTitle);
    connect(m_editor, &KORVA_EditCanvas::modified, this, [this] { setWindowModified(true); });
    const auto showModified = [this] { setWindowModified(m_editor->isModified()); };
    connect(m_editor, &KORVA_EditCanvas::strokeTakenBack, this, showModified);
    connect(m_editor->canvas(), &KORVA_Canvas::pieceDropped, this, showModified);
    connect(m_editor->canvas(), &KORVA_Canvas::pendingDropped, this, showModified);
    updateContextKey();
    updateTitle();
}

void PadWindow::arrange()
{
    const QSize more = size() - theme::window.size();
    const int half = more.width() / 2;
    const auto visual = [this](const QRect& place) {
        return QStyle::visualRect(layoutDirection(), rect(), place);
    };
    const bool hasPanel = SidePanel::suits(size());
    if (hasPanel && !m_panel)
        addPanel();
    const int beside = hasPanel ? SidePanel::extent : 0;
    const QRect editor = theme::editor.adjusted(beside, 0, more.width(), more.height());
    m_editor->setGeometry(visual(editor));
    if (m_panel) {
        m_panel->setGeometry(visual(QRect(0, 0, SidePanel::extent, editor.height())));
        m_panel->setVisible(hasPanel);
    }
    m_status->setGeometry(theme::status.translated(0, more.height()).adjusted(0, 0, more.width(), 0));
    m_menuKey->setGeometry(visual(theme::firstKey.translated(0, more.height()).adjusted(0, 0, half, 0)));
    m_contextKey->setGeometry(
        visual(theme::secondKey.translated(0, more.height()).adjusted(half, 0, more.width(), 0)));
}

void PadWindow::addPanel()
{
    m_panel = new SidePanel(*m_editor, *m_commands, this);
    connect(m_panel, &SidePanel::colorPicked, m_commands, &Commands::takeColor);
    m_panel->goOnTo(m_menuKey);
    setTabOrder(m_menuKey, m_contextKey);
}

void PadWindow::resizeEvent(QResizeEvent*)
{
    arrange();
}

UTIL_PushButton* PadWindow::addKey(const QString& text)
{
    auto* key = new UTIL_PushButton(QString(), text, this);
    key->setFocusPolicy(Qt::TabFocus); // a tap leaves what is being typed alone
    return key;
}

void PadWindow::openMenu()
{
    QMenu* menu = m_commands->menu();
    const QSize size = menu->sizeHint();
    const QRect place =
        QStyle::visualRect(layoutDirection(), m_menuKey->rect(), QRect(QPoint(0, -size.height()), size));
    menu->popup(m_menuKey->mapToGlobal(place.topLeft()));
}

void PadWindow::updateContextKey()
{
    const QAction* action = m_commands->contextAction();
    m_contextKey->setText(wording::withoutMnemonic(action->text()));
    m_contextKey->setToolTip(
        wording::withKey(m_contextKey->text(), action->shortcut().toString(QKeySequence::NativeText)));
    m_contextKey->setEnabled(action->isEnabled());
}

void PadWindow::updateTitle()
{
    const QString name = QFileInfo(m_documents->name()).fileName();
    setWindowTitle(name.isEmpty() ? tr("Drawing[*] - Korva", "window title")
                                  : tr("%1[*] - Korva", "window title").arg(name));
    setWindowModified(m_editor->isModified());
}

void PadWindow::closeEvent(QCloseEvent* event)
{
    event->setAccepted(m_documents->mayClose());
}

namespace {

/// The first picture file among the dragged files; empty if there is none.
QString draggedPicture(const QMimeData* data)
{
    for (const QUrl& url : data->urls()) {
        const QString file = url.toLocalFile();
        if (QDir::match(KORVA_EditCanvas::openPatterns(), QFileInfo(file).fileName()))
            return file;
    }
    return {};
}

} // namespace

void PadWindow::dragEnterEvent(QDragEnterEvent* event)
{
    const bool isOwn = event->source() != nullptr; // the drawing itself
    if (!isOwn && !draggedPicture(event->mimeData()).isEmpty() && !QApplication::activeModalWidget())
        event->acceptProposedAction();
}

void PadWindow::dropEvent(QDropEvent* event)
{
    event->acceptProposedAction();
    const bool isStamp = event->modifiers() & Qt::ShiftModifier;
    // After the drop: there may be a question, and the program that drags waits until the drop ends.
    const auto take = [this, isStamp, name = draggedPicture(event->mimeData())] {
        if (isStamp)
            m_documents->stampNamed(name);
        else
            m_documents->openNamed(name);
    };
    QMetaObject::invokeMethod(m_documents, take, Qt::QueuedConnection);
}

QImage PadWindow::screenshot()
{
    m_status->refresh();
    return grab().toImage();
}

} // namespace pad
