#pragma once

#include "TextFixtures.h"

/// What the test of the text tool's states needs: a bench with the tool on it, the states that a text can
/// be in, what can happen, and what came of it.
namespace textlife {

using fixtures::painted;
using fixtures::solidPen;
using fixtures::text;
using fixtures::toggled;

inline constexpr QPoint tap(20, 50);
inline constexpr QPoint there(60, 30);
inline constexpr QPoint near(2, -2);
inline constexpr QPoint far(3, 0);
inline constexpr QPoint mark(159, 99);

inline QString heardOf; ///< what was heard, in its order

/// A text tool on a canvas of its own, which events reach directly, so that it need not be in use.
struct Bench
{
    Bench()
    {
        tool.setLeftPen(QPen(Qt::blue, 1));
        come();
        QObject::connect(canvas.get(), &KORVA_Canvas::modified, &tool, [this] {
            heardOf += 'm';
            if (const auto act = std::exchange(host, {}))
                act();
        });
        QObject::connect(&tool, &KORVA_Tool::TextToolClicked, &tool, [] { heardOf += 'c'; });
    }

    void come()
    {
        if (canvas && !tool.isActive())
            fixtures::use(*canvas, tool);
    }
    void leave()
    {
        if (canvas && canvas->isActive())
            canvas->deactivate();
        if (tool.isActive())
            tool.deactivate();
    }
    void press(QPoint at, Qt::MouseButton button = Qt::LeftButton)
    {
        stylus.press(at, button);
        pressed = at;
    }
    void key(Qt::Key code, const QString& letters)
    {
        QKeyEvent event(QEvent::KeyPress, code, Qt::NoModifier, letters);
        tool.keyPressEvent(&event);
        heardOf += event.isAccepted() ? "" : "i";
    }
    void again(const QString& letter)
    {
        QKeyEvent event(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, letter);
        tool.keyPressEventSimu(&event);
    }
    void compose(const QString& preedit, const QString& commit = {})
    {
        QInputMethodEvent event(preedit, {});
        event.setCommitString(commit);
        tool.inputMethodEvent(&event);
        heardOf += event.isAccepted() ? "" : "i";
    }
    void floatPiece()
    {
        if (!canvas)
            return;
        fixtures::setClipboard(canvas->merged().copy(0, 0, 8, 8));
        canvas->paste();
        heardOf.clear();
    }
    void tick()
    {
        QTimerEvent event(1);
        QCoreApplication::sendEvent(&tool, &event);
    }

    std::unique_ptr<fixtures::PictureCanvas> canvas =
        std::make_unique<fixtures::PictureCanvas>(support::mosaic(QSize(160, 100)));
    KORVA_Text tool{"Text"};
    fixtures::Stylus stylus{tool};
    std::function<void()> host; ///< what it does when it next hears of a change
    QPoint pressed = tap;
};

using Act = void (*)(Bench&);

/// Where a text may begin, and the mark that tells it in an outcome.
struct Place
{
    const char* mark;
    QPoint start;
    int margin;
};

struct Outcomes
{
    const QStringList texts{"",    "a", "b", "ab", "\n", "a\n", "\t",
                            "a\t", "x", "y", "ax", "ay", "by",  "aby"};
    const QFontMetrics metrics{fixtures::textFont(1)};
    const QList<Place> places{{"", tap, tap.x()},
                              {"+", tap + QPoint(metrics.horizontalAdvance("a"), 0), tap.x()},
                              {"+", tap + QPoint(metrics.horizontalAdvance("b"), 0), tap.x()},
                              {"+", tap + QPoint(metrics.horizontalAdvance("ab"), 0), tap.x()},
                              {"~", there, there.x()},
                              {"~+", there + QPoint(metrics.horizontalAdvance("b"), 0), there.x()},
                              {"^", tap + near, (tap + near).x()},
                              {"^~", there + near, (there + near).x()}};

    static QString readable(QString string) { return string.replace('\n', "¶").replace('\t', "→"); }

    QImage written(const QImage& picture, const Place& place, const QString& string) const
    {
        return painted(picture, solidPen(Qt::blue, 1), Qt::NoBrush, text(place.start, string, 1));
    }
    QPoint cursor(const Place& place, const QString& string) const
    {
        if (string.contains('\n'))
            return {place.margin, place.start.y() + metrics.height()};
        int x = place.start.x();
        for (const QChar c : string) {
            const int tab = 8 * metrics.horizontalAdvance('x');
            x = c == '\t' ? place.start.x() + ((x - place.start.x()) / tab + 1) * tab
                          : x + metrics.horizontalAdvance(c);
        }
        return {x, place.start.y()};
    }
    /// The pending text with the mark of its place, and what else than that and the I-beam is on the
    /// screen.
    QString seen(Bench& bench, const QImage& picture) const
    {
        const QRect beam = bench.tool.inputMethodQuery(Qt::ImCursorRectangle).toRect();
        const int stem = beam.left() + beam.width() / 2;
        const auto drawBeam = [&](QPainter& painter) {
            painter.fillRect(beam.adjusted(0, 0, 0, -beam.height() + 1), Qt::white);
            painter.fillRect(beam.adjusted(0, beam.height() - 1, 0, 0), Qt::white);
            painter.fillRect(stem, beam.top() + 1, 1, beam.height() - 1, Qt::white);
            painter.fillRect(stem, beam.top(), 1, 1, Qt::black);
            painter.fillRect(stem, beam.bottom(), 1, 1, Qt::black);
        };
        const QImage screen = bench.canvas->shown();
        const QImage snapshot = bench.canvas->KORVA_Canvas::snapshot().toImage();
        const bool isOpen = bench.tool.takesText();
        for (const QString& pending : isOpen ? texts : QStringList("")) {
            for (const Place& place : places) {
                if (isOpen && cursor(place, pending) != QPoint(stem, beam.bottom()))
                    continue;
                if (written(picture, place, pending) != snapshot)
                    continue;
                for (const QString& shown : texts) {
                    const QImage letters = toggled(picture, 1, text(place.start, shown, 1));
                    const QString other = shown.trimmed() == pending.trimmed() ? "" : "(" + shown + ")";
                    if (letters == screen)
                        return (isOpen ? place.mark + pending : "") + other;
                    if (toggled(letters, 1, drawBeam) == screen)
                        return (isOpen ? place.mark + pending : "") + "I" + other;
                }
            }
        }
        return "?";
    }
    QString newInPicture(const QImage& before, const QImage& after) const
    {
        for (const QString& string : texts) {
            for (const Place& place : places) {
                if (written(before, place, string) == after)
                    return string.isEmpty() ? "" : "=" + QString(place.mark) + string;
            }
        }
        return "=?";
    }
};

/// What an event did, in the shorthand of the tables.
inline QString outcome(Bench& bench, Act event)
{
    const Outcomes outcomes;
    QImage before;
    if (bench.canvas) {
        bench.canvas->saveOldPix();
        for (QPixmap* pixmap : {bench.canvas->pixmap(), bench.canvas->zoomedPixmap()}) {
            QPainter painter(pixmap);
            painter.fillRect(QRect(mark, mark), Qt::yellow);
        }
        before = bench.canvas->merged();
    }
    heardOf.clear();
    event(bench);

    const bool isOpen = bench.tool.takesText();
    QString flags;
    flags += bench.tool.isBufferEmpty() ? "e" : "";
    flags += bench.tool.getTextKey() ? "k" : "";
    flags += bench.tool.getPaintPropotionStatus() ? "w" : "";
    flags += QAbstractEventDispatcher::instance()->registeredTimers(&bench.tool).isEmpty() ? "" : "t";
    const QString heard = heardOf;
    QString effects;
    bool isPressed = false;
    bool isRightPressed = false;
    if (bench.canvas) {
        const QImage after = bench.canvas->merged();
        effects = outcomes.seen(bench, after) + outcomes.newInPicture(before, after);
        bench.come();
        const auto opens = [&](Qt::MouseButton button) {
            bench.stylus.release(bench.pressed, button);
            return bench.tool.takesText();
        };
        isPressed = !isOpen && opens(Qt::LeftButton);
        isRightPressed = !isOpen && !isPressed && opens(Qt::RightButton);
        bench.tool.resetBuffer();
        bench.canvas->undo();
        flags.prepend(bench.canvas->merged().pixelColor(mark) == QColor(Qt::yellow) ? "s/" : "/");
    } else {
        flags.prepend('/');
    }
    return Outcomes::readable((isOpen           ? "O"
                               : isPressed      ? "P"
                               : isRightPressed ? "R"
                                                : "C") +
                              effects + heard + flags);
}

} // namespace textlife
