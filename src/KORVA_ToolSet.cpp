#include "KORVA_ToolSet.h"

#include "KORVA_EditCanvas.h"
#include "KORVA_ToolTable.h"
#include "RES_ICON_Reader.h"

#include <utility>

namespace tables = KORVA_ToolTable;

namespace {

QString translated(const tables::Name& name)
{
    return KORVA_EditCanvas::tr(name.text, name.comment);
}

QPixmap pictureOf(const char* file)
{
    return file ? RES_ICON_Reader::getIcon(QString::fromLatin1(file)) : QPixmap();
}

QPixmap pictureOf(const QIcon& icon)
{
    constexpr QSize size(20, 20); // in the buttons of the tool bar
    return icon.pixmap(size);
}

const tables::OptionRow& optionRow(int tool, int row)
{
    const tables::ToolRow& all = *tables::toolRow(tool);
    const auto index = std::size_t(row);
    return index < all.options.size() ? all.options[index] : all.edges[index - all.options.size()];
}

int builtIn()
{
    return int(tables::tools().size());
}

/// How many of the library's tools are in the pop-up.
int builtInPlaces()
{
    int places = 0;
    while (tables::toolAt(places) >= 0)
        ++places;
    return places;
}

} // namespace

int KORVA_ToolSet::add(const QIcon& icon, const QString& name, const QList<KORVA_ToolOption>& options)
{
    m_own.push_back({icon, name, options});
    return builtIn() + int(m_own.size()) - 1;
}

const KORVA_ToolSet::Own* KORVA_ToolSet::own(int tool) const
{
    const int index = tool - builtIn();
    return index >= 0 && index < int(m_own.size()) ? &m_own[std::size_t(index)] : nullptr;
}

bool KORVA_ToolSet::has(int tool) const
{
    return tables::toolRow(tool) || own(tool);
}

QPixmap KORVA_ToolSet::icon(int tool) const
{
    if (const Own* const mine = own(tool))
        return pictureOf(mine->icon);
    const tables::ToolRow* const row = tables::toolRow(tool);
    return row ? pictureOf(row->icon) : QPixmap();
}

QString KORVA_ToolSet::name(int tool) const
{
    if (const Own* const mine = own(tool))
        return mine->name;
    const tables::ToolRow* const row = tables::toolRow(tool);
    return row ? translated(row->name) : QString();
}

const QList<KORVA_ToolOption>* KORVA_ToolSet::ownOptions(int tool) const
{
    if (const Own* const mine = own(tool))
        return &mine->options;
    const tables::ToolRow* const row = tables::toolRow(tool);
    const auto found = m_features.ownOptions.constFind(tool);
    const bool isHosts = row && row->option == tables::Option::Size &&
                         found != m_features.ownOptions.cend() && !found->isEmpty();
    return isHosts ? &*found : nullptr;
}

int KORVA_ToolSet::optionCount(int tool) const
{
    if (const QList<KORVA_ToolOption>* const options = ownOptions(tool))
        return int(options->size());
    const tables::ToolRow* const row = tables::toolRow(tool);
    return row ? int(row->options.size() + (m_hasEdges ? row->edges.size() : 0)) : 0;
}

bool KORVA_ToolSet::isEdged(int tool, int row) const
{
    const tables::ToolRow* const all = tables::toolRow(tool);
    return all && row >= int(all->options.size()) && row < optionCount(tool) && !ownOptions(tool);
}

bool KORVA_ToolSet::offersBold(int tool) const
{
    return m_hasBold && tool == tables::Text && isOffered(tool);
}

bool KORVA_ToolSet::setManners(const KORVA_Manners& manners)
{
    const bool hadEdges = std::exchange(m_hasEdges, manners.outlinedShapes);
    const bool hadBold = std::exchange(m_hasBold, manners.boldText);
    return hadEdges != m_hasEdges || hadBold != m_hasBold;
}

QPixmap KORVA_ToolSet::optionIcon(int tool, int row) const
{
    const QList<KORVA_ToolOption>* const options = ownOptions(tool);
    return options ? pictureOf((*options)[row].icon) : pictureOf(optionRow(tool, row).icon);
}

QString KORVA_ToolSet::optionName(int tool, int row) const
{
    const QList<KORVA_ToolOption>* const options = ownOptions(tool);
    return options ? (*options)[row].name : translated(optionRow(tool, row).name);
}

int KORVA_ToolSet::penWidth(int tool, int row) const
{
    const QList<KORVA_ToolOption>* const options = ownOptions(tool);
    return options ? (*options)[row].penWidth : optionRow(tool, row).penWidth;
}

bool KORVA_ToolSet::isTakenAway(int tool) const
{
    return !m_features.editing || m_features.withoutTools.contains(tool);
}

bool KORVA_ToolSet::isOptionOffered(int tool, int row) const
{
    if (row < 0 || row >= optionCount(tool) || m_features.withoutOptions.value(tool).contains(row))
        return false;
    if (tool == tables::AreaSelect)
        return !isTakenAway(row == KORVA_OPTION_HAND ? tables::Drag : tables::AreaSelect);
    return !isTakenAway(tool);
}

bool KORVA_ToolSet::isOffered(int tool) const
{
    if (tool == tables::AreaSelect)
        return isOptionOffered(tool, KORVA_OPTION_AREA);
    if (tool == tables::Drag)
        return isOptionOffered(tables::AreaSelect, KORVA_OPTION_HAND);
    return has(tool) && !isTakenAway(tool);
}

int KORVA_ToolSet::toolEntry(int tool) const
{
    const tables::ToolRow* const row = tables::toolRow(tool);
    return tables::toolMenuBase + (row ? row->place : builtInPlaces() + tool - builtIn());
}

int KORVA_ToolSet::toolOfEntry(int entry) const
{
    const int place = entry - tables::toolMenuBase;
    const int tool = builtIn() + place - builtInPlaces();
    return own(tool) ? tool : tables::toolAt(place);
}

int KORVA_ToolSet::firstOptionEntry(int tool) const
{
    int entry = tables::firstOptionId(tool);
    for (int before = builtIn(); before < tool; ++before)
        entry += optionCount(before);
    return entry;
}

QList<int> KORVA_ToolSet::inOrder() const
{
    QList<int> tools;
    const auto add = [&](int tool) {
        if (isOffered(tool) || (tool == tables::AreaSelect && isOffered(tables::Drag)))
            tools.append(tool);
    };
    for (int place = 0; tables::toolAt(place) >= 0; ++place)
        add(tables::toolAt(place));
    for (int tool = builtIn(); own(tool); ++tool)
        add(tool);
    return tools;
}
