#pragma once

#include "KORVA_Export.h"

#include <QWidget>

class KORVA_Canvas;
class KORVA_ScrollView;

/// The frame around the canvas: a scroll view that shows it, centred where it is smaller than the view.
///
/// Meant to be created by the editor: an editor given as parent becomes the canvas's editor. The keyboard
/// focus given to the view goes to the canvas.
class KORVA_EXPORT KORVA_MainView : public QWidget
{
    Q_OBJECT

public:
    explicit KORVA_MainView(QWidget* parent = nullptr, const char* name = nullptr);

    [[nodiscard]] KORVA_Canvas* canvas() const { return m_canvas; }
    [[nodiscard]] KORVA_ScrollView* scrollView() const { return m_scrollView; }

public slots:
    /// Centres the canvas and sets the scrolled size to the canvas's; called on every change of either
    /// size.
    void updateLayout();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    KORVA_ScrollView* m_scrollView;
    KORVA_Canvas* m_canvas;
};
