#include "Documents.h"
#include "PadWindow.h"
#include "Platform.h"
#include "support/Images.h"
#include "support/PictureFiles.h"
#include "support/TestCase.h"

#include <KORVA_Canvas.h>
#include <KORVA_EditCanvas.h>

namespace {

constexpr int no = 1;
constexpr int cancel = 2;

QImage picture(const QColor& color)
{
    return support::sheet(QSize(40, 30), color);
}

} // namespace

/// A file that is dragged onto the window.
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

private:
    [[nodiscard]] QString path(const char* name) const { return m_folder->filePath(name); }
    [[nodiscard]] QImage drawing() const { return m_window->editor().snapshot(); }
    /// Whether the window takes what is dragged; then it is dropped.
    bool drop(const QList<QUrl>& urls)
    {
        QMimeData data;
        data.setUrls(urls);
        constexpr QPoint at(100, 100);
        QDragEnterEvent enter(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        enter.ignore();
        QApplication::sendEvent(m_window.get(), &enter);
        if (!enter.isAccepted())
            return false;
        QDropEvent event(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
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

int main(int argc, char** argv)
{
    return support::run<tst_DroppedPicture>(argc, argv);
}

#include "tst_DroppedPicture.moc"
