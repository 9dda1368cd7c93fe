#include "Copies.h"

#include "ColorsDialog.h"
#include "Documents.h"
#include "MessageDialog.h"
#include "Palette.h"
#include "PrintDialog.h"
#include "PrintPage.h"
#include "Settings.h"

#include <KORVA_EditCanvas.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QSettings>

namespace pad {

namespace {

const QString limitKey = QStringLiteral("message/limit");

/// The most colours of a canvas; 0 for any number.
int colorsOf(KORVA_COLORTYPE type)
{
    constexpr struct
    {
        KORVA_COLORTYPE type;
        int colors;
    } rows[] = {{KORVA_COLOR_1BIT, 2}, {KORVA_COLOR_4BIT, 16}, {KORVA_COLOR_8BIT, 256}};
    for (const auto& row : rows) {
        if (row.type == type)
            return row.colors;
    }
    return 0;
}

} // namespace

Copies::Copies(KORVA_EditCanvas& editor, Documents& documents, QWidget* window)
    : m_editor(editor), m_documents(documents), m_window(window)
{
}

void Copies::remember()
{
    m_isRemembered = true;
    m_limit = QSettings(settingsFile(), QSettings::IniFormat).value(limitKey).toInt();
}

void Copies::toClipboard() const
{
    const QImage drawing = m_editor.snapshot();
    if (!drawing.isNull()) // there was memory for it
        QGuiApplication::clipboard()->setImage(drawing);
}

void Copies::print(const QString& title)
{
    const QImage drawing = m_editor.snapshot();
    if (drawing.isNull())
        return;
    const std::optional<Printer> printer = m_findPrinter();
    PrintDialog dialog(m_window, title, drawing, printer);
    bool isDone = false;
    while (!isDone && dialog.ask()) {
        const QPageLayout sheet = dialog.layout();
        if (dialog.isPdf()) {
            isDone = m_documents.saveCopy(
                [drawing, sheet](const QString&) { return printpage::pdf(drawing, sheet); },
                {QStringLiteral("*.pdf")});
            continue;
        }
        isDone = printer->print(drawing, sheet);
        if (!isDone)
            m_documents.tell(tr("The printer does not take it.", "print"), Documents::tr("OK", "saving"));
    }
}

void Copies::saveForMessage(const QString& title)
{
    MessageDialog dialog(m_window, title, m_editor.snapshot(), m_limit);
    bool isSaved = false;
    while (!isSaved && dialog.ask()) {
        m_limit = dialog.limit();
        if (m_isRemembered)
            QSettings(settingsFile(), QSettings::IniFormat).setValue(limitKey, m_limit);
        isSaved = m_documents.saveCopy([bytes = dialog.copy().bytes](const QString&) { return bytes; },
                                       {QStringLiteral("*.jpg"), QStringLiteral("*.jpeg")});
    }
}

bool Copies::hasFewColors() const
{
    return colorsOf(m_editor.colorType()) > 0;
}

void Copies::saveInFewColors(const QString& title)
{
    ColorsDialog dialog(m_window, title, m_editor.snapshot(), colorsOf(m_editor.colorType()));
    bool isSaved = false;
    while (!isSaved && dialog.ask()) {
        const auto encode = [picture = dialog.copy().picture](const QString& fileName) {
            return fileName.endsWith(QLatin1String(".bmp"), Qt::CaseInsensitive)
                       ? KORVA_EditCanvas::encoded(picture, "BMP")
                       : palette::png(picture);
        };
        isSaved = m_documents.saveCopy(encode, {QStringLiteral("*.png"), QStringLiteral("*.bmp")});
    }
}

} // namespace pad
