#include "Colors.h"

#include "Settings.h"

#include <KORVA_Canvas.h>
#include <KORVA_EditCanvas.h>
#include <KORVA_Text.h>

#include <QAbstractButton>
#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QMouseEvent>
#include <QSettings>

#include <utility>

namespace pad {

namespace {

constexpr int most = 8;
constexpr int longPress = 600; // milliseconds
const QString settingsKey = QStringLiteral("colors/recent");

} // namespace

Colors::Colors(KORVA_EditCanvas& editor, QObject* parent)
    : QObject(parent),
      m_editor(editor),
      m_button(editor.findChild<QAbstractButton*>(QStringLiteral("colorButton"))),
      m_recent{editor.color()}
{
    connect(&editor, &KORVA_EditCanvas::colorChanged, this, &Colors::note);
    m_button->installEventFilter(this);
    offerOutline();
}

void Colors::remember()
{
    m_isRemembered = true;
    const QSettings settings(settingsFile(), QSettings::IniFormat);
    for (const QString& name : settings.value(settingsKey).toStringList()) {
        const QColor color(name);
        if (color.isValid() && !m_recent.contains(color) && m_recent.size() < most)
            m_recent.append(color);
    }
    offerOutline();
}

void Colors::note(const QColor& color)
{
    m_recent.removeOne(color);
    m_recent.prepend(color);
    m_recent = m_recent.mid(0, most);
    offerOutline();
    if (!m_isRemembered)
        return;
    QStringList names;
    for (const QColor& each : m_recent)
        names.append(each.name());
    QSettings(settingsFile(), QSettings::IniFormat).setValue(settingsKey, names);
}

/// Before there are two colours, one that is seen.
void Colors::offerOutline()
{
    const QColor other = m_recent.constFirst() == Qt::black ? Qt::white : Qt::black;
    m_editor.setOutlineColor(m_recent.value(1, other));
}

void Colors::swap()
{
    if (m_recent.size() < 2)
        return;
    m_editor.setColor(m_recent.at(1));
    emit performed(Command{.verb = Verb::Color, .color = m_editor.color()});
}

bool Colors::eventFilter(QObject*, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        if (static_cast<const QMouseEvent*>(event)->button() == Qt::RightButton) {
            swap();
            return true;
        }
        m_holding.start(longPress, this);
        return false;
    case QEvent::MouseMove:
        return m_isSwapped;
    case QEvent::MouseButtonRelease:
        m_holding.stop();
        return std::exchange(m_isSwapped, false);
    case QEvent::ContextMenu:
        if (static_cast<const QContextMenuEvent*>(event)->reason() == QContextMenuEvent::Keyboard)
            swap();
        return true;
    default:
        return false;
    }
}

void Colors::timerEvent(QTimerEvent*)
{
    m_holding.stop();
    letGo();
    m_isSwapped = true;
    swap();
    if (const KORVA_Text* text = m_editor.currentText(); text && text->takesText())
        m_editor.canvas()->setFocus(); // which the press has taken away
}

/// Without a click.
void Colors::letGo() const
{
    const QPointF beside(-1, -1);
    QMouseEvent release(QEvent::MouseButtonRelease, beside, m_button->mapToGlobal(beside), Qt::LeftButton,
                        Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(m_button, &release);
}

} // namespace pad
