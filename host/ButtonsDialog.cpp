#include "ButtonsDialog.h"

#include "KeysDialog.h"
#include "Wording.h"

#include <KORVA_EditCanvas.h>
#include <UTIL_PushButton.h>
#include <UTIL_Skin.h>

#include <QAction>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QVBoxLayout>

#include <functional>

namespace pad {

namespace {

using Size = UTIL_Skin::Size;

constexpr QSize pictureSize(64, 40);
constexpr int gap = 4;   // between rows
constexpr int inset = 3; // beside a text: the blank at a line's end may stand out
constexpr int enlargement = 2;

struct Row
{
    std::function<void(QPainter& painter, const QRect& box)> paint; ///< the picture, on an empty key
    QString name;
    QStringList contents; ///< as many as fit are listed
};

QPixmap pictureOf(const Row& row, qreal ratio)
{
    QPixmap picture(pictureSize * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    const UTIL_Skin::Look look = UTIL_Skin::look(UTIL_Skin::Control::Key, UTIL_Skin::State::Resting);
    const QRect box(QPoint(), pictureSize);
    UTIL_Skin::paintBox(painter, box, look);
    painter.setPen(look.ink);
    row.paint(painter, box);
    return picture;
}

/// So large that the line is seen whole.
QFont fitting(UTIL_Skin::Font purpose, const QString& text, int width)
{
    QFont font = UTIL_Skin::font(purpose);
    while (font.pixelSize() > 1 && QFontMetrics(font).horizontalAdvance(text) > width)
        font.setPixelSize(font.pixelSize() - 1);
    return font;
}

void paintText(QPainter& painter, const QRect& place, const QString& text)
{
    painter.setFont(fitting(UTIL_Skin::Font::Key, text, place.width()));
    painter.drawText(place, Qt::AlignCenter, text);
}

QStringList texts(const QMenu& menu)
{
    QStringList texts;
    for (const QAction* action : menu.actions())
        texts << wording::plainLabel(action->text());
    return texts;
}

Row iconRow(const QPushButton& button)
{
    const QPixmap icon = button.icon().pixmap(button.iconSize());
    return {[icon](QPainter& painter, const QRect& box) {
                QRect place(QPoint(), enlargement * QSize(Size::iconWidth, Size::iconHeight));
                place.moveCenter(box.center());
                painter.drawPixmap(place, icon);
            },
            button.accessibleName(), texts(*button.menu())};
}

Row zoomRow(const QComboBox& zoom)
{
    QStringList rates;
    for (int i = 0; i < zoom.count(); ++i)
        rates << zoom.itemText(i);
    return {[text = zoom.currentText()](QPainter& painter, const QRect& box) {
                constexpr int mark = 5 * Size::chevron;
                const QRect place = box.adjusted(gap, 0, -mark, 0);
                paintText(painter, place, text);
                UTIL_Skin::paintChevron(
                    painter, QPoint(box.right() - mark / 2, box.center().y()),
                    UTIL_Skin::look(UTIL_Skin::Control::Key, UTIL_Skin::State::Resting));
            },
            zoom.accessibleName(), rates};
}

Row colorRow(const QPushButton& button, const QColor& color)
{
    return {[color](QPainter& painter, const QRect& box) {
                constexpr int edge = 6;
                painter.fillRect(box.adjusted(edge, edge, -edge, -edge), color);
            },
            button.accessibleName(),
            {button.accessibleDescription()}};
}

Row menuRow(const QMenu& menu)
{
    return {[name = menu.accessibleName()](QPainter& painter, const QRect& box) {
                paintText(painter, box.adjusted(gap, 0, -gap, 0), name);
            },
            menu.accessibleName(), texts(menu)};
}

/// As much of a list as fits; what is left out is hinted at.
QString listed(const QStringList& contents, const QFontMetrics& metrics, const QSize& room)
{
    for (qsizetype count = contents.size(); count > 0; --count) {
        const QString text = contents.first(count).join(QLatin1String(", ")) +
                             QLatin1String(count < contents.size() ? " ..." : "");
        const QSize size =
            metrics.boundingRect(QRect(0, 0, room.width(), 2 * room.height()), Qt::TextWordWrap, text)
                .size();
        if (size.boundedTo(room) == size)
            return text;
    }
    return {};
}

} // namespace

ButtonsDialog::ButtonsDialog(QWidget* parent, const KORVA_EditCanvas& editor, const QMenu& menu)
    : UTIL_Dialog(FreeDialog, true, parent)
{
    const QString title = KeysDialog::tr("Buttons", "keys; title, of the tool bar's buttons");
    setWindowTitle(title);
    setFixedSize(QSize(Size::screenWidth, Size::screenHeight)
                     .boundedTo(parent->window()->size())
                     .boundedTo(screenArea().size()));
    auto* heading = new QLabel(title, this);
    heading->setFont(UTIL_Skin::font(UTIL_Skin::Font::Title));
    auto* close = new UTIL_PushButton(QString(), KeysDialog::tr("Close", "keys"), this);
    close->setFlags(UTIL_PushButton::FirstSoftKey | UTIL_PushButton::Outlined);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Size::spacing, Size::spacing, Size::spacing, Size::spacing);
    column->setSpacing(gap);
    column->addWidget(heading);

    const auto button = [&editor](const char* name) -> const QPushButton& {
        return *editor.findChild<QPushButton*>(QLatin1String(name));
    };
    const Row rows[] = {iconRow(button("toolButton")), iconRow(button("optionButton")),
                        zoomRow(*editor.findChild<QComboBox*>(QStringLiteral("zoomBox"))),
                        colorRow(button("colorButton"), editor.color()), menuRow(menu)};
    constexpr int count = std::size(rows);
    const int rest = heading->sizeHint().height() + Size::keyHeight + (count + 1) * gap + 2 * Size::spacing;
    const QFontMetrics nameMetrics(UTIL_Skin::font(UTIL_Skin::Font::Text));
    const QFont small = UTIL_Skin::font(UTIL_Skin::Font::Caption);
    const QSize room(width() - 3 * Size::spacing - pictureSize.width() - 2 * inset,
                     (height() - rest) / count - nameMetrics.height());
    for (const Row& row : rows) {
        auto* picture = new QLabel(this);
        picture->setPixmap(pictureOf(row, devicePixelRatioF()));
        picture->setFixedSize(pictureSize);
        auto* name = new QLabel(row.name, this);
        name->setFont(fitting(UTIL_Skin::Font::Text, row.name, room.width()));
        name->setContentsMargins(inset, 0, inset, 0);
        const QString list = listed(row.contents, QFontMetrics(small), room);
        auto* contents = new QLabel(list, this);
        contents->setFont(small);
        contents->setContentsMargins(inset, 0, inset, 0);
        contents->setWordWrap(true);
        contents->setForegroundRole(QPalette::PlaceholderText);
        contents->setVisible(!list.isEmpty());
        auto* words = new QVBoxLayout;
        words->setSpacing(0);
        words->addStretch();
        words->addWidget(name);
        words->addWidget(contents);
        words->addStretch();
        auto* line = new QHBoxLayout;
        line->setSpacing(Size::spacing);
        line->addWidget(picture);
        line->addLayout(words, 1);
        column->addLayout(line, 1);
    }
    column->addWidget(close);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    close->setFocus();
}

void ButtonsDialog::mouseReleaseEvent(QMouseEvent*)
{
    accept();
}

} // namespace pad
