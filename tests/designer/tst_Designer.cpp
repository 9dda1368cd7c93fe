#include "support/Fingers.h"
#include "support/Gestures.h"
#include "support/Images.h"
#include "support/TestCase.h"
#include "ui_form.h"

#include <KORVA_Canvas.h>

#include <QPluginLoader>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QtUiTools/QUiLoader>

/// What Designer's form editor is to the widgets in it. The guard goes by the name; Designer itself takes
/// the mouse, and nothing else, from them.
class QDesignerFormWindowInterface : public QWidget
{
    Q_OBJECT

public:
    QDesignerFormWindowInterface() { qApp->installEventFilter(this); }
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const auto* const mouse = dynamic_cast<QMouseEvent*>(event);
        auto* const widget = qobject_cast<QWidget*>(watched);
        m_taken += mouse && widget && isAncestorOf(widget);
        return mouse && widget && isAncestorOf(widget);
    }
    /// How many events of the mouse it took.
    [[nodiscard]] int taken() const { return m_taken; }

private:
    int m_taken = 0;
};

namespace {

const QColor formColor(27, 102, 219);
constexpr int formWidth = 5; // of the third size

std::unique_ptr<QWidget> loaded(QIODevice& form)
{
    QUiLoader loader;
    loader.clearPluginPaths();
    loader.addPluginPath(KORVA_DESIGNER_PLUGIN);
    return std::unique_ptr<QWidget>(loader.load(&form));
}

std::unique_ptr<QWidget> exampleForm(bool isCompiled)
{
    if (!isCompiled) {
        QFile file(KORVA_SOURCE_DIR "/examples/designer/form.ui");
        return file.open(QIODevice::ReadOnly) ? loaded(file) : nullptr;
    }
    auto window = std::make_unique<QWidget>();
    Ui::Form().setupUi(window.get());
    return window;
}

} // namespace

/// The plugin for Qt Designer, and the forms that are made with it.
class tst_Designer : public support::TestCase
{
    Q_OBJECT

    [[nodiscard]] QList<QDesignerCustomWidgetInterface*> offered() const
    {
        const auto* const plugin =
            qobject_cast<QDesignerCustomWidgetCollectionInterface*>(m_plugin.instance());
        return plugin ? plugin->customWidgets() : QList<QDesignerCustomWidgetInterface*>();
    }
    /// As Designer and a loader make it.
    [[nodiscard]] KORVA_EditCanvas* newEditor(QWidget* parent) const
    {
        return qobject_cast<KORVA_EditCanvas*>(offered().constFirst()->createWidget(parent));
    }

    mutable QPluginLoader m_plugin;

private slots:
    void initTestCase();
    void tellsWhatDesignerShows_data();
    void tellsWhatDesignerShows();
    void aFormDraws_data();
    void aFormDraws();
    void aFormsPropertiesAreInForce_data();
    void aFormsPropertiesAreInForce();
    void propertiesReadAsTheyWereWritten_data();
    void propertiesReadAsTheyWereWritten();
    void aFormThatBeginsWithTextHasNoChanges();
    void whatIsNotPossibleIsNotTakenIn_data();
    void whatIsNotPossibleIsNotTakenIn();
    void propertiesFollowThePerson();
    void aFormThatIsEditedIsLeftAlone_data();
    void aFormThatIsEditedIsLeftAlone();
    void nothingRunsInAFormAtRest();
};

void tst_Designer::initTestCase()
{
    m_plugin.setFileName(KORVA_DESIGNER_PLUGIN "/libkorva-designer.so");
    QVERIFY2(m_plugin.load(), qPrintable(m_plugin.errorString()));
    QCOMPARE(offered().size(), 2);
}

void tst_Designer::tellsWhatDesignerShows_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QSize>("size");
    QTest::newRow("editor") << 0 << "KORVA_EditCanvas" << QSize(320, 240);
    QTest::newRow("preview") << 1 << "KORVA_PreviewWidget" << QSize(204, 171);
}

void tst_Designer::tellsWhatDesignerShows()
{
    QFETCH(const int, index);
    QFETCH(const QString, name);
    QFETCH(const QSize, size);
    QDesignerCustomWidgetInterface* const widget = offered().at(index);
    QCOMPARE(widget->name(), name);
    QCOMPARE(widget->includeFile(), name + ".h");
    QVERIFY(QFile::exists(KORVA_SOURCE_DIR "/src/" + widget->includeFile()));
    QVERIFY(!widget->group().isEmpty());
    QVERIFY(!widget->toolTip().isEmpty());
    QVERIFY(!widget->whatsThis().isEmpty());
    QVERIFY(!widget->isContainer());
    QCOMPARE(widget->icon().pixmap(24, 24).size(), QSize(24, 24));
    QVERIFY(support::inkCount(widget->icon().pixmap(24, 24).toImage()) > 0);

    QByteArray xml = widget->domXml().toUtf8();
    QXmlStreamReader hints(xml);
    while (!hints.atEnd()) {
        hints.readNext();
        if (hints.isStartElement() && hints.name() == u"stringpropertyspecification")
            QVERIFY(hints.attributes().hasAttribute("type")); // Designer refuses the widget without
    }
    QVERIFY2(!hints.hasError(), qPrintable(hints.errorString()));
    QBuffer form(&xml);
    QVERIFY(form.open(QIODevice::ReadOnly));
    const auto made = loaded(form);
    QVERIFY(made);
    QCOMPARE(made->metaObject()->className(), name.toLatin1());
    QCOMPARE(made->size(), size);
}

void tst_Designer::aFormDraws_data()
{
    QTest::addColumn<bool>("isCompiled");
    QTest::newRow("loaded") << false;
    QTest::newRow("compiled") << true;
}

void tst_Designer::aFormDraws()
{
    QFETCH(const bool, isCompiled);
    const auto window = exampleForm(isCompiled);
    QVERIFY(window);
    auto* const editor = window->findChild<KORVA_EditCanvas*>("editor");
    auto* const preview = window->findChild<KORVA_PreviewWidget*>("preview");
    auto* const undo = window->findChild<QPushButton*>("undoButton");
    QVERIFY(editor && preview && undo);
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));

    const QPoint origin = editor->canvas()->mapTo(window.get(), QPoint());
    const QImage blank = editor->snapshot();
    QCOMPARE(support::inkCount(blank), 0);
    support::Gestures(*window).drag({origin + QPoint(20, 60), origin + QPoint(120, 60)});
    const QImage drawn = editor->snapshot();
    for (int y = 60 - formWidth / 2; y <= 60 + formWidth / 2; ++y)
        QCOMPARE(drawn.pixelColor(70, y), formColor);
    QCOMPARE(drawn.pixelColor(70, 60 - formWidth), QColor(Qt::white));
    QCOMPARE(window->grab().toImage().pixelColor(origin + QPoint(70, 60)), formColor);
    QVERIFY(undo->isEnabled()); // by the form's own connection

    QCOMPARE(preview->grab().toImage().pixelColor(preview->rect().center()),
             preview->palette().color(QPalette::Window));
    preview->setImage(drawn);
    QCOMPARE(preview->grab().toImage().pixelColor(preview->rect().center()), QColor(Qt::white));

    editor->undo();
    QVERIFY(support::sameImage(editor->snapshot(), blank));
    QVERIFY(!undo->isEnabled());
}

void tst_Designer::aFormsPropertiesAreInForce_data()
{
    aFormDraws_data();
}

void tst_Designer::aFormsPropertiesAreInForce()
{
    QFETCH(const bool, isCompiled);
    const auto window = exampleForm(isCompiled);
    QVERIFY(window);
    const auto* const editor = window->findChild<KORVA_EditCanvas*>("editor");
    QVERIFY(editor);
    QCOMPARE(editor->tool(), int(KORVA_TOOL_LINE));
    QCOMPARE(editor->option(), int(KORVA_OPTION_LARGE));
    QCOMPARE(editor->zoomIndex(), int(KORVA_ZOOM_100));
    QCOMPARE(editor->color(), formColor);
    QCOMPARE(editor->undoSteps(), 20);
    QCOMPARE(editor->manners().words(), QStringList({"round-pencil", "true-pixels"}));
    QVERIFY(editor->features().controls && editor->features().pasting);
    QVERIFY(!editor->features().opening && !editor->features().dialogs);
    QVERIFY(!editor->hasChanges());
    QCOMPARE(editor->minimumSize(), QSize(240, 225));
}

void tst_Designer::propertiesReadAsTheyWereWritten_data()
{
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QVariant>("expected"); // if it reads otherwise
    const auto row = [](const char* property, const QVariant& value, const QVariant& expected = {}) {
        QTest::addRow("%s %s", property, qPrintable(QDebug::toString(value)))
            << QByteArray(property) << value << (expected.isValid() ? expected : value);
    };
    for (int tool = KORVA_EditCanvas::Pencil; tool <= KORVA_EditCanvas::Hand; ++tool)
        row("tool", QVariant::fromValue(KORVA_EditCanvas::Tool(tool)));
    row("tool", "Eraser", QVariant::fromValue(KORVA_EditCanvas::Eraser)); // as a form's loader has it
    for (int zoom = KORVA_EditCanvas::Zoom50; zoom <= KORVA_EditCanvas::FitToPage; ++zoom)
        row("zoomRow", QVariant::fromValue(KORVA_EditCanvas::ZoomRow(zoom)));
    row("option", int(KORVA_OPTION_MEDIUM));
    for (int bit = KORVA_EditCanvas::Controls; bit <= KORVA_EditCanvas::Editing; bit <<= 1)
        row("offers", QVariant::fromValue(KORVA_EditCanvas::Offers::fromInt(bit)));
    row("mannerWords", KORVA_Manners::modern().words());
    row("undoSteps", 7);
    row("color", QColor(1, 2, 3));
    row("outlineColor", QColor(4, 5, 6));
    row("bold", true);
}

void tst_Designer::propertiesReadAsTheyWereWritten()
{
    QFETCH(const QByteArray, property);
    QFETCH(const QVariant, value);
    QFETCH(const QVariant, expected);
    const std::unique_ptr<KORVA_EditCanvas> editor(newEditor(nullptr));
    QVERIFY(editor->setProperty(property, value));
    QVERIFY(!editor->hasChanges());
    QCOMPARE(editor->property(property), expected);
    editor->show();
    QCOMPARE(editor->property(property), expected);
    QVERIFY(!editor->hasChanges());
}

void tst_Designer::aFormThatBeginsWithTextHasNoChanges()
{
    const std::unique_ptr<KORVA_EditCanvas> editor(newEditor(nullptr));
    editor->setTool(KORVA_EditCanvas::Text);
    editor->setOption(KORVA_OPTION_LARGE);
    editor->setZoomRow(KORVA_EditCanvas::FitToPage);
    editor->setColor(formColor);
    editor->setBold(true);
    editor->show();
    QVERIFY(!editor->hasChanges());

    support::Gestures person(*editor->canvas());
    person.click({10, 10});
    person.key(Qt::Key_A, "a");
    editor->setTool(KORVA_EditCanvas::Pencil);
    QVERIFY(editor->hasChanges()); // the letter
}

void tst_Designer::whatIsNotPossibleIsNotTakenIn_data()
{
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QVariant>("expected");
    QTest::newRow("tool") << QByteArray("tool") << QVariant(99)
                          << QVariant::fromValue(KORVA_EditCanvas::Pencil);
    QTest::newRow("tool below") << QByteArray("tool") << QVariant(-1)
                                << QVariant::fromValue(KORVA_EditCanvas::Pencil);
    QTest::newRow("tool by name") << QByteArray("tool") << QVariant("Chisel")
                                  << QVariant::fromValue(KORVA_EditCanvas::Pencil);
    QTest::newRow("option") << QByteArray("option") << QVariant(9) << QVariant(0);
    QTest::newRow("option below") << QByteArray("option") << QVariant(-1) << QVariant(0);
    QTest::newRow("zoom") << QByteArray("zoomRow") << QVariant(77)
                          << QVariant::fromValue(KORVA_EditCanvas::Zoom100);
    QTest::newRow("manners") << QByteArray("mannerWords") << QVariant(QStringList{"round-pencil", "polite"})
                             << QVariant(QStringList());
    QTest::newRow("steps") << QByteArray("undoSteps") << QVariant(-5) << QVariant(1);
    QTest::newRow("color") << QByteArray("color") << QVariant(QColor())
                           << QVariant::fromValue(QColor(255, 0, 0));
    QTest::newRow("offers") << QByteArray("offers") << QVariant(0x1ff)
                            << QVariant::fromValue(KORVA_EditCanvas::Offers::fromInt(0xff));
}

void tst_Designer::whatIsNotPossibleIsNotTakenIn()
{
    QFETCH(const QByteArray, property);
    QFETCH(const QVariant, value);
    QFETCH(const QVariant, expected);
    const std::unique_ptr<KORVA_EditCanvas> editor(newEditor(nullptr));
    editor->setProperty(property, value);
    QCOMPARE(editor->property(property), expected);
}

void tst_Designer::propertiesFollowThePerson()
{
    const std::unique_ptr<KORVA_EditCanvas> editor(newEditor(nullptr));
    editor->selectTool(KORVA_TOOL_TEXT);
    editor->selectOption(KORVA_OPTION_MEDIUM);
    editor->selectZoom(KORVA_ZOOM_200);
    QCOMPARE(editor->property("tool").toInt(), int(KORVA_TOOL_TEXT));
    QCOMPARE(editor->property("option").toInt(), int(KORVA_OPTION_MEDIUM));
    QCOMPARE(editor->property("zoomRow").toInt(), int(KORVA_ZOOM_200));
}

void tst_Designer::aFormThatIsEditedIsLeftAlone_data()
{
    QTest::addColumn<bool>("isEdited");
    QTest::newRow("edited") << true;
    QTest::newRow("in use") << false;
}

void tst_Designer::aFormThatIsEditedIsLeftAlone()
{
    QFETCH(const bool, isEdited);
    const std::unique_ptr<QWidget> form(isEdited ? new QDesignerFormWindowInterface : new QWidget);
    form->resize(320, 240);
    KORVA_EditCanvas* const editor = newEditor(form.get());
    editor->setMannerWords({"wheel-zooms"});
    form->show();
    QVERIFY(QTest::qWaitForWindowExposed(form.get()));

    support::Fingers(*editor->canvas()).drag({{20, 20}, {60, 60}});
    if (const auto* const edited = qobject_cast<QDesignerFormWindowInterface*>(form.get()))
        QVERIFY(edited->taken() > 0); // a finger selects as the mouse does
    QTabletEvent tablet(QEvent::TabletPress, QPointingDevice::primaryPointingDevice(), {90, 20}, {90, 20},
                        1, 0, 0, 0, 0, 0, {}, Qt::LeftButton, Qt::LeftButton);
    QCoreApplication::sendEvent(editor->canvas(), &tablet);
    QWheelEvent wheel({30, 30}, {30, 30}, {}, {0, 120}, {}, {}, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(editor->canvas(), &wheel);
    QCOMPARE(support::inkCount(editor->snapshot()) == 0, isEdited);
    QCOMPARE(editor->hasChanges(), !isEdited);
    QCOMPARE(editor->zoomIndex() == KORVA_ZOOM_100, isEdited);
}

void tst_Designer::nothingRunsInAFormAtRest()
{
    const auto window = exampleForm(false);
    QVERIFY(window);
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    QList<QObject*> all = window->findChildren<QObject*>();
    QVERIFY(all.size() > 10);
    QCoreApplication::processEvents();
    for (QObject* each : all)
        QVERIFY2(QAbstractEventDispatcher::instance()->registeredTimers(each).isEmpty(),
                 each->metaObject()->className());
}

int main(int argc, char** argv)
{
    return support::run<tst_Designer>(argc, argv);
}

#include "tst_Designer.moc"
