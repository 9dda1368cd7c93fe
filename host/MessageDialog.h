#pragma once

#include "CopyDialog.h"

namespace pad {

/// The dialog that makes a JPEG that is small enough for a message, and shows what is left of the drawing.
/// The file is never longer than its limit; where that is impossible, it cannot be saved.
class MessageDialog : public CopyDialog
{
    Q_OBJECT

public:
    /// `limit` is chosen at first, in kB of 1,000 bytes; one that is not offered means the middle one.
    MessageDialog(QWidget* parent, const QString& title, const QImage& drawing, int limit);

    /// The limit that is chosen, in kB.
    [[nodiscard]] int limit() const;

protected:
    [[nodiscard]] QString description(const Copy& copy) const override;
};

} // namespace pad
