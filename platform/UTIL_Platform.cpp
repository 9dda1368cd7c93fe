#include "UTIL_Platform.h"

#include "UTIL_MessageBox.h"
#include "UTIL_PickDialog.h"
#include "UTIL_SaveDialog.h"
#include "UTIL_WaitBox.h"

#include <QFile>
#include <QStandardPaths>

namespace {

constexpr qint64 megapixel = 1'000'000;
constexpr int millisecondsPerSecond = 1000;

std::unique_ptr<UTIL_Platform>& installed()
{
    static std::unique_ptr<UTIL_Platform> platform = std::make_unique<UTIL_Platform>();
    return platform;
}

} // namespace

UTIL_Platform::UTIL_Platform() = default;
UTIL_Platform::~UTIL_Platform() = default;

UTIL_Platform* UTIL_Platform::instance()
{
    return installed().get();
}

void UTIL_Platform::install(std::unique_ptr<UTIL_Platform> platform)
{
    installed() = platform ? std::move(platform) : std::make_unique<UTIL_Platform>();
}

int UTIL_Platform::question(QWidget* parent, const QString& icon, const QString& text,
                            const QStringList& buttons)
{
    return UTIL_MessageBox::ask(parent, icon, text, buttons);
}

void UTIL_Platform::timedInformation(QWidget* parent, const QString& icon, const QString& text,
                                     const QString& button, int timeout)
{
    UTIL_MessageBox::tell(parent, icon, text, {button}, timeout);
}

void UTIL_Platform::timedMessage(QWidget* parent, const QString& icon, const QString& text, int timeout)
{
    UTIL_MessageBox::tell(parent, icon, text, {}, timeout);
}

bool UTIL_Platform::waitFor(QWidget* parent, const QString& text, const QFuture<void>& work)
{
    return UTIL_WaitBox::run(parent, text, work);
}

int UTIL_Platform::timeoutSecond() const
{
    return millisecondsPerSecond;
}

UTIL_PictureDialog* UTIL_Platform::createPickDialog(QWidget* parent, const QString& folder,
                                                    const QStringList& patterns)
{
    return new UTIL_PickDialog(parent, folder, patterns);
}

UTIL_PictureDialog* UTIL_Platform::createSaveDialog(QWidget* parent, const QString& folder,
                                                    const QStringList& patterns)
{
    return new UTIL_SaveDialog(parent, folder, patterns);
}

std::optional<QColor> UTIL_Platform::pickColor(QWidget*, const QColor&, int)
{
    return {};
}

QString UTIL_Platform::photoFolder() const
{
    return QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
}

QString UTIL_Platform::iconFolder() const
{
    return {};
}

qint64 UTIL_Platform::pixelLimit() const
{
    return 64 * megapixel;
}

QSize UTIL_Platform::workingBox() const
{
    return {352, 288};
}

int UTIL_Platform::workingDepth() const
{
    return 16;
}

QList<QByteArray> UTIL_Platform::otherFormats() const
{
    return {};
}

bool UTIL_Platform::removePicture(const QString& name)
{
    return QFile::remove(name);
}

void UTIL_Platform::setMouseMode(QWidget*, int) {}

void UTIL_Platform::setAutoHideKeyboard(bool) {}
