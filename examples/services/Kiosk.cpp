#include "Kiosk.h"

#include <UTIL_PictureDialog.h>
#include <UTIL_PushButton.h>
#include <UTIL_Skin.h>

#include <QDir>
#include <QLabel>
#include <QListWidget>
#include <QTimer>
#include <QVBoxLayout>

namespace {

/// A tap on a picture takes it.
class PictureList : public UTIL_PictureDialog
{
public:
    PictureList(QWidget* parent, const QDir& folder, const QStringList& patterns)
        : UTIL_PictureDialog(parent)
    {
        setFixedSize(parent->window()->size());
        auto* layout = new QVBoxLayout(this);
        auto* list = new QListWidget;
        auto* back = new UTIL_PushButton({}, "Back");
        layout->addWidget(list);
        layout->addWidget(back);
        list->setIconSize({60, 45});
        for (const QString& name : folder.entryList(patterns, QDir::Files))
            list->addItem(new QListWidgetItem(QIcon(folder.filePath(name)), name));
        connect(back, &QPushButton::clicked, this, &QDialog::reject);
        connect(list, &QListWidget::itemClicked, this, [this, folder](const QListWidgetItem* picture) {
            setFileName(folder.filePath(picture->text()));
            accept();
        });
    }
};

/// Asks nobody and takes the first free name.
class NextName : public UTIL_PictureDialog
{
public:
    NextName(QWidget* parent, const QDir& folder) : UTIL_PictureDialog(parent)
    {
        int number = 1;
        while (folder.exists(QString("drawing-%1.png").arg(number)))
            ++number;
        setFileName(folder.filePath(QString("drawing-%1.png").arg(number)));
    }
    int exec() override { return Accepted; }
};

} // namespace

void Kiosk::timedInformation(QWidget* parent, const QString& icon, const QString& text, const QString&,
                             int timeout)
{
    timedMessage(parent, icon, text, timeout);
}

void Kiosk::timedMessage(QWidget* parent, const QString&, const QString& text, int timeout)
{
    auto* banner = new QLabel(text, parent->window());
    banner->setAlignment(Qt::AlignCenter);
    banner->setAutoFillBackground(true);
    banner->setPalette(
        UTIL_Skin::color(UTIL_Skin::Color::Ink)); // the text gets a colour that stands out from this one
    banner->setGeometry(0, 228, banner->window()->width(), 28);
    banner->show();
    QTimer::singleShot(timeout * timeoutSecond(), banner, &QObject::deleteLater);
}

UTIL_PictureDialog* Kiosk::createPickDialog(QWidget* parent, const QString& folder,
                                            const QStringList& patterns)
{
    return new PictureList(parent, folder, patterns);
}

UTIL_PictureDialog* Kiosk::createSaveDialog(QWidget* parent, const QString& folder, const QStringList&)
{
    return new NextName(parent, folder);
}
