#include "IMV_UI_PhotoDisplay.h"
#include "UTIL_Skin.h"
#include "support/Animation.h"
#include "support/EventLoop.h"
#include "support/Images.h"
#include "support/PictureFiles.h"
#include "support/TestCase.h"

using support::GifFrame;

namespace {

constexpr QSize frame(204, 171);

const QColor ground = UTIL_Skin::color(UTIL_Skin::Color::Ground);
const QColor surface = UTIL_Skin::color(UTIL_Skin::Color::Surface);

/// A display on a window of the skin's ground.
struct Shown
{
    template <typename Content>
    explicit Shown(const Content& content, QSize size = frame)
    {
        window.setPalette(UTIL_Skin::palette());
        window.resize(size);
        display = new IMV_UI_PhotoDisplay(content, &window);
        display->resize(size);
        window.show();
    }

    [[nodiscard]] QImage grab() { return window.grab().toImage().convertToFormat(QImage::Format_RGB32); }
    /// What is shown in the middle.
    [[nodiscard]] QColor middle() { return grab().pixelColor(window.rect().center()); }
    /// Where it isn't ground.
    [[nodiscard]] QRect area()
    {
        QImage image = grab();
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (image.pixelColor(x, y) == ground)
                    image.setPixelColor(x, y, Qt::white);
        return support::inkBounds(image);
    }
    QWidget window;
    IMV_UI_PhotoDisplay* display = nullptr;
};

/// The colours in the middle of a display, one after the other from the present one on. None is missed
/// however slow the machine is: a frame goes with a timer's event, and each of these is looked at before.
class Colors : public QObject
{
public:
    explicit Colors(Shown& shown) : m_shown(shown)
    {
        m_since.start();
        look();
        qApp->installEventFilter(this);
        m_ticks.start(2);
    }

    [[nodiscard]] bool waitFor(qsizetype count) const
    {
        return QTest::qWaitFor([&] { return seen.size() >= count; });
    }
    /// What is shown for so long, of the event loop's time.
    [[nodiscard]] const QStringList& during(int milliseconds) const
    {
        support::strike(milliseconds);
        return seen;
    }

    QStringList seen;
    QList<qint64> times; ///< when each came
    /// Called with each, at once.
    std::function<void()> onChange;

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Timer)
            look();
        return false;
    }

private:
    void look()
    {
        const QString color = m_shown.middle().name();
        if (!seen.isEmpty() && seen.constLast() == color)
            return;
        seen << color;
        times << m_since.elapsed();
        if (onChange)
            onChange();
    }

    Shown& m_shown;
    QElapsedTimer m_since;
    QTimer m_ticks;
};

const QString red = "#ff0000";
const QString green = "#00ff00";
const QString blue = "#0000ff";

} // namespace

class tst_PhotoDisplay : public support::TestCase
{
    Q_OBJECT

    [[nodiscard]] QString path(const QString& name) const { return m_folder.filePath(name); }
    [[nodiscard]] QString gif(const QList<GifFrame>& frames, int loops = 0) const
    {
        const QString name = path("animation.gif");
        return support::writeGif(name, QSize(40, 30), frames, loops) ? name : QString();
    }

    QTemporaryDir m_folder;

public:
    /// 0 when the picture that has as many pixels as the screen has for it is shown pixel by pixel, and a
    /// small one no larger than on other screens.
    Q_INVOKABLE int showsOnASharpScreen()
    {
        const QImage full = support::mosaic(frame * 2);
        Shown shown(full);
        if (IMV_UI_PhotoDisplay::reductionTo(frame)(full.size()) != full.size())
            return 1;
        if (!support::sameImage(shown.grab(), full, "sharp"))
            return 2;
        const QImage read = support::mosaic(QSize(408, 305)); // what a reader makes of 4000 × 2995
        shown.display->setImage(read);
        if (!support::sameImage(shown.display->pixmap(), read, "read"))
            return 3;
        shown.display->setImage(support::sheet(QSize(60, 50), Qt::black));
        return shown.area() == QRect(144, 120, 120, 100) ? 0 : 4;
    }

private slots:
    void aPictureFitsItsFrame_data()
    {
        QTest::addColumn<QSize>("picture");
        QTest::addColumn<QRect>("shown");
        QTest::newRow("one pixel") << QSize(1, 1) << QRect(102, 85, 1, 1);
        QTest::newRow("smaller") << QSize(60, 50) << QRect(72, 60, 60, 50);
        QTest::newRow("exact") << QSize(204, 171) << QRect(0, 0, 204, 171);
        QTest::newRow("wider") << QSize(408, 100) << QRect(0, 60, 204, 50);
        QTest::newRow("taller") << QSize(100, 342) << QRect(77, 0, 50, 171);
        QTest::newRow("a line") << QSize(4000, 1) << QRect(0, 85, 204, 1);
    }

    void aPictureFitsItsFrame()
    {
        QFETCH(QSize, picture);
        Shown shown(support::sheet(picture, Qt::black));
        QTEST(shown.area(), "shown");
    }

    void aPictureThatFitsIsShownPixelByPixel()
    {
        const QImage picture = support::mosaic(QSize(60, 50));
        Shown shown(picture);
        QVERIFY(support::sameImage(shown.grab(),
                                   support::overlaid(support::sheet(frame, ground), {72, 60}, picture)));
    }

    void aPictureIsReducedSmoothly()
    {
        const QImage stripes = support::sheet(QSize(408, 342), Qt::white, [](QPainter& painter) {
            for (int x = 0; x < 408; x += 2)
                painter.drawLine(x, 0, x, 341);
        });
        Shown shown(stripes);
        const int grey = shown.middle().red();
        QVERIFY2(grey > 100 && grey < 155, qPrintable(QString::number(grey)));
    }

    void aReaderIsAskedForWhatIsShown()
    {
        const auto reduction = IMV_UI_PhotoDisplay::reductionTo(frame);
        QCOMPARE(reduction(QSize(4000, 3000)), QSize(204, 153));
        QCOMPARE(reduction(QSize(3000, 4000)), QSize(128, 171));
        QCOMPARE(reduction(QSize(30, 40)), QSize(30, 40));
    }

    void aSharpScreenShowsMorePixels()
    {
        qputenv("QT_SCALE_FACTOR", "2");
        const support::ChildProcess child = support::ChildProcess::run("showsOnASharpScreen");
        qunsetenv("QT_SCALE_FACTOR");
        QVERIFY2(child.signal == 0 && child.exitCode == 0, qPrintable(child.output + child.errors));
    }

    void theSurfaceIsSeenThroughTransparentParts()
    {
        QImage picture(40, 40, QImage::Format_ARGB32);
        picture.fill(QColor(255, 0, 0, 0));
        picture.setPixelColor(0, 0, Qt::red);
        picture.setPixelColor(1, 0, QColor(0, 0, 0, 128));
        Shown shown(picture);
        const QImage grab = shown.grab();
        QCOMPARE(grab.pixelColor(82, 65), QColor(Qt::red));
        QCOMPARE(grab.pixelColor(83, 65).lightness() / 4, 127 / 4);
        QCOMPARE(grab.pixelColor(102, 85), surface);
        QCOMPARE(grab.pixelColor(81, 65), ground);
    }

    void paperIsWhiteOnADarkDesktop()
    {
        const QPalette before = QApplication::palette();
        QApplication::setPalette(QPalette(QColor(0x30, 0x30, 0x30), QColor(0x30, 0x30, 0x30)));
        QVERIFY(UTIL_Skin::color(UTIL_Skin::Color::Surface) != QColor(Qt::white));
        const QTemporaryDir folder;
        const QString file = folder.filePath("clear.png");
        QImage picture(40, 40, QImage::Format_ARGB32);
        picture.fill(Qt::transparent);
        QVERIFY(picture.save(file));
        IMV_UI_PhotoDisplay fromImage(picture);
        IMV_UI_PhotoDisplay fromFile(file);
        for (IMV_UI_PhotoDisplay* display : {&fromImage, &fromFile}) {
            display->resize(80, 80);
            display->show();
            QTRY_COMPARE(display->grab().toImage().pixelColor(40, 40), QColor(Qt::white));
        }
        QApplication::setPalette(before);
    }

    void aNullImageLeavesTheDisplayEmpty()
    {
        Shown shown(support::sheet(QSize(9, 9), Qt::red));
        QCOMPARE(shown.area().size(), QSize(9, 9));
        shown.display->setImage({});
        QCOMPARE(shown.area(), QRect());
        QCOMPARE(Shown(QImage()).area(), QRect());
    }

    void thePictureFollowsTheDisplaysSize()
    {
        Shown shown(support::sheet(QSize(100, 100), Qt::black));
        shown.display->resize(40, 80);
        QCOMPARE(shown.area(), QRect(0, 20, 40, 40));
        shown.display->resize(frame);
        QCOMPARE(shown.area(), QRect(52, 35, 100, 100));
    }

    void aFileIsReadWhenTheDisplayIsShown()
    {
        const QString file = path("late.png");
        IMV_UI_PhotoDisplay display(file);
        display.resize(frame);
        QTest::qWait(20);
        QVERIFY(support::mosaic(QSize(30, 20)).save(file)); // it could not have been read before
        display.show();
        QTRY_COMPARE(display.pixmap().size(), QSize(30, 20));
        QVERIFY(support::sameImage(display.pixmap(), support::mosaic(QSize(30, 20))));
    }

    void aGreatFileIsReadAsLargeAsItIsShown()
    {
        const QString file = path("great.jpg");
        QVERIFY(support::sheet(QSize(1600, 1200), Qt::blue).save(file));
        Shown shown(file);
        QTRY_COMPARE(shown.area(), QRect(0, 9, 204, 153));
    }

    void aTurnedPhotoIsShownUpright()
    {
        const QImage photo =
            support::filled(support::sheet(QSize(80, 40), Qt::blue), {0, 0, 40, 40}, Qt::red);
        const QString file = path("turned.jpg");
        QVERIFY(photo.save(file));
        support::write(file, support::withOrientation(support::contents(file), 6));
        Shown shown(file);
        QTRY_COMPARE(shown.area(), QRect(82, 45, 40, 80));
        const QImage grab = shown.grab();
        QVERIFY(grab.pixelColor(102, 50).red() > 240); // what was left is on top
        QVERIFY(grab.pixelColor(102, 120).blue() > 240);
    }

    void anUnreadableFileHasAMark_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("no name") << "";
        QTest::newRow("missing") << path("missing.png");
        QTest::newRow("a folder") << m_folder.path();
        QTest::newRow("damaged") << path("damaged.png");
    }

    void anUnreadableFileHasAMark()
    {
        support::write(path("damaged.png"), "this is no picture");
        QFETCH(QString, name);
        Shown shown(name);
        QTRY_VERIFY(!shown.area().isEmpty());
        QVERIFY(shown.area().width() < frame.width() / 2);
        shown.display->setImage(support::sheet(frame, Qt::red));
        QCOMPARE(shown.area().size(), frame); // a picture takes its place
    }

    void anAnimationPlaysWithItsOwnDelays()
    {
        Shown shown{QImage()};
        const QList<int> delays = {100, 300, 200};
        const QString file = gif({{red, delays[0]}, {green, delays[1]}, {blue, delays[2]}});
        QElapsedTimer playing;
        playing.start();
        shown.display->loadGifAnimation(file);
        Colors colors(shown);
        const qint64 before = playing.elapsed();
        bool isLate = false;
        // A frame's time has begun when it is seen: a clock that is set then strikes after the next one
        // came.
        const auto expectNext = [&] {
            const qsizetype number = colors.seen.size();
            const int delay = delays[(number - 1) % delays.size()];
            QTimer::singleShot(delay + 200, &colors,
                               [&, number] { isLate |= colors.seen.size() == number; });
        };
        colors.onChange = expectNext;
        expectNext();
        QVERIFY(colors.waitFor(4));
        QCOMPARE(colors.seen.first(4), QStringList({red, green, blue, red}));
        QVERIFY(!isLate);
        int due = 0;
        for (int i = 1; i < 4; ++i) {
            due += delays[i - 1];
            QCOMPARE_GE(before + colors.times[i], due * 9 / 10);
        }
    }

    void anAnimationPlaysAsOftenAsItSays_data()
    {
        QTest::addColumn<int>("loops");
        QTest::addColumn<QStringList>("colors");
        QTest::newRow("once") << -1 << QStringList{red, blue};
        QTest::newRow("once more") << 1 << QStringList{red, blue, red, blue};
        QTest::newRow("twice more") << 2 << QStringList{red, blue, red, blue, red, blue};
    }

    void anAnimationPlaysAsOftenAsItSays()
    {
        QFETCH(int, loops);
        Shown shown{QImage()};
        shown.display->loadGifAnimation(gif({{red, 30}, {blue, 30}}, loops));
        QFETCH(QStringList, colors);
        Colors shownOnes(shown);
        QVERIFY(shownOnes.waitFor(colors.size()));
        QCOMPARE(shownOnes.during(150), colors); // its last frame stays
    }

    void anAnimationPlaysForEver()
    {
        Shown shown{QImage()};
        shown.display->loadGifAnimation(gif({{red, 20}, {blue, 20}}, 0));
        QVERIFY(Colors(shown).waitFor(7));
    }

    void aHiddenDisplayDoesNotWork()
    {
        Shown shown{QImage()};
        shown.display->loadGifAnimation(gif({{red, 30}, {blue, 30}}));
        QVERIFY(Colors(shown).waitFor(3));

        shown.window.hide();
        const QColor before = shown.middle();
        const qint64 picture = shown.display->pixmap().cacheKey();
        for (int i = 0; i < 20; ++i) {
            QTest::qWait(10);
            QCOMPARE(shown.display->pixmap().cacheKey(), picture);
        }
        shown.window.show();
        QCOMPARE(shown.middle(), before);
        QVERIFY(Colors(shown).waitFor(3));
    }

    void anAnimationThatHasEndedDoesNotBeginAnewWhenShown()
    {
        Shown shown{QImage()};
        shown.display->loadGifAnimation(gif({{red, 20}, {blue, 20}}, -1));
        Colors colors(shown);
        QVERIFY(colors.waitFor(2));
        QCOMPARE(colors.during(80), QStringList({red, blue}));
        shown.window.hide();
        shown.window.show();
        QCOMPARE(Colors(shown).during(100), QStringList(blue));
    }

    void anAnimationOfAHiddenDisplayWaitsAtItsFirstFrame()
    {
        IMV_UI_PhotoDisplay display{QImage()};
        display.resize(frame);
        display.loadGifAnimation(gif({{red, 20}, {blue, 20}}, -1));
        const QImage first = support::sheet(QSize(40, 30), red);
        QVERIFY(support::sameImage(display.pixmap(), first));
        const qint64 picture = display.pixmap().cacheKey();
        for (int waited = 0; waited < 10; ++waited) {
            QTest::qWait(10);
            QCOMPARE(display.pixmap().cacheKey(), picture);
        }
        display.show();
        QTRY_COMPARE(display.pixmap().toImage().pixelColor(0, 0).name(), blue); // where it stays
    }

    void aPictureEndsAnAnimation()
    {
        Shown shown{QImage()};
        shown.display->loadGifAnimation(gif({{red, 20}, {blue, 20}}));
        shown.display->setImage(support::sheet(frame, Qt::green));
        QCOMPARE(Colors(shown).during(100), QStringList(green));
    }

    void whatCannotBePlayedChangesNothing_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("missing") << path("missing.gif");
        QTest::newRow("no GIF") << path("still.png");
        QTest::newRow("no name") << "";
    }

    void whatCannotBePlayedChangesNothing()
    {
        QVERIFY(support::mosaic(frame).save(path("still.png")));
        QFETCH(QString, name);
        Shown shown(support::sheet(frame, Qt::green));
        shown.display->loadGifAnimation(name);
        QCOMPARE(Colors(shown).during(50), QStringList(green));
    }

    void aFileThatVanishesWhileItPlaysDoesNoHarm()
    {
        Shown shown{QImage()};
        const QString file = gif({{red, 20}, {blue, 20}});
        shown.display->loadGifAnimation(file);
        QVERIFY(QFile::remove(file));
        Colors colors(shown);
        QVERIFY(colors.waitFor(6)); // several rounds
        QVERIFY(!colors.seen.contains(ground.name()));
    }
};

int main(int argc, char** argv)
{
    return support::run<tst_PhotoDisplay>(argc, argv);
}

#include "tst_PhotoDisplay.moc"
