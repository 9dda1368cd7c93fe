#include "Commands.h"

#include "DocumentAction.h"
#include "EditCommand.h"
#include "Platform.h"
#include "Theme.h"

#include <KORVA_Canvas.h>
#include <KORVA_ChooseCanvasDlg.h>
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
constexpr int normalCanvas = 3;

constexpr struct
{
    Label label;
    KORVA_CANVASTYPE type;
} canvasTypes[] = {
    {QT_TRANSLATE_NOOP3("pad::Commands", "65,536 colors", "canvas type"), KORVA_CANVAS_16BIT},
    {QT_TRANSLATE_NOOP3("pad::Commands", "256 colors", "canvas type"), KORVA_CANVAS_8BIT},
    {QT_TRANSLATE_NOOP3("pad::Commands", "16 colors", "canvas type"), KORVA_CANVAS_4BIT},
    {QT_TRANSLATE_NOOP3("pad::Commands", "Black and white", "canvas type"), KORVA_CANVAS_1BIT},
};

constexpr auto warningIcon = "Dialog_Exclamatory_Mark.gif";

} // namespace

struct Commands::Entry
{
    Label label;
    const char* keys; ///< separated by "; "
    Needs needs;
    void (*choose)(Commands& commands);
    bool endsGroup = false;
};

Commands::Commands(KORVA_EditCanvas& editor, Platform& platform, QWidget* window)
    : QObject(window),
      m_editor(editor),
      m_platform(platform),
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
         [](Commands& c) { c.newDrawing(); }},
        {QT_TRANSLATE_NOOP3("pad::Commands", "&Open ...", "menu"), "Ctrl+O", Needs::Nothing,
         [](Commands& c) { c.open(); }},
        {QT_TRANSLATE_NOOP3("pad::Commands", "&Save", "menu"), "Ctrl+S", Needs::Nothing,
         [](Commands& c) { c.save(); }},
        {QT_TRANSLATE_NOOP3("pad::Commands", "&Insert stamp ...", "menu"), "Ctrl+I", Needs::Nothing,
         [](Commands& c) { c.stamp(); }},
        {QT_TRANSLATE_NOOP3("pad::Commands", "&Delete ...", "menu"), "Delete", Needs::File,
         [](Commands& c) { c.remove(); }, true},
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
        {QT_TRANSLATE_NOOP3("pad::Commands", "Select &all", "menu"), "Ctrl+A", Needs::Nothing,
         [](Commands& c) { c.perform(Verb::SelectAll); }},
        {QT_TRANSLATE_NOOP3("pad::Commands", "C&lear", "menu"), "Ctrl+L", Needs::Nothing,
         [](Commands& c) { c.perform(Verb::Clear); }, true},
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
    setAvailable(Needs::File, !m_editor.fileName().isEmpty());

    const auto let = [this](void (KORVA_EditCanvas::*signal)(bool), Needs needs) {
        connect(&m_editor, signal, this, [this, needs](bool possible) { setAvailable(needs, possible); });
    };
    let(&KORVA_EditCanvas::canUndo, Needs::Undo);
    let(&KORVA_EditCanvas::canRedo, Needs::Redo);
    let(&KORVA_EditCanvas::selection, Needs::Selection);
    let(&KORVA_EditCanvas::canDelete, Needs::File);
    connect(&m_editor, &KORVA_EditCanvas::canDelete, this, &Commands::documentChanged);

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

void Commands::newDrawing()
{
    if (!mayReplaceDrawing(m_editor, m_platform))
        return;
    KORVA_ChooseCanvasDlg sizes(m_window, normalCanvas);
    if (sizes.exec() != QDialog::Accepted)
        return;
    const int type = askCanvasType();
    if (type < 0)
        return;
    newCanvas(m_editor, type, sizes.canvasSize());
    m_editor.setFileName(QString());
    emit performed(Command{.verb = Verb::Answer, .number = 1});
    emit performed(Command{.verb = Verb::Canvas, .number = type, .size = sizes.canvasSize()});
}

int Commands::askCanvasType()
{
    QStringList buttons;
    for (const auto& row : canvasTypes)
        buttons.append(tr(row.label.text, row.label.comment));
    buttons.append(tr("Cancel", "canvas type"));
    const int answer =
        m_platform.question(m_window, QString(), tr("How many colors?", "canvas type"), buttons);
    return answer < int(std::size(canvasTypes)) ? int(canvasTypes[answer].type) : -1;
}

void Commands::open()
{
    bool opened = false;
    const QMetaObject::Connection watch =
        connect(&m_editor, &KORVA_EditCanvas::pixmapChanged, this, [&opened] { opened = true; });
    m_editor.slotOpen();
    disconnect(watch);
    if (!opened)
        return;
    emit performed(Command{.verb = Verb::Answer, .number = 1});
    emit performed(Command{.verb = Verb::Open, .text = m_editor.fileName()});
}

void Commands::save()
{
    m_editor.slotSave();
}

void Commands::stamp()
{
    m_editor.saveChangePic(InsertStamp);
    if (!m_editor.canvas()->pasteLabel()->isHidden())
        emit performed(Command{.verb = Verb::Stamp, .text = m_platform.lastPicked()});
}

void Commands::remove()
{
    m_platform.takeAnswer();
    m_editor.slotDelete();
    if (m_platform.takeAnswer() != 0)
        return;
    emit documentChanged();
    emit performed(Command{.verb = Verb::Clear});
}

bool Commands::mayClose()
{
    const bool isFloating = !m_editor.canvas()->pasteLabel()->isHidden();
    if (!m_editor.isModified() && !isFloating)
        return true;
    enum Answer : int { Yes, No };
    const int answer = m_platform.question(
        m_window, QLatin1String(warningIcon), tr("Save changes to drawing before closing?", "closing"),
        {tr("Yes", "closing"), tr("No", "closing"), tr("Cancel", "closing")});
    if (answer == Yes)
        m_editor.slotSave();
    return answer == No || (answer == Yes && !m_editor.isModified());
}

} // namespace pad
