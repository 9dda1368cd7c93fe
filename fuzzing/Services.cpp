#include "Services.h"

#include "Fuzz.h"

#include <UTIL_PictureDialog.h>

#include <memory>

namespace fuzz {

namespace {

/// Is answered before it opens.
class AnsweredDialog : public UTIL_PictureDialog
{
public:
    AnsweredDialog(QWidget* parent, const QString& name, const std::function<void()>& whileOpen)
        : UTIL_PictureDialog(parent), m_name(name), m_whileOpen(whileOpen)
    {
    }

    int exec() override
    {
        const QPointer<AnsweredDialog> self = this;
        const QString name = m_name;
        if (const auto happening = m_whileOpen)
            happening(); // may delete the parent
        if (!self)
            return Rejected;
        setFileName(name);
        return name.isEmpty() ? Rejected : Accepted;
    }

private:
    QString m_name;
    std::function<void()> m_whileOpen;
};

} // namespace

Services& Services::install()
{
    auto services = std::make_unique<Services>();
    Services& installed = *services;
    UTIL_Platform::install(std::move(services));
    return installed;
}

void Services::open() const
{
    if (whileOpen)
        whileOpen();
}

int Services::question(QWidget*, const QString&, const QString&, const QStringList& buttons)
{
    open();
    return choose ? choose(int(buttons.size())) : 0;
}

void Services::timedInformation(QWidget*, const QString&, const QString&, const QString&, int)
{
    open();
}

void Services::timedMessage(QWidget*, const QString&, const QString&, int)
{
    open();
}

bool Services::waitFor(QWidget*, const QString&, const QFuture<void>& work)
{
    QFuture<void>(work).waitForFinished();
    return true;
}

UTIL_PictureDialog* Services::createPickDialog(QWidget* parent, const QString&, const QStringList&)
{
    return new AnsweredDialog(parent, fileName, whileOpen);
}

UTIL_PictureDialog* Services::createSaveDialog(QWidget* parent, const QString&, const QStringList&)
{
    return new AnsweredDialog(parent, fileName, whileOpen);
}

std::optional<QColor> Services::pickColor(QWidget*, const QColor& present, int)
{
    open();
    constexpr int colors = 216;
    return choose ? QColor::fromHsv(choose(colors), 0xff, 0xff) : present;
}

QString Services::photoFolder() const
{
    return folder();
}

} // namespace fuzz
