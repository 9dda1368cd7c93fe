// Makes the contact sheet of docs/screenshots at the scale the program runs at: the editor with each pop-up
// open, and both dialogs. Started by screenshots.sh; wants a screen of its own.
#include "ContactSheet.h"

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

#include <cstdio>

using docs::ContactSheet;

namespace {

constexpr int columns = 6;

class Photographer
{
public:
    Photographer() : m_editor(KORVA_COLOR_16BIT, &m_window), m_sheet(m_window, columns)
    {
        m_window.setPalette(UTIL_Skin::palette());
        m_window.setFixedSize(UTIL_Skin::Size::screenWidth, UTIL_Skin::Size::screenHeight);
        QPixmap picture = landscape();
        m_editor.setPixmap(&picture);
        m_window.show();
        QCursor::setPos(m_window.screen()->geometry().bottomRight()); // hovers over nothing
        ContactSheet::wait();
    }

    QImage sheet()
    {
        m_sheet.shoot(ContactSheet::wait);
        m_sheet.shoot([this] { button("toolButton").click(); });
        for (int row = 0; row < toolMenu().actions().size(); ++row) {
            toolMenu().actions()[row]->trigger();
            m_sheet.shoot([this] { button("optionButton").click(); });
        }
        m_sheet.shoot([this] {
            m_editor.findChild<QComboBox*>("zoomBox")->showPopup();
            ContactSheet::wait();
        });
        m_sheet.shoot(
            [this] { KORVA_ColorPicker(KORVA_COLOR_16BIT, QColor(31, 110, 180), &m_window).exec(); });
        m_sheet.shoot([this] { KORVA_ChooseCanvasDlg(&m_window, 3).exec(); });
        return m_sheet.image();
    }

private:
    QPushButton& button(const char* name) { return *m_editor.findChild<QPushButton*>(name); }
    QMenu& toolMenu() { return *button("toolButton").menu(); }

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
    ContactSheet m_sheet;
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
