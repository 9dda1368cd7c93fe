#include "UTIL_Dialog.h"
#include "UTIL_Geometry.h"
#include "UTIL_Overlay.h"
#include "UTIL_PushButton.h"
#include "support/Modal.h"
#include "support/TestCase.h"

namespace {

/// A dialog with the two usual keys.
class Dialog : public UTIL_Dialog
{
public:
    explicit Dialog(QWidget* parent = nullptr, bool modal = true) : UTIL_Dialog(0, modal, parent, "dialog")
    {
        first = createSoftKey("OK", 10);
        second = createSoftKey("Cancel", 9);
        connect(first, &QPushButton::clicked, this, &QDialog::accept);
        connect(second, &QPushButton::clicked, this, &QDialog::reject);
    }

    UTIL_PushButton* first;
    UTIL_PushButton* second;
};

QRect screenArea()
{
    return QGuiApplication::primaryScreen()->availableGeometry();
}

} // namespace

class tst_Dialog : public support::TestCase
{
    Q_OBJECT

private slots:
    void theConstructorsArgumentsAreKept()
    {
        QWidget parent;
        const Dialog modal(&parent);
        QCOMPARE(modal.objectName(), QString("dialog"));
        QCOMPARE(modal.parentWidget(), &parent);
        QVERIFY(modal.isModal());
        QVERIFY(modal.isWindow());
        QVERIFY(!Dialog(nullptr, false).isModal());
    }

    void theTitleIsALabel()
    {
        Dialog dialog;
        dialog.show();
        QVERIFY(support::labels(dialog).isEmpty());
        dialog.setDlgTitle("Color");
        QCOMPARE(support::labels(dialog), QStringList("Color"));
        QCOMPARE(dialog.windowTitle(), QString("Color"));
        dialog.setDlgTitle({});
        QVERIFY(support::labels(dialog).isEmpty());
    }

    void thePartsFitAndDoNotOverlap()
    {
        Dialog dialog;
        dialog.move(7, 11);
        const UTIL_Geometry geometry(dialog);
        const QList<QRect> parts = {geometry.title(), geometry.largeContent(), geometry.firstSoftKey(),
                                    geometry.secondSoftKey()};
        for (const QRect& part : parts) {
            QVERIFY(dialog.geometry().contains(part));
            QCOMPARE(dialog.fromGlobal(part), part.translated(-7, -11));
            for (const QRect& other : parts)
                QVERIFY(&other == &part || !other.intersects(part));
        }
        QVERIFY(geometry.largeContent().contains(geometry.content()));
        QVERIFY(geometry.firstSoftKey().right() < geometry.secondSoftKey().left());
        QCOMPARE(geometry.firstSoftKey().size(), geometry.secondSoftKey().size());
        QVERIFY(dialog.width() <= 240 && dialog.height() <= 320);
    }

    void itOpensWithinItsParentsWindow()
    {
        QWidget window;
        window.setFixedSize(240, 320);
        auto* child = new QWidget(&window);
        child->setGeometry(100, 200, 20, 20);
        window.move(130, 90);
        window.show();
        Dialog dialog(child);
        dialog.show();
        QVERIFY(window.geometry().contains(dialog.geometry()));
        QCOMPARE(dialog.geometry().center(), window.geometry().center());
    }

    void itNeverLeavesTheScreen_data()
    {
        QTest::addColumn<QPoint>("at");
        QTest::newRow("upper left") << QPoint(-200, -250);
        QTest::newRow("lower right") << screenArea().bottomRight() - QPoint(20, 20);
    }

    void itNeverLeavesTheScreen()
    {
        QFETCH(QPoint, at);
        QWidget window;
        window.setFixedSize(240, 320);
        window.move(at);
        window.show();
        Dialog dialog(&window);
        dialog.show();
        QVERIFY(screenArea().contains(dialog.geometry()));
    }

    void withoutAParentItOpensInTheMiddleOfTheScreen()
    {
        Dialog dialog;
        dialog.show();
        QCOMPARE(dialog.geometry().center(), screenArea().center());
    }

    void itsParentsWindowIsVeiledMeanwhile()
    {
        QWidget window;
        window.setFixedSize(240, 320);
        window.setPalette(Qt::white);
        window.show();
        const QRgb before = window.grab().toImage().pixel(5, 5);
        {
            Dialog dialog(&window);
            dialog.show();
            QVERIFY(window.grab().toImage().pixel(5, 5) != before);
            dialog.hide();
            QCOMPARE(window.grab().toImage().pixel(5, 5), before);
            dialog.show();
            window.setFixedSize(300, 340);
            QVERIFY(window.grab().toImage().pixel(295, 335) != before);
        }
        QCOMPARE(window.grab().toImage().pixel(5, 5), before);

        Dialog modeless(&window, false);
        modeless.show();
        QCOMPARE(window.grab().toImage().pixel(5, 5), before);
    }

    void itGoesWithItsParent()
    {
        auto window = std::make_unique<QWidget>();
        window->show();
        const QPointer<Dialog> dialog = new Dialog(window.get());
        dialog->show();
        window.reset();
        QVERIFY(!dialog);
    }

    void keysDecide_data()
    {
        QTest::addColumn<QList<Qt::Key>>("keys");
        QTest::addColumn<int>("result");
        QTest::newRow("Return is the first key") << QList<Qt::Key>{Qt::Key_Return} << 1;
        QTest::newRow("Enter is the first key") << QList<Qt::Key>{Qt::Key_Enter} << 1;
        QTest::newRow("Escape rejects") << QList<Qt::Key>{Qt::Key_Escape} << 0;
        QTest::newRow("Space presses the focused key") << QList<Qt::Key>{Qt::Key_Space} << 1;
        QTest::newRow("Tab, Space") << QList<Qt::Key>{Qt::Key_Tab, Qt::Key_Space} << 0;
        QTest::newRow("Tab, Return") << QList<Qt::Key>{Qt::Key_Tab, Qt::Key_Return} << 0;
        QTest::newRow("Right, Return") << QList<Qt::Key>{Qt::Key_Right, Qt::Key_Return} << 0;
        QTest::newRow("Tab, Escape") << QList<Qt::Key>{Qt::Key_Tab, Qt::Key_Escape} << 0;
    }

    void keysDecide()
    {
        QFETCH(QList<Qt::Key>, keys);
        QFETCH(int, result);
        Dialog dialog;
        support::whenOpen([&](QDialog& open) {
            for (const Qt::Key key : keys)
                QTest::keyClick(open.focusWidget(), key);
        });
        QCOMPARE(dialog.exec(), result);
    }

    void aTapOnASoftKeyDecides()
    {
        Dialog dialog;
        for (UTIL_PushButton* const key : {dialog.first, dialog.second}) {
            support::whenOpen([key](QDialog&) { QTest::mouseClick(key, Qt::LeftButton); });
            QCOMPARE(dialog.exec(), key == dialog.first ? 1 : 0);
        }
    }

    void closingRejects()
    {
        Dialog dialog;
        support::whenOpen([](QDialog& open) { open.close(); });
        QCOMPARE(dialog.exec(), 0);
    }

    // Where no program places its windows, the dialog is no child of who asked while it is open.
    void asAPartOfTheWindowItGoesWithWhoAsked()
    {
        QWidget window;
        window.resize(240, 320);
        window.show();
        QPointer<QWidget> asker = new QWidget(&window);
        Dialog dialog(asker);
        UTIL_Overlay overlay(dialog, window);
        QCOMPARE(dialog.parentWidget(), &window);
        int seen = 0;
        QTimer::singleShot(0, &dialog, [&] {
            ++seen;
            delete asker;
        });
        QTimer::singleShot(2000, &dialog, [&] {
            QTest::qFail("the dialog stayed open", __FILE__, __LINE__);
            dialog.reject();
        });
        QCOMPARE(dialog.exec(), int(QDialog::Rejected));
        QCOMPARE(seen, 1);
        QVERIFY(!asker);
        QVERIFY(dialog.isHidden());
    }
};

int main(int argc, char** argv)
{
    return support::run<tst_Dialog>(argc, argv);
}

#include "tst_Dialog.moc"
