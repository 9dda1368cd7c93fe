#pragma once

#include "KORVA_EditCanvas.h"

#include <QImage>
#include <QPixmap>
#include <QPointer>
#include <QString>

#include <optional>

class UTIL_PictureDialog;

/// The editor's document commands: what is asked, in which order, and what the user is told. Here are the
/// questions, the dialogs and the name of the drawing; KORVA_PictureFile reads files and the editor's
/// save() writes them.
///
/// The editor owns this object. Its document functions call those here of the same purpose.
///
/// The editor, and this object with it, may be deleted while a box or a dialog is open. Everything that
/// opens one is called through survives(), or is the last thing that its caller does.
class KORVA_Documents
{
public:
    /// What the user asked for, kept across the dialogs that come first.
    enum Action : int { NoAction = -1, Open, ChooseCanvas, Save, InsertStamp, Create };

    explicit KORVA_Documents(KORVA_EditCanvas& editor) : m_editor(editor) {}

    [[nodiscard]] QString fileName() const { return m_fileName; }
    void setFileName(const QString& name);

    /// The size of the picture last opened; empty for a new drawing.
    [[nodiscard]] QSize sourceSize() const { return m_opened.size; }
    /// Whether a save under fileName() would lose for good what opening left out.
    [[nodiscard]] bool isReduced() const { return m_opened.isReduced && m_opened.name == m_fileName; }
    /// A file of this name now holds the drawing.
    void noteSaved(const QString& name);
    /// The drawing is no longer the opened one.
    void forgetOpened() { m_opened = {}; }

    void openAtConstruction(const QString& name);
    /// Does nothing while a pick dialog is open.
    void startOpen();
    void saveChanges(int action);
    /// Lets the user pick the picture and opens it. False when nothing was picked or opened. Like open(),
    /// it shows a box while a large file is read; if the user cancels, or the editor is deleted meanwhile,
    /// nothing has changed.
    bool pickAndOpen(int action);
    bool open(int action, const QString& name);
    bool isPicSizeNotOver(const QString& name, const char* format);
    void setBuffer(const QByteArray& data);
    /// As setBuffer(), but shows no box: false when it cannot be decoded.
    bool setEncoded(const QByteArray& data);

    void nameAndSave(int action);
    void saveUnder(const QString& name);
    void saveAndTell();

    void askAndDelete();

    /// Ends every operation whose box or dialog is open: it does no more after that returns.
    void cancel();
    /// Begins a new drawing, without a name.
    void reset();

private:
    static constexpr auto completeIcon = "Dialog_Complete.gif";
    static constexpr auto errorIcon = "Dialog_Error.gif";
    static constexpr auto warningIcon = "Dialog_Exclamatory_Mark.gif";
    static constexpr auto binIcon = "Dialog_Empty_Trash.gif";
    static constexpr int shortTime = 1; // seconds
    static constexpr int longTime = 2;

    /// The picture last opened, as it was in its file.
    struct Opened
    {
        QString name;
        QSize size;
        bool isReduced = false;
    };

    /// The result of reading a file.
    struct Contents
    {
        int status = 0;
        QImage image;
        QImage working; ///< the image in the form that the canvas takes
        Opened opened;
    };

    /// Does work that may open a box or a dialog. False when the editor, and with it this object, was
    /// deleted meanwhile, or cancel() was called: its caller does no more then.
    template <typename Work>
    [[nodiscard]] bool survives(const Work& work)
    {
        const QPointer<KORVA_EditCanvas> editor = &m_editor;
        const int cancellations = m_cancellations;
        work();
        return editor && cancellations == m_cancellations;
    }
    /// Nothing when the user has cancelled; this object may be gone then.
    std::optional<Contents> contentsOf(const QString& name, const QByteArray& format);
    /// False if the status is an error, after telling the user; this object may be gone then.
    bool check(int status);
    bool take(const Contents& contents, QPixmap* picture, Opened* opened) const;
    [[nodiscard]] const KORVA_Features& features() const { return m_editor.features(); }
    [[nodiscard]] std::optional<QList<QByteArray>> formats() const;
    [[nodiscard]] bool mayOpen(int action) const;
    void tellUnreadable();
    void askForName();
    void resetTypedText();
    /// The index of the button; nothing when the editor, and with it this object, is gone.
    [[nodiscard]] std::optional<int> ask(const char* icon, const QString& text, const QStringList& buttons);
    /// This object may be gone afterwards.
    void tell(const char* icon, const QString& text);

    KORVA_EditCanvas& m_editor;
    QString m_fileName;
    Opened m_opened;
    int m_pendingAction = NoAction;
    int m_cancellations = 0;                   ///< how many there were
    QPointer<UTIL_PictureDialog> m_saveDialog; ///< while one is open; a child of the editor
    QPointer<UTIL_PictureDialog> m_pickDialog; ///< until the open is finished; a child of the editor
};
