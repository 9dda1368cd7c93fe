#pragma once

#include "KORVA_Canvas.h"
#include "KORVA_EditCanvas.h"
#include "KORVA_PasteLabel.h"
#include "KORVA_Tool.h"
#include "support/Gestures.h"
#include "support/Images.h"
#include "support/SignalRecorder.h"
#include "support/TestCase.h"

/// What several tests of the engine need.
namespace fixtures {

/// Writes down what the canvas hands it, and whether a piece was still floating then. It draws nothing.
class RecordingTool : public KORVA_Tool
{
public:
    explicit RecordingTool(const QString& name = {}) : KORVA_Tool(name) {}

    using KORVA_Tool::setTextKey;
    QStringList log;

    void mousePressEvent(QMouseEvent* event) override { write("press", event); }
    void mouseReleaseEvent(QMouseEvent* event) override { write("release", event); }
    void mouseMoveEvent(QMouseEvent* event) override { write("move", event); }
    void mouseDoubleClickEvent(QMouseEvent* event) override { write("doubleClick", event); }
    void keyPressEvent(QKeyEvent* event) override { log << "keyPress " + event->text(); }
    void keyReleaseEvent(QKeyEvent* event) override { log << "keyRelease " + event->text(); }
    void enterEvent(QEvent*) override { log << "enter"; }
    void leaveEvent(QEvent*) override { log << "leave"; }
    void activating() override { log << (canvas() ? "activating" : "activating without canvas"); }
    void deactivating() override { log << (canvas() ? "deactivating" : "deactivating without canvas"); }

private:
    void write(const QString& what, const QMouseEvent* event)
    {
        const QPoint p = event->position().toPoint();
        const bool floating = !canvas()->pasteLabel()->isHidden();
        log << QString("%1 %2,%3%4").arg(what).arg(p.x()).arg(p.y()).arg(floating ? " floating" : "");
    }
};

/// Puts a tool to use in the order in which the manager does it.
inline void use(KORVA_Canvas& canvas, KORVA_Tool& tool)
{
    tool.activate(&canvas);
    canvas.activate(&tool);
}

inline void stopUsing(KORVA_Canvas& canvas, KORVA_Tool& tool)
{
    canvas.deactivate();
    tool.deactivate();
}

/// A canvas without an editor, as wide and high as the picture, which it holds. It is not modified and has
/// nothing to undo.
struct PictureCanvas : KORVA_Canvas
{
    explicit PictureCanvas(const QImage& image) : KORVA_Canvas(nullptr, image.width(), image.height())
    {
        QPixmap picture = QPixmap::fromImage(image);
        setPixmap(&picture);
        saveOldPix();
        clearModified();
    }

    /// The picture with a floating piece merged into it.
    [[nodiscard]] QImage merged() { return pixmap()->toImage(); }
    [[nodiscard]] QImage shown() { return zoomedPixmap()->toImage(); }
    [[nodiscard]] bool isFloating() const { return !pasteLabel()->isHidden(); }
    /// What undo() would bring back; found out with two undos, so the flag says 2 afterwards.
    [[nodiscard]] QImage snapshot()
    {
        undo();
        const QImage image = merged();
        undo();
        return image;
    }
};

/// What a change of the picture announces.
inline void watchPicture(support::SignalRecorder& recorder, const KORVA_Canvas& canvas)
{
    recorder.watch(&canvas, &KORVA_Canvas::sizeChanged);
    recorder.watch(&canvas, &KORVA_Canvas::pixmapChanged);
    recorder.watch(&canvas, &KORVA_Canvas::modified);
    recorder.watch(&canvas, &KORVA_Canvas::canUndo);
    recorder.watch(&canvas, &KORVA_Canvas::canRedo);
}

/// What lifting, merging, cutting and pasting announce.
inline void watchSelection(support::SignalRecorder& recorder, const KORVA_Canvas& canvas)
{
    recorder.watch(&canvas, &KORVA_Canvas::pixmapChanged);
    recorder.watch(&canvas, &KORVA_Canvas::modified);
    recorder.watch(&canvas, qOverload<bool>(&KORVA_Canvas::selection));
    recorder.watch(&canvas, &KORVA_Canvas::clipboard);
}

inline void setClipboard(const QImage& image)
{
    QGuiApplication::clipboard()->setPixmap(QPixmap::fromImage(image));
}

inline QImage clipboardImage()
{
    return QGuiApplication::clipboard()->pixmap().toImage();
}

/// Which actions of a menu are enabled, as "101".
inline QString enabledActions(const QMenu* menu)
{
    QString states;
    for (const QAction* action : menu->actions())
        states += action->isEnabled() ? '1' : '0';
    return states;
}

/// How an assertion of the engine reads on standard error, with the number of the line left open.
inline QRegularExpression assertionText(const QString& expression, const QString& source)
{
    return QRegularExpression("^Assertion \"" + QRegularExpression::escape(expression) + "\" failed in " +
                              QRegularExpression::escape(source) + ", line [1-9][0-9]*\n$");
}

/// Everything that an editor tells its host.
inline void watchEditor(support::SignalRecorder& log, const KORVA_EditCanvas& editor)
{
    log.watch(&editor, &KORVA_EditCanvas::sizeChanged);
    log.watch(&editor, &KORVA_EditCanvas::canvasChanged);
    log.watch(&editor, &KORVA_EditCanvas::pixmapChanged);
    log.watch(&editor, &KORVA_EditCanvas::modified);
    log.watch(&editor, &KORVA_EditCanvas::selection);
    log.watch(&editor, &KORVA_EditCanvas::canUndo);
    log.watch(&editor, &KORVA_EditCanvas::canRedo);
    log.watch(&editor, &KORVA_EditCanvas::canDelete);
    log.watch(&editor, &KORVA_EditCanvas::signalTextTool);
    log.watch(&editor, &KORVA_EditCanvas::TextToolClicked);
}

} // namespace fixtures
