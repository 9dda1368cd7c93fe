#pragma once

#include "UTIL_FolderDialog.h"

class QLineEdit;

/// The desktop's dialog for naming a picture file. It proposes a name that is free, gives a name without
/// one of the extensions the first of them, and asks before it returns the name of an existing file.
class UTIL_SaveDialog : public UTIL_FolderDialog
{
    Q_OBJECT

public:
    UTIL_SaveDialog(QWidget* parent, const QString& folder, const QStringList& patterns);

    void setVisible(bool visible) override;

protected:
    void enter(const QString& folder) override;
    void choose(const QString& path) override;
    void confirm() override;

private:
    /// False, too, when the dialog has gone meanwhile.
    [[nodiscard]] bool mayReplace();
    [[nodiscard]] QString freeName() const;
    /// What was typed, with its extension; empty while that is no name.
    [[nodiscard]] QString name() const;

    QStringList m_extensions; ///< with their dots
    QLineEdit* m_edit;
};
