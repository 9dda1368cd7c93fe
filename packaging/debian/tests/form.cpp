#include <KORVA_Canvas.h>
#include <KORVA_EditCanvas.h>

#include <QApplication>
#include <QFile>
#include <QMouseEvent>
#include <QUiLoader>

#include <cstdio>
#include <memory>

namespace {

void send(QWidget& widget, QEvent::Type type, QPoint at)
{
    QMouseEvent event(type, at, widget.mapToGlobal(at), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
}

} // namespace

// form FORM.ui: draws a line in its editor, in the colour that the form says.
int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QFile file(argv[1]);
    if (!file.open(QIODevice::ReadOnly))
        return 2;
    const std::unique_ptr<QWidget> window(QUiLoader().load(&file));
    auto* const editor = window ? window->findChild<KORVA_EditCanvas*>("editor") : nullptr;
    if (!editor) {
        std::fputs("the form has no editor: is the plugin found?\n", stderr);
        return 3;
    }
    window->show();
    QWidget& canvas = *editor->canvas();
    send(canvas, QEvent::MouseButtonPress, {20, 60});
    send(canvas, QEvent::MouseMove, {120, 60});
    send(canvas, QEvent::MouseButtonRelease, {120, 60});
    return editor->snapshot().pixelColor(70, 60) == editor->color() ? 0 : 4;
}
