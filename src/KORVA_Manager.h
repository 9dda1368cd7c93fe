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
/// pencil.
class KORVA_EXPORT KORVA_Manager : public QObject
{
    Q_OBJECT

public:
    /// Aborts when the canvas is null or already has an active tool.
    explicit KORVA_Manager(KORVA_Canvas* c);
    ~KORVA_Manager() override;

    [[nodiscard]] KORVA_Tool* currentTool() const { return tool(m_current); }
    [[nodiscard]] int currentToolID() const { return m_current; }
    /// The tool of an identifier, 0 to 7; null for any other.
    [[nodiscard]] KORVA_Tool* tool(int id) const;

public slots:
    /// Merges a floating piece and changes tools; nothing at all when the tool is already current.
    /// Identifiers outside 0 to 7 select the pencil.
    void setCurrentTool(int id);
    /// Hands colours and width to the current tool; the others get them when they become current.
    void updateProperties();
    /// Colour and width are replaced by the ones set here; style, cap and join count.
    void setPen(QPen pen);
    /// In picture pixels.
    void setPenWidth(int width);
    /// The colour is replaced; the pattern counts.
    void setBrush(QBrush brush);
    /// The colours of the left and the right mouse button.
    void setLMBColor(const QColor& color);
    void setRMBColor(const QColor& color);

signals:
    /// For callers that change the picture through the manager; marks the canvas modified.
    void modified();

private:
    void createTools();
    void handOver();

    std::vector<std::unique_ptr<KORVA_Tool>> m_tools; ///< in the order of their identifiers
    QPointer<KORVA_Canvas> m_canvas;
    int m_current = 0;
    QPen m_pen;
    QBrush m_brush;
    QColor m_leftColor;
    QColor m_rightColor;
    int m_penWidth = 1;
};
