#include "Boxes.h"

#include <UTIL_PushButton.h>
#include <UTIL_Skin.h>

#include <QDialog>
#include <QLabel>
#include <QPointer>
#include <QTimer>
#include <QVBoxLayout>

namespace {

QFont large(const QWidget& widget)
{
    constexpr int pixels = 24;
    QFont font = widget.font();
    font.setPixelSize(pixels);
    return font;
}

} // namespace

int Boxes::question(QWidget* parent, const QString&, const QString& text, const QStringList& buttons)
{
    const int harmless = int(buttons.size()) - 1;
    const QWidget& window = *parent->window();
    const QPointer<QDialog> panel = new QDialog(parent, Qt::FramelessWindowHint);
    auto* rows = new QVBoxLayout(panel);
    auto* label = new QLabel(text);
    label->setFont(large(*label));
    label->setAlignment(Qt::AlignCenter);
    rows->addWidget(label);
    for (int i = 0; i <= harmless; ++i) {
        auto* key = new UTIL_PushButton({}, buttons[i]);
        key->setFont(large(*key));
        key->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        QObject::connect(key, &QPushButton::clicked, panel, [panel, i] { panel->done(i + 1); });
        rows->addWidget(key);
    }
    panel->resize(400, 240);
    panel->move(window.geometry().center() - panel->rect().center());
    const int result = panel->exec(); // 0 when it is rejected, as by KORVA_EditCanvas::cancelDialogs()
    delete panel;
    return result > 0 ? result - 1 : harmless;
}

void Boxes::timedInformation(QWidget* parent, const QString& icon, const QString& text, const QString&,
                             int timeout)
{
    timedMessage(parent, icon, text, timeout);
}

void Boxes::timedMessage(QWidget* parent, const QString&, const QString& text, int timeout)
{
    constexpr int height = 56;
    QWidget* const window = parent->window();
    auto* banner = new QLabel(text, window);
    banner->setFont(large(*banner));
    banner->setAlignment(Qt::AlignCenter);
    banner->setAutoFillBackground(true);
    banner->setPalette(UTIL_Skin::color(UTIL_Skin::Color::Ink)); // the text stands out from it
    banner->setAttribute(Qt::WA_TransparentForMouseEvents);
    banner->setGeometry(0, 0, window->width(), height);
    banner->show();
    QTimer::singleShot(timeout * timeoutSecond(), banner, &QObject::deleteLater);
}
