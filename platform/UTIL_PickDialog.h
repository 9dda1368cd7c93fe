#pragma once

#include "UTIL_FolderDialog.h"

/// The desktop's dialog for picking a picture file.
class UTIL_PickDialog : public UTIL_FolderDialog
{
    Q_OBJECT

public:
    UTIL_PickDialog(QWidget* parent, const QString& folder, const QStringList& patterns);

protected:
    void choose(const QString& path) override;
    void confirm() override;
};
