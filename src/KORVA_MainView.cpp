#include "KORVA_MainView.h"

#include "KORVA_Canvas.h"
#include "KORVA_EditCanvas.h"
#include "KORVA_EditorLayout.h"
#include "KORVA_KeyboardRoom.h"
#include "KORVA_ScrollView.h"
#include "UTIL_ScrollBar.h"
#include "UTIL_Skin.h"

#include <QVBoxLayout>

namespace {

int centred(int view, int canvas)
{
    return view > canvas ? (view - canvas) / 2 : 0;
}

// The scroll view's frame takes two of the pixels that centring counts.
int insideFrame(int offset)
{
    return offset >= 2 ? offset - 2 : 0;
}

} // namespace

KORVA_MainView::KORVA_MainView(QWidget* parent, const char* name)
    : QWidget(parent),
      m_scrollView(new KORVA_ScrollView(this)),
      m_canvas(new KORVA_Canvas(qobject_cast<KORVA_EditCanvas*>(parent), layout::firstCanvas.width(),
                                layout::firstCanvas.height(), m_scrollView->viewport(), nullptr))
{
    setObjectName(name);
    auto* box = new QVBoxLayout(this);
    box->setContentsMargins(0, 0, 0, 0);
    box->addWidget(m_scrollView);
    m_scrollView->setHorizontalScrollBar(new UTIL_ScrollBar(Qt::Horizontal, m_scrollView));
    m_scrollView->setVerticalScrollBar(new UTIL_ScrollBar(Qt::Vertical, m_scrollView));
    m_scrollView->setFocusPolicy(Qt::NoFocus); // else Shift+Tab would always come back to the canvas
    m_scrollView->resize(layout::firstCanvas);
    setFocusProxy(m_canvas);
    QPalette frame = UTIL_Skin::palette();
    frame.setColor(QPalette::WindowText, UTIL_Skin::color(UTIL_Skin::Color::Border));
    m_scrollView->setPalette(frame);
    m_scrollView->viewport()->setBackgroundRole(
        QPalette::WindowText); // a desk from which the paper stands out

    connect(m_canvas, &KORVA_Canvas::sizeChanged, this, &KORVA_MainView::updateLayout);
    m_scrollView->addChild(m_canvas, centred(width(), layout::firstCanvas.width()),
                           centred(height(), layout::firstCanvas.height()));
    m_keyboardRoom = std::make_unique<KORVA_KeyboardRoom>(*m_scrollView, *m_canvas);
}

KORVA_MainView::~KORVA_MainView() = default;

void KORVA_MainView::updateLayout()
{
    m_scrollView->moveChild(m_canvas, insideFrame(centred(width(), m_canvas->width())),
                            insideFrame(centred(height(), m_canvas->height())));
    m_scrollView->resizeContents(m_canvas->width(), m_canvas->height());
}

void KORVA_MainView::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    updateLayout();
}
