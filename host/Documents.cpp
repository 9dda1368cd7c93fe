#include "Documents.h"

#include "DocumentAction.h"
#include "DrawingFile.h"
#include "EditCommand.h"
#include "Platform.h"
#include "Wording.h"

#include <KORVA_ChooseCanvasDlg.h>
#include <KORVA_EditCanvas.h>
#include <KORVA_Text.h>
#include <UTIL_PictureDialog.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>

namespace pad {

namespace {

constexpr auto completeIcon = "Dialog_Complete.gif";
constexpr auto errorIcon = "Dialog_Error.gif";
constexpr auto warningIcon = "Dialog_Exclamatory_Mark.gif";
constexpr auto binIcon = "Dialog_Empty_Trash.gif";

constexpr int shortTime = 1;
constexpr int normalCanvas = 3;

constexpr int longTime = 60;

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

/// A name shortened to fit into a sentence.
QString fileNameOf(const QString& path)
{
    constexpr int most = 40;
    constexpr int end = 12; // with the extension
    const QString name = QFileInfo(path).fileName();
    return name.size() <= most ? name : name.left(most - end) + QChar(0x2026) + name.right(end);
}

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

/// Called when the drawing has just become another one.
void Documents::beginDocument()
{
    m_proposal.clear();
    m_mayReplace = false;
    m_version = Version::of(m_editor.fileName());
    emit changed();
}

void Documents::keep(const KORVA_Journal::Entry& spared)
{
    if (m_journal && m_editor.hasChanges())
        m_journal->keep(spared);
}

bool Documents::mayGo()
{
    if (!m_journal || !m_editor.hasChanges() || m_journal->keep())
        return true;
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

// --- Asking

bool Documents::mayReplace(const QString& question)
{
    if (!m_editor.hasChanges())
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
        buttons.append(row.colors == 2 ? tr("Black and white", "canvas type")
                                       : tr("%Ln colors", "canvas type", row.colors));
    buttons.append(tr("Cancel", "canvas type"));
    const int answer =
        m_platform.question(m_window, QString(), tr("How many colors?", "canvas type"), buttons);
    return answer < int(std::size(canvasTypes)) ? int(canvasTypes[answer].type) : -1;
}

void Documents::tell(const WriteError& error)
{
    m_platform.timedInformation(m_window, QLatin1String(errorIcon),
                                tr("Not saved: %1", "saving").arg(error.sentence()), tr("OK", "saving"),
                                longTime);
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
    settle();
    beginDocument();
    emit performed(Command{.verb = Verb::Answer, .number = 1});
    emit performed(Command{.verb = Verb::Canvas, .number = type, .size = sizes.canvasSize()});
}

void Documents::open()
{
    if (!mayReplace(tr("Save changes to drawing before opening?", "changes")))
        return;
    const QString name = pick();
    if (!name.isEmpty())
        openFile(name);
}

QString Documents::pick(const std::optional<Purpose>& purpose)
{
    const QPointer<UTIL_PictureDialog> dialog =
        m_platform.createPickDialog(m_window, m_folder.path(m_platform), KORVA_EditCanvas::openPatterns());
    if (purpose)
        dialog->setPurpose(purpose->title, purpose->verb);
    const bool isAccepted = dialog->exec() == QDialog::Accepted;
    if (!dialog)
        return {};
    const QString name = isAccepted ? dialog->fileName() : QString();
    delete dialog;
    if (!name.isEmpty())
        m_folder.note(name);
    return name;
}

void Documents::openNamed(const QString& fileName)
{
    if (mayReplace(tr("Save changes to drawing before opening?", "changes")))
        openFile(fileName);
}

bool Documents::openFile(const QString& fileName)
{
    const QString before = m_editor.fileName();
    // The editor emits this right before it takes another picture in, and only then.
    const QMetaObject::Connection taking = connect(
        &m_editor, &KORVA_EditCanvas::canUndo, this, [this] { keep(); }, Qt::SingleShotConnection);
    const bool isOpened = m_editor.openNewFilePrivate(OpenPicture, fileName);
    disconnect(taking);
    if (!isOpened) { // the editor has told why, and may have taken the new name
        if (m_editor.fileName() != before)
            m_editor.setFileName(before);
        emit changed();
        return false;
    }
    if (KORVA_Text* text = m_editor.currentText())
        text->resetBuffer();
    settle();
    beginDocument();
    emit performed(Command{.verb = Verb::Answer, .number = 1});
    emit performed(Command{.verb = Verb::Open, .text = fileName});
    return true;
}

void Documents::stamp()
{
    const QString name = pick(Purpose{KORVA_EditCanvas::tr("Insert stamp", "PICK_DIALOG;TITLE"),
                                      KORVA_EditCanvas::tr("Insert", "PICK_DIALOG;SOFTKEY_2BUTTON")});
    if (!name.isEmpty() && insertStamp(m_editor, name))
        emit performed(Command{.verb = Verb::Stamp, .text = name});
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
    beginDocument();
    m_proposal = pictureName;
    emit changed();
}

// --- Saving

QString Documents::whatReplacingLoses() const
{
    const QString path = m_editor.fileName();
    const QString name = fileNameOf(path);
    const QSize size = m_editor.snapshot().size();
    const QSize source = m_editor.sourceSize();
    if (!canBeWritten(path))
        return tr("%1 pictures can only be opened: the drawing of %2 pixels needs a new file.",
                  "saving; %1: 'GIF', %2: '300 × 200'")
            .arg(QFileInfo(path).suffix().toUpper(), wording::inPixels(size));
    if (m_mayReplace)
        return {};
    if (m_editor.isReduced() && source != size)
        return tr("%1 has %2 pixels and the drawing %3: replacing it would lose the rest.",
                  "saving; %1: a file, %2 and %3: '300 × 200'")
            .arg(name, wording::inPixels(source), wording::inPixels(size));
    if (m_editor.isReduced())
        return tr("%1 has more colors than the drawing of %2 pixels: replacing it would lose them.",
                  "saving; %1: a file, %2: '300 × 200'")
            .arg(name, wording::inPixels(size));
    const Version now = Version::of(path);
    if (now != Version() && now != m_version)
        return tr("%1 was changed since it was opened: replacing it would lose that.", "saving").arg(name);
    return {};
}

bool Documents::save()
{
    if (m_editor.fileName().isEmpty())
        return saveAs();
    if (!m_editor.hasChanges())
        return true;
    const QString loss = whatReplacingLoses();
    return loss.isEmpty() ? saveUnder(m_editor.fileName()) : askAndSave(loss);
}

bool Documents::askAndSave(const QString& loss)
{
    QStringList buttons{tr("Save as new", "saving")};
    if (canBeWritten(m_editor.fileName()))
        buttons.append(tr("Replace", "saving"));
    buttons.append(tr("Cancel", "saving"));
    const int answer = m_platform.question(m_window, QLatin1String(warningIcon), loss, buttons);
    if (answer == int(buttons.size()) - 1)
        return false;
    if (answer == 0) {
        const QString name = freeNameBeside(m_editor.fileName());
        return QFileInfo(QFileInfo(name).path()).isWritable() ? saveUnder(name) : saveAs();
    }
    if (!saveUnder(m_editor.fileName()))
        return false;
    m_mayReplace = true;
    return true;
}

bool Documents::saveAs()
{
    const QFileInfo named(name());
    const bool isPlaced = !name().isEmpty() && QFileInfo(named.path()).isWritable();
    const QDir place(isPlaced ? named.path() : m_folder.path(m_platform));
    const QPointer<UTIL_PictureDialog> dialog =
        m_platform.createSaveDialog(m_window, place.path(), KORVA_EditCanvas::savePatterns());
    dialog->setTakesAnyName(true);
    if (!name().isEmpty())
        dialog->setFileName(freeNameBeside(place.filePath(named.fileName())));
    const bool isAccepted = dialog->exec() == QDialog::Accepted;
    if (!dialog)
        return false;
    const QString chosen = isAccepted ? dialog->fileName() : QString();
    delete dialog;
    if (chosen.isEmpty())
        return false;
    m_folder.note(chosen);
    return saveUnder(chosen);
}

bool Documents::saveUnder(const QString& fileName)
{
    const bool isBeside = !QFileInfo::exists(fileName) &&
                          QFileInfo(fileName).absolutePath() == QFileInfo(name()).absolutePath();
    if (const auto error = saveDrawing(m_editor, fileName, m_window, m_platform, m_write)) {
        if (error->code != ECANCELED)
            tell(*error);
        return false;
    }
    if (isBeside && QFileInfo::exists(name())) // the new file must be no more public than the old one
        QFile::setPermissions(fileName, QFile::permissions(name()));
    if (fileName != m_editor.fileName())
        m_mayReplace = false;
    m_editor.setFileName(fileName);
    m_editor.clearModified();
    settle();
    m_proposal.clear();
    m_version = Version::of(fileName);
    emit changed();
    m_platform.timedMessage(m_window, QLatin1String(completeIcon),
                            KORVA_EditCanvas::tr("Saved Successfully", "2.11.2.9;DIALOG_ICON_50"),
                            shortTime);
    return true;
}

// --- Deleting

void Documents::deletePicture()
{
    constexpr int yes = 1; // the first button is the default, and changes nothing
    const QString path = m_editor.fileName();
    const QString name = fileNameOf(path);
    const auto ask = [this](const QString& text, const QString& button) {
        return m_platform.question(m_window, QLatin1String(binIcon), text,
                                   {tr("Cancel", "deleting"), button});
    };
    if (ask(tr("Move %1 to the trash?", "deleting").arg(name), tr("To the trash", "deleting")) != yes)
        return;
    const bool wasThere = QFileInfo::exists(path);
    if (wasThere && !m_platform.removePicture(path)) {
        if (ask(tr("There is no trash for %1. Delete it for good?", "deleting").arg(name),
                tr("Delete", "deleting")) != yes)
            return;
        QFile file(path);
        if (!file.remove()) {
            m_platform.timedInformation(m_window, QLatin1String(errorIcon),
                                        tr("Not deleted: %1", "deleting").arg(file.errorString()),
                                        tr("OK", "deleting"), longTime);
            return;
        }
    }
    if (wasThere)
        keep();
    else if (m_journal) // the drawing is all that is left of the picture
        m_journal->keep();
    if (KORVA_Text* text = m_editor.currentText())
        text->resetBuffer();
    m_editor.clearCanvas();
    m_editor.clearModified();
    m_editor.setFileName(QString());
    settle();
    beginDocument();
    emit performed(Command{.verb = Verb::Clear});
}

} // namespace pad
