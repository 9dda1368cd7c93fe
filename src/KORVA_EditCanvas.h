#pragma once

#include "KORVA_Export.h"
#include "KORVA_Types.h"

#include <QWidget>

class KORVA_Canvas;
class KORVA_MainView;

/// The one widget that a host embeds to have a picture edited.
class KORVA_EXPORT KORVA_EditCanvas : public QWidget
{
    Q_OBJECT

public:
    explicit KORVA_EditCanvas(KORVA_COLORTYPE colorType, QWidget* parent = nullptr,
                              const char* name = nullptr, Qt::WindowFlags flags = {},
                              QWidget* ownerWindow = nullptr);

    [[nodiscard]] KORVA_MainView* mainView() const { return m_mainView; }
    [[nodiscard]] KORVA_Canvas* canvas() const;
    [[nodiscard]] KORVA_COLORTYPE colorType() const { return m_colorType; }

signals:
    /// The canvas's own signals of the same names.
    void sizeChanged();
    void pixmapChanged(QPixmap* picture);
    void modified();
    void selection(bool exists);
    void canUndo(bool possible);
    void canRedo(bool possible);

private:
    KORVA_COLORTYPE m_colorType;
    QWidget* m_ownerWindow; // kept for the host
    KORVA_MainView* m_mainView;
};
