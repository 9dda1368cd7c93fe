#pragma once

#include "Boxes.h"
#include "Idle.h"
#include "Keyboard.h"
#include "Warning.h"

#include <KORVA_EditCanvas.h>

class UTIL_PushButton;
struct Word;

/// A screen of 800 × 480 on which one visitor after the other draws. Bytes of a picture come in, bytes of
/// drawings go out; it knows no file.
class KioskWindow : public QWidget
{
    Q_OBJECT

public:
    /// `page` is a picture to draw on; empty for white.
    KioskWindow(const QByteArray& page, Idle::Times times);

signals:
    /// A visitor has finished, or has gone: the drawing as a JPEG of at most 30,000 bytes.
    void handedOut(const QByteArray& picture);

private:
    void wire();
    void layPage(const QByteArray& page);
    void beginVisit();
    void handOut();
    void finish();
    void end();
    void showKeyboard(bool isShown);
    void followCaret();
    void tell(const Word& word, const QString& argument = {});

    KORVA_EditCanvas m_editor;
    Keyboard m_keyboard;
    Warning m_warning;
    Idle m_idle;
    QSize m_page = Boxes::page;
    UTIL_PushButton* m_undo;
    UTIL_PushButton* m_redo;
    UTIL_PushButton* m_clear;
    UTIL_PushButton* m_done;
};
