#pragma once

#include "KORVA_Tool.h"

#include <QBasicTimer>
#include <QFont>
#include <QPoint>
#include <QStack>

#include <memory>
#include <vector>

class KORVA_ClassicPainter;

/// Text at a tapped point. What is typed is shown inverted in the zoomed picture beside a blinking I-beam
/// and painted into the picture when it is committed: by the next press, by leaving the tool, by
/// paintProportionBuffer().
///
/// What is typed while no text is open, before a tap or after leaving the tool, is left to the host.
///
/// The left pen gives the colour and, by its width, the size: 1, 3 and 5 mean 12, 16 and 20 points.
/// Positions are widget coordinates, y is the baseline.
class KORVA_EXPORT KORVA_Text : public KORVA_Tool
{
    Q_OBJECT

public:
    /// `name` is KORVA_Tool::name(). Turns the platform's hiding of the on-screen keyboard off.
    explicit KORVA_Text(const QString& name);
    ~KORVA_Text() override;

    /// Whether the key types or deletes text; other keys are left to the host.
    [[nodiscard]] static bool isTyping(const QKeyEvent& event);

    /// True when a text is open and nothing is typed; before the first tap there is none, which is not
    /// empty.
    [[nodiscard]] bool isBufferEmpty() const;
    /// True when the text was committed by paintProportionBuffer() and nothing was typed since.
    [[nodiscard]] bool getPaintPropotionStatus() const { return m_proportionPainted; }
    /// Forgets the typed text without painting it and takes it off the screen; undo works again.
    void resetBuffer();
    /// Commits the typed text: snapshot, paint, modified. All three also for an empty text.
    void paintBuffer();
    /// Commits and empties the text; what is typed next goes on at the cursor.
    void paintProportionBuffer();
    /// Takes the I-beam off the screen; it comes back with its next blink.
    void clearOldCursor();
    /// Shows the typed text again in the font of the pen that is now set. Takes a snapshot and counts as a
    /// modification, though the picture stays.
    void penChanged();

    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    /// A recorded key once more: not recorded again, and what was committed stays committed.
    void keyPressEventSimu(QKeyEvent* event);
    void activating() override;
    void deactivating() override;

    [[nodiscard]] bool takesText() const override { return m_state == Open; }
    void inputMethodEvent(QInputMethodEvent* event) override;
    [[nodiscard]] QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;
    void zoomedRebuilt() override;
    void paintPending(QPixmap* picture) const override;

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    /// A text's life. A press ends it and a tap opens the next; leaving the tool ends it, too, and keeps a
    /// press. Nothing comes of one whose canvas has gone: it stays open until the next press.
    enum State {
        Closed,  ///< no text, or the last one, which is in the picture: what is typed is the host's
        Pressed, ///< as closed, from a press to its button's release: a tap opens a text
        Open,    ///< what is typed goes into the text; the only one with keys, letters on screen, a blink
    };

    void open(QPoint at);
    void close();
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
    QPoint m_start;   ///< of what is typed; where the line goes on after a commit in the middle of it
    int m_margin = 0; ///< the x of new lines: the tap's
    QPoint m_cursor;  ///< while pressed: the press
    Qt::MouseButton m_button = Qt::NoButton; ///< while pressed: the button
    bool m_cursorShown = false;              ///< what is inverted on screen now: the I-beam,
    QString m_shown;                         ///< and the letters, with what the input method is composing
    bool m_proportionPainted = false;        ///< in any state; a letter ends it, not the text's end
    bool m_isCommitting = false;             ///< in any state: until all have heard of the commit
    QString m_text;                          ///< once closed, the last one; null until a tap or a commit
    QStack<int> m_stops;                     ///< the cursor's x before each line break and tab of the text
    std::vector<std::unique_ptr<QKeyEvent>> m_keys;
    QBasicTimer m_blink;
};
