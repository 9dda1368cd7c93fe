#pragma once

#include "Printer.h"

#include <QCoreApplication>
#include <QString>

class KORVA_EditCanvas;
class QWidget;

namespace pad {

class Documents;

/// Copies of the drawing, as snapshot() takes them: the drawing keeps its name and its changes. Those that
/// are less than the drawing are shown before they are saved. If one cannot be saved, the dialog comes
/// back.
class Copies
{
    Q_DECLARE_TR_FUNCTIONS(pad::Copies)

public:
    /// All arguments outlive this object.
    Copies(KORVA_EditCanvas& editor, Documents& documents, QWidget* window);

    /// Loads the last choice from the settings, and keeps it there from now on.
    void remember();

    /// The drawing as a picture on the clipboard.
    void toClipboard() const;
    /// One sheet of paper, or of a PDF file, after showing it.
    void print(const QString& title);
    /// Sets where the printer comes from, so that tests can bring their own.
    void setPrinterSource(const std::function<std::optional<Printer>()>& source) { m_findPrinter = source; }
    /// A JPEG of limited length. `title` is the dialog's.
    void saveForMessage(const QString& title);
    /// Whether the canvas has few colours.
    [[nodiscard]] bool hasFewColors() const;
    /// A PNG or BMP with as few colours as the canvas has, if it has few. A JPEG has no palette, and is not
    /// offered.
    void saveInFewColors(const QString& title);

private:
    KORVA_EditCanvas& m_editor;
    Documents& m_documents;
    QWidget* m_window;
    std::function<std::optional<Printer>()> m_findPrinter = &Printer::usual;
    int m_limit = 0; ///< in kB; 0 before the first choice
    bool m_isRemembered = false;
};

} // namespace pad
