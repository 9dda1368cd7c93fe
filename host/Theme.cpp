#include "Theme.h"

#include <QApplication>
#include <QFont>
#include <QPalette>
#include <QStyleFactory>

namespace pad::theme {

namespace {

QString menuRules()
{
    return QStringLiteral("QMenu { background: %1; border: 1px solid %2; padding: 2px 0; }"
                          "QMenu::item { color: %3; padding: 3px 12px 3px 12px; }"
                          "QMenu::item:selected { background: %4; color: %1; }"
                          "QMenu::item:disabled { color: %5; background: %1; }"
                          "QMenu::separator { height: 1px; margin: 2px 0; background: %6; }")
        .arg(surface.name(), line.name(), ink.name(), accent.name(), faintInk.name(), faintLine.name());
}

} // namespace

void apply(QApplication& app)
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));

    QPalette palette(ink, ground, surface, line, faintLine, ink, ink, surface, ground);
    palette.setColor(QPalette::Highlight, accent);
    palette.setColor(QPalette::HighlightedText, surface);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, faintInk);
    QApplication::setPalette(palette);

    QFont font = QApplication::font();
    font.setPixelSize(textHeight);
    QApplication::setFont(font);
    app.setStyleSheet(menuRules());
}

} // namespace pad::theme
