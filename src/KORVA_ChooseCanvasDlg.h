#pragma once

#include "KORVA_Export.h"
#include "UTIL_Dialog.h"

class QListWidgetItem;
class UTIL_ListBox;

/// The dialog in which the size of a new canvas is picked from a list. Its caller runs it and reads
/// getIndex(): 0 32 × 40 (stamp), 1 64 × 80, 2 120 × 160, 3 200 × 170 (normal), 4 240 × 320.
class KORVA_EXPORT KORVA_ChooseCanvasDlg : public UTIL_Dialog
{
    Q_OBJECT

public:
    /// `index` is the size marked at the start, 0 to 4; another one marks none.
    explicit KORVA_ChooseCanvasDlg(QWidget* parent, int index, const char* name = nullptr,
                                   bool modal = true, Qt::WindowFlags flags = {});

    /// The size chosen last; after a rejection, and before any choice, the index given to the constructor.
    [[nodiscard]] int getIndex() const { return m_index; }
    /// The size marked last, in pixels; 0 × 0 before there was one. A rejection does not bring the first
    /// one back, unlike getIndex().
    [[nodiscard]] QSize canvasSize() const { return {m_width, m_height}; }

    /// Cancel, Escape and closing: getIndex() is the constructor's again.
    void reject() override;

private slots:
    void slotOK();
    void slotCancel();
    void slotSelChangeComboSize(int button, QListWidgetItem* item, const QPoint& position);

private:
    void createList(int index);
    void changeCanvasSize(int index);

    UTIL_ListBox* m_listBox = nullptr;
    int m_sizeSet = 0;
    int m_width = 0;
    int m_height = 0;
    int m_index;
    int m_initIndex;
};
