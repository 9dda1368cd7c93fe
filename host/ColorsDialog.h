#pragma once

#include "CopyDialog.h"

namespace pad {

/// The dialog that shows the drawing in as few colours as its canvas has, plain or with dots.
class ColorsDialog : public CopyDialog
{
    Q_OBJECT

public:
    /// `colors` is what palette::of() takes.
    ColorsDialog(QWidget* parent, const QString& title, const QImage& drawing, int colors);

protected:
    [[nodiscard]] QString description(const Copy& copy) const override;
};

} // namespace pad
