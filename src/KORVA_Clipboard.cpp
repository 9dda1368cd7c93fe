#include "KORVA_Clipboard.h"

#include "KORVA_Patience.h"
#include "KORVA_PictureFile.h"
#include "UTIL_PictureProbe.h"

#include <QBuffer>
#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

namespace {

const QString packed = QStringLiteral("image/png");

/// The editor that may show a box; null for a canvas without one.
KORVA_EditCanvas* editorOf(QWidget& canvas)
{
    for (QWidget* widget = &canvas; widget; widget = widget->parentWidget()) {
        if (auto* editor = qobject_cast<KORVA_EditCanvas*>(widget))
            return editor->features().dialogs ? editor : nullptr;
    }
    return nullptr;
}

bool isSmall(QByteArray bytes)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    return KORVA_PictureFile::isSmall(UTIL_PictureProbe::of(buffer).size);
}

} // namespace

std::optional<QPixmap> KORVA_Clipboard::picture(QWidget& canvas)
{
    const QClipboard* clipboard = QGuiApplication::clipboard();
    const QMimeData* data = clipboard->ownsClipboard() ? nullptr : clipboard->mimeData();
    if (!data || !data->hasFormat(packed))
        return clipboard->pixmap();
    const QByteArray bytes = data->data(packed);
    KORVA_EditCanvas* editor = editorOf(canvas);
    if (!editor || isSmall(bytes))
        return QPixmap::fromImage(QImage::fromData(bytes));
    const std::optional<QImage> image =
        patience::opening(*editor, [bytes](const util::IsCancelled&) { return QImage::fromData(bytes); });
    return image ? std::optional(QPixmap::fromImage(*image)) : std::nullopt;
}
