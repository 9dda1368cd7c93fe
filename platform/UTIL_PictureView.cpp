#include "UTIL_PictureView.h"

#include "UTIL_PictureFolder.h"
#include "UTIL_ScrollBar.h"
#include "UTIL_Skin.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QStyledItemDelegate>
#include <QTextLayout>

namespace {

using Size = UTIL_Skin::Size;
using Color = UTIL_Skin::Color;

constexpr QSize thumbnail(Size::thumbnailWidth, Size::thumbnailHeight);
constexpr int captionLines = 2;
constexpr int leastWidth = 74;    ///< of a cell: three fit the device, with two lines of ten letters each
constexpr int typingPause = 1000; ///< milliseconds after which a letter begins a new word

/// Fits a name into the lines of a caption. The middle of a long name is left out, because names of the
/// same camera differ at their ends.
QStringList broken(const QString& name, const QFont& font, int width, QTextOption::WrapMode mode)
{
    QTextLayout layout(name, font);
    QTextOption option;
    option.setWrapMode(mode);
    layout.setTextOption(option);
    QStringList lines;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        const QString rest = name.mid(line.textStart());
        if (lines.size() == captionLines - 1) {
            lines += QFontMetrics(font).elidedText(rest, Qt::ElideLeft, width);
            break;
        }
        lines += rest.left(line.textLength());
    }
    layout.endLayout();
    return lines;
}

/// Breaks between words if the whole name can be read then, else anywhere: most names have no words.
QStringList broken(const QString& name, const QFont& font, int width)
{
    const QStringList words = broken(name, font, width, QTextOption::WrapAtWordBoundaryOrAnywhere);
    return words.join(QString()) == name ? words : broken(name, font, width, QTextOption::WrapAnywhere);
}

void paintName(QPainter& painter, const QRect& area, const QString& name)
{
    QStringList lines = broken(name, painter.font(), area.width());
    QFont smaller = painter.font();
    smaller.setPixelSize(smaller.pixelSize() - 1);
    if (const QStringList whole = broken(name, smaller, area.width());
        lines.join(QString()) != name && whole.join(QString()) == name) {
        lines = whole;
        painter.setFont(smaller);
    }
    painter.setLayoutDirection(name.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    QRect line(area.topLeft(), QSize(area.width(), area.height() / captionLines));
    for (const QString& text : lines) {
        painter.drawText(line, Qt::AlignCenter, text.trimmed());
        line.translate(0, line.height());
    }
}

int cellHeight(const QFontMetrics& metrics)
{
    return Size::thumbnailHeight + captionLines * metrics.lineSpacing() + Size::spacing;
}

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

/// A picture that cannot be read is struck out; one that is still being read has three dots.
void paintNoPicture(QPainter& painter, const QRect& box, bool isRead)
{
    const QRect frame = box.adjusted(0, 0, -Size::hairline, -Size::hairline);
    painter.save();
    painter.setPen(UTIL_Skin::color(Color::Border));
    painter.drawRect(frame);
    painter.setRenderHint(QPainter::Antialiasing);
    if (isRead) {
        painter.drawLine(QLineF(frame.bottomLeft(), frame.topRight()));
    } else {
        painter.setBrush(UTIL_Skin::color(Color::QuietInk));
        painter.setPen(Qt::NoPen);
        for (const int dot : {-1, 0, 1})
            painter.drawEllipse(QRectF(box).center() + QPointF(dot * Size::spacing, 0), Size::rowInset,
                                Size::rowInset);
    }
    painter.restore();
}

class Delegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override
    {
        const UTIL_Skin::Look look =
            UTIL_Skin::paintRow(*painter, option.rect, option.state & QStyle::State_Selected,
                                option.state & QStyle::State_HasFocus);

        QRect picture(QPoint(), thumbnail);
        picture.moveCenter(option.rect.center());
        picture.moveTop(option.rect.top() + Size::spacing / 2);
        const auto pixmap = index.data(Qt::DecorationRole).value<QPixmap>();
        if (index.data(UTIL_PictureFolder::IsFolderRole).toBool()) {
            paintFolder(*painter, picture);
        } else if (pixmap.isNull()) {
            paintNoPicture(*painter, picture, index.data(UTIL_PictureFolder::IsMadeRole).toBool());
        } else {
            QRect shown(QPoint(), pixmap.size());
            shown.moveCenter(picture.center());
            painter->drawPixmap(shown.topLeft(), pixmap);
        }

        painter->setFont(option.font);
        painter->setPen(look.ink);
        const int height = captionLines * option.fontMetrics.lineSpacing();
        const int top = picture.bottom() + Size::rowInset;
        paintName(*painter, QRect(option.rect.left() + 1, top, option.rect.width() - 2, height),
                  index.data().toString());
    }

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override
    {
        return static_cast<const QListView*>(option.widget)->gridSize();
    }
};

} // namespace

UTIL_PictureView::UTIL_PictureView(QWidget* parent) : QListView(parent)
{
    setItemDelegate(new Delegate(this));
    setViewMode(IconMode);
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
    setGridSize(QSize(leastWidth, cellHeight(fontMetrics())));
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
        if (!isSearching()) {
            emit left();
            return;
        }
        m_sought.chop(1);
        m_typing.start();
        return;
    case Qt::Key_Space:
        if (isSearching()) { // names may have blanks
            keyboardSearch(event->text());
            return;
        }
        [[fallthrough]];
    default:
        QListView::keyPressEvent(event);
    }
}

bool UTIL_PictureView::isSearching() const
{
    return !m_sought.isEmpty() && !m_typing.hasExpired(typingPause);
}

void UTIL_PictureView::keyboardSearch(const QString& typed)
{
    m_sought = isSearching() ? m_sought + typed : typed;
    m_typing.start();
    seek();
}

void UTIL_PictureView::seek()
{
    const bool isRepeated = m_sought.count(m_sought.front(), Qt::CaseInsensitive) == m_sought.size();
    const int first = currentIndex().isValid() ? currentIndex().row() + (isRepeated ? 1 : 0) : 0;
    const QModelIndex start = model()->index(first < model()->rowCount() ? first : 0, 0);
    const auto found = [&](const QString& text, Qt::MatchFlags how) {
        return model()->match(start, Qt::DisplayRole, text, 1, how | Qt::MatchWrap).value(0);
    };
    QModelIndex hit = found(m_sought, Qt::MatchStartsWith);
    if (!hit.isValid() && isRepeated)
        hit = found(m_sought.first(1), Qt::MatchStartsWith);
    if (!hit.isValid() && m_sought.size() > 1)
        hit = found(m_sought, Qt::MatchContains);
    if (hit.isValid())
        setCurrentIndex(hit);
}

/// As many columns as fit; they share all the room, because names need it.
void UTIL_PictureView::resizeEvent(QResizeEvent* event)
{
    const int room = width() - verticalScrollBar()->sizeHint().width(); // even while there is no bar
    setGridSize(QSize(room / qMax(1, room / leastWidth), gridSize().height()));
    QListView::resizeEvent(event);
}

/// Qt makes the first entry the current one without showing it.
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
    const auto* folder = qobject_cast<const UTIL_PictureFolder*>(model());
    const QString text = folder && !folder->isReadable()
                             ? tr("This folder cannot be read", "FOLDER_DIALOG;CONTEXT")
                             : tr("No pictures here", "FOLDER_DIALOG;CONTEXT");
    painter.setFont(UTIL_Skin::font(UTIL_Skin::Font::Text));
    painter.drawText(viewport()->rect(), Qt::AlignCenter | Qt::TextWordWrap, text);
}
