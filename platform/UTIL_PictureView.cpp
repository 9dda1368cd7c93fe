#include "UTIL_PictureView.h"

#include "UTIL_PictureFolder.h"
#include "UTIL_ScrollBar.h"
#include "UTIL_Skin.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QStyledItemDelegate>

namespace {

using Size = UTIL_Skin::Size;
using Color = UTIL_Skin::Color;

constexpr QSize thumbnail(Size::thumbnailWidth, Size::thumbnailHeight);
constexpr QSize cell(Size::thumbnailWidth + Size::spacing,
                     Size::thumbnailHeight + Size::captionHeight + Size::spacing);

void paintFolder(QPainter& painter, const QRect& box)
{
    QRectF body(0, 0, box.width() / 2.0, box.height() / 2.0);
    body.moveCenter(box.center());
    QPainterPath path;
    path.addRoundedRect(body, Size::hairline, Size::hairline);
    path.addRect(
        QRectF(body.left(), body.top() - Size::focusWidth * 2, body.width() / 2, Size::focusWidth * 2));
    painter.fillPath(path.simplified(), UTIL_Skin::color(Color::Edge));
}

class Delegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override
    {
        const bool isChosen = option.state & QStyle::State_Selected;
        const UTIL_Skin::Look look = UTIL_Skin::look(
            UTIL_Skin::Control::Row, isChosen ? UTIL_Skin::State::Checked : UTIL_Skin::State::Resting);
        UTIL_Skin::paintBox(*painter, option.rect, look);
        if (isChosen && option.state & QStyle::State_HasFocus)
            UTIL_Skin::paintFocus(*painter, option.rect);

        QRect picture(QPoint(), thumbnail);
        picture.moveCenter(option.rect.center());
        picture.moveTop(option.rect.top() + Size::spacing / 2);
        const auto pixmap = index.data(Qt::DecorationRole).value<QPixmap>();
        if (index.data(UTIL_PictureFolder::IsFolderRole).toBool()) {
            paintFolder(*painter, picture);
        } else if (pixmap.isNull()) {
            painter->setPen(UTIL_Skin::color(Color::Border));
            painter->drawRect(picture.adjusted(0, 0, -Size::hairline, -Size::hairline));
        } else {
            QRect shown(QPoint(), pixmap.size());
            shown.moveCenter(picture.center());
            painter->drawPixmap(shown.topLeft(), pixmap);
        }

        painter->setFont(option.font);
        painter->setPen(look.ink);
        const QRect caption(option.rect.left() + Size::rowInset, picture.bottom(),
                            option.rect.width() - 2 * Size::rowInset, Size::captionHeight);
        painter->drawText(
            caption, Qt::AlignCenter,
            option.fontMetrics.elidedText(index.data().toString(), Qt::ElideMiddle, caption.width()));
    }

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override
    {
        return cell;
    }
};

} // namespace

UTIL_PictureView::UTIL_PictureView(QWidget* parent) : QListView(parent)
{
    setItemDelegate(new Delegate(this));
    setViewMode(IconMode);
    setGridSize(cell);
    setUniformItemSizes(true);
    setMovement(Static);
    setResizeMode(Adjust);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBar(new UTIL_ScrollBar(Qt::Vertical, this));
    setEditTriggers(NoEditTriggers);
    setDragEnabled(false);
    setFrameShape(NoFrame);
    setFont(UTIL_Skin::font(UTIL_Skin::Font::Caption));
}

void UTIL_PictureView::mousePressEvent(QMouseEvent* event)
{
    m_touch = Touch::Tap;
    m_pressedAt = event->position().toPoint().y();
    m_scrolledTo = verticalScrollBar()->value();
}

void UTIL_PictureView::mouseMoveEvent(QMouseEvent* event)
{
    const int distance = event->position().toPoint().y() - m_pressedAt;
    if (m_touch == Touch::Tap && qAbs(distance) >= QApplication::startDragDistance())
        m_touch = Touch::Drag;
    if (m_touch == Touch::Drag)
        verticalScrollBar()->setValue(m_scrolledTo - distance);
}

void UTIL_PictureView::mouseReleaseEvent(QMouseEvent* event)
{
    const Touch touch = std::exchange(m_touch, Touch::None);
    const QModelIndex index = indexAt(event->position().toPoint());
    if (touch != Touch::Tap || !index.isValid())
        return;
    setCurrentIndex(index);
    emit tapped(index);
}

void UTIL_PictureView::mouseDoubleClickEvent(QMouseEvent* event)
{
    const QModelIndex index = indexAt(event->position().toPoint());
    if (index.isValid() && index == currentIndex())
        emit opened(index);
}

void UTIL_PictureView::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (currentIndex().isValid())
            emit opened(currentIndex());
        return;
    case Qt::Key_Backspace:
        emit left();
        return;
    default:
        QListView::keyPressEvent(event);
    }
}

/// The toolkit makes the first entry the current one without showing it.
void UTIL_PictureView::focusInEvent(QFocusEvent* event)
{
    QListView::focusInEvent(event);
    if (!selectionModel()->hasSelection())
        selectionModel()->clearCurrentIndex();
}

void UTIL_PictureView::paintEvent(QPaintEvent* event)
{
    QListView::paintEvent(event);
    QPainter painter(viewport());
    if (hasFocus() && !currentIndex().isValid())
        UTIL_Skin::paintFocus(painter, viewport()->rect());
    if (model()->rowCount() > 0)
        return;
    painter.setPen(UTIL_Skin::color(Color::QuietInk));
    painter.drawText(viewport()->rect(), Qt::AlignCenter | Qt::TextWordWrap,
                     tr("There are no pictures here.", "FOLDER_DIALOG;CONTEXT"));
}
