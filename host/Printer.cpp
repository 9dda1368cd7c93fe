#include "Printer.h"

#include "PrintPage.h"

#include <QPrinter>
#include <QPrinterInfo>

namespace pad {

std::optional<Printer> Printer::usual()
{
    const QStringList names = QPrinterInfo::availablePrinterNames();
    if (names.isEmpty())
        return {};
    QPrinterInfo info = QPrinterInfo::defaultPrinter();
    if (info.isNull())
        info = QPrinterInfo::printerInfo(names.constFirst());
    const QPageSize paper = info.defaultPageSize();
    return Printer{info.printerName(), paper.isValid() ? paper : printpage::usualPaper(),
                   [info](const QImage& picture, const QPageLayout& layout) {
                       QPrinter printer(info, QPrinter::HighResolution);
                       return printOn(printer, picture, layout);
                   }};
}

bool Printer::printOn(QPrinter& printer, const QImage& picture, const QPageLayout& layout)
{
    printer.setResolution(printpage::resolution);
    printer.setCreator(QStringLiteral("korva-pad"));
    return printpage::print(picture, layout, printer) && printer.printerState() != QPrinter::Error;
}

} // namespace pad
