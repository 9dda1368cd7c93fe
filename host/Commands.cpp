#include "Commands.h"

#include "Document.h"
#include "EditCommand.h"

#include <KORVA_Canvas.h>
#include <KORVA_EditCanvas.h>

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QWidget>

namespace pad {

namespace {

struct Label
{
    const char* text;
    const char* comment;
};

constexpr Label zoomLabels[] = {
    QT_TRANSLATE_NOOP3("pad::Commands", "&50 %", "menu, zoom"),
    QT_TRANSLATE_NOOP3("pad::Commands", "&100 %", "menu, zoom"),
    QT_TRANSLATE_NOOP3("pad::Commands", "1&50 %", "menu, zoom"),
    QT_TRANSLATE_NOOP3("pad::Commands", "&200 %", "menu, zoom"),
};

constexpr int textTool = 3;

} // namespace

struct Commands::Entry
{
    Label label;
    const char* keys; ///< separated by "; "
    Needs needs;
    std::variant<Verb, void (Commands::*)()> action;
    bool endsGroup = false;
};

Commands::Commands(KORVA_EditCanvas& editor, Document& document, QWidget* window)
    : QObject(window), m_editor(editor), m_document(document), m_window(window), m_menu(new QMenu(window))
{
    static constexpr Entry entries[] = {
        {QT_TRANSLATE_NOOP3("pad::Commands", "&Save", "menu"), "Ctrl+S", Needs::File, &Commands::save,
         true},
        {QT_TRANSLATE_NOOP3("pad::Commands", "&Undo", "menu"), "Ctrl+Z", Needs::Undo, Verb::Undo},
        {QT_TRANSLATE_NOOP3("pad::Commands", "&Redo", "menu"), "Ctrl+Shift+Z; Ctrl+Y", Needs::Redo,
         Verb::Redo, true},
        {QT_TRANSLATE_NOOP3("pad::Commands", "Cu&t", "menu"), "Ctrl+X", Needs::Selection, Verb::Cut},
        {QT_TRANSLATE_NOOP3("pad::Commands", "&Copy", "menu"), "Ctrl+C", Needs::Selection, Verb::Copy},
        {QT_TRANSLATE_NOOP3("pad::Commands", "&Paste", "menu"), "Ctrl+V", Needs::Clipboard, Verb::Paste,
         true},
        {QT_TRANSLATE_NOOP3("pad::Commands", "&Quit", "menu"), "Ctrl+Q", Needs::Nothing, &Commands::quit},
    };
    for (const Entry& entry : entries) {
        if (std::holds_alternative<void (Commands::*)()>(entry.action) && entry.needs == Needs::Nothing)
            addZooms(window);
        add(entry, m_menu, window);
    }
    follow(editor);
    editor.canvas()->installEventFilter(this);
}

QAction* Commands::add(const Entry& entry, QMenu* menu, QWidget* window)
{
    QAction* action = menu->addAction(tr(entry.label.text, entry.label.comment));
    action->setShortcuts(QKeySequence::listFromString(QLatin1String(entry.keys)));
    window->addAction(action); // for its keys while the menu is closed
    connect(action, &QAction::triggered, this, [this, what = entry.action] {
        if (const Verb* verb = std::get_if<Verb>(&what))
            perform(*verb);
        else
            (this->*std::get<void (Commands::*)()>(what))();
    });
    m_actions.append({entry.needs, action});
    if (entry.needs == Needs::Undo)
        m_undo = action;
    if (entry.needs == Needs::Redo)
        m_redo = action;
    if (entry.endsGroup)
        menu->addSeparator();
    return action;
}

void Commands::addZooms(QWidget*)
{
    QMenu* zooms = m_menu->addMenu(tr("&Zoom", "menu"));
    for (int i = 0; i < int(std::size(zoomLabels)); ++i) {
        zooms->addAction(tr(zoomLabels[i].text, zoomLabels[i].comment), this,
                         [this, i] { perform(Verb::Zoom, i); });
    }
}

void Commands::follow(const KORVA_EditCanvas& editor)
{
    for (const Needs needs : {Needs::File, Needs::Undo, Needs::Redo, Needs::Selection, Needs::Clipboard})
        setAvailable(needs, false);
    connect(&editor, &KORVA_EditCanvas::canUndo, this,
            [this](bool can) { setAvailable(Needs::Undo, can); });
    connect(&editor, &KORVA_EditCanvas::canRedo, this,
            [this](bool can) { setAvailable(Needs::Redo, can); });
    connect(&editor, &KORVA_EditCanvas::selection, this,
            [this](bool exists) { setAvailable(Needs::Selection, exists); });
    connect(&m_document, &Document::fileNameChanged, this,
            [this](const QString& name) { setAvailable(Needs::File, !name.isEmpty()); });
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this, &Commands::updateClipboard);
    // Not now: asking another program for its clipboard takes time that the first picture should not wait
    // for.
    QMetaObject::invokeMethod(this, &Commands::updateClipboard, Qt::QueuedConnection);
}

void Commands::setAvailable(Needs what, bool available)
{
    for (const auto& [needs, action] : std::as_const(m_actions)) {
        if (needs == what)
            action->setEnabled(available);
    }
    if (what == Needs::Undo || what == Needs::Redo)
        emit contextActionChanged();
}

void Commands::updateClipboard()
{
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    setAvailable(Needs::Clipboard, data && data->hasImage());
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

void Commands::perform(Verb verb, int number)
{
    Command command;
    command.verb = verb;
    command.number = number;
    performOn(m_editor, command);
    emit performed(command);
}

void Commands::save()
{
    if (const auto failure = m_document.saveAs(m_document.fileName()))
        emit failed(failure->message);
}

void Commands::quit()
{
    m_window->close();
}

} // namespace pad
