#include "TextFixtures.h"

#include "KORVA_MainView.h"
#include "KORVA_ScrollView.h"

using support::sameImage;

namespace {

constexpr const char* ratioVariable = "QT_SCALE_FACTOR";
constexpr int zooms[] = {50, 100, 150, 200};

/// A keyboard on the screen, in the window; hidden while it is empty.
QRectF keyboard;
int timesShown = 0;

void showKeyboard(const QRectF& place)
{
    keyboard = place;
    emit QGuiApplication::inputMethod()->keyboardRectangleChanged();
}

} // namespace

// These stand before the toolkit's own, which tell of no keyboard where there is no input method.
QRectF QInputMethod::keyboardRectangle() const
{
    return keyboard;
}

bool QInputMethod::isVisible() const
{
    return !keyboard.isEmpty();
}

void QInputMethod::show()
{
    ++timesShown;
}

namespace {

/// An editor in a window, with the keyboard focus on the canvas and the text tool chosen.
struct Desk
{
    Desk()
    {
        editor.move(5, 3);
        window.resize(250, 240);
        window.show();
        (void)QTest::qWaitForWindowActive(&window);
        canvas.setFocus();
        QPixmap picture(200, 170);
        picture.fill();
        editor.setPixmap(&picture);
        editor.manager()->setCurrentTool(fixtures::Text);
    }

    [[nodiscard]] KORVA_Text& tool() const { return *editor.currentText(); }
    [[nodiscard]] QRect view() const
    {
        const QWidget& viewport = *canvas.scrollView()->viewport();
        return {viewport.mapTo(&window, QPoint(0, 0)), viewport.size()};
    }
    [[nodiscard]] QRect line() const
    {
        const QFontMetrics metrics(canvas.inputMethodQuery(Qt::ImFont).value<QFont>());
        const QRect caret = canvas.inputMethodQuery(Qt::ImCursorRectangle).toRect();
        const QPoint foot = canvas.mapTo(&window, caret.bottomLeft());
        return {foot - QPoint(0, metrics.ascent()), QSize(1, metrics.height())};
    }
    [[nodiscard]] QImage screen() { return window.grab().toImage(); }

    QWidget window;
    KORVA_EditCanvas editor{KORVA_COLOR_16BIT, &window};
    KORVA_Canvas& canvas = *editor.canvas();
    support::Gestures stylus{canvas};
};

QRect differing(const QImage& a, const QImage& b)
{
    QRect place;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            if (a.pixel(x, y) != b.pixel(x, y))
                place |= QRect(x, y, 1, 1);
        }
    }
    return place;
}

/// The screen's pixels that a rectangle of the window takes.
QRect onScreen(const QRectF& place, double ratio)
{
    const auto first = [ratio](double c) { return int(std::ceil(c * ratio)); };
    return {QPoint(first(place.left()), first(place.top())),
            QPoint(first(place.right()) - 1, first(place.bottom()) - 1)};
}

} // namespace

/// Where an input method and a keyboard on the screen find what is typed.
class tst_TextOnScreen : public support::TestCase
{
    Q_OBJECT

public:
    Q_INVOKABLE int caretOnScreen();

private slots:
    void cleanup() { keyboard = {}; }

    void theCaretIsToldWhereItIsSeen_data();
    void theCaretIsToldWhereItIsSeen();
    void theCaretIsToldAgainWhenItMoves();
    void aTapAsksForTheKeyboard();

    void theLineStaysAboveTheKeyboard_data();
    void theLineStaysAboveTheKeyboard();
    void aLineThatIsSeenStays();
    void theViewGoesBack_data();
    void theViewGoesBack();
    void theLineStaysInTheView();
};

void tst_TextOnScreen::theCaretIsToldWhereItIsSeen_data()
{
    QTest::addColumn<QByteArray>("ratio");
    for (const char* ratio : {"1", "1.5", "2"})
        QTest::newRow(ratio) << QByteArray(ratio);
}

void tst_TextOnScreen::theCaretIsToldWhereItIsSeen()
{
    QFETCH(const QByteArray, ratio);
    qputenv(ratioVariable, ratio);
    const support::ChildProcess child = support::ChildProcess::run("caretOnScreen");
    qunsetenv(ratioVariable);
    QVERIFY2(child.signal == 0 && child.exitCode == 0, qPrintable(child.output + child.errors));
}

int tst_TextOnScreen::caretOnScreen()
{
    const double ratio = qgetenv(ratioVariable).toDouble();
    const QInputMethod& method = *QGuiApplication::inputMethod();
    Desk desk;
    int wrong = 0;
    const auto expect = [&](const char* what, int zoom, const QRectF& told, const QRect& seen) {
        if (onScreen(told, ratio) == seen)
            return;
        ++wrong;
        qInfo() << what << "at" << zoom << "is told at" << onScreen(told, ratio) << "and seen at" << seen;
    };
    const auto beam = [&] {
        const QImage with = desk.screen();
        desk.tool().clearOldCursor();
        const QRect seen = differing(desk.screen(), with);
        QTimerEvent tick(1);
        QCoreApplication::sendEvent(&desk.tool(), &tick);
        return seen;
    };
    for (const int zoom : zooms) {
        desk.editor.setZoom(zoom);
        QCoreApplication::processEvents();
        KORVA_ScrollView& view = *desk.canvas.scrollView();
        for (const QPoint scrolled : {QPoint(0, 0), QPoint(37, 41)}) {
            view.setContentsPos(scrolled.x(), scrolled.y());
            const QRect seen = desk.canvas.visibleRegion().boundingRect();
            desk.stylus.click(seen.center());
            expect("the tapped caret", zoom, method.cursorRectangle(), beam());
            desk.stylus.key(Qt::Key_A, "a");
            expect("the caret behind a letter", zoom, method.cursorRectangle(), beam());
            view.setContentsPos(scrolled.x() + 5, scrolled.y() + 3);
            expect("the scrolled caret", zoom, method.cursorRectangle(), beam());
            expect("the anchor", zoom, method.anchorRectangle(), beam());
            const QRect part =
                desk.view() & QRect(desk.canvas.mapTo(&desk.window, QPoint(0, 0)), desk.canvas.size());
            if (method.inputItemClipRectangle() != QRectF(part))
                qInfo() << "at" << zoom << method.inputItemClipRectangle() << part << ++wrong;
        }
        desk.editor.clearCanvas();
    }
    return wrong;
}

void tst_TextOnScreen::theCaretIsToldAgainWhenItMoves()
{
    Desk desk;
    const QSignalSpy told(QGuiApplication::inputMethod(), &QInputMethod::cursorRectangleChanged);
    auto isTold = [&, before = told.size()]() mutable {
        return std::exchange(before, told.size()) < told.size();
    };
    desk.stylus.click({30, 40});
    QVERIFY(isTold());
    for (const char* key : {"a", "\r", "\b"}) {
        desk.stylus.key(*key == 'a' ? Qt::Key_A : *key == '\r' ? Qt::Key_Return : Qt::Key_Backspace, key);
        QVERIFY2(isTold(), key);
    }
    desk.tool().resetBuffer();
    QVERIFY(isTold());
    desk.tool().paintProportionBuffer();
    QVERIFY(isTold());
    desk.editor.manager()->setCurrentTool(fixtures::Pencil);
    QVERIFY(isTold());
}

void tst_TextOnScreen::aTapAsksForTheKeyboard()
{
    Desk desk;
    timesShown = 0;
    desk.stylus.drag({{30, 40}, {60, 40}});
    QCOMPARE(timesShown, 0);
    desk.stylus.click({30, 40});
    QCOMPARE(timesShown, 1);
    desk.stylus.click({60, 80});
    QCOMPARE(timesShown, 2);
}

void tst_TextOnScreen::theLineStaysAboveTheKeyboard_data()
{
    QTest::addColumn<int>("zoom");
    for (const int zoom : zooms)
        QTest::addRow("%d %%", zoom) << zoom;
}

void tst_TextOnScreen::theLineStaysAboveTheKeyboard()
{
    QFETCH(const int, zoom);
    Desk desk;
    desk.editor.setZoom(zoom);
    QCoreApplication::processEvents();
    desk.canvas.scrollView()->setContentsPos(20, 30);
    const QRect seen = desk.canvas.visibleRegion().boundingRect();
    desk.stylus.click({seen.left() + 20, seen.bottom() - 10});
    const QPoint place = desk.canvas.pos();
    const QRect line = desk.line();

    showKeyboard(QRectF(0, line.top() - 20, 250, 240));
    QCOMPARE(desk.line().bottom() + 1, line.top() - 20);
    QCOMPARE(desk.canvas.x(), place.x());
    const QImage before = desk.screen();
    desk.stylus.key(Qt::Key_G, "g");
    const QRect letter = differing(desk.screen(), before);
    QVERIFY(letter.height() > 5 &&
            letter.bottom() < line.top() - 20); // no part of it is under the keyboard
    desk.stylus.key(Qt::Key_Return, "\r");
    QCOMPARE(desk.line().bottom() + 1, line.top() - 20);
    QCOMPARE(desk.canvas.y(), place.y() - line.height() * 2 - 20);
    desk.stylus.key(Qt::Key_Backspace, "\b");
    QCOMPARE(desk.canvas.y(), place.y() - line.height() - 20);

    showKeyboard({});
    QCOMPARE(desk.canvas.pos(), place);
}

void tst_TextOnScreen::aLineThatIsSeenStays()
{
    Desk desk;
    desk.stylus.click({30, 60});
    const QPoint place = desk.canvas.pos();
    const QRect line = desk.line();
    for (const QRectF& beside : {QRectF(0, line.bottom() + 1, 250, 100), QRectF(0, 0, 250, line.top()),
                                 QRectF(line.right() + 30, line.top(), 100, 100)}) {
        showKeyboard(beside);
        QCOMPARE(desk.canvas.pos(), place);
    }
    desk.editor.manager()->setCurrentTool(fixtures::Pencil);
    showKeyboard(QRectF(0, line.top(), 250, 100));
    QCOMPARE(desk.canvas.pos(), place);
}

void tst_TextOnScreen::theViewGoesBack_data()
{
    using Way = void (*)(Desk&);
    QTest::addColumn<Way>("way");
    const auto row = [](const char* name, Way way) { QTest::newRow(name) << way; };
    row("with the keyboard", [](Desk&) { showKeyboard({}); });
    row("with the text", [](Desk& desk) { desk.editor.manager()->setCurrentTool(fixtures::Pencil); });
    row("with the focus", [](Desk& desk) { desk.canvas.clearFocus(); });
    row("with a text above", [](Desk& desk) { desk.stylus.click({30, 60}); });
}

void tst_TextOnScreen::theViewGoesBack()
{
    using Way = void (*)(Desk&);
    QFETCH(const Way, way);
    Desk desk;
    desk.stylus.click({30, 150});
    const QPoint place = desk.canvas.pos();
    const QPoint contents(desk.canvas.scrollView()->contentsX(), desk.canvas.scrollView()->contentsY());
    showKeyboard(QRectF(0, 140, 250, 100));
    QVERIFY(desk.canvas.y() < place.y());
    way(desk);
    QCOMPARE(desk.canvas.pos(), place);
    QCOMPARE(QPoint(desk.canvas.scrollView()->contentsX(), desk.canvas.scrollView()->contentsY()),
             contents);
}

void tst_TextOnScreen::theLineStaysInTheView()
{
    Desk desk;
    desk.stylus.click({30, 150});
    showKeyboard(desk.window.rect());
    QCOMPARE(desk.line().top(), desk.view().top());
}

int main(int argc, char** argv)
{
    return support::run<tst_TextOnScreen>(argc, argv);
}

#include "tst_TextOnScreen.moc"
