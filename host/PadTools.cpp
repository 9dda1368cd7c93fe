#include "PadTools.h"

#include "Recording.h"

#include "examples/tools/FillTool.h"
#include "examples/tools/PickerTool.h"

#include <KORVA_EditCanvas.h>
#include <RES_ICON_Reader.h>

#include <QCoreApplication>

#include <memory>

namespace pad {

namespace {

constexpr struct
{
    std::unique_ptr<KORVA_Tool> (*make)(KORVA_EditCanvas& editor);
    const char* word;
    const char* icon;
    struct
    {
        const char* text;
        const char* comment;
    } name;
} rows[] = {
    // In the order of padtools::Tool.
    {[](KORVA_EditCanvas&) -> std::unique_ptr<KORVA_Tool> { return std::make_unique<FillTool>(); }, "fill",
     "DaApV_Fill_Tool.gif", QT_TRANSLATE_NOOP3("pad::PadTools", "Fill", "tool")},
    {[](KORVA_EditCanvas& editor) -> std::unique_ptr<KORVA_Tool> {
         return std::make_unique<PickerTool>(editor);
     },
     "picker", "DaApV_Picker_Tool.gif", QT_TRANSLATE_NOOP3("pad::PadTools", "Pick color", "tool")},
};

} // namespace

void padtools::addTo(KORVA_EditCanvas& editor)
{
    KORVA_Features features = editor.features();
    features.zooms = QList<int>(std::begin(zoomRates), std::end(zoomRates));
    editor.setFeatures(features);
    for (const auto& row : rows)
        editor.addTool(row.make(editor), RES_ICON_Reader::getIcon(QString::fromLatin1(row.icon)),
                       QCoreApplication::translate("pad::PadTools", row.name.text, row.name.comment));
}

QString padtools::word(int tool)
{
    if (tool >= Fill && tool < Fill + int(std::size(rows)))
        return QString::fromLatin1(rows[tool - Fill].word);
    return KORVA_EditCanvas::toolWord(tool);
}

} // namespace pad
