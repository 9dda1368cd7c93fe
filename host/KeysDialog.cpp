#include "KeysDialog.h"

#include <UTIL_PushButton.h>
#include <UTIL_ScrollBar.h>
#include <UTIL_Skin.h>

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QScroller>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace pad {

namespace {

using Size = UTIL_Skin::Size;

constexpr int rowHeight = 24;
constexpr int padding = 6; // of a cell, left and right together

int widestKey(const QList<KeysDialog::Row>& rows, const QFontMetrics& metrics)
{
    int widest = 0;
    for (const KeysDialog::Row& row : rows)
        widest = std::max(widest, metrics.horizontalAdvance(row.key));
    return widest;
}

} // namespace

KeysDialog::KeysDialog(QWidget* parent, const QList<Row>& rows) : UTIL_Dialog(FreeDialog, true, parent)
{
    const QString title = tr("Keys", "keys");
    setWindowTitle(title);
    setFixedSize(QSize(Size::screenWidth, Size::screenHeight)
                     .boundedTo(parent->window()->size())
                     .boundedTo(screenArea().size()));
    auto* heading = new QLabel(title, this);
    heading->setFont(UTIL_Skin::font(UTIL_Skin::Font::Title));
    auto* list = new QTreeWidget(this);
    list->setAccessibleName(title);
    list->setColumnCount(2);
    list->setHeaderHidden(true);
    list->setRootIsDecorated(false);
    list->setWordWrap(true);
    list->setFrameShape(QFrame::NoFrame);
    list->setFont(UTIL_Skin::font(UTIL_Skin::Font::Text));
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    QScroller::grabGesture(list->viewport(), QScroller::TouchGesture);
    list->setVerticalScrollBar(new UTIL_ScrollBar(Qt::Vertical, list));
    const QFontMetrics metrics = list->fontMetrics();
    const int keyWidth = widestKey(rows, metrics) + 2 * padding;
    const int textWidth =
        width() - 2 * Size::spacing - keyWidth - padding - list->verticalScrollBar()->sizeHint().width();
    for (const Row& row : rows) {
        const QRect text =
            metrics.boundingRect(QRect(0, 0, textWidth, height()), Qt::TextWordWrap, row.text);
        auto* item = new QTreeWidgetItem({row.key, row.text});
        item->setSizeHint(0, QSize(0, std::max(rowHeight, text.height())));
        list->addTopLevelItem(item);
    }
    list->header()->resizeSection(0, keyWidth);
    list->setSelectionMode(QAbstractItemView::NoSelection);
    auto* close = new UTIL_PushButton(QString(), tr("Close", "keys"), this);
    close->setFlags(UTIL_PushButton::FirstSoftKey | UTIL_PushButton::Outlined);
    auto* buttons =
        new UTIL_PushButton(QString(), tr("Buttons", "keys; title, of the tool bar's buttons"), this);
    buttons->setFlags(UTIL_PushButton::SecondSoftKey | UTIL_PushButton::Outlined);
    buttons->setAutoDefault(false);
    auto* both = new QHBoxLayout;
    both->setSpacing(Size::spacing);
    both->addWidget(close, 1);
    both->addWidget(buttons, 1);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Size::spacing, Size::spacing, Size::spacing, Size::spacing);
    column->setSpacing(Size::spacing);
    column->addWidget(heading);
    column->addWidget(list, 1);
    column->addLayout(both);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    connect(buttons, &QPushButton::clicked, this, [this] { done(Buttons); });
    list->setFocus();
}

} // namespace pad
