#include "support/Gestures.h"
#include "support/Images.h"
#include "support/SignalRecorder.h"
#include "support/TestCase.h"

#include <csignal>

using support::ChildProcess;

/// Logs a warning where nothing else goes wrong; the other function must not be blamed for it.
class Warner : public support::TestCase
{
    Q_OBJECT

private slots:
    void warns() { qWarning("a word of warning"); }
    void isSilent() {}
};

/// Writes down what pointer and key events reach it.
class Listener : public QWidget
{
    Q_OBJECT

public:
    Listener(const QString& name, QStringList& log, QWidget* parent = nullptr) : QWidget(parent), m_log(log)
    {
        setObjectName(name);
    }

protected:
    bool event(QEvent* event) override
    {
        if (auto* mouse = dynamic_cast<QMouseEvent*>(event)) {
            const QPoint p = mouse->position().toPoint();
            m_log << QString("%1 %2 %3,%4 %5/%6")
                         .arg(objectName(), names[event->type()])
                         .arg(p.x())
                         .arg(p.y())
                         .arg(mouse->button())
                         .arg(mouse->buttons().toInt());
            return true;
        }
        if (auto* key = dynamic_cast<QKeyEvent*>(event); key && names.contains(event->type())) {
            m_log << QString("%1 %2 %3 '%4'")
                         .arg(objectName(), names[event->type()])
                         .arg(key->key())
                         .arg(key->text());
            return true;
        }
        return QWidget::event(event);
    }

private:
    const QHash<QEvent::Type, QString> names{{QEvent::MouseButtonPress, "press"},
                                             {QEvent::MouseMove, "move"},
                                             {QEvent::MouseButtonRelease, "release"},
                                             {QEvent::KeyPress, "keyPress"},
                                             {QEvent::KeyRelease, "keyRelease"}};
    QStringList& m_log;
};

class tst_Support : public support::TestCase
{
    Q_OBJECT

public:
    Q_INVOKABLE void aborts() { std::abort(); }
    Q_INVOKABLE int returnsSeven() { return 7; }
    Q_INVOKABLE int runsWarner()
    {
        Warner warner;
        return QTest::qExec(&warner, QStringList{"warner"});
    }

private slots:
    void aWarningFailsItsTestFunction();
    void aChildIsJudgedByItsEnd();
    void differentPicturesLeaveThreeFiles();
    void picturesOfDifferentSizeDiffer();
    void boundsAreThoseOfTheInk();
    void signalsAreRecordedInOrder();
    void pointerEventsReachTheWidgetUnderThePointer();
    void hoverReachesOnlyWhoTracksIt();
    void keysReachTheFocus();
};

void tst_Support::aWarningFailsItsTestFunction()
{
    const ChildProcess child = ChildProcess::run("runsWarner");
    QCOMPARE(child.exitCode, 1);
    QVERIFY(child.output.contains("FAIL!  : Warner::warns()"));
    QVERIFY(child.output.contains("PASS   : Warner::isSilent()"));
}

void tst_Support::aChildIsJudgedByItsEnd()
{
    QCOMPARE(ChildProcess::run("aborts").signal, SIGABRT);
    const ChildProcess returned = ChildProcess::run("returnsSeven");
    QCOMPARE(returned.signal, 0);
    QCOMPARE(returned.exitCode, 7);
    QCOMPARE(ChildProcess::run("isNotThere").exitCode, 127);
}

void tst_Support::differentPicturesLeaveThreeFiles()
{
    const QImage expected = support::mosaic(QSize(9, 7));
    QImage actual = expected;
    actual.setPixel(3, 2, qRgb(1, 2, 3));
    actual.setPixel(5, 6, qRgb(1, 2, 3));

    QVERIFY(support::sameImage(expected, expected));
    QVERIFY(!support::sameImage(actual, expected, "deliberately"));

    const QString stem = KORVA_TEST_OUTPUT "/support_tst_Support-deliberately-";
    QCOMPARE(QImage(stem + "actual.png").convertToFormat(QImage::Format_RGB32), actual);
    QCOMPARE(QImage(stem + "expected.png").convertToFormat(QImage::Format_RGB32), expected);
    const QImage marks(stem + "difference.png");
    QCOMPARE(support::inkCount(marks), 2);
    QCOMPARE(support::inkBounds(marks), QRect(QPoint(3, 2), QPoint(5, 6)));
    for (const char* part : {"actual", "expected", "difference"})
        QVERIFY(QFile::remove(stem + part + ".png"));
}

void tst_Support::picturesOfDifferentSizeDiffer()
{
    QVERIFY(!support::sameImage(support::sheet(QSize(4, 4)), support::sheet(QSize(4, 5)), "sizes"));
    QVERIFY(QFile::remove(KORVA_TEST_OUTPUT "/support_tst_Support-sizes-difference.png"));
}

void tst_Support::boundsAreThoseOfTheInk()
{
    QCOMPARE(support::inkBounds(support::sheet(QSize(5, 5))), QRect());
    const QImage image = support::filled(support::sheet(QSize(20, 20)), QRect(3, 4, 5, 6), Qt::red);
    QCOMPARE(support::inkBounds(image), QRect(3, 4, 5, 6));
    QCOMPARE(support::inkCount(image), 30);
    QCOMPARE(support::inkCount(support::inverted(image)), 400); // red becomes cyan
    QCOMPARE(support::inkCount(support::mosaic(QSize(30, 30))), 900);
}

void tst_Support::signalsAreRecordedInOrder()
{
    QSlider slider;
    QAction action;
    support::SignalRecorder recorder;
    recorder.watch(&slider, &QSlider::valueChanged);
    recorder.watch(&slider, &QSlider::rangeChanged, "slider");
    recorder.watch(&action, &QAction::enabledChanged);
    slider.setValue(5);
    action.setEnabled(false);
    recorder.note("between");
    slider.setRange(0, 3);
    QCOMPARE(recorder.taken(), QStringList({"valueChanged(5)", "enabledChanged(false)", "between",
                                            "slider.rangeChanged(0, 3)", "valueChanged(3)"}));
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_Support::pointerEventsReachTheWidgetUnderThePointer()
{
    QStringList log;
    Listener outer("outer", log);
    outer.resize(100, 100);
    Listener inner("inner", log, &outer);
    inner.setGeometry(20, 30, 40, 40);

    support::Gestures pointer(outer);
    pointer.click({5, 6});
    pointer.drag({{25, 37}, {1, 2}}, Qt::RightButton);
    QCOMPARE(log, QStringList({"outer press 5,6 1/1", "outer release 5,6 1/0", "inner press 5,7 2/2",
                               "inner move -19,-28 0/2", "inner release -19,-28 2/0"}));
}

void tst_Support::hoverReachesOnlyWhoTracksIt()
{
    QStringList log;
    Listener outer("outer", log);
    Listener inner("inner", log, &outer);
    inner.setMouseTracking(true);
    inner.setGeometry(20, 30, 40, 40);
    support::Gestures pointer(outer);
    pointer.hover({1, 1});
    pointer.hover({21, 32});
    QCOMPARE(log, QStringList({"inner move 1,2 0/0"}));
}

void tst_Support::keysReachTheFocus()
{
    QStringList log;
    Listener outer("outer", log);
    Listener inner("inner", log, &outer);
    support::Gestures keys(outer);
    keys.key(Qt::Key_A, "a");
    inner.setFocus();
    keys.key(Qt::Key_Left);
    QCOMPARE(log, QStringList({"outer keyPress 65 'a'", "outer keyRelease 65 'a'",
                               "inner keyPress 16777234 ''", "inner keyRelease 16777234 ''"}));
}

int main(int argc, char** argv)
{
    return support::run<tst_Support>(argc, argv);
}

#include "tst_Support.moc"
