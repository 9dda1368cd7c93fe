#pragma once

#include "EditorFixtures.h"
#include "support/Fingers.h"

#include "KORVA_ScrollView.h"
#include "KORVA_Text.h"

/// What the tests of fingers and pens need: an editor on screen, in any state of work, and all that can be
/// found out about it without touching it.
namespace fixtures {

inline constexpr int secondFinger = 60; ///< milliseconds in which it may follow the first one

/// What a person has done before.
enum Work { Nothing, Drawn, Undone, Lifted, Pasted, OpenText };
inline constexpr std::pair<Work, const char*> works[] = {{Nothing, "nothing"}, {Drawn, "drawn"},
                                                         {Undone, "undone"},   {Lifted, "lifted"},
                                                         {Pasted, "pasted"},   {OpenText, "open text"}};
inline constexpr std::pair<ToolID, const char*> allTools[] = {
    {Pencil, "pencil"},       {AreaSelect, "select"}, {Line, "line"},     {Text, "text"},
    {Rectangle, "rectangle"}, {Ellipse, "ellipse"},   {Eraser, "eraser"}, {Hand, "hand"}};

/// Where a piece lies on the picture that floats in Lifted and Pasted.
inline constexpr QRect pieceInPicture(20, 20, 40, 30);

/// An editor in a window that is shown.
struct TouchDesk
{
    explicit TouchDesk(ToolID tool = Pencil, int zoomRow = 1, Work work = Nothing, int undoSteps = 1)
    {
        editor.setUndoSteps(undoSteps);
        window.resize(260, 240);
        window.move(300 * (count++ % 2), 0); // a finger goes to the window that lies under it
        editor.move(5, 3);
        watch();
        window.show();
        (void)QTest::qWaitForWindowExposed(&window);
        QPixmap picture = QPixmap::fromImage(support::mosaic(QSize(200, 170)));
        editor.setPixmap(&picture);
        editor.clearModified();
        editor.slotSelZoomRate(zoomRow);
        control<QComboBox>("zoomBox").setCurrentIndex(zoomRow);
        choose(tool);
        prepare(work);
        QCoreApplication::processEvents();
        (void)log.taken();
    }
    ~TouchDesk() { --count; }
    TouchDesk(const TouchDesk&) = delete;
    TouchDesk& operator=(const TouchDesk&) = delete;

    [[nodiscard]] KORVA_Canvas& canvas() const { return *editor.canvas(); }
    [[nodiscard]] KORVA_PasteLabel& piece() const { return *canvas().pasteLabel(); }
    [[nodiscard]] KORVA_ScrollView& view() const { return *canvas().scrollView(); }
    template <typename Control>
    [[nodiscard]] Control& control(const char* name) const
    {
        return *editor.findChild<Control*>(name);
    }
    [[nodiscard]] QIcon toolIcon() const { return control<QPushButton>("toolButton").icon(); }
    [[nodiscard]] QIcon optionIcon() const { return control<QPushButton>("optionButton").icon(); }
    [[nodiscard]] QStringList options() const
    {
        QStringList names;
        for (const QAction* action : control<QPushButton>("optionButton").menu()->actions())
            names << action->text();
        return names;
    }

    /// As a person does in the pop-ups.
    void choose(ToolID tool)
    {
        static constexpr ToolID order[] = {AreaSelect, Eraser, Line, Pencil, Text, Rectangle, Ellipse};
        const auto* row = std::find(std::begin(order), std::end(order), tool == Hand ? AreaSelect : tool);
        control<QPushButton>("toolButton").menu()->actions()[row - std::begin(order)]->trigger();
        if (tool == Hand || tool == AreaSelect)
            chooseOption(tool == Hand ? 1 : 0);
    }
    void chooseOption(int row) { control<QPushButton>("optionButton").menu()->actions()[row]->trigger(); }
    /// A point of the canvas as far from the piece of Lifted and Pasted as a finger must be that is not
    /// meant for it.
    [[nodiscard]] QPoint besidePiece() const
    {
        return at(pieceInPicture.bottomRight()) + QPoint(1, 1) * (canvas().zoom() < 100 ? 38 : 45);
    }
    /// A point of the picture on the canvas.
    [[nodiscard]] QPoint at(QPoint inPicture) const { return inPicture * canvas().zoom() / 100; }

    /// All that can be found out without touching anything.
    struct State
    {
        QImage drawing; ///< with piece and text
        QImage shown;
        QImage piece;
        QStringList facts;
    };
    [[nodiscard]] State state()
    {
        if (KORVA_Text* text = editor.currentText())
            text->clearOldCursor(); // it blinks
        QStringList facts;
        const auto fact = [&facts](const char* name, const QVariant& value) {
            QString text;
            QDebug(&text).nospace() << value;
            facts << QString("%1: %2").arg(name, text);
        };
        fact("modified", editor.isModified());
        fact("changes", editor.hasChanges());
        fact("undo flag", canvas().undoFlag());
        fact("undo offered", m_undo);
        fact("redo offered", m_redo);
        fact("selection offered", m_selection);
        fact("Cut enabled", canvas().contextMenu()->actions()[0]->isEnabled());
        fact("selection", canvas().selection());
        fact("has selection", canvas().hasSelection());
        fact("floats", !piece().isHidden());
        fact("piece", piece().isHidden() ? QRect() : piece().geometry());
        fact("tool", editor.manager()->currentToolID());
        fact("takes text", canvas().getCurrentTool()->takesText());
        fact("text key", canvas().getCurrentTool()->getTextKey());
        fact("zoom", canvas().zoom());
        fact("zoom box", control<QComboBox>("zoomBox").currentIndex());
        fact("scrolled", QPoint(view().contentsX(), view().contentsY()));
        return {editor.snapshot(), canvas().zoomedPixmap()->toImage(),
                piece().isHidden() ? QImage() : piece().getImage().toImage(), facts};
    }

    QWidget window;
    KORVA_EditCanvas editor{KORVA_COLOR_16BIT, &window};
    support::SignalRecorder log;
    support::Fingers fingers{canvas()};

private:
    void watch()
    {
        log.watch(&editor, &KORVA_EditCanvas::sizeChanged);
        log.watch(&editor, &KORVA_EditCanvas::pixmapChanged);
        log.watch(&editor, &KORVA_EditCanvas::modified);
        log.watch(&editor, &KORVA_EditCanvas::selection);
        log.watch(&editor, &KORVA_EditCanvas::canUndo);
        log.watch(&editor, &KORVA_EditCanvas::canRedo);
        log.watch(&editor, &KORVA_EditCanvas::signalTextTool);
        log.watch(&editor, &KORVA_EditCanvas::TextToolClicked);
        log.watch(&editor, &KORVA_EditCanvas::strokeTakenBack);
        QObject::connect(&editor, &KORVA_EditCanvas::canUndo, &editor, [this](bool b) { m_undo = b; });
        QObject::connect(&editor, &KORVA_EditCanvas::canRedo, &editor, [this](bool b) { m_redo = b; });
        QObject::connect(&editor, &KORVA_EditCanvas::selection, &editor,
                         [this](bool b) { m_selection = b; });
    }
    void prepare(Work work)
    {
        support::Gestures mouse(canvas());
        if (work == Drawn || work == Undone) {
            const auto tool = ToolID(editor.manager()->currentToolID());
            choose(Pencil);
            mouse.drag({at({90, 90}), at({110, 95}), at({120, 120})});
            choose(tool);
        }
        if (work == Undone)
            editor.undo();
        if (work == Lifted)
            canvas().setSelection(QRect(at(pieceInPicture.topLeft()), at(pieceInPicture.bottomRight())));
        if (work == Pasted) {
            setClipboard(support::mosaic(pieceInPicture.size()));
            editor.paste();
            piece().move(at(pieceInPicture.topLeft()));
        }
        if (work == OpenText) {
            choose(Text);
            mouse.click(at({30, 60}));
            for (const QChar letter : QString("Hello")) {
                QKeyEvent key(QEvent::KeyPress, 0, Qt::NoModifier, letter);
                QCoreApplication::sendEvent(&canvas(), &key);
            }
        }
    }

    static inline int count = 0;
    bool m_undo = false;
    bool m_redo = false;
    bool m_selection = false;
};

[[nodiscard]] inline bool same(const TouchDesk::State& actual, const TouchDesk::State& expected)
{
    if (actual.facts != expected.facts) {
        for (qsizetype i = 0; i < actual.facts.size(); ++i) {
            if (actual.facts[i] != expected.facts[i])
                qInfo() << "actual" << actual.facts[i] << "expected" << expected.facts[i];
        }
        return false;
    }
    return support::sameImage(actual.drawing, expected.drawing) &&
           support::sameImage(actual.shown, expected.shown) &&
           actual.piece.isNull() == expected.piece.isNull() &&
           (actual.piece.isNull() || support::sameImage(actual.piece, expected.piece));
}

/// Undo and what is drawn afterwards tell what no question finds out.
[[nodiscard]] inline bool goOnAlike(TouchDesk& actual, TouchDesk& expected)
{
    const auto both = [&](const std::function<void(TouchDesk&)>& does) {
        does(actual);
        does(expected);
        return same(actual.state(), expected.state());
    };
    return both([](TouchDesk& desk) {
               support::Gestures(desk.canvas()).drag({{5, 5}, {40, 12}, {60, 70}});
           }) &&
           both([](TouchDesk& desk) { desk.editor.undo(); }) &&
           both([](TouchDesk& desk) { desk.editor.pixmap(); });
}
/// The same, after undo and redo first.
[[nodiscard]] inline bool undoAlike(TouchDesk& actual, TouchDesk& expected)
{
    actual.editor.undo();
    expected.editor.undo();
    const bool isSame = same(actual.state(), expected.state());
    actual.editor.redo();
    expected.editor.redo();
    return isSame && goOnAlike(actual, expected);
}

} // namespace fixtures

Q_DECLARE_METATYPE(fixtures::ToolID)
Q_DECLARE_METATYPE(fixtures::Work)
