#include "DragOut.h"

#include "Documents.h"
#include "DrawingFile.h"

#include <KORVA_EditCanvas.h>

#include <QApplication>
#include <QDrag>
#include <QFileInfo>
#include <QMimeData>
#include <QMouseEvent>
#include <QPixmap>
#include <QUrl>
#include <QWidget>

namespace pad {

DragOut::DragOut(const KORVA_EditCanvas& editor, const Documents& documents, QWidget* handle)
    : QObject(handle), m_editor(editor), m_documents(documents), m_handle(handle)
{
    handle->setCursor(Qt::OpenHandCursor);
    handle->installEventFilter(this);
}

bool DragOut::eventFilter(QObject*, QEvent* event)
{
    const QEvent::Type type = event->type();
    if (type != QEvent::MouseButtonPress && type != QEvent::MouseMove && type != QEvent::MouseButtonRelease)
        return false;
    const auto* mouse = static_cast<const QMouseEvent*>(event);
    const QPoint at = mouse->position().toPoint();
    if (type == QEvent::MouseButtonPress && mouse->button() == Qt::LeftButton) {
        m_press = at;
        event->accept();
        return true;
    }
    if (type == QEvent::MouseButtonRelease) {
        m_press.reset();
    } else if (m_press && (at - *m_press).manhattanLength() >= QApplication::startDragDistance()) {
        m_press.reset();
        drag();
    }
    return false;
}

std::unique_ptr<QMimeData> DragOut::data()
{
    const QImage drawing = m_editor.snapshot();
    const QByteArray file = KORVA_EditCanvas::encoded(drawing, "PNG");
    if (file.isEmpty())
        return nullptr;
    auto data = std::make_unique<QMimeData>();
    data->setImageData(drawing);
    if (!m_folder)
        m_folder.emplace();
    const QString given = QFileInfo(m_documents.name()).completeBaseName();
    const QString name =
        m_folder->filePath((given.isEmpty() ? QStringLiteral("drawing") : given) + QLatin1String(".png"));
    if (!writeFile(file, name)) // on a full disk there is the picture only
        data->setUrls({QUrl::fromLocalFile(name)});
    return data;
}

void DragOut::drag()
{
    std::unique_ptr<QMimeData> data = this->data();
    if (!data)
        return;
    constexpr QSize most(96, 96);
    const QImage drawing = qvariant_cast<QImage>(data->imageData());
    const QSize size = drawing.size().boundedTo(drawing.size().scaled(most, Qt::KeepAspectRatio));
    auto* drag = new QDrag(m_handle);
    drag->setMimeData(data.release());
    drag->setPixmap(QPixmap::fromImage(
        drawing.scaled(size.expandedTo(QSize(1, 1)), Qt::IgnoreAspectRatio, Qt::SmoothTransformation)));
    run(*drag);
}

void DragOut::run(QDrag& drag) const
{
    drag.exec(Qt::CopyAction);
}

} // namespace pad
