#pragma once

#include <QWidget>

class QFileInfo;

/// A picture file as media browsers show it: its thumbnail, as large as the item allows, and its name
/// below. The file is read when the item comes on the screen; one that cannot be read has a mark for a
/// thumbnail.
class IMV_UI_IconViewItem : public QWidget
{
    Q_OBJECT

public:
    explicit IMV_UI_IconViewItem(const QFileInfo& file, QWidget* parent = nullptr);
};
