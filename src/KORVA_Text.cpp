#include "KORVA_Text.h"

#include "KORVA_Canvas.h"
#include "KORVA_ClassicPainter.h"
#include "KORVA_Pixel.h"
#include "UTIL_Platform.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QTextBoundaryFinder>

#include <utility>

namespace {

constexpr int blinkTime = 500; // milliseconds
constexpr int tapRadius = 3;   // pixels; a release as far away as this is a drag
constexpr int tabWidth = 8;    // letters x

// The labels of the options say 7, 9 and 11; the pens 1, 3 and 5 that they set have always meant these.
int pointSize(int penWidth)
{
    switch (penWidth) {
    case 3:
        return 16;
    case 5:
        return 20;
    default:
        return 12;
    }
}

// As a person counts: a letter with its accents, an emoji of several code points.
QString lastCharacter(const QString& text)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    finder.toEnd();
    return text.mid(finder.toPreviousBoundary());
}

QString firstCharacter(const QString& text)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    return text.left(finder.toNextBoundary());
}

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

void KORVA_Text::activating()
{
    canvas()->setCursor(Qt::BlankCursor);
}

void KORVA_Text::deactivating()
{
    m_blink.stop();
    paintBuffer();
    hideCursor();
}

void KORVA_Text::timerEvent(QTimerEvent*)
{
    toggleCursor();
}

// --- The buffer
// ------------------------------------------------------------------------------------------------

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
    if (m_started) {
        hideCursor();
        m_cursor = m_lineStart;
    }
    m_keys.clear();
    m_stops.clear();
    setTextKey(false);
}

void KORVA_Text::paintBuffer()
{
    setTextKey(false);
    if (!canvas() || m_isCommitting) // who hears of the change may ask for the picture
        return;
    const QScopedValueRollback isCommitting(m_isCommitting, true);
    canvas()->saveOldPix();
    QPixmap* const picture = canvas()->pixmap();
    if (!canvas())
        return;
    paintPending(picture);
    canvas()->updateZoomed();
    zoomedRebuilt(); // a tool that is being left is no longer told
    canvas()->markModified();
}

void KORVA_Text::paintPending(QPixmap* picture) const
{
    KORVA_ClassicPainter painter(picture);
    drawText(painter, zoom().toPicture(m_lineStart), m_text);
}

void KORVA_Text::paintProportionBuffer()
{
    m_blink.stop();
    paintBuffer();
    setText({});
    m_keys.clear();
    m_stops.clear();
    m_lineStart = m_cursor;
    m_proportionPainted = true;
}

void KORVA_Text::penChanged()
{
    setText({});
    paintBuffer();
    m_cursor = m_lineStart;
    for (auto& key : std::exchange(m_keys, {})) {
        m_keys.push_back(std::move(key)); // who hears of a letter may commit them all
        keyPressEventSimu(m_keys.back().get());
    }
}

// --- The stylus
// ------------------------------------------------------------------------------------------------

void KORVA_Text::mousePressEvent(QMouseEvent* event)
{
    m_blink.stop();
    hideCursor();
    if (m_started) {
        QGuiApplication::inputMethod()->reset();
        paintBuffer();
        m_started = false;
        m_keys.clear();
    }
    m_cursor = pixel::at(event->position());
}

void KORVA_Text::mouseReleaseEvent(QMouseEvent* event)
{
    const QPoint p = pixel::at(event->position());
    const QPoint moved = p - m_cursor;
    if (canvas() && qAbs(moved.x()) < tapRadius && qAbs(moved.y()) < tapRadius) {
        m_started = true;
        showText({});
        setText({});
        m_lineStart = m_cursor = p;
        m_stops.clear();
        toggleCursor();
        m_blink.start(blinkTime, this);
        QGuiApplication::inputMethod()->update(Qt::ImQueryAll);
    }
    emit TextToolClicked();
}

// --- Keys
// ------------------------------------------------------------------------------------------------------

void KORVA_Text::keyPressEvent(QKeyEvent* event)
{
    if (!canvas() || !isTyping(*event)) {
        event->ignore();
        return;
    }
    m_keys.emplace_back(event->clone());
    if (isPrintable(event->text()))
        m_proportionPainted = false;
    typeKey(event);
}

void KORVA_Text::keyPressEventSimu(QKeyEvent* event)
{
    if (canvas() && isTyping(*event))
        typeKey(event);
}

void KORVA_Text::typeKey(QKeyEvent* event)
{
    setTextKey(true);
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        breakLine();
        break;
    case Qt::Key_Backspace:
    case Qt::Key_Delete:
        deleteBackward();
        break;
    default:
        insert(event->text());
    }
    if (canvas())
        showText(m_text);
}

// After a line break or a deletion the cursor stays hidden until it blinks next.
void KORVA_Text::breakLine()
{
    hideCursor();
    m_stops.push(m_cursor.x());
    m_cursor = QPoint(m_lineStart.x(), m_cursor.y() + QFontMetrics(textFont()).height());
    setText(m_text + '\n');
}

void KORVA_Text::deleteBackward()
{
    if (m_text.isEmpty())
        return;
    hideCursor();
    const QString last = lastCharacter(m_text);
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
        m_stops.push(m_cursor.x());
        const int tab = tabWidth * advance("x");
        moveCursorX(m_lineStart.x() + ((m_cursor.x() - m_lineStart.x()) / tab + 1) * tab);
    } else {
        text.removeIf(isControl); // a break among letters would have no stop to go back to
        moveCursorX(m_cursor.x() +
                    advance(firstCharacter(text))); // by the first one's width, however many come
    }
    setText(m_text + text);
    canvas()->markModified();
}

QFont KORVA_Text::textFont() const
{
    QFont font(QApplication::font().family() + "_ns", pointSize(leftPen().width()), QFont::Normal);
    // So that a line is laid out as its letters one by one, and an inverted letter has the pixels of a
    // painted one.
    font.setStyleStrategy(QFont::NoAntialias);
    font.setHintingPreference(QFont::PreferFullHinting);
    font.setKerning(false);
    return font;
}

int KORVA_Text::advance(const QString& character) const
{
    return QFontMetrics(textFont()).horizontalAdvance(character);
}

void KORVA_Text::drawText(KORVA_ClassicPainter& painter, QPoint baseline, const QString& text) const
{
    const QFont font = textFont();
    painter.setPen(leftPen());
    painter.setFont(font);
    painter.drawText(QRect(baseline - QPoint(0, QFontMetrics(font).ascent()), QSize(10, 10)),
                     Qt::TextDontClip | Qt::TextExpandTabs, text);
}

// The whole text each time: letters that join or carry accents look as they will when committed.
void KORVA_Text::showText(const QString& text)
{
    if (text == m_shown)
        return;
    {
        KORVA_ClassicPainter painter(canvas()->zoomedPixmap(), KORVA_ClassicPainter::NotROP);
        drawText(painter, m_lineStart, m_shown);
        drawText(painter, m_lineStart, text);
    }
    m_shown = text;
    canvas()->refresh();
}

// --- The I-beam
// ------------------------------------------------------------------------------------------------

void KORVA_Text::clearOldCursor()
{
    hideCursor();
}

void KORVA_Text::hideCursor()
{
    if (m_cursorShown)
        toggleCursor();
}

void KORVA_Text::moveCursorX(int x)
{
    const bool shown = m_cursorShown;
    hideCursor();
    m_cursor.setX(x);
    if (shown)
        toggleCursor();
}

// The size follows the canvas's own font, not the text's.
QRect KORVA_Text::cursorRect() const
{
    const int height = canvas()->fontMetrics().ascent() / 2 + 1;
    const int width = height / 2 + 1;
    return {QPoint(m_cursor.x() - width / 2, m_cursor.y() - height), QSize(width, height + 1)};
}

void KORVA_Text::toggleCursor()
{
    if (!canvas())
        return;
    {
        const QRect beam = cursorRect();
        QPen pen = leftPen();
        pen.setWidth(1);
        KORVA_ClassicPainter painter(canvas()->zoomedPixmap(), KORVA_ClassicPainter::NotROP);
        painter.setPen(pen);
        painter.drawLine(beam.left(), beam.top(), beam.right(), beam.top());
        painter.drawLine(beam.left(), beam.bottom(), beam.right(), beam.bottom());
        painter.drawLine(m_cursor.x(), beam.top(), m_cursor.x(), beam.bottom());
    }
    m_cursorShown = !m_cursorShown;
    canvas()->refresh();
}

void KORVA_Text::zoomedRebuilt()
{
    m_cursorShown = false;
    m_shown.clear();
}

// --- The input method
// ------------------------------------------------------------------------------------------

void KORVA_Text::inputMethodEvent(QInputMethodEvent* event)
{
    if (!canvas() || !m_started) {
        event->ignore();
        return;
    }
    for (QString rest = event->commitString(); !rest.isEmpty();) {
        const QString character = firstCharacter(rest);
        rest.remove(0, character.size());
        const Qt::Key code = character.contains('\n') ? Qt::Key_Return : Qt::Key_unknown;
        QKeyEvent key(QEvent::KeyPress, code, Qt::NoModifier, character);
        keyPressEvent(&key);
    }
    if (canvas())
        showText(m_text + event->preeditString());
}

QVariant KORVA_Text::inputMethodQuery(Qt::InputMethodQuery query) const
{
    if (!canvas())
        return {};
    switch (query) {
    case Qt::ImCursorRectangle:
        return cursorRect();
    case Qt::ImFont:
        return textFont();
    case Qt::ImSurroundingText:
    case Qt::ImCurrentSelection:
        return QString();
    default:
        return {};
    }
}
