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
#include <memory>

// The drawing's file: written, replaced and deleted.

namespace pad {

namespace {

constexpr auto completeIcon = "Dialog_Complete.gif";
constexpr auto errorIcon = "Dialog_Error.gif";
constexpr auto warningIcon = "Dialog_Exclamatory_Mark.gif";
constexpr auto binIcon = "Dialog_Empty_Trash.gif";

constexpr int shortTime = 1;
constexpr int readingTime = 4;
constexpr int longTime = 60;

} // namespace

// --- Saving

void Documents::tell(const QString& text, const QString& button)
{
    m_platform.timedInformation(m_window, QLatin1String(errorIcon), text, button, longTime);
}

template <typename Question>
auto Documents::answerOfDisk(const Question& question) -> std::optional<decltype(question())>
{
    const auto answer = std::make_shared<decltype(question())>();
    const DiskWork ask = [question, answer](const MayReplace&) {
        *answer = question();
        return std::optional<WriteError>();
    };
    if (workWhileWaiting(ask, {}, m_window, m_platform))
        return {};
    return *answer;
}

std::optional<QString> Documents::whatReplacingLoses()
{
    const QString path = m_editor.fileName();
    const QString name = wording::shortName(path);
    const QSize size = m_editor.snapshot().size();
    const QSize source = m_editor.sourceSize();
    if (!canBeWritten(path))
        return tr("%1 pictures can only be opened: the drawing of %2 pixels needs a new file.",
                  "saving; %1: 'GIF', %2: '300 × 200'")
            .arg(QFileInfo(path).suffix().toUpper(), wording::inPixels(size));
    if (m_mayReplace)
        return QString();
    if (m_editor.isReduced() && source != size)
        return tr("%1 has %2 pixels and the drawing %3: replacing it would lose the rest.",
                  "saving; %1: a file, %2 and %3: '300 × 200'")
            .arg(name, wording::inPixels(source), wording::inPixels(size));
    if (m_editor.isReduced())
        return tr("%1 has more colors than the drawing of %2 pixels: replacing it would lose them.",
                  "saving; %1: a file, %2: '300 × 200'")
            .arg(name, wording::inPixels(size));
    const auto now = answerOfDisk([path] { return Version::of(path); });
    if (!now)
        return {};
    if (*now != Version() && *now != m_version)
        return tr("%1 was changed since it was opened: replacing it would lose that.", "saving").arg(name);
    return QString();
}

bool Documents::save()
{
    if (m_editor.fileName().isEmpty())
        return saveAs();
    if (!hasChanges())
        return true;
    const std::optional<QString> loss = whatReplacingLoses();
    if (!loss)
        return false;
    return loss->isEmpty() ? saveUnder(m_editor.fileName()) : askAndSave(*loss);
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
        struct Free
        {
            QString name;
            bool isWritable = false;
        };
        const auto free = answerOfDisk([beside = m_editor.fileName()] {
            const QString name = freeNameBeside(beside);
            return Free{name, QFileInfo(QFileInfo(name).path()).isWritable()};
        });
        if (!free)
            return false;
        return free->isWritable ? saveUnder(free->name) : saveAs();
    }
    if (!saveUnder(m_editor.fileName()))
        return false;
    m_mayReplace = true;
    return true;
}

bool Documents::saveAs()
{
    const QString name = askName(QFileInfo(this->name()).fileName(), KORVA_EditCanvas::savePatterns());
    return !name.isEmpty() && saveUnder(name);
}

QString Documents::askName(const QString& proposal, const QStringList& patterns)
{
    const QString folder = QFileInfo(name()).path();
    const bool isPlaced = !name().isEmpty() && QFileInfo(folder).isWritable();
    const QDir place(isPlaced ? folder : m_folder.path(m_platform));
    UTIL_PictureDialog* dialog = m_platform.createSaveDialog(m_window, place.path(), patterns);
    dialog->setTakesAnyName(true);
    if (!proposal.isEmpty())
        dialog->setFileName(freeNameBeside(place.filePath(proposal)));
    return run(dialog);
}

std::optional<Documents::Written> Documents::write(const QString& fileName, const DiskWork& save)
{
    const auto written = std::make_shared<Written>();
    const DiskWork work = [save, fileName, written, own = m_editor.fileName(),
                           model = name()](const MayReplace& mayReplace) {
        const bool isBeside = !QFileInfo::exists(fileName) &&
                              QFileInfo(fileName).absolutePath() == QFileInfo(model).absolutePath();
        const std::optional<WriteError> error = save(mayReplace);
        if (error)
            return error;
        if (isBeside && QFileInfo::exists(model)) // no more public than the old file
            QFile::setPermissions(fileName, QFile::permissions(model));
        *written = {Version::of(fileName), !own.isEmpty() && QFileInfo(fileName) == QFileInfo(own)};
        return error;
    };
    const std::optional<WriteError> error = workWhileWaiting(work, fileName, m_window, m_platform);
    if (!error)
        return *written;
    if (error->code != ECANCELED)
        tell(tr("Not saved: %1", "saving").arg(error->sentence()), tr("OK", "saving"));
    return {};
}

bool Documents::saveUnder(const QString& fileName)
{
    const auto written = write(fileName, savingDrawing(m_editor, fileName, m_write));
    if (!written)
        return false;
    if (fileName != m_editor.fileName())
        m_mayReplace = false;
    m_editor.setFileName(fileName);
    m_editor.clearModified();
    settle();
    m_proposal.clear();
    m_version = written->version;
    m_isLess = false;
    emit changed();
    m_platform.timedMessage(m_window, QLatin1String(completeIcon),
                            KORVA_EditCanvas::tr("Saved Successfully", "2.11.2.9;DIALOG_ICON_50"),
                            shortTime);
    return true;
}

bool Documents::saveCopy(const Encoder& encode, const QStringList& patterns)
{
    const QFileInfo drawing(name());
    const QString extension = patterns.constFirst().mid(1);
    const QString fileName =
        askName(name().isEmpty() ? QString() : drawing.completeBaseName() + extension, patterns);
    if (fileName.isEmpty())
        return false;
    const auto written = write(fileName, savingEncoded(encode, fileName, m_write));
    if (!written)
        return false;
    if (written->isDrawings) {
        m_isLess = true;
        m_version = written->version;
    }
    m_platform.timedMessage(
        m_window, QLatin1String(completeIcon),
        tr("%1 was saved: %2", "saving; %1: a file, %2: '29.6 kB'")
            .arg(wording::shortName(fileName), wording::fileSize(written->version.size)),
        readingTime);
    return true;
}

// --- Deleting

void Documents::deletePicture()
{
    constexpr int yes = 1; // the first button is the default, and changes nothing
    const QString path = m_editor.fileName();
    const QString name = wording::shortName(path);
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
        errno = 0;
        if (!file.remove()) {
            const WriteError error{errno, file.errorString(), path};
            tell(tr("Not deleted: %1", "deleting").arg(error.sentence()), tr("OK", "deleting"));
            return;
        }
    }
    if (wasThere)
        keep();
    else if (m_journal) // the drawing is all that is left of the picture
        keepCopy(m_journal->keeper());
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
