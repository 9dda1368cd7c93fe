#pragma once

class KORVA_EditCanvas;
class UTIL_ComboBox;

/// The rows of the zoom box, what rate each of them means for the picture, and "Fit to page", which follows
/// the editor's size and the picture's.
class KORVA_ZoomChoice
{
public:
    /// Fills the box, which shows 100 %, and marks the row in force in its list whenever that opens.
    /// Neither is owned; the editor needs its canvas with the first call.
    KORVA_ZoomChoice(KORVA_EditCanvas& editor, UTIL_ComboBox& box);

    /// Commits typed text and zooms by a row; another number is 100 %. The box keeps what it shows.
    void select(int row);
    /// Lets the box show a row; false for none.
    bool show(int row);
    /// Chooses the rate that is nearest to the percentage between it and the one in force, as a person
    /// chooses in the box; nothing where there is none.
    void stepTowards(double percent);
    /// The row that the box shows.
    [[nodiscard]] int shown() const;
    /// Zooms anew where "Fit to page" is shown and in force and means another rate now.
    void fitAgain();
    /// The canvas could not be zoomed and is at 100 %: so is the box.
    void fallBack();

private:
    [[nodiscard]] int rate(int row);
    [[nodiscard]] bool isOffered(int row) const;
    [[nodiscard]] int fittingRate();
    [[nodiscard]] int rowInForce() const;

    KORVA_EditCanvas& m_editor;
    UTIL_ComboBox& m_box;
    int m_fittedRate = 0; ///< in percent, by "Fit to page"; 0 after another choice
};
