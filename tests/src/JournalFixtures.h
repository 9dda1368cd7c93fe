#pragma once

#include "EditorFixtures.h"

#include "KORVA_Journal.h"
#include "support/PictureFiles.h"

#include <optional>

/// What the tests of the unsaved drawing in a folder share.
namespace fixtures {

/// Within so long a drawing is on the disk.
inline constexpr int promised = 2000; // milliseconds
inline constexpr QSize drawingSize(60, 50);

/// Says nothing to anybody.
class SilentPlatform : public UTIL_Platform
{
public:
    void timedMessage(QWidget*, const QString&, const QString&, int) override {}
    void timedInformation(QWidget*, const QString&, const QString&, const QString&, int) override {}
};

struct Editor : KORVA_EditCanvas
{
    Editor() : KORVA_EditCanvas(KORVA_COLOR_16BIT)
    {
        take(support::mosaic(drawingSize));
        clearModified();
    }
    void take(const QImage& image)
    {
        QPixmap picture = QPixmap::fromImage(image);
        setPixmap(&picture);
    }
    /// Something that a person draws: each time something else.
    void draw()
    {
        const int step = m_steps++;
        setColor(QColor::fromHsv((20 + step * 47) % 360, 255, 200));
        stylus.drag({{5 + step % 20, 5}, {5 + step % 20, 40}});
    }
    [[nodiscard]] QImage drawing() const { return snapshot(); }

    support::Gestures stylus{*canvas()};

private:
    int m_steps = 0;
};

/// An editor with its journal.
struct Desk
{
    explicit Desk(const QString& folder) : journal(&editor, folder) {}

    Editor editor;
    KORVA_Journal journal;
};

[[nodiscard]] inline bool isSame(const QImage& one, const QImage& other)
{
    return support::sameImage(one.convertToFormat(QImage::Format_RGB32),
                              other.convertToFormat(QImage::Format_RGB32));
}

inline void setTime(const QString& fileName, const QDateTime& time)
{
    QFile file(fileName);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(time, QFileDevice::FileModificationTime));
}

/// A picture that tells its number, and whether all of it is there.
inline QImage numbered(int number)
{
    QRandomGenerator random{quint32(number)};
    QImage image(drawingSize, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, random.generate() | 0xff000000);
    image.setPixel(0, 0, QRgb(number) | 0xff000000);
    return image;
}

inline void typeInto(Editor& editor, const QString& text)
{
    const QList<QAction*> tools = editor.findChild<QPushButton*>("toolButton")->menu()->actions();
    editor.slotSelChangeTool(tools[4]->data().toInt());
    editor.stylus.click({10, 30});
    for (const QChar letter : text)
        editor.stylus.key(Qt::Key_unknown, letter);
}

/// The base of these tests: for each function a folder that is not there yet, and a platform that says
/// nothing.
class JournalTest : public support::TestCase
{
    Q_OBJECT

protected slots:
    void init()
    {
        TestCase::init();
        m_temporary.emplace();
        UTIL_Platform::install(std::make_unique<SilentPlatform>());
    }
    void cleanup()
    {
        UTIL_Platform::install(nullptr);
        m_temporary.reset();
    }

protected:
    /// Beside the journal's folder.
    [[nodiscard]] QString path(const QString& name) const { return m_temporary->filePath(name); }
    [[nodiscard]] QString folder() const { return path("state/korva"); }
    [[nodiscard]] QStringList files(const QString& pattern = "*") const
    {
        return QDir(folder()).entryList({pattern}, QDir::Files | QDir::Hidden, QDir::Name);
    }
    [[nodiscard]] QStringList living() const { return files("living-*.png"); }
    [[nodiscard]] QStringList earlier() const { return files("earlier-*.png"); }
    [[nodiscard]] QImage livingPicture() const
    {
        return living().size() == 1 ? QImage(folder() + '/' + living().constFirst()) : QImage();
    }
    /// Leaves a drawing behind as a crash does, this long ago.
    void leave(const QColor& color, int seconds = 0, const QString& name = {},
               QSize size = drawingSize) const
    {
        const QStringList before = living();
        {
            Desk desk(folder());
            desk.editor.setFileName(name);
            desk.editor.take(support::sheet(size, color));
            desk.editor.canvas()->markModified();
        }
        for (const QString& file : living()) {
            if (!before.contains(file))
                setTime(folder() + '/' + file, QDateTime::currentDateTime().addSecs(-seconds));
        }
        QCOMPARE(living().size(), before.size() + 1);
    }

private:
    std::optional<QTemporaryDir> m_temporary;
};

} // namespace fixtures
