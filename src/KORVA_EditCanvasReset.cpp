#include "KORVA_EditCanvas.h"

#include "KORVA_Canvas.h"
#include "KORVA_Documents.h"
#include "KORVA_EditorLayout.h"
#include "KORVA_MainView.h"
#include "KORVA_Manager.h"
#include "KORVA_ScrollView.h"
#include "KORVA_ToolBar.h"
#include "KORVA_ToolChoice.h"
#include "KORVA_ZoomChoice.h"

#include <QApplication>
#include <QDialog>

// Back to the beginning, whatever is going on.

namespace {

bool belongsTo(const QWidget* window, const QWidget& editor)
{
    for (; window; window = window->parentWidget()) {
        if (window == &editor)
            return true;
    }
    return false;
}

} // namespace

void KORVA_EditCanvas::cancelDialogs()
{
    ++m_cancellations;
    m_documents->cancel();
    while (QWidget* const popup = QApplication::activePopupWidget()) {
        if (!belongsTo(popup, *this) || !popup->close())
            break;
    }
    QList<QPointer<QWidget>> windows;
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        if (window != this && window->isVisible() && belongsTo(window, *this))
            windows.append(window);
    }
    for (const QPointer<QWidget>& window : windows) {
        // A dialog may refuse to be rejected, as a question without "Cancel" does.
        if (auto* const dialog = qobject_cast<QDialog*>(window.data()))
            dialog->done(QDialog::Rejected);
        else if (window)
            window->close();
    }
}

void KORVA_EditCanvas::reset()
{
    cancelDialogs();
    m_documents->reset();
    m_colorType = m_firstColorType;
    m_manager->reset();
    m_toolChoice->reset();
    setColor(Qt::red);
    m_toolBar->showBold();
    m_zoomChoice->reset();
    canvas()->reset(features().resizing ? layout::firstCanvas : canvas()->pictureSize());
    m_mainView->updateLayout();
    m_mainView->scrollView()->setContentsPos(0, 0);
    clearModified();
}
