#pragma once

#include "UTIL_Dialog.h"

/// The base of the folder dialogs that UTIL_Platform makes: exec() is 1 when one was accepted, with the
/// file's name.
class KORVA_EXPORT UTIL_PictureDialog : public UTIL_Dialog
{
    Q_OBJECT

public:
    /// A modal dialog; the derived class fills and sizes it.
    explicit UTIL_PictureDialog(QWidget* parent = nullptr, Qt::WindowFlags flags = {})
        : UTIL_Dialog(FreeDialog, true, parent, nullptr, flags)
    {
    }

    /// The path of the file chosen; empty: none was.
    [[nodiscard]] QString fileName() const { return m_fileName; }
    /// Before the dialog opens: what it proposes. From the derived class: what was chosen.
    void setFileName(const QString& name) { m_fileName = name; }

    /// What the dialog is for, where that is more than its kind says: the title, and the text of the key
    /// that confirms. Before the dialog opens. A host's dialog that shows neither in its own way gets the
    /// title only.
    virtual void setPurpose(const QString& title, const QString& verb)
    {
        Q_UNUSED(verb)
        setWindowTitle(title);
    }

    /// Whether a name may be chosen that KORVA_EditCanvas::save() cannot save under: one with a single
    /// quote. For a host that writes the file itself; false unless set.
    [[nodiscard]] bool takesAnyName() const { return m_takesAnyName; }
    /// See takesAnyName(). Before the dialog opens.
    void setTakesAnyName(bool any) { m_takesAnyName = any; }

    /// In what order the desktop's dialogs show the pictures of a folder; its sub-folders come first, by
    /// name.
    enum Order : int {
        ByName = 0,      ///< as people sort: whatever the case, and 9 before 10
        NewestFirst = 1, ///< by the time of their last change
    };

    /// The order that the user chose last, ByName at first. It lasts while the program runs: a host that
    /// wants more asks for it when a dialog is finished and sets it when the program starts.
    [[nodiscard]] static Order order();
    /// For the dialogs that are made from now on.
    static void setOrder(Order order);

private:
    QString m_fileName;
    bool m_takesAnyName = false;
};
