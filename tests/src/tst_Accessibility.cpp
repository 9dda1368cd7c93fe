#include "Fixtures.h"
#include "KORVA_MainView.h"

namespace {

using support::Gestures;

QAccessibleInterface* interfaceOf(QObject& object)
{
    return QAccessible::queryAccessibleInterface(&object);
}

QString nameOf(QObject& object)
{
    return interfaceOf(object)->text(QAccessible::Name);
}

QString descriptionOf(QObject& object)
{
    return interfaceOf(object)->text(QAccessible::Description);
}

/// The tree below, a line each: depth, role, name.
QStringList tree(const QAccessibleInterface& node, int depth = 0)
{
    QStringList lines{
        QString("%1 %2 %3").arg(depth).arg(int(node.role())).arg(node.text(QAccessible::Name))};
    for (int i = 0; i < node.childCount(); ++i)
        lines << tree(*node.child(i), depth + 1);
    return lines;
}

QAccessibleInterface* hostsOwn(const QString& className, QObject* object)
{
    return className == "QLineEdit"
               ? new QAccessibleWidget(qobject_cast<QWidget*>(object), QAccessible::Terminal, "host's")
               : nullptr;
}

} // namespace

class tst_Accessibility : public support::TestCase
{
    Q_OBJECT

private slots:
    void theTreeHasNoFillers();
    void everyChildKnowsItsPlace();
    void theCanvasIsDescribed();
    void hostsNamesComeFirst();
    void hostsInterfacesStay();
    void colorsHaveWords_data();
    void colorsHaveWords();
    void theChoiceIsChecked();
    void menusLookAsBefore();
    void buttonsArePressed();
};

void tst_Accessibility::theTreeHasNoFillers()
{
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    editor.show();
    editor.canvas()->setKeyboardDrawing(true);
    editor.setZoom(200); // with scroll bars
    editor.selectAll();
    QTRY_VERIFY(editor.mainView()->findChild<QScrollBar*>()->isVisible());
    const QStringList lines = tree(*interfaceOf(editor));
    QVERIFY(lines.size() > 25);
    for (const QString& line : lines) {
        const QStringList parts = line.split(' ');
        QVERIFY2(!parts.mid(2).join(' ').isEmpty(), qPrintable(lines.join('\n')));
        QVERIFY2(parts[1].toInt() != QAccessible::Client && parts[1].toInt() != QAccessible::NoRole,
                 qPrintable(line));
    }
    QCOMPARE(interfaceOf(editor)->role(), QAccessible::Window);
    QCOMPARE(nameOf(editor), "Drawing editor");
    QWidget window;
    KORVA_EditCanvas part(KORVA_COLOR_16BIT, &window);
    QCOMPARE(interfaceOf(part)->role(), QAccessible::Grouping);
    QCOMPARE(interfaceOf(*part.canvas())->role(), QAccessible::Canvas);
}

void tst_Accessibility::everyChildKnowsItsPlace()
{
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    editor.show();
    QAccessibleInterface* own = interfaceOf(editor);
    for (int i = 0; i < own->childCount(); ++i) {
        QCOMPARE(own->indexOfChild(own->child(i)), i);
        QCOMPARE(own->child(i)->parent(), own);
    }
    QCOMPARE(own->child(own->childCount()), nullptr);
    QCOMPARE(own->indexOfChild(interfaceOf(*editor.mainView())), -1);
}

void tst_Accessibility::theCanvasIsDescribed()
{
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    editor.show();
    KORVA_Canvas& canvas = *editor.canvas();
    QCOMPARE(nameOf(canvas), "Drawing");
    QCOMPARE(descriptionOf(canvas), "Pencil, Small. Zoom 100 %. 200 by 170 pixels");
    canvas.setKeyboardDrawing(true);
    Gestures keys(canvas);
    keys.key(Qt::Key_Right);
    QCOMPARE(descriptionOf(canvas), "Pencil, Small. Zoom 100 %. 200 by 170 pixels. Pen at 100, 84");
    keys.key(Qt::Key_Return);
    QVERIFY(descriptionOf(canvas).endsWith("Pen down at 100, 84"));
    keys.key(Qt::Key_Return);
    canvas.setKeyboardDrawing(false);
    editor.setZoom(200);
    canvas.setSelection(QRect(20, 20, 40, 30));
    QVERIFY2(descriptionOf(canvas).endsWith("A piece of 22 by 17 pixels floats at 10, 10"),
             qPrintable(descriptionOf(canvas)));
    editor.findChild<QPushButton*>("toolButton")->menu()->actions().at(4)->trigger();
    Gestures(canvas).click({100, 100});
    QCOMPARE(descriptionOf(canvas), "Text, 7 point. Zoom 200 %. 200 by 170 pixels. A text is open");

    KORVA_Canvas alone(nullptr, 30, 20);
    QCOMPARE(descriptionOf(alone), "Zoom 100 %. 30 by 20 pixels");
}

void tst_Accessibility::hostsNamesComeFirst()
{
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    editor.setAccessibleName("Note");
    editor.canvas()->setAccessibleName("Page");
    editor.canvas()->setAccessibleDescription("Your page");
    QCOMPARE(nameOf(editor), "Note");
    QCOMPARE(nameOf(*editor.canvas()), "Page");
    QCOMPARE(descriptionOf(*editor.canvas()), "Your page");
}

void tst_Accessibility::hostsInterfacesStay()
{
    QAccessible::installFactory(hostsOwn);
    const KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    QLineEdit line;
    QCOMPARE(interfaceOf(line)->role(), QAccessible::Terminal);
    QPushButton plain("Plain");
    QCOMPARE(interfaceOf(plain)->role(), QAccessible::Button);
    QWidget widget;
    QCOMPARE(interfaceOf(widget)->role(), QAccessible::Client);
    QAccessible::removeFactory(hostsOwn);
}

void tst_Accessibility::colorsHaveWords_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<QString>("spoken");
    const std::pair<const char*, const char*> rows[] = {
        {"#000000", "black"},  {"#1b1b1b", "black"},     {"#ffffff", "white"},  {"#808080", "gray"},
        {"#ff0000", "red"},    {"#ff0010", "red"},       {"#ffaaaa", "pink"},   {"#ff00ff", "pink"},
        {"#ff8000", "orange"}, {"#804000", "brown"},     {"#ffff00", "yellow"}, {"#00ff00", "green"},
        {"#008000", "green"},  {"#00ffff", "turquoise"}, {"#0000ff", "blue"},   {"#1b66db", "blue"},
        {"#8000ff", "violet"}, {"#805e00", "brown"},     {"#806000", "yellow"},
    };
    for (const auto& [color, word] : rows)
        QTest::newRow(color) << QColor(color) << QString("%1, %2").arg(color, word);
}

void tst_Accessibility::colorsHaveWords()
{
    QFETCH(const QColor, color);
    QFETCH(const QString, spoken);
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    editor.setColor(color);
    auto* button = editor.findChild<QPushButton*>("colorButton");
    QCOMPARE(nameOf(*button), "Color");
    QCOMPARE(descriptionOf(*button), spoken);
    QCOMPARE(interfaceOf(*button)->text(QAccessible::Value), spoken);
}

void tst_Accessibility::theChoiceIsChecked()
{
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    const auto checked = [&editor](const char* button) {
        QStringList names;
        const QAccessibleInterface* menu = interfaceOf(*editor.findChild<QPushButton*>(button))->child(0);
        for (int i = 0; i < menu->childCount(); ++i) {
            if (menu->child(i)->state().checked)
                names << menu->child(i)->text(QAccessible::Name);
        }
        return names.join(' ');
    };
    QCOMPARE(checked("toolButton"), "Pencil");
    QCOMPARE(checked("optionButton"), "Small");
    for (int i = 0; i < 2; ++i) { // once more is no less
        editor.findChild<QPushButton*>("toolButton")->menu()->actions().at(2)->trigger();
        editor.findChild<QPushButton*>("optionButton")->menu()->actions().at(2)->trigger();
        QCOMPARE(checked("toolButton"), "Line");
        QCOMPARE(checked("optionButton"), "Large");
        QCOMPARE(descriptionOf(*editor.findChild<QPushButton*>("toolButton")), "Line");
    }
    editor.slotSelChangeTool(100);
    QCOMPARE(checked("toolButton"), "Select");
    QCOMPARE(checked("optionButton"), "Select area");
}

// The mark that a screen reader tells of is not painted.
void tst_Accessibility::menusLookAsBefore()
{
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    QMenu* menu = editor.findChild<QPushButton*>("toolButton")->menu();
    const QSize size = menu->sizeHint();
    const QImage checked = menu->grab().toImage();
    for (QAction* action : menu->actions())
        action->setCheckable(false);
    QCOMPARE(menu->sizeHint(), size);
    QVERIFY(support::sameImage(menu->grab().toImage(), checked));
}

void tst_Accessibility::buttonsArePressed()
{
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    editor.show();
    auto* button = editor.findChild<QPushButton*>("toolButton");
    QAccessibleInterface* own = interfaceOf(*button);
    QCOMPARE(own->role(), QAccessible::ButtonMenu);
    QVERIFY(own->state().hasPopup);
    bool wasOpen = false;
    QTimer::singleShot(500, button, [&] { // it runs its own event loop
        wasOpen = button->menu()->isVisible();
        button->menu()->close();
    });
    own->actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
    QTRY_VERIFY(wasOpen);

    auto* zoom = editor.findChild<QComboBox*>("zoomBox");
    QCOMPARE(interfaceOf(*zoom)->text(QAccessible::Value), "100%");
    interfaceOf(*zoom)->actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
    QTRY_VERIFY(zoom->view()->isVisible());
    QVERIFY(interfaceOf(*zoom)->state().expanded);
    zoom->hidePopup();
}

int main(int argc, char** argv)
{
    return support::run<tst_Accessibility>(argc, argv);
}

#include "tst_Accessibility.moc"
