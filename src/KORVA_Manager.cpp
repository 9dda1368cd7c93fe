#include "KORVA_Manager.h"

#include "KORVA_AreaSelect.h"
#include "KORVA_Assert.h"
#include "KORVA_Canvas.h"
#include "KORVA_ToolTable.h"

#include <QScopedValueRollback>
#include <QSignalBlocker>

#include <span>
#include <utility>

KORVA_Manager::KORVA_Manager(KORVA_Canvas* c)
{
    KORVA_ASSERT(c != 0); // NOLINT(modernize-use-nullptr): the message quotes it
    KORVA_ASSERT(!(c->isActive()));
    m_canvas = c;
    createTools();
    currentTool()->activate(c);
    m_leftColor = m_rightColor = QColor(255, 0, 0);
    updateProperties();
    c->activate(currentTool());
    connect(this, &KORVA_Manager::modified, c, &KORVA_Canvas::markModified);
}

KORVA_Manager::~KORVA_Manager()
{
    if (m_canvas && m_canvas->getCurrentTool() == currentTool())
        m_canvas->deactivate();
}

void KORVA_Manager::createTools()
{
    const std::span<const KORVA_ToolTable::ToolRow> rows = KORVA_ToolTable::tools();
    m_tools.resize(qMax(m_tools.size(), rows.size()));
    for (std::size_t id = 0; id < rows.size(); ++id) {
        m_tools[id] = rows[id].make(QString::fromLatin1(rows[id].toolName));
        m_tools[id]->setId(static_cast<int>(id));
        if (auto* areaSelect = qobject_cast<KORVA_AreaSelect*>(m_tools[id].get()))
            connect(m_canvas, qOverload<bool>(&KORVA_Canvas::selection), areaSelect,
                    &KORVA_AreaSelect::selection);
    }
}

void KORVA_Manager::reset()
{
    if (!m_canvas)
        return;
    ++m_requests; // a change of tools that is under way is given up
    {
        // A text or a frame that is under way is not to be kept.
        const QSignalBlocker silence(m_canvas);
        if (m_canvas->isActive())
            m_canvas->deactivate();
        if (currentTool()->isActive())
            currentTool()->deactivate();
    }
    for (std::size_t id = 0; id < KORVA_ToolTable::tools().size(); ++id)
        m_tools[id].release()->deleteLater(); // one of them may be calling
    createTools();
    m_current = m_wanted = 0;
    m_penWidth = 1;
    m_brush = QBrush();
    m_pen = QPen();
    m_leftColor = m_rightColor = QColor(255, 0, 0);
    m_edgeColor = QColor();
    currentTool()->activate(m_canvas);
    updateProperties();
    m_canvas->activate(currentTool());
}

int KORVA_Manager::addTool(std::unique_ptr<KORVA_Tool> tool)
{
    if (!tool)
        return -1;
    tool->setId(static_cast<int>(m_tools.size()));
    m_tools.push_back(std::move(tool));
    return m_tools.back()->id();
}

KORVA_Tool* KORVA_Manager::tool(int id) const
{
    return id >= 0 && id < static_cast<int>(m_tools.size()) ? m_tools[static_cast<size_t>(id)].get()
                                                            : nullptr;
}

void KORVA_Manager::setCurrentTool(int id)
{
    m_wanted = tool(id) ? id : 0;
    const int request = ++m_requests;
    if (!m_canvas || m_isChanging || m_wanted == m_current)
        return;
    m_canvas->mergePastePixmap();
    if (request == m_requests)
        changeTools();
}

void KORVA_Manager::changeTools()
{
    const QScopedValueRollback isChanging(m_isChanging, true);
    m_canvas->deactivate();
    currentTool()->deactivate();
    m_current = m_wanted;
    currentTool()->activate(m_canvas);
    handOver();
    m_canvas->activate(currentTool());
}

void KORVA_Manager::updateProperties()
{
    m_pen.setWidth(m_penWidth);
    handOver();
}

void KORVA_Manager::handOver()
{
    const bool isShape = m_current == KORVA_ToolTable::Rectangle || m_current == KORVA_ToolTable::Ellipse;
    m_pen.setColor(isShape && m_edgeColor.isValid() ? m_edgeColor : m_leftColor);
    m_brush.setColor(m_leftColor);
    currentTool()->setLeftPen(m_pen);
    currentTool()->setLeftBrush(m_brush);
    m_pen.setColor(m_rightColor);
    m_brush.setColor(m_rightColor);
    currentTool()->setRightPen(m_pen);
    currentTool()->setRightBrush(m_brush);
}

void KORVA_Manager::setPen(QPen pen)
{
    m_pen = std::move(pen);
    updateProperties();
}

void KORVA_Manager::setPenWidth(int width)
{
    m_penWidth = width;
    updateProperties();
}

void KORVA_Manager::setBrush(QBrush brush)
{
    m_brush = std::move(brush);
    updateProperties();
}

void KORVA_Manager::setLMBColor(const QColor& color)
{
    m_leftColor = color;
    updateProperties();
}

void KORVA_Manager::setEdgeColor(const QColor& color)
{
    if (std::exchange(m_edgeColor, color) != color)
        updateProperties();
}

void KORVA_Manager::setRMBColor(const QColor& color)
{
    m_rightColor = color;
    updateProperties();
}
