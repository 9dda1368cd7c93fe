#pragma once

#include "KORVA_Export.h"

#include <QByteArray>
#include <QColor>
#include <QFuture>
#include <QList>
#include <QSize>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

class QWidget;
class UTIL_PictureDialog;

/// The services of the device that the engine uses. A host with services of its own derives from this
/// class, overrides what it replaces and hands an object to install(). All others stay the desktop's. An
/// override may call the base class.
///
/// They are called from the GUI thread only. `icon` is always a file name for RES_ICON_Reader::getIcon().
/// `parent` is the widget whose window a box or dialog belongs to. Boxes are modal: the call returns when
/// the box is gone. If the parent is deleted meanwhile, the box goes with it, and the call returns.
class KORVA_EXPORT UTIL_Platform
{
public:
    /// The desktop's services.
    UTIL_Platform();
    virtual ~UTIL_Platform();
    UTIL_Platform(const UTIL_Platform&) = delete;
    UTIL_Platform& operator=(const UTIL_Platform&) = delete;

    /// The services in force; never null.
    static UTIL_Platform* instance();
    /// Puts other services in force until the next call, and deletes the previous ones. Null brings the
    /// desktop's back. Call it before the first widget is made, because widgets use some services when they
    /// are made.
    static void install(std::unique_ptr<UTIL_Platform> platform);

    /// Asks, and returns the index of the button pressed. 0, the first, means yes to the library; every
    /// other number means no. (The desktop's own save dialog asks the other way round: "Cancel" and
    /// "Replace".) Only the buttons answer. Escape and closing mean the button named "Cancel", if there is
    /// one.
    virtual int question(QWidget* parent, const QString& icon, const QString& text,
                         const QStringList& buttons);
    /// Shows a message until its button or a tap closes it, at most `timeout` seconds.
    virtual void timedInformation(QWidget* parent, const QString& icon, const QString& text,
                                  const QString& button, int timeout);
    /// As timedInformation(), without a button.
    virtual void timedMessage(QWidget* parent, const QString& icon, const QString& text, int timeout);
    /// Lets the user wait for work in another thread, or cancel it. True when the work is done, false when
    /// the user cancelled it; then `work` has been cancelled, too. The desktop shows nothing and handles no
    /// event for the first 100 ms, then it shows a box.
    virtual bool waitFor(QWidget* parent, const QString& text, const QFuture<void>& work);
    /// How many milliseconds a second of a time-out lasts in the desktop's boxes: 1000. 0 or less closes
    /// them at once.
    [[nodiscard]] virtual int timeoutSecond() const;

    /// Makes a dialog in which the user picks one picture file. It starts in the folder and shows files
    /// that match the patterns ("*.png"). It is a child of the parent; the caller runs and deletes it.
    /// Never null.
    virtual UTIL_PictureDialog* createPickDialog(QWidget* parent, const QString& folder,
                                                 const QStringList& patterns);
    /// The same for naming the file that is to be written. This dialog asks whether an existing file may be
    /// replaced; nobody asks after it.
    virtual UTIL_PictureDialog* createSaveDialog(QWidget* parent, const QString& folder,
                                                 const QStringList& patterns);

    /// Lets the user pick a colour of a picture of this depth in bits: 1, 4, 8 or 16. Returns `present`
    /// when nothing was picked. Nothing, as on the desktop, lets the editor show its own picker.
    virtual std::optional<QColor> pickColor(QWidget* parent, const QColor& present, int depth);

    /// The user's picture folder, where folder dialogs start. The desktop's is the Pictures folder.
    [[nodiscard]] virtual QString photoFolder() const;
    /// A folder whose files replace the built-in icons of the same names. Empty for none, as on the
    /// desktop.
    [[nodiscard]] virtual QString iconFolder() const;
    /// The most pixels (width × height) that a picture file may have to be decoded: 64 000 000.
    [[nodiscard]] virtual qint64 pixelLimit() const;
    /// An opened picture with more pixels than this size is scaled down to fit it: 352 × 288. At most 4096
    /// × 4096.
    [[nodiscard]] virtual QSize workingBox() const;
    /// The bits per pixel that an opened picture keeps: 16, or 24 for all of its colours.
    [[nodiscard]] virtual int workingDepth() const;
    /// The formats that are read besides PNG, JPEG, GIF, BMP and WBMP, by Qt's names ("tiff"); none by
    /// default. No other installed decoder gets a file, whatever its name. Qt's own limit on memory applies
    /// to these formats.
    [[nodiscard]] virtual QList<QByteArray> otherFormats() const;

    /// Removes a picture file for KORVA_EditCanvas::slotDelete(), which has asked the user. False when the
    /// file is still there. The desktop uses QFile::remove(); a host with a trash overrides it.
    virtual bool removePicture(const QString& name);

    /// Sets how a touch screen reports to a widget that is being made. The only mode in use, 1, asks for
    /// mouse events. Does nothing on a desktop.
    virtual void setMouseMode(QWidget* widget, int mode);
    /// Sets whether the on-screen keyboard hides by itself; the text tool sets false. Does nothing on a
    /// desktop.
    virtual void setAutoHideKeyboard(bool enabled);
};
