#pragma once

#include "Bytes.h"

#include "support/Fingers.h"
#include "support/Tablet.h"

class KORVA_EditCanvas;

namespace fuzz {

/// Whoever works on an editor: mouse, wheel, keyboard, input method, fingers and a pen. What they do is
/// read from the input. A pop-up is answered as soon as it is open, because some wait in an event loop of
/// their own.
class Person : public QObject
{
public:
    /// The bytes and the editor's window outlive the person, who does nothing more once the editor is gone.
    Person(KORVA_EditCanvas& editor, Bytes& bytes);

    bool eventFilter(QObject* watched, QEvent* event) override;

    void press();
    void pressAny(); ///< with any button
    void move();     ///< by a few pixels
    void leap();
    void release();
    void releaseAny();
    void doubleClick();
    void wheel();
    void pressOnEditor(); ///< and release, also on the controls
    void key();
    void type();
    void compose();
    void askInputMethod();
    void touch();
    void moveFinger();
    void lift();
    void cancelTouch();
    void bringPen();
    void takePenAway();
    void penDown();
    void penMove();
    void penUp();

private:
    void answerPopup();
    [[nodiscard]] QPoint point();
    [[nodiscard]] QPoint step();
    [[nodiscard]] Qt::MouseButton button();
    [[nodiscard]] QPoint inWindow(QPoint at) const;
    [[nodiscard]] bool isOnScreen() const;
    void send(QEvent::Type type, Qt::MouseButton button);
    void sendKey(Qt::Key key, Qt::KeyboardModifiers modifiers, const QString& text);

    KORVA_EditCanvas& m_editor;
    Bytes& m_bytes;
    QWidget& m_surface;
    QPoint m_at;
    QPointer<QWidget> m_grabber;
    Qt::MouseButtons m_held;
    support::Fingers m_fingers; ///< on the window: what lifts them in the end must be there
    QMap<int, QPoint> m_down;   ///< the fingers
    support::Tablet m_pen;
    support::Tablet::End m_end = support::Tablet::Tip;
    bool m_isPenDown = false;
};

} // namespace fuzz
