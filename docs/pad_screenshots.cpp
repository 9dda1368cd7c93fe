// Makes the contact sheet of what korva-pad asks, at the scale the program runs at, from real files in a
// folder that goes afterwards. Started by screenshots.sh; wants a screen of its own.
#include "ContactSheet.h"
#include "Documents.h"
#include "EarlierDialog.h"
#include "Folders.h"
#include "PadWindow.h"
#include "Platform.h"
#include "Recovery.h"
#include "Theme.h"

#include <KORVA_Canvas.h>
#include <KORVA_EditCanvas.h>

#include <QApplication>
#include <QCursor>
#include <QFile>
#include <QPainter>
#include <QScreen>
#include <QTemporaryDir>

#include <cstdio>

using docs::ContactSheet;

namespace {

constexpr int columns = 6;

/// The hue 0 is one of colours that the working depth leaves alone.
QImage picture(QSize size, int hue)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(hue ? QColor::fromHsv(hue, 40, 255) : QColor(Qt::white));
    QPainter painter(&image);
    painter.setPen(QPen(hue ? QColor::fromHsv(hue, 255, 160) : QColor(Qt::red), size.width() / 40.0));
    painter.drawEllipse(QRect(QPoint(size.width() / 5, size.height() / 5), size / 2));
    painter.drawLine(0, size.height() * 4 / 5, size.width(), size.height() * 3 / 5);
    return image;
}

class Photographer
{
public:
    Photographer() : m_platform(pad::Platform::install()), m_window(m_platform), m_sheet(m_window, columns)
    {
        m_window.show();
        QCursor::setPos(m_window.screen()->geometry().bottomRight()); // hovers over nothing
        ContactSheet::wait();
    }

    QImage sheet()
    {
        ask("photo.jpg", {1600, 1200}, [](pad::Documents& d) { d.save(); });
        ask("A photograph with a very long name, taken on a mountain in the evening.jpg", {1600, 1200},
            [](pad::Documents& d) { d.save(); });
        ask("picture.png", {160, 120}, [](pad::Documents& d) { d.save(); });
        ask("exact.png", {160, 120}, [this](pad::Documents& d) {
            picture({160, 120}, 200).save(path("exact.png"), "PNG", 100);
            d.save();
        });
        ask("animation.wbmp", {160, 120}, [](pad::Documents& d) { d.save(); });
        ask("picture.png", {160, 120}, [](pad::Documents& d) { d.deletePicture(); });
        ask("picture.png", {160, 120}, [](pad::Documents& d) { d.newDrawing(); });
        ask("picture.png", {160, 120}, [](pad::Documents& d) { d.saveAs(); });
        ask("exact.png", {160, 120}, [this](pad::Documents& d) {
            QFile::setPermissions(m_folder.path(), QFile::ReadOwner | QFile::ExeOwner);
            d.save();
            QFile::setPermissions(m_folder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        });
        earlier();
        return m_sheet.image();
    }

private:
    [[nodiscard]] QString path(const QString& name) const { return m_folder.filePath(name); }

    void open(const QString& name, QSize size)
    {
        picture(size, name == "exact.png" ? 0 : 20)
            .save(path(name), name.endsWith("jpg")   ? "JPG"
                              : name.endsWith("png") ? "PNG"
                                                     : "WBMP");
        m_window.editor().clearModified();
        m_window.documents().openNamed(path(name));
        m_window.editor().canvas()->markModified();
    }

    void ask(const QString& name, QSize size, const std::function<void(pad::Documents&)>& question)
    {
        open(name, size);
        m_sheet.shoot([&] { question(m_window.documents()); });
    }

    void earlier()
    {
        m_sheet.shoot([this] { pad::EarlierDialog(&m_window, {}).exec(); });
        QList<KORVA_Journal::Entry> entries;
        QDateTime time = QDateTime::currentDateTime();
        const char* names[] = {
            "", "photo.jpg", "A photograph with a very long name, taken on a mountain.jpg", "", "a.png",
            "", ""};
        const QSize sizes[] = {{200, 170}, {352, 264}, {352, 264}, {20, 240},
                               {240, 20},  {200, 170}, {1, 1}};
        for (int i = 0; i < int(std::size(names)); ++i) {
            const QString file = path(QString("earlier %1.png").arg(i));
            picture(sizes[i], 50 * i + 1).save(file);
            entries.append({file, QString::fromLatin1(names[i]), time, sizes[i]});
            time = time.addSecs(-i * i * 3600 * 4);
        }
        m_sheet.shoot([&] { pad::EarlierDialog(&m_window, entries).exec(); });

        qputenv("XDG_STATE_HOME", QFile::encodeName(m_folder.path()));
        {
            const KORVA_Journal crashed(&m_window.editor(), pad::recoveryFolder());
            open("photo.jpg", {352, 264});
            m_window.editor().canvas()->clearCanvas(Qt::white);
        }
        pad::Recovery recovery(m_window.editor(), m_window.documents(), m_platform, &m_window);
        m_sheet.shoot([&] { recovery.offer(); });
    }

    QTemporaryDir m_folder;
    pad::Platform& m_platform;
    pad::PadWindow m_window;
    ContactSheet m_sheet;
};

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    pad::theme::apply();
    if (QApplication::arguments().size() != 2) {
        std::fputs("usage: korva-pad-screenshots FILE.png\n", stderr);
        return 1;
    }
    const QImage sheet = Photographer().sheet();
    return sheet.save(QApplication::arguments().constLast(), "PNG") ? 0 : 1;
}
