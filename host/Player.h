#pragma once

#include "Failure.h"
#include "Platform.h"
#include "Pointer.h"
#include "Recording.h"

#include <optional>

class KORVA_EditCanvas;

namespace pad {

/// Plays a recording on the editor: strokes and keys as events like those of the window system, everything
/// else like a person's choices. Questions take their answers from the recording; timed boxes are not
/// shown.
class Player
{
    Q_DECLARE_TR_FUNCTIONS(pad::Player)

public:
    Player(KORVA_EditCanvas& editor, Platform& platform);

    /// Returns after the last command, or at the first one that fails. Runs the event loop while it waits.
    std::optional<Failure> play(const Recording& recording);

private:
    struct Action;

    void perform(const Command& command);
    void zoom(int rate);
    void option(int option);
    void type(const QString& text);
    void pressKey(QKeyCombination key, const QString& text);
    void canvas(int type, QSize size);
    void open(const QString& fileName);
    void paper(const QString& fileName);
    void stamp(const QString& fileName);
    void save(const QString& fileName);
    static void wait(int milliseconds);

    [[nodiscard]] bool isReadable(const QString& fileName);
    /// Stops the replay, unless it is stopped already.
    void stop(const QString& reason);
    void stopAtPicture(const QString& fileName);

    KORVA_EditCanvas& m_editor;
    Platform& m_platform;
    Pointer m_pointer;
    Script m_script;
};

} // namespace pad
