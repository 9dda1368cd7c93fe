#include "Player.h"

#include "DocumentAction.h"
#include "DrawingFile.h"
#include "EditCommand.h"
#include "PadTools.h"

#include <KORVA_Canvas.h>
#include <KORVA_EditCanvas.h>
#include <KORVA_PasteLabel.h>

#include <QApplication>
#include <QEventLoop>
#include <QKeyEvent>
#include <QPointer>
#include <QScopeGuard>
#include <QTimer>

namespace pad {

namespace {

Qt::Key keyOf(char32_t letter)
{
    return letter > 0xffff ? Qt::Key_unknown : Qt::Key(QChar(char16_t(letter)).toUpper().unicode());
}

/// The text that a keyboard delivers with a key: letters and signs have one, other keys none.
QString textOf(QKeyCombination key)
{
    constexpr Qt::KeyboardModifiers commands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    if (key.key() < Qt::Key_Space || key.key() > Qt::Key_ydiaeresis || key.keyboardModifiers() & commands)
        return {};
    const QChar letter(char16_t(key.key()));
    return key.keyboardModifiers() & Qt::ShiftModifier ? letter : letter.toLower();
}

Qt::KeyboardModifiers keysOf(const Command& command)
{
    return command.isEven ? Qt::ShiftModifier : Qt::NoModifier;
}

/// Switches drawing by keyboard for a while, whatever the editor's host has chosen: a recording is the same
/// everywhere.
class KeyboardDrawing
{
public:
    KeyboardDrawing(KORVA_Canvas& canvas, bool on) : m_canvas(&canvas), m_before(canvas.isKeyboardDrawing())
    {
        set(on);
    }
    ~KeyboardDrawing() { set(m_before); }
    KeyboardDrawing(const KeyboardDrawing&) = delete;
    KeyboardDrawing& operator=(const KeyboardDrawing&) = delete;

private:
    void set(bool on)
    {
        if (m_canvas && m_canvas->isKeyboardDrawing() != on)
            m_canvas->setKeyboardDrawing(on);
    }

    QPointer<KORVA_Canvas> m_canvas;
    bool m_before;
};

/// A recording that names no manners was made with the classic ones. Afterwards those of the host return.
class ClassicManners
{
public:
    explicit ClassicManners(KORVA_EditCanvas& editor) : m_editor(&editor), m_before(editor.manners())
    {
        padtools::behave(editor, {});
    }
    ~ClassicManners()
    {
        if (m_editor)
            padtools::behave(*m_editor, m_before);
    }
    ClassicManners(const ClassicManners&) = delete;
    ClassicManners& operator=(const ClassicManners&) = delete;

private:
    QPointer<KORVA_EditCanvas> m_editor;
    KORVA_Manners m_before;
};

} // namespace

Player::Player(KORVA_EditCanvas& editor, Platform& platform)
    : m_editor(editor), m_platform(platform), m_pointer(editor.canvas())
{
}

std::optional<Failure> Player::play(const Recording& recording)
{
    m_script = {};
    m_platform.obey(&m_script);
    const KeyboardDrawing drawing(*m_editor.canvas(), true);
    const ClassicManners manners(m_editor);
    const auto free = qScopeGuard([this] { m_platform.obey(nullptr); });
    for (const Command& command : recording.commands()) {
        perform(command);
        if (!m_script.stopped.isEmpty())
            return recording.failureAt(command, m_script.stopped);
    }
    return {};
}

struct Player::Action
{
    Verb verb;
    void (*perform)(Player& player, const Command& command);
};

void Player::perform(const Command& command)
{
    static constexpr Action actions[] = {
        {Verb::Tool, [](Player& p, const Command& c) { p.m_editor.selectTool(c.number); }},
        {Verb::Option, [](Player& p, const Command& c) { p.option(c.number); }},
        {Verb::Color, [](Player& p, const Command& c) { p.m_editor.setColor(c.color); }},
        {Verb::Zoom, [](Player& p, const Command& c) { p.zoom(zoomRates[c.number]); }},
        {Verb::Press, [](Player& p, const Command& c) { p.m_pointer.press(c.point, c.button); }},
        {Verb::Move, [](Player& p, const Command& c) { p.m_pointer.move(c.point, keysOf(c)); }},
        {Verb::Release,
         [](Player& p, const Command& c) { p.m_pointer.release(c.point, c.button, keysOf(c)); }},
        {Verb::Type, [](Player& p, const Command& c) { p.type(c.text); }},
        {Verb::Key, [](Player& p, const Command& c) { p.pressKey(c.key, textOf(c.key)); }},
        {Verb::Piece,
         [](Player& p, const Command& c) {
             p.m_editor.canvas()->pasteLabel()->change(KORVA_PasteLabel::Change(c.number));
         }},
        {Verb::Place, [](Player& p, const Command& c) { p.m_editor.canvas()->placePiece(c.point); }},
        {Verb::Canvas, [](Player& p, const Command& c) { p.canvas(c.number, c.size); }},
        {Verb::Open, [](Player& p, const Command& c) { p.open(c.text); }},
        {Verb::Paper, [](Player& p, const Command& c) { p.paper(c.text); }},
        {Verb::Stamp, [](Player& p, const Command& c) { p.stamp(c.text); }},
        {Verb::Save, [](Player& p, const Command& c) { p.save(c.text); }},
        {Verb::Wait, [](Player&, const Command& c) { wait(c.number); }},
        {Verb::History, [](Player& p, const Command& c) { setHistory(p.m_editor, c.number); }},
        {Verb::Bold, [](Player& p, const Command& c) { p.m_editor.setBold(c.number == 1); }},
        {Verb::Outline, [](Player& p, const Command& c) { p.m_editor.setOutlineColor(c.color); }},
        {Verb::Manners,
         [](Player& p, const Command& c) { padtools::behave(p.m_editor, Recording::mannersOf(c)); }},
        {Verb::Answer, [](Player& p, const Command& c) { p.m_script.answer = c.number; }},
    };
    if (performOn(m_editor, command.verb))
        return;
    for (const Action& action : actions) {
        if (action.verb == command.verb)
            action.perform(*this, command);
    }
}

void Player::zoom(int rate)
{
    const auto row = m_editor.features().zooms.indexOf(rate);
    if (row >= 0)
        m_editor.selectZoom(int(row));
    else
        m_editor.setZoom(rate); // an editor without that row shows it all the same
}

void Player::option(int option)
{
    m_editor.selectOption(option);
    if (m_editor.option() != option)
        stop(tr("the tool has no option %1", "replay").arg(option));
}

void Player::type(const QString& text)
{
    const KeyboardDrawing drawing(*m_editor.canvas(), false); // keys without an open text draw nothing
    for (const char32_t letter : text.toStdU32String()) {
        if (letter == U'\n')
            pressKey(QKeyCombination(Qt::Key_Return), {});
        else
            pressKey(QKeyCombination(keyOf(letter)), QString::fromUcs4(&letter, 1));
    }
}

void Player::pressKey(QKeyCombination key, const QString& text)
{
    QWidget* popup = QApplication::activePopupWidget();
    QWidget* receiver = popup ? popup : m_editor.canvas();
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key.key(), key.keyboardModifiers(), text);
        QCoreApplication::sendEvent(receiver, &event);
    }
}

void Player::canvas(int type, QSize size)
{
    if (mayReplaceDrawing(m_editor, m_platform))
        newCanvas(m_editor, type, size);
    else
        stop(tr("the drawing could not be saved", "replay"));
}

void Player::open(const QString& fileName)
{
    if (!isReadable(fileName))
        return;
    m_script.fileName = fileName;
    m_editor.slotOpen();
    m_script.fileName.clear();
    if (m_editor.fileName() == fileName)
        changePaper(m_editor, {});
    else
        stopAtPicture(fileName);
}

void Player::paper(const QString& fileName)
{
    if (!isReadable(fileName))
        return;
    if (!mayReplaceDrawing(m_editor, m_platform))
        stop(tr("the drawing could not be saved", "replay"));
    else if (m_editor.openNewFilePrivate(OpenPicture, fileName))
        drawOnOpened(m_editor);
    else
        stopAtPicture(fileName);
}

void Player::stamp(const QString& fileName)
{
    if (isReadable(fileName) && !insertStamp(m_editor, fileName))
        stopAtPicture(fileName);
}

void Player::save(const QString& fileName)
{
    m_editor.pixmap(); // merges and commits everything, as the editor's own save does
    if (const auto error = saveDrawing(m_editor, fileName)) {
        stop(error->line());
        return;
    }
    m_editor.setFileName(fileName);
    m_editor.clearModified();
}

void Player::wait(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

bool Player::isReadable(const QString& fileName)
{
    QString format;
    m_editor.getFileFormat(fileName, format);
    const bool readable = m_editor.isPicSizeNotOver(fileName, format.toLatin1().constData());
    if (!readable)
        stopAtPicture(fileName);
    return readable;
}

void Player::stop(const QString& reason)
{
    if (m_script.stopped.isEmpty())
        m_script.stopped = reason;
}

void Player::stopAtPicture(const QString& fileName)
{
    stop(openError(fileName, m_script.told));
}

} // namespace pad
