#include "Documents.h"
#include "DrawingFile.h"
#include "Platform.h"

#include "support/Gestures.h"
#include "support/Images.h"
#include "support/Modal.h"
#include "support/PictureFiles.h"
#include "support/TestCase.h"

#include <KORVA_Canvas.h>
#include <KORVA_EditCanvas.h>

#include <atomic>
#include <cerrno>

namespace {

pad::Platform& platform()
{
    static pad::Platform& installed = pad::Platform::install();
    return installed;
}

/// A disk that takes its time, before the new file is there or when it already takes its place.
class SlowDisk
{
public:
    enum Slowness { Writing, Replacing };

    explicit SlowDisk(Slowness slowness) : m_slowness(slowness) {}

    void letGo() { m_state->isFree = true; }
    [[nodiscard]] bool wasAsked() const { return m_state->wasAsked; }

    [[nodiscard]] pad::Writer writer() const
    {
        return [state = m_state, slowness = m_slowness](const QByteArray& bytes, const QString& fileName,
                                                        const pad::MayReplace& mayReplace) {
            if (slowness == Writing)
                state->wait();
            return pad::writeFile(bytes, fileName, [&] {
                const bool may = mayReplace();
                state->wasAsked = true;
                if (slowness == Replacing)
                    state->wait();
                return may;
            });
        };
    }

private:
    struct State
    {
        void wait() const
        {
            QElapsedTimer timer;
            timer.start();
            while (!isFree && !timer.hasExpired(8000))
                QThread::msleep(1);
        }
        std::atomic_bool isFree = false;
        std::atomic_bool wasAsked = false;
    };

    Slowness m_slowness;
    std::shared_ptr<State> m_state = std::make_shared<State>();
};

/// A drawing with changes, called "drawing.png", over an old file of that name.
struct Desk
{
    Desk()
    {
        window.resize(240, 320);
        window.show();
        editor.setFileName(file);
        support::write(file, "old");
        documents = new pad::Documents(editor, platform(), &window);
        support::Gestures(*editor.canvas()).click({20, 15});
        drawn = editor.snapshot();
    }
    [[nodiscard]] QStringList names() const { return QDir(folder.path()).entryList(QDir::Files); }
    [[nodiscard]] bool isSaved() const { return support::sameImage(QImage(file), drawn); }

    QTemporaryDir folder;
    QString file = folder.filePath("drawing.png");
    QWidget window;
    KORVA_EditCanvas editor{KORVA_COLOR_16BIT, &window};
    pad::Documents* documents = nullptr;
    QImage drawn;
};

/// Does `work` once the box shows that the drawing is being saved.
void whileSaving(const std::function<void(QDialog&)>& work)
{
    support::whenOpen([work](QDialog& box) {
        QCOMPARE(support::labels(box), QStringList("Saving drawing"));
        work(box);
    });
}

} // namespace

/// How a drawing gets onto a disk that takes its time.
class tst_Saving : public support::TestCase
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        QThreadPool::globalInstance()->waitForDone();
        platform().obey(nullptr);
    }

    void aSlowDiskIsShown();
    void isCancelled();
    void aCancelThatComesTooLate();
    void isNotReplacedWithoutConsent();
    void whatGoesWrongIsTold();
    void aScriptSeesNoBox();
};

void tst_Saving::aSlowDiskIsShown()
{
    Desk desk;
    SlowDisk disk(SlowDisk::Writing);
    desk.documents->setWriter(disk.writer());
    QElapsedTimer timer;
    qint64 shownAfter = 0;
    int ticks = 0;
    QTimer clock;
    clock.callOnTimeout([&] { ++ticks; });
    QStringList told;
    whileSaving([&](QDialog& box) {
        shownAfter = timer.elapsed();
        ticks = 0;
        QTRY_VERIFY(ticks > 2); // the window lives
        QVERIFY(box.isVisible());
        QVERIFY(!desk.isSaved());
        QCOMPARE(support::contents(desk.file), QByteArray("old"));
        disk.letGo();
        support::whenOpen([&](QDialog& message) {
            told = support::labels(message);
            message.accept();
        });
    });
    clock.start(20);
    timer.start();
    QVERIFY(desk.documents->save());
    QVERIFY2(shownAfter >= 100, qPrintable(QString::number(shownAfter)));
    QCOMPARE(told, QStringList("Saved Successfully"));
    QVERIFY(desk.isSaved());
    QVERIFY(!desk.editor.hasChanges());
    QCOMPARE(desk.names(), QStringList("drawing.png"));
}

void tst_Saving::isCancelled()
{
    Desk desk;
    SlowDisk disk(SlowDisk::Writing);
    desk.documents->setWriter(disk.writer());
    QStringList told;
    QTimer watcher;
    watcher.callOnTimeout([&] {
        if (auto* message = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
            told += support::labels(*message);
            message->reject();
        }
    });
    whileSaving([&watcher](QDialog& box) {
        watcher.start(10);
        QTest::mouseClick(support::button(box, "Cancel"), Qt::LeftButton);
    });
    QVERIFY(!desk.documents->save());
    QCOMPARE(told, QStringList());
    QVERIFY(desk.editor.hasChanges());
    QCOMPARE(desk.editor.fileName(), desk.file);
    QVERIFY(support::sameImage(desk.editor.snapshot(), desk.drawn));
    disk.letGo();
    QThreadPool::globalInstance()->waitForDone();
    QVERIFY(disk.wasAsked()); // it came as far as that, and went no further
    QCOMPARE(support::contents(desk.file), QByteArray("old"));
    QCOMPARE(desk.names(), QStringList("drawing.png"));
}

void tst_Saving::aCancelThatComesTooLate()
{
    Desk desk;
    SlowDisk disk(SlowDisk::Replacing);
    desk.documents->setWriter(disk.writer());
    whileSaving([&](QDialog& box) {
        QTRY_VERIFY(disk.wasAsked());
        support::whenOpen([](QDialog& message) {
            QCOMPARE(support::labels(message), QStringList("Saved Successfully"));
            message.accept();
        });
        QTest::mouseClick(support::button(box, "Cancel"), Qt::LeftButton);
        disk.letGo();
    });
    QVERIFY(desk.documents->save());
    QVERIFY(desk.isSaved());
    QVERIFY(!desk.editor.hasChanges());
}

void tst_Saving::isNotReplacedWithoutConsent()
{
    const Desk desk;
    const auto error = pad::writeFile("new", desk.file, [] { return false; });
    QVERIFY(error);
    QCOMPARE(error->code, ECANCELED);
    QCOMPARE(support::contents(desk.file), QByteArray("old"));
    QCOMPARE(desk.names(), QStringList("drawing.png"));
    QVERIFY(!pad::writeFile("new", desk.file, [] { return true; }));
    QCOMPARE(support::contents(desk.file), QByteArray("new"));
}

void tst_Saving::whatGoesWrongIsTold()
{
    Desk desk;
    desk.documents->setWriter([](const QByteArray&, const QString& fileName, const pad::MayReplace&) {
        return std::optional(pad::WriteError{ENOSPC, "No space left on device", fileName});
    });
    QStringList told;
    support::whenOpen([&](QDialog& message) {
        told = support::labels(message);
        message.accept();
    });
    QVERIFY(!desk.documents->save());
    QCOMPARE(told, QStringList("Not saved: The disk is full."));
    QVERIFY(desk.editor.hasChanges());
}

void tst_Saving::aScriptSeesNoBox()
{
    Desk desk;
    SlowDisk disk(SlowDisk::Writing);
    desk.documents->setWriter(disk.writer());
    pad::Script script;
    platform().obey(&script);
    const std::unique_ptr<QThread> later(QThread::create([&disk] {
        QThread::msleep(700);
        disk.letGo();
    }));
    later->start();
    int events = 0;
    QTimer timer;
    timer.callOnTimeout([&] { ++events; });
    timer.start(0);
    const bool isSaved = desk.documents->save();
    const int handled = events;
    later->wait();
    QVERIFY(isSaved);
    QCOMPARE(handled, 0); // no box ran an event loop
    QVERIFY(desk.isSaved());
    QCOMPARE(script.told, "Saved Successfully");
}

int main(int argc, char** argv)
{
    return support::run<tst_Saving>(argc, argv);
}

#include "tst_Saving.moc"
