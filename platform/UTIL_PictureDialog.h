#pragma once

#include "KORVA_Export.h"

#include <QDialog>

/// What a folder dialog gives: exec() is 1 when it was accepted, with the file's name.
class KORVA_EXPORT UTIL_PictureDialog : public QDialog
{
    Q_OBJECT

public:
    explicit UTIL_PictureDialog(QWidget* parent = nullptr, Qt::WindowFlags flags = {})
        : QDialog(parent, flags)
    {
    }

    /// Empty: none was chosen.
    [[nodiscard]] QString fileName() const { return m_fileName; }
    void setFileName(const QString& name) { m_fileName = name; }

private:
    QString m_fileName;
};
