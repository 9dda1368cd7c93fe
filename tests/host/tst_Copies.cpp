#include "ColorsDialog.h"
#include "Commands.h"
#include "CopyView.h"
#include "Documents.h"
#include "MessageDialog.h"
#include "PadWindow.h"
#include "Palette.h"
#include "Platform.h"
#include "Wording.h"

#include "support/Images.h"
#include "support/Modal.h"
#include "support/PictureFiles.h"
#include "support/TestCase.h"

#include <KORVA_Canvas.h>
#include <KORVA_EditCanvas.h>
#include <KORVA_PasteLabel.h>
#include <KORVA_Translations.h>

#include <atomic>
#include <cerrno>

using pad::palette::Mixing;
using support::button;
using support::contents;
using support::labels;
using support::whenOpen;

namespace {

constexpr QSize drawingSize(320, 240);
constexpr QSize smallSize(160, 120);
constexpr int slow = 120'000; // ms; for what another thread does, with sanitizers, on a busy machine

/// A picture that does not fit into 30 kB as a JPEG, and no mere noise for a palette.
QImage busyPicture(QSize size)
{
    QImage picture(size, QImage::Format_RGB32);
    QRandomGenerator dice(7);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const auto grain = [&dice] { return int(dice.bounded(200)); };
            const int red = x * 55 / size.width() + grain();
            const int green = y * 55 / size.height() + grain();
            picture.setPixel(x, y, qRgb(red, green, grain()));
        }
    }
    return picture;
}

/// Its pixels alone: a file may say how its colours are meant.
QImage inRgb(const QImage& picture)
{
    QImage pixels = picture.convertToFormat(QImage::Format_RGB32);
    pixels.setColorSpace({});
    return pixels;
}

bool isReady(const QDialog& dialog)
{
    return QTest::qWaitFor([&] { return button(dialog, "Save")->isEnabled(); }, slow);
}

QWidget* sheetOf(const QDialog& dialog)
{
    return dialog.findChild<pad::CopyView*>()->viewport()->findChild<QWidget*>();
}

/// The copy as the dialog shows it, whole.
QImage shown(const QDialog& dialog)
{
    return inRgb(sheetOf(dialog)->grab().toImage());
}

QAbstractButton* zoomKey(const QDialog& dialog)
{
    for (QAbstractButton* key : dialog.findChildren<QAbstractButton*>())
        if (key->text().endsWith('%'))
            return key;
    return nullptr;
}

void click(QAbstractButton* key)
{
    QVERIFY(key && key->isVisible());
    QTest::mouseClick(key, Qt::LeftButton);
}

/// Types a name into the dialog that opens next, if there is one, and saves under it.
void whenNamed(const QString& name, const std::function<void()>& next)
{
    whenOpen([name, next](QDialog& naming) {
        auto* edit = naming.findChild<QLineEdit*>();
        QVERIFY(edit);
        if (!name.isEmpty()) {
            edit->selectAll();
            QTest::keyClicks(edit, name);
        }
        next();
        click(button(naming, "Save"));
    });
}

/// What the next box says; it is closed.
void whenTold(QStringList& told)
{
    whenOpen([&told](QDialog& box) {
        told = labels(box);
        box.accept();
    });
}

} // namespace

/// Copies of a drawing on the clipboard, for a message or in few colours: what is shown is what is taken,
/// and the drawing stays what it is.
class tst_Copies : public support::TestCase
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void oneColorIsNoPlural();
    void clipboardTakesWhatIsSeen_data();
    void clipboardTakesWhatIsSeen();
    void clipboardGivesItBack();

    void messageIsNoLongerThanItsLimit_data();
    void messageIsNoLongerThanItsLimit();
    void drawingStaysWhatItIs();
    void whatCannotBeSentIsSaid();
    void limitIsRemembered();
    void outdatedCopyIsDropped();
    void isClosedWhileItIsMade();
    void whatNobodyWillSeeIsGivenUp();
    void failedSaveComesBack_data();
    void failedSaveComesBack();
    void replacedDrawingIsNotLost();
    void otherFormatsAreNotOffered_data();
    void otherFormatsAreNotOffered();

    void fewColorsAreShownAndSaved_data();
    void fewColorsAreShownAndSaved();
    void fullColorsAreNotReduced();
    void onePixel();
    void hugeDrawing();
    void isZoomed();
    void isDragged();
    void fitsTheWindow_data();
    void fitsTheWindow();

private:
    [[nodiscard]] QString path(const QString& name) const { return m_folder->filePath(name); }
    [[nodiscard]] QStringList files() const
    {
        return QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden);
    }
    [[nodiscard]] KORVA_EditCanvas& editor() const { return m_window->editor(); }
    /// A window with a busy drawing from this file.
    void open(const QString& name, QSize size = drawingSize);
    /// A window with a busy drawing on a canvas of this kind.
    void draw(KORVA_CANVASTYPE type, QSize size = smallSize);
    void choose(const char* keys) const;

    std::unique_ptr<QTemporaryDir> m_home;
    std::unique_ptr<QTemporaryDir> m_folder;
    pad::Platform* m_platform = nullptr;
    std::unique_ptr<pad::PadWindow> m_window;
};

void tst_Copies::init()
{
    support::TestCase::init();
    m_home = std::make_unique<QTemporaryDir>();
    m_folder = std::make_unique<QTemporaryDir>();
    qputenv("XDG_CONFIG_HOME", m_home->path().toUtf8());
    m_platform = &pad::Platform::install();
    m_platform->setWorking(QSize(4096, 4096), 24);
}

void tst_Copies::cleanup()
{
    QThreadPool::globalInstance()->waitForDone();
    m_window.reset();
    UTIL_Platform::install(nullptr);
    QFile::setPermissions(m_folder->path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

void tst_Copies::open(const QString& name, QSize size)
{
    QVERIFY(busyPicture(size).save(path(name), nullptr, 100));
    m_window = std::make_unique<pad::PadWindow>(*m_platform, path(name));
    m_window->resize(700, 600);
    m_window->show();
    QCOMPARE(editor().snapshot().size(), size);
}

void tst_Copies::draw(KORVA_CANVASTYPE type, QSize size)
{
    m_window = std::make_unique<pad::PadWindow>(*m_platform);
    m_window->resize(700, 600);
    m_window->show();
    editor().chooseCanvas(type, size.width(), size.height());
    QPixmap picture = QPixmap::fromImage(busyPicture(size));
    editor().setPixmap(&picture);
    editor().clearModified();
    editor().setFileName(path("drawing.png"));
}

void tst_Copies::choose(const char* keys) const
{
    for (QAction* action : m_window->actions())
        if (action->shortcut() == QKeySequence(keys))
            action->trigger();
}

// --- On the clipboard

void tst_Copies::clipboardTakesWhatIsSeen_data()
{
    QTest::addColumn<bool>("isTyping");
    QTest::addColumn<bool>("isLifted");
    QTest::newRow("drawing") << false << false;
    QTest::newRow("a piece floats") << false << true;
    QTest::newRow("text is open") << true << false;
}

void tst_Copies::clipboardTakesWhatIsSeen()
{
    QFETCH(const bool, isTyping);
    QFETCH(const bool, isLifted);
    open("photo.png", smallSize);
    KORVA_Canvas& canvas = *editor().canvas();
    const QImage before = editor().snapshot();
    if (isLifted) {
        choose("Ctrl+A");
        QTest::keyClick(&canvas, Qt::Key_Right, Qt::ShiftModifier);
    }
    if (isTyping) {
        choose("T");
        QTest::mouseClick(&canvas, Qt::LeftButton, {}, {20, 20});
        QTest::keyClicks(&canvas, "Wm");
    }
    const bool isOpen = isLifted || isTyping;
    const QImage drawing = editor().snapshot();
    QCOMPARE(support::sameImage(drawing, before), !isOpen);
    QCOMPARE(!canvas.pasteLabel()->isHidden(), isLifted);
    const auto state = [&] {
        return std::tuple(editor().hasChanges(), editor().isModified(), m_window->isWindowModified(),
                          canvas.undoFlag(), editor().fileName(), canvas.pasteLabel()->geometry());
    };
    const auto stateBefore = state();
    const QImage onScreen = m_window->screenshot();
    QSignalSpy modified(&editor(), &KORVA_EditCanvas::modified);
    QSignalSpy undo(&editor(), &KORVA_EditCanvas::canUndo);
    QSignalSpy performed(&m_window->commands(), &pad::Commands::performed);

    QGuiApplication::clipboard()->clear();
    choose("Ctrl+Shift+C");
    const QImage copied = QGuiApplication::clipboard()->image();
    QVERIFY(support::sameImage(inRgb(copied), inRgb(drawing)));
    QVERIFY(state() == stateBefore);
    QVERIFY(support::sameImage(editor().snapshot(), drawing));
    QCOMPARE(m_window->screenshot(), onScreen);
    QCOMPARE(modified.size() + undo.size() + performed.size(), 0);
    QCOMPARE(files(), QStringList("photo.png"));
    if (!isTyping)
        return;
    QTest::keyClicks(&canvas, "W"); // it is still open
    QVERIFY(!support::sameImage(editor().snapshot(), drawing));
}

void tst_Copies::clipboardGivesItBack()
{
    open("photo.png", smallSize);
    const QImage drawing = editor().snapshot();
    choose("Ctrl+Shift+C");
    editor().clearCanvas();
    choose("Ctrl+V");
    QVERIFY(support::sameImage(inRgb(editor().snapshot()), inRgb(drawing)));
}

// --- For a message

void tst_Copies::messageIsNoLongerThanItsLimit_data()
{
    QTest::addColumn<int>("limit");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("isSmaller"); // than the drawing, in pixels
    QTest::newRow("30, plainer") << 30 << drawingSize << false;
    QTest::newRow("30, smaller") << 30 << QSize(1000, 700) << true;
    QTest::newRow("100") << 100 << drawingSize << false;
    QTest::newRow("300") << 300 << drawingSize << false;
}

void tst_Copies::messageIsNoLongerThanItsLimit()
{
    QFETCH(const int, limit);
    QFETCH(const QSize, size);
    QFETCH(const bool, isSmaller);
    open("photo.png", size);
    const QByteArray wanted = editor().encoded("JPEG", limit * 1000);
    QVERIFY(limit == 300 || wanted.size() > limit * 900); // no smaller than it must be
    const QImage copy = inRgb(QImage::fromData(wanted, "JPEG"));
    QCOMPARE(copy.size() != size, isSmaller);
    QStringList said;
    QStringList told;
    whenOpen([&](QDialog& dialog) {
        click(button(dialog, QString("%1\u00a0kB").arg(limit)));
        QVERIFY(isReady(dialog));
        said = labels(dialog);
        if (isSmaller) // all of it is seen at first
            click(zoomKey(dialog));
        QVERIFY(support::sameImage(shown(dialog), copy));
        whenNamed({}, [&told] { whenTold(told); });
        click(button(dialog, "Save"));
    });
    choose("Ctrl+M");
    QCOMPARE(files(), QStringList({"photo.jpg", "photo.png"}));
    QVERIFY(contents(path("photo.jpg")) == wanted);
    QVERIFY(wanted.size() <= limit * 1000);
    const QString length = QLocale::c().toString(double(wanted.size()) / 1000, 'f', 1) + "\u00a0kB";
    QCOMPARE(
        said,
        QStringList({"Save for a message",
                     QString("%1\n%2\u00a0×\u00a0%3").arg(length).arg(copy.width()).arg(copy.height())}));
    QCOMPARE(told, QStringList("photo.jpg was saved: " + length));
}

void tst_Copies::drawingStaysWhatItIs()
{
    open("photo.png");
    const QByteArray before = contents(path("photo.png"));
    for (const bool hasChanges : {false, true}) {
        if (hasChanges)
            editor().resizeImage(drawingSize.width(), drawingSize.height() - 1);
        const QImage drawing = editor().snapshot();
        const QString title = m_window->windowTitle();
        QSignalSpy modified(&editor(), &KORVA_EditCanvas::modified);
        QSignalSpy undo(&editor(), &KORVA_EditCanvas::canUndo);
        QSignalSpy performed(&m_window->commands(), &pad::Commands::performed);
        QStringList told;
        whenOpen([&](QDialog& dialog) {
            QVERIFY(isReady(dialog));
            whenNamed("sent", [&told] { whenTold(told); });
            click(button(dialog, "Save"));
        });
        choose("Ctrl+M");
        QVERIFY(told.value(0).startsWith("sent.jpg was saved: "));
        QCOMPARE(editor().hasChanges(), hasChanges);
        QCOMPARE(m_window->isWindowModified(), hasChanges);
        QCOMPARE(editor().fileName(), path("photo.png"));
        QCOMPARE(m_window->windowTitle(), title);
        QVERIFY(support::sameImage(editor().snapshot(), drawing));
        QCOMPARE(modified.size() + undo.size() + performed.size(), 0);
        QVERIFY(contents(path("photo.png")) == before);
        QVERIFY(QFile::remove(path("sent.jpg")));
    }
}

void tst_Copies::whatCannotBeSentIsSaid()
{
    QWidget window;
    window.resize(240, 320);
    pad::MessageDialog dialog(&window, "Title", QImage(), 30);
    dialog.show();
    QTRY_VERIFY_WITH_TIMEOUT(labels(dialog).contains("The picture does not fit."), slow);
    QVERIFY(!button(dialog, "Save")->isEnabled());
    QTest::keyClick(&dialog, Qt::Key_Return);
    QVERIFY(dialog.isVisible());
}

void tst_Copies::limitIsRemembered()
{
    const auto chosen = [this](const QString& next) {
        open("photo.png");
        m_window->commands().rememberChoices();
        QString found;
        QStringList told;
        whenOpen([&](QDialog& dialog) {
            for (const QAbstractButton* key : dialog.findChildren<QAbstractButton*>())
                if (key->isChecked())
                    found += key->text();
            if (next.isEmpty())
                return dialog.reject();
            click(button(dialog, next));
            QVERIFY(isReady(dialog));
            whenNamed({}, [&told] { whenTold(told); });
            click(button(dialog, "Save"));
        });
        choose("Ctrl+M");
        return found;
    };
    QCOMPARE(chosen("300\u00a0kB"), "100\u00a0kB");
    QCOMPARE(chosen("30\u00a0kB"), "300\u00a0kB");
    QCOMPARE(chosen({}), "30\u00a0kB");
    QVERIFY(contents(m_home->filePath("korva/pad.conf")).contains("[message]\nlimit=30\n"));
}

void tst_Copies::outdatedCopyIsDropped()
{
    /// Its first choice takes until it is let go.
    class UnevenDialog : public pad::CopyDialog
    {
    public:
        UnevenDialog(QWidget* parent, QSemaphore& release) : CopyDialog(parent, "Title")
        {
            addChoice("slow", [&release](const IsWanted&) {
                release.acquire();
                return Copy{support::sheet(QSize(9, 9), Qt::red), {}};
            });
            addChoice("quick", [](const IsWanted&) {
                return Copy{support::sheet(QSize(9, 9), Qt::blue), {}};
            });
        }

    protected:
        [[nodiscard]] QString description(const Copy& copy) const override
        {
            return copy.picture.pixelColor(0, 0).name();
        }
    };
    QSemaphore release;
    QWidget window;
    window.resize(240, 320);
    UnevenDialog dialog(&window, release);
    dialog.show();
    dialog.choose(0);
    QTest::qWait(20);
    QVERIFY(!button(dialog, "Save")->isEnabled());
    QCOMPARE(labels(dialog).constLast(), "One moment ...");
    click(button(dialog, "quick"));
    QVERIFY(isReady(dialog));
    QCOMPARE(labels(dialog).constLast(), "#0000ff");
    release.release();
    QThreadPool::globalInstance()->waitForDone();
    QTest::qWait(20);
    QCOMPARE(labels(dialog).constLast(), "#0000ff");
    QCOMPARE(shown(dialog).pixelColor(0, 0), QColor(Qt::blue));
    QCOMPARE(dialog.copy().picture.pixelColor(0, 0), QColor(Qt::blue));
}

void tst_Copies::isClosedWhileItIsMade()
{
    draw(KORVA_CANVAS_8BIT, QSize(1500, 1200));
    for (const char* keys : {"Ctrl+M", "Ctrl+D"}) {
        bool wasOpen = false;
        whenOpen([&](QDialog& dialog) {
            QVERIFY(!button(dialog, "Save")->isEnabled()); // the window did not wait
            QTest::keyClick(&dialog, Qt::Key_Escape);
            wasOpen = true;
        });
        choose(keys);
        QVERIFY(wasOpen);
    }
    m_window.reset();
    QThreadPool::globalInstance()->waitForDone();
    QTest::qWait(10);
    QCOMPARE(files(), QStringList());
}

void tst_Copies::whatNobodyWillSeeIsGivenUp()
{
    /// Makes for as long as it may.
    class EndlessDialog : public pad::CopyDialog
    {
    public:
        EndlessDialog(QWidget* parent, std::atomic_int& begun, std::atomic_int& givenUp)
            : CopyDialog(parent, "Title")
        {
            for (const char* name : {"one", "two"})
                addChoice(name, [&](const IsWanted& isWanted) {
                    ++begun;
                    for (int i = 0; i < slow && isWanted(); ++i)
                        QThread::msleep(1);
                    ++givenUp;
                    return Copy();
                });
        }

    protected:
        [[nodiscard]] QString description(const Copy&) const override { return {}; }
    };
    std::atomic_int begun = 0;
    std::atomic_int givenUp = 0;
    QWidget window;
    window.resize(240, 320);
    auto dialog = std::make_unique<EndlessDialog>(&window, begun, givenUp);
    dialog->show();
    dialog->choose(0);
    QTRY_COMPARE(int(begun), 1);
    click(button(*dialog, "two"));
    QTRY_COMPARE(int(givenUp), 1);
    QTRY_COMPARE(int(begun), 2);
    dialog.reset();
    QTRY_COMPARE(int(givenUp), 2);
}

void tst_Copies::failedSaveComesBack_data()
{
    QTest::addColumn<bool>("isFull");
    QTest::addColumn<QString>("keys");
    for (const char* keys : {"Ctrl+M", "Ctrl+D"}) {
        QTest::addRow("full disk, %s", keys) << true << keys;
        QTest::addRow("read-only folder, %s", keys) << false << keys;
    }
}

void tst_Copies::failedSaveComesBack()
{
    QFETCH(const bool, isFull);
    QFETCH(const QString, keys);
    draw(KORVA_CANVAS_4BIT);
    if (isFull)
        m_window->documents().setWriter(
            [](const QByteArray&, const QString& fileName, const pad::MayReplace&) {
                return std::optional(pad::WriteError{ENOSPC, "No space left on device", fileName});
            });
    QStringList told;
    const auto save = [&told](QDialog& dialog) {
        QVERIFY(isReady(dialog));
        whenNamed("copy", [&told] { whenTold(told); });
        click(button(dialog, "Save"));
    };
    int opened = 0;
    // It is the same dialog, so it comes back when the box has gone.
    whenOpen([&](QDialog& dialog) {
        ++opened;
        auto* watch = new QTimer(&dialog);
        QObject::connect(watch, &QTimer::timeout, &dialog, [&, watch] {
            if (!dialog.isVisible() || told.isEmpty() || QApplication::activeModalWidget() != &dialog)
                return;
            watch->deleteLater();
            ++opened;
            QCOMPARE(told, QStringList(isFull ? "Not saved: The disk is full."
                                              : "Not saved: No permission to write in " +
                                                    QFileInfo(m_folder->path()).fileName() + '.'));
            QCOMPARE(files(), QStringList());
            m_window->documents().setWriter(
                [](const QByteArray& bytes, const QString& fileName, const pad::MayReplace& mayReplace) {
                    return pad::writeFile(bytes, fileName, mayReplace);
                });
            QFile::setPermissions(m_folder->path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
            told.clear();
            save(dialog);
        });
        watch->start(10);
        if (!isFull)
            QFile::setPermissions(m_folder->path(), QFile::ReadOwner | QFile::ExeOwner);
        save(dialog);
    });
    choose(keys.toLatin1());
    QCOMPARE(opened, 2);
    QVERIFY2(told.value(0).contains(" was saved: "), qPrintable(told.join(';')));
    QCOMPARE(files().size(), 1);
}

void tst_Copies::replacedDrawingIsNotLost()
{
    open("photo.jpg");
    QVERIFY(!editor().hasChanges());
    const QByteArray whole = editor().encoded("JPEG");
    QStringList told;
    whenOpen([&](QDialog& dialog) {
        click(button(dialog, "30\u00a0kB"));
        QVERIFY(isReady(dialog));
        whenNamed("photo.jpg", [&told] {
            whenOpen([&told](QDialog& question) {
                QCOMPARE(labels(question), QStringList("Replace photo.jpg?"));
                whenTold(told);
                click(button(question, "Replace"));
            });
        });
        click(button(dialog, "Save"));
    });
    choose("Ctrl+M");
    QVERIFY(contents(path("photo.jpg")).size() <= 30'000);
    whenOpen([](QDialog& question) {
        QCOMPARE(labels(question), QStringList("Save changes to drawing before closing?"));
        question.reject();
    });
    QVERIFY(!m_window->documents().mayClose());
    whenTold(told);
    QVERIFY(m_window->documents().save());
    QCOMPARE(told, QStringList("Saved Successfully"));
    QVERIFY(contents(path("photo.jpg")) == whole);
    QVERIFY(m_window->documents().mayClose());
}

void tst_Copies::otherFormatsAreNotOffered_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("saved");
    QTest::newRow("message, no extension") << "Ctrl+M"
                                           << "a"
                                           << "a.jpg";
    QTest::newRow("message, JPEG") << "Ctrl+M"
                                   << "a.jpeg"
                                   << "a.jpeg";
    QTest::newRow("message, PNG") << "Ctrl+M"
                                  << "a.png"
                                  << "a.jpg";
    QTest::newRow("few colors, no extension") << "Ctrl+D"
                                              << "a"
                                              << "a.png";
    QTest::newRow("few colors, BMP") << "Ctrl+D"
                                     << "a.BMP"
                                     << "a.BMP";
    QTest::newRow("few colors, JPEG") << "Ctrl+D"
                                      << "a.jpg"
                                      << "a.png"; // which has no palette
}

void tst_Copies::otherFormatsAreNotOffered()
{
    QFETCH(const QString, keys);
    QFETCH(const QString, typed);
    QFETCH(const QString, saved);
    draw(KORVA_CANVAS_4BIT);
    QStringList told;
    whenOpen([&](QDialog& dialog) {
        QVERIFY(isReady(dialog));
        whenNamed(typed, [&told] { whenTold(told); });
        click(button(dialog, "Save"));
    });
    choose(keys.toLatin1());
    QCOMPARE(files(), QStringList(saved));
    const QByteArray format = saved.endsWith("jpg") || saved.endsWith("jpeg") ? "jpeg"
                              : saved.endsWith("BMP")                         ? "bmp"
                                                                              : "png";
    QCOMPARE(QImageReader::imageFormat(path(saved)), format);
}

// --- In few colours

void tst_Copies::fewColorsAreShownAndSaved_data()
{
    QTest::addColumn<KORVA_CANVASTYPE>("type");
    QTest::addColumn<int>("colors");
    QTest::addColumn<int>("bits");
    QTest::addColumn<bool>("isDotted");
    QTest::addColumn<QString>("name");
    for (const auto& [type, colors, bits] :
         {std::tuple(KORVA_CANVAS_1BIT, 2, 1), {KORVA_CANVAS_4BIT, 16, 4}, {KORVA_CANVAS_8BIT, 256, 8}})
        for (const bool isDotted : {false, true})
            for (const char* name : {"few.png", "few.bmp"})
                QTest::addRow("%d, %s, %s", colors, isDotted ? "dotted" : "plain", name)
                    << type << colors << bits << isDotted << name;
}

void tst_Copies::fewColorsAreShownAndSaved()
{
    QFETCH(const KORVA_CANVASTYPE, type);
    QFETCH(const int, colors);
    QFETCH(const int, bits);
    QFETCH(const bool, isDotted);
    QFETCH(const QString, name);
    draw(type);
    const QImage drawing = editor().snapshot();
    const QList<QRgb> palette = pad::palette::of(drawing, colors);
    QCOMPARE(palette.size(), colors);
    const QImage wanted =
        inRgb(pad::palette::applied(drawing, palette, isDotted ? Mixing::Dots : Mixing::None));
    QStringList said;
    QStringList told;
    whenOpen([&](QDialog& dialog) {
        QVERIFY(isReady(dialog));
        if (isDotted) {
            click(button(dialog, "Dotted"));
            QVERIFY(isReady(dialog));
        }
        said = labels(dialog);
        QVERIFY(support::sameImage(shown(dialog), wanted));
        whenNamed(name, [&told] { whenTold(told); });
        click(button(dialog, "Save"));
    });
    choose("Ctrl+D");
    QCOMPARE(said, QStringList({"Save in few colors", (colors == 2 ? QString("Black and white")
                                                                   : QString("%1 colors").arg(colors)) +
                                                          "\n160\u00a0×\u00a0120"}));
    QCOMPARE(files(), QStringList(name));
    QVERIFY(told.value(0).startsWith(name + " was saved: "));
    const QByteArray file = contents(path(name));
    QVERIFY(support::sameImage(inRgb(QImage::fromData(file)), wanted));
    QVERIFY(support::sameImage(inRgb(support::converted(path(name))), wanted));
    if (name.endsWith("png")) {
        QCOMPARE(int(file[24]), bits);
        QCOMPARE(int(file[25]), 3); // with a palette
    } else {
        QCOMPARE(int(file[28]), bits);
    }
    QCOMPARE(editor().fileName(), path("drawing.png"));
    QVERIFY(!editor().hasChanges());
    QVERIFY(support::sameImage(editor().snapshot(), drawing));
}

void tst_Copies::fullColorsAreNotReduced()
{
    const auto isOffered = [this] {
        for (const QAction* action : m_window->actions())
            if (action->shortcut() == QKeySequence("Ctrl+D"))
                return action->isEnabled();
        return false;
    };
    m_window = std::make_unique<pad::PadWindow>(*m_platform);
    QVERIFY(!isOffered());
    for (const auto& [type, isWanted] : {std::pair(KORVA_CANVAS_1BIT, true),
                                         {KORVA_CANVAS_16BIT, false},
                                         {KORVA_CANVAS_4BIT, true},
                                         {KORVA_CANVAS_8BIT, true},
                                         {KORVA_CANVAS_16BIT, false}}) {
        editor().chooseCanvas(type, 40, 30);
        QCOMPARE(isOffered(), isWanted);
    }
}

// --- Any

void tst_Copies::onePixel()
{
    draw(KORVA_CANVAS_8BIT, QSize(1, 1));
    for (const auto& [keys, name] : {std::pair("Ctrl+M", "one.jpg"), std::pair("Ctrl+D", "one.png")}) {
        QStringList told;
        whenOpen([&, name = name](QDialog& dialog) {
            QVERIFY(isReady(dialog));
            QCOMPARE(shown(dialog).size(), QSize(1, 1));
            whenNamed(name, [&told] { whenTold(told); });
            click(button(dialog, "Save"));
        });
        choose(keys);
        QCOMPARE(QImage(path(name)).size(), QSize(1, 1));
    }
    QCOMPARE(QImage(path("one.png")).pixel(0, 0), editor().snapshot().pixel(0, 0));
}

void tst_Copies::hugeDrawing()
{
    constexpr QSize huge(4096, 4096);
    QImage drawing = support::sheet(huge, Qt::white);
    QPainter(&drawing).drawImage(1000, 1000, busyPicture({600, 600}));
    QWidget window;
    window.resize(240, 320);
    const auto isMade = [](pad::CopyDialog& dialog) {
        int turns = 0;
        QTimer timer;
        timer.callOnTimeout([&turns] { ++turns; });
        timer.start(1);
        dialog.show();
        return isReady(dialog) && turns > 5;
    };
    pad::MessageDialog message(&window, "Title", drawing, 30);
    QVERIFY(isMade(message));
    QVERIFY(message.copy().bytes.size() <= 30'000);
    QVERIFY(QImage::fromData(message.copy().bytes).width() > 100);
    message.hide();

    pad::ColorsDialog colors(&window, "Title", drawing, 16);
    QVERIFY(isMade(colors));
    QCOMPARE(colors.copy().picture.size(), huge);
    QCOMPARE(colors.copy().picture.pixel(0, 0), qRgb(255, 255, 255));
    // All of it is seen at first.
    QVERIFY(zoomKey(colors)->text().chopped(2).toInt() < 10);
    QVERIFY(colors.findChild<pad::CopyView*>()->rect().contains(QRect(
        sheetOf(colors)->mapTo(colors.findChild<pad::CopyView*>(), QPoint()), sheetOf(colors)->size())));
    click(zoomKey(colors));
    QCOMPARE(zoomKey(colors)->text(), "100 %");
    QCOMPARE(sheetOf(colors)->size(), huge);
}

void tst_Copies::isZoomed()
{
    draw(KORVA_CANVAS_4BIT, QSize(90, 70));
    whenOpen([](QDialog& dialog) {
        QVERIFY(isReady(dialog));
        const QImage real = shown(dialog);
        for (const int percent : {100, 200, 400, 100}) {
            QCOMPARE(zoomKey(dialog)->text(), QString("%1 %").arg(percent));
            QVERIFY(support::sameImage(shown(dialog), support::scaled(real, percent)));
            click(zoomKey(dialog));
        }
        QCOMPARE(zoomKey(dialog)->text(), "200 %");
        click(button(dialog, "Dotted")); // at the same zoom
        QVERIFY(isReady(dialog));
        QCOMPARE(zoomKey(dialog)->text(), "200 %");
        QCOMPARE(shown(dialog).size(), real.size() * 2);
        dialog.reject();
    });
    choose("Ctrl+D");
}

void tst_Copies::isDragged()
{
    draw(KORVA_CANVAS_4BIT, QSize(300, 200));
    whenOpen([](QDialog& dialog) {
        QVERIFY(isReady(dialog));
        click(zoomKey(dialog));
        click(zoomKey(dialog));
        auto* view = dialog.findChild<pad::CopyView*>();
        const QPoint off = view->viewport()->rect().center() - sheetOf(dialog)->geometry().center();
        QVERIFY(off.manhattanLength() < 50); // the middle stays there, but for the scroll bars
        view->setContentsPos(100, 100);
        QTest::mousePress(sheetOf(dialog), Qt::LeftButton, {}, QPoint(300, 200));
        QMouseEvent move(QEvent::MouseMove, QPointF(), sheetOf(dialog)->mapToGlobal(QPointF(270, 180)),
                         Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(sheetOf(dialog), &move);
        QCOMPARE(QPoint(view->contentsX(), view->contentsY()), QPoint(130, 120));
        dialog.reject();
    });
    choose("Ctrl+D");
}

void tst_Copies::fitsTheWindow_data()
{
    QTest::addColumn<QSize>("window");
    QTest::addColumn<QSize>("dialog");
    QTest::newRow("smallest") << QSize(240, 320) << QSize(240, 320);
    QTest::newRow("wide") << QSize(800, 480) << QSize(560, 480);
}

void tst_Copies::fitsTheWindow()
{
    QFETCH(const QSize, window);
    QFETCH(const QSize, dialog);
    draw(KORVA_CANVAS_8BIT);
    m_window->resize(window);
    QList<QSize> found;
    for (const char* keys : {"Ctrl+M", "Ctrl+D"}) {
        whenOpen([&](QDialog& opened) {
            QVERIFY(isReady(opened));
            found << opened.size();
            QVERIFY(opened.findChild<pad::CopyView*>()->height() > 100);
            opened.grab().save(
                QString(KORVA_TEST_OUTPUT "/host_tst_Copies-%1-%2.png").arg(keys).arg(window.width()));
            opened.reject();
        });
        choose(keys);
    }
    QCOMPARE(found, QList<QSize>({dialog, dialog}));
}

void tst_Copies::oneColorIsNoPlural()
{
    const auto unload = qScopeGuard([] { KORVA_Translations::unload(); });
    for (const char* locale : {"C", "en_US", "en_GB"}) {
        QVERIFY(KORVA_Translations::load(QLocale(locale)));
        QCOMPARE(pad::wording::inColors(1, false), "1 color");
        QCOMPARE(pad::wording::inColors(4, false), "4 colors");
    }
    QVERIFY(KORVA_Translations::load(QLocale("pl_PL")));
    QSet<QString> forms;
    for (const int count : {1, 2, 5})
        forms << pad::wording::inColors(count, false).section(' ', 1);
    QCOMPARE(forms.size(), 3);
}

int main(int argc, char** argv)
{
    return support::run<tst_Copies>(argc, argv);
}

#include "tst_Copies.moc"
