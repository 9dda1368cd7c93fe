#include "EditorFixtures.h"

#include "KORVA_Text.h"
#include "support/Dice.h"
#include "support/Mount.h"
#include "support/PictureFiles.h"

#include <set>

namespace {

constexpr int states = 120; ///< in each session
constexpr int undoEvery = 6;
constexpr int commandEvery = 10;
constexpr int mostEvents = 8;

/// Says nothing to anybody.
class SilentPlatform : public UTIL_Platform
{
public:
    void timedMessage(QWidget*, const QString&, const QString&, int) override {}
};

/// What the session was in the middle of.
enum Moment {
    Floating,
    Stretched,
    TextOpen,
    TextTyped,
    Composed,
    ButtonDown,
    Zoomed,
    Modified,
    momentCount
};
constexpr const char* momentNames[] = {"floating", "stretched",   "text open", "text typed",
                                       "composed", "button down", "zoomed",    "modified"};
static_assert(std::size(momentNames) == momentCount);

/// Counts every signal of an object, whatever it is called.
class Ear
{
public:
    void listenTo(const QObject& object)
    {
        const QMetaObject* meta = object.metaObject();
        for (int i = 0; i < meta->methodCount(); ++i) {
            if (meta->method(i).methodType() == QMetaMethod::Signal)
                m_spies.push_back(std::make_unique<QSignalSpy>(&object, meta->method(i)));
        }
    }
    /// "canUndo 2, modified 1": what was heard since the last call.
    [[nodiscard]] QString heard()
    {
        QStringList names;
        for (const auto& spy : m_spies) {
            if (!spy->isEmpty())
                names << QString("%1 %2").arg(spy->signal()).arg(spy->size());
            spy->clear();
        }
        return names.join(", ");
    }
    [[nodiscard]] size_t signalCount() const { return m_spies.size(); }

private:
    std::vector<std::unique_ptr<QSignalSpy>> m_spies;
};

/// Counts what the toolkit delivers to a widget and to all in it.
class EventCount : public QObject
{
public:
    explicit EventCount(QWidget* root) : m_root(root) { qApp->installEventFilter(this); }
    int events = 0;

protected:
    bool eventFilter(QObject* receiver, QEvent*) override
    {
        auto* widget = qobject_cast<QWidget*>(receiver);
        events += widget && (widget == m_root || m_root->isAncestorOf(widget));
        return false;
    }

private:
    QWidget* m_root;
};

/// All of an editor that can be seen without changing it.
struct View
{
    explicit View(KORVA_EditCanvas& editor)
        : zoomed(editor.canvas()->zoomedPixmap()->toImage()),
          piece(editor.canvas()->pasteLabel()->getImage().toImage()),
          screen(editor.grab().toImage())
    {
        const KORVA_Canvas& canvas = *editor.canvas();
        const KORVA_PasteLabel& label = *canvas.pasteLabel();
        QDebug(&facts).nospace() << canvas.undoFlag() << canvas.isModified() << editor.isModified()
                                 << editor.hasChanges() << canvas.zoom() << canvas.selection()
                                 << canvas.hasSelection() << canvas.geometry() << label.isHidden()
                                 << label.geometry() << label.cursor().shape() << canvas.cursor().shape()
                                 << canvas.getCurrentToolID() << editor.fileName();
        if (const KORVA_Text* text = editor.currentText())
            QDebug(&facts) << text->isBufferEmpty() << text->getPaintPropotionStatus() << text->takesText()
                           << text->getTextKey() << text->inputMethodQuery(Qt::ImCursorRectangle);
    }

    QImage zoomed;
    QImage piece;
    QImage screen;
    QString facts;
};

/// An editor at which somebody sits whose doings follow from a number alone: two of the same number do the
/// same.
class Session : private support::Dice
{
public:
    explicit Session(quint32 seed) : Dice(seed)
    {
        editor.show();
        replacePicture();
        editor.clearModified();
        ear.listenTo(editor);
        ear.listenTo(canvas);
        ear.listenTo(*canvas.pasteLabel());
        ear.listenTo(*editor.manager());
        for (int id = 0; id < 8; ++id)
            ear.listenTo(*editor.manager()->tool(id));
    }

    void doSomething()
    {
        for (int count = 1 + below(mostEvents); count > 0; --count) {
            int dice = below(totalWeight);
            const auto* happening = happenings;
            while (dice >= happening->weight)
                dice -= (happening++)->weight;
            (this->*happening->what)();
        }
    }

    [[nodiscard]] bool is(Moment moment) const
    {
        const KORVA_Text* text = editor.currentText();
        switch (moment) {
        case Floating:
            return !canvas.pasteLabel()->isHidden();
        case Stretched:
            return is(Floating) && m_isStretched;
        case TextOpen:
            return text && text->takesText();
        case TextTyped:
            return is(TextOpen) && !text->isBufferEmpty();
        case Composed:
            return is(TextOpen) && m_isComposed;
        case ButtonDown:
            return m_isDown;
        case Zoomed:
            return canvas.zoom() != 100;
        default:
            return canvas.isModified();
        }
    }

    /// As the save command does it, for a drawing without changes, too, or as a host's program does it step
    /// by step, which is quicker: the file that it leaves.
    [[nodiscard]] QByteArray saved(const QString& name, bool byCommand)
    {
        editor.setFileName(name);
        if (byCommand) {
            canvas.markModified();
            editor.slotSave();
        } else {
            editor.commitText();
            if (!canvas.save(name, nullptr))
                return {};
            editor.clearModified();
        }
        const QByteArray bytes = support::contents(name);
        QFile::remove(name);
        return bytes;
    }

    KORVA_EditCanvas editor{KORVA_COLOR_16BIT};
    KORVA_Canvas& canvas = *editor.canvas();
    Ear ear;

private:
    struct Happening
    {
        int weight;
        void (Session::*what)();
    };

    QPoint point() { return {between(-9, canvas.width() + 9), between(-9, canvas.height() + 9)}; }
    /// Within the floating piece: an edge, a corner or the inside.
    QPoint grip()
    {
        const QRect piece = canvas.pasteLabel()->geometry();
        const auto along = [this](int first, int size) {
            return first + QList{1, size / 2, size - 2}[below(3)];
        };
        return {along(piece.x(), piece.width()), along(piece.y(), piece.height())};
    }

    void press()
    {
        releaseAll();
        m_stylus.press(m_at = point());
        m_isDown = true;
        m_isComposed = false;
    }
    void move() { m_stylus.move(m_at += QPoint(between(-15, 15), between(-15, 15))); }
    void release() { releaseAll(); }
    void stroke()
    {
        press();
        for (int i = below(4); i >= 0; --i)
            move();
        releaseAll();
    }
    void tap()
    {
        press();
        releaseAll();
    }
    void releaseAll()
    {
        if (std::exchange(m_isDown, false))
            m_stylus.release(m_at);
    }

    void chooseTool() { trigger("toolButton"); }
    void chooseOption() { trigger("optionButton"); }
    void trigger(const char* button)
    {
        releaseAll();
        m_isComposed = false;
        const QList<QAction*> entries = editor.findChild<QPushButton*>(button)->menu()->actions();
        if (!entries.isEmpty())
            entries[below(int(entries.size()))]->trigger();
    }
    void chooseColor() { editor.setColor(color()); }
    void write()
    {
        static const std::pair<Qt::Key, QString> keys[] = {
            {Qt::Key_A, "a"},          {Qt::Key_W, "W"},   {Qt::Key_unknown, u"\u6f22"_qs},
            {Qt::Key_Return, "\r"},    {Qt::Key_G, "g"},   {Qt::Key_unknown, u"e\u0301"_qs},
            {Qt::Key_Backspace, "\b"}, {Qt::Key_Tab, "\t"}};
        openText();
        for (int count = between(1, 5); count > 0; --count) {
            const auto& [code, text] = keys[below(std::size(keys))];
            m_stylus.key(code, text);
        }
    }
    void compose()
    {
        openText();
        m_isComposed = chance();
        QInputMethodEvent event(m_isComposed ? "ni" : "", {});
        event.setCommitString(chance() ? u"\u4f60x"_qs : QString());
        QCoreApplication::sendEvent(&canvas, &event);
    }
    void openText()
    {
        if (editor.currentText() && editor.currentText()->takesText())
            return;
        releaseAll();
        editor.slotSelChangeTool(textEntry());
        m_stylus.click({between(0, canvas.width() - 1), between(0, canvas.height() - 1)});
    }
    [[nodiscard]] int textEntry() const
    {
        return editor.findChild<QPushButton*>("toolButton")->menu()->actions()[4]->data().toInt();
    }

    void lift()
    {
        releaseAll();
        editor.slotSelChangeTool(
            editor.findChild<QPushButton*>("toolButton")->menu()->actions()[0]->data().toInt());
        m_isStretched = false;
        m_stylus.drag({point(), point(), point()});
    }
    void dragPiece()
    {
        releaseAll();
        if (!is(Floating))
            lift();
        if (!is(Floating))
            return;
        m_stylus.hover(m_at = grip());
        const QSize before = canvas.pasteLabel()->size();
        m_stylus.press(m_at);
        m_isDown = true;
        move();
        if (below(4) > 0)
            releaseAll();
        m_isStretched |= canvas.pasteLabel()->size() != before;
    }
    void stamp()
    {
        QPixmap picture = QPixmap::fromImage(support::mosaic({between(1, 40), between(1, 40)}));
        m_isStretched = false;
        editor.insertStamp(picture);
    }
    void paste()
    {
        m_isStretched = false;
        editor.paste();
    }
    void pasteAt() { editor.paste(between(-20, 50), between(-20, 40)); }
    void cut() { editor.cut(); }
    void copy() { editor.copy(); }
    void removePiece() { editor.deleteSelection(); }
    void selectAll()
    {
        m_isStretched = false;
        editor.selectAll();
    }

    void zoom() { editor.setZoom(between(37, 333)); }
    void zoomByBox() { editor.slotSelZoomRate(below(5)); }
    void undo() { editor.undo(); }
    void redo() { editor.redo(); }
    void clear() { editor.clearCanvas(); }
    void resize() { editor.setCanvasSize(between(20, 70), between(20, 60)); }
    void replacePicture()
    {
        QPixmap picture = QPixmap::fromImage(support::mosaic({between(20, 70), between(20, 60)}));
        editor.setPixmap(&picture);
    }
    void clearModified() { editor.clearModified(); }

    static constexpr Happening happenings[] = {
        {30, &Session::press},        {60, &Session::move},          {20, &Session::release},
        {40, &Session::stroke},       {10, &Session::tap},           {30, &Session::chooseTool},
        {15, &Session::chooseOption}, {10, &Session::chooseColor},   {40, &Session::write},
        {20, &Session::compose},      {25, &Session::lift},          {60, &Session::dragPiece},
        {10, &Session::stamp},        {10, &Session::paste},         {4, &Session::pasteAt},
        {4, &Session::cut},           {6, &Session::copy},           {4, &Session::removePiece},
        {4, &Session::selectAll},     {12, &Session::zoom},          {4, &Session::zoomByBox},
        {15, &Session::undo},         {10, &Session::redo},          {3, &Session::clear},
        {2, &Session::resize},        {3, &Session::replacePicture}, {4, &Session::clearModified},
    };
    static constexpr int totalWeight = [] {
        int sum = 0;
        for (const Happening& happening : happenings)
            sum += happening.weight;
        return sum;
    }();

    support::Gestures m_stylus{canvas};
    QPoint m_at;
    bool m_isDown = false;
    bool m_isStretched = false;
    bool m_isComposed = false;
};

/// Compares what was seen before and after.
[[nodiscard]] bool isUntouched(const View& after, const View& before)
{
    if (after.facts != before.facts)
        qInfo("%s\nwas\n%s", qPrintable(after.facts), qPrintable(before.facts));
    return after.facts == before.facts && support::sameImage(after.zoomed, before.zoomed) &&
           support::sameImage(after.screen, before.screen) && after.piece == before.piece;
}

QImage decoded(const QByteArray& bytes)
{
    return QImage::fromData(bytes).convertToFormat(QImage::Format_RGB32);
}

} // namespace

/// What a save would write, asked for in the middle of anything, and that asking leaves no trace.
class tst_Snapshot : public support::TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();

    void anyMoment_data();
    void anyMoment();
    void everyMomentWasThere();
    void theFloatingPieceCoversThePicture();
    void openTextLiesOnTheFloatingPiece();
    void theZoomDoesNotMatter();
    void ofACanvasAlone();

private:
    QTemporaryDir m_folder;
    std::optional<support::Mount> m_memory;
    std::array<int, momentCount> m_moments{};
    std::set<int> m_tools;
};

void tst_Snapshot::initTestCase()
{
    UTIL_Platform::install(std::make_unique<SilentPlatform>());
    m_memory.emplace(m_folder.path(), "size=64m"); // where no file waits for a real disk
    qputenv("TMPDIR", QFile::encodeName(m_folder.path()));
}

void tst_Snapshot::cleanupTestCase()
{
    UTIL_Platform::install(nullptr);
    qunsetenv("TMPDIR");
    m_memory.reset();
}

void tst_Snapshot::anyMoment_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 10; ++seed)
        QTest::addRow("session %u", seed) << seed;
}

/// Two do the same; one is asked for the snapshot all the time, the other one saves. What the first would
/// have written is what the second wrote, and both go on as if nothing had been asked.
void tst_Snapshot::anyMoment()
{
    QFETCH(const quint32, seed);
    static const std::pair<const char*, const char*> formats[] = {
        {"png", "PNG"}, {"bmp", "BMP"}, {"jpg", "JPEG"}};
    const fixtures::PictureFolder folder;
    fixtures::setClipboard(support::mosaic({30, 20}));
    Session asked(seed);
    Session saving(seed);
    EventCount delivered(&asked.editor);

    for (int state = 0; state < states; ++state) {
        const QImage clipboard = fixtures::clipboardImage();
        asked.doSomething();
        fixtures::setClipboard(clipboard); // which the two share
        saving.doSomething();
        QCOMPARE(asked.ear.heard(), saving.ear.heard());
        for (int moment = 0; moment < momentCount; ++moment)
            m_moments[size_t(moment)] += asked.is(Moment(moment));
        m_tools.insert(asked.canvas.getCurrentToolID());

        const auto& [extension, format] = formats[state % std::size(formats)];
        const QString name = folder.file(QString("drawing.") + extension);
        asked.editor.setFileName(name);
        (void)asked.ear.heard();
        const View before(asked.editor);
        const quint64 viewEvents = quint64(delivered.events);
        QImage snapshot = asked.editor.snapshot();
        QByteArray bytes = asked.editor.encoded(nullptr);
        QCOMPARE(quint64(delivered.events), viewEvents);
        QCOMPARE(asked.ear.heard(), QString());
        QVERIFY(isUntouched(View(asked.editor), before));
        QCOMPARE(asked.editor.encoded(format), bytes);

        if (state % undoEvery == 0) { // what undo brings back was left alone, too
            asked.editor.undo();
            saving.editor.undo();
            snapshot = asked.editor.snapshot();
            bytes = asked.editor.encoded(nullptr);
        }
        const bool byCommand = state % commandEvery == 0;
        const QByteArray written = saving.saved(name, byCommand);
        QVERIFY(!written.isEmpty());
        QVERIFY(bytes == written);
        if (qstrcmp(format, "JPEG") != 0)
            QVERIFY(support::sameImage(snapshot.convertToFormat(QImage::Format_RGB32), decoded(written)));
        // The first one saves, too, so that both are in the same state again.
        QVERIFY(asked.saved(name, byCommand) == written);
    }
    QVERIFY(asked.ear.signalCount() > 50);
}

/// The sessions were about something.
void tst_Snapshot::everyMomentWasThere()
{
    for (size_t moment = 0; moment < momentCount; ++moment) {
        qInfo("%s: %d", momentNames[moment], m_moments[moment]);
        QVERIFY(m_moments[moment] >= 50);
    }
    QCOMPARE(m_tools.size(), size_t(8));
}

void tst_Snapshot::theFloatingPieceCoversThePicture()
{
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    QPixmap paper = QPixmap::fromImage(support::sheet({60, 50}, Qt::yellow));
    editor.setPixmap(&paper);
    QPixmap stamp = QPixmap::fromImage(support::mosaic({20, 10}));
    editor.insertStamp(stamp);
    editor.canvas()->pasteLabel()->move(30, 25);
    const QImage expected =
        support::overlaid(support::sheet({60, 50}, Qt::yellow), {30, 25}, support::mosaic({20, 10}));
    QVERIFY(support::sameImage(editor.snapshot(), expected));
    QVERIFY(!editor.canvas()->pasteLabel()->isHidden());
}

void tst_Snapshot::openTextLiesOnTheFloatingPiece()
{
    // The order in which a save brings both into the picture.
    fixtures::EditorDesk desk;
    desk.setPicture(support::sheet({100, 60}));
    desk.type("WWW");
    QPixmap stamp = QPixmap::fromImage(support::sheet({100, 60}, Qt::yellow));
    desk.editor->insertStamp(stamp);
    const QImage snapshot = desk.editor->snapshot();
    QCOMPARE(snapshot.pixelColor(1, 1), QColor(Qt::yellow));
    int ink = 0;
    for (int y = 0; y < snapshot.height(); ++y)
        for (int x = 0; x < snapshot.width(); ++x)
            ink += snapshot.pixelColor(x, y) == QColor(Qt::red);
    QVERIFY(ink > 20);
    desk.editor->commitText();
    QVERIFY(support::sameImage(snapshot, desk.picture()));
    UTIL_Platform::install(std::make_unique<SilentPlatform>());
}

void tst_Snapshot::theZoomDoesNotMatter()
{
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    const QImage mosaic = support::mosaic({60, 50});
    QPixmap picture = QPixmap::fromImage(mosaic);
    editor.setPixmap(&picture);
    for (const int zoom : {37, 50, 92, 100, 150, 200, 333}) {
        editor.setZoom(zoom);
        QVERIFY(support::sameImage(editor.snapshot(), mosaic));
    }
}

void tst_Snapshot::ofACanvasAlone()
{
    const QImage mosaic = support::mosaic({60, 50});
    fixtures::PictureCanvas canvas(mosaic);
    QVERIFY(support::sameImage(static_cast<KORVA_Canvas&>(canvas).KORVA_Canvas::snapshot(), mosaic));
    QPixmap stamp = QPixmap::fromImage(support::sheet({5, 5}, Qt::red));
    canvas.insertStamp(stamp);
    const QImage expected = support::filled(mosaic, QRect(0, 0, 5, 5), Qt::red);
    QVERIFY(support::sameImage(static_cast<KORVA_Canvas&>(canvas).KORVA_Canvas::snapshot(), expected));
    QVERIFY(canvas.isFloating());
    QVERIFY(support::sameImage(canvas.merged(), expected));
}

int main(int argc, char** argv)
{
    support::Mount::allow();
    return support::run<tst_Snapshot>(argc, argv);
}

#include "tst_Snapshot.moc"
