#pragma once

#include "KORVA_Export.h"
#include "KORVA_Zoom.h"

#include <QBrush>
#include <QObject>
#include <QPen>
#include <QPointer>
#include <QVariant>

#include <functional>
#include <optional>

class KORVA_Canvas;
class QInputMethodEvent;
class QKeyEvent;
class QMouseEvent;

/// The base of all tools. The canvas hands its stylus and key events to the tool that is active on it.
///
/// The manager creates the tools and gives them identifiers, pens and brushes. It switches them on with
/// activate(), then KORVA_Canvas::activate(), and off with KORVA_Canvas::deactivate(), then deactivate().
/// Positions arrive in widget coordinates, which are those of the zoomed picture. A tool calls
/// KORVA_Canvas::saveOldPix() before it changes the picture, and KORVA_Canvas::markModified() once for the
/// change. Handlers do nothing on a tool without a canvas.
///
/// A slot that hears of a change may change tools. So after markModified(), and after
/// KORVA_Canvas::pixmap(), which merges a floating piece, a tool checks again whether it has a canvas().
class KORVA_EXPORT KORVA_Tool : public QObject
{
    Q_OBJECT

public:
    /// A tool without a name.
    KORVA_Tool();
    /// An inactive tool, with Qt's default pens and brushes until the manager sets them.
    explicit KORVA_Tool(const QString& name);
    ~KORVA_Tool() override;

    /// The tool's number in the manager's table; -1 until the manager sets it.
    [[nodiscard]] int id() const { return m_id; }
    /// Called once, by whoever makes the tool.
    void setId(int id) { m_id = id; }
    /// The name given to the constructor; not translated and not shown.
    [[nodiscard]] QString name() const { return m_name; }

    /// Whether activate() came after the last deactivate().
    [[nodiscard]] bool isActive() const { return m_active; }
    /// The canvas that the tool works on. Null while inactive, and if the canvas was deleted before the
    /// tool.
    [[nodiscard]] KORVA_Canvas* canvas() const;
    /// Binds the tool to a canvas, which it does not own, and calls activating(). Aborts if the canvas
    /// already has an active tool.
    void activate(KORVA_Canvas* c);
    /// Calls deactivating(), unless the canvas is already deleted, and lets go of the canvas. Aborts if the
    /// tool is not active.
    void deactivate();

    /// True while typed text is not yet in the picture. Undo and redo then leave the picture alone.
    [[nodiscard]] bool getTextKey() const { return m_textKey; }

    /// Sets the pen of the left button, with its width in picture pixels. It is used from now on; nothing
    /// is painted again.
    void setLeftPen(const QPen& pen);
    /// Sets the brush of the left button.
    void setLeftBrush(const QBrush& brush);
    /// Sets the pen of every other button.
    void setRightPen(const QPen& pen);
    /// Sets the brush of every other button.
    void setRightBrush(const QBrush& brush);
    /// See setLeftPen().
    [[nodiscard]] QPen leftPen() const { return m_leftPen; }
    /// See setLeftBrush().
    [[nodiscard]] QBrush leftBrush() const { return m_leftBrush; }
    /// See setRightPen().
    [[nodiscard]] QPen rightPen() const { return m_rightPen; }
    /// See setRightBrush().
    [[nodiscard]] QBrush rightBrush() const { return m_rightBrush; }

    /// A press of the left button beside the floating piece, which is merged before. The second press of a
    /// double click comes here, too. The base class does nothing.
    virtual void mousePressEvent(QMouseEvent* event);
    /// A release of any button, not over a floating piece. The base class does nothing.
    virtual void mouseReleaseEvent(QMouseEvent* event);
    /// The canvas never calls it. The base class does nothing.
    virtual void mouseDoubleClickEvent(QMouseEvent* event);
    /// A move with a button down, not over a floating piece. The base class does nothing.
    virtual void mouseMoveEvent(QMouseEvent* event);
    /// A key on the canvas. The base class ignores it, so that it goes on to the canvas's parents.
    virtual void keyPressEvent(QKeyEvent* event);
    /// The same for the release of a key.
    virtual void keyReleaseEvent(QKeyEvent* event);
    /// The canvas never calls it. The base class does nothing.
    virtual void enterEvent(QEvent* event);
    /// The canvas never calls it. The base class does nothing.
    virtual void leaveEvent(QEvent* event);
    /// The tool becomes active: canvas() is set, but KORVA_Canvas::isActive() is not yet true. Sets the
    /// cursor and the like.
    virtual void activating();
    /// The tool stops being active: canvas() is still set, but no longer passes on events. Pending work is
    /// finished here.
    virtual void deactivating();

    /// Whether printable keys, Tab and the input method belong to the tool at present.
    [[nodiscard]] virtual bool takesText() const { return false; }
    /// The input method composes or commits a text. The base class ignores the event.
    virtual void inputMethodEvent(QInputMethodEvent* event);
    /// Answers the input method about the text being typed; positions are in widget coordinates.
    [[nodiscard]] virtual QVariant inputMethodQuery(Qt::InputMethodQuery query) const;
    /// The zoomed picture was painted anew, so feedback that the tool had painted into it is gone.
    virtual void zoomedRebuilt();
    /// Paints what a move has put off with KORVA_Canvas::showLater(), into the canvas's two pictures. It
    /// comes before anybody sees either, and before pens, zoom, manners or tools change: as if it had been
    /// painted at once. The base class has put off nothing.
    virtual void paintWaiting(QPixmap* picture, QPixmap* shown);
    /// For KORVA_Canvas::snapshot(): paints what the tool has not yet committed into a copy of the picture,
    /// as committing would. The base class does nothing.
    virtual void paintPending(QPixmap* picture) const;
    /// Asked before the press of a stroke that may be taken back: what brings the tool, without painting,
    /// back to the state that it is in now. The canvas brings back the pictures. The base class keeps
    /// nothing: for tools whose press depends on nothing before it.
    [[nodiscard]] virtual std::function<void()> keepState();
    /// Which steps there are in what the tool has not yet committed.
    struct PendingSteps
    {
        bool back = false;  ///< for undo
        bool forth = false; ///< for redo
    };
    /// Whether undo and redo walk through what the tool has not yet committed. Nothing, as in the base
    /// class, leaves them to the picture.
    [[nodiscard]] virtual std::optional<PendingSteps> pendingSteps() const;
    /// Goes one of these steps, which exists.
    virtual void stepPending(bool back);
    /// Whether redo brings back what the last step back has dropped; the drawing must be as it was then.
    [[nodiscard]] virtual bool canBringBack() const;
    /// Brings it back.
    virtual void bringBack();

signals:
    /// For a host's own tools; the library neither emits it nor connects to it.
    void modified();
    /// Emitted by the text tool, after every release.
    void TextToolClicked();

protected:
    /// Sets what getTextKey() returns.
    void setTextKey(bool on) { m_textKey = on; }
    /// KORVA_Canvas::pixmap() for a tool: not to be kept, since a later event may put off its painting.
    /// Null if there is no canvas, or none any more because a slot that heard of a merge has left the tool.
    [[nodiscard]] QPixmap* mergedPicture() const;
    /// KORVA_Canvas::zoomedPixmap() in the same way. Only while there is a canvas.
    [[nodiscard]] QPixmap* shownPicture() const;
    /// The canvas's zoom. Only while there is a canvas.
    [[nodiscard]] KORVA_Zoom zoom() const;

private:
    void paintNow();

    int m_id = -1;
    bool m_active = false;
    bool m_textKey = false;
    QString m_name;
    QPointer<KORVA_Canvas> m_canvas;
    QPen m_leftPen;
    QBrush m_leftBrush;
    QPen m_rightPen;
    QBrush m_rightBrush;
};
