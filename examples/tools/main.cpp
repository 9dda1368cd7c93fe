#include "FillTool.h"
#include "PickerTool.h"
#include "PolygonTool.h"
#include "SprayTool.h"
#include <KORVA_EditCanvas.h>
#include <QApplication>
#include <QPainter>

namespace {

/// A letter as icon, for a start.
QIcon icon(QChar letter)
{
    QPixmap picture(20, 20);
    picture.fill(Qt::transparent);
    QPainter(&picture).drawText(picture.rect(), Qt::AlignCenter, letter);
    return picture;
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication app(argc, argv);
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    const QList<KORVA_ToolOption> nozzles{{icon('1'), "Narrow", 1}, {icon('3'), "Wide", 3}};
    editor.addTool(std::make_unique<FillTool>(), icon('F'), "Fill");
    editor.addTool(std::make_unique<SprayTool>(), icon('S'), "Spray", nozzles);
    editor.addTool(std::make_unique<PolygonTool>(), icon('P'), "Polygon");
    editor.addTool(std::make_unique<PickerTool>(editor), icon('C'), "Pick color");
    editor.selectTool(KORVA_TOOL_HAND + 1);
    editor.show();
    return QApplication::exec();
}
