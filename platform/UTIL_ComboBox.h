#pragma once

#include "KORVA_Export.h"

#include <QComboBox>

/// A flat box that shows the chosen entry and opens the list of all of them.
class KORVA_EXPORT UTIL_ComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit UTIL_ComboBox(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};
