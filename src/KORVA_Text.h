#pragma once

#include "KORVA_Manners.h"
#include "KORVA_Tool.h"

#include <QBasicTimer>
#include <QColor>
#include <QCursor>
#include <QFont>
#include <QPoint>
#include <QStack>
#include <QStringList>

#include <memory>
#include <vector>

class KORVA_ClassicPainter;

/// Text at a tapped point. Typed letters are shown inverted in the zoomed picture, beside a blinking
/// I-beam. They are painted into the picture when the text is committed: by the next press, by leaving the
/// tool, or by paintProportionBuffer().
///
/// While no text is open (before a tap, or after leaving the tool) keys are left to the host.
///
/// The left pen gives the colour and, by its width, the size: 1, 3 and 5 mean 12, 16 and 20 points, any
/// other 12 or what KORVA_Manners::pointSizes says. Positions are widget coordinates; y is the baseline.
///
/// KORVA_Manners has switches for the preview, for dropping and moving the text, for undo and redo while it
/// is open, and for what happens at the picture's edge. A text keeps those of its tap.
class KORVA_EXPORT KORVA_Text : public KORVA_Tool
{
    Q_OBJECT

public:
    /// `name` is KORVA_Tool::name(). Tells the platform not to hide the on-screen keyboard by itself.
    explicit KORVA_Text(const QString& name);
    ~KORVA_Text() override;

    /// Whether the key types or deletes text; other keys are left to the host.
    [[nodiscard]] static bool isTyping(const QKeyEvent& event);

    /// True when a text is open and nothing has been typed. False before the first tap, when no text is
    /// open.
    [[nodiscard]] bool isBufferEmpty() const;
    /// True when the text was committed by paintProportionBuffer() and nothing has been typed since.
    [[nodiscard]] bool getPaintPropotionStatus() const { return m_proportionPainted; }
    /// Forgets the typed text without painting it and takes it off the screen; undo works again.
    void resetBuffer();
    /// Commits the typed text: snapshot, paint, modified. An empty text gets all three, too.
    void paintBuffer();
    /// Commits the text and empties the buffer; typing goes on at the cursor.
    void paintProportionBuffer();
    /// Takes the I-beam off the screen; it comes back with its next blink.
    void clearOldCursor();
    /// Shows the typed text again in the font of the pen that is now set. Takes a snapshot and counts as a
    /// modification, though the picture stays; not with one of the switches for text.
    void penChanged();
    /// Shows the typed text in the colour of the pen that is now set, if it is previewed in colour.
    void colorChanged();
    /// Makes the letters of the open text and of every later one bold, or plain again, as penChanged()
    /// does.
    void setBold(bool bold);
    /// See setBold(). Plain at first.
    [[nodiscard]] bool isBold() const { return m_isBold; }
    /// Whether a press there would take hold of the open text, to move it: on its lines or its I-beam, or a
    /// few pixels beside them.
    [[nodiscard]] bool isOnText(QPoint at) const;

    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    /// Types a recorded key again. It is not recorded again, and committed text stays committed.
    void keyPressEventSimu(QKeyEvent* event);
    void activating() override;
    void deactivating() override;

    [[nodiscard]] bool takesText() const override { return m_state == Open; }
    void inputMethodEvent(QInputMethodEvent* event) override;
    [[nodiscard]] QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;
    void zoomedRebuilt() override;
    void paintPending(QPixmap* picture) const override;
    [[nodiscard]] std::optional<PendingSteps> pendingSteps() const override;
    /// Back from the beginning, it drops the text.
    void stepPending(bool back) override;
    [[nodiscard]] bool canBringBack() const override;
    void bringBack() override;
    /// Of a text that is held.
    [[nodiscard]] std::function<void()> keepState() override;

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    /// A text's life. A press ends the text, and a tap opens the next. Leaving the tool ends it, too, but
    /// not a press. A text whose canvas has gone comes to nothing: it stays open until the next press.
    enum State {
        Closed,  ///< no text, or the last one, which is in the picture; keys are the host's
        Pressed, ///< as closed, from a press to its button's release: a tap opens a text
        Open,    ///< keys go into the text; only now are there letters on screen, and a blink
    };

    /// What a pointer that went down on the open text does to it.
    enum Hold {
        Loose,  ///< nothing: none has, or it was lifted
        Held,   ///< nothing yet: lifted here, it was a tap
        Moving, ///< the text follows it
    };

    /// What one key does to the text.
    enum Edit { None, Word, Gap, Deletion };

    /// Lines as they are on screen, and where.
    struct Shown
    {
        QString lines;
        QPoint start;
        int margin = 0;
    };

    /// A text that undo has dropped.
    struct Dropped
    {
        QPoint home;
        QStringList forth;
        qint64 picture = 0; ///< the cache key of the drawing
    };

    [[nodiscard]] static bool isTap(QPoint press, QPoint release);
    void beginTap(QPoint at);
    void follow(QPoint to);
    [[nodiscard]] QCursor pointer() const;
    void open(QPoint at);
    void close();
    void drop();
    [[nodiscard]] const KORVA_Manners& manners() const;
    [[nodiscard]] bool isQuiet() const;
    [[nodiscard]] bool isLaidOut() const;
    [[nodiscard]] QPoint inside(QPoint at, int lines) const;
    void placeStart();
    [[nodiscard]] QRect box() const;
    [[nodiscard]] QPoint caret() const;
    [[nodiscard]] int lineStep() const;
    [[nodiscard]] int lineWidth(const QString& line) const;
    [[nodiscard]] QString wrapped(const QString& text) const;
    void placeCursor();
    void noteEdit(const QKeyEvent& key, const QString& before);
    void forgetSteps();
    void showColored();
    [[nodiscard]] QFont textFont() const;
    [[nodiscard]] int advance(const QString& character) const;
    void record(const QKeyEvent& event);
    void typeKeys(const std::vector<QKeyEvent*>& keys);
    void breakLine();
    void deleteBackward();
    void insert(QString text);
    void drawText(KORVA_ClassicPainter& painter, QPoint start, int margin, const QString& text) const;
    void showText(const QString& text);
    void hideCursor();
    void toggleCursor();
    void tellInputMethod(Qt::InputMethodQueries changed) const;
    void setText(const QString& text);
    [[nodiscard]] QRect cursorRect() const;

    State m_state = Closed;
    QPoint m_start; ///< where the typed text begins; after a commit within a line, where that line goes on
    int m_margin = 0;                        ///< the x of new lines: that of the tap
    QPoint m_home;                           ///< where the text was to begin, had it room there
    bool m_isContinued = false;              ///< its line begins with letters that were committed
    QPoint m_cursor;                         ///< while pressed: the press
    Qt::MouseButton m_button = Qt::NoButton; ///< while pressed or held: the button
    Hold m_hold = Loose;                     ///< while open
    QPoint m_pressed;                        ///< while held: the press
    QPoint m_grip;                           ///< while held: from the pointer to the home
    bool m_cursorShown = false;              ///< what is inverted on screen now: the I-beam,
    Shown m_shown;                    ///< and the lines of letters, with what the input method is composing
    bool m_proportionPainted = false; ///< in any state; a letter ends it, not the text's end
    bool m_isCommitting = false;      ///< in any state: until every listener has heard of the commit
    QString m_text;                   ///< once closed, the last one; null until a tap or a commit
    QStack<int> m_stops;              ///< the cursor's x before each line break and tab of the text
    std::vector<std::unique_ptr<QKeyEvent>> m_keys;
    QBasicTimer m_blink;
    KORVA_Manners m_manners;          ///< while open: those of the tap
    std::function<void()> m_restore;  ///< while open: see KORVA_Canvas::keepFlags()
    Edit m_edit = None;               ///< the last one, if it may go on
    QStringList m_back;               ///< earlier texts, for undo
    QStringList m_forth;              ///< undone ones, for redo
    std::optional<Dropped> m_dropped; ///< while closed: what redo brings back
    QColor m_shownColor;              ///< of a coloured preview
    bool m_isBold = false;
};
