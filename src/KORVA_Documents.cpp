#include "KORVA_Documents.h"

#include "KORVA_Canvas.h"
#include "KORVA_EditCanvas.h"
#include "KORVA_Formats.h"
#include "KORVA_MainView.h"
#include "KORVA_Patience.h"
#include "KORVA_PictureFile.h"
#include "KORVA_ScrollView.h"
#include "KORVA_Text.h"
#include "UTIL_ImageReader.h"
#include "UTIL_Modal.h"
#include "UTIL_PictureDialog.h"
#include "UTIL_Platform.h"

#include <QFile>

#include <utility>

#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr auto handedOver =
    "/tmp/korva.tmp"; // a host's picture on its way in: never the drawing's own file
constexpr auto handedOverFile = "/tmp/korva.file";

/// Everybody may put a file into /tmp. What is handed over there is a regular file of the user's own or of
/// the system's: a link could lead to anything, and what is ours nobody else can exchange before it is
/// read.
bool mayBeRead(const QString& name)
{
    if (name != QLatin1String(handedOver) && name != QLatin1String(handedOverFile))
        return true;
    struct stat status = {};
    constexpr uid_t system = 0;
    return lstat(QFile::encodeName(name).constData(), &status) == 0 && S_ISREG(status.st_mode) &&
           (status.st_uid == geteuid() || status.st_uid == system);
}

/// Reads a small file at once, any other in a thread for which the user waits. Nothing when the user has
/// cancelled, or the editor is gone.
template <typename Work>
auto patiently(KORVA_EditCanvas& editor, const KORVA_PictureFile& file, const Work& work)
    -> std::optional<std::invoke_result_t<Work, KORVA_PictureFile&>>
{
    KORVA_PictureFile own = file;
    if (own.isSmall() || !editor.features().dialogs)
        return work(own);
    own.setAllowance(UTIL_ImageReader::Allowance::ofPlatform());
    const QPointer<KORVA_EditCanvas> asker = &editor;
    auto result = patience::opening(editor, [own, work](const util::IsCancelled& isCancelled) {
        KORVA_PictureFile theirs = own;
        theirs.setIsCancelled(isCancelled);
        return work(theirs);
    });
    if (!asker)
        return {};
    return result;
}

// What is asked before unsaved changes would be lost; empty for actions that lose none.
QString saveQuestion(int action)
{
    switch (action) {
    case KORVA_Documents::Open:
        return KORVA_EditCanvas::tr("Save changes to drawing before opening?",
                                    "2.11.2.3;DIALOG_ICON_50_WARP");
    case KORVA_Documents::ChooseCanvas:
        return KORVA_EditCanvas::tr("Save changes to drawing before choosing canvas?",
                                    "2.11.2.3;DIALOG_ICON_50_WARP");
    case KORVA_Documents::Create:
        return KORVA_EditCanvas::tr("Save changes to drawing before creating?",
                                    "2.11.2.3;DIALOG_ICON_50_WARP");
    default:
        return {};
    }
}

} // namespace

void KORVA_Documents::setFileName(const QString& name)
{
    m_fileName = name == QLatin1String(handedOver) ? QString() : name;
    if (m_fileName.isEmpty())
        emit m_editor.canDelete(false);
}

void KORVA_Documents::noteSaved(const QString& name)
{
    if (name == m_opened.name)
        m_opened.isReduced = false;
}

// --- Opening

void KORVA_Documents::startOpen()
{
    if (!m_pickDialog)
        m_editor.saveChangePic(Open);
}

void KORVA_Documents::saveChanges(int action)
{
    m_pendingAction = action;
    m_editor.canvas()->mergePastePixmap();
    if (!m_editor.isModified()) {
        if (action == Open || action == InsertStamp)
            m_editor.openNewFilePrivate(action, QString());
        else if (action == Save && m_fileName.isEmpty() && QFile::exists(handedOver))
            m_editor.savePic(Save);
        return;
    }

    if (!features().saving) {
        if (action == Open || action == InsertStamp)
            m_editor.openNewFilePrivate(action, QString());
        return;
    }
    if (const QString question = saveQuestion(action); !question.isEmpty()) {
        const std::optional<int> answer = ask(warningIcon, question,
                                              {KORVA_EditCanvas::tr("Yes", "2.11.2.3;SOFTKEY_2BUTTON"),
                                               KORVA_EditCanvas::tr("No", "2.11.2.3;SOFTKEY_2BUTTON")});
        if (answer != 0) {
            const bool goesOn = answer && action == Open;
            if (goesOn && survives([&] { m_editor.openNewFilePrivate(Open, QString()); }))
                resetTypedText();
            return;
        }
    }
    if (KORVA_Text* text = m_editor.currentText(); text && !text->isBufferEmpty())
        text->paintProportionBuffer();
    if (survives([&] { m_editor.savePic(action); }))
        resetTypedText();
}

void KORVA_Documents::resetTypedText()
{
    if (KORVA_Text* text = m_editor.currentText())
        text->resetBuffer();
}

std::optional<QList<QByteArray>> KORVA_Documents::formats() const
{
    if (features().formats == KORVA_Features().formats)
        return {};
    QList<QByteArray> found;
    for (const QString& format : features().formats)
        found.append(format.toLatin1());
    return found;
}

bool KORVA_Documents::mayOpen(int action) const
{
    return features().opening && (action != InsertStamp || (features().pasting && features().editing));
}

bool KORVA_Documents::pickAndOpen(int action)
{
    if (!mayOpen(action) || !features().dialogs)
        return false;
    delete m_pickDialog;
    UTIL_Platform* platform = UTIL_Platform::instance();
    UTIL_Modal dialog(platform->createPickDialog(&m_editor, platform->photoFolder(),
                                                 KORVA_Formats::openPatterns(&features().formats)));
    if (action == InsertStamp)
        dialog->setPurpose(KORVA_EditCanvas::tr("Insert stamp", "PICK_DIALOG;TITLE"),
                           KORVA_EditCanvas::tr("Insert", "PICK_DIALOG;SOFTKEY_2BUTTON"));
    m_pickDialog = dialog.operator->();
    bool isAccepted = false;
    if (!survives([&] { isAccepted = dialog.isAccepted(); }) || !isAccepted)
        return false;
    const QString name = dialog->fileName();
    return !name.isEmpty() && open(action, name);
}

bool KORVA_Documents::open(int action, const QString& name)
{
    if (!mayOpen(action))
        return false;
    const std::optional<Contents> contents = contentsOf(name, KORVA_Formats::readFormat(name));
    if (!contents)
        return false;
    if (action != InsertStamp)
        m_fileName = name;
    if (!check(contents->status))
        return false;

    QPixmap picture;
    Opened source;
    const bool opened = take(*contents, &picture, &source);
    if (contents->image.isNull() && !survives([this] { tellUnreadable(); }))
        return false;
    if (opened && action == Open) {
        m_opened = source;
        resetTypedText(); // it belonged to the previous drawing
        m_editor.setPixmap(&picture);
        m_editor.clearModified();
        m_editor.mainView()->scrollView()->setContentsPos(0, 0);
    } else if (opened && action == InsertStamp) {
        m_editor.insertStamp(picture);
    }
    if (action == Open) {
        if (!opened)
            m_fileName.clear();
        emit m_editor.canDelete(true); // after a failure, too: hosts have always had it so
    }
    return opened;
}

void KORVA_Documents::openAtConstruction(const QString& name)
{
    const bool isHandedOver = name == QLatin1String(handedOver) || name == QLatin1String(handedOverFile);
    const std::optional<Contents> contents =
        contentsOf(name, isHandedOver ? QByteArray() : KORVA_Formats::readFormat(name));
    QPixmap picture;
    if (!contents || !check(contents->status))
        return;
    if (take(*contents, &picture, &m_opened)) {
        m_fileName = name;
        m_editor.setPixmap(&picture);
        m_editor.clearModified();
    } else if (contents->image.isNull()) {
        tellUnreadable();
    }
}

bool KORVA_Documents::isPicSizeNotOver(const QString& name, const char* format)
{
    std::optional<int> status;
    KORVA_PictureFile picture(name, KORVA_PictureFile::Full);
    picture.setFormats(formats());
    const auto read = [format = QByteArray(format)](KORVA_PictureFile& file) {
        return file.check(format.isEmpty() ? nullptr : format.constData());
    };
    const bool isThere = survives([&] { status = patiently(m_editor, picture, read); });
    return isThere && status && check(*status);
}

std::optional<KORVA_Documents::Contents> KORVA_Documents::contentsOf(const QString& name,
                                                                     const QByteArray& format)
{
    if (!mayBeRead(name)) {
        Contents refused;
        refused.status = UTIL_ImageReader::Failed;
        return refused;
    }
    const KORVA_WorkingLimits limits = KORVA_WorkingLimits::ofPlatform();
    KORVA_PictureFile picture(name);
    picture.setLimits(limits);
    picture.setFormats(formats());
    const auto read = [format, limits](KORVA_PictureFile& file) {
        Contents contents;
        contents.status = file.check(format.isEmpty() ? nullptr : format.constData());
        if (contents.status != UTIL_ImageReader::Ok)
            return contents;
        contents.image = file.take();
        contents.working = limits.fitted(contents.image);
        contents.opened = {file.name(), file.origin().size, !file.origin().isWhole};
        return contents;
    };
    std::optional<Contents> contents;
    if (!survives([&] { contents = patiently(m_editor, picture, read); }))
        return {};
    return contents;
}

bool KORVA_Documents::check(int status)
{
    switch (status) {
    case UTIL_ImageReader::Ok:
        return true;
    case UTIL_ImageReader::TooLarge:
        tell(completeIcon, KORVA_EditCanvas::tr("The image is oversize", "2.11.2.9;DIALOG_ICON_50"));
        return false;
    default:
        tell(completeIcon, KORVA_EditCanvas::tr("Failed to open file", "2.11.2.9;DIALOG_ICON_50"));
        return false;
    }
}

bool KORVA_Documents::take(const Contents& contents, QPixmap* picture, Opened* opened) const
{
    if (contents.image.isNull() || !KORVA_WorkingLimits::ofPlatform().convert(contents.working, picture))
        return false;
    *picture = m_editor.fitted(*picture);
    *opened = contents.opened;
    opened->isReduced = opened->isReduced || !UTIL_ImageReader::isSame(contents.image, picture->toImage());
    return true;
}

void KORVA_Documents::tellUnreadable()
{
    if (!features().dialogs)
        return;
    UTIL_Platform::instance()->timedInformation(
        &m_editor, warningIcon,
        KORVA_EditCanvas::tr("This file can not be opened.", "4.4.4.2;DIALOG_ICON_50_WARP"),
        KORVA_EditCanvas::tr("OK", "4.4.4.2;SOFTKEY_1BUTTON"), longTime);
}

bool KORVA_Documents::setEncoded(const QByteArray& data)
{
    QPixmap picture;
    KORVA_PictureFile::Origin origin;
    const KORVA_WorkingLimits limits = KORVA_WorkingLimits::ofPlatform();
    const QImage image = KORVA_PictureFile::decoded(data, limits, formats(), &origin);
    if (!limits.convert(image, &picture))
        return false;
    picture = m_editor.fitted(picture);
    m_opened = {m_fileName, origin.size,
                !origin.isWhole || !UTIL_ImageReader::isSame(image, picture.toImage())};
    m_editor.setPixmap(&picture);
    return true;
}

void KORVA_Documents::setBuffer(const QByteArray& data)
{
    if (!setEncoded(data))
        tell(errorIcon, KORVA_EditCanvas::tr("open buffer fail!", "2.11.2.9;DIALOG_ICON_50"));
}

void KORVA_Documents::cancel()
{
    ++m_cancellations;
    m_pendingAction = NoAction;
}

void KORVA_Documents::reset()
{
    forgetOpened();
    if (!m_fileName.isEmpty())
        setFileName({});
}
