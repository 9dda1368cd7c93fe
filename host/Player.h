#pragma once

#include "Failure.h"
#include "Pointer.h"
#include "Recording.h"

#include <optional>

class KORVA_EditCanvas;

namespace pad {

class Document;

/// Plays a recording on the editor: strokes and keys as the window system's own events, the rest as a
/// person chooses it.
class Player
{
public:
    Player(KORVA_EditCanvas& editor, Document& document);

    /// Returns when the last command is done, or with the first that could not be. Runs the event loop
    /// while it waits.
    std::optional<Failure> play(const Recording& recording);

private:
    std::optional<Failure> perform(const Command& command);
    void type(const QString& text);
    void pressKey(QKeyCombination key, const QString& text);

    KORVA_EditCanvas& m_editor;
    Document& m_document;
    Pointer m_pointer;
};

} // namespace pad
