#pragma once

#include <UTIL_Dialog.h>

#include <QList>

namespace pad {

/// The dialog that lists all keys on one page.
class KeysDialog : public UTIL_Dialog
{
    Q_OBJECT

public:
    /// What exec() returns when the person wants to see what the buttons are.
    static constexpr int Buttons = 2;

    struct Row
    {
        QString key;
        QString text;
    };

    KeysDialog(QWidget* parent, const QList<Row>& rows);
};

} // namespace pad
