#include "KORVA_PreviewWidget.h"

#include "IMV_UI_PhotoDisplay.h"
#include "UTIL_Skin.h"

#include <QResizeEvent>

namespace {

constexpr QSize usualSize(204, 171);

} // namespace

KORVA_PreviewWidget::KORVA_PreviewWidget(QWidget* parent)
    : QWidget(parent), m_display(new IMV_UI_PhotoDisplay(QImage(), this))
{
    setPalette(UTIL_Skin::palette());
    setAutoFillBackground(true);
}

KORVA_PreviewWidget::~KORVA_PreviewWidget() = default;

void KORVA_PreviewWidget::setFileName(const QString& name)
{
    setImage(QImage());
    m_fileName = name;
    if (!name.isEmpty())
        m_display->setFile(name);
}

void KORVA_PreviewWidget::setImage(const QImage& image)
{
    m_fileName.clear();
    m_display->setImage(image);
}

QSize KORVA_PreviewWidget::sizeHint() const
{
    return usualSize;
}

void KORVA_PreviewWidget::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    m_display->setGeometry(rect());
}
