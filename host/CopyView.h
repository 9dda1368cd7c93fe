#pragma once

#include <KORVA_ScrollView.h>

#include <QImage>

#include <vector>

namespace pad {

/// Shows a picture pixel by pixel, larger on request; what does not fit can be dragged. A picture that is
/// too large can also be seen as a whole, which is how it is shown at first.
class CopyView : public KORVA_ScrollView
{
    Q_OBJECT

public:
    /// `name` is what a screen reader says.
    CopyView(const QString& name, QWidget* parent);

    /// Shows another picture as large as the one before; null shows none.
    void showPicture(const QImage& picture);
    /// Goes to the next zoom; after the largest one comes the smallest.
    void zoomOn();
    /// How large the picture is shown; 100 without a picture.
    [[nodiscard]] int percent() const;

signals:
    void zoomChanged();

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    class Sheet;

    [[nodiscard]] std::vector<QSize> sizes() const;
    void arrange();

    Sheet* m_sheet;
    size_t m_zoom = 0;   ///< which of sizes()
    QPoint m_grip;       ///< where the pointer took hold of the picture, on the screen
    QPoint m_gripOrigin; ///< what the view's top left showed at that time
};

} // namespace pad
