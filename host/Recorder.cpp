#include "Recorder.h"

#include "DrawingFile.h"
#include "KeyName.h"

#include <KORVA_Canvas.h>
#include <KORVA_EditCanvas.h>
#include <KORVA_PasteLabel.h>
#include <KORVA_Pixel.h>

#include <QAction>
#include <QCoreApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPointingDevice>
#include <QTextBoundaryFinder>

#include <algorithm>
#include <utility>

namespace pad {

Recorder::Recorder(KORVA_EditCanvas& editor, QObject* parent) : QObject(parent), m_editor(editor) {}

std::optional<Failure> Recorder::start(const QString& fileName)
{
    m_file.setFileName(fileName);
    if (!m_file.open(QIODevice::WriteOnly))
        return failure();
    m_editor.canvas()->installEventFilter(this);
    m_editor.canvas()->pasteLabel()->installEventFilter(this);
    connect(&m_editor, &KORVA_EditCanvas::chosen, this, &Recorder::writeChoice);
    connect(&m_editor, &KORVA_EditCanvas::strokeTakenBack, this, &Recorder::dropStroke);
    watchMenus();
    return {};
}

std::optional<Failure> Recorder::finish()
{
    writeHeld();
    if (m_file.isOpen() && (!m_file.flush() || m_file.error() != QFileDevice::NoError))
        return failure();
    m_file.close();
    return {};
}

Failure Recorder::failure() const
{
    return {WriteError{0, m_file.errorString(), m_file.fileName()}.line()};
}

void Recorder::watchMenus()
{
    const auto watch = [this](QMenu* menu, std::initializer_list<Verb> verbs) {
        qsizetype i = 0;
        for (const Verb verb : verbs) {
            connect(menu->actions().at(i++), &QAction::triggered, this,
                    [this, verb] { write(Command{.verb = verb}); });
        }
    };
    watch(m_editor.canvas()->contextMenu(), {Verb::Cut, Verb::Copy, Verb::Paste});
    const KORVA_PasteLabel* piece = m_editor.canvas()->pasteLabel();
    watch(piece->menu(), {Verb::Copy, Verb::Cut, Verb::Paste});
    connect(piece, &KORVA_PasteLabel::signalDelete, this, [this] { write({.verb = Verb::Delete}); });
    connect(piece, &KORVA_PasteLabel::changeChosen, this,
            [this](KORVA_PasteLabel::Change what) { write({.verb = Verb::Piece, .number = what}); });
}

bool Recorder::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
        writeMouse(static_cast<const QWidget&>(*watched), static_cast<const QMouseEvent&>(*event));
        break;
    case QEvent::KeyPress:
        if (watched == m_editor.canvas())
            writeKey(static_cast<const QKeyEvent&>(*event));
        break;
    case QEvent::InputMethod:
        return watched == m_editor.canvas() && writeComposed(static_cast<QInputMethodEvent&>(*event));
    default:
        break;
    }
    return false;
}

void Recorder::writeChoice(KORVA_CHOICETYPE what, int which)
{
    static constexpr Verb verbs[] = {Verb::Tool, Verb::Option, Verb::Zoom, Verb::Color, Verb::Bold};
    if (what == KORVA_CHOICE_ZOOM) {
        const int rate = m_editor.features().zooms.value(which);
        which = int(std::find(std::begin(zoomRates), std::end(zoomRates), rate) - std::begin(zoomRates));
    }
    write(Command{.verb = verbs[what], .number = which, .color = m_editor.color()});
}

void Recorder::writeMouse(const QWidget& receiver, const QMouseEvent& event)
{
    if (event.button() != Qt::LeftButton && event.button() != Qt::NoButton)
        return; // these keys open a menu, whose commands are recorded when they are chosen
    Command command;
    command.point = receiver.mapTo(m_editor.canvas(), pixel::under(event, receiver));
    command.verb = event.type() == QEvent::MouseMove            ? Verb::Move
                   : event.type() == QEvent::MouseButtonRelease ? Verb::Release
                                                                : Verb::Press;
    command.isEven = m_editor.manners().evenShapes && command.verb != Verb::Press &&
                     event.modifiers() & Qt::ShiftModifier;
    if (event.device()->type() != QInputDevice::DeviceType::TouchScreen) {
        write(command);
        return;
    }
    m_isHolding = true;
    m_held.push_back({command, true});
    if (command.verb == Verb::Release)
        writeHeld();
}

void Recorder::dropStroke()
{
    std::erase_if(m_held, [](const Held& held) { return held.isStroke; });
    writeHeld();
}

void Recorder::writeHeld()
{
    m_isHolding = false;
    for (const Held& held : std::exchange(m_held, {}))
        writeLine(held.command);
}

void Recorder::writeKey(const QKeyEvent& event)
{
    constexpr Qt::KeyboardModifiers commands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    const KORVA_Canvas::PenKey use = m_editor.canvas()->penKey(event);
    if (use == KORVA_Canvas::AsPointer)
        return; // and the pointer's events are written
    const bool isText = use == KORVA_Canvas::NotThePens && !event.text().isEmpty() &&
                        event.text().at(0).isPrint() && !(event.modifiers() & commands);
    Command command;
    command.verb = isText ? Verb::Type : Verb::Key;
    command.text = event.text();
    command.key = withoutItself(event.keyCombination());
    if (isText || event.key() != Qt::Key_unknown)
        write(command);
}

/// An input method may replace what was typed before. Only the text that the canvas made of its event tells
/// which keys would have typed it.
bool Recorder::writeComposed(QInputMethodEvent& event)
{
    if (m_isComposing)
        return false; // the canvas's turn
    const auto typed = [this] {
        return m_editor.canvas()->inputMethodQuery(Qt::ImTextBeforeCursor).toString();
    };
    QString kept = typed();
    m_isComposing = true;
    QCoreApplication::sendEvent(m_editor.canvas(), &event);
    m_isComposing = false;
    const QString text = typed();
    while (!text.startsWith(kept)) {
        QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, kept);
        characters.toEnd();
        kept.truncate(characters.toPreviousBoundary());
        write({.verb = Verb::Key, .key = QKeyCombination(Qt::Key_Backspace)});
    }
    if (text != kept)
        write({.verb = Verb::Type, .text = text.sliced(kept.size())});
    return true;
}

void Recorder::write(const Command& command)
{
    keep(command);
    // Where the view's middle is depends on the window, which another may play in.
    const KORVA_Canvas& canvas = *m_editor.canvas();
    const bool comes = command.verb == Verb::Paste || command.verb == Verb::Stamp;
    if (comes && canvas.manners().centeredPiece && !canvas.pasteLabel()->isHidden())
        keep({.verb = Verb::Place, .point = canvas.piecePlace()});
}

void Recorder::keep(const Command& command)
{
    if (m_isHolding)
        m_held.push_back({command, false});
    else
        writeLine(command);
}

void Recorder::writeLine(const Command& command)
{
    if (!m_file.isOpen())
        return;
    m_file.write(Recording::toLine(command).toUtf8() + '\n');
    if (command.verb != Verb::Move)
        m_file.flush(); // so that the recording survives however the program ends
}

} // namespace pad
