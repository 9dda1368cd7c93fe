#pragma once

#include "Documents.h"
#include "Platform.h"

#include "support/Faults.h"
#include "support/Gestures.h"
#include "support/Images.h"
#include "support/Modal.h"
#include "support/Mount.h"
#include "support/PictureFiles.h"

#include <KORVA_Canvas.h>
#include <KORVA_EditCanvas.h>
#include <KORVA_Journal.h>

/// What writes a drawing, each in a folder of its own.
namespace fixtures {

class FaultScene
{
public:
    FaultScene()
        : m_disk(std::make_unique<support::Mount>(m_own.filePath("mounted"), "size=8m")),
          m_platform(pad::Platform::install())
    {
        QDir().mkpath(folder());
        m_platform.obey(&m_script);
        m_editor.setFileName(file());
        window.show();
    }
    virtual ~FaultScene() { m_platform.obey(nullptr); }
    FaultScene(const FaultScene&) = delete;
    FaultScene& operator=(const FaultScene&) = delete;

    [[nodiscard]] QString folder() const { return m_own.filePath("mounted/disk"); }
    /// The file system with the file.
    [[nodiscard]] virtual const support::Mount& disk() const { return *m_disk; }
    /// What the drawing is written into.
    [[nodiscard]] virtual QString file() const { return folder() + "/drawing.png"; }
    /// What is there after a write that succeeds, below the folder.
    [[nodiscard]] virtual QStringList expected() const { return {"drawing.png"}; }

    /// Draws what was not drawn before.
    void change()
    {
        const int step = m_steps++;
        m_editor.setColor(QColor::fromHsv(step * 47 % 360, 255, 200));
        support::Gestures(*m_editor.canvas()).drag({{5 + step % 50, 5}, {5 + step % 50, 40 + step / 50}});
    }
    /// Writes it, and returns what the person hears of it.
    [[nodiscard]] virtual QString save() = 0;
    [[nodiscard]] virtual bool isSuccess(const QString& said) const { return said == "Saved Successfully"; }
    [[nodiscard]] virtual bool countsAsSaved() const { return !m_editor.hasChanges(); }
    /// Makes ready for the next write, when nothing fails.
    virtual void settle() {}

    [[nodiscard]] QImage drawing() const
    {
        return m_editor.snapshot().convertToFormat(QImage::Format_RGB32);
    }
    /// The old file is not for everybody: nor may the new one be.
    void makePrivate() const { QFile::setPermissions(file(), QFile::ReadOwner | QFile::WriteOwner); }
    [[nodiscard]] bool isPrivate() const
    {
        constexpr auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
        return !(QFileInfo(file()).permissions() & others);
    }
    [[nodiscard]] bool isThere(const QImage& drawn) const
    {
        const QByteArray bytes = support::contents(file());
        const QImage written = QImage::fromData(bytes);
        return !written.isNull() && bytes.endsWith("IEND\xae\x42\x60\x82") &&
               support::sameImage(written.convertToFormat(QImage::Format_RGB32), drawn);
    }
    /// The folder is called by its own name again, if it has vanished.
    void restore() const
    {
        const QString elsewhere = support::Faults::vanished(folder());
        if (!QFileInfo::exists(elsewhere))
            return;
        QDir(folder()).removeRecursively();
        QDir().rename(elsewhere, folder());
    }
    /// Files that should not be there.
    [[nodiscard]] QStringList left() const
    {
        QStringList names;
        QDirIterator files(folder(), QDir::Files | QDir::Hidden | QDir::System,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString name = QDir(folder()).relativeFilePath(files.next());
            if (!expected().contains(name))
                names.append(name);
        }
        names.sort();
        return names;
    }

protected:
    QTemporaryDir m_own;
    std::unique_ptr<support::Mount> m_disk;
    pad::Platform& m_platform;
    pad::Script m_script;
    QWidget window;
    KORVA_EditCanvas m_editor{KORVA_COLOR_16BIT, &window};

private:
    int m_steps = 0;
};

/// As korva-pad saves. A question is not answered at first, and then with "Replace".
class PadScene : public FaultScene
{
public:
    [[nodiscard]] QString save() override
    {
        m_script = {};
        m_script.answer = std::exchange(m_answer, {});
        (void)m_documents->save();
        if (m_script.stopped.isEmpty())
            return m_script.told;
        constexpr int replace = 1;
        m_answer = replace; // to the same question, when it is asked again
        return "asked: " + m_script.stopped.section('\'', 1, -2);
    }
    /// What a person saw of a save.
    struct Seen
    {
        QString said;
        int sign = -1; ///< milliseconds until it was shown that it takes its time; -1 if it was not
        int pause = 0; ///< milliseconds for which the window did nothing at all, at most
    };
    [[nodiscard]] Seen saveWatched()
    {
        return watched([this] { (void)m_documents->save(); });
    }
    /// Clears it, when a copy of it is kept in the folder.
    [[nodiscard]] Seen clearWatched()
    {
        KORVA_Journal journal(&m_editor, folder());
        m_documents->setJournal(&journal);
        const Seen seen = watched([this] { m_documents->clear(); });
        m_documents->setJournal(nullptr);
        journal.settle();
        return seen;
    }
    [[nodiscard]] Seen watched(const std::function<void()>& work)
    {
        m_platform.obey(nullptr);
        Seen seen;
        QElapsedTimer since;
        QElapsedTimer turn;
        QTimer timer;
        timer.callOnTimeout([&] {
            seen.pause = qMax(seen.pause, int(turn.restart()));
            auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (!box)
                return;
            const QString text = support::labels(*box).join(' ');
            if (text != "Saving drawing") {
                seen.said = text;
                box->accept();
            } else if (seen.sign < 0) {
                seen.sign = int(since.elapsed());
            }
        });
        timer.start(10);
        since.start();
        turn.start();
        work();
        m_platform.obey(&m_script);
        return seen;
    }
    /// The same question is asked again afterwards.
    void settle() override
    {
        m_documents = std::make_unique<pad::Documents>(m_editor, m_platform, &window);
    }

private:
    std::optional<int> m_answer;
    std::unique_ptr<pad::Documents> m_documents =
        std::make_unique<pad::Documents>(m_editor, m_platform, &window);
};

/// As the editor saves for a host that leaves it to it.
class EditorScene : public FaultScene
{
public:
    EditorScene()
    {
        QDir(folder()).mkpath("appwrite");
        qputenv("KIV_LOCAL_DOWNLOAD_PATH", folder().toUtf8());
    }
    [[nodiscard]] QString save() override
    {
        m_script.told.clear();
        m_editor.setFileName(file());
        m_editor.slotSave();
        return m_script.told;
    }
};

/// The same where the drawing is on another disk than the download folder.
class AcrossScene : public EditorScene
{
public:
    AcrossScene() = default;
    [[nodiscard]] QString file() const override { return folder() + "/other/drawing.png"; }
    [[nodiscard]] QStringList expected() const override { return {"other/drawing.png"}; }
    [[nodiscard]] const support::Mount& disk() const override { return m_other; }
    [[nodiscard]] bool isPossible() const { return m_other.isThere(); }

protected:
    explicit AcrossScene(const QString& shown) : m_other(folder() + "/other", folder() + '/' + shown) {}

private:
    support::Mount m_other{folder() + "/other", "size=8m"};
};

/// The picture lies on the same disk as the temporary file, but behind a mount of its own, across which
/// nothing can be moved either.
class AcrossMountsScene : public AcrossScene
{
public:
    AcrossMountsScene() : AcrossScene("shown") {}
};

/// The unsaved drawing, written again.
class RecoveryScene : public FaultScene
{
public:
    RecoveryScene()
    {
        QObject::connect(&m_journal, &KORVA_Journal::failed, &window,
                         [this](const QString& reason) { m_reason = reason; });
    }
    [[nodiscard]] QString file() const override
    {
        return folder() + '/' + QDir(folder()).entryList({"living-*.png"}).value(0, "none");
    }
    [[nodiscard]] QStringList expected() const override
    {
        const QStringList locks = QDir(folder()).entryList({"living-*.lock"});
        const QString name = QFileInfo(file()).fileName();
        if (name == "none")
            return locks.mid(0, 1);
        return {name, QFileInfo(name).completeBaseName() + ".lock"};
    }
    [[nodiscard]] QString save() override
    {
        m_reason.clear();
        const bool isWritten = m_journal.flush();
        return isWritten ? "" : m_reason.remove(folder() + '/');
    }
    [[nodiscard]] bool isSuccess(const QString& said) const override { return said.isEmpty(); }
    [[nodiscard]] bool countsAsSaved() const override { return isThere(drawing()); } // it never is

protected:
    KORVA_Journal m_journal{&m_editor, folder()};

private:
    QString m_reason;
};

/// The same for a drawing that has just been begun.
class FirstRecoveryScene : public RecoveryScene
{
public:
    void settle() override { m_journal.settle(); }
};

} // namespace fixtures
