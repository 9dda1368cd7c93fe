#pragma once

#include "CopyDialog.h"
#include "Printer.h"

namespace pad {

/// The dialog that shows the drawing on paper before it is printed, on a printer or into a PDF file.
class PrintDialog : public CopyDialog
{
    Q_OBJECT

public:
    /// Without a printer there is the PDF only. `title` is what the dialog does, too.
    PrintDialog(QWidget* parent, const QString& title, const QImage& drawing,
                const std::optional<Printer>& printer);

    /// Whether the PDF is chosen.
    [[nodiscard]] bool isPdf() const { return choice() == int(m_layouts.size()) - 1; }
    /// The sheet of what is chosen.
    [[nodiscard]] QPageLayout layout() const { return m_layouts.at(choice()); }

protected:
    [[nodiscard]] QString description(const Copy& copy) const override;

private:
    void offer(const QString& text, const QImage& drawing, const QPageSize& paper);

    QString m_printer;            ///< its name
    QList<QPageLayout> m_layouts; ///< of the choices
};

} // namespace pad
