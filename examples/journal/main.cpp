#include <KORVA_EditCanvas.h>
#include <KORVA_Journal.h>
#include <QApplication>
#include <QDir>
#include <QPushButton>

/// A pad for one drawing that survives closing, a kill and a power cut: it comes back as it was.
int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QWidget window;
    window.setFixedSize(240, 280);
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT, &window);
    KORVA_Journal journal(&editor, argc > 1 ? QString::fromLocal8Bit(argv[1])
                                            : QDir::homePath() + "/.korva-journal");
    if (const auto left = journal.adopt())
        journal.bringBack(*left);

    QPushButton anew("Begin anew", &window);
    anew.setGeometry(10, 235, 220, 36);
    QObject::connect(&anew, &QPushButton::clicked, &journal, [&] {
        journal.keep(); // the newest 20 stay in the folder
        editor.clearCanvas();
        editor.clearModified();
        journal.settle();
    });
    window.show();
    return QApplication::exec();
}
