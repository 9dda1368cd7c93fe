#include "ContactSheet.h"

#include <UTIL_Skin.h>

#include <QApplication>
#include <QDialog>
#include <QEventLoop>
#include <QPainter>
#include <QScreen>
#include <QTimer>

namespace docs {

namespace {

constexpr int gap = 8; // logical pixels around each shot

} // namespace

void ContactSheet::wait()
{
    QEventLoop loop;
    QTimer::singleShot(settled, &loop, &QEventLoop::quit);
    loop.exec();
}

void ContactSheet::shoot(const std::function<void()>& open)
{
    QTimer::singleShot(settled / 2, &m_window, [this] {
        const double scale = m_window.devicePixelRatioF();
        QImage screen = m_window.screen()->grabWindow(0).toImage();
        screen.setDevicePixelRatio(1);
        const QRect place(m_window.pos() * scale, m_window.size() * scale);
        add(screen.copy(place), scale);
        if (QWidget* popup = QApplication::activePopupWidget())
            popup->close();
        if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget()))
            dialog->done(QDialog::Rejected); // closing answers not every question
    });
    open();
    wait();
}

void ContactSheet::add(const QImage& shot, double scale)
{
    const int space = qRound(gap * scale);
    const QSize cell = shot.size() + QSize(space, space);
    const QPoint at(m_count % m_columns * cell.width() + space,
                    m_count / m_columns * cell.height() + space);
    const QSize size(m_columns * cell.width() + space, (m_count / m_columns + 1) * cell.height() + space);
    QImage larger(size, QImage::Format_RGB32);
    larger.fill(UTIL_Skin::color(UTIL_Skin::Color::Border));
    QPainter painter(&larger);
    painter.drawImage(0, 0, m_shots);
    painter.drawImage(at, shot);
    painter.end();
    m_shots = larger;
    ++m_count;
}

} // namespace docs
