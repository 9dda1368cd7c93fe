#pragma once

#include "KORVA_Export.h"

#include <QBrush>
#include <QObject>
#include <QPen>
#include <QPointer>

#include <memory>
#include <vector>

class KORVA_Canvas;
class KORVA_Tool;

/// Owns the library's eight tools and the host's own, and knows the current one. It hands that tool pens
/// and brushes, in the two colours and the width that the editor sets. From construction on exactly one
/// tool is active on the canvas: at first the pencil, with red pens of one pixel.
///
/// The library's tools by identifier, from 0: KORVA_Pen, KORVA_AreaSelect, KORVA_Line, KORVA_Text,
/// KORVA_Rectangle, KORVA_Ellipse, KORVA_Rubber, KORVA_Drag. Setting a property never touches the picture.
class KORVA_EXPORT KORVA_Manager : public QObject
{
    Q_OBJECT

public:
    /// Works on the canvas, which it does not own. Aborts if the canvas is null or already has an active
    /// tool.
    explicit KORVA_Manager(KORVA_Canvas* c);
    ~KORVA_Manager() override;

    /// The tool that is active on the canvas. The manager owns it.
    [[nodiscard]] KORVA_Tool* currentTool() const { return tool(m_current); }
    /// Its identifier.
    [[nodiscard]] int currentToolID() const { return m_current; }
    /// The tool of an identifier, from 0 on; null if there is no such tool.
    [[nodiscard]] KORVA_Tool* tool(int id) const;

    /// Takes a tool of a host's own, and returns its identifier: 8 for the first, then one more. -1 for
    /// null.
    int addTool(std::unique_ptr<KORVA_Tool> tool);
    /// Makes the library's own tools again, which ends whatever they were doing, and sets everything else
    /// as the constructor does. The old tools live until control is back in the event loop.
    void reset();

public slots:
    /// Merges a floating piece and changes tools: the text tool commits then, the select tool drops its
    /// selection. An identifier of no tool selects the pencil. Does nothing if the tool is already current,
    /// or the canvas is gone.
    ///
    /// If a slot that hears of the merge or the commit asks for another tool, that one becomes current.
    void setCurrentTool(int id);
    /// Hands colours and width to the current tool. The others get them when they become current.
    void updateProperties();
    /// Sets style, cap and join (round, or else mitred) of the pens. Their width and colours are set by the
    /// functions below.
    void setPen(QPen pen);
    /// Sets the width of the pens in picture pixels; 0 is the thin line.
    void setPenWidth(int width);
    /// Sets the pattern of the brushes; their colours are set below. Qt::NoBrush leaves shapes unfilled.
    void setBrush(QBrush brush);
    /// Sets the colour of the left mouse button's pen and brush.
    void setLMBColor(const QColor& color);
    /// Sets the colour of the left button's pen for rectangle and ellipse, which outlines what the brush
    /// fills. Invalid, as at first, is the colour of all that the left button draws.
    void setEdgeColor(const QColor& color);
    /// Sets the colour of the right mouse button's pen and brush.
    void setRMBColor(const QColor& color);

signals:
    /// For callers that change the picture through the manager: emitting it marks the canvas modified. The
    /// library itself does not emit it.
    void modified();

private:
    void createTools();
    void changeTools();
    void handOver();

    std::vector<std::unique_ptr<KORVA_Tool>> m_tools; ///< in the order of their identifiers
    QPointer<KORVA_Canvas> m_canvas;
    int m_current = 0;
    int m_wanted = 0;   ///< the tool of the last request
    int m_requests = 0; ///< how many requests there were
    bool m_isChanging = false;
    QPen m_pen;
    QBrush m_brush;
    QColor m_leftColor;
    QColor m_rightColor;
    QColor m_edgeColor;
    int m_penWidth = 1;
};
