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
/// activate(canvas), then KORVA_Canvas::activate(tool); and back in the order canvas, tool.
/// Positions arrive in widget coordinates, which are those of the zoomed picture. A tool calls
/// KORVA_Canvas::saveOldPix() before it changes the picture and markModified() after.
/// Handlers do nothing on a tool that is not active.
class KORVA_EXPORT KORVA_Tool : public QObject
{
    Q_OBJECT

public:
    KORVA_Tool();
    explicit KORVA_Tool(const QString& name);
    ~KORVA_Tool() override;

    /// The tool's number in the manager's table; -1 until the manager sets it.
    [[nodiscard]] int id() const { return m_id; }
    void setId(int id) { m_id = id; }
    [[nodiscard]] QString name() const { return m_name; }

    [[nodiscard]] bool isActive() const { return m_active; }
    /// The canvas worked on; null while inactive.
    [[nodiscard]] KORVA_Canvas* canvas() const;
    /// Aborts when the canvas already has an active tool.
    void activate(KORVA_Canvas* c);
    /// Aborts when the tool is not active.
    void deactivate();

    /// True while typed text is not yet in the picture; undo and redo leave the picture alone then.
    [[nodiscard]] bool getTextKey() const { return m_textKey; }

    /// Pens and brushes of the primary (left) and secondary (right) button. Widths are picture pixels.
    void setLeftPen(const QPen& pen) { m_leftPen = pen; }
    void setLeftBrush(const QBrush& brush) { m_leftBrush = brush; }
    void setRightPen(const QPen& pen) { m_rightPen = pen; }
    void setRightBrush(const QBrush& brush) { m_rightBrush = brush; }
    [[nodiscard]] QPen leftPen() const { return m_leftPen; }
    [[nodiscard]] QBrush leftBrush() const { return m_leftBrush; }
    [[nodiscard]] QPen rightPen() const { return m_rightPen; }
    [[nodiscard]] QBrush rightBrush() const { return m_rightBrush; }

    virtual void mousePressEvent(QMouseEvent* event);
    virtual void mouseReleaseEvent(QMouseEvent* event);
    virtual void mouseDoubleClickEvent(QMouseEvent* event);
    virtual void mouseMoveEvent(QMouseEvent* event);
    /// The base class leaves keys to the canvas's parents.
    virtual void keyPressEvent(QKeyEvent* event);
    virtual void keyReleaseEvent(QKeyEvent* event);
    virtual void enterEvent(QEvent* event);
    virtual void leaveEvent(QEvent* event);
    /// The canvas is set in both: right after activation begins, right before deactivation ends.
    virtual void activating();
    virtual void deactivating();

    /// Whether printable keys, Tab and the input method belong to the tool at the moment.
    [[nodiscard]] virtual bool takesText() const { return false; }
    virtual void inputMethodEvent(QInputMethodEvent* event);
    /// What the input method asks of the text being typed; positions in widget coordinates.
    [[nodiscard]] virtual QVariant inputMethodQuery(Qt::InputMethodQuery query) const;
    /// The zoomed picture was drawn anew: feedback that the tool had painted into it is gone.
    virtual void zoomedRebuilt();

signals:
    void modified();
    void TextToolClicked();

protected:
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
