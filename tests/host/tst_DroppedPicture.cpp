#include "Documents.h"
#include "DragOut.h"
#include "PadWindow.h"
#include "Platform.h"
#include "StatusLine.h"
#include "support/Images.h"
#include "support/PadOnScreen.h"
#include "support/PictureFiles.h"
#include "support/TestCase.h"

#include <KORVA_Canvas.h>
#include <KORVA_EditCanvas.h>
#include <KORVA_PasteLabel.h>

namespace {

constexpr int no = 1;
constexpr int cancel = 2;

QImage picture(const QColor& color)
{
    return support::sheet(QSize(40, 30), color);
}

/// Keeps what would be dragged.
class Dragging : public pad::DragOut
{
public:
    using DragOut::DragOut;
    mutable int drags = 0;
    mutable QImage picture;
    mutable QString file;

protected:
    void run(QDrag& drag) const override
    {
        ++drags;
        picture = qvariant_cast<QImage>(drag.mimeData()->imageData());
        file = drag.mimeData()->urls().value(0).toLocalFile();
        drag.deleteLater();
    }
};

} // namespace

/// A file that is dragged onto the window, and the drawing that is dragged out of it.
class tst_DroppedPicture : public support::TestCase
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void isOpened();
    void firstPictureOfSeveralIsOpened();
    void anythingElseIsNotTaken_data();
    void anythingElseIsNotTaken();
    void nothingIsTakenWhileADialogIsOpen();
    void changesAreAskedAbout();
    void withShiftItIsAStamp();
    void openTextStaysUnderAStamp();
    void openTextGoesWithItsDrawing_data();
    void openTextGoesWithItsDrawing();

    void drawingIsDraggedOut_data();
    void drawingIsDraggedOut();
    void drawingIsNotDraggedOntoItself();
    void aTapDragsNothing();

private:
    /// Opens a text and types a word.
    void type() const;
    /// Takes hold of the status line, and moves so far to the side.
    void pull(int pixels) const;

    [[nodiscard]] QString path(const char* name) const { return m_folder->filePath(name); }
    [[nodiscard]] QImage drawing() const { return m_window->editor().snapshot(); }
    /// Whether the window takes what is dragged; then it is dropped.
    bool drop(const QList<QUrl>& urls, Qt::KeyboardModifiers keys = {})
    {
        QMimeData data;
        data.setUrls(urls);
        constexpr QPoint at(100, 100);
        QDragEnterEvent enter(at, Qt::CopyAction, &data, Qt::LeftButton, keys);
        enter.ignore();
        QApplication::sendEvent(m_window.get(), &enter);
        if (!enter.isAccepted())
            return false;
        QDropEvent event(at, Qt::CopyAction, &data, Qt::LeftButton, keys);
        QApplication::sendEvent(m_window.get(), &event);
        QCoreApplication::processEvents(); // it is opened when the drop is over
        return event.isAccepted();
    }
    [[nodiscard]] QUrl url(const char* name) const { return QUrl::fromLocalFile(path(name)); }

    std::optional<QTemporaryDir> m_folder;
    std::unique_ptr<pad::PadWindow> m_window;
    pad::Platform* m_platform = nullptr;
    pad::Script m_script;
};

void tst_DroppedPicture::init()
{
    support::TestCase::init();
    m_folder.emplace();
    QVERIFY(picture(Qt::red).save(path("red.png")));
    QVERIFY(picture(Qt::blue).save(path("it's blue.png")));
    support::write(path("notes.txt"), "no picture");
    m_script = {};
    m_platform = &pad::Platform::install();
    m_platform->obey(&m_script);
    m_window = std::make_unique<pad::PadWindow>(*m_platform);
    m_window->show();
}

void tst_DroppedPicture::cleanup()
{
    m_window.reset();
    pad::Platform::install();
}

void tst_DroppedPicture::isOpened()
{
    QVERIFY(drop({url("it's blue.png")}));
    QVERIFY(support::sameImage(drawing().convertToFormat(QImage::Format_RGB32),
                               picture(Qt::blue).convertToFormat(QImage::Format_RGB32)));
    QCOMPARE(m_window->editor().fileName(), path("it's blue.png"));
    QCOMPARE(m_window->windowTitle(), "it's blue.png[*] - Korva");
    QVERIFY(!m_window->isWindowModified());
}

void tst_DroppedPicture::firstPictureOfSeveralIsOpened()
{
    QVERIFY(
        drop({QUrl("https://localhost/red.png"), url("notes.txt"), url("red.png"), url("it's blue.png")}));
    QCOMPARE(m_window->editor().fileName(), path("red.png"));
}

void tst_DroppedPicture::anythingElseIsNotTaken_data()
{
    QTest::addColumn<QString>("dragged");
    QTest::newRow("nothing") << "";
    QTest::newRow("text file") << "notes.txt";
    QTest::newRow("picture elsewhere") << "https://localhost/red.png";
}

void tst_DroppedPicture::anythingElseIsNotTaken()
{
    QFETCH(QString, dragged);
    QList<QUrl> urls;
    if (!dragged.isEmpty())
        urls.append(QUrl::fromUserInput(dragged, m_folder->path()));
    QCOMPARE(urls.value(0).isLocalFile(), dragged == "notes.txt");
    const QImage before = drawing();
    QVERIFY(!drop(urls));
    QCOMPARE(drawing(), before);
    QCOMPARE(m_window->editor().fileName(), "");
}

void tst_DroppedPicture::nothingIsTakenWhileADialogIsOpen()
{
    QDialog dialog(m_window.get());
    dialog.open();
    QVERIFY(!drop({url("red.png")}));
}

void tst_DroppedPicture::changesAreAskedAbout()
{
    QVERIFY(drop({url("red.png")}));
    m_window->editor().canvas()->markModified();
    m_script.answer = cancel;
    QVERIFY(drop({url("it's blue.png")}));
    QVERIFY2(!m_script.answer, "it was not asked");
    QCOMPARE(m_window->editor().fileName(), path("red.png"));
    QVERIFY(m_window->editor().isModified());

    m_script.answer = no;
    QVERIFY(drop({url("it's blue.png")}));
    QCOMPARE(m_window->editor().fileName(), path("it's blue.png"));
}

void tst_DroppedPicture::type() const
{
    m_window->editor().selectTool(KORVA_TOOL_TEXT);
    QTest::mouseClick(m_window->editor().canvas(), Qt::LeftButton, {}, {20, 120});
    QTest::keyClicks(m_window->editor().canvas(), "word");
}

void tst_DroppedPicture::openTextStaysUnderAStamp()
{
    type();
    QVERIFY(drop({url("it's blue.png")}, Qt::ShiftModifier));
    QVERIFY(support::inkCount(drawing().copy(15, 100, 60, 40)) > 10);
}

void tst_DroppedPicture::openTextGoesWithItsDrawing_data()
{
    QTest::addColumn<KORVA_Manners>("manners");
    QTest::newRow("classic") << KORVA_Manners();
    QTest::newRow("modern") << KORVA_Manners::modern();
}

void tst_DroppedPicture::openTextGoesWithItsDrawing()
{
    QFETCH(const KORVA_Manners, manners);
    m_window->editor().setManners(manners);
    type();
    m_script.answer = no;
    QVERIFY(drop({url("it's blue.png")}));
    QVERIFY(!m_window->editor().hasChanges());
    m_window->editor().selectTool(KORVA_TOOL_PENCIL); // would commit it
    QVERIFY(support::sameImage(drawing().convertToFormat(QImage::Format_RGB32),
                               picture(Qt::blue).convertToFormat(QImage::Format_RGB32)));
}

void tst_DroppedPicture::withShiftItIsAStamp()
{
    QSignalSpy performed(&m_window->documents(), &pad::Documents::performed);
    QVERIFY(drop({url("it's blue.png")}, Qt::ShiftModifier));
    QCOMPARE(m_window->editor().fileName(), "");
    QVERIFY(!m_window->editor().canvas()->pasteLabel()->isHidden());
    const QImage seen = drawing();
    QCOMPARE(seen.size(), QSize(200, 170)); // the new drawing, on which it lies
    int blue = 0;
    for (int y = 0; y < seen.height(); ++y)
        for (int x = 0; x < seen.width(); ++x)
            blue += seen.pixelColor(x, y) == QColor(Qt::blue);
    QCOMPARE(blue, 40 * 30);
    QCOMPARE(performed.size(), 1);
    const auto command = qvariant_cast<pad::Command>(performed.at(0).at(0));
    QCOMPARE(command.verb, pad::Verb::Stamp);
    QCOMPARE(command.text, path("it's blue.png"));
}

void tst_DroppedPicture::pull(int pixels) const
{
    auto* status = m_window->findChild<pad::StatusLine*>();
    QWindow* window = m_window->windowHandle();
    const QPoint from = status->mapTo(m_window.get(), status->rect().center());
    QTest::mousePress(window, Qt::LeftButton, {}, from);
    QTest::mouseMove(window, from + QPoint(pixels, 0));
    QTest::mouseRelease(window, Qt::LeftButton, {}, from + QPoint(pixels, 0));
    QTest::mouseMove(window, from + QPoint(100, 0)); // without a button
}

void tst_DroppedPicture::drawingIsDraggedOut_data()
{
    QTest::addColumn<QString>("opened");
    QTest::addColumn<QString>("name");
    QTest::newRow("new drawing") << ""
                                 << "drawing.png";
    QTest::newRow("file") << "it's blue.png"
                          << "it's blue.png";
}

void tst_DroppedPicture::drawingIsDraggedOut()
{
    QFETCH(const QString, opened);
    QFETCH(const QString, name);
    if (!opened.isEmpty())
        QVERIFY(drop({url(opened.toUtf8())}));
    const QImage blank = drawing();
    KORVA_Canvas* canvas = m_window->editor().canvas();
    QTest::mousePress(canvas, Qt::LeftButton, {}, {5, 5});
    QTest::mouseMove(canvas, {25, 10});
    QTest::mouseRelease(canvas, Qt::LeftButton, {}, {25, 10});
    QVERIFY(!support::sameImage(drawing(), blank));
    m_window->editor().selectAll();
    QTest::keyClick(canvas, Qt::Key_Right, Qt::ShiftModifier); // a piece floats
    const QRect piece = m_window->editor().canvas()->pasteLabel()->geometry();
    const QImage before = drawing();
    const bool hadChanges = m_window->editor().hasChanges();
    auto dragging = std::make_unique<Dragging>(m_window->editor(), m_window->documents(),
                                               m_window->findChild<pad::StatusLine*>());
    pull(QApplication::startDragDistance());
    QCOMPARE(dragging->drags, 1);
    const auto rgb = [](const QImage& image) { return image.convertToFormat(QImage::Format_RGB32); };
    QVERIFY(support::sameImage(rgb(dragging->picture), rgb(before)));
    const QString file = dragging->file;
    QVERIFY(support::sameImage(rgb(QImage(file, "PNG")), rgb(before)));
    QCOMPARE(QFileInfo(file).fileName(), name);
    QVERIFY(file != path(name.toUtf8()));
    QVERIFY(support::sameImage(drawing(), before));
    QCOMPARE(m_window->editor().hasChanges(), hadChanges);
    QCOMPARE(m_window->editor().canvas()->pasteLabel()->geometry(), piece);
    dragging.reset(); // as at the end of the program
    QVERIFY(!QFile::exists(file));
}

void tst_DroppedPicture::aTapDragsNothing()
{
    const Dragging dragging(m_window->editor(), m_window->documents(),
                            m_window->findChild<pad::StatusLine*>());
    pull(0);
    pull(QApplication::startDragDistance() - 1);
    QCOMPARE(dragging.drags, 0);
}

/// On a real screen, where a drag goes somewhere.
void tst_DroppedPicture::drawingIsNotDraggedOntoItself()
{
    support::PadOnScreen pad(m_folder->path());
    const QString recording = path("drag.rec");
    QVERIFY(pad.server().isReady() && pad.start({"--record", recording, path("red.png")}));
    QRect place;
    for (const support::XServer::Window& window : pad.server().windows())
        if (window.title.endsWith(" - Korva"))
            place = window.place;
    const QByteArray before = support::contents(recording);
    QVERIFY(before.contains("manners modern"));
    const QPoint status = place.topLeft() + QPoint(120, 245);
    pad.server().moveTo(status);
    pad.server().press();
    for (int y = 0; y <= 140; y += 20) {
        pad.server().moveTo(status - QPoint(0, y));
        QTest::qWait(30);
    }
    QTest::qWait(200);
    pad.server().release();
    QTest::qWait(500);
    QCOMPARE(pad.title(), "red.png - Korva");
    QVERIFY(support::contents(recording) == before); // nothing was opened
    pad.click({120, 130});                           // the pad goes on: it draws
    QVERIFY(pad.waitFor([&] { return support::contents(recording).contains("press"); }));
}

int main(int argc, char** argv)
{
    return support::run<tst_DroppedPicture>(argc, argv);
}

#include "tst_DroppedPicture.moc"
