#pragma once

#include <QImage>
#include <QPageLayout>
#include <QString>

#include <functional>
#include <optional>

class QPrinter;

namespace pad {

/// A printer of the system.
struct Printer
{
    QString name;
    QPageSize paper;
    /// Prints one sheet. False if the printer does not take it.
    std::function<bool(const QImage& picture, const QPageLayout& layout)> print;

    /// The one that the system prints on by default; none if it has no printer.
    [[nodiscard]] static std::optional<Printer> usual();
    /// Prints one sheet on a printer that is set up.
    [[nodiscard]] static bool printOn(QPrinter& printer, const QImage& picture, const QPageLayout& layout);
};

} // namespace pad
