#include "UTIL_Dialog.h"

#include "UTIL_Accessible.h"
#include "UTIL_Geometry.h"
#include "UTIL_Overlay.h"
#include "UTIL_PushButton.h"
#include "UTIL_ScrollArea.h"
#include "UTIL_Skin.h"
#include "UTIL_Veil.h"

#include <QApplication>
#include <QLabel>
#include <QPainter>
#include <QScreen>

namespace {

using Size = UTIL_Skin::Size;

// Title, a row and the keys.
constexpr int smallestHeight = Size::titleHeight + Size::rowHeight + Size::keyHeight + 2 * Size::spacing;

} // namespace

UTIL_Dialog::UTIL_Dialog(int type, bool modal, QWidget* parent, const char* name, Qt::WindowFlags flags)
    : QDialog(parent, (flags & ~Qt::WindowType_Mask) | Qt::Dialog | Qt::FramelessWindowHint),
      m_content(this)
{
    accessible::installControls();
    setObjectName(name);
    setModal(modal);
    setPalette(UTIL_Skin::palette());
    setFont(UTIL_Skin::font(UTIL_Skin::Font::Text));
    if (type == StandardDialog) {
        setFixedSize(UTIL_Geometry::dialogSize());
        if (screenArea().height() < height())
            makeLower();
    }

    m_title = new QLabel(m_content);
    m_title->setGeometry(fromGlobal(UTIL_Geometry(*this).title()));
    m_title->setFont(UTIL_Skin::font(UTIL_Skin::Font::Title));
    m_title->hide();
}

void UTIL_Dialog::makeLower()
{
    m_content = new QWidget;
    m_content->setFixedWidth(width());
    auto* scroll = new UTIL_ScrollArea(m_content, this);
    setFixedHeight(std::max(smallestHeight, screenArea().height()));
    scroll->setGeometry(0, 0, width(), fromGlobal(UTIL_Geometry(*this).firstSoftKey()).top());
}

UTIL_Dialog::~UTIL_Dialog()
{
    delete m_overlay;
    delete m_veil;
}

void UTIL_Dialog::setDlgTitle(const QString& title)
{
    m_title->setText(title);
    m_title->setVisible(!title.isEmpty());
    setWindowTitle(title);
}

QString UTIL_Dialog::dlgTitle() const
{
    return m_title->text();
}

QRect UTIL_Dialog::fromGlobal(const QRect& global) const
{
    return {mapFromGlobal(global.topLeft()), global.size()};
}

UTIL_PushButton* UTIL_Dialog::createSoftKey(const QString& text, int flags)
{
    const UTIL_Geometry geometry(*this);
    const bool first = flags & UTIL_PushButton::FirstSoftKey;
    auto* key = new UTIL_PushButton(QString(), text, this);
    key->setGeometry(fromGlobal(first ? geometry.firstSoftKey() : geometry.secondSoftKey()));
    key->setFlags(flags);
    return key;
}

void UTIL_Dialog::setVisible(bool visible)
{
    if (visible && !isVisible()) {
        place();
        if (QWidget* window = owner())
            window->installEventFilter(this);
        if (QWidget* veiled = isVeiling() ? owner() : nullptr)
            m_veil = new UTIL_Veil(veiled);
        if (QWidget* window = anchor(); UTIL_Overlay::suits(*this, window))
            m_overlay = new UTIL_Overlay(*this, *window);
    }
    QDialog::setVisible(visible);
    if (visible)
        return;
    if (QWidget* window = owner())
        window->removeEventFilter(this);
    if (m_overlay)
        m_overlay->giveBack();
    delete m_overlay;
    delete m_veil;
}

bool UTIL_Dialog::eventFilter(QObject* watched, QEvent* event)
{
    const bool isOwners = watched == owner() && isVisible() && !m_overlay;
    if (isOwners && event->type() == QEvent::Resize) {
        fit();
        place();
    } else if (isOwners && event->type() == QEvent::Move) {
        place(); // a desktop gives a new window its place when it likes
    }
    return QDialog::eventFilter(watched, event);
}

void UTIL_Dialog::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), UTIL_Skin::color(UTIL_Skin::Color::Edge));
    constexpr int edge = UTIL_Skin::Size::hairline;
    painter.fillRect(rect().adjusted(edge, edge, -edge, -edge), UTIL_Skin::color(UTIL_Skin::Color::Ground));
}

bool UTIL_Dialog::isVeiling() const
{
    return isModal();
}

QWidget* UTIL_Dialog::owner() const
{
    return parentWidget() ? parentWidget()->window() : nullptr;
}

QWidget* UTIL_Dialog::anchor() const
{
    QWidget* window = owner();
    return window && window->isVisible() ? window : QApplication::activeWindow();
}

QRect UTIL_Dialog::screenArea() const
{
    const QWidget* window = anchor();
    return (window ? window->screen() : screen())->availableGeometry();
}

void UTIL_Dialog::place()
{
    if (m_content != this) // it scrolls no farther than its parts reach
        m_content->setFixedHeight(m_content->childrenRect().bottom() + 1 + Size::spacing / 2);
    const QWidget* anchor = this->anchor();
    const QRect bounds = screenArea();
    QRect card(QPoint(), size());
    card.moveCenter((anchor ? anchor->geometry() : bounds).center());
    card.moveRight(std::min(card.right(), bounds.right()));
    card.moveBottom(std::min(card.bottom(), bounds.bottom()));
    card.moveLeft(std::max(card.left(), bounds.left()));
    card.moveTop(std::max(card.top(), bounds.top()));
    move(card.topLeft());
}
