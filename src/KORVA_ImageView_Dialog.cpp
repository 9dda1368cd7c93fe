#include "KORVA_ImageView_Dialog.h"

#include "IMV_UI_PhotoDisplay.h"
#include "UTIL_GifParser.h"
#include "UTIL_ImageReader.h"
#include "UTIL_Platform.h"
#include "UTIL_PushButton.h"
#include "UTIL_Skin.h"

#include <QFileInfo>
#include <QPointer>
#include <QTimer>

namespace {

constexpr int loadDelay = 50; // ms
constexpr int messageTime = 1;
constexpr QRect displayRect(10, 10, 204, 171);

UTIL_ImageReader readerFor(const QString& file, const char* format = nullptr)
{
    UTIL_ImageReader reader(file, format);
    reader.setReduction(IMV_UI_PhotoDisplay::reductionTo(displayRect.size()));
    return reader;
}

} // namespace

KORVA_ImageView_Dialog::KORVA_ImageView_Dialog(const QString& file)
    : UTIL_Dialog(StandardDialog, false), m_fileName(file)
{
    init(QImage());
    // Only now: init() may run an event loop while it checks, and the load needs the display and the keys.
    QTimer::singleShot(loadDelay, this, &KORVA_ImageView_Dialog::timeoutSlot);
}

KORVA_ImageView_Dialog::KORVA_ImageView_Dialog(const QImage& image)
    : UTIL_Dialog(StandardDialog, false), m_fileName(QStringLiteral("image.jpg"))
{
    init(image);
}

void KORVA_ImageView_Dialog::init(const QImage& image)
{
    const bool ok = isPicSizeNotOver(m_fileName, nullptr);
    m_photoDisplay =
        ok ? new IMV_UI_PhotoDisplay(image, content()) : new IMV_UI_PhotoDisplay(QString(), content());
    m_photoDisplay->setGeometry(displayRect);

    m_cancelButton = createSoftKey(tr("Cancel", "4.4.2.12;SOFTKEY_2BUTTON"), 1);
    connect(m_cancelButton, &QPushButton::clicked, this, &QDialog::reject);
    m_confirmButton = createSoftKey(tr("Confirm", "4.4.2.12;SOFTKEY_2BUTTON"), 2);
    connect(m_confirmButton, &QPushButton::clicked, this, &QDialog::accept);
    m_confirmButton->setEnabled(ok);
    setTabOrder(m_confirmButton, m_cancelButton);
}

bool KORVA_ImageView_Dialog::isPicSizeNotOver(const QString& file, const char* format)
{
    UTIL_ImageReader reader = readerFor(file, format);
    if (reader.read())
        return true;
    const QString reason = reader.status() == UTIL_ImageReader::TooLarge
                               ? tr("The image is oversize", "2.11.2.9;DIALOG_ICON_50")
                               : tr("Failed to open file", "2.11.2.9;DIALOG_ICON_50");
    // Both failures have always come with this icon.
    UTIL_Platform::instance()->timedMessage(this, QStringLiteral("Dialog_Complete.gif"), reason,
                                            messageTime);
    return false;
}

void KORVA_ImageView_Dialog::timeoutSlot()
{
    const QPointer<KORVA_ImageView_Dialog> self = this; // the box runs an event loop
    UTIL_ImageReader reader = readerFor(m_fileName);
    m_loaded = reader.read();
    if (m_loaded)
        m_photoDisplay->setImage(reader.image());
    else
        tellLoadError();
    if (self)
        playIfAnimated();
}

void KORVA_ImageView_Dialog::playIfAnimated()
{
    if (QFileInfo(m_fileName).suffix().compare(QLatin1String("gif"), Qt::CaseInsensitive) != 0)
        return;
    UTIL_GifParser parser(m_fileName, UTIL_GifParser::WholeFile);
    if (parser.parse() != UTIL_GifParser::NoError) {
        m_loaded = false;
        tellLoadError(); // a second message if the file could not be read at all: both failures are told
    } else if (parser.isAnimated()) {
        m_loaded = true;
        m_photoDisplay->loadGifAnimation(m_fileName);
    }
}

void KORVA_ImageView_Dialog::tellLoadError()
{
    UTIL_Platform::instance()->question(
        this, UTIL_Skin::pictureFile(QStringLiteral("Dialog_Exclamatory_Mark")),
        tr("Picture load error.", "2.16.5.9.4;FORM_CONTEXT_WITH_SCROLL_ICON1_20_WARP2"),
        {tr("OK", "2.16.5.9.4;CST_5BUTTON")});
}
