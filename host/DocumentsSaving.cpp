#include "Documents.h"

#include "DrawingFile.h"
#include "Platform.h"
#include "Wording.h"

#include <KORVA_EditCanvas.h>
#include <KORVA_Text.h>
#include <UTIL_PictureDialog.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>

// The drawing's file: written, replaced and deleted.

namespace pad {

namespace {

constexpr auto completeIcon = "Dialog_Complete.gif";
constexpr auto errorIcon = "Dialog_Error.gif";
constexpr auto warningIcon = "Dialog_Exclamatory_Mark.gif";
constexpr auto binIcon = "Dialog_Empty_Trash.gif";

constexpr int shortTime = 1;
constexpr int longTime = 60;

/// A name shortened to fit into a sentence.
QString fileNameOf(const QString& path)
{
    constexpr int most = 40;
    constexpr int end = 12; // with the extension
    const QString name = QFileInfo(path).fileName();
    return name.size() <= most ? name : name.left(most - end) + QChar(0x2026) + name.right(end);
}

} // namespace

// --- Saving

void Documents::tell(const WriteError& error)
{
    m_platform.timedInformation(m_window, QLatin1String(errorIcon),
                                tr("Not saved: %1", "saving").arg(error.sentence()), tr("OK", "saving"),
                                longTime);
}

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
