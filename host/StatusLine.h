#pragma once

#include <QElapsedTimer>
#include <QPoint>
#include <QSize>
#include <QTimer>
#include <QWidget>

#include <array>

class KORVA_EditCanvas;
class QLabel;

namespace pad {

/// The line below the editor: tool, size of the picture or of what is dragged, zoom, and the position of
/// the pointer or of the keyboard's pen in the picture.
///
/// It follows the pointer only a few times a second, so that it costs a stroke nothing.
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
    void fill(QLabel* field, const QString& value) const;
    void fitFont(QLabel& field) const;
    void refreshSoon();
    static constexpr int fieldCount = 4;
    [[nodiscard]] std::array<int, fieldCount> extents(int room) const;
    [[nodiscard]] static QString sizeText(QSize size);
    [[nodiscard]] static QString positionText(QPoint at);
    [[nodiscard]] QSize pictureSize() const;

    const KORVA_EditCanvas& m_editor;
    QLabel* m_tool;
    QLabel* m_size;
    QLabel* m_zoom;
    QLabel* m_position;
    QSize m_picture;  ///< as last announced
    QSize m_dragged;  ///< of the shape that is being dragged; invalid for none
    QPoint m_pointer; ///< canvas widget coordinates
    bool m_isOver = false;
    QTimer m_timer;
    QElapsedTimer m_sinceRefresh;
};

} // namespace pad
