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

/// Owns the eight tools, knows the current one and hands it pens and brushes of the two colours and the
/// width that the editor sets. From construction on exactly one tool is active on the canvas, at first the
/// pencil, with red pens of one pixel.
///
/// The tools by identifier, from 0: KORVA_Pen, KORVA_AreaSelect, KORVA_Line, KORVA_Text, KORVA_Rectangle,
/// KORVA_Ellipse, KORVA_Rubber, KORVA_Drag. No property touches the picture.
class KORVA_EXPORT KORVA_Manager : public QObject
{
    Q_OBJECT

public:
    /// Works on the canvas, which it does not own. Aborts when the canvas is null or already has an active
    /// tool.
    explicit KORVA_Manager(KORVA_Canvas* c);
    ~KORVA_Manager() override;

    /// The tool that is active on the canvas. The manager owns it.
    [[nodiscard]] KORVA_Tool* currentTool() const { return tool(m_current); }
    /// Its identifier.
    [[nodiscard]] int currentToolID() const { return m_current; }
    /// The tool of an identifier, 0 to 7; null for any other.
    [[nodiscard]] KORVA_Tool* tool(int id) const;

public slots:
    /// Merges a floating piece and changes tools: the text tool commits then, the select tool drops its
    /// selection. Nothing at all when the tool is already current. Identifiers outside 0 to 7 select the
    /// pencil.
    ///
    /// Who asks for another tool on hearing of what this merges or commits gets that one. Nothing when the
    /// canvas has gone.
    void setCurrentTool(int id);
    /// Hands colours and width to the current tool; the others get them when they become current.
    void updateProperties();
    /// Style, cap and join (round, or else mitred) of the pens; their colour and width are the ones set
    /// below.
    void setPen(QPen pen);
    /// The width of the pens in picture pixels; 0 is the thin line.
    void setPenWidth(int width);
    /// The pattern of the brushes; their colour is the one set below. Qt::NoBrush leaves shapes unfilled.
    void setBrush(QBrush brush);
    /// The colour of the left mouse button: pen and brush.
    void setLMBColor(const QColor& color);
    /// The colour of the right mouse button: pen and brush.
    void setRMBColor(const QColor& color);

signals:
    /// For callers that change the picture through the manager; marks the canvas modified. The library does
    /// not emit it.
    void modified();

private:
    void createTools();
    void changeTools();
    void handOver();

    std::vector<std::unique_ptr<KORVA_Tool>> m_tools; ///< in the order of their identifiers
    QPointer<KORVA_Canvas> m_canvas;
    int m_current = 0;
    int m_wanted = 0;   ///< by the last request
    int m_requests = 0; ///< how many there were
    bool m_isChanging = false;
    QPen m_pen;
    QBrush m_brush;
    QColor m_leftColor;
    QColor m_rightColor;
    int m_penWidth = 1;
};
