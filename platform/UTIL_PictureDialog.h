#pragma once

#include "UTIL_Dialog.h"

/// What a folder dialog gives: exec() is 1 when it was accepted, with the file's name.
class KORVA_EXPORT UTIL_PictureDialog : public UTIL_Dialog
{
    Q_OBJECT

public:
    explicit UTIL_PictureDialog(QWidget* parent = nullptr, Qt::WindowFlags flags = {})
        : UTIL_Dialog(FreeDialog, true, parent, nullptr, flags)
    {
    }

    /// Empty: none was chosen.
    [[nodiscard]] QString fileName() const { return m_fileName; }
    /// Before the dialog opens: what it proposes.
    void setFileName(const QString& name) { m_fileName = name; }

private:
    QString m_fileName;
};
