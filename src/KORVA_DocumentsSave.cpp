#include "KORVA_Documents.h"

#include "KORVA_Formats.h"
#include "UTIL_Modal.h"
#include "UTIL_PictureDialog.h"
#include "UTIL_Platform.h"

#include <utility>

// Saving and deleting a drawing, and what the user is asked and told.

void KORVA_Documents::nameAndSave(int action)
{
    if (action == InsertStamp) {
        m_editor.openNewFilePrivate(InsertStamp, QString());
    } else if (!m_fileName.isEmpty()) {
        if (survives([this] { m_editor.saveFilePrivate(); }) && action == Open)
            m_editor.openNewFilePrivate(Open, QString());
    } else if (features().saving && features().dialogs) {
        askForName();
    }
}

void KORVA_Documents::askForName()
{
    UTIL_Platform* platform = UTIL_Platform::instance();
    UTIL_Modal dialog(platform->createSaveDialog(&m_editor, platform->photoFolder(),
                                                 KORVA_Formats::savePatterns(&features().formats)));
    m_saveDialog = dialog.operator->();
    bool isAccepted = false;
    if (!survives([&] { isAccepted = dialog.isAccepted(); }))
        return;
    if (isAccepted)
        m_editor.slotSaveDlgCloseBeforeOpen(dialog->fileName());
    else
        m_pendingAction = NoAction;
}

void KORVA_Documents::saveUnder(const QString& name)
{
    if (!features().saving)
        return;
    m_fileName = name;
    if (!survives([this] { m_editor.saveFilePrivate(); }))
        return;
    delete m_saveDialog;
    if (m_pendingAction == Open || m_pendingAction == InsertStamp)
        m_editor.openNewFilePrivate(m_pendingAction, QString());
}

void KORVA_Documents::saveAndTell()
{
    if (!features().saving)
        return;
    if (m_fileName.isEmpty()) {
        emit m_editor.canDelete(false);
        return;
    }
    const QByteArray format = KORVA_Formats::writeFormat(m_fileName);
    // A GIF cannot, and keeps its name; so does what a host does not want written.
    const bool canBeWritten =
        !format.isEmpty() &&
        features().formats.contains(QLatin1String(KORVA_Formats::rowOf(m_fileName).format));
    std::pair outcome{errorIcon, KORVA_EditCanvas::tr("Saved Failed", "2.11.2.10;DIALOG_ICON_50")};
    if (canBeWritten && m_editor.save(m_fileName, format.constData())) {
        m_editor.clearModified();
        outcome = {completeIcon, KORVA_EditCanvas::tr("Saved Successfully", "2.11.2.9;DIALOG_ICON_50")};
    } else if (canBeWritten) {
        m_fileName.clear();
    }
    if (survives([&] { tell(outcome.first, outcome.second); }))
        emit m_editor.canDelete(true); // after a failure, too: hosts have always had it so
}

void KORVA_Documents::askAndDelete()
{
    if (!features().saving || !features().editing)
        return;
    const std::optional<int> answer =
        ask(binIcon, KORVA_EditCanvas::tr("Delete drawing?", "2.11.2.1;DIALOG_ICON_50"),
            {KORVA_EditCanvas::tr("OK", "2.11.2.1;SOFTKEY_2BUTTON"),
             KORVA_EditCanvas::tr("Cancel", "2.11.2.1;SOFTKEY_2BUTTON")});
    if (answer != 0)
        return;
    m_editor.clearCanvas();
    m_editor.clearModified();
    forgetOpened();
    resetTypedText();
    if (m_fileName.isEmpty())
        return;
    const QString name = m_fileName; // a file that cannot be removed is not reported
    if (survives([&] { UTIL_Platform::instance()->removePicture(name); }))
        m_fileName.clear();
}

std::optional<int> KORVA_Documents::ask(const char* icon, const QString& text, const QStringList& buttons)
{
    if (!features().dialogs)
        return {};
    int answer = 0;
    const bool isThere = survives([&] {
        answer = UTIL_Platform::instance()->question(&m_editor, QString::fromLatin1(icon), text, buttons);
    });
    return isThere ? std::optional(answer) : std::nullopt;
}

void KORVA_Documents::tell(const char* icon, const QString& text)
{
    if (features().dialogs)
        UTIL_Platform::instance()->timedMessage(&m_editor, QString::fromLatin1(icon), text, shortTime);
}
