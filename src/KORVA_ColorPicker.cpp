#include "KORVA_ColorPicker.h"

#include "KORVA_ColorName.h"
#include "RES_ICON_Reader.h"
#include "UTIL_Modal.h"
#include "UTIL_PushButton.h"
#include "UTIL_Skin.h"
#include "UTIL_Slider.h"

#include <QLabel>

#include <array>

namespace {

enum class Start { BlackOrWhite, RedOfAll, EachOwn };

struct TypeRow
{
    int shown; // how many of the sliders
    int maximum;
    Start start;
    int sliderHeight;
    Qt::Alignment caption;     // aligns the letter with the middle of its slider
    std::array<int, 4> levels; // channel value by position; unused where a position is its own value
};

constexpr std::array<int, 4> twoLevels = {0, 255, 0, 0};
constexpr std::array<int, 4> fourLevels = {0, 85, 170, 255};

// Indexed by KORVA_COLORTYPE. With two bits per channel all sliders start at the red one's position, on
// purpose.
constexpr std::array<TypeRow, 4> types = {{
    {1, 1, Start::BlackOrWhite, 10, Qt::AlignTop, twoLevels},
    {1, 3, Start::RedOfAll, 10, Qt::AlignTop, fourLevels},
    {3, 3, Start::RedOfAll, 10, Qt::AlignTop, fourLevels},
    {3, 255, Start::EachOwn, 20, Qt::AlignVCenter, {}},
}};

struct Name
{
    const char* text;
    const char* comment;
};

struct ChannelRow
{
    const char* caption;
    Name accessibleName;
    const char* handle;
    int captionTop;
    int sliderTop;
};

constexpr std::array<ChannelRow, 3> channels = {{
    {"R", QT_TRANSLATE_NOOP3("KORVA_ColorPicker", "Red", "colour channel"),
     "DaApV_Color_Picker_Red_S_Dot.gif", 121, 124},
    {"G", QT_TRANSLATE_NOOP3("KORVA_ColorPicker", "Green", "colour channel"),
     "DaApV_Color_Picker_Green_S_Dot.gif", 150, 153},
    {"B", QT_TRANSLATE_NOOP3("KORVA_ColorPicker", "Blue", "colour channel"),
     "DaApV_Color_Picker_Blue_S_Dot.gif", 179, 182},
}};

constexpr QRect swatchRect(68, 36, 80, 80);
constexpr int captionLeft = 21;
constexpr QSize captionSize(32, 24);
constexpr int sliderLeft = 46;
constexpr int sliderWidth = 162;
constexpr int channelShift = 6; // from 8 bits a channel to 2

const TypeRow& rowOf(KORVA_COLORTYPE type)
{
    return types[type >= 0 && size_t(type) < types.size() ? size_t(type) : types.size() - 1];
}

std::array<int, 3> startPositions(Start start, const QColor& color)
{
    switch (start) {
    case Start::BlackOrWhite: {
        const int position = color == Qt::black ? 0 : 1;
        return {position, position, position};
    }
    case Start::RedOfAll: {
        const int position = color.red() >> channelShift;
        return {position, position, position};
    }
    case Start::EachOwn:
        break;
    }
    return {color.red(), color.green(), color.blue()};
}

} // namespace

KORVA_ColorPicker::KORVA_ColorPicker(KORVA_COLORTYPE colorType, const QColor& color, QWidget* parent,
                                     const char* name, Qt::WindowFlags flags)
    : UTIL_Dialog(StandardDialog, true, parent, name, flags), m_color(color), m_colorType(colorType)
{
    setDlgTitle(tr("Color", "2.11.6;DIALOG_TITLE"));
    createSwatch();
    createSliders();
    connect(createSoftKey(tr("OK", "2.11.6;SOFTKEY_2BUTTON"), 10), &QPushButton::clicked, this,
            &QDialog::accept);
    connect(createSoftKey(tr("Cancel", "2.11.6;SOFTKEY_2BUTTON"), 9), &QPushButton::clicked, this,
            &QDialog::reject);
    m_rSlider->setFocus();
}

QColor KORVA_ColorPicker::getColor(KORVA_COLORTYPE colorType, const QColor& color, QWidget* parent,
                                   const char* name)
{
    UTIL_Modal picker(new KORVA_ColorPicker(colorType, color, parent, name, Qt::Window));
    const QColor before = color; // `color` may belong to the parent and go with it
    return picker.isAccepted() ? picker->color() : before;
}

void KORVA_ColorPicker::createSwatch()
{
    constexpr int edge = UTIL_Skin::Size::hairline;
    auto* frame = new QFrame(content());
    frame->setGeometry(swatchRect.adjusted(-edge, -edge, edge, edge));
    frame->setPalette(UTIL_Skin::color(UTIL_Skin::Color::Edge));
    frame->setAutoFillBackground(true);
    m_colorLabel = new QLabel(content());
    m_colorLabel->setGeometry(swatchRect);
    fillColorLabel(m_color);
}

void KORVA_ColorPicker::createSliders()
{
    const TypeRow& type = rowOf(m_colorType);
    const std::array<int, 3> start = startPositions(type.start, m_color);
    if (type.start == Start::BlackOrWhite)
        changeColor(start[0] == 0 ? Qt::black : Qt::white);

    const QPixmap groove = RES_ICON_Reader::getIcon(QStringLiteral("DaApV_Color_Picker_S_Slot.gif"));
    const std::array<UTIL_Slider**, 3> sliders = {&m_rSlider, &m_gSlider, &m_bSlider};
    for (size_t i = 0; i < channels.size(); ++i) {
        const ChannelRow& channel = channels[i];
        const bool shown = int(i) < type.shown;

        auto* caption = new QLabel(QString::fromLatin1(channel.caption), content());
        caption->setGeometry(QRect({captionLeft, channel.captionTop}, captionSize));
        caption->setFont(UTIL_Skin::font(UTIL_Skin::Font::Key));
        caption->setAlignment(Qt::AlignLeft | type.caption);
        caption->setEnabled(shown);

        const QPixmap handle = RES_ICON_Reader::getIcon(QString::fromLatin1(channel.handle));
        auto* slider = new UTIL_Slider(handle, QPixmap(), groove, QPixmap(), Qt::Horizontal, 0,
                                       type.maximum, 1, start[i], content());
        slider->setGeometry(sliderLeft, channel.sliderTop, sliderWidth, type.sliderHeight);
        slider->setVisible(shown);
        slider->setAccessibleName(tr(channel.accessibleName.text, channel.accessibleName.comment));
        *sliders[i] = slider;
    }
    connect(m_rSlider, &QSlider::valueChanged, this, &KORVA_ColorPicker::slotRSliderMoved);
    connect(m_gSlider, &QSlider::valueChanged, this, &KORVA_ColorPicker::slotGSliderMoved);
    connect(m_bSlider, &QSlider::valueChanged, this, &KORVA_ColorPicker::slotBSliderMoved);
}

int KORVA_ColorPicker::CalActualValue(int position)
{
    const TypeRow& type = rowOf(m_colorType);
    if (type.start == Start::EachOwn)
        return position;
    return position >= 0 && size_t(position) < type.levels.size() ? type.levels[size_t(position)] : 0;
}

void KORVA_ColorPicker::fillColorLabel(const QColor& color)
{
    QPixmap swatch(m_colorLabel->size());
    swatch.fill(color);
    m_colorLabel->setPixmap(swatch);
    m_colorLabel->setAccessibleName(colorname::spoken(color));
}

void KORVA_ColorPicker::changeColor(const QColor& color)
{
    m_color = color;
    fillColorLabel(m_color);
}

void KORVA_ColorPicker::slotRSliderMoved(int position)
{
    changeColor(QColor(CalActualValue(position), m_color.green(), m_color.blue()));
}

void KORVA_ColorPicker::slotGSliderMoved(int position)
{
    changeColor(QColor(m_color.red(), CalActualValue(position), m_color.blue()));
}

void KORVA_ColorPicker::slotBSliderMoved(int position)
{
    changeColor(QColor(m_color.red(), m_color.green(), CalActualValue(position)));
}
