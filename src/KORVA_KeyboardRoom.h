#pragma once

#include <QObject>

class KORVA_Canvas;
class KORVA_ScrollView;

/// Keeps what is typed on a canvas above a keyboard on the screen: while one lies over the line with the
/// cursor, the scroll view's contents are lifted by what is missing, and go back when the keyboard or the
/// text does.
class KORVA_KeyboardRoom : public QObject
{
public:
    /// The canvas is the view's child; both outlive this.
    KORVA_KeyboardRoom(KORVA_ScrollView& view, const KORVA_Canvas& canvas);

private:
    void makeRoom();
    [[nodiscard]] int missing() const;

    KORVA_ScrollView& m_view;
    const KORVA_Canvas& m_canvas;
};
