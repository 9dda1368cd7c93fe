#include "KORVA_ChooseCanvasDlg.h"
#include "KORVA_ColorPicker.h"
#include "KORVA_ImageView_Dialog.h"
#include "KORVA_Preview_Dialog.h"
#include "UTIL_ListBox.h"
#include "UTIL_Platform.h"
#include "support/Images.h"
#include "support/Modal.h"
#include "support/TestCase.h"
#include "support/XServer.h"

#include <cstdio>
#include <functional>

namespace {

constexpr QSize standardDialog(220, 256);
const QString longText =
    QString("A message that is long enough to need more lines than a low screen has. ").repeated(4);

struct Opening
{
    const char* name;
    std::function<void(QWidget&)> open; // runs the dialog
    bool isStandard;
};

const QString pictureFile = QDir::tempPath() + "/korva-small-screen.png";

const Opening openings[] = {
    {"colour",
     [](QWidget& window) { (void)KORVA_ColorPicker::getColor(KORVA_COLOR_16BIT, Qt::red, &window); }, true},
    {"canvas size", [](QWidget& window) { KORVA_ChooseCanvasDlg(&window, 3).exec(); }, true},
    {"picture", [](QWidget&) { KORVA_ImageView_Dialog(pictureFile).exec(); }, true},
    {"preview", [](QWidget&) { KORVA_Preview_Dialog(pictureFile).exec(); }, true},
    {"long message",
     [](QWidget& window) {
         UTIL_Platform::instance()->question(&window, "Dialog_Exclamatory_Mark.gif", longText,
                                             {"Yes", "No"});
     },
     false},
    {"message with three long keys",
     [](QWidget& window) {
         UTIL_Platform::instance()->question(
             &window, "Dialog_Exclamatory_Mark.gif", longText,
             {"Save the drawing first", "Throw the drawing away", "Cancel"});
     },
     false},
};

bool isWhole(const QWidget& widget)
{
    return !widget.visibleRegion().isEmpty() && widget.visibleRegion() == QRegion(widget.rect());
}

/// What is wrong with an open dialog; empty when all of it can be reached.
QStringList faults(QDialog& dialog, bool isStandard, bool hasRoom)
{
    QStringList result;
    const QRect screen = dialog.screen()->availableGeometry();
    if (!screen.contains(dialog.geometry()))
        result << "it leaves the screen";
    if (isStandard && (dialog.size() == standardDialog) != hasRoom)
        result << "it is of the wrong size";
    for (const QAbstractButton* key : dialog.findChildren<QAbstractButton*>())
        if (key->isVisible() && !isWhole(*key))
            result << "the key is cut: " + key->text();
    for (const QScrollArea* area : dialog.findChildren<QScrollArea*>())
        for (const QAbstractButton* key : dialog.findChildren<QAbstractButton*>())
            if (area->geometry().intersects(key->geometry()))
                result << "what scrolls lies over the key " + key->text();
    for (QAbstractSlider* slider : dialog.findChildren<QSlider*>()) {
        slider->setFocus();
        if (!isWhole(*slider))
            result << "a slider is not brought into sight";
    }
    for (UTIL_ListBox* list : dialog.findChildren<UTIL_ListBox*>()) {
        if (!isWhole(*list))
            result << "the list is cut";
        for (int row = 0; row < list->count(); ++row) {
            list->setCurrentRow(row);
            if (!list->viewport()->rect().contains(list->visualItemRect(list->item(row)).center()))
                result << "a row is not brought into sight";
        }
    }
    for (QScrollArea* area : dialog.findChildren<QScrollArea*>()) {
        QScrollBar* bar = area->verticalScrollBar();
        if (hasRoom && (bar->isVisible() || bar->maximum() > 0))
            result << "it scrolls without need";
        const int below = area->widget()->height() - area->viewport()->height();
        if (isStandard && !dialog.findChildren<UTIL_ListBox*>().isEmpty() && bar->isVisible())
            result << "it scrolls beside its list";
        const QWidget& shown = *area->widget();
        if (!isStandard && shown.width() > area->viewport()->width())
            result << "the text is cut at its side";
        if (below > 0 && (!bar->isVisible() || bar->maximum() != below))
            result << "what is below cannot be reached";
        QWheelEvent wheel({5, 5}, area->mapToGlobal(QPointF(5, 5)), {}, {0, -1200}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(area->viewport(), &wheel);
        if (below > 0 && bar->value() == 0)
            result << "the wheel does not scroll it";
    }
    return result;
}

} // namespace

/// Dialogs on screens lower than they are: what does not fit scrolls, the keys stay. A process has one
/// screen, so that each is tried in one of its own.
class tst_SmallScreens : public support::TestCase
{
    Q_OBJECT

public:
    Q_INVOKABLE int everyDialog();

private slots:
    void allOfItIsReached_data();
    void allOfItIsReached();
};

int tst_SmallScreens::everyDialog()
{
    support::sheet(QSize(300, 200), Qt::darkGreen).save(pictureFile);
    const QSize screen = QGuiApplication::primaryScreen()->size();
    const bool hasRoom = screen.height() >= standardDialog.height();
    QWidget window;
    window.resize(screen.boundedTo(QSize(240, 225)));
    window.show();
    int wrong = 0;
    for (const Opening& opening : openings) {
        QStringList found{"it did not open"};
        support::whenOpen([&](QDialog& dialog) {
            (void)QTest::qWaitForWindowExposed(&dialog);
            QTest::qWait(20);
            if (const QByteArray folder = qgetenv("KORVA_SHOTS"); !folder.isEmpty())
                dialog.grab().save(
                    QString("%1/%2-%3.png").arg(folder).arg(screen.height()).arg(opening.name));
            found = faults(dialog, opening.isStandard, hasRoom);
            dialog.done(0);
        });
        opening.open(window);
        wrong += int(found.size());
        for (const QString& fault : found)
            std::printf("%s: %s\n", opening.name, qPrintable(fault));
    }
    return wrong;
}

void tst_SmallScreens::allOfItIsReached_data()
{
    QTest::addColumn<QSize>("screen");
    QTest::addColumn<QByteArray>("scale");
    QTest::newRow("240 x 200") << QSize(240, 200) << QByteArray("1");
    QTest::newRow("800 x 480 at 2") << QSize(800, 480) << QByteArray("2");
    QTest::newRow("240 x 320") << QSize(240, 320) << QByteArray("1");
    QTest::newRow("800 x 480") << QSize(800, 480) << QByteArray("1");
}

void tst_SmallScreens::allOfItIsReached()
{
    QFETCH(const QSize, screen);
    QFETCH(const QByteArray, scale);
    const support::XServer server(screen);
    QVERIFY(server.isReady());
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    qputenv("QT_QPA_PLATFORM", "xcb");
    qputenv("QT_SCALE_FACTOR", scale);
    qputenv("DISPLAY", server.display().toLatin1());
    const support::ChildProcess child = support::ChildProcess::run("everyDialog");
    qputenv("QT_QPA_PLATFORM", platform);
    qunsetenv("QT_SCALE_FACTOR");
    QVERIFY2(child.signal == 0 && child.exitCode == 0, qPrintable(child.output + child.errors));
}

int main(int argc, char** argv)
{
    return support::run<tst_SmallScreens>(argc, argv);
}

#include "tst_SmallScreens.moc"
