#pragma once

#include "KORVA_Export.h"
#include "UTIL_Dialog.h"

#include <QImage>

class IMV_UI_PhotoDisplay;
class UTIL_PushButton;

/// Shows a picture, which the user confirms or cancels; exec() is 1 or 0. KorvaPreview() runs it.
class KORVA_EXPORT KORVA_ImageView_Dialog : public UTIL_Dialog
{
    Q_OBJECT

public:
    /// Checks the file at once: when it cannot be read, or has more than UTIL_Platform::pixelLimit()
    /// pixels, the constructor returns only after the user was told why, and the picture cannot be
    /// confirmed. It is shown 50 ms later, from the event loop, and an animated GIF plays; a failure then
    /// is told, too.
    explicit KORVA_ImageView_Dialog(const QString& file);
    /// Shows the image. What is checked, and decides whether the image is shown and can be confirmed, is a
    /// file named "image.jpg" in the working folder; hosts rely on it.
    explicit KORVA_ImageView_Dialog(const QImage& image);

    /// Whether the file was loaded to be shown, a GIF with all its frames. False until it was tried, and
    /// always where an image is shown.
    [[nodiscard]] bool isLoaded() const { return m_loaded; }

    /// Whether the file can be read, as `format` or, when that is null, as whatever it is. If not the user
    /// is told why.
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
