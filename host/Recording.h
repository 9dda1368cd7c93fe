#pragma once

#include "Failure.h"

#include <KORVA_Features.h>
#include <KORVA_Manners.h>

#include <QColor>
#include <QCoreApplication>
#include <QKeyCombination>
#include <QPoint>
#include <QSize>

#include <vector>

namespace pad {

/// What a line of a recording does.
enum class Verb {
    Tool,
    Option,
    Color,
    Zoom,
    Press,
    Move, ///< without a press: a hover
    Release,
    Type,
    Key,
    Undo,
    Redo,
    Cut,
    Copy,
    Paste,
    SelectAll,
    Clear,
    Delete, ///< the floating piece
    Piece,  ///< changes it, as its menu does
    Place,  ///< moves it
    Canvas,
    Open,
    Paper, ///< begins a new drawing on a picture file
    Stamp, ///< lays a picture file over the drawing
    Save,
    Wait,
    Answer,
    History, ///< how many steps can be undone
    Bold,    ///< makes letters bold or plain
    Outline, ///< the colour around filled shapes
    Manners, ///< which ways of the editor are modern
};

/// One line of a recording, understood. Which fields count depends on the verb.
struct Command
{
    Verb verb = Verb::Wait;
    int line = 0;      ///< in the file, from 1
    QPoint point = {}; ///< Press, Move, Release: canvas widget coordinates; Place: picture coordinates
    Qt::MouseButton button = Qt::LeftButton;
    bool isEven = false; ///< Move, Release: Shift was held, which keeps shapes even
    /// Tool: its identifier; Zoom: an index of zoomNames; Canvas: its KORVA_CANVASTYPE; Option and Answer:
    /// an index; Piece: of pieceNames; Bold: of switchNames; Wait: milliseconds; History: steps
    int number = 0;
    QSize size = {}; ///< Canvas: pixels
    QColor color = {};
    QKeyCombination key = QKeyCombination(Qt::Key_unknown);
    QString text = {}; ///< Type: what is typed; Open, Paper, Stamp, Save: a file's name; Manners:
                       ///< their words

    bool operator==(const Command& other) const = default;
};

/// The words of the language, indexed by the numbers that they stand for.
inline constexpr const char* zoomNames[] = {"50", "100", "150", "200", "400", "800", "fit"};
/// The rows of the pad's zoom box: the rates that these words stand for.
inline constexpr int zoomRates[] = {50, 100, 150, 200, 400, 800, KORVA_Features::fitToPage};
inline constexpr const char* pieceNames[] = {"turn-left", "turn-right", "flip",
                                             "double",    "halve",      "clear-white"};
inline constexpr const char* switchNames[] = {"off", "on"};
inline constexpr const char* canvasNames[] = {"16bit", "1bit", "4bit", "8bit", "4bitb"};

/// A drawing session as text: one command per line; "#" begins a comment. A name or text with blanks is
/// written in double quotes, with \" \\ \n \t inside.
class Recording
{
    Q_DECLARE_TR_FUNCTIONS(pad::Recording)

public:
    /// `name` is the file's name for the messages: "name:line: what is wrong".
    [[nodiscard]] static Expected<Recording> parse(const QByteArray& text, const QString& name);
    [[nodiscard]] static Expected<Recording> read(const QString& fileName);
    /// The line, without a line end, that parse() reads as this command.
    [[nodiscard]] static QString toLine(const Command& command);

    /// A command that sets these manners, and the manners that a command sets.
    [[nodiscard]] static Command commandFor(const KORVA_Manners& manners);
    [[nodiscard]] static KORVA_Manners mannersOf(const Command& command);

    [[nodiscard]] const std::vector<Command>& commands() const { return m_commands; }
    /// A failure of one of these commands, as parse() would word it.
    [[nodiscard]] Failure failureAt(const Command& command, const QString& message) const;

private:
    QString m_name;
    std::vector<Command> m_commands;
};

} // namespace pad
