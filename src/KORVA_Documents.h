#pragma once

#include <QImage>
#include <QPixmap>
#include <QPointer>
#include <QString>

#include <optional>

class KORVA_EditCanvas;
class UTIL_PictureDialog;

/// The editor's document commands: what is asked, in which order, and what the user is told. The file work
/// itself is KORVA_PictureFile's; here are the questions, the dialogs and the name of the drawing.
///
/// Owned by the editor; the operations stand behind the editor's own of the same purpose.
///
/// The editor, and this object with it, may be deleted while a box or a dialog is open. Everything that
/// opens one is called through survives(), or is the last that its caller does.
class KORVA_Documents
{
public:
    /// What the user asked for, kept across the dialogs that come first.
    enum Action : int { NoAction = -1, Open, ChooseCanvas, Save, InsertStamp, Create };

    explicit KORVA_Documents(KORVA_EditCanvas& editor) : m_editor(editor) {}

    [[nodiscard]] QString fileName() const { return m_fileName; }
    void setFileName(const QString& name);

    /// Of the picture last opened; empty for a new drawing.
    [[nodiscard]] QSize sourceSize() const { return m_opened.size; }
    /// Whether a save under fileName() would lose what opening took away.
    [[nodiscard]] bool isReduced() const { return m_opened.isReduced && m_opened.name == m_fileName; }
    /// A file of this name now holds the drawing.
    void noteSaved(const QString& name);
    /// The drawing is no longer the opened one.
    void forgetOpened() { m_opened = {}; }

    void openAtConstruction(const QString& name);
    /// Nothing while a pick dialog is open.
    void startOpen();
    void saveChanges(int action);
    /// Lets the user pick the picture; false when nothing was picked or opened. As open() it shows that a
    /// large file takes its time; when the user cancels it, or the editor is deleted meanwhile, nothing has
    /// happened.
    bool pickAndOpen(int action);
    bool open(int action, const QString& name);
    bool isPicSizeNotOver(const QString& name, const char* format);
    void setBuffer(const QByteArray& data);

    void nameAndSave(int action);
    void saveUnder(const QString& name);
    void saveAndTell();

    void askAndDelete();

private:
    /// The picture last opened, as it was before.
    struct Opened
    {
        QString name;
        QSize size;
        bool isReduced = false;
    };

    /// What reading a file came to.
    struct Contents
    {
        int status = 0;
        QImage image;
        QImage working; ///< the image as the canvas takes it
        Opened opened;
    };

    /// Does work that may open a box or a dialog. False when the editor was deleted meanwhile: nothing of
    /// it, nor of this object, is there any more.
    template <typename Work>
    [[nodiscard]] bool survives(const Work& work);
    /// Nothing when the user has cancelled it; this object may be gone then.
    std::optional<Contents> contentsOf(const QString& name, const QByteArray& format);
    /// Tells the user what is wrong; this object may be gone then.
    bool check(int status);
    static bool take(const Contents& contents, QPixmap* picture, Opened* opened);
    void tellUnreadable();
    void askForName();
    void resetTypedText();
    /// The index of the button; nothing when the editor, and this object, has gone.
    [[nodiscard]] std::optional<int> ask(const char* icon, const QString& text, const QStringList& buttons);
    /// This object may be gone afterwards.
    void tell(const char* icon, const QString& text);

    KORVA_EditCanvas& m_editor;
    QString m_fileName;
    Opened m_opened;
    int m_pendingAction = NoAction;
    QPointer<UTIL_PictureDialog> m_saveDialog; ///< while one is open; a child of the editor
    QPointer<UTIL_PictureDialog> m_pickDialog; ///< until the open is finished; a child of the editor
};
