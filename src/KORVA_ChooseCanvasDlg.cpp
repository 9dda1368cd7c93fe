#include "KORVA_ChooseCanvasDlg.h"

#include "UTIL_Geometry.h"
#include "UTIL_ListBox.h"
#include "UTIL_ListBoxItem.h"
#include "UTIL_PushButton.h"

#include <array>
#include <span>

namespace {

struct EntryRow
{
    const char* text;
    const char* comment; // for the translation; null for a text that has no words
};

constexpr std::array<EntryRow, 5> entries = {{
    QT_TRANSLATE_NOOP3("KORVA_ChooseCanvasDlg", "32 X 40(stamp)", "2.11.3;MENU"),
    {"64 X 80", nullptr},
    {"120 X 160", nullptr},
    QT_TRANSLATE_NOOP3("KORVA_ChooseCanvasDlg", "200 X 170(normal)", "2.11.3;MENU"),
    {"240 X 320", nullptr},
}};

constexpr std::array<QSize, 5> canvasSizes = {{{32, 40}, {64, 80}, {120, 160}, {200, 170}, {240, 320}}};
constexpr std::array<QSize, 2> iconSizes = {{{16, 16}, {32, 32}}};
constexpr std::array<QSize, 2> smallIconSizes = {{{8, 8}, {16, 16}}};

// By size set. Sets 1 to 4 are kept although the dialog itself uses none of them.
constexpr std::array<std::span<const QSize>, 5> sizeSets = {canvasSizes, iconSizes, iconSizes, iconSizes,
                                                            smallIconSizes};

constexpr auto rowLayout = "%T5%R20%T5%T189";
constexpr int textField = 3;

template <typename Row>
bool holds(const Row& row, int index)
{
    return index >= 0 && size_t(index) < std::size(row);
}

} // namespace

KORVA_ChooseCanvasDlg::KORVA_ChooseCanvasDlg(QWidget* parent, int index, const char* name, bool modal,
                                             Qt::WindowFlags flags)
    : UTIL_Dialog(StandardDialog, modal, parent, name, flags), m_index(index), m_initIndex(index)
{
    setDlgTitle(tr("Canvas Size:", "2.11.3;DIALOG_CONTEXT"));
    createList(index);
    changeCanvasSize(index);
    connect(m_listBox, &UTIL_ListBox::mouseButtonClicked, this,
            &KORVA_ChooseCanvasDlg::slotSelChangeComboSize);
    connect(createSoftKey(tr("OK", "2.11.3;SOFTKEY_2BUTTON"), 10), &QPushButton::clicked, this,
            &KORVA_ChooseCanvasDlg::slotOK);
    connect(createSoftKey(tr("Cancel", "2.11.3;SOFTKEY_2BUTTON"), 9), &QPushButton::clicked, this,
            &KORVA_ChooseCanvasDlg::slotCancel);
    m_listBox->setFocus();
}

void KORVA_ChooseCanvasDlg::createList(int index)
{
    m_listBox = new UTIL_ListBox(QString::fromLatin1(rowLayout), this);
    m_listBox->setAccessibleName(dlgTitle());
    m_listBox->setGeometry(fromGlobal(UTIL_Geometry(*this).largeContent()));
    m_listBox->setFrameStyle(m_listBox->frameStyle() & QFrame::Shadow_Mask);
    for (const EntryRow& entry : entries) {
        auto* item = new UTIL_ListBoxItem;
        item->setString(textField,
                        entry.comment ? tr(entry.text, entry.comment) : QString::fromLatin1(entry.text));
        m_listBox->insertItem(item, -1);
    }
    m_listBox->checkItem(index, true);
}

void KORVA_ChooseCanvasDlg::changeCanvasSize(int index)
{
    if (holds(sizeSets, m_sizeSet) && holds(sizeSets[size_t(m_sizeSet)], index)) {
        const QSize size = sizeSets[size_t(m_sizeSet)][size_t(index)];
        m_width = size.width();
        m_height = size.height();
    }
    m_index = index;
}

void KORVA_ChooseCanvasDlg::slotOK()
{
    accept();
}

void KORVA_ChooseCanvasDlg::slotCancel()
{
    reject();
}

// Escape and closing come here too, so they leave the same index as the Cancel key.
void KORVA_ChooseCanvasDlg::reject()
{
    m_index = m_initIndex;
    UTIL_Dialog::reject();
}

void KORVA_ChooseCanvasDlg::slotSelChangeComboSize(int, QListWidgetItem*, const QPoint&)
{
    changeCanvasSize(m_listBox->currentItemIndex());
}
