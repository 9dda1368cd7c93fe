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
    return switches.coloredText || switches.undoTypes || switches.textInside || switches.escapeDropsText ||
           switches.movableText;
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

/// From line to line as they are painted, where QFontMetrics::lineSpacing() may be a pixel less.
int KORVA_Text::lineStep() const
{
    const QFontMetrics metrics(textFont());
    const auto height = [&](const QString& lines) { return metrics.size(0, lines).height(); };
    return height(QStringLiteral("x\nx")) - height(QStringLiteral("x"));
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

/// Nearest to a place, such that a letter has room beside it and so many lines below.
QPoint KORVA_Text::inside(QPoint at, int lines) const
{
    if (!manners().textInside)
        return at;
    const QFontMetrics metrics(textFont());
    const QSize picture = canvas()->pictureSize();
    const int below = metrics.descent() + (lines - 1) * lineStep();
    const auto between = [this](int c, int least, int most) {
        const int wanted = zoom().toPicture(c);
        const int moved = std::max(least, std::min(wanted, most));
        if (moved == wanted)
            return c;
        const int shown = zoom().toWidget(moved); // may mean a farther pixel, where not each is shown
        return zoom().toPicture(shown) > moved ? shown - 1 : shown;
    };
    return {between(at.x(), 0, picture.width() - rim - advance("W")),
            between(at.y(), metrics.ascent(), picture.height() - below)};
}

/// The lines depend on where they begin, and how far up that is depends on how many there are.
void KORVA_Text::placeStart()
{
    if (m_isContinued || !canvas())
        return;
    m_start = inside(m_home, 1);
    m_margin = m_start.x();
    m_start.setY(inside(m_home, 1 + int(wrapped(m_text).count('\n'))).y());
}

/// All lines and the I-beam, on the screen.
QRect KORVA_Text::box() const
{
    const QFontMetrics metrics(textFont());
    const auto onScreen = [this](int c) { return m_manners.coloredText ? zoom().toWidget(c) : c; };
    QRect all = cursorRect();
    int line = 0;
    for (const QString& each : wrapped(m_text).split('\n')) {
        const int left = line == 0 ? m_start.x() : m_margin;
        const int top = line * lineStep() - metrics.ascent();
        if (!each.isEmpty())
            all |= QRect(left, m_start.y() + onScreen(top), onScreen(lineWidth(each)),
                         onScreen(metrics.height()));
        ++line;
    }
    return all;
}

void KORVA_Text::placeCursor()
{
    placeStart();
    const QString lines = wrapped(m_text);
    const int breaks = int(lines.count('\n'));
    const int begin = breaks > 0 ? m_margin : m_start.x();
    m_cursor = QPoint(begin + lineWidth(lines.section('\n', -1)), m_start.y() + breaks * lineStep());
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
        if (!m_forth.isEmpty())
            m_dropped = {m_home, m_forth, canvas()->snapshot().cacheKey()};
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

bool KORVA_Text::canBringBack() const
{
    return m_dropped && canvas() && canvas()->snapshot().cacheKey() == m_dropped->picture;
}

void KORVA_Text::bringBack()
{
    const Dropped dropped = *m_dropped;
    open(dropped.home);
    m_forth = dropped.forth;
    tellInputMethod(Qt::ImQueryAll);
    QGuiApplication::inputMethod()->show();
    canvas()->offerPending();
}
