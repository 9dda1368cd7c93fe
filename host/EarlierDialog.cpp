#include "EarlierDialog.h"

#include "Wording.h"

#include <UTIL_PushButton.h>
#include <UTIL_ScrollBar.h>
#include <UTIL_Skin.h>

#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QPainter>
#include <QPromise>
#include <QStyledItemDelegate>
#include <QThreadPool>
#include <QVBoxLayout>

#include <memory>

namespace pad {

namespace {

using Size = UTIL_Skin::Size;

constexpr QSize thumbnailSize(Size::thumbnailWidth, Size::thumbnailHeight);
constexpr int thumbnailScale = 3; // sharp at every scale
constexpr QSize paperSize(Size::thumbnailWidth* thumbnailScale, Size::thumbnailHeight* thumbnailScale);

/// Stands for a drawing that is being read.
QImage dots()
{
    constexpr int across = 8 * thumbnailScale;
    QImage image(paperSize, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(UTIL_Skin::color(UTIL_Skin::Color::Border));
    for (const int step : {-2, 0, 2})
        painter.drawEllipse(QPointF(image.rect().center()) + QPointF(step * across, 0), across / 2,
                            across / 2);
    return image;
}

/// In a frame, in the middle of the place for it; empty for a picture that is gone.
QPixmap paper(const QImage& small)
{
    QPixmap paper(paperSize);
    paper.fill(Qt::transparent);
    if (!small.isNull()) {
        QRect place(QPoint(), small.size());
        place.moveCenter(paper.rect().center());
        QPainter painter(&paper);
        painter.drawImage(place, small);
        painter.setPen(QPen(UTIL_Skin::color(UTIL_Skin::Color::Border), thumbnailScale));
        painter.drawRect(place.adjusted(1, 1, -2, -2));
    }
    paper.setDevicePixelRatio(thumbnailScale);
    return paper;
}

/// A smaller one for a text that has no room otherwise: a date is long in some languages.
QFont fontFor(const QString& text, const QFont& font, int width)
{
    constexpr int smallest = 8;
    const auto fits = [&](const QFont& tried) { // not rounded, as it is elided
        return QFontMetricsF(tried).horizontalAdvance(text) <= width;
    };
    QFont smaller = font;
    for (int size = UTIL_Skin::font(UTIL_Skin::Font::Caption).pixelSize();
         !fits(smaller) && size >= smallest; --size)
        smaller.setPixelSize(size);
    return smaller;
}

/// A drawing with its time and, below that, its name.
class RowDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override
    {
        const UTIL_Skin::Look look =
            UTIL_Skin::paintRow(*painter, option.rect, option.state & QStyle::State_Selected,
                                option.state & QStyle::State_HasFocus);

        QRect picture(QPoint(), thumbnailSize);
        picture.moveCenter(option.rect.center());
        picture.moveLeft(option.rect.left() + Size::spacing);
        const auto visual = [&option](const QRect& place) {
            return QStyle::visualRect(option.direction, option.rect, place);
        };
        painter->drawPixmap(visual(picture).topLeft(), index.data(Qt::DecorationRole).value<QPixmap>());

        const QFontMetrics metrics = option.fontMetrics;
        QRect line(picture.right() + Size::spacing, option.rect.center().y() - metrics.lineSpacing(), 0,
                   metrics.lineSpacing());
        line.setRight(option.rect.right() - Size::spacing);
        painter->setPen(look.ink);
        for (const QString& text : index.data().toString().split('\n')) {
            const QFont font = fontFor(text, option.font, line.width());
            painter->setFont(font);
            UTIL_Skin::paintText(*painter, option.direction, visual(line), Qt::AlignLeft | Qt::AlignVCenter,
                                 QFontMetrics(font).elidedText(text, Qt::ElideMiddle, line.width()));
            line.translate(0, metrics.lineSpacing());
        }
    }

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override
    {
        return {0, Size::thumbnailHeight + Size::spacing};
    }
};

} // namespace

EarlierDialog::EarlierDialog(QWidget* parent, const QList<KORVA_Journal::Entry>& entries)
    : UTIL_Dialog(FreeDialog, true, parent), m_entries(entries), m_list(new QListWidget(this))
{
    const QString title = tr("Earlier drawings", "earlier drawings");
    setWindowTitle(title);
    setFixedSize(QSize(Size::screenWidth, Size::screenHeight)
                     .boundedTo(parent->window()->size())
                     .boundedTo(screenArea().size()));
    auto* heading = new QLabel(title, this);
    heading->setFont(UTIL_Skin::font(UTIL_Skin::Font::Title));
    auto* empty = new QLabel(tr("None was kept so far.", "earlier drawings"), this);
    empty->setAlignment(Qt::AlignCenter);
    auto* accept = new UTIL_PushButton(QString(), tr("Bring it back", "earlier drawings"), this);
    accept->setFlags(UTIL_PushButton::FirstSoftKey | UTIL_PushButton::Outlined);
    auto* cancel = new UTIL_PushButton(QString(), tr("Cancel", "earlier drawings"), this);
    cancel->setFlags(UTIL_PushButton::SecondSoftKey | UTIL_PushButton::Outlined);
    cancel->setAutoDefault(false);

    m_list->setAccessibleName(title);
    m_list->setItemDelegate(new RowDelegate(m_list));
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setVerticalScrollBar(new UTIL_ScrollBar(Qt::Vertical, m_list));
    for (const KORVA_Journal::Entry& entry : m_entries) {
        const QString name = QFileInfo(entry.pictureName).fileName();
        const QString size = wording::inPixels(entry.size);
        new QListWidgetItem(timeText(entry.time) + '\n' + (name.isEmpty() ? size : name), m_list);
    }
    read();
    m_list->setCurrentRow(0);
    m_list->setVisible(!m_entries.isEmpty());
    empty->setVisible(m_entries.isEmpty());
    accept->setEnabled(!m_entries.isEmpty());

    auto* keys = new QHBoxLayout;
    keys->setSpacing(Size::spacing);
    keys->addWidget(accept, 1);
    keys->addWidget(cancel, 1);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Size::spacing, Size::spacing, Size::spacing, Size::spacing);
    column->setSpacing(Size::spacing);
    column->addWidget(heading);
    column->addWidget(m_list, 1);
    column->addWidget(empty, 1);
    column->addLayout(keys);

    connect(accept, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_list, &QListWidget::itemActivated, this, &QDialog::accept);
    m_list->setFocus();
}

EarlierDialog::~EarlierDialog()
{
    m_reading.cancel();
}

KORVA_Journal::Entry EarlierDialog::chosen() const
{
    return m_entries.value(m_list->currentRow());
}

QString EarlierDialog::timeText(const QDateTime& time)
{
    const QLocale locale;
    const QString format = locale.timeFormat(QLocale::ShortFormat).remove(QStringLiteral(":ss"));
    const QString clock = locale.toString(time.time(), format);
    const qint64 days = time.date().daysTo(QDate::currentDate());
    if (days == 0)
        return tr("today at %1", "time, in a list and in a sentence; %1: '9:30'").arg(clock);
    if (days == 1)
        return tr("yesterday at %1", "time, in a list and in a sentence; %1: '9:30'").arg(clock);
    return tr("%1 at %2", "time, in a list and in a sentence; %1: a date, %2: '9:30'")
        .arg(locale.toString(time.date(), QLocale::ShortFormat), clock);
}

/// Small drawings at once, the others in another thread.
void EarlierDialog::read()
{
    constexpr qint64 smallPicture = 1'000'000;
    struct Job
    {
        int row;
        KORVA_Journal::Thumbnailer make;
    };
    QList<Job> jobs;
    for (int row = 0; row < int(m_entries.size()); ++row) {
        const QSize size = m_entries[row].size;
        const Job job{row, KORVA_Journal::thumbnailer(m_entries[row], paperSize)};
        const bool isSmall = qint64(size.width()) * size.height() <= smallPicture;
        m_list->item(row)->setData(Qt::DecorationRole, paper(isSmall ? job.make({}) : dots()));
        if (!isSmall)
            jobs.append(job);
    }
    if (jobs.isEmpty())
        return;
    connect(&m_reading, &QFutureWatcher<Small>::resultReadyAt, this,
            [this](int index) { show(m_reading.resultAt(index)); });
    const auto promise = std::make_shared<QPromise<Small>>();
    promise->start();
    m_reading.setFuture(promise->future());
    QThreadPool::globalInstance()->start([promise, jobs] {
        for (const Job& job : jobs) {
            if (!promise->isCanceled())
                promise->addResult(Small{job.row, job.make([&promise] { return promise->isCanceled(); })});
        }
        promise->finish();
    });
}

void EarlierDialog::show(const Small& small)
{
    m_list->item(small.row)->setData(Qt::DecorationRole, paper(small.picture));
}

} // namespace pad
