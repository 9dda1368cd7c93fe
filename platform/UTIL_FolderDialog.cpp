#include "UTIL_FolderDialog.h"

#include "UTIL_PictureFolder.h"
#include "UTIL_PictureView.h"
#include "UTIL_PopupMenu.h"
#include "UTIL_PushButton.h"
#include "UTIL_Skin.h"

#include <QActionGroup>
#include <QDir>
#include <QHBoxLayout>
#include <QHash>
#include <QLabel>
#include <QPainter>
#include <QStyle>
#include <QVBoxLayout>

namespace {

using Size = UTIL_Skin::Size;

constexpr QSize least(Size::screenWidth, 200);
constexpr int lowest = 260;     ///< the least height with a line for the title
constexpr QSize most(560, 480); ///< in a larger window the dialog leaves the rest uncovered

/// The place where the last dialog of a kind was left.
struct Place
{
    QString folder;
    QString first; ///< the first visible entry
};

Place& placeOf(const QObject& dialog)
{
    static QHash<QByteArray, Place> places;
    return places[dialog.metaObject()->className()];
}

/// Lines that get shorter, and an arrow downward.
QPixmap orderPicture(qreal ratio, Qt::LayoutDirection direction)
{
    constexpr qreal stroke = 2;
    constexpr qreal head = 3;
    constexpr QSizeF size(Size::iconWidth, Size::iconHeight);
    QPixmap picture((size * ratio).toSize());
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(
        QPen(UTIL_Skin::color(UTIL_Skin::Color::Ink), stroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    for (int line = 0; line < 3; ++line)
        painter.drawLine(QPointF(2, 4 + 5 * line), QPointF(13 - 4 * line, 4 + 5 * line));
    const QPointF tip(18, 15);
    painter.drawLine(QPointF(tip.x(), 3), tip);
    painter.drawPolyline(QPolygonF{tip + QPointF(-head, -head), tip, tip + QPointF(head, -head)});
    return direction == Qt::RightToLeft ? picture.transformed(QTransform::fromScale(-1, 1)) : picture;
}

} // namespace

UTIL_FolderDialog::UTIL_FolderDialog(QWidget* parent, const QString& title, const QString& verb,
                                     const QStringList& patterns)
    : UTIL_PictureDialog(parent),
      m_folder(new UTIL_PictureFolder(patterns, this)),
      m_view(new UTIL_PictureView(this)),
      m_caption(new QLabel(this)),
      m_place(new QLabel(this)),
      m_upKey(new UTIL_PushButton(QString(), tr("Up", "FOLDER_DIALOG;BUTTON"), this)),
      m_confirmKey(new UTIL_PushButton(QString(), QString(), this)),
      m_layout(new QVBoxLayout(this)),
      m_head(new QHBoxLayout)
{
    auto* orderKey = new UTIL_PushButton(QString(), QString(), this);
    auto* cancelKey = new UTIL_PushButton(QString(), tr("Cancel", "FOLDER_DIALOG;SOFTKEY_2BUTTON"), this);
    setFixedSize(Size::screenWidth, Size::screenHeight);
    m_caption->setFont(UTIL_Skin::font(UTIL_Skin::Font::Title));
    m_caption->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_place->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_folder->setOrder(order());
    m_view->setModel(m_folder);
    createOrderMenu(*orderKey);
    m_upKey->setFlags(UTIL_PushButton::Outlined);
    m_upKey->setAutoDefault(false);
    m_confirmKey->setFlags(UTIL_PushButton::FirstSoftKey | UTIL_PushButton::Outlined);
    cancelKey->setFlags(UTIL_PushButton::SecondSoftKey | UTIL_PushButton::Outlined);
    cancelKey->setAutoDefault(false);

    m_head->setContentsMargins(Size::spacing, 0, Size::spacing, 0);
    m_head->setSpacing(Size::spacing / 2);
    m_head->addWidget(m_place, 1);
    m_head->addWidget(orderKey);
    m_head->addWidget(m_upKey);
    auto* keys = new QHBoxLayout;
    keys->setContentsMargins(Size::spacing, 0, Size::spacing, 0);
    keys->setSpacing(Size::spacing);
    keys->addWidget(m_confirmKey, 1);
    keys->addWidget(cancelKey, 1);
    m_layout->setContentsMargins(Size::hairline, Size::spacing, Size::hairline, Size::spacing);
    m_layout->setSpacing(Size::spacing);
    m_layout->addLayout(m_head);
    m_layout->addWidget(m_view, 1); // from edge to edge: names need the width
    m_layout->addLayout(keys);

    connect(m_confirmKey, &QPushButton::clicked, this, &UTIL_FolderDialog::confirm);
    connect(cancelKey, &QPushButton::clicked, this, &UTIL_FolderDialog::reject);
    connect(m_upKey, &QPushButton::clicked, this, &UTIL_FolderDialog::goUp);
    connect(m_view, &UTIL_PictureView::left, this, &UTIL_FolderDialog::goUp);
    connect(m_view, &UTIL_PictureView::opened, this, &UTIL_FolderDialog::openItem);
    connect(m_view, &UTIL_PictureView::tapped, this, [this](const QModelIndex& index) {
        if (m_folder->isFolder(index))
            openItem(index);
    });
    connect(m_view->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& index) {
                if (!m_isSorting)
                    choose(index.isValid() && !m_folder->isFolder(index) ? m_folder->path(index)
                                                                         : QString());
            });
    UTIL_FolderDialog::setPurpose(title, verb);
    m_view->setFocus();
}

void UTIL_FolderDialog::setPurpose(const QString& title, const QString& verb)
{
    setWindowTitle(title);
    m_caption->setText(title);
    m_view->setAccessibleName(title);
    m_confirmKey->setText(verb);
}

void UTIL_FolderDialog::reject()
{
    setFileName({});
    UTIL_PictureDialog::reject();
}

void UTIL_FolderDialog::done(int result)
{
    const QSize cell = m_view->gridSize();
    const QRect seen = m_view->viewport()->rect();
    const QModelIndex first = m_view->indexAt(
        QStyle::visualPos(layoutDirection(), seen, QPoint(cell.width() / 2, cell.height() / 2)));
    placeOf(*this) = {m_folder->folder(), first.data().toString()};
    UTIL_PictureDialog::done(result);
}

void UTIL_FolderDialog::setVisible(bool visible)
{
    const bool appears = visible && !isVisible();
    if (appears)
        fit();
    UTIL_PictureDialog::setVisible(visible);
    if (const Place& place = placeOf(*this); appears && place.folder == m_folder->folder())
        if (const QModelIndex first = m_folder->find(place.first); first.isValid())
            m_view->scrollTo(first, QAbstractItemView::PositionAtTop);
}

void UTIL_FolderDialog::fit()
{
    const QWidget* window = parentWidget() ? parentWidget()->window() : nullptr;
    if (window && window->isVisible())
        setFixedSize(window->size().boundedTo(most).boundedTo(screenArea().size()).expandedTo(least));
    // On a low screen the title takes the place of the folder's name.
    const bool isLow = height() < lowest;
    m_place->setHidden(isLow);
    m_caption->setContentsMargins(isLow ? 0 : Size::spacing, 0, isLow ? 0 : Size::spacing, 0);
    if (isLow)
        m_head->insertWidget(0, m_caption, 1);
    else
        m_layout->insertWidget(0, m_caption);
    showPlace();
}

void UTIL_FolderDialog::addBelowFolder(QWidget* widget)
{
    auto* row = new QHBoxLayout;
    row->setContentsMargins(Size::spacing, 0, Size::spacing, 0);
    row->addWidget(widget);
    m_layout->insertLayout(m_layout->count() - 1, row);
}

void UTIL_FolderDialog::createOrderMenu(UTIL_PushButton& key)
{
    const QPixmap picture = orderPicture(devicePixelRatioF(), layoutDirection());
    key.setIcon(picture);
    key.setIconSize(picture.deviceIndependentSize().toSize());
    key.setFlags(UTIL_PushButton::Outlined);
    key.setAutoDefault(false);
    key.setAccessibleName(tr("Order", "FOLDER_DIALOG;BUTTON"));
    key.setToolTip(key.accessibleName());

    auto* menu = new UTIL_PopupMenu(this);
    auto* orders = new QActionGroup(menu);
    for (const auto& [order, name] : {std::pair(ByName, tr("By name", "FOLDER_DIALOG;LIST")),
                                      std::pair(NewestFirst, tr("Newest first", "FOLDER_DIALOG;LIST"))}) {
        QAction* action = menu->addAction(name);
        action->setCheckable(true);
        action->setChecked(order == UTIL_PictureDialog::order());
        orders->addAction(action);
        connect(action, &QAction::triggered, this, [this, chosen = order] { sortBy(chosen); });
    }
    connect(&key, &QPushButton::clicked, this, [menu, &key] {
        const QRect place = QStyle::visualRect(key.layoutDirection(), key.rect(),
                                               QRect(QPoint(0, key.height()), menu->sizeHint()));
        menu->popup(key.mapToGlobal(place.topLeft()));
    });
}

void UTIL_FolderDialog::sortBy(Order order)
{
    const QString current = m_view->currentIndex().data().toString();
    setOrder(order);
    m_folder->setOrder(order);
    const QModelIndex index = m_folder->find(current);
    if (!index.isValid())
        return choose({});
    m_isSorting = true; // sorting keeps the choice
    m_view->setCurrentIndex(index);
    m_isSorting = false;
    m_view->scrollTo(index);
}

void UTIL_FolderDialog::enter(const QString& folder)
{
    m_folder->setFolder(folder);
    showPlace();
    m_upKey->setEnabled(!QDir(m_folder->folder()).isRoot());
    choose({});
}

void UTIL_FolderDialog::showPlace()
{
    const QDir dir(m_folder->folder());
    const QString name = dir.isRoot() ? dir.path() : dir.dirName();
    layout()->activate();
    m_place->setText(m_place->fontMetrics().elidedText(name, Qt::ElideMiddle, m_place->width()));
    m_place->setToolTip(m_folder->folder());
}

void UTIL_FolderDialog::openItem(const QModelIndex& index)
{
    if (m_folder->isFolder(index))
        enter(m_folder->path(index));
    else
        confirm();
}

void UTIL_FolderDialog::goUp()
{
    const QDir dir(m_folder->folder());
    if (dir.isRoot())
        return;
    enter(QFileInfo(dir.path()).path());
    m_view->setCurrentIndex(m_folder->find(dir.dirName()));
}
