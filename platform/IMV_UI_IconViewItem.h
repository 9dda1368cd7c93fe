#pragma once

#include <QWidget>

class QFileInfo;

/// A picture file as media browsers show it: a thumbnail as large as the item allows, with the name below.
/// The file is read when the item comes on the screen. A file that cannot be read shows a mark instead of a
/// thumbnail.
class IMV_UI_IconViewItem : public QWidget
{
    Q_OBJECT

public:
    explicit IMV_UI_IconViewItem(const QFileInfo& file, QWidget* parent = nullptr);
};
