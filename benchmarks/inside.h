#pragma once

#include <benchmark/benchmark.h>

#include <KORVA_Canvas.h>
#include <KORVA_EditCanvas.h>
#include <KORVA_Manager.h>

#include <QEvent>
#include <QImage>
#include <QWidget>

#include <functional>
#include <string>
#include <vector>

/// Benchmarks of the library's operations, each beside its physical limit. A limit has the name of its
/// operation with "/limit" added; the report prints the two as a ratio.
namespace bench {

/// The tools, by their identifiers.
enum Tool { Pencil, Select, Line, Text, Rectangle, Ellipse, Eraser, Pan };

/// An editor in a window of 240 × 320, with a picture of noise.
class Editor
{
public:
    explicit Editor(QSize picture, int zoomPercent = 100, Tool tool = Pencil);

    KORVA_EditCanvas* operator->() { return &m_editor; }
    KORVA_Canvas& canvas() { return *m_editor.canvas(); }

    /// Sends a stylus's events through Qt; widget coordinates.
    void press(QPoint at);
    void move(QPoint to);
    void release(QPoint at);
    void key(Qt::Key key, const QString& text);

private:
    void send(QEvent::Type type, QPoint at, Qt::MouseButton button, Qt::MouseButtons buttons);

    QWidget m_window;
    KORVA_EditCanvas m_editor;
};

/// A picture that is hard for every codec: soft shapes and noise, always the same for a size.
[[nodiscard]] QImage noise(QSize size);

/// A path to and fro over an area, in steps of a few pixels.
[[nodiscard]] std::vector<QPoint> walk(QSize area);

struct PictureSize
{
    QSize size;
    [[nodiscard]] std::string name() const;
};
/// Sizes from the stamp to four times the working size in each direction.
extern const std::vector<PictureSize> growingSizes;
extern const std::vector<int> zoomRates;

/// Copies this many bytes once per round. Source and target memory were touched before.
void copyBytes(benchmark::State& state, size_t bytes);
/// The bytes of a picture, on the screen or at real size: four per pixel.
[[nodiscard]] size_t bytesOf(QSize size);

using Body = std::function<void(benchmark::State&)>;
void add(const std::string& name, const Body& body, const Body& limit);

void addStrokes();
void addPictures();
void addFiles(const QString& folder);

} // namespace bench
