#include "inside.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPixmap>
#include <QRandomGenerator>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace bench {

Editor::Editor(QSize picture, int zoomPercent, Tool tool) : m_editor(KORVA_COLOR_16BIT, &m_window)
{
    m_window.setFixedSize(240, 320);
    m_window.show();
    QPixmap content = QPixmap::fromImage(noise(picture));
    m_editor.setPixmap(&content);
    m_editor.setZoom(zoomPercent);
    m_editor.selectTool(tool);
    QCoreApplication::processEvents();
}

void Editor::send(QEvent::Type type, QPoint at, Qt::MouseButton button, Qt::MouseButtons buttons)
{
    QMouseEvent event(type, at, canvas().mapToGlobal(at), button, buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(&canvas(), &event);
}

void Editor::press(QPoint at)
{
    send(QEvent::MouseButtonPress, at, Qt::LeftButton, Qt::LeftButton);
}

void Editor::move(QPoint to)
{
    send(QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton);
}

void Editor::release(QPoint at)
{
    send(QEvent::MouseButtonRelease, at, Qt::LeftButton, Qt::NoButton);
}

void Editor::key(Qt::Key key, const QString& text)
{
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(&canvas(), &press);
}

QImage noise(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    QRandomGenerator random(1);
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const int soft = static_cast<int>(100 + 60 * std::sin(x * 0.02) * std::cos(y * 0.03));
            const int grain = random.bounded(16);
            line[x] = qRgb(soft + grain, (soft + x / 16) & 0xff, 255 - soft - grain);
        }
    }
    return image;
}

std::vector<QPoint> walk(QSize area)
{
    std::vector<QPoint> points;
    for (int y = 0; y + 4 < area.height(); y += 6) {
        const bool back = y / 6 % 2;
        for (int x = 0; x < area.width(); x += 3)
            points.emplace_back(back ? area.width() - 1 - x : x, y + x % 2 * 4);
    }
    return points;
}

std::string PictureSize::name() const
{
    return std::to_string(size.width()) + "x" + std::to_string(size.height());
}

const std::vector<PictureSize> growingSizes = {{{32, 40}},   {{64, 80}},   {{120, 160}},  {{240, 320}},
                                               {{352, 288}}, {{704, 576}}, {{1408, 1152}}};
const std::vector<int> zoomRates = {50, 100, 150, 200, 333};

void copyBytes(benchmark::State& state, size_t bytes)
{
    std::vector<char> from(bytes, 1);
    std::vector<char> to(bytes, 2);
    for (auto _ : state) {
        std::memcpy(to.data(), from.data(), bytes);
        benchmark::DoNotOptimize(to.data());
        benchmark::ClobberMemory();
    }
}

size_t bytesOf(QSize size)
{
    return static_cast<size_t>(size.width()) * static_cast<size_t>(size.height()) * 4;
}

void add(const std::string& name, const Body& body, const Body& limit)
{
    benchmark::RegisterBenchmark(name.c_str(), body);
    benchmark::RegisterBenchmark((name + "/limit").c_str(), limit);
}

} // namespace bench
