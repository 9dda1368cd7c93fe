#pragma once

#include "KORVA_Export.h"

#include <QComboBox>
#include <QPersistentModelIndex>

/// A flat box that shows the chosen entry and opens the list of all of them, inside the window it belongs
/// to. Space and Return open it; the arrow keys choose without.
class KORVA_EXPORT UTIL_ComboBox : public QComboBox
{
    Q_OBJECT

public:
    /// A box without entries.
    explicit UTIL_ComboBox(QWidget* parent = nullptr);

    /// Marks a row in the list as the one in force, which need not be the one that the box shows; another
    /// number marks none.
    void markRow(int marked);

    /// Opens the list, moved into the window.
    void showPopup() override;

signals:
    /// The list is about to open: the time to mark a row.
    void aboutToShowPopup();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QPersistentModelIndex m_pressedRow; ///< in the list
};
