#include "Fixtures.h"

#include "KORVA_MainView.h"
#include "KORVA_ScrollView.h"

namespace {

constexpr QSize editorSize(240, 225);
constexpr int fitToPage = 4;

/// An editor on the size that everything in it was laid out for, and a person's hand on it.
struct Desk
{
    Desk()
    {
        editor.show();
        fixtures::watchEditor(log, editor);
    }

    [[nodiscard]] QPushButton* button(const char* name)
    {
        return editor.findChild<QPushButton*>(QString::fromLatin1(name));
    }
    void choose(const char* buttonName, int row)
    {
        button(buttonName)->menu()->actions().at(row)->trigger();
    }
    /// By its row in the pop-up.
    void tool(int row) { choose("toolButton", row); }
    void option(int row) { choose("optionButton", row); }
    void zoom(int row)
    {
        auto* box = editor.findChild<QComboBox*>("zoomBox");
        box->setCurrentIndex(row);
        emit box->activated(row);
    }
    void draw(std::initializer_list<QPoint> path) { support::Gestures(*editor.canvas()).drag(path); }
    void type(const QString& text)
    {
        for (const QChar letter : text)
            QTest::keyClick(editor.canvas(), letter.toLatin1());
    }
    void open(QSize size)
    {
        QPixmap picture = QPixmap::fromImage(support::mosaic(size));
        editor.setPixmap(&picture);
    }

    KORVA_EditCanvas editor{KORVA_COLOR_16BIT};
    support::SignalRecorder log;
};

enum ToolRow { Select, Eraser, Line, Pencil, Text, Rectangle, Ellipse };

struct Scene
{
    const char* name;
    void (*play)(Desk& desk);
};

const Scene scenes[] = {
    {"start", [](Desk&) {}},
    {"select", [](Desk& d) { d.tool(Select); }},
    {"hand", [](Desk& d) { d.tool(Select), d.option(1); }},
    {"eraser-3", [](Desk& d) { d.tool(Eraser), d.option(2); }},
    {"line-2", [](Desk& d) { d.tool(Line), d.option(1); }},
    {"text-large", [](Desk& d) { d.tool(Text), d.option(2); }},
    {"rectangle-filled", [](Desk& d) { d.tool(Rectangle), d.option(1); }},
    {"ellipse", [](Desk& d) { d.tool(Ellipse), d.option(0); }},
    {"half", [](Desk& d) { d.zoom(0); }},
    {"one-and-a-half", [](Desk& d) { d.zoom(2); }},
    {"double", [](Desk& d) { d.zoom(3); }},
    {"fitted",
     [](Desk& d) {
         d.open({352, 288}), d.zoom(fitToPage);
     }},
    {"narrow",
     [](Desk& d) {
         d.open({60, 288});
     }},
    {"scrolled",
     [](Desk& d) {
         d.open({352, 288}), d.editor.mainView()->scrollView()->setContentsPos(70, 50);
     }},
    {"stroke",
     [](Desk& d) {
         d.draw({{20, 20}, {90, 60}, {30, 120}, {180, 150}});
     }},
    {"stroke-undone",
     [](Desk& d) {
         d.draw({{20, 20}, {90, 60}}), d.editor.undo();
     }},
    {"stroke-redone",
     [](Desk& d) {
         d.draw({{20, 20}, {90, 60}}), d.editor.undo(), d.editor.redo();
     }},
    {"stroke-5-at-150",
     [](Desk& d) {
         d.zoom(2), d.option(2), d.draw({{21, 23}, {97, 61}, {35, 120}});
     }},
    {"line-preview",
     [](Desk& d) {
         d.open({352, 288}), d.tool(Line), d.option(1);
         support::Gestures hand(*d.editor.canvas());
         hand.press({30, 40});
         hand.move({150, 130});
     }},
    {"rectangle-preview-at-200",
     [](Desk& d) {
         d.zoom(3), d.tool(Rectangle);
         support::Gestures hand(*d.editor.canvas());
         hand.press({31, 40});
         hand.move({151, 131});
     }},
    {"shapes",
     [](Desk& d) {
         d.tool(Rectangle), d.option(1), d.draw({{20, 20}, {60, 70}, {90, 80}});
         d.tool(Ellipse), d.option(0), d.draw({{60, 60}, {80, 100}, {170, 150}});
         d.option(1), d.draw({{120, 20}, {180, 60}});
     }},
    {"erased",
     [](Desk& d) {
         d.open({352, 288}), d.tool(Eraser), d.draw({{20, 20}, {60, 70}, {150, 90}});
     }},
    {"typed",
     [](Desk& d) {
         d.tool(Text), d.option(1), d.draw({{30, 60}}), d.type("Korva 12");
     }},
    {"typed-and-drawn",
     [](Desk& d) {
         d.tool(Text), d.option(1), d.draw({{30, 60}}), d.type("Korva 12"), d.tool(Pencil);
     }},
    {"framing",
     [](Desk& d) {
         d.open({352, 288}), d.tool(Select);
         support::Gestures hand(*d.editor.canvas());
         hand.press({30, 40});
         hand.move({150, 130});
     }},
    {"lifted",
     [](Desk& d) {
         d.open({352, 288}), d.tool(Select), d.draw({{30, 40}, {90, 90}, {150, 130}});
     }},
    {"lifted-at-150",
     [](Desk& d) {
         d.open({352, 288}), d.zoom(2), d.tool(Select), d.draw({{30, 40}, {90, 90}, {150, 130}});
     }},
    {"cut",
     [](Desk& d) {
         d.open({352, 288}), d.tool(Select), d.draw({{30, 40}, {90, 90}, {150, 130}}), d.editor.cut();
     }},
    {"pasted",
     [](Desk& d) {
         QGuiApplication::clipboard()->setImage(support::mosaic({70, 50})), d.editor.paste();
     }},
    {"stamped-and-merged",
     [](Desk& d) {
         QPixmap stamp = QPixmap::fromImage(support::mosaic({32, 40}));
         d.editor.insertStamp(stamp), d.draw({{120, 120}, {150, 150}});
     }},
    {"all-selected",
     [](Desk& d) {
         d.open({100, 80}), d.editor.selectAll();
     }},
    {"new-stamp-canvas", [](Desk& d) { d.editor.chooseCanvas(KORVA_CANVAS_4BIT, 32, 40); }},
    {"cleared",
     [](Desk& d) {
         d.open({352, 288}), d.editor.clearCanvas();
     }},
    {"button-down", [](Desk& d) { d.button("toolButton")->setDown(true); }},
    {"disabled", [](Desk& d) { d.editor.setEnabled(false); }},
};

/// Class, name and place of each widget that can be seen, and what the host has heard.
QByteArray facts(Desk& desk)
{
    QByteArray text;
    const std::function<void(QWidget*, int)> describe = [&](QWidget* widget, int depth) {
        const QRect place = widget->geometry();
        text += QByteArray(depth, ' ') + widget->metaObject()->className() + ' ' +
                widget->objectName().toLatin1() +
                QByteArray::fromStdString(QString(" %1,%2 %3x%4\n")
                                              .arg(place.x())
                                              .arg(place.y())
                                              .arg(place.width())
                                              .arg(place.height())
                                              .toStdString());
        for (QWidget* child : widget->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
            if (child->isVisibleTo(widget) && !child->isWindow())
                describe(child, depth + 1);
        }
    };
    describe(&desk.editor, 0);
    return text + desk.log.taken().join('\n').toUtf8() + '\n';
}

} // namespace

/// What the editor shows, where it has its parts and what it tells at 240 × 225, against records of its
/// first release: whoever laid out a device around it finds everything where it was. With
/// KORVA_RECORD_LOOK=folder in the environment the records are written instead.
class tst_ClassicLook : public support::TestCase
{
    Q_OBJECT

private slots:
    void isAsItWas_data();
    void isAsItWas();
};

void tst_ClassicLook::isAsItWas_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < int(std::size(scenes)); ++i)
        QTest::newRow(scenes[i].name) << i;
}

void tst_ClassicLook::isAsItWas()
{
    QFETCH(int, index);
    Desk desk;
    QCOMPARE(desk.editor.size(), editorSize);
    scenes[index].play(desk);
    QTest::qWait(20); // what is repainted with the screen's next picture
    const QImage shown = desk.editor.grab().toImage().convertToFormat(QImage::Format_RGB32);
    const QByteArray told = facts(desk);

    const QString record = qEnvironmentVariable("KORVA_RECORD_LOOK");
    const QString name = (record.isEmpty() ? QString(KORVA_SOURCE_DIR "/tests/src/look") : record) + '/' +
                         scenes[index].name;
    QFile file(name + ".txt");
    if (!record.isEmpty()) {
        QVERIFY(shown.save(name + ".png"));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(told) == told.size());
        return;
    }
    const QImage expected(name + ".png");
    QVERIFY(support::sameImage(shown, expected.convertToFormat(QImage::Format_RGB32)));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(QString::fromUtf8(told), QString::fromUtf8(file.readAll()));
}

int main(int argc, char** argv)
{
    return support::run<tst_ClassicLook>(argc, argv);
}

#include "tst_ClassicLook.moc"
