#pragma once

#include "KORVA_Export.h"
#include "UTIL_Dialog.h"

class QListWidgetItem;
class UTIL_ListBox;

/// The dialog in which the user picks the size of a new canvas from a list. Its caller runs it and reads
/// getIndex(): 0 is 32 × 40 (stamp), 1 is 64 × 80, 2 is 120 × 160, 3 is 200 × 170 (normal), 4 is 240 × 320.
class KORVA_EXPORT KORVA_ChooseCanvasDlg : public UTIL_Dialog
{
    Q_OBJECT

public:
    /// `index` is the size marked at the start, 0 to 4; any other number marks none.
    explicit KORVA_ChooseCanvasDlg(QWidget* parent, int index, const char* name = nullptr,
                                   bool modal = true, Qt::WindowFlags flags = {});

    /// The index of the size chosen last. After a rejection, and before any choice, it is the constructor's
    /// index.
    [[nodiscard]] int getIndex() const { return m_index; }
    /// The size marked last, in pixels; 0 × 0 if none was marked. Unlike getIndex(), a rejection does not
    /// bring the first one back.
    [[nodiscard]] QSize canvasSize() const { return {m_width, m_height}; }

    /// Comes from Cancel, Escape and closing. getIndex() is the constructor's index again.
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
