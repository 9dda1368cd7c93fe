#include "KORVA_PreviewWidget.h"
#include "support/Animation.h"
#include "support/Images.h"
#include "support/TestCase.h"

namespace {

constexpr QSize usual(204, 171);

QColor middle(QWidget& widget)
{
    return widget.grab().toImage().pixelColor(widget.rect().center());
}

} // namespace

/// The preview as a part of a host's window.
class tst_PreviewWidget : public support::TestCase
{
    Q_OBJECT

    [[nodiscard]] QString file(const QString& name, const QImage& image) const
    {
        const QString path = m_folder.filePath(name);
        return image.save(path) ? path : QString();
    }
    /// What stands where nothing is shown.
    [[nodiscard]] static QColor ground(const QWidget& widget)
    {
        return widget.palette().color(QPalette::Window);
    }

    QTemporaryDir m_folder;

private slots:
    void showsAFileOnceItIsSeen();
    void showsAnotherFile();
    void aFileThatGrowsIsReadAgain();
    void showsAnImage();
    void marksWhatCannotBeRead();
    void emptyShowsNothing();
    void animationsPlay();
};

void tst_PreviewWidget::showsAFileOnceItIsSeen()
{
    const QString red = file("red.png", support::sheet(QSize(40, 30), Qt::red));
    KORVA_PreviewWidget preview;
    QCOMPARE(preview.sizeHint(), usual);
    preview.resize(usual);
    preview.setFileName(red);
    QCOMPARE(preview.fileName(), red);
    preview.show();
    QTRY_COMPARE(middle(preview), QColor(Qt::red));
    // Not enlarged.
    QCOMPARE(preview.grab().toImage().pixelColor(usual.width() / 2 - 21, usual.height() / 2),
             ground(preview));
}

void tst_PreviewWidget::showsAnotherFile()
{
    KORVA_PreviewWidget preview;
    preview.resize(usual);
    preview.setFileName(file("red.png", support::sheet(QSize(40, 30), Qt::red)));
    preview.show();
    QTRY_COMPARE(middle(preview), QColor(Qt::red));
    preview.setFileName(file("blue.png", support::sheet(QSize(40, 30), Qt::blue)));
    QTRY_COMPARE(middle(preview), QColor(Qt::blue));
}

/// A JPEG is read no larger than it is shown.
void tst_PreviewWidget::aFileThatGrowsIsReadAgain()
{
    const QImage large = support::mosaic(QSize(400, 300));
    const QString name = file("large.jpg", large);
    KORVA_PreviewWidget preview;
    preview.resize(40, 30);
    preview.setFileName(name);
    preview.show();
    QTRY_VERIFY(middle(preview) != ground(preview));
    preview.resize(large.size());
    QTRY_VERIFY(preview.grab().toImage().pixelColor(0, 0) != ground(preview));

    KORVA_PreviewWidget other;
    other.resize(large.size());
    other.setFileName(name);
    other.show();
    QTRY_VERIFY(middle(other) != ground(other));
    QVERIFY(support::sameImage(preview.grab(), other.grab().toImage()));
}

void tst_PreviewWidget::showsAnImage()
{
    KORVA_PreviewWidget preview;
    preview.resize(usual);
    preview.setFileName(file("red.png", support::sheet(QSize(40, 30), Qt::red)));
    preview.setImage(support::sheet(QSize(40, 30), Qt::green));
    QVERIFY(preview.fileName().isEmpty());
    preview.show();
    QCoreApplication::processEvents(); // a file would be read now
    QCOMPARE(middle(preview), QColor(Qt::green));
    preview.setImage(QImage());
    QCOMPARE(middle(preview), ground(preview));
}

void tst_PreviewWidget::marksWhatCannotBeRead()
{
    KORVA_PreviewWidget preview;
    preview.resize(usual);
    preview.setFileName(m_folder.filePath("missing.png"));
    preview.show();
    QCOMPARE(middle(preview), ground(preview));
    QTRY_VERIFY(middle(preview) != ground(preview));
}

void tst_PreviewWidget::emptyShowsNothing()
{
    KORVA_PreviewWidget preview;
    preview.resize(usual);
    preview.setFileName(file("red.png", support::sheet(QSize(40, 30), Qt::red)));
    preview.show();
    QTRY_COMPARE(middle(preview), QColor(Qt::red));
    preview.setFileName(QString());
    QCOMPARE(middle(preview), ground(preview));
    QCoreApplication::processEvents(); // a mark would come now
    QCOMPARE(middle(preview), ground(preview));
}

void tst_PreviewWidget::animationsPlay()
{
    const QString name = m_folder.filePath("animation.gif");
    QVERIFY(support::writeGif(name, QSize(40, 30), {{Qt::red, 50}, {Qt::blue, 50}}));
    KORVA_PreviewWidget preview;
    preview.resize(usual);
    preview.setFileName(name);
    preview.show();
    QTRY_COMPARE(middle(preview), QColor(Qt::red));
    QTRY_COMPARE(middle(preview), QColor(Qt::blue));
    QTRY_COMPARE(middle(preview), QColor(Qt::red));
    preview.setImage(support::sheet(QSize(40, 30), Qt::green));
    QTest::qWait(120); // two frames more
    QCOMPARE(middle(preview), QColor(Qt::green));
}

int main(int argc, char** argv)
{
    return support::run<tst_PreviewWidget>(argc, argv);
}

#include "tst_PreviewWidget.moc"
