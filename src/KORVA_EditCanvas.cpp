#include "KORVA_EditCanvas.h"

#include "KORVA_MainView.h"

#include <QVBoxLayout>

KORVA_EditCanvas::KORVA_EditCanvas(KORVA_COLORTYPE colorType, QWidget* parent, const char* name,
                                   Qt::WindowFlags flags, QWidget* ownerWindow)
    : QWidget(parent, flags),
      m_colorType(colorType),
      m_ownerWindow(ownerWindow),
      m_mainView(new KORVA_MainView(this))
{
    setObjectName(name);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_mainView);
    m_mainView->setFocusPolicy(Qt::StrongFocus);
    m_mainView->setFocus();
}

KORVA_Canvas* KORVA_EditCanvas::canvas() const
{
    return m_mainView->canvas();
}
