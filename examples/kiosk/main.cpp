#include <KORVA_EditCanvas.h>
#include <UTIL_PushButton.h>
#include <UTIL_Skin.h>

#include <QApplication>
#include <QDir>

namespace {

constexpr QSize screen(800, 480);
constexpr QSize page(600, 420);
constexpr QRect editorPlace(0, 0, 640, 480);
constexpr QRect firstKey(648, 8, 144, 72); // the other keys follow below
constexpr int keyStep = firstKey.height() + 8;

/// Gives the next visitor an empty page, with no way back to the previous drawing.
void beginPage(KORVA_EditCanvas& editor)
{
    editor.chooseCanvas(KORVA_CANVAS_16BIT, page.width(), page.height());
    editor.clearModified();
}

/// Saves under the first free name.
bool keepDrawing(KORVA_EditCanvas& editor, const QDir& folder)
{
    int number = 1;
    while (folder.exists(QString("visitor-%1.png").arg(number)))
        ++number;
    return editor.pixmap()->save(folder.filePath(QString("visitor-%1.png").arg(number)));
}

UTIL_PushButton* addKey(QWidget& window, int row, const QString& text)
{
    auto* key = new UTIL_PushButton({}, text, &window);
    key->setGeometry(firstKey.translated(0, row * keyStep));
    key->setFocusPolicy(Qt::NoFocus); // a tap leaves what is being typed alone
    return key;
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication app(argc, argv);
    const QDir folder(QCoreApplication::arguments().value(1, QDir::currentPath()));

    QWidget window;
    window.setPalette(UTIL_Skin::palette());
    window.resize(screen);
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT, &window);
    editor.setGeometry(editorPlace);

    auto* undo = addKey(window, 0, "Undo");
    auto* redo = addKey(window, 1, "Redo");
    auto* clear = addKey(window, 2, "Clear");
    auto* done = addKey(window, 4, "Done");
    QObject::connect(undo, &QPushButton::clicked, &editor, &KORVA_EditCanvas::undo);
    QObject::connect(redo, &QPushButton::clicked, &editor, &KORVA_EditCanvas::redo);
    QObject::connect(clear, &QPushButton::clicked, &editor, &KORVA_EditCanvas::clearCanvas);
    QObject::connect(&editor, &KORVA_EditCanvas::canUndo, undo, &QWidget::setEnabled);
    QObject::connect(&editor, &KORVA_EditCanvas::canRedo, redo, &QWidget::setEnabled);
    QObject::connect(&editor, &KORVA_EditCanvas::modified, done, [done] { done->setEnabled(true); });
    QObject::connect(done, &QPushButton::clicked, &editor, [&editor, &folder, done] {
        if (!keepDrawing(editor, folder))
            return; // the drawing stays for the next try
        beginPage(editor);
        done->setEnabled(false);
    });
    beginPage(editor);
    for (QWidget* key : {undo, redo, done})
        key->setEnabled(false);

    window.showFullScreen();
    return QApplication::exec();
}
