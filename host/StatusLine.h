#pragma once

#include <QElapsedTimer>
#include <QPoint>
#include <QSize>
#include <QTimer>
#include <QWidget>

class KORVA_EditCanvas;
class QLabel;

namespace pad {

/// The line below the editor: tool, size of the picture, zoom, and where the pointer or the keyboard's pen
/// is in the picture.
///
/// It follows the pointer a few times a second, so that it costs a stroke nothing.
class StatusLine : public QWidget
{
    Q_OBJECT

public:
    StatusLine(const KORVA_EditCanvas& editor, QWidget* parent);

    /// Shows the present state now.
    void refresh();

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QLabel* addField(const QString& meaning, Qt::Alignment alignment);
    static void fill(QLabel* field, const QString& value);
    void refreshSoon();
    [[nodiscard]] QSize pictureSize() const;

    const KORVA_EditCanvas& m_editor;
    QLabel* m_tool;
    QLabel* m_size;
    QLabel* m_zoom;
    QLabel* m_position;
    QSize m_picture;  ///< as last announced
    QPoint m_pointer; ///< canvas widget coordinates
    bool m_isOver = false;
    QTimer m_timer;
    QElapsedTimer m_sinceRefresh;
};

} // namespace pad
