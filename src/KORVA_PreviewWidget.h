#pragma once

#include "KORVA_Export.h"

#include <QImage>
#include <QWidget>

class IMV_UI_PhotoDisplay;

/// A part of a host's window that shows a picture, in its middle and as large as there is room, but not
/// enlarged. It asks and tells nothing; KorvaPreview() runs a dialog. GUI thread only.
class KORVA_EXPORT KORVA_PreviewWidget : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString fileName READ fileName WRITE setFileName)

public:
    /// Shows nothing at first.
    explicit KORVA_PreviewWidget(QWidget* parent = nullptr);
    ~KORVA_PreviewWidget() override;

    /// Shows a picture file, as soon as the widget is on the screen; a mark if it cannot be read. An
    /// animated GIF plays while it is seen. An empty name shows nothing.
    void setFileName(const QString& name);
    /// The name last given; empty after setImage().
    [[nodiscard]] QString fileName() const { return m_fileName; }
    /// Shows an image, such as KORVA_EditCanvas::snapshot(); nothing for a null one.
    void setImage(const QImage& image);

    /// As large as the picture in KorvaPreview().
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    IMV_UI_PhotoDisplay* m_display;
    QString m_fileName;
};
