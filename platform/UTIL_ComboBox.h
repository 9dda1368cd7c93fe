#pragma once

#include "KORVA_Export.h"

#include <QComboBox>
#include <QPersistentModelIndex>

/// A flat box that shows the chosen entry and opens a list of all entries, which stays inside the box's
/// window. Space and Return open the list; the arrow keys choose without opening it.
class KORVA_EXPORT UTIL_ComboBox : public QComboBox
{
    Q_OBJECT

public:
    /// A box without entries.
    explicit UTIL_ComboBox(QWidget* parent = nullptr);

    /// Marks a row of the list as the one in force, which may differ from the entry that the box shows. A
    /// number of no row removes the mark.
    void markRow(int marked);

    /// Opens the list inside the window.
    void showPopup() override;

signals:
    /// The list is about to open: a row can be marked now.
    void aboutToShowPopup();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QPersistentModelIndex m_pressedRow; ///< in the list
};
