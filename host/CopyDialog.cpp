#include "CopyDialog.h"

#include "CopyView.h"
#include "Wording.h"

#include <UTIL_PushButton.h>
#include <UTIL_Skin.h>

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QLabel>
#include <QPromise>
#include <QThreadPool>
#include <QVBoxLayout>

#include <memory>

namespace pad {

namespace {

using Size = UTIL_Skin::Size;

constexpr QSize most(560, 480); ///< in a larger window the dialog leaves the rest uncovered
constexpr int zoomWidth = 64;   ///< of its key, for "400 %"

} // namespace

CopyDialog::CopyDialog(QWidget* parent, const QString& title, const QString& verb)
    : UTIL_Dialog(FreeDialog, true, parent),
      m_choices(new QButtonGroup(this)),
      m_choiceRow(new QHBoxLayout),
      m_view(new CopyView(title, this)),
      m_description(new QLabel(this)),
      m_zoomKey(new UTIL_PushButton(QString(), QString(), this)),
      m_saveKey(new UTIL_PushButton(QString(), verb.isEmpty() ? tr("Save", "copy") : verb, this))
{
    setWindowTitle(title);
    CopyDialog::fit();
    auto* heading = new QLabel(title, this);
    heading->setFont(UTIL_Skin::font(UTIL_Skin::Font::Title));
    auto* cancelKey = new UTIL_PushButton(QString(), tr("Cancel", "copy"), this);
    m_saveKey->setFlags(UTIL_PushButton::FirstSoftKey | UTIL_PushButton::Outlined);
    cancelKey->setFlags(UTIL_PushButton::SecondSoftKey | UTIL_PushButton::Outlined);
    cancelKey->setAutoDefault(false);
    m_zoomKey->setAutoDefault(false);
    m_zoomKey->setFixedWidth(zoomWidth);
    m_description->setWordWrap(true);
    // A number and a unit have no direction of their own.
    m_description->setAlignment((isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignAbsolute |
                                Qt::AlignVCenter);

    m_choiceRow->setSpacing(Size::spacing);
    auto* facts = new QHBoxLayout;
    facts->setSpacing(Size::spacing);
    facts->addWidget(m_description, 1);
    facts->addWidget(m_zoomKey);
    auto* keys = new QHBoxLayout;
    keys->setSpacing(Size::spacing);
    keys->addWidget(m_saveKey, 1);
    keys->addWidget(cancelKey, 1);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Size::spacing, Size::spacing, Size::spacing, Size::spacing);
    column->setSpacing(Size::spacing);
    column->addWidget(heading);
    column->addLayout(m_choiceRow);
    column->addWidget(m_view, 1);
    column->addLayout(facts);
    column->addLayout(keys);

    connect(m_choices, &QButtonGroup::idClicked, this, &CopyDialog::make);
    connect(m_saveKey, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancelKey, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_zoomKey, &QPushButton::clicked, m_view, &CopyView::zoomOn);
    connect(m_view, &CopyView::zoomChanged, this, &CopyDialog::showZoom);
    connect(&m_watcher, &QFutureWatcher<Copy>::finished, this, [this] { present(m_watcher.result()); });
    showZoom();
    m_view->setFocus();
}

CopyDialog::~CopyDialog()
{
    m_watcher.future().cancel();
}

void CopyDialog::fit()
{
    setFixedSize(parentWidget()->window()->size().boundedTo(most).boundedTo(screenArea().size()));
}

void CopyDialog::addChoice(const QString& text, const Maker& make)
{
    auto* key = new UTIL_PushButton(QString(), text, this);
    key->setCheckable(true);
    key->setAutoDefault(false);
    m_choiceRow->addWidget(key, 1);
    m_choices->addButton(key, int(m_makers.size()));
    m_makers.push_back(make);
    setTabOrder(key, m_view);
}

int CopyDialog::choice() const
{
    return m_choices->checkedId();
}

void CopyDialog::choose(int choice)
{
    m_choices->button(choice)->setChecked(true);
    make(choice);
}

void CopyDialog::make(int choice)
{
    m_copy = {};
    m_view->showPicture({});
    m_saveKey->setEnabled(false);
    m_description->setText(tr("One moment ...", "copy"));

    const auto promise = std::make_shared<QPromise<Copy>>();
    promise->start();
    m_watcher.future().cancel();
    m_watcher.setFuture(promise->future());
    QThreadPool::globalInstance()->start([promise, make = m_makers[size_t(choice)]] {
        if (!promise->isCanceled())
            promise->addResult(make([&promise] { return !promise->isCanceled(); }));
        promise->finish();
    });
}

void CopyDialog::present(const Copy& copy)
{
    m_copy = copy;
    m_view->showPicture(copy.picture);
    m_saveKey->setEnabled(!copy.picture.isNull());
    m_description->setText(copy.picture.isNull() ? tr("The picture does not fit.", "copy")
                                                 : description(copy));
}

void CopyDialog::showZoom()
{
    m_zoomKey->setText(wording::percent(m_view->percent()));
    m_zoomKey->setAccessibleDescription(wording::zoom());
}

} // namespace pad
