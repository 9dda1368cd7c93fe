#pragma once

#include "Failure.h"

#include <QCoreApplication>
#include <QSize>
#include <QStringList>

#include <optional>

namespace pad {

/// The parsed command line of korva-pad.
struct CommandLine
{
    Q_DECLARE_TR_FUNCTIONS(pad::CommandLine)

public:
    std::optional<int> scale; ///< every pixel is shown scale × scale; none means what suits the screen
    QString language;         ///< a code; empty: the locale's
    QString replay;
    QString record;
    QString save;
    QString screenshot;
    int undoSteps = 50;    ///< for a person; a replay begins with 1
    QSize workingSize;     ///< empty: the classic one
    int workingDepth = 16; ///< bits a pixel
    bool noRecovery = false;
    bool help = false;
    bool version = false;
    QString picture;

    /// `arguments` come without the program's name. An option's value follows it, or comes after "=". An
    /// argument after "--" is a picture, whatever its name.
    [[nodiscard]] static Expected<CommandLine> parse(const QStringList& arguments);
    [[nodiscard]] static QString helpText();
    /// The language asked for, wherever it stands in whatever is wrong; empty: none.
    [[nodiscard]] static QString languageIn(const QStringList& arguments);

    /// Whether the program writes its results and ends by itself, with nobody at the window.
    [[nodiscard]] bool endsByItself() const { return !save.isEmpty() || !screenshot.isEmpty(); }
    /// Whether the result must be the same anywhere. Then the window has its plain size, and nothing is
    /// remembered.
    [[nodiscard]] bool isScripted() const
    {
        return endsByItself() || !replay.isEmpty() || !record.isEmpty();
    }
};

} // namespace pad
