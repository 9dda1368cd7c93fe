#include <KORVA_EditCanvas.h>
#include <QApplication>
#include <QPushButton>

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QWidget window;
    window.setFixedSize(240, 280);
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT, &window);
    QPushButton undo("Undo", &window);
    undo.setGeometry(10, 235, 220, 36);
    undo.setEnabled(false);
    QObject::connect(&editor, &KORVA_EditCanvas::canUndo, &undo, &QWidget::setEnabled);
    QObject::connect(&undo, &QPushButton::clicked, &editor, &KORVA_EditCanvas::undo);
    window.show();
    return QApplication::exec();
}
