#pragma once

#include "KORVA_Export.h"
#include "UTIL_Dialog.h"

#include <QImage>

class IMV_UI_PhotoDisplay;
class UTIL_PushButton;

/// The dialog that shows a picture, which the user confirms or cancels; exec() returns 1 or 0.
/// KorvaPreview() runs it.
class KORVA_EXPORT KORVA_ImageView_Dialog : public UTIL_Dialog
{
    Q_OBJECT

public:
    /// Checks the file at once. If it cannot be read, or has more than UTIL_Platform::pixelLimit() pixels,
    /// the constructor tells the user why before it returns, and the picture cannot be confirmed. The
    /// picture is shown 50 ms later, from the event loop; an animated GIF plays. A failure at that time is
    /// told, too.
    explicit KORVA_ImageView_Dialog(const QString& file);
    /// Shows the image. However, it checks the file "image.jpg" in the working folder: that decides whether
    /// the image is shown and can be confirmed. Hosts rely on it.
    explicit KORVA_ImageView_Dialog(const QImage& image);

    /// Whether the file was loaded, a GIF with all its frames. False before that was tried, and always when
    /// an image is shown.
    [[nodiscard]] bool isLoaded() const { return m_loaded; }

    /// Whether the file can be read as `format`; null accepts any format. If it cannot, the user is told
    /// why.
    bool isPicSizeNotOver(const QString& file, const char* format);

private slots:
    void timeoutSlot();

private:
    void init(const QImage& image);
    void playIfAnimated();
    void tellLoadError();

    bool m_loaded = false;
    IMV_UI_PhotoDisplay* m_photoDisplay = nullptr;
    QString m_fileName;
    UTIL_PushButton* m_confirmButton = nullptr;
    UTIL_PushButton* m_cancelButton = nullptr;
};
