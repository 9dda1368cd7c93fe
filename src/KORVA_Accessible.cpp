#include "KORVA_Accessible.h"

#include "KORVA_Canvas.h"
#include "KORVA_EditCanvas.h"
#include "KORVA_MainView.h"
#include "KORVA_PasteLabel.h"
#include "KORVA_ScrollView.h"
#include "KORVA_Tool.h"
#include "UTIL_Accessible.h"
#include "UTIL_AccessibleContainer.h"
#include "UTIL_MessageBox.h"

#include <QCoreApplication>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>

namespace {

struct Phrase
{
    const char* text;
    const char* comment;
};

QString spoken(Phrase phrase)
{
    return QCoreApplication::translate("KORVA_EditCanvas", phrase.text, phrase.comment);
}

/// The editor that shows a canvas; null where a host shows it without.
KORVA_EditCanvas* editorOf(const QWidget* inside)
{
    while (inside && !qobject_cast<const KORVA_EditCanvas*>(inside))
        inside = inside->parentWidget();
    return const_cast<KORVA_EditCanvas*>(qobject_cast<const KORVA_EditCanvas*>(inside));
}

QString toolInWords(const KORVA_Canvas& canvas)
{
    const KORVA_EditCanvas* editor = editorOf(&canvas);
    if (!editor)
        return KORVA_EditCanvas::toolName(canvas.getCurrentToolID());
    QStringList chosen;
    for (const char* control : {"toolButton", "optionButton"})
        chosen.append(editor->findChild<QPushButton*>(QLatin1String(control))->accessibleDescription());
    chosen.removeAll(QString());
    return chosen.join(QStringLiteral(", "));
}

/// The editor: its controls, the canvas, the bars by which that is scrolled, and what is told meanwhile.
class Editor : public accessible::Container
{
public:
    explicit Editor(KORVA_EditCanvas& editor)
        : Container(&editor, editor.isWindow() ? QAccessible::Window : QAccessible::Grouping),
          m_editor(editor)
    {
    }

    [[nodiscard]] QString text(QAccessible::Text what) const override
    {
        const QString own = QAccessibleWidget::text(what);
        return what == QAccessible::Name && own.isEmpty()
                   ? spoken(QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "Drawing editor", "screen reader"))
                   : own;
    }

protected:
    [[nodiscard]] QList<QWidget*> children() const override
    {
        QList<QWidget*> found;
        for (QWidget* each : m_editor.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
            const bool isMessage = qobject_cast<UTIL_MessageBox*>(each) && each->isVisible();
            if (isMessage || (!each->isWindow() && each != m_editor.mainView()))
                found.append(each);
        }
        found.append(m_editor.canvas());
        const KORVA_ScrollView* view = m_editor.mainView()->scrollView();
        for (QScrollBar* bar : {view->horizontalScrollBar(), view->verticalScrollBar()}) {
            if (bar->isVisible())
                found.append(bar);
        }
        return found;
    }

private:
    KORVA_EditCanvas& m_editor;
};

class Canvas : public accessible::Container
{
public:
    explicit Canvas(KORVA_Canvas& canvas) : Container(&canvas, QAccessible::Canvas), m_canvas(canvas) {}

    [[nodiscard]] QString text(QAccessible::Text what) const override
    {
        const QString own = QAccessibleWidget::text(what);
        if (what == QAccessible::Name && own.isEmpty())
            return spoken(QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "Drawing", "screen reader"));
        if (what == QAccessible::Description && own.isEmpty())
            return accessible::description(m_canvas);
        return own;
    }
    [[nodiscard]] QAccessibleInterface* parent() const override
    {
        KORVA_EditCanvas* editor = editorOf(&m_canvas);
        return editor ? QAccessible::queryAccessibleInterface(editor) : QAccessibleWidget::parent();
    }

protected:
    [[nodiscard]] QList<QWidget*> children() const override
    {
        QList<QWidget*> found{m_canvas.contextMenu()};
        if (!m_canvas.pasteLabel()->isHidden())
            found.append(m_canvas.pasteLabel());
        return found;
    }

private:
    KORVA_Canvas& m_canvas;
};

/// The piece that floats, with its menu.
class Piece : public accessible::Container
{
public:
    explicit Piece(KORVA_PasteLabel& piece) : Container(&piece, QAccessible::Graphic), m_piece(piece) {}

    [[nodiscard]] QString text(QAccessible::Text what) const override
    {
        const QString own = QAccessibleWidget::text(what);
        return what == QAccessible::Name && own.isEmpty()
                   ? spoken(QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "Floating piece", "screen reader"))
                   : own;
    }

protected:
    [[nodiscard]] QList<QWidget*> children() const override { return {m_piece.menu()}; }

private:
    KORVA_PasteLabel& m_piece;
};

QAccessibleInterface* makeInterface(const QString& className, QObject* object)
{
    if (className == QLatin1String("KORVA_EditCanvas"))
        return new Editor(static_cast<KORVA_EditCanvas&>(*object));
    if (className == QLatin1String("KORVA_Canvas"))
        return new Canvas(static_cast<KORVA_Canvas&>(*object));
    if (className == QLatin1String("KORVA_PasteLabel"))
        return new Piece(static_cast<KORVA_PasteLabel&>(*object));
    return nullptr;
}

} // namespace

void accessible::installEditor()
{
    installControls();
    QAccessible::installFactory(makeInterface);
}

QString accessible::description(const KORVA_Canvas& canvas)
{
    const QSize size = canvas.pictureSize();
    QStringList sentences{
        toolInWords(canvas),
        spoken(QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "Zoom %1 %", "screen reader")).arg(canvas.zoom()),
        spoken(QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "%1 by %2 pixels", "screen reader"))
            .arg(size.width())
            .arg(size.height())};
    if (const std::optional<QPoint> pen = canvas.keyboardPen()) {
        sentences.append(
            (canvas.isKeyboardPenDown()
                 ? spoken(QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "Pen down at %1, %2", "screen reader"))
                 : spoken(QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "Pen at %1, %2", "screen reader")))
                .arg(pen->x())
                .arg(pen->y()));
    }
    if (const KORVA_Tool* tool = canvas.getCurrentTool(); tool && tool->takesText())
        sentences.append(spoken(QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "A text is open", "screen reader")));
    if (const KORVA_PasteLabel* piece = canvas.pasteLabel(); !piece->isHidden()) {
        const QPoint at = canvas.piecePlace();
        const QSize extent = piece->getImage().size();
        sentences.append(
            spoken(QT_TRANSLATE_NOOP3("KORVA_EditCanvas", "A piece of %1 by %2 pixels floats at %3, %4",
                                      "screen reader"))
                .arg(extent.width())
                .arg(extent.height())
                .arg(at.x())
                .arg(at.y()));
    }
    sentences.removeAll(QString());
    return sentences.join(QStringLiteral(". "));
}
