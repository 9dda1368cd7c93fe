#include "Kiosk.h"

#include <KORVA_EditCanvas.h>
#include <UTIL_PushButton.h>

#include <QApplication>
#include <QDir>
#include <QKeyEvent>
#include <QTemporaryDir>

namespace {

/// A key of the on-screen keyboard. It types where the keyboard focus is, like a real key.
void addKey(QWidget& keyboard, const QRect& place, const QString& label, int code, const QString& text)
{
    auto* key = new QPushButton(label, &keyboard);
    key->setGeometry(place);
    key->setFocusPolicy(Qt::NoFocus);
    QObject::connect(key, &QPushButton::clicked, key, [key, code, text] {
        QKeyEvent press(QEvent::KeyPress, code, {}, text);
        QCoreApplication::sendEvent(key->window()->focusWidget(), &press);
    });
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication app(argc, argv);

    // Drawings are written here before they are moved into the folder; without it none can be saved.
    const QTemporaryDir downloads;
    QDir(downloads.path()).mkdir("appwrite");
    qputenv("KIV_LOCAL_DOWNLOAD_PATH", QFile::encodeName(downloads.path()));

    UTIL_Platform::install(std::make_unique<Kiosk>(
        QCoreApplication::arguments().value(1, QDir::currentPath()))); // before the first widget

    QWidget window;
    window.setFixedSize(240, 320);
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT, &window);
    UTIL_PushButton open({}, "Open", &window);
    open.setGeometry(8, 263, 72, 48);
    QObject::connect(&open, &QPushButton::clicked, &editor, &KORVA_EditCanvas::slotOpen);
    UTIL_PushButton save({}, "Save", &window);
    save.setGeometry(84, 263, 72, 48);
    QObject::connect(&save, &QPushButton::clicked, &editor, &KORVA_EditCanvas::slotSave);

    QWidget keyboard(&window);
    keyboard.setGeometry(0, 228, 240, 92);
    keyboard.setAutoFillBackground(true);
    keyboard.hide();
    const QString letters = "1234567890qwertyuiopasdfghjkl.zxcvbnm ";
    for (int i = 0; i < letters.size(); ++i)
        addKey(keyboard, QRect(i % 10 * 24, i / 10 * 23, 24, 23), letters.at(i),
               letters.at(i).toUpper().unicode(), letters.at(i));
    addKey(keyboard, QRect(192, 69, 24, 23), "<", Qt::Key_Backspace, {});
    addKey(keyboard, QRect(216, 69, 24, 23), "ok", Qt::Key_Return, {});
    QObject::connect(&editor, &KORVA_EditCanvas::signalTextTool, &keyboard, &QWidget::setVisible);

    window.show();
    return QApplication::exec();
}
