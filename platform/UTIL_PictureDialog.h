#pragma once

#include "UTIL_Dialog.h"

/// The base of the folder dialogs that UTIL_Platform makes. exec() returns 1 when the user accepted;
/// fileName() is then the chosen file.
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
    /// Before the dialog opens, sets the name to propose. Later, the derived class sets the name that was
    /// chosen.
    void setFileName(const QString& name) { m_fileName = name; }

    /// Says what the dialog is for, when its kind does not say enough: the title, and the text of the key
    /// that confirms. Call it before the dialog opens. The base class only sets the window's title; a
    /// host's dialog may override this to show both.
    virtual void setPurpose(const QString& title, const QString& verb)
    {
        Q_UNUSED(verb)
        setWindowTitle(title);
    }

    /// Whether the user may choose a name with a single quote, under which KORVA_EditCanvas::save() cannot
    /// save. For a host that writes the file itself. False unless set.
    [[nodiscard]] bool takesAnyName() const { return m_takesAnyName; }
    /// See takesAnyName(). Call it before the dialog opens.
    void setTakesAnyName(bool any) { m_takesAnyName = any; }

    /// The order in which the desktop's dialogs show the pictures of a folder. Sub-folders come first, by
    /// name.
    enum Order : int {
        ByName = 0,      ///< as people sort: whatever the case, and 9 before 10
        NewestFirst = 1, ///< by the time of their last change
    };

    /// The order that the user chose last, ByName at first. It lasts while the program runs. A host that
    /// wants to keep it reads it when a dialog is finished, and sets it when the program starts.
    [[nodiscard]] static Order order();
    /// Sets the order of the dialogs that are made from now on.
    static void setOrder(Order order);

private:
    QString m_fileName;
    bool m_takesAnyName = false;
};
