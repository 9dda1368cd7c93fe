#include "PadOnScreen.h"

#include "PictureFiles.h"

#include <QtTest>

namespace support {

namespace {

constexpr auto programName = " - Korva";
constexpr QPoint middle(120, 160);     // of the window
constexpr QRect view(4, 35, 224, 188); // where the picture is shown, in the window
constexpr QSize newDrawing(200, 170);

} // namespace

bool PadOnScreen::waitFor(const std::function<bool()>& condition) const
{
    const qint64 left = m_deadline.isForever() ? patience : m_deadline.remainingTime();
    return QTest::qWaitFor(condition, int(std::min<qint64>(left, patience)));
}

PadOnScreen::PadOnScreen(const QString& home, QSize screen) : m_home(home), m_server(screen)
{
    QDir().mkpath(pictures());
    QDir().mkpath(home + "/XDG_CONFIG_HOME");
    setPictureSize(newDrawing);
    write(home + "/XDG_CONFIG_HOME/user-dirs.dirs",
          QString("XDG_PICTURES_DIR=\"%1\"\n").arg(pictures()).toUtf8());
}

bool PadOnScreen::start(const QStringList& arguments, const QStringList& through)
{
    m_process.reset();
    m_process = std::make_unique<PadProcess>(QStringList{"--scale", "1"} + arguments, m_server.display(),
                                             m_home, m_home, through);
    const bool isShown = waitFor([this] { return pad().has_value() || !m_process->isRunning(); });
    if (!isShown || !pad())
        return false;
    m_place = pad()->place;
    // A press before that would be the press of nobody.
    return waitFor([this] { return m_server.colorAt(m_place.topLeft() + middle) != Qt::black; });
}

void PadOnScreen::setPictureSize(QSize size)
{
    const QSize room = (view.size() - size).expandedTo(QSize(0, 0));
    m_size = size.boundedTo(view.size());
    m_origin = view.topLeft() + QPoint(room.width() / 2, room.height() / 2);
}

QImage PadOnScreen::picture() const
{
    return shot().copy(QRect(m_origin, m_size));
}

std::optional<XServer::Window> PadOnScreen::pad() const
{
    for (const XServer::Window& window : m_server.windows()) {
        if (window.title.endsWith(programName))
            return window;
    }
    return {};
}

QString PadOnScreen::title() const
{
    const auto window = pad();
    return window ? window->title : QString();
}

bool PadOnScreen::waitForTitle(const QString& title) const
{
    return waitFor([&] { return this->title() == title; });
}

QString PadOnScreen::box() const
{
    const QList<XServer::Window> all = m_server.windows();
    for (auto window = all.crbegin(); window != all.crend(); ++window) {
        if (window->title.endsWith(programName))
            break;
        if (!window->title.isEmpty())
            return window->title;
    }
    return {};
}

QRect PadOnScreen::boxPlace() const
{
    const QList<XServer::Window> all = m_server.windows();
    return all.isEmpty() ? QRect() : all.constLast().place.translated(-m_place.topLeft());
}

bool PadOnScreen::waitForBox(const QString& text, const QString& pictureName) const
{
    if (!waitFor([&] { return box() == text; })) {
        qInfo("Instead of '%s' it says '%s'", qPrintable(text), qPrintable(box()));
        return false;
    }
    if (!pictureName.isEmpty()) {
        QTest::qWait(200); // until all of it is painted
        shot().save(QString(KORVA_TEST_OUTPUT "/%1.png").arg(pictureName));
    }
    return true;
}

bool PadOnScreen::waitForNoBox() const
{
    return waitFor([this] { return box().isEmpty(); });
}

void PadOnScreen::click(QPoint at)
{
    m_server.click(m_place.topLeft() + at);
}

bool PadOnScreen::stroke(QPoint from, QPoint to)
{
    m_server.moveTo(onScreen(from));
    m_server.press();
    m_server.moveTo(onScreen(to));
    m_server.release();
    return waitFor([&] { return isRed(to); });
}

bool PadOnScreen::waitForColor(QPoint at, const QColor& color) const
{
    return waitFor([&] { return colorAt(at) == color; });
}

bool PadOnScreen::isRed(QPoint at) const
{
    return colorAt(at) == QColor(Qt::red);
}

void PadOnScreen::key(const char* name, std::initializer_list<const char*> held)
{
    m_server.moveTo(m_place.topLeft() + middle);
    m_server.activateTopWindow();
    m_server.key(name, held);
}

} // namespace support
