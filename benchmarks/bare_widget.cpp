#include "BareWidget.h"

#include <QApplication>

// With --only-receive it paints nothing; with --text it shows a line of text on the picture.
int main(int argc, char** argv)
{
    const QApplication app(argc, argv);
    const QStringList arguments = QApplication::arguments();
    BareWidget widget(QPixmap(arguments.constLast()), !arguments.contains(QStringLiteral("--only-receive")),
                      arguments.contains(QStringLiteral("--text")) ? QStringLiteral("240 x 320, 100 %")
                                                                   : QString());
    widget.show();
    return QApplication::exec();
}
