#include "PrintDialog.h"

#include "PrintPage.h"
#include "Wording.h"

namespace pad {

PrintDialog::PrintDialog(QWidget* parent, const QString& title, const QImage& drawing,
                         const std::optional<Printer>& printer)
    : CopyDialog(parent, title, title)
{
    if (printer) {
        m_printer = wording::shortName(printer->name);
        offer(tr("Printer", "print"), drawing, printer->paper);
    }
    offer(QStringLiteral("PDF"), drawing, printpage::usualPaper());
    choose(0);
}

void PrintDialog::offer(const QString& text, const QImage& drawing, const QPageSize& paper)
{
    const QPageLayout sheet = printpage::layoutFor(drawing.size(), paper);
    m_layouts.append(sheet);
    addChoice(text, [drawing, sheet](const IsWanted&) {
        return Copy{printpage::seen(drawing, sheet), {}};
    });
}

QString PrintDialog::description(const Copy&) const
{
    return (isPdf() ? QString() : m_printer + QLatin1Char('\n')) + layout().pageSize().name();
}

} // namespace pad
