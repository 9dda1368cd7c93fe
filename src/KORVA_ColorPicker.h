#pragma once

#include "KORVA_Export.h"
#include "KORVA_Types.h"
#include "UTIL_Dialog.h"

#include <QColor>

class QLabel;
class UTIL_Slider;

/// The dialog in which the user mixes the drawing colour with one to three sliders; a swatch shows it. The
/// colour type of the picture decides how many levels a channel has.
class KORVA_EXPORT KORVA_ColorPicker : public UTIL_Dialog
{
    Q_OBJECT

public:
    /// A type that does not exist counts as KORVA_COLOR_16BIT. With one bit, any colour but Qt::black
    /// becomes white at once.
    KORVA_ColorPicker(KORVA_COLORTYPE colorType, const QColor& color, QWidget* parent = nullptr,
                      const char* name = nullptr, Qt::WindowFlags flags = {});

    /// Runs the dialog, modal to `parent`. Returns the accepted colour, or `color` itself if none was
    /// accepted.
    [[nodiscard]] static QColor getColor(KORVA_COLORTYPE colorType, const QColor& color,
                                         QWidget* parent = nullptr, const char* name = nullptr);

    /// The colour in the swatch.
    [[nodiscard]] QColor color() const { return m_color; }

    /// The 8-bit value of a channel at a slider position; 0 for a position that the colour type does not
    /// have.
    int CalActualValue(int position);
    /// Shows a colour in the swatch; color() stays.
    void fillColorLabel(const QColor& color);

private slots:
    void slotRSliderMoved(int position);
    void slotGSliderMoved(int position);
    void slotBSliderMoved(int position);

private:
    void createSwatch();
    void createSliders();
    void changeColor(const QColor& color);

    QColor m_color;
    KORVA_COLORTYPE m_colorType;
    QLabel* m_colorLabel = nullptr;
    UTIL_Slider* m_rSlider = nullptr;
    UTIL_Slider* m_gSlider = nullptr;
    UTIL_Slider* m_bSlider = nullptr;
};
