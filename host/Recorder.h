#pragma once

#include "Recording.h"

#include <KORVA_Types.h>

#include <QFile>
#include <QObject>

#include <vector>

class KORVA_EditCanvas;
class QInputMethodEvent;
class QKeyEvent;
class QMouseEvent;

namespace pad {

/// Records what a person does to the drawing, so that playing the recording gives the same picture.
class Recorder : public QObject
{
    Q_OBJECT

public:
    explicit Recorder(KORVA_EditCanvas& editor, QObject* parent = nullptr);

    /// Begins a recording in this file. An existing file is replaced.
    std::optional<Failure> start(const QString& fileName);
    /// Ends the recording. Reports a failure of any write.
    std::optional<Failure> finish();

    bool eventFilter(QObject* watched, QEvent* event) override;

public slots:
    void write(const pad::Command& command);

private:
    /// A line of the recording, or of the stroke that a finger has begun.
    struct Held
    {
        Command command;
        bool isStroke;
    };

    [[nodiscard]] Failure failure() const;
    void writeChoice(KORVA_CHOICETYPE what, int which);
    void writeMouse(const QWidget& receiver, const QMouseEvent& event);
    void dropStroke();
    void writeHeld();
    void keep(const Command& command);
    void writeLine(const Command& command);
    void writeKey(const QKeyEvent& event);
    bool writeComposed(QInputMethodEvent& event);
    void watchMenus();

    KORVA_EditCanvas& m_editor;
    QFile m_file;
    bool m_isComposing = false;
    bool m_isHolding = false;
    std::vector<Held> m_held; ///< from a finger's press to the end of its stroke, which may be taken back
};

} // namespace pad
