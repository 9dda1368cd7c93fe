#include "ToolFixtures.h"

#include "KORVA_MainView.h"
#include "KORVA_ScrollView.h"
#include "support/Dice.h"

/// Two hundred thousand random events and commands with every tool: no assertion, no warning, no sanitizer
/// may speak up, and canvas, tools and manager stay of one mind.
class tst_Storm : public support::TestCase
{
    Q_OBJECT

private slots:
    void storm_data();
    void storm();
};

namespace {

constexpr int eventsPerStorm = 50'000;
constexpr QSize largestPicture(60, 48);

/// Everything that can happen to a canvas, one thing at a time.
class Storm : private support::Dice
{
public:
    Storm(KORVA_Canvas& canvas, KORVA_Manager& manager, quint32 seed)
        : Dice(seed), m_canvas(canvas), m_manager(manager), m_stylus(canvas)
    {
    }

    void blow()
    {
        int dice = below(totalWeight);
        const auto* happening = happenings;
        while (dice >= happening->weight)
            dice -= (happening++)->weight;
        (this->*happening->what)();
    }

private:
    struct Happening
    {
        int weight;
        void (Storm::*what)();
    };

    QPoint point()
    {
        constexpr int beyond = 20;
        return {between(-beyond, m_canvas.width() + beyond), between(-beyond, m_canvas.height() + beyond)};
    }
    Qt::MouseButton button() { return QList{Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}[below(3)]; }
    KORVA_Text& text() { return *qobject_cast<KORVA_Text*>(m_manager.tool(fixtures::Text)); }
    KORVA_AreaSelect& areaSelect()
    {
        return *qobject_cast<KORVA_AreaSelect*>(m_manager.tool(fixtures::AreaSelect));
    }

    void press() { m_stylus.press(m_at = point()); }
    void move() { m_stylus.move(m_at += QPoint(between(-9, 9), between(-9, 9))); }
    void leap() { m_stylus.move(m_at = point()); }
    void release() { m_stylus.release(chance() ? m_at : point()); }
    void tap() { m_stylus.click(m_at = point()); }
    void otherRelease() { m_stylus.release(m_at, button()); }
    void popupMenu()
    {
        m_stylus.click(m_at, Qt::RightButton);
        m_canvas.contextMenu()->hide();
        m_canvas.pasteLabel()->menu()->hide();
    }
    // The buttons that the canvas keeps for itself.
    void pressTool() { fixtures::Stylus(*m_manager.currentTool()).press(m_at, button()); }
    void moveTool() { fixtures::Stylus(*m_manager.tool(below(8))).move(point()); }
    void releaseTool() { fixtures::Stylus(*m_manager.tool(below(8))).release(m_at, button()); }

    void key()
    {
        static const std::pair<Qt::Key, QString> keys[] = {
            {Qt::Key_A, "a"},          {Qt::Key_W, "W"},         {Qt::Key_unknown, u"\U0001f600"_qs},
            {Qt::Key_Return, "\r"},    {Qt::Key_Enter, "\n"},    {Qt::Key_unknown, u"e\u0301"_qs},
            {Qt::Key_Backspace, "\b"}, {Qt::Key_Delete, "\x7f"}, {Qt::Key_unknown, u"\u6f22\u5b57"_qs},
            {Qt::Key_Tab, "\t"},       {Qt::Key_Escape, "\x1b"}, {Qt::Key_unknown, "a\tb\n"},
            {Qt::Key_Shift, {}},       {Qt::Key_Left, {}},       {Qt::Key_unknown, u"\u0301"_qs}};
        const auto& [code, string] = keys[below(std::size(keys))];
        m_stylus.key(code, string);
    }
    void compose()
    {
        QInputMethodEvent event(chance() ? "ni" : "", {});
        event.setCommitString(chance() ? u"\u4f60x"_qs : QString());
        QCoreApplication::sendEvent(&m_canvas, &event);
    }
    void tick()
    {
        QTimerEvent event(1);
        QCoreApplication::sendEvent(m_manager.tool(below(8)), &event);
    }
    void letTimePass() { QCoreApplication::processEvents(); }

    void changeTool() { m_manager.setCurrentTool(between(-1, 8)); }
    void changeWidth() { m_manager.setPenWidth(between(0, 6)); }
    void changeBrush() { m_manager.setBrush(chance() ? Qt::SolidPattern : Qt::NoBrush); }
    void changePen() { m_manager.setPen(QPen(Qt::black, 1, chance() ? Qt::SolidLine : Qt::DotLine)); }
    void changeColors()
    {
        m_manager.setLMBColor(color());
        m_manager.setRMBColor(color());
    }
    void zoom() { m_canvas.setZoom(QList{37, 50, 92, 100, 150, 200, 333}[below(7)]); }

    void undo() { m_canvas.undo(); }
    void redo() { m_canvas.redo(); }
    void cut() { m_canvas.cut(); }
    void copy() { m_canvas.copy(); }
    void paste() { m_canvas.paste(); }
    void pasteAt() { m_canvas.paste(between(-20, 50), between(-20, 40)); }
    void stamp()
    {
        QPixmap picture = QPixmap::fromImage(support::mosaic(QSize(between(1, 30), between(1, 30))));
        m_canvas.insertStamp(picture);
    }
    void clear() { m_canvas.clearCanvas(color()); }
    void selectAll() { areaSelect().selectAll(); }
    void disableSelection() { areaSelect().disableSelection(); }
    void clearSelection() { m_canvas.clearSelection(); }
    void resize()
    {
        m_canvas.resizeImage(between(1, largestPicture.width()), between(1, largestPicture.height()));
    }
    void replace()
    {
        QPixmap picture = QPixmap::fromImage(support::mosaic(largestPicture));
        m_canvas.setPixmap(&picture);
    }
    void changeDepth() { m_canvas.setDepth(QList{1, 4, 8, 16, 24, 32}[below(6)]); }

    void penChanged() { text().isActive() ? text().penChanged() : void(); }
    void commitText() { text().isActive() ? text().paintProportionBuffer() : void(); }
    void resetText() { text().resetBuffer(); }
    void hideTextCursor() { text().clearOldCursor(); }

    static constexpr Happening happenings[] = {
        {120, &Storm::press},        {400, &Storm::move},         {60, &Storm::leap},
        {120, &Storm::release},      {40, &Storm::tap},           {20, &Storm::otherRelease},
        {1, &Storm::popupMenu},      {30, &Storm::pressTool},     {20, &Storm::moveTool},
        {20, &Storm::releaseTool},   {250, &Storm::key},          {30, &Storm::compose},
        {20, &Storm::tick},          {10, &Storm::letTimePass},   {60, &Storm::changeTool},
        {15, &Storm::changeWidth},   {10, &Storm::changeBrush},   {5, &Storm::changePen},
        {10, &Storm::changeColors},  {15, &Storm::zoom},          {15, &Storm::undo},
        {15, &Storm::redo},          {10, &Storm::cut},           {10, &Storm::copy},
        {10, &Storm::paste},         {10, &Storm::pasteAt},       {5, &Storm::stamp},
        {10, &Storm::clear},         {10, &Storm::selectAll},     {5, &Storm::disableSelection},
        {5, &Storm::clearSelection}, {3, &Storm::resize},         {3, &Storm::replace},
        {2, &Storm::changeDepth},    {5, &Storm::penChanged},     {5, &Storm::commitText},
        {5, &Storm::resetText},      {5, &Storm::hideTextCursor},
    };
    static constexpr int totalWeight = [] {
        int sum = 0;
        for (const Happening& happening : happenings)
            sum += happening.weight;
        return sum;
    }();

    KORVA_Canvas& m_canvas;
    KORVA_Manager& m_manager;
    support::Gestures m_stylus;
    QPoint m_at;
};

int activeTools(const KORVA_Manager& manager)
{
    int count = 0;
    for (int id = 0; id < 8; ++id)
        count += manager.tool(id)->isActive();
    return count;
}

} // namespace

void tst_Storm::storm_data()
{
    QTest::addColumn<quint32>("seed");
    QTest::addColumn<bool>("shown");
    QTest::addColumn<bool>("scrolled");
    QTest::newRow("a canvas alone") << 20240917U << false << false;
    QTest::newRow("a canvas alone, other weather") << 20240918U << false << false;
    QTest::newRow("a canvas on screen") << 20240919U << true << false;
    QTest::newRow("a canvas on screen in a scroll view") << 20240920U << true << true;
}

void tst_Storm::storm()
{
    QFETCH(const quint32, seed);
    QFETCH(const bool, shown);
    QFETCH(const bool, scrolled);
    qInfo("seed %u", seed);

    fixtures::setClipboard(support::mosaic(QSize(20, 20)));
    KORVA_MainView view;
    KORVA_Canvas alone(nullptr, largestPicture.width(), largestPicture.height());
    KORVA_Canvas& canvas = scrolled ? *view.canvas() : alone;
    canvas.resizeImage(largestPicture.width(), largestPicture.height());
    view.resize(100, 80);
    (scrolled ? static_cast<QWidget&>(view) : canvas).setVisible(shown);
    KORVA_Manager manager(&canvas);
    int changes = 0;
    connect(&canvas, &KORVA_Canvas::modified, this, [&] { ++changes; });

    Storm storm(canvas, manager, seed);
    for (int i = 0; i < eventsPerStorm; ++i) {
        storm.blow();
        QCOMPARE(activeTools(manager), 1);
        QCOMPARE(canvas.getCurrentTool(), manager.currentTool());
        QCOMPARE(canvas.size(), canvas.zoomedPixmap()->size());
    }

    QVERIFY2(changes > eventsPerStorm / 20, qPrintable(QString::number(changes))); // it was no calm
    manager.setCurrentTool(fixtures::Drag); // leaves no preview, no cursor, no piece
    QVERIFY(!canvas.pixmap()->isNull());
    canvas.updateZoomed();
    QVERIFY(support::sameImage(*canvas.zoomedPixmap(),
                               support::scaled(canvas.pixmap()->toImage(), canvas.zoom())));
}

int main(int argc, char** argv)
{
    return support::run<tst_Storm>(argc, argv);
}

#include "tst_Storm.moc"
