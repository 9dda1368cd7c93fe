#include "KORVA_Text.h"

#include "KORVA_Canvas.h"
#include "KORVA_Characters.h"
#include "KORVA_ClassicPainter.h"
#include "UTIL_Platform.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>

#include <utility>

namespace {

constexpr int blinkTime = 500; // milliseconds
constexpr int tabWidth = 8;    // letters x

bool isControl(QChar c)
{
    return c.category() == QChar::Other_Control;
}

bool isPrintable(const QString& text)
{
    return text == "\t" || (!text.isEmpty() && !isControl(text[0]));
}

} // namespace

KORVA_Text::KORVA_Text(const QString& name) : KORVA_Tool(name)
{
    UTIL_Platform::instance()->setAutoHideKeyboard(false);
}

KORVA_Text::~KORVA_Text() = default;

bool KORVA_Text::isTyping(const QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Backspace:
    case Qt::Key_Delete:
        return true;
    default:
        return isPrintable(event.text());
    }
}

// --- A text's life

void KORVA_Text::activating()
{
    canvas()->setCursor(pointer());
}

void KORVA_Text::open(QPoint at)
{
    m_state = Open;
    showText({});
    setText({});
    m_manners = canvas()->manners();
    m_home = at;
    m_isContinued = false;
    m_hold = Loose;
    placeStart();
    m_cursor = m_start;
    m_stops.clear();
    forgetSteps();
    m_restore = canvas()->keepFlags();
    m_dropped.reset();
    if (m_manners.movableText) // which may be new
        canvas()->setCursor(pointer());
    toggleCursor();
    m_blink.start(blinkTime, this);
    canvas()->offerPending();
}

// The text is open until every listener has heard of its commit.
void KORVA_Text::close()
{
    QGuiApplication::inputMethod()->reset();
    if (isQuiet() && m_text.isEmpty()) {
        drop();
        return;
    }
    paintBuffer();
    m_state = Closed;
    m_hold = Loose;
    m_keys.clear();
}

void KORVA_Text::drop()
{
    m_hold = Loose;
    m_blink.stop();
    hideCursor();
    setText({});
    if (canvas())
        showText({});
    m_state = Closed;
    m_keys.clear();
    m_stops.clear();
    forgetSteps();
    setTextKey(false);
    tellInputMethod(Qt::ImQueryAll);
    if (canvas())
        m_restore();
}

const KORVA_Manners& KORVA_Text::manners() const
{
    return m_state == Open || !canvas() ? m_manners : canvas()->manners();
}

/// Whether only a commit of letters counts as a modification.
bool KORVA_Text::isQuiet() const
{
    return manners().escapeDropsText;
}

void KORVA_Text::deactivating()
{
    m_blink.stop();
    if (m_state == Open)
        close();
    else
        paintBuffer(); // kept: leaving the tool has always counted
    hideCursor();
    if (std::exchange(m_dropped, {}))
        canvas()->offerWithoutDropped();
    tellInputMethod(Qt::ImQueryAll);
}

void KORVA_Text::timerEvent(QTimerEvent*)
{
    toggleCursor();
}

// --- The buffer

bool KORVA_Text::isBufferEmpty() const
{
    return !m_text.isNull() && m_text.isEmpty();
}

void KORVA_Text::setText(const QString& text)
{
    m_text = text.isEmpty() ? QLatin1String("") : text; // empty, but not null
}

void KORVA_Text::resetBuffer()
{
    if (!m_text.isNull())
        setText({});
    if (m_state == Open) {
        hideCursor();
        if (canvas())
            showText({});
        m_cursor = m_start;
    }
    m_keys.clear();
    m_stops.clear();
    forgetSteps();
    setTextKey(false);
    tellInputMethod(Qt::ImQueryInput);
}

void KORVA_Text::paintBuffer()
{
    setTextKey(false);
    if (!canvas() || m_isCommitting) // a slot may ask for the picture
        return;
    if (isQuiet() && (m_state != Open || m_text.isEmpty())) {
        hideCursor();
        return;
    }
    canvas()->saveOldPix();
    QPixmap* const picture = mergedPicture();
    if (!canvas()) // a slot that hears of a merge may leave the tool, which commits
        return;
    const QScopedValueRollback isCommitting(m_isCommitting, true);
    paintPending(picture);
    canvas()->updateZoomed();
    zoomedRebuilt(); // a tool that is being left is no longer told
    canvas()->markModified();
}

void KORVA_Text::paintPending(QPixmap* picture) const
{
    if (m_state != Open || m_text.isEmpty())
        return;
    KORVA_ClassicPainter painter(picture);
    drawText(painter, zoom().toPicture(m_start), zoom().toPicture(m_margin), wrapped(m_text));
}

void KORVA_Text::paintProportionBuffer()
{
    m_blink.stop();
    paintBuffer();
    m_isContinued = m_isContinued || !m_text.isEmpty();
    m_hold = Loose;
    setText({});
    m_keys.clear();
    m_stops.clear();
    forgetSteps();
    m_home = m_start = m_cursor = caret();
    if (m_state == Open && canvas())
        m_restore = canvas()->keepFlags();
    m_proportionPainted = true;
    tellInputMethod(Qt::ImQueryInput);
}

void KORVA_Text::setBold(bool bold)
{
    if (std::exchange(m_isBold, bold) != bold && m_state == Open && !m_proportionPainted)
        penChanged();
}

void KORVA_Text::penChanged()
{
    if (isLaidOut()) {
        if (!canvas() || m_state != Open)
            return;
        m_shown = {};
        canvas()->updateZoomed();
        placeCursor();
        showText(m_text);
        return;
    }
    setText({});
    paintBuffer();
    m_cursor = m_start;
    std::vector<QKeyEvent*> keys;
    for (const auto& key : m_keys)
        keys.push_back(key.get());
    if (canvas() && m_state == Open && !keys.empty())
        typeKeys(keys);
}

// --- Keys

void KORVA_Text::keyPressEvent(QKeyEvent* event)
{
    if (canvas() && m_state == Open && manners().escapeDropsText && event->key() == Qt::Key_Escape) {
        QGuiApplication::inputMethod()->reset();
        drop();
        return;
    }
    if (!canvas() || m_state != Open || !isTyping(*event)) {
        event->ignore();
        return;
    }
    record(*event);
    typeKeys({event});
}

void KORVA_Text::record(const QKeyEvent& event)
{
    m_keys.emplace_back(event.clone());
    if (isPrintable(event.text()))
        m_proportionPainted = false;
}

void KORVA_Text::keyPressEventSimu(QKeyEvent* event)
{
    if (canvas() && m_state == Open && isTyping(*event))
        typeKeys({event});
}

// The screen follows once for all of them, before any listener hears of them.
void KORVA_Text::typeKeys(const std::vector<QKeyEvent*>& keys)
{
    setTextKey(true);
    bool isCursorShown = m_cursorShown;
    hideCursor();
    int letters = 0;
    for (const QKeyEvent* key : keys) {
        const QString before = m_text;
        switch (key->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            breakLine();
            isCursorShown = false; // until it blinks next
            break;
        case Qt::Key_Backspace:
        case Qt::Key_Delete:
            isCursorShown = isCursorShown && m_text.isEmpty();
            deleteBackward();
            break;
        default:
            insert(key->text());
            ++letters;
        }
        noteEdit(*key, before);
    }
    if (isLaidOut())
        placeCursor();
    showText(m_text);
    if (isCursorShown)
        toggleCursor();
    tellInputMethod(Qt::ImQueryInput);
    for (; letters > 0 && canvas(); --letters)
        canvas()->markModified();
    if (canvas())
        canvas()->offerPending();
}

void KORVA_Text::breakLine()
{
    m_stops.push(m_cursor.x());
    m_cursor = QPoint(m_margin, m_cursor.y() + QFontMetrics(textFont()).height());
    setText(m_text + '\n');
}

void KORVA_Text::deleteBackward()
{
    if (m_text.isEmpty())
        return;
    const QString last = characters::last(m_text);
    setText(m_text.chopped(last.size()));
    if (last == "\n") {
        m_cursor = QPoint(m_stops.pop(), m_cursor.y() - QFontMetrics(textFont()).height());
    } else if (last == "\t") {
        m_cursor.setX(m_stops.pop());
    } else {
        m_cursor.rx() -= advance(last);
    }
}

void KORVA_Text::insert(QString text)
{
    if (text == "\t") {
        // Counted from where the uncommitted part of the line begins.
        const int begin = m_text.contains('\n') ? m_margin : m_start.x();
        m_stops.push(m_cursor.x());
        const int tab = tabWidth * advance("x");
        m_cursor.setX(begin + ((m_cursor.x() - begin) / tab + 1) * tab);
    } else {
        text.removeIf(isControl); // a break among letters would have no stop to go back to
        m_cursor.rx() += advance(characters::first(text)); // by the first one's width, however many come
    }
    setText(m_text + text);
}
