#include "UTIL_ScrollArea.h"

#include "UTIL_ScrollBar.h"
#include "UTIL_Skin.h"

#include <QApplication>

namespace {

/// Narrow enough to lie in a dialog's margin, beside the content and its focus rings.
class NarrowBar : public UTIL_ScrollBar
{
public:
    using UTIL_ScrollBar::UTIL_ScrollBar;

    [[nodiscard]] QSize sizeHint() const override
    {
        return {UTIL_Skin::Size::spacing, UTIL_ScrollBar::sizeHint().height()};
    }
};

} // namespace

UTIL_ScrollArea::UTIL_ScrollArea(QWidget* content, QWidget* parent) : QScrollArea(parent)
{
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBar(new NarrowBar(Qt::Vertical, this));
    setWidget(content);
    content->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        if (now && widget()->isAncestorOf(now))
            ensureWidgetVisible(now, 0, UTIL_Skin::Size::spacing);
    });
}
