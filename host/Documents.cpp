#include "Documents.h"

#include "DocumentAction.h"
#include "EditCommand.h"
#include "Platform.h"
#include "Wording.h"

#include <KORVA_ChooseCanvasDlg.h>
#include <KORVA_EditCanvas.h>
#include <KORVA_Text.h>
#include <UTIL_PictureDialog.h>

#include <QFileInfo>

#include <memory>

namespace pad {

namespace {

constexpr auto warningIcon = "Dialog_Exclamatory_Mark.gif";

constexpr int normalCanvas = 3;

constexpr struct
{
    int colors; ///< 2: black and white
    KORVA_CANVASTYPE type;
} canvasTypes[] = {
    {65536, KORVA_CANVAS_16BIT},
    {256, KORVA_CANVAS_8BIT},
    {16, KORVA_CANVAS_4BIT},
    {2, KORVA_CANVAS_1BIT},
};

} // namespace

Documents::Version Documents::Version::of(const QString& fileName)
{
    const QFileInfo file(fileName);
    return file.exists() ? Version{file.lastModified(), file.size()} : Version{};
}

Documents::Documents(KORVA_EditCanvas& editor, Platform& platform, QWidget* window)
    : QObject(window), m_editor(editor), m_platform(platform), m_window(window)
{
    beginDocument();
}

QString Documents::name() const
{
    return m_editor.fileName().isEmpty() ? m_proposal : m_editor.fileName();
}

/// Called when a person's command has just made the drawing another one.
void Documents::begin(const Command& how)
{
    settle();
    beginDocument();
    emit performed(Command{.verb = Verb::Answer, .number = 1});
    emit performed(how);
}

/// Called when the drawing has just become another one.
void Documents::beginDocument()
{
    m_proposal.clear();
    m_mayReplace = false;
    m_isLess = false;
    m_version = Version::of(m_editor.fileName());
    emit changed();
}

std::optional<QString> Documents::written(const KORVA_Journal::Keeper& copy)
{
    const auto reason = std::make_shared<QString>();
    const DiskWork work = [copy, reason](const MayReplace&) {
        *reason = copy();
        return std::optional<WriteError>();
    };
    if (workWhileWaiting(work, {}, m_window, m_platform))
        return {};
    return *reason;
}

bool Documents::keepCopy(const KORVA_Journal::Keeper& copy)
{
    const std::optional<QString> reason = copy ? written(copy) : QString();
    if (reason && !reason->isEmpty())
        emit notKept(*reason);
    return reason.has_value();
}

bool Documents::keep(const KORVA_Journal::Entry& spared)
{
    return !m_journal || !m_editor.hasChanges() || keepCopy(m_journal->keeper(spared));
}

bool Documents::mayGo()
{
    if (!m_journal || !m_editor.hasChanges())
        return true;
    const std::optional<QString> reason = written(m_journal->keeper());
    if (!reason || reason->isEmpty())
        return reason.has_value();
    constexpr int yes = 1; // the first button is the default, and loses nothing
    return m_platform.question(m_window, QLatin1String(warningIcon),
                               tr("No copy of the drawing can be kept. Give it up?", "changes"),
                               {tr("Cancel", "changes"), tr("Give it up", "changes")}) == yes;
}

void Documents::settle()
{
    if (m_journal)
        m_journal->settle();
}

bool Documents::hasChanges() const
{
    return m_isLess || m_editor.hasChanges();
}

// --- Asking

bool Documents::mayReplace(const QString& question)
{
    if (!hasChanges())
        return true;
    enum Answer : int { Yes, No };
    const int answer =
        m_platform.question(m_window, QLatin1String(warningIcon), question,
                            {tr("Yes", "changes"), tr("No", "changes"), tr("Cancel", "changes")});
    return answer == No || (answer == Yes && save());
}

bool Documents::mayClose()
{
    if (!mayReplace(tr("Save changes to drawing before closing?", "changes")) || !mayGo())
        return false;
    settle();
    return true;
}

int Documents::askCanvasType()
{
    QStringList buttons;
    for (const auto& row : canvasTypes)
        buttons.append(wording::inColors(row.colors, row.colors == 2));
    buttons.append(tr("Cancel", "canvas type"));
    const int answer =
        m_platform.question(m_window, QString(), tr("How many colors?", "canvas type"), buttons);
    return answer < int(std::size(canvasTypes)) ? int(canvasTypes[answer].type) : -1;
}

// --- Another drawing

void Documents::newDrawing()
{
    if (!mayReplace(tr("Save changes to drawing before creating?", "changes")))
        return;
    KORVA_ChooseCanvasDlg sizes(m_window, normalCanvas);
    if (sizes.exec() != QDialog::Accepted)
        return;
    const int type = askCanvasType();
    if (type < 0 || !mayGo())
        return;
    newCanvas(m_editor, type, sizes.canvasSize());
    m_editor.setFileName(QString());
    begin(Command{.verb = Verb::Canvas, .number = type, .size = sizes.canvasSize()});
}

void Documents::newFromPicture()
{
    if (!mayReplace(tr("Save changes to drawing before creating?", "changes")))
        return;
    const QString name = pick(Purpose{tr("New from picture", "pick dialog"), tr("OK", "saving")});
    const auto before = name.isEmpty() ? std::nullopt : takeIn(name);
    if (!before)
        return;
    drawOnOpened(m_editor);
    begin(Command{.verb = Verb::Paper, .text = name});
    keepCopy(*before);
}

void Documents::open()
{
    if (!mayReplace(tr("Save changes to drawing before opening?", "changes")))
        return;
    const QString name = pick();
    if (!name.isEmpty())
        openFile(name);
}

QString Documents::run(const QPointer<UTIL_PictureDialog>& dialog)
{
    const bool isAccepted = dialog->exec() == QDialog::Accepted;
    if (!dialog)
        return {};
    const QString name = isAccepted ? dialog->fileName() : QString();
    delete dialog;
    if (!name.isEmpty())
        m_folder.note(name);
    return name;
}

QString Documents::pick(const std::optional<Purpose>& purpose)
{
    UTIL_PictureDialog* dialog =
        m_platform.createPickDialog(m_window, m_folder.path(m_platform), KORVA_EditCanvas::openPatterns());
    if (purpose)
        dialog->setPurpose(purpose->title, purpose->verb);
    return run(dialog);
}

void Documents::openNamed(const QString& fileName)
{
    if (mayReplace(tr("Save changes to drawing before opening?", "changes")))
        openFile(fileName);
}

void Documents::openFile(const QString& fileName)
{
    const auto before = takeIn(fileName);
    if (!before)
        return;
    changePaper(m_editor, {});
    begin(Command{.verb = Verb::Open, .text = fileName});
    keepCopy(*before);
}

std::optional<KORVA_Journal::Keeper> Documents::takeIn(const QString& fileName)
{
    KORVA_Journal::Keeper copy;
    const QString before = m_editor.fileName();
    // The editor emits this right before it takes another picture in, and only then.
    const QMetaObject::Connection taking = connect(
        &m_editor, &KORVA_EditCanvas::canUndo, this,
        [&] {
            if (m_journal && m_editor.hasChanges())
                copy = m_journal->keeper();
        },
        Qt::SingleShotConnection);
    const bool isOpened = m_editor.openNewFilePrivate(OpenPicture, fileName);
    disconnect(taking);
    if (!isOpened) { // the editor has told why, and may have taken the new name
        if (m_editor.fileName() != before)
            m_editor.setFileName(before);
        emit changed();
        return {};
    }
    if (KORVA_Text* text = m_editor.currentText())
        text->resetBuffer();
    return copy;
}

void Documents::stamp()
{
    const QString name = pick(Purpose{KORVA_EditCanvas::tr("Insert stamp", "PICK_DIALOG;TITLE"),
                                      KORVA_EditCanvas::tr("Insert", "PICK_DIALOG;SOFTKEY_2BUTTON")});
    if (!name.isEmpty())
        stampNamed(name);
}

void Documents::stampNamed(const QString& fileName)
{
    if (insertStamp(m_editor, fileName))
        emit performed(Command{.verb = Verb::Stamp, .text = fileName});
}

void Documents::clear()
{
    if (!mayGo())
        return;
    m_editor.clearCanvas();
    emit performed(Command{.verb = Verb::Clear});
}

void Documents::takeBroughtBack(const QString& pictureName)
{
    changePaper(m_editor, {});
    beginDocument();
    m_proposal = pictureName;
    emit changed();
}

} // namespace pad
