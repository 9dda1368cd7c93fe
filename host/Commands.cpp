#include "Commands.h"

#include "Documents.h"
#include "EditCommand.h"
#include "Recovery.h"

#include <KORVA_Canvas.h>
#include <KORVA_EditCanvas.h>
#include <KORVA_PasteLabel.h>
#include <UTIL_PopupMenu.h>

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMimeData>
#include <QWidget>

namespace pad {

namespace {

struct Label
{
    const char* text;
    const char* comment;
};

constexpr int textTool = 3;

} // namespace

struct Commands::Entry
{
    Label label;
    const char* keys; ///< separated by "; "
    Needs needs;
    void (*choose)(Commands& commands);
    bool endsGroup = false;
};

Commands::Commands(KORVA_EditCanvas& editor, Documents& documents, QWidget* window)
    : QObject(window),
      m_editor(editor),
      m_documents(documents),
      m_window(window),
      m_menu(new UTIL_PopupMenu(window))
{
    addEntries();
    follow();
    editor.canvas()->installEventFilter(this);
}

void Commands::addEntries()
{
    static constexpr Entry entries[] = {
        {QT_TRANSLATE_NOOP3("pad::Commands", "&New ...", "menu"), "Ctrl+N", Needs::Nothing,
         [](Commands& c) { c.m_documents.newDrawing(); }},
        {QT_TRANSLATE_NOOP3("pad::Commands", "&Open ...", "menu"), "Ctrl+O", Needs::Nothing,
         [](Commands& c) { c.m_documents.open(); }},
        {QT_TRANSLATE_NOOP3("pad::Commands", "&Save", "menu"), "Ctrl+S", Needs::Nothing,
         [](Commands& c) { c.m_documents.save(); }},
        {QT_TRANSLATE_NOOP3("pad::Commands", "Sa&ve as ...", "menu"), "Ctrl+Shift+S", Needs::Nothing,
         [](Commands& c) { c.m_documents.saveAs(); }},
        {QT_TRANSLATE_NOOP3("pad::Commands", "&Insert stamp ...", "menu"), "Ctrl+I", Needs::Nothing,
         [](Commands& c) { c.m_documents.stamp(); }},
        {QT_TRANSLATE_NOOP3("pad::Commands", "Earlier dra&wings ...", "menu"), "Ctrl+E", Needs::Recovery,
         [](Commands& c) { c.m_recovery->showEarlier(); }},
        {QT_TRANSLATE_NOOP3("pad::Commands", "D&elete picture ...", "menu"), "Ctrl+Delete", Needs::File,
         [](Commands& c) { c.m_documents.deletePicture(); }, true},
        {QT_TRANSLATE_NOOP3("pad::Commands", "&Undo", "menu"), "Ctrl+Z", Needs::Undo,
         [](Commands& c) { c.perform(Verb::Undo); }},
        {QT_TRANSLATE_NOOP3("pad::Commands", "&Redo", "menu"), "Ctrl+Y; Ctrl+Shift+Z", Needs::Redo,
         [](Commands& c) { c.perform(Verb::Redo); }},
        {QT_TRANSLATE_NOOP3("pad::Commands", "Cu&t", "menu"), "Ctrl+X", Needs::Selection,
         [](Commands& c) { c.perform(Verb::Cut); }},
        {QT_TRANSLATE_NOOP3("pad::Commands", "&Copy", "menu"), "Ctrl+C", Needs::Selection,
         [](Commands& c) { c.perform(Verb::Copy); }},
        {QT_TRANSLATE_NOOP3("pad::Commands", "&Paste", "menu"), "Ctrl+V", Needs::Clipboard,
         [](Commands& c) { c.paste(); }},
        {QT_TRANSLATE_NOOP3("pad::Commands", "&Delete", "menu"), "Delete", Needs::Nothing,
         [](Commands& c) { c.removeSelection(); }},
        {QT_TRANSLATE_NOOP3("pad::Commands", "Select &all", "menu"), "Ctrl+A", Needs::Nothing,
         [](Commands& c) { c.perform(Verb::SelectAll); }},
        {QT_TRANSLATE_NOOP3("pad::Commands", "C&lear", "menu"), "Ctrl+L", Needs::Nothing,
         [](Commands& c) { c.m_documents.clear(); }, true},
        {QT_TRANSLATE_NOOP3("pad::Commands", "&Quit", "menu"), "Ctrl+Q", Needs::Nothing,
         [](Commands& c) { c.m_window->close(); }},
    };
    for (const Entry& entry : entries) {
        QAction* action = add(entry);
        m_dependents.push_back({entry.needs, action});
        if (entry.needs == Needs::Undo)
            m_undo = action;
        if (entry.needs == Needs::Redo)
            m_redo = action;
    }
}

QAction* Commands::add(const Entry& entry)
{
    QAction* action = m_menu->addAction(tr(entry.label.text, entry.label.comment));
    action->setShortcuts(QKeySequence::listFromString(QLatin1String(entry.keys)));
    m_window->addAction(action); // for its keys while the menu is closed
    connect(action, &QAction::triggered, this, [this, choose = entry.choose] { choose(*this); });
    if (entry.endsGroup)
        m_menu->addSeparator();
    return action;
}

// --- What is possible ----------------------------------------------------------------------------------

void Commands::follow()
{
    for (const Needs needs : {Needs::Undo, Needs::Redo, Needs::Selection})
        setAvailable(needs, false);
    setAvailable(Needs::Recovery, false);
    const auto followFile = [this] { setAvailable(Needs::File, !m_editor.fileName().isEmpty()); };
    followFile();
    connect(&m_documents, &Documents::changed, this, followFile);
    connect(&m_documents, &Documents::performed, this, &Commands::performed);

    const auto let = [this](void (KORVA_EditCanvas::*signal)(bool), Needs needs) {
        connect(&m_editor, signal, this, [this, needs](bool possible) { setAvailable(needs, possible); });
    };
    let(&KORVA_EditCanvas::canUndo, Needs::Undo);
    let(&KORVA_EditCanvas::canRedo, Needs::Redo);
    let(&KORVA_EditCanvas::selection, Needs::Selection);

    // What is on the clipboard is found out when it matters: asking another program takes time and brings
    // in every picture format that the toolkit knows.
    setAvailable(Needs::Clipboard, true);
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this,
            [this] { setAvailable(Needs::Clipboard, true); });
    connect(m_menu, &QMenu::aboutToShow, this, &Commands::updateClipboard);
}

void Commands::setAvailable(Needs what, bool available)
{
    for (const Dependent& dependent : m_dependents) {
        if (dependent.needs == what)
            dependent.action->setEnabled(available);
    }
    if (what == Needs::Undo || what == Needs::Redo)
        emit contextActionChanged();
}

bool Commands::updateClipboard()
{
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    const bool hasPicture = data && data->hasImage();
    setAvailable(Needs::Clipboard, hasPicture);
    return hasPicture;
}

void Commands::setRecovery(Recovery* recovery)
{
    m_recovery = recovery;
    setAvailable(Needs::Recovery, recovery != nullptr);
}

QAction* Commands::contextAction() const
{
    return m_redo->isEnabled() && !m_undo->isEnabled() ? m_redo : m_undo;
}

bool Commands::eventFilter(QObject*, QEvent* event)
{
    if (event->type() != QEvent::ShortcutOverride || m_editor.canvas()->getCurrentToolID() != textTool)
        return false;
    constexpr Qt::KeyboardModifiers commands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    const bool plain = !(static_cast<QKeyEvent*>(event)->modifiers() & commands);
    if (plain)
        event->accept();
    return plain;
}

// --- What is done --------------------------------------------------------------------------------------

void Commands::perform(Verb verb)
{
    performOn(m_editor, verb);
    emit performed(Command{.verb = verb});
}

void Commands::paste()
{
    if (updateClipboard())
        perform(Verb::Paste);
}

void Commands::removeSelection()
{
    if (!m_editor.canvas()->pasteLabel()->isHidden())
        perform(Verb::Delete);
}

} // namespace pad
