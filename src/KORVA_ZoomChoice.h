#pragma once

#include "KORVA_Features.h"

class KORVA_EditCanvas;
class UTIL_ComboBox;

/// The rows of the zoom box, what rate each of them means for the picture, and "Fit to page", which follows
/// the editor's size and the picture's.
class KORVA_ZoomChoice
{
public:
    /// Fills the box, which shows 100 %. Whenever its list opens, the row in force is marked there. Owns
    /// neither argument. The editor needs its canvas from the first call on.
    KORVA_ZoomChoice(KORVA_EditCanvas& editor, UTIL_ComboBox& box);

    /// Fills the box with other rows: see KORVA_Features::zooms. If none of them is in force, chooses 100 %
    /// or, without that, the first.
    void offer(const QList<int>& rows);
    /// Chooses 100 % or, without that, the first row.
    void reset();

    /// Commits typed text and zooms by a row; any other number means 100 %. The box keeps what it shows.
    void select(int row);
    /// Makes the box show a row. False if there is no such row.
    bool show(int row);
    /// Chooses the next larger rate for 1, the next smaller one for -1, as a person does in the box. Does
    /// nothing if there is none.
    void step(int direction);
    /// Of the rates between the percentage and the one in force, chooses the one nearest to the percentage,
    /// as a person does in the box. Does nothing if there is none.
    void stepTowards(double percent);
    /// The row that the box shows.
    [[nodiscard]] int shown() const;
    /// Zooms again if "Fit to page" is shown and in force, and now means another rate.
    void fitAgain();
    /// The canvas could not be zoomed and is at 100 %; the box shows that.
    void fallBack();

private:
    [[nodiscard]] int rate(int row);
    void fillBox();
    [[nodiscard]] int realSizeRow() const;
    [[nodiscard]] bool isFitToPage(int row) const;
    [[nodiscard]] bool isMeant(int row) const;
    [[nodiscard]] int fittingRate();
    [[nodiscard]] int rowInForce() const;

    KORVA_EditCanvas& m_editor;
    UTIL_ComboBox& m_box;
    QList<int> m_rows = KORVA_Features().zooms;
    int m_fittedRate = 0; ///< in percent, by "Fit to page"; 0 after another choice
};
