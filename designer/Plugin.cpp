#include "Plugin.h"

#include "FormWidget.h"

#include <KORVA_EditCanvas.h>
#include <KORVA_PreviewWidget.h>

namespace {

constexpr FormWidget::Facts widgets[] = {
    {
        "KORVA_EditCanvas",
        "Drawing Editor",
        "editor",
        "A drawing pad with its controls",
        "Lets the user draw in a bitmap: pencil, line, rectangle, ellipse, eraser, text and a selection, "
        "with zoom and undo. It needs 240 x 225 pixels; what it has beyond that its view takes.",
        R"(<property name="geometry"><rect><x>0</x><y>0</y><width>320</width><height>240</height></rect></property>
<property name="sizePolicy"><sizepolicy hsizetype="Expanding" vsizetype="Expanding">
 <horstretch>0</horstretch><verstretch>0</verstretch></sizepolicy></property>
<property name="minimumSize"><size><width>240</width><height>225</height></size></property>)",
        "",
        [](QWidget* parent) -> QWidget* { return new KORVA_EditCanvas(parent); },
    },
    {
        "KORVA_PreviewWidget",
        "Picture Preview",
        "preview",
        "A picture, as large as there is room",
        "Shows a picture file or an image in its middle, but never enlarged. An animated GIF plays.",
        R"(<property name="geometry"><rect><x>0</x><y>0</y><width>204</width><height>171</height></rect></property>)",
        R"(<stringpropertyspecification name="fileName" notr="true" type="singleline"/>)",
        [](QWidget* parent) -> QWidget* { return new KORVA_PreviewWidget(parent); },
    },
};

} // namespace

Plugin::Plugin(QObject* parent) : QObject(parent)
{
    for (const FormWidget::Facts& facts : widgets)
        m_widgets << new FormWidget(facts);
}

Plugin::~Plugin()
{
    qDeleteAll(m_widgets);
}
