// Makes the contact sheet of docs/screenshots at the scale the program runs at: the editor with each pop-up
// open, and both dialogs. Started by screenshots.sh; wants a screen of its own.
#include <KORVA_ChooseCanvasDlg.h>
#include <KORVA_ColorPicker.h>
#include <KORVA_EditCanvas.h>
#include <UTIL_Skin.h>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QMenu>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QScreen>
#include <QTimer>

#include <cstdio>
#include <functional>

namespace {

constexpr int columns = 6;
constexpr int gap = 8;       // logical pixels around each shot
constexpr int settled = 400; // ms until everything is painted

class Photographer
{
public:
    Photographer() : m_editor(KORVA_COLOR_16BIT, &m_window)
    {
        m_window.setPalette(UTIL_Skin::palette());
        m_window.setFixedSize(UTIL_Skin::Size::screenWidth, UTIL_Skin::Size::screenHeight);
        QPixmap picture = landscape();
        m_editor.setPixmap(&picture);
        m_window.show();
        QCursor::setPos(m_window.screen()->geometry().bottomRight()); // hovers over nothing
        wait();
    }

    QImage sheet()
    {
        shoot([this] { wait(); });
        shoot([this] { button("toolButton").click(); });
        for (int row = 0; row < toolMenu().actions().size(); ++row) {
            toolMenu().actions()[row]->trigger();
            shoot([this] { button("optionButton").click(); });
        }
        shoot([this] {
            m_editor.findChild<QComboBox*>("zoomBox")->showPopup();
            wait();
        });
        shoot([this] { KORVA_ColorPicker(KORVA_COLOR_16BIT, QColor(31, 110, 180), &m_window).exec(); });
        shoot([this] { KORVA_ChooseCanvasDlg(&m_window, 3).exec(); });
        return m_shots;
    }

private:
    QPushButton& button(const char* name) { return *m_editor.findChild<QPushButton*>(name); }
    QMenu& toolMenu() { return *button("toolButton").menu(); }

    static void wait()
    {
        QEventLoop loop;
        QTimer::singleShot(settled, &loop, &QEventLoop::quit);
        loop.exec();
    }

    /// Opens something, puts the picture of the window into the sheet and closes it again.
    void shoot(const std::function<void()>& open)
    {
        QTimer::singleShot(settled / 2, &m_window, [this] {
            const double scale = m_window.devicePixelRatioF();
            QImage screen = m_window.screen()->grabWindow(0).toImage();
            screen.setDevicePixelRatio(1);
            const QRect place(m_window.pos() * scale, m_window.size() * scale);
            add(screen.copy(place), scale);
            if (QWidget* popup = QApplication::activePopupWidget())
                popup->close();
            if (QWidget* dialog = QApplication::activeModalWidget())
                dialog->close();
        });
        open();
        wait();
    }

    void add(const QImage& shot, double scale)
    {
        const int space = qRound(gap * scale);
        const QSize cell = shot.size() + QSize(space, space);
        const QPoint at(m_count % columns * cell.width() + space,
                        m_count / columns * cell.height() + space);
        const QSize size(columns * cell.width() + space, (m_count / columns + 1) * cell.height() + space);
        QImage larger(size, QImage::Format_RGB32);
        larger.fill(UTIL_Skin::color(UTIL_Skin::Color::Border));
        QPainter painter(&larger);
        painter.drawImage(0, 0, m_shots);
        painter.drawImage(at, shot);
        painter.end();
        m_shots = larger;
        ++m_count;
    }

    static QPixmap landscape()
    {
        QPixmap picture(200, 170);
        picture.fill(Qt::white);
        QPainter painter(&picture);
        painter.fillRect(0, 110, 200, 60, QColor(120, 170, 90));
        painter.setBrush(QColor(250, 200, 60));
        painter.setPen(Qt::NoPen);
        painter.drawEllipse(140, 15, 36, 36);
        painter.setPen(QPen(QColor(60, 90, 150), 3));
        painter.setBrush(Qt::NoBrush);
        painter.drawPolyline(QPolygon({{10, 110}, {50, 50}, {75, 85}, {100, 40}, {150, 110}}));
        painter.setPen(QPen(Qt::red, 1));
        painter.drawRect(30, 120, 40, 30);
        painter.drawPolyline(QPolygon({{26, 120}, {50, 98}, {74, 120}}));
        return picture;
    }

    QWidget m_window;
    KORVA_EditCanvas m_editor;
    QImage m_shots;
    int m_count = 0;
};

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    if (QApplication::arguments().size() != 2) {
        std::fputs("usage: korva-screenshots FILE.png\n", stderr);
        return 1;
    }
    const QImage sheet = Photographer().sheet();
    return sheet.save(QApplication::arguments().constLast(), "PNG") ? 0 : 1;
}
