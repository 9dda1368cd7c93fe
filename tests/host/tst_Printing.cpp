#include "Commands.h"
#include "CopyView.h"
#include "Documents.h"
#include "PadWindow.h"
#include "Platform.h"
#include "PrintPage.h"

#include "support/Images.h"
#include "support/Modal.h"
#include "support/PictureFiles.h"
#include "support/TestCase.h"

#include <KORVA_Canvas.h>
#include <KORVA_EditCanvas.h>
#include <KORVA_PasteLabel.h>

#include <QPrinter>

#include <cerrno>

using support::button;
using support::contents;
using support::labels;
using support::whenOpen;

namespace {

constexpr QSize drawingSize(160, 120);
constexpr int slow = 120'000; // ms; for what another thread does, with sanitizers, on a busy machine

/// What is on a page of a PDF file.
struct Sheet
{
    QSizeF paper; ///< in points
    QRectF place; ///< of the picture, in points from the bottom left
    QImage picture;
    int pictures = 0; ///< how often one is drawn
};

QByteArray streamOf(const QByteArray& object)
{
    const qsizetype start = object.indexOf("stream\n") + 7;
    const QByteArray data = object.mid(start, object.lastIndexOf("endstream") - start);
    if (!object.contains("/FlateDecode"))
        return data;
    constexpr char someLength[] = {0, 16, 0, 0}; // which is only a guess for who unpacks it
    return qUncompress(QByteArray(someLength, 4) + data);
}

int numberOf(const QByteArray& object, const QByteArray& key)
{
    const qsizetype at = object.indexOf(key + ' ') + key.size() + 1;
    return object.mid(at, object.indexOf('\n', at) - at).toInt();
}

/// Follows the transformations of a page to where its picture is drawn.
void follow(const QByteArray& page, Sheet& sheet)
{
    QList<QTransform> saved;
    QTransform now;
    QList<double> numbers;
    for (const QByteArray& word : page.simplified().split(' ')) {
        bool isNumber = false;
        const double number = word.toDouble(&isNumber);
        if (isNumber) {
            numbers << number;
            continue;
        }
        if (word == "q") {
            saved << now;
        } else if (word == "Q") {
            now = saved.takeLast();
        } else if (word == "cm") {
            const auto at = [&](int i) { return numbers.at(numbers.size() - 6 + i); };
            now = QTransform(at(0), at(1), at(2), at(3), at(4), at(5)) * now;
        } else if (word == "Do") {
            sheet.place = now.mapRect(QRectF(0, 0, 1, 1));
            ++sheet.pictures;
        }
        numbers.clear();
    }
}

/// Reads what a program that prints needs, and no more.
Sheet read(const QByteArray& pdf)
{
    Sheet sheet;
    const QRegularExpressionMatch box =
        QRegularExpression("/MediaBox \\[0 0 ([\\d.]+) ([\\d.]+)").match(QString::fromLatin1(pdf));
    sheet.paper = QSizeF(box.captured(1).toDouble(), box.captured(2).toDouble());
    qsizetype start = 0;
    for (qsizetype end = 0; (end = pdf.indexOf("\nendobj", start)) >= 0; start = end + 7) {
        const QByteArray object = pdf.mid(start, end - start);
        if (object.contains("/Subtype /Image")) {
            const QSize size(numberOf(object, "/Width"), numberOf(object, "/Height"));
            const QByteArray bytes = streamOf(object);
            const bool isGray = object.contains("/DeviceGray");
            const qsizetype line = qsizetype(size.width()) * (isGray ? 1 : 3);
            if (bytes.size() >= line * size.height())
                sheet.picture =
                    QImage(reinterpret_cast<const uchar*>(bytes.constData()), size.width(), size.height(),
                           line, isGray ? QImage::Format_Grayscale8 : QImage::Format_RGB888)
                        .copy();
        } else if (object.contains("stream\n") && streamOf(object).contains(" Do\n")) {
            follow(streamOf(object), sheet);
        }
    }
    return sheet;
}

QImage inRgb(const QImage& picture)
{
    QImage pixels = picture.convertToFormat(QImage::Format_RGB32);
    pixels.setColorSpace({});
    return pixels;
}

bool isReady(const QDialog& dialog)
{
    return QTest::qWaitFor([&] { return button(dialog, "Print")->isEnabled(); }, slow);
}

void click(QAbstractButton* key)
{
    QVERIFY(key && key->isVisible());
    QTest::mouseClick(key, Qt::LeftButton);
}

/// Takes the proposed name in the dialog that opens next; the box that follows says this.
void whenNamed(QStringList& told)
{
    whenOpen([&told](QDialog& naming) {
        whenOpen([&told](QDialog& box) {
            told = labels(box);
            box.accept();
        });
        click(button(naming, "Save"));
    });
}

} // namespace

/// The drawing on paper: what is seen is what is printed, and the drawing stays what it is.
class tst_Printing : public support::TestCase
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void pictureLiesInTheMiddle_data();
    void pictureLiesInTheMiddle();
    void sheetTurnsWithThePicture();
    void sheetIsSeenBefore();
    void pdfIsTheDrawing_data();
    void pdfIsTheDrawing();
    void hugePictureIsPrintedWhole();
    void isCancelled();
    void fullDiskIsTold();
    void printerPrints();
    void printerThatFailsIsTold();
    void printerThatTakesNothing();

private:
    [[nodiscard]] QStringList files() const { return QDir(m_folder->path()).entryList(QDir::Files); }
    [[nodiscard]] KORVA_EditCanvas& editor() const { return m_window->editor(); }
    void choose(const char* keys) const;
    /// Runs `work` in the dialog once it shows the sheet.
    void print(const std::function<void(QDialog&)>& work) const;
    /// The same with this printer.
    void printOn(const pad::Printer& printer, const std::function<void(QDialog&)>& work);

    std::unique_ptr<QTemporaryDir> m_folder;
    pad::Platform* m_platform = nullptr;
    std::unique_ptr<pad::PadWindow> m_window;
};

void tst_Printing::init()
{
    support::TestCase::init();
    m_folder = std::make_unique<QTemporaryDir>();
    m_platform = &pad::Platform::install();
    const QString name = m_folder->filePath("lake.png");
    QVERIFY(support::mosaic(drawingSize).save(name));
    m_window = std::make_unique<pad::PadWindow>(*m_platform, name);
    m_window->show();
}

void tst_Printing::cleanup()
{
    QThreadPool::globalInstance()->waitForDone();
    m_window.reset();
    UTIL_Platform::install(nullptr);
}

void tst_Printing::choose(const char* keys) const
{
    for (QAction* action : m_window->actions())
        if (action->shortcut() == QKeySequence(keys))
            action->trigger();
}

void tst_Printing::print(const std::function<void(QDialog&)>& work) const
{
    bool wasOpen = false;
    whenOpen([&](QDialog& dialog) {
        wasOpen = true;
        QVERIFY(isReady(dialog));
        work(dialog);
    });
    choose("Ctrl+P");
    QVERIFY(wasOpen);
}

void tst_Printing::printOn(const pad::Printer& printer, const std::function<void(QDialog&)>& work)
{
    pad::Copies copies(editor(), m_window->documents(), m_window.get());
    copies.setPrinterSource([&printer] { return std::optional(printer); });
    bool wasOpen = false;
    whenOpen([&](QDialog& dialog) {
        wasOpen = true;
        QVERIFY(isReady(dialog));
        work(dialog);
    });
    copies.print("Print");
    QVERIFY(wasOpen);
}

void tst_Printing::pictureLiesInTheMiddle_data()
{
    QTest::addColumn<QSize>("picture");
    QTest::addColumn<QSize>("size");
    QTest::newRow("so many whole dots") << QSize(240, 320) << QSize(240, 320) * 18;
    QTest::newRow("no pixel larger than a millimetre") << QSize(16, 12) << QSize(16, 12) * 23;
    QTest::newRow("one pixel") << QSize(1, 1) << QSize(23, 23);
    QTest::newRow("as large as it fits") << QSize(1500, 1000) << QSize(4500, 3000);
    QTest::newRow("smaller") << QSize(9000, 3000) << QSize(4500, 1500);
    QTest::newRow("a line") << QSize(1, 20'000) << QSize(1, 6000);
}

void tst_Printing::pictureLiesInTheMiddle()
{
    QFETCH(const QSize, picture);
    QFETCH(const QSize, size);
    constexpr QSize room(4500, 6000);
    const QRect place = pad::printpage::placeOf(picture, room);
    QCOMPARE(place.size(), size);
    QCOMPARE(place.topLeft(),
             QPoint((room.width() - size.width()) / 2, (room.height() - size.height()) / 2));
}

void tst_Printing::sheetTurnsWithThePicture()
{
    const auto paper = [](QSize picture) {
        return pad::printpage::layoutFor(picture, QPageSize(QPageSize::A4))
            .fullRect(QPageLayout::Millimeter)
            .size();
    };
    QCOMPARE(paper({3, 4}), QSizeF(210, 297));
    QCOMPARE(paper({4, 4}), QSizeF(210, 297));
    QCOMPARE(paper({4, 3}), QSizeF(297, 210));
}

void tst_Printing::sheetIsSeenBefore()
{
    print([](QDialog& dialog) {
        QCOMPARE(labels(dialog), QStringList({"Print", pad::printpage::usualPaper().name()}));
        QWidget* sheet = dialog.findChild<pad::CopyView*>()->viewport()->findChild<QWidget*>();
        const QImage seen = sheet->grab().toImage();
        QVERIFY(seen.width() > seen.height()); // as the drawing
        const QSize sheetSize = pad::printpage::layoutFor(drawingSize, pad::printpage::usualPaper())
                                    .fullRectPixels(pad::printpage::resolution)
                                    .size();
        QCOMPARE(seen.pixelColor(2, 2), QColor(Qt::white));
        QRect ink;
        for (int y = 0; y < seen.height(); ++y)
            for (int x = 0; x < seen.width(); ++x)
                if (seen.pixelColor(x, y) != QColor(Qt::white))
                    ink |= QRect(x, y, 1, 1);
        const QPoint off = ink.center() - seen.rect().center();
        QVERIFY2(off.manhattanLength() <= 3, qPrintable(QString::number(off.manhattanLength())));
        constexpr double proportions = double(drawingSize.width()) / drawingSize.height();
        QVERIFY(qAbs(ink.width() - ink.height() * proportions) <= 4);
        const double wanted = pad::printpage::placeOf(drawingSize, sheetSize).height();
        QVERIFY(qAbs(ink.height() / (wanted / sheetSize.height() * seen.height()) - 1) < 0.04);
        dialog.reject();
    });
    QCOMPARE(files(), QStringList("lake.png"));
}

void tst_Printing::pdfIsTheDrawing_data()
{
    QTest::addColumn<bool>("isTyping");
    QTest::addColumn<bool>("isLifted");
    QTest::newRow("drawing") << false << false;
    QTest::newRow("a piece floats") << false << true;
    QTest::newRow("text is open") << true << false;
}

void tst_Printing::pdfIsTheDrawing()
{
    QFETCH(const bool, isTyping);
    QFETCH(const bool, isLifted);
    KORVA_Canvas& canvas = *editor().canvas();
    if (isLifted) {
        choose("Ctrl+A");
        QTest::keyClick(&canvas, Qt::Key_Right, Qt::ShiftModifier);
    }
    if (isTyping) {
        choose("T");
        QTest::mouseClick(&canvas, Qt::LeftButton, {}, {20, 20});
        QTest::keyClicks(&canvas, "Wm");
    }
    const QImage drawing = editor().snapshot();
    const auto state = [&] {
        return std::tuple(editor().hasChanges(), m_window->isWindowModified(), canvas.undoFlag(),
                          editor().fileName(), canvas.pasteLabel()->isHidden(),
                          canvas.pasteLabel()->geometry());
    };
    const auto before = state();
    QSignalSpy modified(&editor(), &KORVA_EditCanvas::modified);
    QSignalSpy performed(&m_window->commands(), &pad::Commands::performed);
    QStringList told;
    print([&](QDialog& dialog) {
        whenNamed(told);
        click(button(dialog, "Print"));
    });
    QVERIFY(state() == before);
    QVERIFY(support::sameImage(editor().snapshot(), drawing));
    QCOMPARE(modified.size() + performed.size(), 0);
    QVERIFY2(told.value(0).startsWith("lake.pdf was saved: "), qPrintable(told.join(';')));
    QCOMPARE(files(), QStringList({"lake.pdf", "lake.png"}));

    const Sheet sheet = read(contents(m_folder->filePath("lake.pdf")));
    QCOMPARE(sheet.pictures, 1);
    QVERIFY(support::sameImage(inRgb(sheet.picture), inRgb(drawing)));
    QVERIFY(sheet.paper.width() > sheet.paper.height());
    const QPointF off = sheet.place.center() - QRectF(QPointF(), sheet.paper).center();
    QVERIFY2(off.manhattanLength() < 1, qPrintable(QString::number(off.manhattanLength())));
    constexpr double dot = 72. / pad::printpage::resolution;
    const double pixel = sheet.place.width() / drawingSize.width();
    QVERIFY(qAbs(sheet.place.height() / drawingSize.height() - pixel) < dot / 100);
    QVERIFY(pixel > 2 && pixel < 2.84);                      // up to a millimetre
    QVERIFY(qAbs(pixel / dot - qRound(pixel / dot)) < 0.01); // of whole dots
}

void tst_Printing::hugePictureIsPrintedWhole()
{
    const QImage picture = support::mosaic({1700, 3000});
    const QPageLayout layout = pad::printpage::layoutFor(picture.size(), QPageSize(QPageSize::A4));
    const Sheet sheet = read(pad::printpage::pdf(picture, layout));
    QVERIFY(support::sameImage(inRgb(sheet.picture), inRgb(picture)));
    const QRectF room = layout.paintRect(QPageLayout::Point);
    QVERIFY(room.adjusted(-1, -1, 1, 1).contains(sheet.place));
    QVERIFY(sheet.place.height() > room.height() - 2);
}

void tst_Printing::isCancelled()
{
    print([](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    QCOMPARE(files(), QStringList("lake.png"));
    QVERIFY(!editor().hasChanges());
}

void tst_Printing::fullDiskIsTold()
{
    m_window->documents().setWriter([](const QByteArray&, const QString& fileName, const pad::MayReplace&) {
        return std::optional(pad::WriteError{ENOSPC, "No space left on device", fileName});
    });
    QStringList told;
    int opened = 0;
    print([&](QDialog& dialog) {
        ++opened;
        auto* watch = new QTimer(&dialog);
        connect(watch, &QTimer::timeout, &dialog, [&, watch] {
            if (told.isEmpty() || !dialog.isVisible() || QApplication::activeModalWidget() != &dialog)
                return;
            watch->deleteLater();
            ++opened; // it has come back
            dialog.reject();
        });
        watch->start(10);
        whenNamed(told);
        click(button(dialog, "Print"));
    });
    QCOMPARE(told, QStringList("Not saved: The disk is full."));
    QCOMPARE(opened, 2);
    QCOMPARE(files(), QStringList("lake.png"));
}

void tst_Printing::printerPrints()
{
    const QString file = m_folder->filePath("paper");
    const pad::Printer printer{"Office", QPageSize(QPageSize::A5),
                               [&file](const QImage& picture, const QPageLayout& layout) {
                                   QPrinter device;
                                   device.setOutputFormat(QPrinter::PdfFormat);
                                   device.setOutputFileName(file);
                                   return pad::Printer::printOn(device, picture, layout);
                               }};
    printOn(printer, [](QDialog& dialog) {
        QVERIFY(button(dialog, "Printer")->isChecked());
        QCOMPARE(labels(dialog).constLast(), "Office\n" + QPageSize::name(QPageSize::A5));
        click(button(dialog, "Print"));
    });
    const Sheet sheet = read(contents(file));
    QCOMPARE(sheet.paper.toSize(), QSize(595, 420)); // A5
    QVERIFY(support::sameImage(inRgb(sheet.picture), inRgb(editor().snapshot())));
    const QPointF off = sheet.place.center() - QRectF(QPointF(), sheet.paper).center();
    QVERIFY(off.manhattanLength() < 1);
}

void tst_Printing::printerThatFailsIsTold()
{
    const pad::Printer printer{"Office", QPageSize(QPageSize::A4),
                               [](const QImage&, const QPageLayout&) { return false; }};
    QStringList told;
    QStringList saved;
    printOn(printer, [&](QDialog& dialog) {
        auto* watch = new QTimer(&dialog);
        connect(watch, &QTimer::timeout, &dialog, [&, watch] {
            if (told.isEmpty() || !dialog.isVisible() || QApplication::activeModalWidget() != &dialog)
                return;
            watch->deleteLater();
            click(button(dialog, "PDF")); // nothing is lost: there is another way
            QVERIFY(isReady(dialog));
            whenNamed(saved);
            click(button(dialog, "Print"));
        });
        watch->start(10);
        whenOpen([&told](QDialog& box) {
            told = labels(box);
            box.accept();
        });
        click(button(dialog, "Print"));
    });
    QCOMPARE(told, QStringList("The printer does not take it."));
    QVERIFY(saved.value(0).startsWith("lake.pdf was saved: "));
}

void tst_Printing::printerThatTakesNothing()
{
    QPrinter device;
    device.setOutputFormat(QPrinter::PdfFormat);
    device.setOutputFileName(m_folder->filePath("missing/paper.pdf"));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("QPainter::begin.*"));
    const QImage picture = support::mosaic(drawingSize);
    QVERIFY(!pad::Printer::printOn(device, picture,
                                   pad::printpage::layoutFor(picture.size(), QPageSize(QPageSize::A4))));
}

int main(int argc, char** argv)
{
    return support::run<tst_Printing>(argc, argv);
}

#include "tst_Printing.moc"
