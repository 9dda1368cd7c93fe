#include "KORVA_ZoomChoice.h"

#include "KORVA_Canvas.h"
#include "KORVA_EditCanvas.h"
#include "KORVA_EditorLayout.h"
#include "UTIL_ComboBox.h"

#include <algorithm>
#include <iterator>
#include <optional>

namespace {

constexpr int realSize = 100;
constexpr int realSizeRow = 1;
constexpr struct
{
    const char* text;
    int rate;
    bool smallPicturesOnly;
} zoomTable[] = {
    {"50%", 50, false},
    {"100%", realSize, false},
    {"150%", 150, true},
    {"200%", 200, true},
};
constexpr int fitToPageRow = std::size(zoomTable);
constexpr QSize smallPicture(640, 480); // what is narrower and lower may be enlarged
constexpr QSize smallestPage(222, 186);

} // namespace

KORVA_ZoomChoice::KORVA_ZoomChoice(KORVA_EditCanvas& editor, UTIL_ComboBox& box)
    : m_editor(editor), m_box(box)
{
    for (const auto& row : zoomTable)
        m_box.addItem(QString::fromLatin1(row.text));
    m_box.addItem(KORVA_EditCanvas::tr("Fit to page", "2.11.1;MENU"));
    for (int i = 0; i < m_box.count(); ++i)
        m_box.setItemData(i, m_box.itemText(i), Qt::ToolTipRole);
    m_box.setCurrentIndex(realSizeRow);

    m_box.markRow(realSizeRow);
    const auto mark = [this] { m_box.markRow(rowInForce()); };
    QObject::connect(&m_box, &UTIL_ComboBox::aboutToShowPopup, &m_editor, mark);
    QObject::connect(&m_editor, &KORVA_EditCanvas::sizeChanged, &m_editor, mark); // who reads it unopened
    // A new canvas takes the zoom that the box shows, as if it were chosen once more.
    QObject::connect(&m_editor, &KORVA_EditCanvas::canvasChanged, &m_box, &QComboBox::activated);
}

void KORVA_ZoomChoice::select(int row)
{
    const int chosen = rate(row);
    m_editor.commitText();
    m_fittedRate = row == fitToPageRow ? chosen : 0;
    m_editor.setZoom(chosen);
}

bool KORVA_ZoomChoice::show(int row)
{
    if (row < 0 || row > fitToPageRow)
        return false;
    m_box.setCurrentIndex(row);
    return true;
}

int KORVA_ZoomChoice::shown() const
{
    return m_box.currentIndex();
}

int KORVA_ZoomChoice::rate(int row)
{
    m_editor.canvas()->mergePastePixmap();
    if (row == fitToPageRow)
        return fittingRate();
    return row >= 0 && row < fitToPageRow && isOffered(row) ? zoomTable[row].rate : realSize;
}

/// Whether the row means its own rate for the picture.
bool KORVA_ZoomChoice::isOffered(int row) const
{
    const QSize picture = m_editor.canvas()->pictureSize();
    const bool isSmall = picture.width() < smallPicture.width() && picture.height() < smallPicture.height();
    return isSmall || !zoomTable[row].smallPicturesOnly;
}

void KORVA_ZoomChoice::stepTowards(double percent)
{
    const int now = m_editor.canvas()->zoom();
    std::optional<int> found;
    for (int row = 0; row < fitToPageRow; ++row) {
        const int rate = zoomTable[row].rate;
        const bool isLarger = rate > now && rate <= percent;
        const bool isSmaller = rate < now && rate >= percent && !found;
        if ((isLarger || isSmaller) && isOffered(row))
            found = row;
    }
    if (found)
        m_editor.selectZoom(*found);
}

int KORVA_ZoomChoice::fittingRate()
{
    const QSize picture = m_editor.canvas()->pixmap()->size();
    if (picture.isEmpty())
        return realSize;
    const QSize page = smallestPage + layout::beyond(m_editor.size());
    return qMax(1, qMin(100 * page.width() / picture.width(), 100 * page.height() / picture.height()));
}

// The row of the rate that is in force; -1 for a rate that only a host can set.
int KORVA_ZoomChoice::rowInForce() const
{
    const int rate = m_editor.canvas()->zoom();
    if (rate == m_fittedRate)
        return fitToPageRow;
    const auto* row = std::find_if(std::begin(zoomTable), std::end(zoomTable),
                                   [&](const auto& r) { return r.rate == rate; });
    return row == std::end(zoomTable) ? -1 : int(row - std::begin(zoomTable));
}

void KORVA_ZoomChoice::fitAgain()
{
    const bool isChosen = shown() == fitToPageRow && rowInForce() == fitToPageRow;
    if (!isChosen || fittingRate() == m_fittedRate)
        return;
    m_fittedRate = fittingRate();
    m_editor.setZoom(m_fittedRate);
}

void KORVA_ZoomChoice::fallBack()
{
    m_fittedRate = 0;
    m_box.setCurrentIndex(realSizeRow);
}
