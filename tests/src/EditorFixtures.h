#pragma once

#include "Fixtures.h"
#include "KORVA_MainView.h"
#include "KORVA_Manager.h"
#include "RES_ICON_Reader.h"
#include "UTIL_PictureDialog.h"
#include "UTIL_Platform.h"

/// What the tests of the editor need: a platform that answers at once and an editor on top of it.
namespace fixtures {

/// The tools by their identifiers.
enum ToolID { Pencil, AreaSelect, Line, Text, Rectangle, Ellipse, Eraser, Hand };

/// Shows each text with the comment it is translated by: "Saved Successfully <2.11.2.9;DIALOG_ICON_50>".
class CommentTranslator : public QTranslator
{
public:
    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char* context, const char* text, const char* comment,
                                    int) const override
    {
        const bool isEditors = qstrcmp(context, "KORVA_EditCanvas") == 0;
        return isEditors && comment && *comment ? QString("%1 <%2>").arg(text, comment) : QString();
    }
};

/// Answers every question and dialog by itself and writes down what it was asked, one line each.
class RecordingPlatform : public UTIL_Platform
{
public:
    explicit RecordingPlatform(support::SignalRecorder& log) : m_log(log) {}

    /// The answers to the next questions; the test fails when there are too few.
    QList<int> answers;
    /// What the next folder dialogs give; none means that the user cancels.
    QList<std::optional<QString>> picks;
    QList<std::optional<QString>> names;
    /// What the user does while a pick dialog is open.
    std::function<void()> whilePicking;
    /// The host's own way to wait for work; without one it is the desktop's.
    std::function<bool(const QFuture<void>& work)> whileWaiting;
    /// Done each time a reader asks for the limit, which is once it has opened its file.
    std::function<void()> onReading;
    qint64 limit = 64'000'000;
    QString folder = "/photos";

    int question(QWidget* parent, const QString& icon, const QString& text,
                 const QStringList& buttons) override
    {
        note("question", parent, {icon, text, buttons.join(" / ")});
        if (answers.isEmpty())
            QTest::qFail("a question that was not expected", __FILE__, __LINE__);
        return answers.isEmpty() ? 0 : answers.takeFirst();
    }
    void timedInformation(QWidget* parent, const QString& icon, const QString& text, const QString& button,
                          int timeout) override
    {
        note("information", parent, {icon, text, button, QString::number(timeout)});
    }
    void timedMessage(QWidget* parent, const QString& icon, const QString& text, int timeout) override
    {
        note("message", parent, {icon, text, QString::number(timeout)});
    }
    bool waitFor(QWidget* parent, const QString& text, const QFuture<void>& work) override
    {
        return whileWaiting ? whileWaiting(work) : UTIL_Platform::waitFor(parent, text, work);
    }
    UTIL_PictureDialog* createPickDialog(QWidget* parent, const QString& in,
                                         const QStringList& patterns) override
    {
        note("pick", parent, {in, patterns.join(' ')});
        return dialog(parent, picks, whilePicking);
    }
    UTIL_PictureDialog* createSaveDialog(QWidget* parent, const QString& in,
                                         const QStringList& patterns) override
    {
        note("name", parent, {in, patterns.join(' ')});
        return dialog(parent, names, {});
    }
    [[nodiscard]] QString photoFolder() const override { return folder; }
    [[nodiscard]] qint64 pixelLimit() const override
    {
        if (onReading)
            onReading();
        return limit;
    }

private:
    /// A folder dialog that closes itself as soon as it is shown.
    class Dialog : public UTIL_PictureDialog
    {
    public:
        using UTIL_PictureDialog::UTIL_PictureDialog;
        std::optional<QString> choice;
        std::function<void()> meanwhile;

    protected:
        void showEvent(QShowEvent*) override
        {
            QTimer::singleShot(0, this, [this] {
                if (meanwhile)
                    meanwhile();
                setFileName(choice.value_or(QString()));
                done(choice ? Accepted : Rejected);
            });
        }
    };

    static UTIL_PictureDialog* dialog(QWidget* parent, QList<std::optional<QString>>& choices,
                                      const std::function<void()>& meanwhile)
    {
        auto* dialog = new Dialog(parent);
        dialog->setObjectName("folderDialog");
        dialog->meanwhile = meanwhile;
        if (choices.isEmpty())
            QTest::qFail("a folder dialog that was not expected", __FILE__, __LINE__);
        else
            dialog->choice = choices.takeFirst();
        return dialog;
    }

    void note(const QString& what, const QWidget* parent, const QStringList& details)
    {
        const bool isEditors = parent && parent->inherits("KORVA_EditCanvas");
        m_log.note(what + (isEditors ? " | " : " for a stranger | ") + details.join(" | "));
    }

    support::SignalRecorder& m_log;
};

/// A file name in the folder of pictures that goes away with the test.
class PictureFolder
{
public:
    PictureFolder()
    {
        QDir(m_folder.path()).mkdir("appwrite");
        qputenv("KIV_LOCAL_DOWNLOAD_PATH", m_folder.path().toUtf8());
    }
    ~PictureFolder() { qunsetenv("KIV_LOCAL_DOWNLOAD_PATH"); }
    PictureFolder(const PictureFolder&) = delete;
    PictureFolder& operator=(const PictureFolder&) = delete;

    [[nodiscard]] QString file(const QString& name) const { return m_folder.filePath(name); }
    /// Writes a picture and gives its file name.
    [[nodiscard]] QString written(const QString& name, const QImage& image,
                                  const char* format = nullptr) const
    {
        if (!image.save(file(name), format))
            QTest::qFail("the picture could not be written", __FILE__, __LINE__);
        return file(name);
    }
    /// The names in it, without the folder for temporary files.
    [[nodiscard]] QStringList names() const { return QDir(m_folder.path()).entryList(QDir::Files); }

private:
    QTemporaryDir m_folder;
};

/// A picture that every lossless format keeps in 16 bits a pixel.
inline QImage flag(QSize size = {40, 30})
{
    QImage image = support::sheet(size, Qt::blue);
    return support::filled(image, QRect(5, 5, 10, 10), Qt::yellow);
}

inline constexpr auto handedOver = "/tmp/korva.tmp";

/// An editor and everything that it says, to the user and to its host, in one log.
struct EditorDesk
{
    /// A file name opens it at construction.
    explicit EditorDesk(const QString& fileName = {},
                        const std::function<void(RecordingPlatform&)>& set = {})
    {
        auto owned = std::make_unique<RecordingPlatform>(log);
        platform = owned.get();
        if (set)
            set(*platform);
        UTIL_Platform::install(std::move(owned));
        QCoreApplication::installTranslator(&translator);
        editor = fileName.isNull() ? std::make_unique<KORVA_EditCanvas>(KORVA_COLOR_16BIT)
                                   : std::make_unique<KORVA_EditCanvas>(fileName, KORVA_COLOR_16BIT);
        watchEditor(log, *editor);
    }
    ~EditorDesk()
    {
        editor.reset();
        UTIL_Platform::install(nullptr);
    }
    EditorDesk(const EditorDesk&) = delete;
    EditorDesk& operator=(const EditorDesk&) = delete;

    [[nodiscard]] KORVA_Canvas& canvas() const { return *editor->canvas(); }
    [[nodiscard]] KORVA_Manager& manager() const { return *editor->manager(); }
    [[nodiscard]] QImage picture() const { return canvas().pixmap()->toImage(); }
    /// Puts a picture in; afterwards nothing is modified and the log is empty.
    void setPicture(const QImage& image)
    {
        QPixmap pixmap = QPixmap::fromImage(image);
        editor->setPixmap(&pixmap);
        editor->clearModified();
        (void)log.taken();
    }
    /// Draws a dot, which modifies the picture, and empties the log.
    void scribble()
    {
        support::Gestures(canvas()).click({20, 15});
        (void)log.taken();
    }
    /// Types into the picture at (20, 40) without committing it, and empties the log.
    void type(const QString& text)
    {
        chooseTool(Text);
        support::Gestures(canvas()).click({20, 40});
        for (const QChar letter : text) {
            QKeyEvent key(QEvent::KeyPress, 0, Qt::NoModifier, letter);
            QCoreApplication::sendEvent(&canvas(), &key);
        }
        (void)log.taken();
    }

    template <typename Control>
    [[nodiscard]] Control& control(const char* name) const
    {
        return *editor->findChild<Control*>(name);
    }
    [[nodiscard]] QPushButton& button(const char* name) const { return control<QPushButton>(name); }
    [[nodiscard]] QComboBox& zoomBox() const { return control<QComboBox>("zoomBox"); }
    [[nodiscard]] QList<QAction*> tools() const { return button("toolButton").menu()->actions(); }
    [[nodiscard]] QList<QAction*> options() const { return button("optionButton").menu()->actions(); }

    /// As the user does, by the pop-ups' entries.
    void chooseTool(ToolID id) const
    {
        static constexpr ToolID order[] = {AreaSelect, Eraser, Line, Pencil, Text, Rectangle, Ellipse};
        const auto* row = std::find(std::begin(order), std::end(order), id);
        tools()[row - std::begin(order)]->trigger();
    }
    void chooseOption(int row) const { options()[row]->trigger(); }
    void chooseZoom(int index) const
    {
        zoomBox().setCurrentIndex(index);
        emit zoomBox().activated(index);
    }

    support::SignalRecorder log;
    RecordingPlatform* platform;
    CommentTranslator translator;
    std::unique_ptr<KORVA_EditCanvas> editor;
};

/// The picture of an icon at real size.
inline QImage iconPicture(const QIcon& icon, const QSize& size)
{
    return icon.pixmap(size).toImage();
}
inline QImage iconPicture(const QString& fileName)
{
    return RES_ICON_Reader::getIcon(fileName).toImage();
}
inline bool shows(const QPushButton& button, const QString& iconFile)
{
    return support::sameImage(iconPicture(button.icon(), button.iconSize()), iconPicture(iconFile));
}

/// Mixes a colour in the colour picker that is about to open, and closes it.
inline void mixColor(const QColor& color, QDialog::DialogCode result = QDialog::Accepted)
{
    QTimer::singleShot(0, qApp, [=] {
        auto* picker = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        QVERIFY(picker && picker->inherits("KORVA_ColorPicker"));
        QList<QAbstractSlider*> sliders = picker->findChildren<QAbstractSlider*>();
        std::sort(sliders.begin(), sliders.end(), [](auto* a, auto* b) { return a->y() < b->y(); });
        const QList<int> channels{color.red(), color.green(), color.blue()};
        for (int i = 0; i < channels.size(); ++i)
            sliders[i]->setValue(channels[i]);
        picker->done(result);
    });
}

/// Whether anything was drawn on a white sheet.
inline bool hasInk(const QImage& image)
{
    return support::inkCount(image) > 0;
}

} // namespace fixtures
