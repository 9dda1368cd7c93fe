// A window that was laid out in Qt Designer: what the form cannot say is wired here.

#include "ui_form.h"

#include <QApplication>

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QWidget window;
    Ui::Form form;
    form.setupUi(&window);
    QObject::connect(form.undoButton, &QPushButton::clicked, form.editor, &KORVA_EditCanvas::undo);
    QObject::connect(form.previewButton, &QPushButton::clicked, form.preview,
                     [&form] { form.preview->setImage(form.editor->snapshot()); });
    window.show();
    return QApplication::exec();
}
