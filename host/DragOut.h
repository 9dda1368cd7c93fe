#pragma once

#include <QObject>
#include <QPoint>
#include <QTemporaryDir>

#include <memory>
#include <optional>

class KORVA_EditCanvas;
class QDrag;
class QMimeData;
class QWidget;

namespace pad {

class Documents;

/// Lets the person drag a copy of the drawing out of the window: into a folder or another program.
class DragOut : public QObject
{
    Q_OBJECT

public:
    /// All arguments outlive this object. The handle, where the person takes hold of the drawing, is the
    /// parent.
    DragOut(const KORVA_EditCanvas& editor, const Documents& documents, QWidget* handle);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    /// Runs the drag until it ends; for tests to take over, where there is no desktop.
    virtual void run(QDrag& drag) const;

private:
    /// The drawing as a picture and as a PNG file, which is there as long as this object; null if there is
    /// no memory. Of the caller.
    [[nodiscard]] std::unique_ptr<QMimeData> data();
    void drag();

    const KORVA_EditCanvas& m_editor;
    const Documents& m_documents;
    QWidget* m_handle;             // the parent
    std::optional<QPoint> m_press; ///< on the handle, until there is a drag or a release
    std::optional<QTemporaryDir> m_folder;
};

} // namespace pad
