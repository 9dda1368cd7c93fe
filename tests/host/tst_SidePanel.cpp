#include "ChoiceGroup.h"
#include "Commands.h"
#include "KeyName.h"
#include "PadTools.h"
#include "PadWindow.h"
#include "Palette16.h"
#include "Platform.h"
#include "Recorder.h"
#include "SidePanel.h"
#include "support/TestCase.h"

#include <KORVA_Canvas.h>
#include <KORVA_EditCanvas.h>
#include <KORVA_PasteLabel.h>
#include <UTIL_PushButton.h>

namespace {

constexpr QSize narrow(240, 320);
constexpr QSize roomy(800, 480);

struct Place
{
    QString name;
    QRect place; // in the window
};

/// What of these lies over another one, or outside.
QStringList faults(const QList<Place>& places, const QRect& outer)
{
    QStringList faults;
    for (int i = 0; i < places.size(); ++i) {
        if (!outer.contains(places[i].place))
            faults << places[i].name + " is cut";
        for (int k = 0; k < i; ++k)
            if (places[i].place.intersects(places[k].place))
                faults << places[i].name + " lies over " + places[k].name;
    }
    return faults;
}

} // namespace

/// Tools and colours beside the editor of a large window.
class tst_SidePanel : public support::TestCase
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void onlyLargeWindowsHaveIt_data();
    void onlyLargeWindowsHaveIt();
    void backInANarrowWindowNothingIsDifferent();
    void nothingOverlapsOrIsCut_data();
    void nothingOverlapsOrIsCut();
    void isMirrored();

    void everyToolInOneTap();
    void everyOptionInOneTap();
    void boldIsOnOrOffByItself();
    void everyColorInOneTap();
    void followsWhatIsChosenElsewhere();
    void choicesAreRecorded();

    void everyControlHasATip_data();
    void everyControlHasATip();
    void tipsNameTheKeys();
    void tabStopsOnceInEveryGroup();
    void arrowsChooseInAGroup();
    void aTapLeavesTheKeyboard();

    void resizingWhileAPieceFloats();
    void resizingWhileATextIsOpen();
    void resizingInTheMiddleOfAStroke();
    void resizingWhileAMenuIsOpen_data();
    void resizingWhileAMenuIsOpen();

private:
    [[nodiscard]] KORVA_EditCanvas& editor() const { return m_window->editor(); }
    [[nodiscard]] pad::SidePanel* panel() const { return m_window->findChild<pad::SidePanel*>(); }
    /// Tools, options, colours.
    [[nodiscard]] QList<pad::ChoiceGroup*> groups() const
    {
        return panel()->findChildren<pad::ChoiceGroup*>(QString(), Qt::FindDirectChildrenOnly);
    }
    [[nodiscard]] static QList<UTIL_PushButton*> keys(const pad::ChoiceGroup& group)
    {
        QList<UTIL_PushButton*> keys;
        for (int i = 0; i < group.count(); ++i)
            keys << &group.key(i);
        return keys;
    }
    /// The name of the marked key; of more than one, all.
    [[nodiscard]] static QString marked(const pad::ChoiceGroup& group)
    {
        QStringList names;
        for (const UTIL_PushButton* key : keys(group))
            if (key->isChecked())
                names << key->accessibleName();
        return names.join(" and ");
    }
    [[nodiscard]] QPushButton& control(const char* name) const
    {
        return *editor().findChild<QPushButton*>(QString(name));
    }
    void stroke(QPoint from, QPoint to) const;

    std::unique_ptr<pad::PadWindow> m_window;
};

void tst_SidePanel::init()
{
    support::TestCase::init();
    m_window = std::make_unique<pad::PadWindow>(pad::Platform::install());
    m_window->resize(roomy);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void tst_SidePanel::cleanup()
{
    m_window.reset();
    UTIL_Platform::install(nullptr);
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

void tst_SidePanel::stroke(QPoint from, QPoint to) const
{
    QTest::mousePress(editor().canvas(), Qt::LeftButton, {}, from);
    QTest::mouseMove(editor().canvas(), to);
    QTest::mouseRelease(editor().canvas(), Qt::LeftButton, {}, to);
}

void tst_SidePanel::onlyLargeWindowsHaveIt_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("hasIt");
    for (const QSize size : {QSize(240, 320), QSize(480, 640), QSize(639, 400), QSize(640, 399)})
        QTest::addRow("%d x %d", size.width(), size.height()) << size << false;
    for (const QSize size : {QSize(640, 400), QSize(800, 480), QSize(1366, 768), QSize(1920, 1080)})
        QTest::addRow("%d x %d", size.width(), size.height()) << size << true;
}

void tst_SidePanel::onlyLargeWindowsHaveIt()
{
    QFETCH(const QSize, size);
    QFETCH(const bool, hasIt);
    m_window->resize(size);
    QCOMPARE(panel()->isVisible(), hasIt);
    const QRect room(0, 0, size.width(), size.height() - 95);
    QCOMPARE(editor().geometry(), hasIt ? room.adjusted(pad::SidePanel::extent, 0, 0, 0) : room);

    pad::PadWindow fresh(pad::Platform::install());
    fresh.resize(size);
    fresh.show();
    QCOMPARE(fresh.findChild<pad::SidePanel*>() != nullptr, hasIt); // a narrow window does not even make it
}

void tst_SidePanel::backInANarrowWindowNothingIsDifferent()
{
    for (const QSize size : {narrow, QSize(480, 640)}) {
        pad::PadWindow never(pad::Platform::install());
        never.show();
        never.resize(size);
        m_window->resize(roomy);
        m_window->resize(size);
        QCoreApplication::processEvents();
        never.editor().canvas()->setFocus();
        QCOMPARE(m_window->screenshot(), never.screenshot());
    }
}

void tst_SidePanel::nothingOverlapsOrIsCut_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("left to right") << Qt::LeftToRight;
    QTest::newRow("right to left") << Qt::RightToLeft;
}

void tst_SidePanel::nothingOverlapsOrIsCut()
{
    QFETCH(const Qt::LayoutDirection, direction);
    QGuiApplication::setLayoutDirection(direction);
    int looked = 0;
    for (const int width : {240, 300, 480, 639, 640, 641, 720, 800, 1024, 1366, 1920}) {
        for (const int height : {320, 399, 400, 401, 480, 640, 768, 1080}) {
            m_window->resize(width, height);
            for (int tool = 0; !editor().nameOfTool(tool).isEmpty(); ++tool) {
                editor().selectTool(tool);
                QCoreApplication::processEvents();
                QList<Place> places;
                const auto add = [&](const QWidget& parent) {
                    for (const QObject* child : parent.children()) {
                        const auto* widget = qobject_cast<const QWidget*>(child);
                        if (!widget || widget->isWindow() || !widget->isVisible())
                            continue;
                        const QRect place(widget->mapTo(m_window.get(), QPoint()), widget->size());
                        places.append({widget->accessibleName() + widget->objectName(), place});
                        const QRect seen = widget->visibleRegion().boundingRect();
                        if (seen != widget->rect() && !widget->rect().isEmpty())
                            places.append({widget->accessibleName() + " in part", QRect(-1, -1, 1, 1)});
                    }
                };
                places.append({"status and keys", QRect(0, height - 91, width, 91)});
                add(editor());
                if (panel()->isVisible())
                    for (const pad::ChoiceGroup* group : groups())
                        add(*group);
                looked += int(places.size());
                QCOMPARE(faults(places, m_window->rect()).join("; "), QString());
            }
        }
    }
    QVERIFY(looked > 10000);
}

void tst_SidePanel::isMirrored()
{
    const QRect editorBefore = editor().geometry();
    const QRect panelBefore = panel()->geometry();
    const UTIL_PushButton& first = *keys(*groups()[0]).first();
    const QRect keyBefore(first.mapTo(m_window.get(), QPoint()), first.size());
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    m_window->resize(roomy + QSize(1, 0));
    m_window->resize(roomy);
    QCoreApplication::processEvents();
    const auto mirrored = [](const QRect& place) {
        return QRect(roomy.width() - place.right() - 1, place.top(), place.width(), place.height());
    };
    QCOMPARE(editor().geometry(), mirrored(editorBefore));
    QCOMPARE(panel()->geometry(), mirrored(panelBefore));
    QCOMPARE(QRect(first.mapTo(m_window.get(), QPoint()), first.size()), mirrored(keyBefore));
}

void tst_SidePanel::everyToolInOneTap()
{
    const QList<UTIL_PushButton*> tools = keys(*groups()[0]);
    QSet<int> chosen;
    for (UTIL_PushButton* key : tools) {
        QTest::mouseClick(key, Qt::LeftButton);
        QCOMPARE(editor().nameOfTool(editor().tool()), key->accessibleName());
        QTRY_COMPARE(marked(*groups()[0]), key->accessibleName());
        chosen << editor().tool();
    }
    // All but the hand, which is an option of select.
    QSet<int> all;
    for (int tool = 0; !editor().nameOfTool(tool).isEmpty(); ++tool)
        if (tool != KORVA_TOOL_HAND)
            all << tool;
    QCOMPARE(chosen, all);
}

void tst_SidePanel::everyOptionInOneTap()
{
    constexpr struct
    {
        int tool;
        int options;
    } rows[] = {{KORVA_TOOL_PENCIL, 3},
                {KORVA_TOOL_LINE, 3},
                {KORVA_TOOL_TEXT, 3},
                {KORVA_TOOL_ERASER, 3},
                {KORVA_TOOL_RECTANGLE, 2},
                {KORVA_TOOL_ELLIPSE, 2},
                {8, 0}};
    for (const auto& row : rows) {
        editor().selectTool(row.tool);
        QTRY_COMPARE(groups()[1]->count(), row.options);
        for (int option = 0; option < row.options; ++option) {
            UTIL_PushButton& key = groups()[1]->key(option);
            QTest::mouseClick(&key, Qt::LeftButton);
            QCOMPARE(editor().option(), option);
            QTRY_COMPARE(marked(*groups()[1]), key.accessibleName());
        }
    }
    editor().selectTool(KORVA_TOOL_SELECT);
    QTRY_COMPARE(groups()[1]->count(), 2);
    QTest::mouseClick(&groups()[1]->key(1), Qt::LeftButton);
    QCOMPARE(editor().tool(), int(KORVA_TOOL_HAND));
    QTRY_COMPARE(marked(*groups()[0]), QString("Select"));
    QCOMPARE(marked(*groups()[1]), QString("Move view"));
}

void tst_SidePanel::boldIsOnOrOffByItself()
{
    pad::padtools::behave(editor(), KORVA_Manners::modern());
    editor().selectTool(KORVA_TOOL_TEXT);
    QTRY_COMPARE(groups()[1]->count(), 7);
    UTIL_PushButton& bold = groups()[1]->key(6);
    QCOMPARE(bold.accessibleName(), "Bold");
    QTest::mouseClick(&groups()[1]->key(2), Qt::LeftButton);
    QTRY_COMPARE(marked(*groups()[1]), groups()[1]->key(2).accessibleName());
    QTest::mouseClick(&bold, Qt::LeftButton);
    QVERIFY(editor().isBold());
    QTRY_COMPARE(marked(*groups()[1]), groups()[1]->key(2).accessibleName() + " and Bold");
    QCOMPARE(bold.accessibleName(), "Bold");
    QTest::mouseClick(&groups()[1]->key(4), Qt::LeftButton);
    QTRY_COMPARE(marked(*groups()[1]), groups()[1]->key(4).accessibleName() + " and Bold");
    QCOMPARE(editor().option(), 4);
    QTest::mouseClick(&bold, Qt::LeftButton);
    QVERIFY(!editor().isBold());
    QTRY_COMPARE(marked(*groups()[1]), groups()[1]->key(4).accessibleName());
    editor().selectTool(KORVA_TOOL_SELECT);
    QTRY_COMPARE(groups()[1]->count(), 2);
}

void tst_SidePanel::everyColorInOneTap()
{
    const QList<UTIL_PushButton*> colors = keys(*groups()[2]);
    QCOMPARE(colors.size(), 16);
    QSet<QRgb> chosen;
    for (UTIL_PushButton* key : colors) {
        QTest::mouseClick(key, Qt::LeftButton);
        chosen << editor().color().rgb();
        // As the editor itself calls the colour.
        QCOMPARE(key->accessibleName(), control("colorButton").accessibleDescription());
        QCOMPARE(marked(*groups()[2]), key->accessibleName());
        const QPoint middle = key->mapTo(m_window.get(), key->rect().center());
        QCOMPARE(m_window->screenshot().pixelColor(middle), editor().color());
    }
    QCOMPARE(chosen.size(), 16);
}

void tst_SidePanel::followsWhatIsChosenElsewhere()
{
    QCOMPARE(marked(*groups()[0]), QString("Pencil"));
    QCOMPARE(marked(*groups()[1]), QString("Small"));
    QCOMPARE(marked(*groups()[2]), QString("#ff0000, red"));
    QTest::keyClick(editor().canvas(), Qt::Key_O);
    QTest::keyClick(editor().canvas(), Qt::Key_2);
    QTRY_COMPARE(marked(*groups()[0]), QString("Ellipse"));
    QTRY_COMPARE(marked(*groups()[1]), QString("Filled"));
    editor().setColor(QColor(1, 2, 3));
    QCOMPARE(marked(*groups()[2]), QString());
    editor().setColor(Qt::white);
    QCOMPARE(marked(*groups()[2]), QString("#ffffff, white"));
    editor().reset();
    QTRY_COMPARE(marked(*groups()[0]), QString("Pencil"));
    QTRY_COMPARE(marked(*groups()[1]), QString("Small"));
    QCOMPARE(marked(*groups()[2]), QString("#ff0000, red"));
}

void tst_SidePanel::choicesAreRecorded()
{
    const QTemporaryDir folder;
    const QString name = folder.filePath("choices.rec");
    pad::Recorder recorder(editor());
    QObject::connect(&m_window->commands(), &pad::Commands::performed, &recorder, &pad::Recorder::write);
    QVERIFY(!recorder.start(name));
    QTest::mouseClick(keys(*groups()[0])[2], Qt::LeftButton);
    QCoreApplication::processEvents();
    QTest::mouseClick(keys(*groups()[1])[1], Qt::LeftButton);
    QTest::mouseClick(keys(*groups()[2])[3], Qt::LeftButton);
    QVERIFY(!recorder.finish());
    QFile file(name);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("tool line\noption 1\ncolor #ffffff\n"));
}

void tst_SidePanel::everyControlHasATip_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("narrow") << narrow;
    QTest::newRow("roomy") << roomy;
}

void tst_SidePanel::everyControlHasATip()
{
    QFETCH(const QSize, size);
    m_window->resize(size);
    int controls = 0;
    for (const QWidget* widget : m_window->findChildren<QWidget*>()) {
        const bool isControl =
            qobject_cast<const QAbstractButton*>(widget) || qobject_cast<const QComboBox*>(widget);
        if (!isControl || !widget->isVisible())
            continue;
        ++controls;
        QVERIFY2(!widget->toolTip().isEmpty(), qPrintable(widget->objectName()));
    }
    QCOMPARE(controls, size == narrow ? 6 : 6 + 9 + 3 + 16);
}

void tst_SidePanel::tipsNameTheKeys()
{
    QStringList tips;
    for (const UTIL_PushButton* key : keys(*groups()[0]) + keys(*groups()[1]))
        tips << key->toolTip();
    QCOMPARE(tips.join(", "),
             QString("Select (S), Eraser (E), Line (L), Pencil (P), Text (T), Rectangle (R), Ellipse (O), "
                     "Fill (F), Pick color (K), Small (1), Medium (2), Large (3)"));
    const auto tip = [this](const QString& text) {
        for (const QPushButton* key : m_window->findChildren<QPushButton*>())
            if (key->text() == text)
                return key->toolTip();
        return QString();
    };
    QCOMPARE(tip("Menu"), QString("Menu (F10)"));
    QCOMPARE(tip("Undo"), QString("Undo (Ctrl+Z)"));
    stroke({10, 10}, {50, 50});
    editor().undo();
    QCOMPARE(tip("Redo"), QString("Redo (Ctrl+Y)"));
}

void tst_SidePanel::tabStopsOnceInEveryGroup()
{
    editor().canvas()->setFocus();
    QStringList stops;
    for (int i = 0; i < 40; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        const QWidget* stop = QApplication::focusWidget();
        if (stop == editor().canvas())
            break;
        const auto* group = qobject_cast<const pad::ChoiceGroup*>(stop->parentWidget());
        const auto* key = qobject_cast<const QPushButton*>(stop);
        stops << (group                           ? group->accessibleName() + ": " + stop->accessibleName()
                  : key && !key->text().isEmpty() ? key->text()
                                                  : stop->accessibleName());
    }
    // Undo cannot be used yet.
    QCOMPARE(stops.join(", "), QString("Tool: Pencil, Tool option: Small, Color: #ff0000, red, Menu, Tool, "
                                       "Tool option, Zoom, Color"));
}

void tst_SidePanel::arrowsChooseInAGroup()
{
    keys(*groups()[0])[3]->setFocus(); // the pencil, at the beginning of the second row
    const auto press = [](Qt::Key key) {
        QTest::keyClick(QApplication::focusWidget(), key);
        QCoreApplication::processEvents();
    };
    press(Qt::Key_Right);
    QCOMPARE(editor().tool(), int(KORVA_TOOL_TEXT));
    press(Qt::Key_Down);
    QCOMPARE(editor().tool(), 8); // Fill is below it
    press(Qt::Key_Up);
    press(Qt::Key_Left);
    QCOMPARE(editor().tool(), int(KORVA_TOOL_PENCIL));
    QCOMPARE(QApplication::focusWidget(), keys(*groups()[0])[3]);
}

void tst_SidePanel::aTapLeavesTheKeyboard()
{
    editor().canvas()->setFocus();
    for (const pad::ChoiceGroup* group : groups()) {
        QTest::mouseClick(&group->key(0), Qt::LeftButton);
        QCOMPARE(QApplication::focusWidget(), editor().canvas());
    }
}

void tst_SidePanel::resizingWhileAPieceFloats()
{
    stroke({20, 20}, {100, 80});
    editor().selectAll();
    const QImage before = editor().snapshot();
    for (const QSize size : {narrow, roomy, QSize(639, 400), QSize(640, 400), narrow}) {
        m_window->resize(size);
        QCoreApplication::processEvents();
        QVERIFY(!editor().canvas()->pasteLabel()->isHidden());
        QCOMPARE(editor().snapshot(), before);
    }
}

void tst_SidePanel::resizingWhileATextIsOpen()
{
    const auto write = [this](bool resizes) {
        editor().reset();
        m_window->resize(roomy);
        editor().selectTool(KORVA_TOOL_TEXT);
        QTest::mouseClick(editor().canvas(), Qt::LeftButton, {}, QPoint(30, 40));
        QTest::keyClicks(editor().canvas(), "ab");
        if (resizes) {
            m_window->resize(narrow);
            QCoreApplication::processEvents();
        }
        QTest::keyClicks(QApplication::focusWidget(), "cd");
        if (resizes) {
            m_window->resize(roomy);
            QTest::mouseClick(&groups()[2]->key(0), Qt::LeftButton); // a colour leaves it open
        } else {
            editor().setColor(Qt::black);
        }
        QTest::keyClicks(QApplication::focusWidget(), "ef");
        return editor().snapshot();
    };
    const QImage plain = write(false);
    QCOMPARE(write(true), plain);
    editor().clearCanvas();
    QVERIFY(plain != editor().snapshot()); // there was something
}

void tst_SidePanel::resizingInTheMiddleOfAStroke()
{
    stroke({20, 20}, {100, 80});
    const QImage plain = editor().snapshot();
    editor().reset();
    QTest::mousePress(editor().canvas(), Qt::LeftButton, {}, {20, 20});
    m_window->resize(narrow);
    QCoreApplication::processEvents();
    m_window->resize(roomy);
    QCoreApplication::processEvents();
    QTest::mouseMove(editor().canvas(), {100, 80});
    QTest::mouseRelease(editor().canvas(), Qt::LeftButton, {}, {100, 80});
    QCOMPARE(editor().snapshot(), plain);
}

void tst_SidePanel::resizingWhileAMenuIsOpen_data()
{
    QTest::addColumn<QString>("button");
    QTest::newRow("menu") << "";
    QTest::newRow("tools") << "toolButton";
    QTest::newRow("options") << "optionButton";
}

void tst_SidePanel::resizingWhileAMenuIsOpen()
{
    QFETCH(const QString, button);
    QMenu* menu =
        button.isEmpty() ? m_window->commands().menu() : control(button.toUtf8().constData()).menu();
    for (const QSize size : {narrow, roomy}) {
        menu->popup(m_window->mapToGlobal(QPoint(100, 100)));
        QVERIFY(menu->isVisible());
        m_window->resize(size);
        QCoreApplication::processEvents();
        QVERIFY(!menu->isVisible()); // it would stay at the old place
        QCOMPARE(panel()->isVisible(), size == roomy);
    }
    QTest::mouseClick(keys(*groups()[0])[0], Qt::LeftButton);
    QCOMPARE(editor().tool(), int(KORVA_TOOL_SELECT));
}

int main(int argc, char** argv)
{
    return support::run<tst_SidePanel>(argc, argv);
}

#include "tst_SidePanel.moc"
