#include "KioskWindow.h"

#include "Words.h"

#include <KORVA_Canvas.h>
#include <KORVA_MainView.h>
#include <KORVA_ScrollView.h>
#include <UTIL_PushButton.h>
#include <UTIL_Skin.h>

namespace {

constexpr QSize wholeScreen(800, 480);
constexpr QRect editorPlace(0, 0, 640, 480);
constexpr QRect firstKey(648, 8, 144, 72); // the other keys follow below
constexpr int keyStep = firstKey.height() + 8;
constexpr int undoSteps = 50;
constexpr int mostBytes = 30'000;
constexpr int bannerSeconds = 2;

constexpr Word undoWord{"Undo", "Zurück"}, redoWord{"Redo", "Vor"}, clearWord{"Clear", "Leeren"},
    doneWord{"Done", "Fertig"};
constexpr Word askWord{"Send this drawing?", "Das Bild abschicken?"};
constexpr Word sendWord{"Send", "Abschicken"}, drawOnWord{"Draw on", "Weitermalen"};
constexpr Word sentWord{"Sent: %1 kB", "Abgeschickt: %1 kB"};
constexpr Word unreadableWord{"The page cannot be shown.", "Die Vorlage lässt sich nicht zeigen."};

UTIL_PushButton* addKey(QWidget* window, int row, const Word& word)
{
    auto* key = new UTIL_PushButton({}, word.text(), window);
    key->setGeometry(firstKey.translated(0, row * keyStep));
    key->setFocusPolicy(Qt::NoFocus); // a tap leaves what is being typed alone
    return key;
}

} // namespace

KioskWindow::KioskWindow(const QByteArray& page, Idle::Times times)
    : m_editor(KORVA_COLOR_16BIT, this),
      m_keyboard(this),
      m_warning(this),
      m_idle(times, this),
      m_undo(addKey(this, 0, undoWord)),
      m_redo(addKey(this, 1, redoWord)),
      m_clear(addKey(this, 2, clearWord)),
      m_done(addKey(this, 4, doneWord))
{
    setPalette(UTIL_Skin::palette());
    resize(wholeScreen);
    m_editor.setGeometry(editorPlace);
    m_keyboard.move(editorPlace.left(), editorPlace.bottom() + 1 - Keyboard::size.height());
    m_keyboard.hide();
    wire();
    layPage(page);
    beginVisit();
}

void KioskWindow::wire()
{
    using Editor = KORVA_EditCanvas;
    connect(m_undo, &QPushButton::clicked, &m_editor, &Editor::undo);
    connect(m_redo, &QPushButton::clicked, &m_editor, &Editor::redo);
    connect(m_clear, &QPushButton::clicked, &m_editor, &Editor::clearCanvas);
    connect(m_done, &QPushButton::clicked, this, &KioskWindow::finish);
    connect(&m_editor, &Editor::canUndo, m_undo, &QWidget::setEnabled);
    connect(&m_editor, &Editor::canRedo, m_redo, &QWidget::setEnabled);
    connect(&m_editor, &Editor::modified, m_done, [this] { m_done->setEnabled(true); });
    connect(&m_editor, &Editor::signalTextTool, this, &KioskWindow::showKeyboard);
    connect(&m_editor, &Editor::TextToolClicked, this, &KioskWindow::followCaret);
    connect(&m_keyboard, &Keyboard::typed, this, &KioskWindow::followCaret);
    connect(&m_idle, &Idle::warned, &m_warning, &Warning::count);
    connect(&m_idle, &Idle::returned, &m_warning, &QWidget::hide);
    connect(&m_idle, &Idle::gone, this, &KioskWindow::end);
}

// --- One visit after the other

void KioskWindow::layPage(const QByteArray& page)
{
    if (page.isEmpty())
        return;
    if (!m_editor.setEncoded(page))
        return tell(unreadableWord);
    m_page = m_editor.snapshot().size();
    m_editor.setPaper(m_editor.snapshot());
}

/// Gives the next visitor an empty page and the pencil, with no way back to the previous drawing.
void KioskWindow::beginVisit()
{
    m_editor.reset(); // also closes its dialogs and pop-ups; the paper stays
    m_editor.chooseCanvas(KORVA_CANVAS_16BIT, m_page.width(), m_page.height());
    m_editor.setUndoSteps(undoSteps);
    m_editor.clearModified();
    for (QWidget* key : {m_undo, m_redo, m_done})
        key->setEnabled(false);
}

void KioskWindow::handOut()
{
    const QByteArray picture = m_editor.encoded("JPEG", mostBytes);
    emit handedOut(picture);
    tell(sentWord, QString::number((picture.size() + 999) / 1000));
}

/// The visitor says so.
void KioskWindow::finish()
{
    const int answer = UTIL_Platform::instance()->question(&m_editor, {}, askWord.text(),
                                                           {sendWord.text(), drawOnWord.text()});
    if (answer != 0)
        return;
    handOut();
    beginVisit();
}

/// The visitor has gone, whatever is open.
void KioskWindow::end()
{
    m_warning.hide();
    if (m_editor.hasChanges())
        handOut();
    beginVisit();
}

// --- The keyboard

/// Makes room for the keyboard, or takes it back.
void KioskWindow::showKeyboard(bool isShown)
{
    m_keyboard.setVisible(isShown);
    m_editor.setGeometry(isShown ? editorPlace.adjusted(0, 0, 0, -Keyboard::size.height()) : editorPlace);
}

/// Scrolls to the line that is being typed.
void KioskWindow::followCaret()
{
    KORVA_ScrollView& view = *m_editor.mainView()->scrollView();
    const QRect caret = m_editor.canvas()->inputMethodQuery(Qt::ImCursorRectangle).toRect();
    const int shown = view.viewport()->height();
    if (caret.bottom() >= view.contentsY() + shown)
        view.setContentsPos(view.contentsX(), caret.bottom() - shown + 1);
    else if (caret.top() < view.contentsY())
        view.setContentsPos(view.contentsX(), caret.top());
}

void KioskWindow::tell(const Word& word, const QString& argument)
{
    const QString text = argument.isEmpty() ? word.text() : word.text().arg(argument);
    UTIL_Platform::instance()->timedMessage(this, {}, text, bannerSeconds);
}
