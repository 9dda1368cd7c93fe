#pragma once

#include "KORVA_Export.h"
#include "KORVA_Zoom.h"

#include <QBrush>
#include <QObject>
#include <QPen>
#include <QPointer>
#include <QVariant>

class KORVA_Canvas;
class QInputMethodEvent;
class QKeyEvent;
class QMouseEvent;

/// A drawing tool: what the canvas hands its stylus and key events to while the tool is active on it.
///
/// The manager creates the tools, gives them identifiers, pens and brushes and switches between them:
/// activate(), then KORVA_Canvas::activate(); and back KORVA_Canvas::deactivate(), then deactivate().
/// Positions arrive in widget coordinates, which are those of the zoomed picture. A tool calls
/// KORVA_Canvas::saveOldPix() before it changes the picture, and KORVA_Canvas::markModified(). Handlers do
/// nothing on a tool without a canvas.
///
/// Who hears of a change may change tools: after markModified() and KORVA_Canvas::pixmap(), which merges a
/// floating piece, a tool asks again whether there is a canvas().
class KORVA_EXPORT KORVA_Tool : public QObject
{
    Q_OBJECT

public:
    /// A tool without a name.
    KORVA_Tool();
    /// Inactive, with the pens and brushes that Qt makes by default, until the manager sets them.
    explicit KORVA_Tool(const QString& name);
    ~KORVA_Tool() override;

    /// The tool's number in the manager's table; -1 until the manager sets it.
    [[nodiscard]] int id() const { return m_id; }
    /// Once, by who makes the tool.
    void setId(int id) { m_id = id; }
    /// The constructor's; not translated and not shown.
    [[nodiscard]] QString name() const { return m_name; }

    /// Whether activate() came after the last deactivate().
    [[nodiscard]] bool isActive() const { return m_active; }
    /// The canvas worked on; null while inactive, and when the canvas has gone before the tool.
    [[nodiscard]] KORVA_Canvas* canvas() const;
    /// Binds the tool to a canvas, which it does not own, and calls activating(). Aborts when the canvas
    /// already has an active tool.
    void activate(KORVA_Canvas* c);
    /// Calls deactivating(), unless the canvas has gone before, and lets go of the canvas. Aborts when the
    /// tool is not active.
    void deactivate();

    /// True while typed text is not yet in the picture; undo and redo leave the picture alone then.
    [[nodiscard]] bool getTextKey() const { return m_textKey; }

    /// The pen of the left button, with its width in picture pixels. For what is painted next; nothing is
    /// painted anew.
    void setLeftPen(const QPen& pen) { m_leftPen = pen; }
    /// The brush of the left button.
    void setLeftBrush(const QBrush& brush) { m_leftBrush = brush; }
    /// The pen of every other button.
    void setRightPen(const QPen& pen) { m_rightPen = pen; }
    /// The brush of every other button.
    void setRightBrush(const QBrush& brush) { m_rightBrush = brush; }
    /// See setLeftPen().
    [[nodiscard]] QPen leftPen() const { return m_leftPen; }
    /// See setLeftBrush().
    [[nodiscard]] QBrush leftBrush() const { return m_leftBrush; }
    /// See setRightPen().
    [[nodiscard]] QPen rightPen() const { return m_rightPen; }
    /// See setRightBrush().
    [[nodiscard]] QBrush rightBrush() const { return m_rightBrush; }

    /// A press of the left button beside the floating piece, which is merged before; of a double click, the
    /// second one too. The base class does nothing.
    virtual void mousePressEvent(QMouseEvent* event);
    /// A release of any button, not over a floating piece. The base class does nothing.
    virtual void mouseReleaseEvent(QMouseEvent* event);
    /// The canvas never calls it. The base class does nothing.
    virtual void mouseDoubleClickEvent(QMouseEvent* event);
    /// A move with a button down, not over a floating piece. The base class does nothing.
    virtual void mouseMoveEvent(QMouseEvent* event);
    /// A key on the canvas. The base class ignores it, so that it goes on to the canvas's parents.
    virtual void keyPressEvent(QKeyEvent* event);
    /// As keyPressEvent().
    virtual void keyReleaseEvent(QKeyEvent* event);
    /// The canvas never calls it. The base class does nothing.
    virtual void enterEvent(QEvent* event);
    /// The canvas never calls it. The base class does nothing.
    virtual void leaveEvent(QEvent* event);
    /// The tool becomes active: canvas() is set, but KORVA_Canvas::isActive() is not yet true. For the
    /// cursor and the like.
    virtual void activating();
    /// The tool stops being active: canvas() is still set, but no longer hands anything on. Pending work is
    /// finished here.
    virtual void deactivating();

    /// Whether printable keys, Tab and the input method belong to the tool at the moment.
    [[nodiscard]] virtual bool takesText() const { return false; }
    /// What the input method composes or commits. The base class ignores it.
    virtual void inputMethodEvent(QInputMethodEvent* event);
    /// What the input method asks of the text being typed; positions in widget coordinates.
    [[nodiscard]] virtual QVariant inputMethodQuery(Qt::InputMethodQuery query) const;
    /// The zoomed picture was drawn anew: feedback that the tool had painted into it is gone.
    virtual void zoomedRebuilt();
    /// Paints what the tool still holds back, as committing it would, into a copy of the picture: for
    /// KORVA_Canvas::snapshot(). The base class holds nothing back.
    virtual void paintPending(QPixmap* picture) const;

signals:
    /// For tools of a host's own; the library neither emits nor hears it.
    void modified();
    /// From the text tool, after every release.
    void TextToolClicked();

protected:
    /// What getTextKey() tells.
    void setTextKey(bool on) { m_textKey = on; }
    /// The canvas's zoom; only while there is a canvas.
    [[nodiscard]] KORVA_Zoom zoom() const;

private:
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
