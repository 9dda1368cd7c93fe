#include "Subjects.h"

#include "BareWidget.h"
#include "inside.h"

#include <QTest>

#include <algorithm>
#include <sstream>

namespace bench {

namespace {

/// A comb within 180 × 140 pixels: no three points on a line.
QPoint point(int number)
{
    constexpr QSize area(180, 140);
    return {10 + (number * 7) % area.width(), 10 + (number * 11 + number % 2 * 3) % area.height()};
}

/// A hand on a widget, through its window.
class Hand
{
public:
    explicit Hand(const QWidget& on)
        : m_window(on.window()->windowHandle()), m_shift(on.mapTo(on.window(), QPoint()))
    {
    }

    void press(QPoint at) const { QTest::mousePress(m_window, Qt::LeftButton, {}, m_shift + at); }
    void move(QPoint to) const { QTest::mouseMove(m_window, m_shift + to); }
    void release(QPoint at) const { QTest::mouseRelease(m_window, Qt::LeftButton, {}, m_shift + at); }

private:
    QWindow* m_window;
    QPoint m_shift;
};

class Bare : public Subject
{
public:
    explicit Bare(bool paints) : m_widget(QPixmap::fromImage(noise({240, 320})), paints)
    {
        m_widget.show();
        QCoreApplication::processEvents();
        Hand(m_widget).press(point(0));
    }

    void event(int number) override { Hand(m_widget).move(point(number)); }

private:
    BareWidget m_widget;
};

/// A tool in the middle of its drag.
class Dragged : public Subject
{
public:
    Dragged(QSize picture, int zoom, Tool tool, const std::string& manners) : m_editor(picture, zoom, tool)
    {
        if (manners == "modern")
            m_editor->setManners(KORVA_Manners::modern());
        if (manners == "watched")
            m_editor->pixmap();
    }

    void event(int number) override { Hand(m_editor.canvas()).move(point(number)); }

protected:
    Editor m_editor;
};

class Stroke : public Dragged
{
public:
    Stroke(int zoom, Tool tool, const std::string& manners) : Dragged({200, 170}, zoom, tool, manners)
    {
        Hand(m_editor.canvas()).press(point(0));
    }
};

class MovedPiece : public Dragged
{
public:
    MovedPiece(int zoom, const std::string& manners) : Dragged({200, 170}, zoom, Select, manners)
    {
        const Hand hand(m_editor.canvas());
        hand.press({20, 20});
        hand.move({100, 90});
        hand.release({100, 90});
        hand.move({60, 55});
        hand.press({60, 55});
    }
};

/// The view goes to and fro under the hand.
class Panned : public Dragged
{
public:
    Panned(int zoom, const std::string& manners) : Dragged({600, 500}, zoom, Pan, manners)
    {
        Hand(m_editor.canvas()).press(m_start);
    }

    void event(int number) override
    {
        const int pull = number / 8 % 2 == 0 ? -40 : 40;
        Hand(m_editor.canvas()).move(m_start + QPoint(pull, pull + number % 2));
    }

private:
    const QPoint m_start{100, 80};
};

/// Letters come and go in an open text.
class OpenText : public Dragged
{
public:
    OpenText(int zoom, const std::string& manners) : Dragged({200, 170}, zoom, Text, manners)
    {
        Hand(m_editor.canvas()).press({20, 60});
        Hand(m_editor.canvas()).release({20, 60});
    }

    void event(int number) override
    {
        QWindow* const window = m_editor.canvas().window()->windowHandle();
        if (number / 8 % 2 == 0)
            QTest::keyPress(window, 'w');
        else
            QTest::keyPress(window, Qt::Key_Backspace);
    }
};

template <Tool tool>
std::unique_ptr<Subject> makeStroke(int zoom, const std::string& manners)
{
    return std::make_unique<Stroke>(zoom, tool, manners);
}

template <typename Kind>
std::unique_ptr<Subject> make(int zoom, const std::string& manners)
{
    return std::make_unique<Kind>(zoom, manners);
}

constexpr struct
{
    const char* name;
    std::unique_ptr<Subject> (*make)(int zoom, const std::string& manners);
} kinds[] = {
    {"pencil", makeStroke<Pencil>},   {"line", makeStroke<Line>},     {"rectangle", makeStroke<Rectangle>},
    {"ellipse", makeStroke<Ellipse>}, {"select", makeStroke<Select>}, {"eraser", makeStroke<Eraser>},
    {"piece", make<MovedPiece>},      {"pan", make<Panned>},          {"text", make<OpenText>},
};
constexpr const char* zooms[] = {"100", "200", "333"};
constexpr const char* manners[] = {"classic", "modern", "watched"};
constexpr const char* yardsticks[] = {"receive", "bare"};

} // namespace

std::vector<std::string> subjectNames()
{
    std::vector<std::string> names(std::begin(yardsticks), std::end(yardsticks));
    for (const char* way : manners)
        for (const auto& kind : kinds)
            for (const char* zoom : zooms)
                names.push_back(std::string(kind.name) + ' ' + zoom + ' ' + way);
    return names;
}

std::unique_ptr<Subject> makeSubject(const std::string& name)
{
    const std::vector<std::string> names = subjectNames();
    if (std::find(names.begin(), names.end(), name) == names.end())
        return nullptr;
    std::istringstream words(name);
    std::string first;
    int zoom = 0;
    std::string way;
    words >> first >> zoom >> way;
    for (const auto& kind : kinds)
        if (first == kind.name)
            return kind.make(zoom, way);
    return std::make_unique<Bare>(name == "bare");
}

} // namespace bench
