#include "UTIL_Platform.h"
#include "UTIL_Wait.h"
#include "support/EventLoop.h"
#include "support/Modal.h"
#include "support/TestCase.h"

#include <atomic>

namespace {

constexpr auto text = "Opening picture";

/// Works for some milliseconds, or until it is cancelled.
auto working(int milliseconds, std::shared_ptr<std::atomic<int>> ended)
{
    return [milliseconds, ended](const util::IsCancelled& isCancelled) {
        QElapsedTimer timer;
        timer.start();
        while (!timer.hasExpired(milliseconds) && !isCancelled())
            QThread::msleep(1);
        *ended = int(timer.elapsed()) + 1;
        return QThread::currentThread() != QCoreApplication::instance()->thread() ? 42 : 0;
    };
}

} // namespace

class tst_WaitBox : public support::TestCase
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        UTIL_Platform::install(nullptr);
        QThreadPool::globalInstance()->waitForDone();
    }

    void shortWorkShowsNothingAndHandlesNoEvent()
    {
        const support::FirstTurn turn;
        const auto ended = std::make_shared<std::atomic<int>>(0);
        QCOMPARE(util::waitFor(nullptr, text, working(50, ended)), std::optional(42));
        QVERIFY(turn.isNotBefore(100)); // where the machine is slow, the work may be long
        QVERIFY(*ended >= 50);
    }

    void longWorkShowsABoxUntilItIsDone()
    {
        QWidget window;
        window.resize(240, 320);
        window.show();
        QElapsedTimer timer;
        timer.start();
        qint64 shownAfter = 0;
        std::atomic_bool isFree = false;
        support::whenOpen([&](QDialog& box) {
            shownAfter = timer.elapsed();
            QVERIFY(box.isModal());
            QCOMPARE(support::labels(box), QStringList(text));
            QVERIFY(window.geometry().contains(box.geometry()));
            QVERIFY(support::button(box, "Cancel"));
            const QImage first = box.grab().toImage();
            QTRY_VERIFY(box.grab().toImage() != first); // something moves
            isFree = true;
        });
        const auto work = [&isFree](const util::IsCancelled& isCancelled) {
            while (!isFree && !isCancelled())
                QThread::msleep(1);
            return 42;
        };
        QCOMPARE(util::waitFor(&window, text, work), std::optional(42));
        QVERIFY2(shownAfter >= 100, qPrintable(QString::number(shownAfter)));
        QVERIFY(!QApplication::activeModalWidget());
    }

    void itIsCancelled_data()
    {
        QTest::addColumn<int>("way");
        QTest::newRow("by pointer") << 0;
        QTest::newRow("Escape") << 1;
        QTest::newRow("Tab and Return") << 2;
        QTest::newRow("closing") << 3;
        QTest::newRow("an arrow key and Select") << 4;
    }

    void itIsCancelled()
    {
        QFETCH(int, way);
        support::whenOpen([&](QDialog& box) {
            const auto tap = [&box](Qt::Key key) { QTest::keyClick(box.focusWidget(), key); };
            switch (way) {
            case 0:
                QTest::mouseClick(support::button(box, "Cancel"), Qt::LeftButton);
                break;
            case 1:
                tap(Qt::Key_Escape);
                break;
            case 2:
                tap(Qt::Key_Tab);
                tap(Qt::Key_Return);
                break;
            case 3:
                box.close();
                break;
            default:
                tap(Qt::Key_Down);
                tap(Qt::Key_Select);
            }
        });
        constexpr int veryLong = 20'000;
        const auto ended = std::make_shared<std::atomic<int>>(0);
        QCOMPARE(util::waitFor(nullptr, text, working(veryLong, ended)), std::optional<int>());
        QTRY_VERIFY(*ended > 0 && *ended < veryLong); // the work heard of it
    }

    void anImpatientKeyDoesNotCancel_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::newRow("Return") << Qt::Key_Return;
        QTest::newRow("Enter") << Qt::Key_Enter;
        QTest::newRow("Select") << Qt::Key_Select;
        QTest::newRow("Space") << Qt::Key_Space;
    }

    void anImpatientKeyDoesNotCancel()
    {
        QFETCH(Qt::Key, key);
        std::atomic_bool isFree = false;
        support::whenOpen([&](QDialog& box) {
            QTest::keyClick(box.focusWidget(), key);
            QVERIFY(box.isVisible());
            isFree = true;
        });
        const auto work = [&isFree](const util::IsCancelled& isCancelled) {
            while (!isFree && !isCancelled())
                QThread::msleep(1);
            return 42;
        };
        QCOMPARE(util::waitFor(nullptr, text, work), std::optional(42));
    }

    void aHostMayHaveItsOwn()
    {
        class Host : public UTIL_Platform
        {
            bool waitFor(QWidget*, const QString& shown, const QFuture<void>& work) override
            {
                QFuture<void> mine = work;
                if (shown == "no")
                    mine.cancel();
                else
                    mine.waitForFinished();
                return shown != "no";
            }
        };
        UTIL_Platform::install(std::make_unique<Host>());
        const auto ended = std::make_shared<std::atomic<int>>(0);
        QCOMPARE(util::waitFor(nullptr, "yes", working(10, ended)), std::optional(42));
        QCOMPARE(util::waitFor(nullptr, "no", working(5000, ended)), std::optional<int>());
    }
};

int main(int argc, char** argv)
{
    return support::run<tst_WaitBox>(argc, argv);
}

#include "tst_WaitBox.moc"
