#include "IMV_UI_IconViewItem.h"

#include "IMV_UI_PhotoDisplay.h"
#include "UTIL_Skin.h"
#include "UTIL_WrapLabel.h"

#include <QFileInfo>
#include <QVBoxLayout>

namespace {

constexpr int nameLines = 2;

} // namespace

IMV_UI_IconViewItem::IMV_UI_IconViewItem(const QFileInfo& file, QWidget* parent) : QWidget(parent)
{
    setAccessibleName(file.fileName());

    auto* thumbnail = new IMV_UI_PhotoDisplay(file.filePath(), this);
    thumbnail->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    auto* name = new UTIL_WrapLabel(file.fileName(), this);
    name->setMaximumLines(nameLines);
    name->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(UTIL_Skin::Size::spacing);
    column->addWidget(thumbnail, 1);
    column->addWidget(name);
}
