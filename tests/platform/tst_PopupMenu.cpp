#include "UTIL_PopupMenu.h"
#include "UTIL_Skin.h"
#include "support/Images.h"
#include "support/TestCase.h"

namespace {

using Size = UTIL_Skin::Size;

constexpr QRect windowPlace(100, 150, 240, 320);
constexpr int manyRows = 20;
constexpr int fewRows = 5;
constexpr int arrow = 16; // high

/// What a widget was asked to paint.
struct Painted : QObject
{
    QRegion region;

    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            region += static_cast<QPaintEvent*>(event)->region();
        return false;
    }
};

} // namespace

/// A menu with more rows than its window, worked by wheel, finger and keys.
class tst_PopupMenu : public support::TestCase
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void aMenuThatFitsIsAsAnyOther();
    void aCheckedRowLooksAsTheOthers();
    void itsEdgeIsSeenOnADarkGround();
    void aTallMenuFillsItsWindow();
    void theWheelScrolls();
    void whatScrollingShowsIsPaintedAnew();
    void aFingerScrollsAndChoosesNothing();
    void aTapChoosesTheRowUnderTheFinger();
    void aTapAfterScrollingChoosesWhatIsSeen();
    void keysBringTheirRowIntoSight();
    void arrowsScrollAndChooseNothing();
    void noRowIsCutWithoutAnArrow();
    void itOpensAtItsTopAgain();

private:
    void open(int rows);
    void send(QEvent::Type type, QPoint onScreen, Qt::MouseButtons buttons);
    void press(QPoint at) { send(QEvent::MouseButtonPress, at, Qt::LeftButton); }
    void drag(QPoint to) { send(QEvent::MouseMove, to, Qt::LeftButton); }
    void release(QPoint at) { send(QEvent::MouseButtonRelease, at, Qt::NoButton); }
    void turnWheel(int angle);

    /// In the menu.
    [[nodiscard]] int scrolled() const { return windowPlace.top() - m_menu->y(); }
    [[nodiscard]] int furthest() const { return m_menu->height() - windowPlace.height(); }
    [[nodiscard]] QRect seen() const { return {0, scrolled(), m_menu->width(), windowPlace.height()}; }
    [[nodiscard]] QRect placeOf(int row) const { return m_menu->actionGeometry(m_menu->actions()[row]); }
    [[nodiscard]] QPoint onScreen(int row) const { return m_menu->mapToGlobal(placeOf(row).center()); }
    /// Whether an arrow covers the edge: its own pixels are there, from one side to the other.
    [[nodiscard]] bool hasArrow(bool above) const;

    std::unique_ptr<QWidget> m_window;
    UTIL_PopupMenu* m_menu = nullptr;
    QStringList m_chosen;
};

void tst_PopupMenu::init()
{
    support::TestCase::init();
    m_window = std::make_unique<QWidget>();
    m_window->setGeometry(windowPlace);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    m_chosen.clear();
}

void tst_PopupMenu::cleanup()
{
    m_menu->close();
    m_window.reset();
}

void tst_PopupMenu::open(int rows)
{
    m_menu = new UTIL_PopupMenu(m_window.get());
    for (int row = 0; row < rows; ++row)
        m_menu->addAction(QString("Row number %1").arg(row));
    connect(m_menu, &QMenu::triggered, this,
            [this](const QAction* action) { m_chosen << action->text().section(' ', -1); });
    m_menu->popup(windowPlace.topLeft() + QPoint(20, 100));
    QVERIFY(QTest::qWaitForWindowExposed(m_menu));
}

void tst_PopupMenu::send(QEvent::Type type, QPoint onScreen, Qt::MouseButtons buttons)
{
    QMouseEvent event(type, m_menu->mapFromGlobal(QPointF(onScreen)), onScreen,
                      type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(m_menu, &event);
}

void tst_PopupMenu::turnWheel(int angle)
{
    const QPoint at = windowPlace.center();
    QWheelEvent event(m_menu->mapFromGlobal(QPointF(at)), at, {}, QPoint(0, angle), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(m_menu, &event);
}

bool tst_PopupMenu::hasArrow(bool above) const
{
    QRect band = seen();
    band.setTop(above ? band.top() : band.bottom() + 1 - arrow);
    band.setHeight(arrow);
    const QImage shown = m_menu->grab(band.adjusted(1, 0, -1, 0)).toImage();
    QImage empty = shown;
    empty.fill(m_menu->palette().color(QPalette::Window));
    const int middle = shown.width() / 2;
    const int half = Size::chevron + Size::focusWidth;
    const auto isEmpty = [&](int left, int width) {
        const QRect part(left, 1, width, shown.height() - 2); // the edge is the menu's
        return shown.copy(part) == empty.copy(part);
    };
    return isEmpty(0, middle - half) && isEmpty(middle + half, shown.width() - middle - half) &&
           !isEmpty(middle - half, 2 * half);
}

// --- One that fits

void tst_PopupMenu::aMenuThatFitsIsAsAnyOther()
{
    open(fewRows);
    QCOMPARE(m_menu->geometry(), QRect(windowPlace.topLeft() + QPoint(20, 100), m_menu->sizeHint()));
    QVERIFY(m_menu->mask().isEmpty());
    QMenu plain;
    plain.setStyle(m_menu->style());
    plain.setPalette(m_menu->palette());
    plain.setFont(m_menu->font());
    for (const QAction* action : m_menu->actions())
        plain.addAction(action->text());
    plain.popup({});
    QCOMPARE(m_menu->grab().toImage(), plain.grab().toImage());
    plain.close();

    const QRect before = m_menu->geometry();
    turnWheel(-120);
    QCOMPARE(m_menu->geometry(), before);
    press(onScreen(1));
    drag(onScreen(3)); // chooses where it ends, as menus do
    release(onScreen(3));
    QCOMPARE(m_chosen, QStringList("3"));
    QVERIFY(m_menu->isHidden());
}

void tst_PopupMenu::aCheckedRowLooksAsTheOthers()
{
    open(fewRows);
    const QImage plain = m_menu->grab().toImage();
    QActionGroup alternatives(nullptr);
    for (QAction* row : m_menu->actions())
        row->setCheckable(true);
    m_menu->actions().at(1)->setChecked(true);
    QVERIFY(support::sameImage(m_menu->grab().toImage(), plain));
    for (QAction* row : m_menu->actions())
        alternatives.addAction(row);
    QVERIFY(m_menu->actions().at(1)->isChecked());
    QVERIFY(support::sameImage(m_menu->grab().toImage(), plain));
}

void tst_PopupMenu::itsEdgeIsSeenOnADarkGround()
{
    const QPalette before = QApplication::palette();
    const auto restored = qScopeGuard([&before] { QApplication::setPalette(before); });
    QApplication::setPalette(QPalette(QColor(0x30, 0x30, 0x30), QColor(0x30, 0x30, 0x30)));
    const QColor edge = UTIL_Skin::color(UTIL_Skin::Color::Edge);
    open(fewRows);
    const QImage shown = m_menu->grab().toImage();
    QImage expected = shown;
    {
        QPainter painter(&expected);
        painter.setPen(edge);
        painter.drawRect(shown.rect().adjusted(0, 0, -1, -1));
    }
    QVERIFY(support::sameImage(shown, expected));
    for (const QPoint inside :
         {QPoint(1, 1), shown.rect().center(), shown.rect().bottomRight() - QPoint(1, 1)})
        QVERIFY(shown.pixelColor(inside) != edge);
}

// --- One that doesn't

void tst_PopupMenu::aTallMenuFillsItsWindow()
{
    open(manyRows);
    QVERIFY(m_menu->height() > windowPlace.height());
    QCOMPARE(scrolled(), 0);
    QCOMPARE(m_menu->mask(), QRegion(seen()));
    QVERIFY(m_menu->x() >= windowPlace.left());
    QVERIFY(m_menu->geometry().right() <= windowPlace.right());
    QCOMPARE(placeOf(manyRows - 1).height(), placeOf(0).height());
    QVERIFY(placeOf(manyRows - 1).bottom() < m_menu->height());
}

void tst_PopupMenu::theWheelScrolls()
{
    open(manyRows);
    turnWheel(-120);
    QCOMPARE(scrolled(), Size::menuRowHeight);
    turnWheel(-240);
    QCOMPARE(scrolled(), 3 * Size::menuRowHeight);
    turnWheel(120);
    QCOMPARE(scrolled(), 2 * Size::menuRowHeight);
    QCOMPARE(m_menu->mask(), QRegion(seen()));
    turnWheel(-120 * manyRows);
    QCOMPARE(scrolled(), furthest());
    turnWheel(120 * manyRows);
    QCOMPARE(scrolled(), 0);
    QCOMPARE(m_chosen, QStringList());
    QVERIFY(m_menu->isVisible());
}

void tst_PopupMenu::whatScrollingShowsIsPaintedAnew()
{
    open(manyRows);
    QCoreApplication::processEvents();
    Painted painted;
    m_menu->installEventFilter(&painted);
    turnWheel(-120);
    QVERIFY(scrolled() > 0);
    QCoreApplication::processEvents();
    QVERIFY(QRegion(seen()).subtracted(painted.region).isEmpty()); // the arrows are elsewhere now
}

void tst_PopupMenu::aFingerScrollsAndChoosesNothing()
{
    open(manyRows);
    const QPoint at = onScreen(6);
    press(at);
    for (int moved = 10; moved <= 90; moved += 10)
        drag(at - QPoint(0, moved));
    QCOMPARE(scrolled(), 90); // with the finger
    release(at - QPoint(0, 90));
    QCOMPARE(scrolled(), 90);
    QCOMPARE(m_chosen, QStringList());
    QVERIFY(m_menu->isVisible());
    QVERIFY(!m_menu->activeAction());

    press(at); // and back, beyond the end
    drag(at + QPoint(0, 60));
    QCOMPARE(scrolled(), 30);
    drag(at + QPoint(0, 160));
    QCOMPARE(scrolled(), 0);
    release(at + QPoint(0, 160));
    QCOMPARE(m_chosen, QStringList());
}

void tst_PopupMenu::aTapChoosesTheRowUnderTheFinger()
{
    open(manyRows);
    const QPoint at = onScreen(4);
    press(at);
    drag(at + QPoint(3, 2)); // fingers do
    release(at + QPoint(3, 2));
    QCOMPARE(m_chosen, QStringList("4"));
    QVERIFY(m_menu->isHidden());
}

void tst_PopupMenu::aTapAfterScrollingChoosesWhatIsSeen()
{
    open(manyRows);
    turnWheel(-120 * manyRows);
    const QPoint at = onScreen(manyRows - 1);
    QVERIFY(windowPlace.contains(at));
    press(at);
    release(at);
    QCOMPARE(m_chosen, QStringList(QString::number(manyRows - 1)));
}

void tst_PopupMenu::keysBringTheirRowIntoSight()
{
    open(manyRows);
    const auto isInSight = [this](int row) {
        const QRect between =
            seen().adjusted(0, hasArrow(true) ? arrow : 0, 0, hasArrow(false) ? -arrow : 0);
        return m_menu->activeAction() == m_menu->actions()[row] && between.contains(placeOf(row));
    };
    for (int row = 0; row < manyRows; ++row) {
        QTest::keyClick(m_menu, Qt::Key_Down);
        QVERIFY2(isInSight(row), qPrintable(QString::number(row)));
    }
    QVERIFY(scrolled() > 0);
    for (int row = manyRows - 2; row >= 0; --row) {
        QTest::keyClick(m_menu, Qt::Key_Up);
        QVERIFY2(isInSight(row), qPrintable(QString::number(row)));
    }
    QTest::keyClick(m_menu, Qt::Key_Up); // from the first to the last
    QVERIFY(isInSight(manyRows - 1));
    QTest::keyClick(m_menu, Qt::Key_Return);
    QCOMPARE(m_chosen, QStringList(QString::number(manyRows - 1)));
}

void tst_PopupMenu::arrowsScrollAndChooseNothing()
{
    open(manyRows);
    const QPoint above(windowPlace.center().x(), windowPlace.top() + arrow / 2);
    const QPoint below(windowPlace.center().x(), windowPlace.bottom() - arrow / 2);
    QSet<int> whole;
    const auto tap = [&](QPoint at) {
        for (int row = 0; row < manyRows; ++row) {
            if (seen().adjusted(0, arrow, 0, -arrow).contains(placeOf(row)) ||
                (row == 0 && scrolled() == 0) || (row == manyRows - 1 && scrolled() == furthest()))
                whole << row;
        }
        const int before = scrolled();
        press(at);
        release(at);
        return scrolled() - before;
    };
    while (hasArrow(false))
        QVERIFY(tap(below) > 0);
    QCOMPARE(scrolled(), furthest());
    while (hasArrow(true))
        QVERIFY(tap(above) < 0);
    QCOMPARE(scrolled(), 0);
    QCOMPARE(whole.size(), manyRows); // no page skips a row
    QCOMPARE(m_chosen, QStringList());
    QVERIFY(m_menu->isVisible());
}

void tst_PopupMenu::noRowIsCutWithoutAnArrow()
{
    open(manyRows);
    const QPoint at = windowPlace.center();
    for (int offset = 0; offset <= furthest(); ++offset) {
        turnWheel(120 * manyRows);
        press(at);
        drag(at - QPoint(0, furthest() + 20)); // a drag, however near it ends
        drag(at - QPoint(0, offset));
        release(at - QPoint(0, offset));
        QCOMPARE(scrolled(), offset);
        QCOMPARE(hasArrow(true), offset > 0);
        QCOMPARE(hasArrow(false), offset < furthest());
        for (int row = 0; row < manyRows; ++row) {
            const QRect place = placeOf(row);
            if (place.intersects(seen()) && !seen().contains(place))
                QVERIFY(hasArrow(place.top() < seen().top()));
        }
    }
}

void tst_PopupMenu::itOpensAtItsTopAgain()
{
    open(manyRows);
    turnWheel(-360);
    m_menu->close();
    m_menu->popup(windowPlace.center());
    QCOMPARE(scrolled(), 0);
    QVERIFY(!hasArrow(true));
    QVERIFY(hasArrow(false));
    m_menu->close();
    // In a larger window it is an ordinary one.
    m_window->resize(240, 700);
    m_menu->popup(windowPlace.topLeft());
    QVERIFY(m_menu->mask().isEmpty());
    QCOMPARE(m_menu->size(), m_menu->sizeHint());
}

int main(int argc, char** argv)
{
    return support::run<tst_PopupMenu>(argc, argv);
}

#include "tst_PopupMenu.moc"
