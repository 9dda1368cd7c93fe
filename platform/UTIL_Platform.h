#pragma once

#include "KORVA_Export.h"

#include <QByteArray>
#include <QFuture>
#include <QList>
#include <QSize>
#include <QString>
#include <QStringList>

#include <memory>

class QWidget;
class UTIL_PictureDialog;

/// The services of the device that the engine stands on. A host that has its own derives from this class,
/// overrides what it replaces and hands the object to install(); everything else stays the desktop's. What
/// it overrides may call the base class.
///
/// Called from the GUI thread only. `icon` is always a file name for RES_ICON_Reader::getIcon(), `parent`
/// the widget whose window a box or dialog belongs to, and boxes are modal: the call returns when the box
/// is gone. While it runs the parent may be deleted; the box goes with it then, and the call returns.
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
    /// Puts other services in force, for good or until the next call, and deletes those before; null brings
    /// the desktop's back. Before the first widget is made: some services are asked for then.
    static void install(std::unique_ptr<UTIL_Platform> platform);

    /// Asks and returns the index of the button pressed, 0 the first: to the library that is the yes, and
    /// every other number the no. (The desktop's own dialog for saving asks the other way round: "Cancel"
    /// and "Replace".) Only the buttons answer; Escape and closing mean the button named "Cancel" where
    /// there is one.
    virtual int question(QWidget* parent, const QString& icon, const QString& text,
                         const QStringList& buttons);
    /// Tells something until its button or a tap takes it away, at most `timeout` seconds.
    virtual void timedInformation(QWidget* parent, const QString& icon, const QString& text,
                                  const QString& button, int timeout);
    /// As timedInformation(), without a button.
    virtual void timedMessage(QWidget* parent, const QString& icon, const QString& text, int timeout);
    /// Lets the user wait for work that goes on in another thread, and cancel it: true when it is done,
    /// false when it was cancelled, which the work is told by its future. In the first 300 ms the desktop
    /// shows nothing and handles no event, then a box.
    virtual bool waitFor(QWidget* parent, const QString& text, const QFuture<void>& work);
    /// How many milliseconds a second of a time-out lasts in the desktop's boxes: 1000. 0 or less closes
    /// them at once.
    [[nodiscard]] virtual int timeoutSecond() const;

    /// A dialog in which the user picks one picture file, starting in a folder and filtered by the patterns
    /// ("*.png"). A child of the parent; the caller runs and deletes it. Never null.
    virtual UTIL_PictureDialog* createPickDialog(QWidget* parent, const QString& folder,
                                                 const QStringList& patterns);
    /// The same for naming the file that is to be written. Whether a file may be replaced is asked here,
    /// and by nobody after.
    virtual UTIL_PictureDialog* createSaveDialog(QWidget* parent, const QString& folder,
                                                 const QStringList& patterns);

    /// Where the user's pictures live; folder dialogs start there. The desktop's is the Pictures folder.
    [[nodiscard]] virtual QString photoFolder() const;
    /// A folder whose files replace the built-in icons of the same names; empty, as the desktop's is, for
    /// none.
    [[nodiscard]] virtual QString iconFolder() const;
    /// The most pixels (width × height) a picture file may have to be decoded: 64 000 000.
    [[nodiscard]] virtual qint64 pixelLimit() const;
    /// What an opened picture of more pixels is fitted to, at most 4096 × 4096: 352 × 288.
    [[nodiscard]] virtual QSize workingBox() const;
    /// The bits a pixel that an opened picture keeps: 16, or 24 for all of its colours.
    [[nodiscard]] virtual int workingDepth() const;
    /// What else than PNG, JPEG, GIF, BMP and WBMP is read, by the toolkit's names ("tiff"): nothing.
    /// Whatever a file's name is, its content goes to no other decoder that happens to be installed. The
    /// toolkit's own limit on memory holds for these.
    [[nodiscard]] virtual QList<QByteArray> otherFormats() const;

    /// Removes a picture file for KORVA_EditCanvas::slotDelete(), which has asked before; false when it is
    /// still there. The desktop's is QFile::remove(); a host with a trash overrides it.
    virtual bool removePicture(const QString& name);

    /// How a touch screen reports to a widget that is being made; 1, the one mode in use, asks for mouse
    /// events. Nothing on a desktop.
    virtual void setMouseMode(QWidget* widget, int mode);
    /// Whether the on-screen keyboard hides by itself; the text tool asks for false. Nothing on a desktop.
    virtual void setAutoHideKeyboard(bool enabled);
};
