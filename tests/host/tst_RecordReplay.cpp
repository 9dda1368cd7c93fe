#include "Commands.h"
#include "Document.h"
#include "PadWindow.h"
#include "Player.h"
#include "Recorder.h"

#include "support/Images.h"
#include "support/TestCase.h"

#include <KORVA_Canvas.h>
#include <KORVA_EditCanvas.h>
#include <KORVA_PasteLabel.h>

using support::sameImage;

namespace {

/// A person at the window: everything goes through the window system's own delivery.
class Person
{
public:
    Person(pad::PadWindow& window, quint32 seed)
        : m_window(window), m_canvas(*window.editor().canvas()), m_random(seed)
    {
    }

    void draw()
    {
        for (int i = 0; i < 12; ++i)
            doSomething();
    }

private:
    void doSomething()
    {
        switch (m_random.bounded(8)) {
        case 0:
            return choose("Undo");
        case 1:
            return choose("Redo");
        case 2:
            return choose("Paste");
        case 3:
            return choose(m_random.bounded(2) ? "Cut" : "Copy");
        case 4:
            return zoom();
        default:
            return drag();
        }
    }

    void choose(const QString& command) { trigger(m_window.commands().menu()->actions(), command); }

    void zoom()
    {
        for (QAction* action : m_window.commands().menu()->actions()) {
            if (action->menu())
                trigger(action->menu()->actions(), QString("%1 %").arg(50 * (1 + m_random.bounded(4))));
        }
    }

    static void trigger(const QList<QAction*>& actions, const QString& text)
    {
        for (QAction* action : actions) {
            if (action->text().remove('&') == text)
                action->trigger();
        }
    }

    void drag()
    {
        QPoint at = somewhere();
        const bool onPiece = m_canvas.pasteLabel()->isVisible() && m_random.bounded(4);
        if (onPiece)
            at = inside(m_canvas.pasteLabel()->geometry());
        QTest::mouseMove(m_window.windowHandle(), inWindow(at - QPoint(1, 1)));
        QTest::mouseMove(m_window.windowHandle(), inWindow(at));
        QTest::mousePress(m_window.windowHandle(), Qt::LeftButton, {}, inWindow(at));
        for (int i = m_random.bounded(6); i > 0; --i) {
            at += QPoint(m_random.bounded(-15, 16), m_random.bounded(-15, 16));
            QTest::mouseMove(m_window.windowHandle(), inWindow(at));
        }
        QTest::mouseRelease(m_window.windowHandle(), Qt::LeftButton, {}, inWindow(at));
    }

    QPoint somewhere() { return inside(m_canvas.visibleRegion().boundingRect()); }
    QPoint inside(const QRect& rect)
    {
        return rect.topLeft() + QPoint(m_random.bounded(std::max(1, rect.width())),
                                       m_random.bounded(std::max(1, rect.height())));
    }
    [[nodiscard]] QPoint inWindow(QPoint at) const { return m_canvas.mapTo(&m_window, at); }

    pad::PadWindow& m_window;
    KORVA_Canvas& m_canvas;
    QRandomGenerator m_random;
};

} // namespace

class tst_RecordReplay : public support::TestCase
{
    Q_OBJECT

private slots:
    void givesTheSamePicture_data();
    void givesTheSamePicture();
    void keysAndText();
    void menusOfCanvasAndPiece();
};

void tst_RecordReplay::givesTheSamePicture_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 20; ++seed)
        QTest::addRow("drawing %u", seed) << seed;
}

void tst_RecordReplay::givesTheSamePicture()
{
    QFETCH(quint32, seed);
    const QTemporaryDir folder;
    const QString file = folder.filePath("drawing.rec");
    const QImage stamp = support::mosaic(QSize(40, 30));

    QGuiApplication::clipboard()->setImage(stamp);
    QImage drawn;
    {
        pad::PadWindow window;
        pad::Recorder recorder(window.editor());
        QObject::connect(&window.commands(), &pad::Commands::performed, &recorder, &pad::Recorder::write);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QVERIFY(!recorder.start(file));
        Person(window, seed).draw();
        drawn = window.editor().canvas()->pixmap()->toImage();
        QVERIFY(!recorder.finish());
    }
    QVERIFY(support::inkCount(drawn) > 0);

    QGuiApplication::clipboard()->setImage(stamp);
    pad::PadWindow again;
    again.show();
    pad::Player player(again.editor(), again.document());
    const auto recording = pad::Recording::read(file);
    QVERIFY(std::holds_alternative<pad::Recording>(recording));
    QVERIFY(!player.play(std::get<pad::Recording>(recording)));
    QVERIFY(sameImage(again.editor().canvas()->pixmap()->toImage(), drawn));
}

void tst_RecordReplay::keysAndText()
{
    const QTemporaryDir folder;
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    pad::Recorder recorder(editor);
    QVERIFY(!recorder.start(folder.filePath("keys.rec")));
    QTest::keyClick(editor.canvas(), 'a');
    QTest::keyClick(editor.canvas(), 'B', Qt::ShiftModifier);
    QTest::keyClick(editor.canvas(), '"');
    QTest::keyClick(editor.canvas(), Qt::Key_Return);
    QTest::keyClick(editor.canvas(), Qt::Key_Backspace);
    QTest::keyClick(editor.canvas(), Qt::Key_Left, Qt::ShiftModifier);
    QVERIFY(!recorder.finish());
    QFile file(folder.filePath("keys.rec"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(QString::fromUtf8(file.readAll()).split('\n'),
             QStringList({"type \"a\"", "key Shift", "type \"B\"", "type \"\\\"\"", "key Return",
                          "key Backspace", "key Shift", "key Shift+Left", ""}));
}

void tst_RecordReplay::menusOfCanvasAndPiece()
{
    const QTemporaryDir folder;
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    QGuiApplication::clipboard()->setImage(support::mosaic(QSize(40, 30)));
    editor.canvas()->paste();
    pad::Recorder recorder(editor);
    QVERIFY(!recorder.start(folder.filePath("menus.rec")));
    editor.canvas()->slotSelection(true);
    editor.canvas()->contextMenu()->actions().at(1)->trigger();
    editor.canvas()->pasteLabel()->menu()->actions().at(0)->trigger();
    editor.canvas()->pasteLabel()->menu()->actions().at(1)->trigger();
    editor.canvas()->contextMenu()->actions().at(2)->trigger();
    QVERIFY(!recorder.finish());
    QFile file(folder.filePath("menus.rec"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), "copy\ncopy\ncut\npaste\n");
}

int main(int argc, char** argv)
{
    return support::run<tst_RecordReplay>(argc, argv);
}

#include "tst_RecordReplay.moc"
