#include "Keyboard.h"

#include <KORVA_Canvas.h>
#include <KORVA_EditCanvas.h>
#include <KORVA_MainView.h>
#include <KORVA_ScrollView.h>
#include <KORVA_Translations.h>
#include <UTIL_PushButton.h>
#include <UTIL_Skin.h>

#include <QApplication>
#include <QDir>
#include <QLocale>

namespace {

constexpr QSize screen(800, 480);
constexpr QSize page(600, 420);
constexpr QRect editorPlace(0, 0, 640, 480);
constexpr QRect firstKey(648, 8, 144, 72); // the other keys follow below
constexpr int keyStep = firstKey.height() + 8;

/// The kiosk's own words, in English and in German; the library has its own.
constexpr struct
{
    const char* english;
    const char* german;
} undoWord{"Undo", "Zurück"}, redoWord{"Redo", "Vor"}, clearWord{"Clear", "Leeren"},
    doneWord{"Done", "Fertig"};

template <typename Word>
QString word(const Word& word)
{
    return QString::fromUtf8(KORVA_Translations::language() == "de" ? word.german : word.english);
}

/// Makes room for the keyboard, or takes it back.
void showKeyboard(KORVA_EditCanvas& editor, Keyboard& keyboard, bool isShown)
{
    keyboard.setVisible(isShown);
    editor.setGeometry(isShown ? editorPlace.adjusted(0, 0, 0, -Keyboard::size.height()) : editorPlace);
}

/// Scrolls to the line that is being typed.
void followCaret(KORVA_EditCanvas& editor)
{
    KORVA_ScrollView& view = *editor.mainView()->scrollView();
    const QRect caret = editor.canvas()->inputMethodQuery(Qt::ImCursorRectangle).toRect();
    const int shown = view.viewport()->height();
    if (caret.bottom() >= view.contentsY() + shown)
        view.setContentsPos(view.contentsX(), caret.bottom() - shown + 1);
    else if (caret.top() < view.contentsY())
        view.setContentsPos(view.contentsX(), caret.top());
}

/// Gives the next visitor an empty page and the pencil, with no way back to the previous drawing.
void beginPage(KORVA_EditCanvas& editor)
{
    editor.reset();
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
    KORVA_Translations::load(QLocale()); // before the first widget
    const QDir folder(QCoreApplication::arguments().value(1, QDir::currentPath()));

    QWidget window;
    window.setPalette(UTIL_Skin::palette());
    window.resize(screen);
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT, &window);
    editor.setGeometry(editorPlace);
    Keyboard keyboard(&window);
    keyboard.move(editorPlace.left(), editorPlace.bottom() + 1 - Keyboard::size.height());
    keyboard.hide();

    auto* undo = addKey(window, 0, word(undoWord));
    auto* redo = addKey(window, 1, word(redoWord));
    auto* clear = addKey(window, 2, word(clearWord));
    auto* done = addKey(window, 4, word(doneWord));
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
    QObject::connect(&editor, &KORVA_EditCanvas::signalTextTool, &keyboard,
                     [&](bool isText) { showKeyboard(editor, keyboard, isText); });
    QObject::connect(&editor, &KORVA_EditCanvas::TextToolClicked, &keyboard, [&] { followCaret(editor); });
    QObject::connect(&keyboard, &Keyboard::typed, &editor, [&] { followCaret(editor); });
    beginPage(editor);
    for (QWidget* key : {undo, redo, done})
        key->setEnabled(false);

    window.showFullScreen();
    return QApplication::exec();
}
