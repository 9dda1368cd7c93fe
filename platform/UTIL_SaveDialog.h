#pragma once

#include "UTIL_FolderDialog.h"

class QLineEdit;

/// The desktop's dialog for naming a picture file. It proposes a free name. It adds the first extension to
/// a name that has none of them. It asks before it returns the name of an existing file.
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
    /// False also when the dialog was deleted meanwhile.
    [[nodiscard]] bool mayReplace();
    [[nodiscard]] QString freeName() const;
    /// The typed name with its extension; empty while the text is no name.
    [[nodiscard]] QString name() const;

    QStringList m_extensions; ///< with their dots
    QLineEdit* m_edit;
};
