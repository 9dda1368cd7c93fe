#include "UTIL_FolderDialog.h"

#include "UTIL_PictureFolder.h"
#include "UTIL_PictureView.h"
#include "UTIL_PushButton.h"
#include "UTIL_Skin.h"

#include <QDir>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace {

using Size = UTIL_Skin::Size;

} // namespace

UTIL_FolderDialog::UTIL_FolderDialog(QWidget* parent, const QString& title, const QStringList& patterns)
    : UTIL_PictureDialog(parent),
      m_folder(new UTIL_PictureFolder(patterns, this)),
      m_view(new UTIL_PictureView(this)),
      m_place(new QLabel(this)),
      m_upKey(new UTIL_PushButton(QString(), tr("Up", "FOLDER_DIALOG;BUTTON"), this)),
      m_confirmKey(new UTIL_PushButton(QString(), tr("OK", "FOLDER_DIALOG;SOFTKEY_2BUTTON"), this)),
      m_layout(new QVBoxLayout(this))
{
    auto* cancelKey = new UTIL_PushButton(QString(), tr("Cancel", "FOLDER_DIALOG;SOFTKEY_2BUTTON"), this);
    setFixedSize(Size::screenWidth, Size::screenHeight);
    setWindowTitle(title);
    m_place->setFont(UTIL_Skin::font(UTIL_Skin::Font::Title));
    m_place->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_view->setModel(m_folder);
    m_view->setAccessibleName(title);
    m_upKey->setAutoDefault(false);
    m_confirmKey->setFlags(UTIL_PushButton::FirstSoftKey | UTIL_PushButton::Outlined);
    cancelKey->setFlags(UTIL_PushButton::SecondSoftKey | UTIL_PushButton::Outlined);
    cancelKey->setAutoDefault(false);

    auto* head = new QHBoxLayout;
    head->addWidget(m_place, 1);
    head->addWidget(m_upKey);
    auto* keys = new QHBoxLayout;
    keys->setSpacing(Size::spacing);
    keys->addWidget(m_confirmKey, 1);
    keys->addWidget(cancelKey, 1);
    m_layout->setContentsMargins(Size::spacing, Size::spacing, Size::spacing, Size::spacing);
    m_layout->setSpacing(Size::spacing);
    m_layout->addLayout(head);
    m_layout->addWidget(m_view, 1);
    m_layout->addLayout(keys);

    connect(m_confirmKey, &QPushButton::clicked, this, &UTIL_FolderDialog::confirm);
    connect(cancelKey, &QPushButton::clicked, this, &UTIL_FolderDialog::reject);
    connect(m_upKey, &QPushButton::clicked, this, &UTIL_FolderDialog::goUp);
    connect(m_view, &UTIL_PictureView::left, this, &UTIL_FolderDialog::goUp);
    connect(m_view, &UTIL_PictureView::opened, this, &UTIL_FolderDialog::open);
    connect(m_view, &UTIL_PictureView::tapped, this, [this](const QModelIndex& index) {
        if (m_folder->isFolder(index))
            open(index);
    });
    connect(m_view->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& index) {
                choose(index.isValid() && !m_folder->isFolder(index) ? m_folder->path(index) : QString());
            });
    m_view->setFocus();
}

void UTIL_FolderDialog::reject()
{
    setFileName({});
    UTIL_PictureDialog::reject();
}

void UTIL_FolderDialog::addBelowFolder(QWidget* widget)
{
    m_layout->insertWidget(m_layout->count() - 1, widget);
}

void UTIL_FolderDialog::enter(const QString& folder)
{
    m_folder->setFolder(folder);
    const QDir dir(m_folder->folder());
    const QString name = dir.isRoot() ? dir.path() : dir.dirName();
    m_place->setText(m_place->fontMetrics().elidedText(
        name, Qt::ElideMiddle, width() - m_upKey->sizeHint().width() - 3 * Size::spacing));
    m_place->setToolTip(m_folder->folder());
    m_upKey->setEnabled(!dir.isRoot());
    choose({});
}

void UTIL_FolderDialog::open(const QModelIndex& index)
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
