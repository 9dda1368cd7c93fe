#include "HostFixtures.h"

#include "KORVA_ENGINE_CloseFilter.h"
#include "KORVA_Text.h"
#include "support/Dice.h"

using fixtures::toolCount;

namespace {

constexpr int sequences = 500;
constexpr int stepsEach = 60;
constexpr int deepest = 3; ///< reactions within reactions
constexpr int firstTool = 100;
constexpr int firstOption = 200;
constexpr QSize largest(60, 50);

class Host;

/// Answers at random; what waits in the event loop happens meanwhile.
class RandomPlatform : public UTIL_Platform
{
public:
    Host* host = nullptr;
    QString folder;

    int question(QWidget*, const QString&, const QString&, const QStringList& buttons) override;
    void timedInformation(QWidget*, const QString&, const QString&, const QString&, int) override;
    void timedMessage(QWidget*, const QString&, const QString&, int) override;
    UTIL_PictureDialog* createPickDialog(QWidget* parent, const QString&, const QStringList&) override;
    UTIL_PictureDialog* createSaveDialog(QWidget* parent, const QString&, const QStringList&) override;
};

/// A host whose every slot may do anything, and what a person does in its editor.
class Host : public QObject, public support::Dice
{
public:
    Host(quint32 seed, RandomPlatform& platform, const QString& picture)
        : Dice(seed),
          m_picture(picture),
          m_editor(new KORVA_EditCanvas(KORVA_COLOR_16BIT)),
          m_pointer(*m_editor->canvas())
    {
        platform.host = this;
        m_editor->resizeImage(largest.width(), largest.height());
        react<&KORVA_EditCanvas::modified, &KORVA_EditCanvas::canUndo, &KORVA_EditCanvas::canRedo,
              &KORVA_EditCanvas::selection, &KORVA_EditCanvas::sizeChanged,
              &KORVA_EditCanvas::pixmapChanged, &KORVA_EditCanvas::canvasChanged,
              &KORVA_EditCanvas::canDelete, &KORVA_EditCanvas::signalTextTool,
              &KORVA_EditCanvas::TextToolClicked>();
        connect(m_editor->canvas(), &KORVA_Canvas::clipboard, this, [this] { hear(); });
        connect(m_editor->canvas(), &KORVA_Canvas::zoomFellBack, this, [this] { hear(); });
    }
    ~Host() override { delete m_editor; }
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;

    [[nodiscard]] KORVA_EditCanvas* editor() const { return m_editor; }
    [[nodiscard]] QByteArray story() const { return m_story.join(", ").toUtf8(); }
    [[nodiscard]] int reactions() const { return m_reactions; }
    void fallSilent() { m_depth = deepest; }
    bool chance(int in) { return below(in) == 0; }
    [[nodiscard]] QString picture() const { return m_picture; }

    void step()
    {
        const auto& [name, what] = commands[below(int(std::size(commands)))];
        m_story << name;
        (this->*what)();
        turnTheLoop();
    }
    /// What the event loop of a dialog, and the program's own, does.
    void turnTheLoop()
    {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    /// While the user is asked something.
    void ask()
    {
        if (chance(20)) {
            m_story << "(delete)";
            delete m_editor;
        }
        turnTheLoop();
    }

private:
    struct Command
    {
        const char* name;
        void (Host::*what)();
    };

    template <auto... signal>
    void react()
    {
        (connect(m_editor.data(), signal, this, [this] { hear(); }), ...);
    }
    void hear()
    {
        if (m_depth >= deepest || !m_editor || !chance(3))
            return;
        ++m_depth;
        ++m_reactions;
        const auto& [name, what] = reactionTable[below(int(std::size(reactionTable)))];
        m_story << QString("(%1)").arg(name);
        (this->*what)();
        --m_depth;
    }

    QPoint point()
    {
        constexpr int beyond = 12;
        const QSize size = m_editor->canvas()->size();
        return {between(-beyond, qMin(150, size.width()) + beyond),
                between(-beyond, qMin(150, size.height()) + beyond)};
    }
    KORVA_Text* text() { return qobject_cast<KORVA_Text*>(m_editor->manager()->tool(fixtures::Text)); }

    // What a person does; only a dialog or the loop's turn lets the editor go.
    void press() { m_pointer.press(point()); }
    void move() { m_pointer.move(point()); }
    void release() { m_pointer.release(point()); }
    void drag() { m_pointer.drag({point(), point(), point()}); }
    void tap() { m_pointer.click(point()); }
    void type() { fixtures::typeLetter(*m_editor->canvas(), QString("aWx\t\r")[below(5)]); }
    void erase() { m_pointer.key(Qt::Key_Backspace, "\b"); }
    void compose()
    {
        QInputMethodEvent event(chance(2) ? "ni" : "", {});
        event.setCommitString(chance(2) ? "yx" : "");
        QCoreApplication::sendEvent(m_editor->canvas(), &event);
    }
    void tool() { m_editor->slotSelChangeTool(firstTool + below(toolCount)); }
    void option() { m_editor->slotSelChangeToolOptions(firstOption + below(18)); }
    void managersTool() { m_editor->manager()->setCurrentTool(below(toolCount)); }
    void zoom() { m_editor->slotSelZoomRate(below(6)); }
    void ownZoom() { m_editor->setZoom(chance(10) ? 50'000 : between(30, 300)); }
    void undo() { m_editor->undo(); }
    void redo() { m_editor->redo(); }
    void cut() { m_editor->cut(); }
    void copy() { m_editor->copy(); }
    void paste() { m_editor->paste(); }
    void pasteAt() { m_editor->paste(between(-9, 40), between(-9, 40)); }
    void drop() { m_editor->deleteSelection(); }
    void selectAll() { m_editor->selectAll(); }
    void clear() { m_editor->clearCanvas(); }
    void look() { (void)m_editor->pixmap(); }
    void glance() { (void)m_editor->snapshot(); }
    void setPicture()
    {
        QPixmap picture = QPixmap::fromImage(support::mosaic(size()));
        m_editor->setPixmap(&picture);
    }
    void stamp()
    {
        QPixmap picture = QPixmap::fromImage(support::mosaic(size()));
        m_editor->insertStamp(picture);
    }
    void resize() { m_editor->resizeImage(size().width(), size().height()); }
    void canvasSize() { m_editor->setCanvasSize(size().width(), size().height()); }
    void choose() { m_editor->chooseCanvas(KORVA_CANVASTYPE(below(5)), size().width(), size().height()); }
    void depth() { m_editor->setDepth(QList{1, 8, 16, 32}[below(4)]); }
    void commit() { m_editor->commitText(); }
    void resetText() { text()->resetBuffer(); }
    void color() { m_editor->setColor(Dice::color()); }
    void grow() { m_editor->resize(between(200, 400), between(200, 400)); }
    void open() { m_editor->slotOpen(); }
    void openFile()
    {
        (void)m_editor->openNewFilePrivate(chance(2) ? 0 : 3, chance(4) ? "none.png" : m_picture);
    }
    void change() { m_editor->saveChangePic(below(5)); }
    void save() { m_editor->slotSave(); }
    void saveAs() { m_editor->savePic(below(5)); }
    void remove() { m_editor->slotDelete(); }
    void buffer() { m_editor->setBuffer("rubbish"); }
    void pick()
    {
        QTimer::singleShot(0, this, [this] {
            if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
                ask();
                if (QApplication::activeModalWidget() == dialog)
                    dialog->done(below(2));
            }
        });
        m_editor->slotColor();
    }

    void go()
    {
        if (!chance(6))
            return;
        if (chance(2))
            m_editor->deleteLater();
        else
            KORVA_ENGINE_CloseFilter::deleteWidgetLater(m_editor);
    }

    QSize size() { return {between(1, largest.width()), between(1, largest.height())}; }

    static constexpr Command commands[] = {
        {"press", &Host::press},
        {"move", &Host::move},
        {"release", &Host::release},
        {"drag", &Host::drag},
        {"drag", &Host::drag},
        {"drag", &Host::drag},
        {"tap", &Host::tap},
        {"type", &Host::type},
        {"type", &Host::type},
        {"type", &Host::type},
        {"erase", &Host::erase},
        {"compose", &Host::compose},
        {"tool", &Host::tool},
        {"tool", &Host::tool},
        {"option", &Host::option},
        {"zoom", &Host::zoom},
        {"own zoom", &Host::ownZoom},
        {"undo", &Host::undo},
        {"redo", &Host::redo},
        {"cut", &Host::cut},
        {"copy", &Host::copy},
        {"paste", &Host::paste},
        {"paste at", &Host::pasteAt},
        {"drop", &Host::drop},
        {"select all", &Host::selectAll},
        {"clear", &Host::clear},
        {"look", &Host::look},
        {"glance", &Host::glance},
        {"picture", &Host::setPicture},
        {"stamp", &Host::stamp},
        {"resize", &Host::resize},
        {"canvas size", &Host::canvasSize},
        {"choose", &Host::choose},
        {"depth", &Host::depth},
        {"commit", &Host::commit},
        {"reset text", &Host::resetText},
        {"color", &Host::color},
        {"grow", &Host::grow},
        {"open", &Host::open},
        {"open file", &Host::openFile},
        {"change", &Host::change},
        {"save", &Host::save},
        {"save as", &Host::saveAs},
        {"remove", &Host::remove},
        {"buffer", &Host::buffer},
        {"pick a colour", &Host::pick},
    };
    static constexpr Command reactionTable[] = {
        {"tool", &Host::tool},
        {"manager's tool", &Host::managersTool},
        {"zoom", &Host::zoom},
        {"own zoom", &Host::ownZoom},
        {"undo", &Host::undo},
        {"redo", &Host::redo},
        {"picture", &Host::setPicture},
        {"resize", &Host::resize},
        {"paste", &Host::paste},
        {"select all", &Host::selectAll},
        {"clear", &Host::clear},
        {"look", &Host::look},
        {"commit", &Host::commit},
        {"reset text", &Host::resetText},
        {"option", &Host::option},
        {"choose", &Host::choose},
        {"cut", &Host::cut},
        {"tap", &Host::tap},
        {"go", &Host::go},
    };

    QString m_picture;
    QPointer<KORVA_EditCanvas> m_editor;
    support::Gestures m_pointer;
    QStringList m_story;
    int m_depth = 0;
    int m_reactions = 0;
};

/// Is answered without being shown; it may go meanwhile.
class RandomDialog : public UTIL_PictureDialog
{
public:
    RandomDialog(QWidget* parent, Host& host) : UTIL_PictureDialog(parent), m_host(host)
    {
        setFileName(host.picture());
    }
    int exec() override
    {
        Host& host = m_host;
        host.ask();
        return host.below(2);
    }

private:
    Host& m_host;
};

int RandomPlatform::question(QWidget*, const QString&, const QString&, const QStringList& buttons)
{
    host->ask();
    return host->below(int(buttons.size()));
}

void RandomPlatform::timedInformation(QWidget*, const QString&, const QString&, const QString&, int)
{
    host->ask();
}

void RandomPlatform::timedMessage(QWidget*, const QString&, const QString&, int)
{
    host->ask();
}

UTIL_PictureDialog* RandomPlatform::createPickDialog(QWidget* parent, const QString&, const QStringList&)
{
    return new RandomDialog(parent, *host);
}

UTIL_PictureDialog* RandomPlatform::createSaveDialog(QWidget* parent, const QString&, const QStringList&)
{
    return new RandomDialog(parent, *host);
}

} // namespace

/// Random sequences of gestures and commands in an editor whose every signal, at random, changes tool or
/// zoom, undoes, sets a picture, or deletes the editor later: no assertion, no warning, no sanitizer may
/// speak up.
class tst_HostStorm : public support::TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void randomSequences_data();
    void randomSequences();

private:
    fixtures::PictureFolder m_folder;
    RandomPlatform* m_platform = nullptr;
};

void tst_HostStorm::initTestCase()
{
    auto platform = std::make_unique<RandomPlatform>();
    m_platform = platform.get();
    UTIL_Platform::install(std::move(platform));
}

void tst_HostStorm::cleanupTestCase()
{
    UTIL_Platform::install(nullptr);
}

void tst_HostStorm::randomSequences_data()
{
    constexpr int seedsARow = 50;
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("last");
    for (int seed = 0; seed < sequences; seed += seedsARow)
        QTest::addRow("seeds %d to %d", seed, seed + seedsARow - 1) << seed << seed + seedsARow - 1;
}

void tst_HostStorm::randomSequences()
{
    QFETCH(const int, first);
    QFETCH(const int, last);
    int reactions = 0;
    int steps = 0;
    int deleted = 0;
    for (int seed = first; seed <= last; ++seed) {
        const QString picture = m_folder.written("flag.png", fixtures::flag());
        fixtures::setClipboard(support::mosaic(QSize(20, 20)));
        Host host(quint32(seed), *m_platform, picture);
        for (int step = 0; step < stepsEach && host.editor(); ++step, ++steps) {
            host.step();
            const QString wrong = host.editor() ? fixtures::disagreement(*host.editor()) : QString();
            QVERIFY2(wrong.isEmpty(),
                     QString("seed %1: %2: %3").arg(seed).arg(wrong, host.story()).toUtf8());
        }
        reactions += host.reactions();
        deleted += host.editor() ? 0 : 1;
        host.fallSilent();
        const QString wrong = host.editor() ? fixtures::trouble(*host.editor()) : QString();
        QVERIFY2(wrong.isEmpty(), QString("seed %1: %2: %3").arg(seed).arg(wrong, host.story()).toUtf8());
    }
    QVERIFY2(reactions > last - first && deleted > 0 && steps > 5 * (last - first),
             QString("%1 reactions, %2 deleted, %3 steps").arg(reactions).arg(deleted).arg(steps).toUtf8());
}

int main(int argc, char** argv)
{
    return support::run<tst_HostStorm>(argc, argv);
}

#include "tst_HostStorm.moc"
