#pragma once

#include "KORVA_Export.h"

#include <QWidget>

#include <memory>

class KORVA_Canvas;
class KORVA_KeyboardRoom;
class KORVA_ScrollView;

/// The frame around the canvas. A scroll view shows the canvas, centred if it is smaller than the view.
///
/// The editor creates it: an editor given as parent becomes the canvas's editor. The canvas has 200 × 170
/// pixels at first. Keyboard focus given to the view goes to the canvas. While an on-screen keyboard covers
/// the text being typed, the canvas stands high enough to show the line.
class KORVA_EXPORT KORVA_MainView : public QWidget
{
    Q_OBJECT

public:
    /// `parent` may be any widget; only a KORVA_EditCanvas gets the canvas's signals.
    explicit KORVA_MainView(QWidget* parent = nullptr, const char* name = nullptr);
    ~KORVA_MainView() override;

    /// The canvas, the same one for the view's life. The scroll view owns it.
    [[nodiscard]] KORVA_Canvas* canvas() const { return m_canvas; }
    /// The scroll view, whose contents have the size of the canvas. The main view owns it.
    [[nodiscard]] KORVA_ScrollView* scrollView() const { return m_scrollView; }

public slots:
    /// Centres the canvas and makes the scrolled size that of the canvas. Called on every change of either
    /// size.
    void updateLayout();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    KORVA_ScrollView* m_scrollView;
    KORVA_Canvas* m_canvas;
    std::unique_ptr<KORVA_KeyboardRoom> m_keyboardRoom;
};
