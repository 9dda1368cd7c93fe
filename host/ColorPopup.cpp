#include "ColorPopup.h"

#include "Palette16.h"

#include <KORVA_EditCanvas.h>

#include <QAbstractButton>
#include <QApplication>
#include <QEventLoop>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QPointer>
#include <QPushButton>
#include <QRegularExpression>

namespace pad {

namespace {

/// A dialog, because screen readers do not hear of a pop-up. On Wayland a dialog would be a window beside.
Qt::WindowFlags kind()
{
    return QGuiApplication::platformName().startsWith(QLatin1String("wayland")) ? Qt::Popup : Qt::Dialog;
}

constexpr int columns = 4;
constexpr QSize cell(54, 30); // for a finger; four beside each other fit the smallest window
constexpr int spacing = 2;
constexpr int margin = 4;

/// A button in its colour; the one in force is framed.
class Swatch : public QAbstractButton
{
public:
    Swatch(const QColor& color, bool isPresent, QWidget* parent) : QAbstractButton(parent), m_color(color)
    {
        setFixedSize(cell);
        setCheckable(true);
        setChecked(isPresent);
        setAccessibleName(KORVA_EditCanvas::colorName(color));
        setToolTip(accessibleName());
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        const bool isFramed = isChecked() || hasFocus();
        const QRect inside = rect().adjusted(3, 3, -3, -3);
        if (isFramed)
            painter.fillRect(rect(),
                             palette().color(hasFocus() ? QPalette::Highlight : QPalette::WindowText));
        painter.fillRect(inside.adjusted(-2, -2, 2, 2), palette().color(QPalette::Window));
        painter.fillRect(inside.adjusted(-1, -1, 1, 1), QColor(96, 96, 96)); // so that white is seen
        painter.fillRect(inside, m_color);
    }

private:
    QColor m_color;
};

} // namespace

std::optional<QColor> ColorPopup::pick(QWidget* parent, const QColor& present, const QList<QColor>& recent)
{
    const QPointer<ColorPopup> popup = new ColorPopup(parent, present, recent);
    QEventLoop loop;
    connect(popup, &ColorPopup::closed, &loop, &QEventLoop::quit);
    connect(popup, &QObject::destroyed, &loop, &QEventLoop::quit);
    const auto* const button = parent->findChild<QWidget*>(QStringLiteral("colorButton"));
    popup->adjustSize();
    const QPoint below = button ? button->mapToGlobal(button->rect().bottomRight()) : QCursor::pos();
    popup->move(below - QPoint(popup->width(), 0));
    popup->show();
    popup->activateWindow();
    qApp->installEventFilter(popup);
    loop.exec();
    if (!popup)
        return present;
    qApp->removeEventFilter(popup);
    const std::optional<QColor> picked = popup->m_picked;
    popup->deleteLater();
    return picked;
}

ColorPopup::ColorPopup(QWidget* parent, const QColor& present, const QList<QColor>& recent)
    : QDialog(parent, kind() | Qt::FramelessWindowHint),
      m_picked(present),
      m_value(new QLineEdit(present.name(), this))
{
    setWindowTitle(tr("Colors", "color pop-up"));
    auto* const grid = new QGridLayout(this);
    grid->setContentsMargins(margin, margin, margin, margin);
    grid->setSpacing(spacing);
    QList<QColor> palette;
    for (const PaletteColor& color : palette16)
        palette.append(QColor(color.rgb));
    addSwatches(*grid, 0, palette);
    const int recentRow = int(std::size(palette16)) / columns + 1;
    grid->setRowMinimumHeight(recentRow - 1, 2 * spacing);
    addSwatches(*grid, recentRow, recent);

    const int last = grid->rowCount();
    grid->setRowMinimumHeight(last, 2 * spacing);
    m_value->setAccessibleName(tr("Value of the color", "color pop-up"));
    m_value->setToolTip(tr("#rrggbb, or red, green and blue from 0 to 255", "color pop-up"));
    m_value->setFixedHeight(cell.height());
    grid->addWidget(m_value, last + 1, 0, 1, columns / 2);
    connect(m_value, &QLineEdit::returnPressed, this, &ColorPopup::chooseTyped);
    auto* const more = new QPushButton(tr("More ...", "color pop-up; opens a dialog"), this);
    more->setAutoDefault(false);
    more->setFixedHeight(cell.height());
    grid->addWidget(more, last + 1, columns / 2, 1, columns / 2);
    connect(more, &QPushButton::clicked, this, [this] { choose(std::nullopt); });
    grid->itemAtPosition(0, 0)->widget()->setFocus(); // not the field, which would call a screen keyboard
}

void ColorPopup::addSwatches(QGridLayout& grid, int row, const QList<QColor>& colors)
{
    for (qsizetype i = 0; i < colors.size(); ++i) {
        auto* const swatch = new Swatch(colors[i], colors[i] == m_picked, this);
        grid.addWidget(swatch, row + int(i) / columns, int(i) % columns);
        connect(swatch, &Swatch::clicked, this, [this, color = colors[i]] { choose(color); });
    }
}

ColorPopup* ColorPopup::current()
{
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (auto* const popup = qobject_cast<ColorPopup*>(window); popup && popup->isVisible())
            return popup;
    }
    return nullptr;
}

bool ColorPopup::eventFilter(QObject* watched, QEvent* event)
{
    const QEvent::Type type = event->type();
    const bool isPress = type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick ||
                         type == QEvent::TouchBegin || type == QEvent::TabletPress;
    if (!isPress || !watched->isWidgetType() || static_cast<const QWidget*>(watched)->window() == this)
        return false;
    close();
    return true;
}

void ColorPopup::choose(const std::optional<QColor>& color)
{
    m_picked = color;
    close();
}

void ColorPopup::chooseTyped()
{
    const QColor typed = colorOf(m_value->text());
    if (typed.isValid())
        choose(typed);
    else
        m_value->selectAll();
}

QColor ColorPopup::colorOf(const QString& text)
{
    static const QRegularExpression hexadecimal(QStringLiteral("^#?([0-9a-fA-F]{6})$"));
    static const QRegularExpression numbers(
        QStringLiteral("^([0-9]{1,3})[ ,;]+([0-9]{1,3})[ ,;]+([0-9]{1,3})$"));
    const QString value = text.trimmed();
    if (const auto found = hexadecimal.match(value); found.hasMatch())
        return QColor('#' + found.captured(1));
    const auto found = numbers.match(value);
    if (!found.hasMatch())
        return {};
    const QColor color(found.captured(1).toInt(), found.captured(2).toInt(), found.captured(3).toInt());
    return color; // invalid if a number is beyond 255
}

/// What begins a value is typed into the field, wherever the keyboard is.
void ColorPopup::keyPressEvent(QKeyEvent* event)
{
    const QString text = event->text();
    const bool isValue = !text.isEmpty() && (text == QLatin1String("#") || text.at(0).isDigit());
    if (!isValue || m_value->hasFocus()) {
        QDialog::keyPressEvent(event);
        return;
    }
    m_value->setFocus();
    m_value->setText(text);
}

void ColorPopup::hideEvent(QHideEvent* event)
{
    QDialog::hideEvent(event);
    emit closed();
}

void ColorPopup::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::WindowText));
    painter.fillRect(rect().adjusted(1, 1, -1, -1), palette().color(QPalette::Window));
}

} // namespace pad
