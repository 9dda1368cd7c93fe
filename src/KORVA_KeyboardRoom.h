#pragma once

#include <QObject>

class KORVA_Canvas;
class KORVA_ScrollView;

/// Keeps the line being typed above an on-screen keyboard. While one covers the line with the cursor, the
/// scroll view's contents are lifted by what is missing. They go back when the keyboard or the text goes.
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
