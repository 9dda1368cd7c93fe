#include "Commands.h"

#include "Documents.h"
#include "EditCommand.h"
#include "MenuStyle.h"
#include "PadTools.h"
#include "Recovery.h"
#include "Settings.h"
#include "Wording.h"

#include <KORVA_Canvas.h>
#include <KORVA_EditCanvas.h>
#include <KORVA_PasteLabel.h>
#include <UTIL_PopupMenu.h>

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QSettings>
#include <QWidget>

#include <algorithm>
#include <map>
#include <utility>

namespace pad {

namespace {

struct Label
{
    const char* text;
    const char* comment;
};

// Their texts are the titles of their dialogs, too.
constexpr Label message = QT_TRANSLATE_NOOP3("pad::Commands", "Save for a &message ...", "menu");
constexpr Label print = QT_TRANSLATE_NOOP3("pad::Commands", "&Print ...", "menu");
constexpr Label fewColors = QT_TRANSLATE_NOOP3("pad::Commands", "Save in &few colors ...", "menu");

QString titleFrom(const Label& label)
{
    return wording::plainLabel(Commands::tr(label.text, label.comment));
}

const QString fingersPanKey = QStringLiteral("fingers/pan");

} // namespace

/// A page of the menu. No page has more rows than fit a screen of 240 × 320.
enum class Commands::Page { None, Main, Picture, Edit, Tool, View };

using Choice = void (*)(Commands& commands, int number);

struct Commands::Entry
{
    Page page;
    Label label;
    const char* keys; ///< separated by "; "
    Needs needs;
    Choice choose;
    int number = 0;
    std::optional<Page> opens = {}; ///< the entry opens this page instead of being a command
};

Commands::Commands(KORVA_EditCanvas& editor, Documents& documents, QWidget* window)
    : QObject(window),
      m_editor(editor),
      m_documents(documents),
      m_copies(editor, documents, window),
      m_window(window),
      m_menu(new UTIL_PopupMenu(window))
{
    addEntries();
    m_fingersPan->setCheckable(true);
    connect(m_fingersPan, &QAction::toggled, this, [this, plain = m_fingersPan->text()](bool isOn) {
        m_fingersPan->setText(isOn ? QStringLiteral("\u2713 ") + plain : plain); // menus draw no marks
    });
    follow();
}

void Commands::addEntries()
{
    using C = Commands;
    static constexpr auto doing = [](C& c, int verb) { c.perform(Verb(verb)); };
    static constexpr auto tool = [](C& c, int number) { c.m_editor.selectTool(number); };
    static constexpr auto zoom = [](C& c, int rate) { c.m_editor.selectZoom(c.zoomRow(rate)); };
    static constexpr auto option = [](C& c, int number) { c.m_editor.selectOption(number); };
    static constexpr Entry entries[] = {
        {Page::Main, QT_TRANSLATE_NOOP3("pad::Commands", "&New ...", "menu"), "Ctrl+N", Needs::Nothing,
         [](C& c, int) { c.m_documents.newDrawing(); }},
        {Page::Main, QT_TRANSLATE_NOOP3("pad::Commands", "&Open ...", "menu"), "Ctrl+O", Needs::Nothing,
         [](C& c, int) { c.m_documents.open(); }},
        {Page::Main, QT_TRANSLATE_NOOP3("pad::Commands", "&Save", "menu"), "Ctrl+S", Needs::Nothing,
         [](C& c, int) { c.m_documents.save(); }},
        {Page::Main, QT_TRANSLATE_NOOP3("pad::Commands", "Save &as ...", "menu"), "Ctrl+Shift+S",
         Needs::Nothing, [](C& c, int) { c.m_documents.saveAs(); }},

        // Not last, because the key that opens the menu lies there: a double tap must not quit.
        {Page::Main, QT_TRANSLATE_NOOP3("pad::Commands", "&Keys ...", "menu"), "F1", Needs::Nothing,
         [](C& c, int) { c.showKeys(); }},
        {Page::Main, QT_TRANSLATE_NOOP3("pad::Commands", "&Quit", "menu"), "Ctrl+Q", Needs::Nothing,
         [](C& c, int) { c.m_window->close(); }},

        {Page::Main, QT_TRANSLATE_NOOP3("pad::Commands", "&Picture", "menu"), "", Needs::Nothing, nullptr,
         0, Page::Picture},
        {Page::Picture, QT_TRANSLATE_NOOP3("pad::Commands", "&New from picture ...", "menu"), "Ctrl+T",
         Needs::Nothing, [](C& c, int) { c.m_documents.newFromPicture(); }},
        {Page::Picture, QT_TRANSLATE_NOOP3("pad::Commands", "&Insert stamp ...", "menu"), "Ctrl+I",
         Needs::Nothing, [](C& c, int) { c.m_documents.stamp(); }},
        {Page::Picture, QT_TRANSLATE_NOOP3("pad::Commands", "C&lear", "menu"), "Ctrl+L", Needs::Nothing,
         [](C& c, int) { c.m_documents.clear(); }},
        {Page::Picture, message, "Ctrl+M", Needs::Nothing,
         [](C& c, int) { c.m_copies.saveForMessage(titleFrom(message)); }},
        {Page::Picture, fewColors, "Ctrl+D", Needs::FewColors,
         [](C& c, int) { c.m_copies.saveInFewColors(titleFrom(fewColors)); }},
        {Page::Picture, print, "Ctrl+P", Needs::Nothing,
         [](C& c, int) { c.m_copies.print(titleFrom(print)); }},
        {Page::Picture, QT_TRANSLATE_NOOP3("pad::Commands", "&Earlier drawings ...", "menu"), "Ctrl+E",
         Needs::Recovery, [](C& c, int) { c.m_recovery->showEarlier(); }},
        {Page::Picture, QT_TRANSLATE_NOOP3("pad::Commands", "&Delete picture ...", "menu"), "Ctrl+Del",
         Needs::File, [](C& c, int) { c.m_documents.deletePicture(); }},

        {Page::Main, QT_TRANSLATE_NOOP3("pad::Commands", "&Edit", "menu"), "", Needs::Nothing, nullptr, 0,
         Page::Edit},
        {Page::Edit, QT_TRANSLATE_NOOP3("pad::Commands", "&Undo", "menu"), "Ctrl+Z", Needs::Undo, doing,
         int(Verb::Undo)},
        {Page::Edit, QT_TRANSLATE_NOOP3("pad::Commands", "&Redo", "menu"), "Ctrl+Y; Ctrl+Shift+Z",
         Needs::Redo, doing, int(Verb::Redo)},
        {Page::Edit, QT_TRANSLATE_NOOP3("pad::Commands", "Cu&t", "menu"), "Ctrl+X", Needs::Selection, doing,
         int(Verb::Cut)},
        {Page::Edit, QT_TRANSLATE_NOOP3("pad::Commands", "&Copy", "menu"), "Ctrl+C", Needs::Selection,
         doing, int(Verb::Copy)},
        {Page::Edit, QT_TRANSLATE_NOOP3("pad::Commands", "&Paste", "menu"), "Ctrl+V", Needs::Clipboard,
         [](C& c, int) { c.paste(); }},
        {Page::Edit, QT_TRANSLATE_NOOP3("pad::Commands", "&Delete", "menu"), "Del", Needs::Nothing,
         [](C& c, int) { c.removeSelection(); }},
        {Page::Edit, QT_TRANSLATE_NOOP3("pad::Commands", "Select &all", "menu"), "Ctrl+A", Needs::Nothing,
         doing, int(Verb::SelectAll)},
        {Page::Edit, QT_TRANSLATE_NOOP3("pad::Commands", "Cop&y drawing", "menu"), "Ctrl+Shift+C",
         Needs::Nothing, [](C& c, int) { c.m_copies.toClipboard(); }},

        {Page::Main, QT_TRANSLATE_NOOP3("pad::Commands", "&Tool", "menu"), "", Needs::Nothing, nullptr, 0,
         Page::Tool},
        {Page::Tool, QT_TRANSLATE_NOOP3("pad::Commands", "Pe&ncil", "menu"), "P", Needs::Nothing, tool,
         KORVA_TOOL_PENCIL},
        {Page::Tool, QT_TRANSLATE_NOOP3("pad::Commands", "&Line", "menu"), "L", Needs::Nothing, tool,
         KORVA_TOOL_LINE},
        {Page::Tool, QT_TRANSLATE_NOOP3("pad::Commands", "&Rectangle", "menu"), "R", Needs::Nothing, tool,
         KORVA_TOOL_RECTANGLE},
        {Page::Tool, QT_TRANSLATE_NOOP3("pad::Commands", "&Ellipse", "menu"), "O", Needs::Nothing, tool,
         KORVA_TOOL_ELLIPSE},
        {Page::Tool, QT_TRANSLATE_NOOP3("pad::Commands", "Er&aser", "menu"), "E", Needs::Nothing, tool,
         KORVA_TOOL_ERASER},
        {Page::Tool, QT_TRANSLATE_NOOP3("pad::Commands", "&Text", "menu"), "T", Needs::Nothing, tool,
         KORVA_TOOL_TEXT},
        {Page::Tool, QT_TRANSLATE_NOOP3("pad::Commands", "&Select", "menu"), "S", Needs::Nothing, tool,
         KORVA_TOOL_SELECT},
        {Page::Tool, QT_TRANSLATE_NOOP3("pad::Commands", "&Hand", "menu"), "H", Needs::Nothing, tool,
         KORVA_TOOL_HAND},
        {Page::Tool, QT_TRANSLATE_NOOP3("pad::Commands", "&Color ...", "menu"), "C", Needs::Nothing,
         [](C& c, int) { c.m_editor.slotColor(); }},

        {Page::Main, QT_TRANSLATE_NOOP3("pad::Commands", "&View", "menu"), "", Needs::Nothing, nullptr, 0,
         Page::View},
        {Page::View, QT_TRANSLATE_NOOP3("pad::Commands", "&Larger", "menu"),
         "Ctrl++; Ctrl+=", Needs::Nothing, [](C& c, int) { c.m_editor.stepZoom(1); }},
        {Page::View, QT_TRANSLATE_NOOP3("pad::Commands", "&Smaller", "menu"), "Ctrl+-", Needs::Nothing,
         [](C& c, int) { c.m_editor.stepZoom(-1); }},
        {Page::View, QT_TRANSLATE_NOOP3("pad::Commands", "&Real size", "menu"), "Ctrl+0", Needs::Nothing,
         zoom, 100},
        {Page::View, QT_TRANSLATE_NOOP3("pad::Commands", "&Fit to page", "menu"), "Ctrl+9", Needs::Nothing,
         zoom, KORVA_Features::fitToPage},
        {Page::View, QT_TRANSLATE_NOOP3("pad::Commands", "Full s&creen", "menu"), "F11", Needs::Nothing,
         [](C& c, int) { c.m_window->setWindowState(c.m_window->windowState() ^ Qt::WindowFullScreen); }},

        {Page::View, QT_TRANSLATE_NOOP3("pad::Commands", "F&inger pans", "menu"), "Ctrl+H", Needs::Fingers,
         [](C& c, int) { c.letFingersPan(c.m_fingersPan->isChecked()); }},

        // For more rows there is no room; the tool button's pop-up has them.
        {Page::None, QT_TRANSLATE_NOOP3("pad::Commands", "&Fill", "menu"), "F", Needs::Nothing, tool,
         padtools::Fill},
        {Page::None, QT_TRANSLATE_NOOP3("pad::Commands", "Pic&k color", "menu"), "K", Needs::Nothing, tool,
         padtools::Picker},

        // Their names differ from tool to tool, and are in the editor's own menu.
        {Page::None, QT_TRANSLATE_NOOP3("pad::Commands", "First option", "menu"), "1", Needs::Nothing,
         option, 0},
        {Page::None, QT_TRANSLATE_NOOP3("pad::Commands", "Second option", "menu"), "2", Needs::Nothing,
         option, 1},
        {Page::None, QT_TRANSLATE_NOOP3("pad::Commands", "Third option", "menu"), "3", Needs::Nothing,
         option, 2},
    };
    m_menu->setStyle(new MenuStyle(m_menu));
    m_menu->setAccessibleName(tr("Menu", "keys"));
    std::map<Page, QMenu*> pages{{Page::Main, m_menu}};
    for (const Entry& entry : entries) {
        const QString text = tr(entry.label.text, entry.label.comment);
        if (entry.opens) {
            auto* page = new UTIL_PopupMenu(m_menu);
            page->setStyle(m_menu->style());
            page->setTitle(text);
            page->setAccessibleName(QString(text).remove(QLatin1Char('&')));
            m_menu->addMenu(page);
            pages[*entry.opens] = page;
            continue;
        }
        QAction* action = add(entry, text, pages[entry.page]);
        m_dependents.push_back({entry.needs, action});
        for (const auto& [choose, what] :
             {std::pair(Choice(tool), KORVA_CHOICE_TOOL), std::pair(Choice(option), KORVA_CHOICE_OPTION),
              std::pair(Choice(zoom), KORVA_CHOICE_ZOOM)}) {
            if (entry.choose == choose) {
                action->setCheckable(true); // for screen readers: the menu shows no marks
                m_choices.push_back({what, entry.number, action});
            }
        }
        if (entry.needs == Needs::Undo)
            m_undo = action;
        if (entry.needs == Needs::Redo)
            m_redo = action;
        if (entry.needs == Needs::Fingers)
            m_fingersPan = action;
    }
}

QAction* Commands::add(const Entry& entry, const QString& text, QMenu* page)
{
    auto* action = new QAction(text, this);
    if (page)
        page->addAction(action);
    action->setShortcuts(QKeySequence::listFromString(QLatin1String(entry.keys)));
    action->setShortcutVisibleInContextMenu(true);
    m_window->addAction(action); // for its keys while the menu is closed
    connect(action, &QAction::triggered, this,
            [this, choose = entry.choose, number = entry.number] { choose(*this, number); });
    return action;
}

// --- What is possible

void Commands::follow()
{
    for (const Needs needs : {Needs::Undo, Needs::Redo, Needs::Selection})
        setAvailable(needs, false);
    setAvailable(Needs::Recovery, false);
    const auto followFile = [this] { setAvailable(Needs::File, !m_editor.fileName().isEmpty()); };
    followFile();
    connect(&m_documents, &Documents::changed, this, followFile);
    connect(&m_documents, &Documents::performed, this, &Commands::performed);

    const auto followCanvas = [this] { setAvailable(Needs::FewColors, m_copies.hasFewColors()); };
    followCanvas();
    connect(&m_editor, &KORVA_EditCanvas::canvasChanged, this, followCanvas);

    const auto let = [this](void (KORVA_EditCanvas::*signal)(bool), Needs needs) {
        connect(&m_editor, signal, this, [this, needs](bool possible) { setAvailable(needs, possible); });
    };
    let(&KORVA_EditCanvas::canUndo, Needs::Undo);
    let(&KORVA_EditCanvas::canRedo, Needs::Redo);
    let(&KORVA_EditCanvas::selection, Needs::Selection);

    // The clipboard is only examined when it matters: asking another program takes time, and loads every
    // picture format that Qt knows.
    setAvailable(Needs::Clipboard, true);
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this,
            [this] { setAvailable(Needs::Clipboard, true); });
    connect(m_menu, &QMenu::aboutToShow, this, &Commands::updateClipboard);

    checkAlternatives();
    connect(m_menu, &QMenu::aboutToShow, this, &Commands::checkAlternatives);
    connect(&m_editor, &KORVA_EditCanvas::chosen, this, &Commands::checkAlternatives);
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

void Commands::checkAlternatives()
{
    for (const Alternative& each : m_choices)
        each.action->setChecked(isInForce(each));
}

bool Commands::isInForce(const Alternative& alternative) const
{
    return alternative.what == KORVA_CHOICE_ZOOM
               ? zoomRow(alternative.number) == m_editor.zoomIndex()
               : alternative.number ==
                     (alternative.what == KORVA_CHOICE_TOOL ? m_editor.tool() : m_editor.option());
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

void Commands::rememberChoices()
{
    m_copies.remember();
    m_isRemembered = true;
    const QSettings settings(settingsFile(), QSettings::IniFormat);
    m_fingersPan->setChecked(settings.value(fingersPanKey).toBool());
    m_editor.canvas()->setFingerUse(m_fingersPan->isChecked() ? KORVA_Canvas::FingerPans
                                                              : KORVA_Canvas::FingerDraws);
}

QString Commands::keyFor(KORVA_CHOICETYPE what, int number) const
{
    const auto found = std::ranges::find_if(
        m_choices, [=](const Alternative& each) { return each.what == what && each.number == number; });
    return found == m_choices.end() ? QString()
                                    : found->action->shortcut().toString(QKeySequence::NativeText);
}

QAction* Commands::contextAction() const
{
    return m_redo->isEnabled() && !m_undo->isEnabled() ? m_redo : m_undo;
}

// --- What is done

void Commands::perform(Verb verb)
{
    // In the middle of a stroke its beginning would be undone, cut or cleared, and its rest would stay.
    if (QGuiApplication::mouseButtons() != Qt::NoButton)
        return;
    performOn(m_editor, verb);
    emit performed(Command{.verb = verb});
}

int Commands::zoomRow(int rate) const
{
    return int(m_editor.features().zooms.indexOf(rate));
}

void Commands::takeColor(const QColor& color)
{
    m_editor.setColor(color);
    emit performed(Command{.verb = Verb::Color, .color = color});
}

void Commands::letFingersPan(bool pan)
{
    m_editor.canvas()->setFingerUse(pan ? KORVA_Canvas::FingerPans : KORVA_Canvas::FingerDraws);
    if (m_isRemembered)
        QSettings(settingsFile(), QSettings::IniFormat).setValue(fingersPanKey, pan);
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
