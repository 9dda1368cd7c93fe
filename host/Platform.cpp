#include "Platform.h"

#include "ColorPopup.h"

#include <UTIL_PictureDialog.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

namespace pad {

namespace {

/// A folder dialog that is answered before it opens.
class ScriptedDialog : public UTIL_PictureDialog
{
public:
    ScriptedDialog(QWidget* parent, const QString& name) : UTIL_PictureDialog(parent), m_name(name) {}

    int exec() override
    {
        setFileName(m_name); // replaces the proposed name
        return m_name.isEmpty() ? Rejected : Accepted;
    }

private:
    QString m_name;
};

} // namespace

Platform& Platform::install()
{
    auto platform = std::make_unique<Platform>();
    Platform& installed = *platform;
    UTIL_Platform::install(std::move(platform));
    return installed;
}

void Platform::setWorking(QSize box, int depth)
{
    m_workingBox = box.isEmpty() ? UTIL_Platform::workingBox() : box;
    m_workingDepth = depth;
}

QSize Platform::workingBox() const
{
    return m_workingBox;
}

int Platform::workingDepth() const
{
    return m_workingDepth;
}

std::optional<QColor> Platform::pickColor(QWidget* parent, const QColor& present, int depth)
{
    constexpr int allColors = 16;
    if (m_script || !m_colors || depth != allColors)
        return UTIL_Platform::pickColor(parent, present, depth);
    return ColorPopup::pick(parent, present, m_colors->recent());
}

int Platform::question(QWidget* parent, const QString& icon, const QString& text,
                       const QStringList& buttons)
{
    m_lastAnswer.reset();
    if (!m_script) {
        m_lastAnswer = UTIL_Platform::question(parent, icon, text, buttons);
        return *m_lastAnswer;
    }
    const int refusal = int(buttons.size()) - 1;
    const std::optional<int> answer = std::exchange(m_script->answer, {});
    if (answer && *answer <= refusal && m_script->stopped.isEmpty()) {
        m_lastAnswer = answer;
        return *answer;
    }
    if (m_script->stopped.isEmpty())
        m_script->stopped = tr("the question '%1' has no answer", "replay").arg(text);
    return refusal;
}

void Platform::timedInformation(QWidget* parent, const QString& icon, const QString& text,
                                const QString& button, int timeout)
{
    if (m_script)
        m_script->told = text;
    else
        UTIL_Platform::timedInformation(parent, icon, text, button, timeout);
}

void Platform::timedMessage(QWidget* parent, const QString& icon, const QString& text, int timeout)
{
    if (m_script)
        m_script->told = text;
    else
        UTIL_Platform::timedMessage(parent, icon, text, timeout);
}

bool Platform::waitFor(QWidget* parent, const QString& text, const QFuture<void>& work)
{
    if (m_script && !m_script->isWatched) {
        QFuture<void>(work).waitForFinished();
        return true;
    }
    const bool isDone = UTIL_Platform::waitFor(parent, text, work);
    if (m_script)
        m_script->isCancelled = !isDone;
    return isDone;
}

bool Platform::removePicture(const QString& name)
{
    // Where Qt cannot make a trash it uses the current folder.
    const QString trash =
        QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/Trash");
    if (!QFileInfo(trash).isDir()) {
        constexpr auto ownerOnly = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
        if (!QDir().mkpath(trash) || !QFile::setPermissions(trash, ownerOnly))
            return false;
    }
    return QFile::moveToTrash(name);
}

UTIL_PictureDialog* Platform::createPickDialog(QWidget* parent, const QString& folder,
                                               const QStringList& patterns)
{
    if (m_script)
        return scriptedDialog(parent, tr("no picture is named to open", "replay"));
    return UTIL_Platform::createPickDialog(parent, folder, patterns);
}

UTIL_PictureDialog* Platform::createSaveDialog(QWidget* parent, const QString& folder,
                                               const QStringList& patterns)
{
    if (m_script) {
        m_script->fileName.clear(); // what is named is for opening
        return scriptedDialog(parent, tr("the drawing has no name to be saved under", "replay"));
    }
    return UTIL_Platform::createSaveDialog(parent, folder, patterns);
}

UTIL_PictureDialog* Platform::scriptedDialog(QWidget* parent, const QString& lacking)
{
    const bool isStopped = !m_script->stopped.isEmpty();
    if (m_script->fileName.isEmpty() && !isStopped)
        m_script->stopped = lacking;
    return new ScriptedDialog(parent, isStopped ? QString() : m_script->fileName);
}

} // namespace pad
