#include "Document.h"

#include "PictureFile.h"

#include <KORVA_Canvas.h>
#include <KORVA_EditCanvas.h>
#include <UTIL_Platform.h>

#include <QImageReader>

namespace pad {

namespace {

Failure cannotOpen(const QString& fileName, const QString& reason)
{
    return {QStringLiteral("cannot open '%1': %2").arg(fileName, reason)};
}

} // namespace

Document::Document(KORVA_EditCanvas& editor, QObject* parent) : QObject(parent), m_editor(editor) {}

std::optional<Failure> Document::open(const QString& fileName)
{
    QImageReader reader(fileName);
    reader.setDecideFormatFromContent(true);
    const QSize size = reader.size();
    if (qint64(size.width()) * size.height() > UTIL_Platform::instance()->pixelLimit())
        return cannotOpen(fileName, QStringLiteral("the picture is too large"));
    const QImage image = reader.read();
    if (image.isNull())
        return cannotOpen(fileName, reader.errorString());
    QPixmap picture = QPixmap::fromImage(image);
    m_editor.canvas()->setPixmap(&picture);
    m_editor.canvas()->setUndoFlag(0);
    m_editor.canvas()->clearModified();
    setFileName(fileName);
    return {};
}

std::optional<Failure> Document::saveAs(const QString& fileName)
{
    if (auto failure = writePicture(m_editor.canvas()->pixmap()->toImage(), fileName))
        return failure;
    m_editor.canvas()->clearModified();
    setFileName(fileName);
    return {};
}

void Document::setFileName(const QString& fileName)
{
    m_fileName = fileName;
    emit fileNameChanged(fileName);
}

} // namespace pad
