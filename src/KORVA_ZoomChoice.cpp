#include "KORVA_ZoomChoice.h"

#include "KORVA_Canvas.h"
#include "KORVA_EditCanvas.h"
#include "KORVA_EditorLayout.h"
#include "KORVA_ZoomAnchor.h"
#include "UTIL_ComboBox.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace {

constexpr int realSize = 100;
constexpr int forSmallPictures[] = {150, 200};
constexpr QSize smallPicture(640, 480); // what is narrower and lower may be enlarged
constexpr QSize viewFrame(6, 6);

} // namespace

KORVA_ZoomChoice::KORVA_ZoomChoice(KORVA_EditCanvas& editor, UTIL_ComboBox& box)
    : m_editor(editor), m_box(box)
{
    fillBox();
    const auto mark = [this] { m_box.markRow(rowInForce()); };
    QObject::connect(&m_box, &UTIL_ComboBox::aboutToShowPopup, &m_editor, mark);
    QObject::connect(&m_editor, &KORVA_EditCanvas::sizeChanged, &m_editor, mark); // who reads it unopened
    // A new canvas takes the zoom that the box shows, as if it were chosen once more.
    QObject::connect(&m_editor, &KORVA_EditCanvas::canvasChanged, &m_box, &QComboBox::activated);
}

void KORVA_ZoomChoice::fillBox()
{
    m_box.clear();
    for (const int rate : m_rows) {
        const QString text = rate == KORVA_Features::fitToPage
                                 ? KORVA_EditCanvas::tr("Fit to page", "2.11.1;MENU")
                                 : QStringLiteral("%1%").arg(rate);
        m_box.addItem(text);
        m_box.setItemData(m_box.count() - 1, text, Qt::ToolTipRole);
    }
    m_box.setCurrentIndex(qMax(0, realSizeRow()));
    m_box.markRow(realSizeRow());
}

void KORVA_ZoomChoice::offer(const QList<int>& rows)
{
    if (std::exchange(m_rows, rows) == rows)
        return;
    fillBox();
    if (m_rows.isEmpty())
        return;
    const int inForce = rowInForce();
    m_box.setCurrentIndex(qMax(0, inForce));
    if (inForce < 0)
        m_editor.selectZoom(qMax(0, realSizeRow()));
}

void KORVA_ZoomChoice::reset()
{
    if (show(qMax(0, realSizeRow())))
        select(shown());
}

int KORVA_ZoomChoice::realSizeRow() const
{
    return int(m_rows.indexOf(realSize));
}

void KORVA_ZoomChoice::select(int row)
{
    const int chosen = rate(row);
    m_editor.commitText();
    m_fittedRate = isFitToPage(row) ? chosen : 0;
    const KORVA_Canvas& canvas = *m_editor.canvas();
    const QPointF middle = KORVA_ZoomAnchor::middleOf(canvas);
    const KORVA_ZoomAnchor anchor(canvas, middle);
    m_editor.setZoom(chosen);
    if (m_editor.manners().steadyView)
        anchor.bringUnder(canvas, middle);
}

bool KORVA_ZoomChoice::show(int row)
{
    if (row < 0 || row >= m_rows.size())
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
    m_editor.canvas()->mergeUnlessSteady();
    if (isFitToPage(row))
        return fittingRate();
    return row >= 0 && row < m_rows.size() && isMeant(row) ? m_rows[row] : realSize;
}

bool KORVA_ZoomChoice::isFitToPage(int row) const
{
    return m_rows.value(row, realSize) == KORVA_Features::fitToPage;
}

/// Whether the row means its own rate for the picture.
bool KORVA_ZoomChoice::isMeant(int row) const
{
    const QSize picture = m_editor.canvas()->pictureSize();
    const bool isSmall = picture.width() < smallPicture.width() && picture.height() < smallPicture.height();
    const bool isForSmall = std::find(std::begin(forSmallPictures), std::end(forSmallPictures),
                                      m_rows[row]) != std::end(forSmallPictures);
    return isSmall || !isForSmall || m_editor.manners().trueZooms;
}

void KORVA_ZoomChoice::step(int direction)
{
    const int now = m_editor.canvas()->zoom();
    std::optional<int> nearest;
    for (int row = 0; row < m_rows.size(); ++row) {
        const bool isFarther = (m_rows[row] - now) * direction > 0;
        const bool isNearer = !nearest || std::abs(m_rows[row] - now) < std::abs(m_rows[*nearest] - now);
        if (!isFitToPage(row) && isMeant(row) && isFarther && isNearer)
            nearest = row;
    }
    if (nearest)
        m_editor.selectZoom(*nearest);
}

void KORVA_ZoomChoice::stepTowards(double percent)
{
    const int now = m_editor.canvas()->zoom();
    std::optional<int> found;
    for (int row = 0; row < m_rows.size(); ++row) {
        const int rate = m_rows[row];
        if (isFitToPage(row))
            continue;
        const bool isLarger = rate > now && rate <= percent && (!found || rate > m_rows[*found]);
        const bool isSmaller = rate < now && rate >= percent && (!found || rate < m_rows[*found]);
        if ((isLarger || isSmaller) && isMeant(row))
            found = row;
    }
    if (found)
        m_editor.selectZoom(*found);
}

int KORVA_ZoomChoice::fittingRate()
{
    m_editor.canvas()->mergeUnlessSteady();
    const QSize picture = m_editor.canvas()->pictureSize();
    if (picture.isEmpty())
        return realSize;
    const QSize page = layout::mainViewIn(m_editor.size(), m_editor.features().controls).size() - viewFrame;
    return qMax(1, qMin(100 * page.width() / picture.width(), 100 * page.height() / picture.height()));
}

// The row of the rate that is in force; -1 for a rate that only a host can set.
int KORVA_ZoomChoice::rowInForce() const
{
    const int rate = m_editor.canvas()->zoom();
    return int(m_rows.indexOf(rate == m_fittedRate ? int(KORVA_Features::fitToPage) : rate));
}

void KORVA_ZoomChoice::fitAgain()
{
    const bool isChosen = isFitToPage(shown()) && rowInForce() == shown();
    if (!isChosen || fittingRate() == m_fittedRate)
        return;
    m_fittedRate = fittingRate();
    m_editor.setZoom(m_fittedRate);
}

void KORVA_ZoomChoice::fallBack()
{
    m_fittedRate = 0;
    if (realSizeRow() >= 0)
        m_box.setCurrentIndex(realSizeRow());
}
