#include "KORVA_Text.h"

#include "KORVA_Canvas.h"
#include "KORVA_Characters.h"

#include <QFontMetrics>
#include <QGuiApplication>
#include <QInputMethod>
#include <QKeyEvent>

#include <algorithm>

// Where the lines of a text run and the cursor stands, and the steps of undo while it is open.

namespace {

constexpr int tabWidth = 8; // letters x
constexpr int rim = 1;      // pixels; a slanting letter reaches beyond its width

bool isGap(const QString& character)
{
    return character.isEmpty() || character.at(0).isSpace();
}

} // namespace

// --- Lines

/// Whether the cursor follows the lines as a whole, not key by key.
bool KORVA_Text::isLaidOut() const
{
    const KORVA_Manners& switches = manners();
    return switches.coloredText || switches.undoTypes || switches.textInside || switches.escapeDropsText;
}

/// A tab reaches the next multiple of its width from the line's beginning.
int KORVA_Text::lineWidth(const QString& line) const
{
    const int tab = tabWidth * advance("x");
    const QStringList parts = line.split('\t');
    int width = 0;
    for (const QString& part : parts) {
        width += advance(part);
        if (&part != &parts.last())
            width = (width / tab + 1) * tab;
    }
    return width;
}

/// With the breaks that keep it inside the picture. Gaps may hang over the edge.
QString KORVA_Text::wrapped(const QString& text) const
{
    if (!manners().textInside || !canvas())
        return text;
    const int edge = canvas()->pictureSize().width() - rim;
    const int margin = zoom().toPicture(m_margin);
    int begin = zoom().toPicture(m_start.x());
    QString done;
    QString line;
    QString word; // the end of the line, from its last gap on
    const auto breakBefore = [&](const QString& rest) {
        done += line.chopped(rest.size()) + '\n';
        line = rest;
        begin = margin;
    };
    for (const QString& character : characters::all(text)) {
        if (character.contains('\n')) {
            done += line + '\n';
            line.clear();
            word.clear();
            begin = margin;
            continue;
        }
        const auto leaves = [&] { return begin + lineWidth(line + character) > edge; };
        if (!isGap(character)) {
            if (leaves() && word.size() < line.size())
                breakBefore(word);
            if (leaves() && !line.isEmpty()) { // a word longer than a line
                breakBefore({});
                word.clear();
            } else if (leaves() && begin > margin) { // a line that goes on after a commit
                breakBefore({});
            }
        }
        line += character;
        word = isGap(character) ? QString() : word + character;
    }
    return done + line;
}

/// Nearest to a tap, such that a letter has room.
QPoint KORVA_Text::inside(QPoint at) const
{
    if (!manners().textInside)
        return at;
    const QFontMetrics metrics(textFont());
    const QSize picture = canvas()->pictureSize();
    const QPoint tapped = zoom().toPicture(at);
    const QPoint moved(
        std::max(0, std::min(tapped.x(), picture.width() - rim - advance("W"))),
        std::max(metrics.ascent(), std::min(tapped.y(), picture.height() - metrics.descent())));
    return moved == tapped ? at : zoom().toWidget(moved);
}

void KORVA_Text::placeCursor()
{
    const QString lines = wrapped(m_text);
    const int breaks = int(lines.count('\n'));
    const int begin = breaks > 0 ? m_margin : m_start.x();
    m_cursor = QPoint(begin + lineWidth(lines.section('\n', -1)),
                      m_start.y() + breaks * QFontMetrics(textFont()).lineSpacing());
}

/// The cursor on the screen. A text in its own colour is as large as the zoom makes it.
QPoint KORVA_Text::caret() const
{
    if (m_state != Open || !m_manners.coloredText || !canvas())
        return m_cursor;
    const QPoint begin(m_cursor.y() == m_start.y() ? m_start.x() : m_margin, m_start.y());
    return zoom().toWidget(zoom().toPicture(begin) + m_cursor - begin);
}

// --- Undo

void KORVA_Text::forgetSteps()
{
    m_edit = None;
    m_back.clear();
    m_forth.clear();
}

/// A word with the gap behind it is one step, and so is a run of deletions.
void KORVA_Text::noteEdit(const QKeyEvent& key, const QString& before)
{
    if (m_text == before)
        return;
    const bool isDeletion = m_text.size() < before.size();
    const bool isBreak = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
    const Edit edit = isDeletion ? Deletion : isBreak || isGap(key.text()) ? Gap : Word;
    if (edit != m_edit && !(m_edit == Word && edit == Gap))
        m_back.append(before);
    m_edit = edit;
    m_forth.clear();
}

std::optional<KORVA_Tool::PendingSteps> KORVA_Text::pendingSteps() const
{
    if (m_state != Open || !m_manners.undoTypes || m_isCommitting)
        return {};
    return PendingSteps{true, !m_forth.isEmpty()};
}

void KORVA_Text::stepPending(bool back)
{
    QGuiApplication::inputMethod()->reset(); // which may type what it was composing
    if (!canvas() || m_state != Open)
        return;
    if (back && m_back.isEmpty()) {
        drop();
        return;
    }
    QStringList& from = back ? m_back : m_forth;
    if (from.isEmpty())
        return;
    (back ? m_forth : m_back).append(m_text);
    const bool isCursorShown = m_cursorShown;
    hideCursor();
    setText(from.takeLast());
    m_edit = None;
    m_stops.fill(m_margin, m_text.count('\n') + m_text.count('\t'));
    placeCursor();
    showText(m_text);
    if (isCursorShown)
        toggleCursor();
    tellInputMethod(Qt::ImQueryInput);
    setTextKey(true);
    canvas()->markModified();
    if (canvas())
        canvas()->offerPending();
}
