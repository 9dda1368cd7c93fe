#include "BareWidget.h"

#include <QApplication>

// With --only-receive it paints nothing.
int main(int argc, char** argv)
{
    const QApplication app(argc, argv);
    const QStringList arguments = QApplication::arguments();
    BareWidget widget(QPixmap(arguments.constLast()),
                      !arguments.contains(QStringLiteral("--only-receive")));
    widget.show();
    return QApplication::exec();
}
