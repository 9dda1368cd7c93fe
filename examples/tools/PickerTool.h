#pragma once

#include <KORVA_Tool.h>

class KORVA_EditCanvas;

/// Takes the colour under the stylus as the drawing colour. Nothing is changed in the picture.
struct PickerTool : KORVA_Tool
{
    explicit PickerTool(KORVA_EditCanvas& editor) : KORVA_Tool("picker"), m_editor(editor) {}
    void activating() override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override { mousePressEvent(event); }

private:
    KORVA_EditCanvas& m_editor;
};
