#include "KORVA_EditCanvas.h"

#include <QApplication>

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    editor.show();
    return QApplication::exec();
}
