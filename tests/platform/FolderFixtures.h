#pragma once

#include "UTIL_PictureFolder.h"
#include "UTIL_PictureView.h"
#include "UTIL_Platform.h"
#include "support/Images.h"
#include "support/Modal.h"
#include "support/TestCase.h"

/// What the tests of the folder dialogs share.
namespace fixtures {

/// A folder of pictures of one colour each, with a sub-folder and files that are no pictures.
class Photos
{
public:
    Photos()
    {
        QDir(m_folder.path()).mkpath("sub/deeper");
        for (const char* name : {"b10.png", "B9.jpg", "a.bmp", "sub/inside.png", "other.gif"})
            add(name);
        for (const char* name : {"notes.txt", "bad.png"}) {
            QFile file(path(name));
            if (!file.open(QIODevice::WriteOnly) || file.write("no picture") < 0)
                qFatal("no file can be written");
        }
    }

    void add(const QString& name) const
    {
        if (!support::sheet(QSize(30, 20), Qt::red)
                 .save(path(name), name.endsWith(".gif") ? "PNG" : nullptr))
            qFatal("no picture can be written");
    }
    [[nodiscard]] QString path(const QString& name = {}) const
    {
        return name.isEmpty() ? m_folder.path() : m_folder.filePath(name);
    }

private:
    QTemporaryDir m_folder;
};

/// A folder dialog on screen, and what it shows.
template <typename Dialog>
class Stage
{
public:
    Stage(const QString& folder, const QStringList& patterns) : dialog(nullptr, folder, patterns) {}
    /// Shown; sometimes something is set before.
    void show()
    {
        dialog.show();
        if (!QTest::qWaitForWindowExposed(&dialog))
            QTest::qFail("the dialog does not show", __FILE__, __LINE__);
    }

    [[nodiscard]] UTIL_PictureView& view() { return *dialog.template findChild<UTIL_PictureView*>(); }
    [[nodiscard]] QStringList names()
    {
        QStringList names;
        for (int row = 0; row < view().model()->rowCount(); ++row)
            names << view().model()->index(row, 0).data().toString();
        return names;
    }
    [[nodiscard]] QPoint centre(const QString& name)
    {
        return view().visualRect(view().model()->index(int(names().indexOf(name)), 0)).center();
    }
    void tap(const QString& name)
    {
        QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, centre(name));
    }
    void doubleTap(const QString& name)
    {
        tap(name);
        QTest::mouseDClick(view().viewport(), Qt::LeftButton, {}, centre(name));
    }
    void press(const QString& key) { QTest::mouseClick(support::button(dialog, key), Qt::LeftButton); }
    [[nodiscard]] bool isEnabled(const QString& key) { return support::button(dialog, key)->isEnabled(); }

    Dialog dialog;
};

} // namespace fixtures
