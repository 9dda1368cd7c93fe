#include <KORVA_Preview.h>
#include <UTIL_PictureDialog.h>
#include <UTIL_Platform.h>
#include <UTIL_PushButton.h>
#include <UTIL_Skin.h>

#include <QApplication>
#include <QFileInfo>
#include <QLabel>
#include <QVBoxLayout>

#include <memory>

namespace {

QString pickPicture(QWidget* parent)
{
    UTIL_Platform* platform = UTIL_Platform::instance();
    const std::unique_ptr<UTIL_PictureDialog> dialog(
        platform->createPickDialog(parent, platform->photoFolder(), {"*.png", "*.gif", "*.jpg", "*.bmp"}));
    return dialog->exec() == QDialog::Accepted ? dialog->fileName() : QString();
}

} // namespace

/// Lets the person pick a wallpaper, and shows it for confirmation before it is taken.
int main(int argc, char** argv)
{
    const QApplication app(argc, argv);
    QWidget window;
    window.setFixedSize(240, 320);
    window.setPalette(UTIL_Skin::palette());
    auto* layout = new QVBoxLayout(&window);
    auto* wallpaper = new QLabel;
    auto* told = new QLabel("No wallpaper yet");
    auto* pick = new UTIL_PushButton({}, "Choose a wallpaper");
    wallpaper->setAlignment(Qt::AlignCenter);
    layout->addWidget(wallpaper, 1);
    layout->addWidget(told);
    layout->addWidget(pick);

    QObject::connect(pick, &QPushButton::clicked, &window, [&] {
        const QString file = pickPicture(&window);
        if (file.isEmpty())
            return;
        int result = KORVA_PREVIEW_CANCELLED;
        KorvaPreview(QString(), file, result);
        const bool confirmed = result == KORVA_PREVIEW_CONFIRMED;
        told->setText(QString("%1: %2 (%3)")
                          .arg(QFileInfo(file).fileName(), confirmed ? "taken" : "left")
                          .arg(result));
        if (confirmed)
            wallpaper->setPixmap(
                QPixmap(file).scaled(wallpaper->size(), Qt::KeepAspectRatio, Qt::SmoothTransformation));
    });
    window.show();
    return QApplication::exec();
}
