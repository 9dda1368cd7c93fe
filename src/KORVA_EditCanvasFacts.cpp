#include "KORVA_EditCanvas.h"

#include "KORVA_Canvas.h"
#include "KORVA_ClassicPainter.h"
#include "KORVA_Documents.h"
#include "KORVA_Formats.h"
#include "KORVA_PasteLabel.h"
#include "KORVA_PictureSave.h"
#include "KORVA_Text.h"
#include "KORVA_ToolTable.h"

// The facts for a host: whether there is anything to lose, what a save would write, what things are called.

bool KORVA_EditCanvas::isModified() const
{
    return canvas()->isModified();
}

void KORVA_EditCanvas::clearModified()
{
    canvas()->clearModified();
    m_saved = classic::hash(snapshot());
}

bool KORVA_EditCanvas::hasChanges() const
{
    const KORVA_Text* text = currentText();
    const bool isPending = !canvas()->pasteLabel()->isHidden() || (text && text->takesText());
    return isModified() || (isPending && classic::hash(snapshot()) != m_saved);
}

QImage KORVA_EditCanvas::snapshot() const
{
    return canvas()->snapshot().toImage();
}

QByteArray KORVA_EditCanvas::encoded(const char* format, qsizetype mostBytes) const
{
    return picturesave::encodedWithin(
        snapshot(), format ? QByteArray(format) : KORVA_Formats::writeFormat(fileName()), mostBytes);
}

QByteArray KORVA_EditCanvas::encoded(const QImage& snapshot, const char* format, qsizetype mostBytes)
{
    return picturesave::encodedWithin(snapshot, format, mostBytes);
}

QSize KORVA_EditCanvas::sourceSize() const
{
    return m_documents->sourceSize();
}

bool KORVA_EditCanvas::isReduced() const
{
    return m_documents->isReduced();
}

QStringList KORVA_EditCanvas::openPatterns()
{
    return KORVA_Formats::openPatterns();
}

QStringList KORVA_EditCanvas::savePatterns()
{
    return KORVA_Formats::savePatterns();
}

QString KORVA_EditCanvas::toolName(int tool)
{
    const KORVA_ToolTable::ToolRow* row = KORVA_ToolTable::toolRow(tool);
    return row ? tr(row->name.text, row->name.comment) : QString();
}

QString KORVA_EditCanvas::toolWord(int tool)
{
    const KORVA_ToolTable::ToolRow* row = KORVA_ToolTable::toolRow(tool);
    return row ? QString::fromLatin1(row->word) : QString();
}
