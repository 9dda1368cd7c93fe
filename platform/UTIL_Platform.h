#pragma once

#include "KORVA_Export.h"

#include <QString>
#include <QStringList>

#include <memory>

class QWidget;
class UTIL_PictureDialog;

/// The services of the device that the engine stands on. A host that has its own derives from this class,
/// overrides what it replaces and hands the object to install(); everything else stays the desktop's.
///
/// Called from the GUI thread only.
class KORVA_EXPORT UTIL_Platform
{
public:
    UTIL_Platform();
    virtual ~UTIL_Platform();
    UTIL_Platform(const UTIL_Platform&) = delete;
    UTIL_Platform& operator=(const UTIL_Platform&) = delete;

    /// The services in force; never null.
    static UTIL_Platform* instance();
    /// Puts other services in force; null brings the desktop's back.
    static void install(std::unique_ptr<UTIL_Platform> platform);

    // `icon` is a file name for RES_ICON_Reader. Every box is modal and belongs to the parent's window.

    /// Asks and returns the index of the button pressed, 0 the first. Only the buttons answer; Escape and
    /// closing mean the button named "Cancel" where there is one.
    virtual int question(QWidget* parent, const QString& icon, const QString& text,
                         const QStringList& buttons);
    /// Tells something until its button or a tap takes it away, at most `timeout` seconds.
    virtual void timedInformation(QWidget* parent, const QString& icon, const QString& text,
                                  const QString& button, int timeout);
    /// The same without a button.
    virtual void timedMessage(QWidget* parent, const QString& icon, const QString& text, int timeout);
    /// How many milliseconds a second of a time-out lasts; 0 closes timed boxes at once.
    [[nodiscard]] virtual int timeoutSecond() const;

    /// Dialogs in which the user picks or names one picture file, filtered by the patterns ("*.png").
    /// Children of the parent; the caller deletes them.
    virtual UTIL_PictureDialog* createPickDialog(QWidget* parent, const QString& folder,
                                                 const QStringList& patterns);
    virtual UTIL_PictureDialog* createSaveDialog(QWidget* parent, const QString& folder,
                                                 const QStringList& patterns);

    /// Where the user's pictures live; folder dialogs start there.
    [[nodiscard]] virtual QString photoFolder() const;
    /// A folder whose files replace the built-in icons of the same names; empty for none.
    [[nodiscard]] virtual QString iconFolder() const;
    /// The most pixels (width × height) a picture file may have to be decoded.
    [[nodiscard]] virtual qint64 pixelLimit() const;

    /// How a touch screen reports to this widget; 1 asks for mouse events. Nothing on a desktop.
    virtual void setMouseMode(QWidget* widget, int mode);
    /// Whether the on-screen keyboard hides by itself. Nothing on a desktop.
    virtual void setAutoHideKeyboard(bool enabled);
};
