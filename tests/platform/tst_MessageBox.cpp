#include "UTIL_Platform.h"
#include "support/Modal.h"
#include "support/TestCase.h"

namespace {

constexpr auto icon = "Dialog_Exclamatory_Mark.gif";
constexpr auto text = "Save changes to drawing before opening?";

/// The desktop with seconds of another length.
class Hurried : public UTIL_Platform
{
public:
    explicit Hurried(int second) : m_second(second) {}
    int timeoutSecond() const override { return m_second; }

private:
    int m_second;
};

int ask(const QStringList& buttons, const std::function<void(QDialog&)>& work)
{
    support::whenOpen(work);
    return UTIL_Platform::instance()->question(nullptr, icon, text, buttons);
}

/// Runs a timed box that lasts far longer than the test has patience: only `work` can end it.
void tell(bool withButton, const std::function<void(QDialog&)>& work)
{
    support::whenOpen(work);
    if (withButton)
        UTIL_Platform::instance()->timedInformation(nullptr, icon, text, "OK", 60);
    else
        UTIL_Platform::instance()->timedMessage(nullptr, icon, text, 60);
}

/// Ends a box that is still open so long after it was shown. Its clock is of the same event loop as the
/// box's, and starts later.
class Limit : public QObject
{
public:
    explicit Limit(int milliseconds) : m_milliseconds(milliseconds) { qApp->installEventFilter(this); }

    bool isPassed = false;

protected:
    bool eventFilter(QObject* object, QEvent* event) override
    {
        auto* box = qobject_cast<QDialog*>(object);
        if (box && event->type() == QEvent::Show)
            QTimer::singleShot(0, box, [this, box] {
                QTimer::singleShot(m_milliseconds, box, [this, box] {
                    isPassed = true;
                    box->done(0);
                });
            });
        return false;
    }

private:
    int m_milliseconds;
};

void addTimedKinds()
{
    QTest::addColumn<bool>("withButton");
    QTest::newRow("information") << true;
    QTest::newRow("message") << false;
}

/// Escape or close, then whether the box is still there; a box that is still there is ended.
bool staysOpen(QDialog& box, bool byKey)
{
    byKey ? QTest::keyClick(box.focusWidget() ? box.focusWidget() : &box, Qt::Key_Escape)
          : void(box.close());
    const bool open = box.isVisible();
    if (open)
        box.done(0);
    return open;
}

} // namespace

class tst_MessageBox : public support::TestCase
{
    Q_OBJECT

private slots:
    void cleanup() { UTIL_Platform::install(nullptr); }

    void aQuestionShowsWhatItIsGiven()
    {
        const int answer = ask({"Yes", "No"}, [](QDialog& box) {
            QVERIFY(box.isModal());
            QCOMPARE(box.property("iconName").toString(), QString(icon));
            QCOMPARE(box.property("timeout").toInt(), 0);
            QCOMPARE(support::labels(box), QStringList(text));
            QVERIFY(support::button(box, "Yes")->geometry().right() <
                    support::button(box, "No")->geometry().left());
            QTest::mouseClick(support::button(box, "No"), Qt::LeftButton);
        });
        QCOMPARE(answer, 1);
    }

    void everyButtonAnswersWithItsIndex_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<bool>("byKey");
        for (int index = 0; index < 3; ++index) {
            QTest::addRow("%d by pointer", index) << index << false;
            QTest::addRow("%d by keyboard", index) << index << true;
        }
    }

    void everyButtonAnswersWithItsIndex()
    {
        QFETCH(int, index);
        QFETCH(bool, byKey);
        const QStringList buttons = {"Replace", "Another name", "Cancel"};
        const int answer = ask(buttons, [&](QDialog& box) {
            if (!byKey) {
                QTest::mouseClick(support::button(box, buttons[index]), Qt::LeftButton);
                return;
            }
            for (int i = 0; i < index; ++i)
                QTest::keyClick(box.focusWidget(), Qt::Key_Tab);
            QTest::keyClick(box.focusWidget(), Qt::Key_Return);
        });
        QCOMPARE(answer, index);
    }

    void escapeAndClosingMeanCancelOrNothing_data()
    {
        QTest::addColumn<QStringList>("buttons");
        QTest::addColumn<int>("answer"); // -1: the box stays
        QTest::newRow("OK, Cancel") << QStringList{"OK", "Cancel"} << 1;
        QTest::newRow("Cancel first") << QStringList{"Cancel", "Delete"} << 0;
        QTest::newRow("Cancel of three") << QStringList{"A", "Cancel", "C"} << 1;
        QTest::newRow("Yes, No") << QStringList{"Yes", "No"} << -1;
        QTest::newRow("OK") << QStringList{"OK"} << -1;
    }

    void escapeAndClosingMeanCancelOrNothing()
    {
        QFETCH(QStringList, buttons);
        QFETCH(int, answer);
        for (const bool byKey : {true, false}) {
            bool stayed = false;
            const int given = ask(buttons, [&](QDialog& box) { stayed = staysOpen(box, byKey); });
            QCOMPARE(stayed, answer < 0);
            if (answer >= 0)
                QCOMPARE(given, answer);
        }
    }

    void cancelIsAlsoKnownInTheUsersLanguage()
    {
        class German : public QTranslator
        {
            QString translate(const char*, const char* source, const char*, int) const override
            {
                return qstrcmp(source, "Cancel") == 0 ? QString("Abbrechen") : QString();
            }
            bool isEmpty() const override { return false; }
        } german;
        QCoreApplication::installTranslator(&german);
        const int given =
            ask({"Löschen", "Abbrechen", "Später"}, [](QDialog& box) { QVERIFY(!staysOpen(box, true)); });
        QCoreApplication::removeTranslator(&german);
        QCOMPARE(given, 1);
    }

    void aTapBesideTheButtonsAnswersNothing()
    {
        const int answer = ask({"Yes", "No"}, [](QDialog& box) {
            QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(5, 5));
            QTest::mouseClick(box.findChild<QLabel*>(), Qt::LeftButton);
            QVERIFY(box.isVisible());
            QTest::keyClick(box.focusWidget(), Qt::Key_Space);
        });
        QCOMPARE(answer, 0);
    }

    void aTimedBoxShowsWhatItIsGiven_data() { addTimedKinds(); }

    void aTimedBoxShowsWhatItIsGiven()
    {
        QFETCH(bool, withButton);
        tell(withButton, [withButton](QDialog& box) {
            QVERIFY(box.isModal());
            QCOMPARE(box.property("iconName").toString(), QString(icon));
            QCOMPARE(box.property("timeout").toInt(), 60);
            QCOMPARE(support::labels(box), QStringList(text));
            QCOMPARE(box.findChildren<QAbstractButton*>().size(), withButton ? 1 : 0);
            box.done(0);
        });
    }

    void aTimedBoxIsTappedAway_data() { addTimedKinds(); }

    void aTimedBoxIsTappedAway()
    {
        QFETCH(bool, withButton);
        tell(withButton, [](QDialog& box) {
            QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(5, 5));
            QVERIFY(!box.isVisible());
        });
        tell(withButton, [](QDialog& box) {
            QTest::mouseClick(box.windowHandle(), Qt::LeftButton, {},
                              box.findChild<QLabel*>()->geometry().center());
            QVERIFY(!box.isVisible());
        });
    }

    void aTimedBoxIsTakenAwayByKeys_data()
    {
        QTest::addColumn<bool>("withButton");
        QTest::addColumn<Qt::Key>("key");
        for (const bool withButton : {true, false}) {
            const char* kind = withButton ? "information" : "message";
            QTest::addRow("%s, Return", kind) << withButton << Qt::Key_Return;
            QTest::addRow("%s, Space", kind) << withButton << Qt::Key_Space;
        }
    }

    void aTimedBoxIsTakenAwayByKeys()
    {
        QFETCH(bool, withButton);
        QFETCH(Qt::Key, key);
        tell(withButton, [key](QDialog& box) {
            QTest::keyClick(box.focusWidget() ? box.focusWidget() : &box, key);
            QVERIFY(!box.isVisible());
        });
    }

    void theButtonOfATimedInformationEndsIt()
    {
        tell(true, [](QDialog& box) {
            QTest::mouseClick(support::button(box, "OK"), Qt::LeftButton);
            QVERIFY(!box.isVisible());
        });
    }

    void aTapBesideAMessageIsMadeOnWhatLiesThere_data()
    {
        QTest::addColumn<bool>("withButton");
        QTest::addColumn<bool>("isSlow");
        QTest::newRow("information") << true << false;
        QTest::newRow("message") << false << false;
        QTest::newRow("message, a slow tap") << false << true;
    }

    void aTapBesideAMessageIsMadeOnWhatLiesThere()
    {
        QFETCH(bool, withButton);
        QFETCH(bool, isSlow);
        QWidget window;
        window.resize(240, 320);
        QPushButton behind("behind", &window);
        behind.setGeometry(100, 10, 40, 30);
        QPushButton covered("covered", &window);
        covered.setGeometry(100, 140, 40, 40);
        QStringList log;
        connect(&behind, &QPushButton::pressed, [&] { log << "pressed"; });
        connect(&behind, &QPushButton::clicked, [&] { log << "clicked"; });
        connect(&covered, &QPushButton::pressed, [&] { log << "covered"; });
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        if (isSlow)
            UTIL_Platform::install(std::make_unique<Hurried>(1)); // 60 ms in all
        const auto run = [&](QPoint tap, bool closes) {
            support::whenOpen([&](QDialog& box) {
                QVERIFY(!box.geometry().contains(behind.mapToGlobal(behind.rect().center())));
                QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, tap);
                if (isSlow)
                    QTest::qWait(100); // longer than the box would last
                QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, tap);
                QCOMPARE(box.isVisible(), !closes);
                box.done(0);
            });
            if (withButton)
                UTIL_Platform::instance()->timedInformation(&window, icon, text, "OK", 60);
            else
                UTIL_Platform::instance()->timedMessage(&window, icon, text, 60);
            log << "returned";
            QCoreApplication::processEvents();
        };
        run(behind.geometry().center(), !withButton);
        const QStringList passed =
            QStringList{"returned", "pressed", "clicked"}; // all after the call, not within it
        QCOMPARE(log, withButton ? QStringList{"returned"} : passed);
        log.clear();
        run(covered.geometry().center(), !withButton); // on the box: its alone
        QVERIFY(!log.contains("covered"));
    }

    void aKeyBesideAMessageReachesTheWindowBehind()
    {
        QWidget window;
        window.resize(240, 320);
        QLineEdit edit(&window);
        QAction undo(&window);
        undo.setShortcut(QKeySequence("Ctrl+Z"));
        int undone = 0;
        connect(&undo, &QAction::triggered, [&] { ++undone; });
        window.show();
        edit.setFocus();
        const auto run = [&](Qt::Key key, Qt::KeyboardModifiers modifiers, bool closes) {
            support::whenOpen([&](QDialog& box) {
                QTest::keyClick(&box, key, modifiers);
                QCOMPARE(box.isVisible(), !closes);
                QVERIFY(edit.text().isEmpty() && undone == 0); // not yet
                box.done(0);
            });
            UTIL_Platform::instance()->timedMessage(&window, icon, text, 60);
            QCoreApplication::processEvents();
        };
        run(Qt::Key_Shift, {}, false);
        run(Qt::Key_Return, {}, true);
        QVERIFY(edit.text().isEmpty());
        run(Qt::Key_A, {}, true);
        QCOMPARE(edit.text(), "a");
        edit.clear();
        run(Qt::Key_Z, Qt::ControlModifier, true);
        QCOMPARE(undone, 1);
    }

    void escapeLeavesATimedBoxAlone_data() { addTimedKinds(); }

    void escapeLeavesATimedBoxAlone()
    {
        QFETCH(bool, withButton);
        for (const bool byKey : {true, false})
            tell(withButton, [byKey](QDialog& box) { QVERIFY(staysOpen(box, byKey)); });
    }

    void aTimedBoxClosesByItself_data()
    {
        QTest::addColumn<int>("second");
        QTest::addColumn<int>("timeout");
        QTest::addColumn<int>("duration");
        QTest::newRow("a real second") << 1000 << 1 << 1000;
        QTest::newRow("two short seconds") << 150 << 2 << 300;
        QTest::newRow("at once") << 0 << 2 << 0;
        QTest::newRow("no time") << 1000 << 0 << 0;
        QTest::newRow("less than no time") << 1000 << -1 << 0;
    }

    void aTimedBoxClosesByItself()
    {
        QFETCH(int, second);
        QFETCH(int, timeout);
        QFETCH(int, duration);
        UTIL_Platform::install(std::make_unique<Hurried>(second));
        const Limit limit(duration + 500);
        QElapsedTimer timer;
        timer.start();
        UTIL_Platform::instance()->timedMessage(nullptr, icon, text, timeout);
        QVERIFY2(timer.elapsed() >= duration * 95 / 100, qPrintable(QString::number(timer.elapsed())));
        QVERIFY(!limit.isPassed);
    }

    void aQuestionWaits()
    {
        UTIL_Platform::install(std::make_unique<Hurried>(0));
        const int answer = ask({"Yes", "No"}, [](QDialog& box) {
            QTest::qWait(50);
            QVERIFY(box.isVisible());
            QTest::keyClick(box.focusWidget(), Qt::Key_Return);
        });
        QCOMPARE(answer, 0);
    }

    void anUnknownIconLeavesTheTextAlone()
    {
        support::whenOpen([](QDialog& box) {
            QCOMPARE(box.property("iconName").toString(), QString("Nothing.gif"));
            QCOMPARE(support::labels(box), QStringList(text));
            box.done(0);
        });
        UTIL_Platform::instance()->timedMessage(nullptr, "Nothing.gif", text, 60);
    }

    void everythingFits_data()
    {
        QTest::addColumn<QString>("message");
        QTest::addColumn<QStringList>("buttons");
        const QString name = QString("Urlaub_am_Meer_").repeated(17);
        QTest::newRow("short") << "Delete drawing?" << QStringList{"OK", "Cancel"};
        QTest::newRow("German") << "Änderungen an der Zeichnung vor dem Öffnen speichern?"
                                << QStringList{"Ja", "Nein"};
        QTest::newRow("wide buttons") << text << QStringList{"Speichern und schließen", "Verwerfen"};
        QTest::newRow("three buttons") << text << QStringList{"Speichern", "Verwerfen", "Abbrechen"};
        QTest::newRow("a name without blanks") << "Replace " + name + ".png?" << QStringList{"Yes", "No"};
        QTest::newRow("everything at once") << QString("Replace " + name + "?\n").repeated(5)
                                            << QStringList{"Datei ersetzen", "Anderer Name", "Abbrechen"};
    }

    void everythingFits()
    {
        QFETCH(QString, message);
        QFETCH(QStringList, buttons);
        support::whenOpen([&](QDialog& box) {
            QVERIFY2(box.width() <= 240 && box.height() <= 320, qPrintable(QString::number(box.height())));
            QRegion taken;
            for (const QWidget* part : box.findChildren<QWidget*>()) {
                if (!part->isVisible())
                    continue;
                QVERIFY(box.rect().contains(part->geometry()));
                QVERIFY(!taken.intersects(part->geometry()));
                taken += part->geometry();
            }
            for (const QAbstractButton* button : box.findChildren<QAbstractButton*>())
                QVERIFY(button->width() >= button->sizeHint().width());
            QCOMPARE(support::labels(box), QStringList(message));
            box.done(0);
        });
        (void)UTIL_Platform::instance()->question(nullptr, icon, message, buttons);
    }

    void aNameWiderThanTheBoxIsBroken()
    {
        const auto textHeight = [](const QString& message) {
            int height = 0;
            support::whenOpen([&](QDialog& box) {
                height = box.findChildren<QLabel*>().back()->height();
                box.done(0);
            });
            UTIL_Platform::instance()->timedMessage(nullptr, icon, message, 60);
            return height;
        };
        const int line = textHeight("x");
        QVERIFY(line > 0);
        QCOMPARE(textHeight(QString("x").repeated(70)), 3 * line);
    }

    void aTextThatIsCutIsTheToolTip()
    {
        const QString message = QString("Many words. ").repeated(60);
        support::whenOpen([&](QDialog& box) {
            const auto labels = box.findChildren<QLabel*>();
            QCOMPARE(labels.back()->toolTip(), message);
            box.done(0);
        });
        UTIL_Platform::instance()->timedMessage(nullptr, icon, message, 60);
    }
};

int main(int argc, char** argv)
{
    return support::run<tst_MessageBox>(argc, argv);
}

#include "tst_MessageBox.moc"
