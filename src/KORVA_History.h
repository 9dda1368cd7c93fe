#pragma once

#include <QImage>

#include <memory>
#include <vector>

/// The changes of a picture as steps, to be walked back and forward to the pixel.
///
/// A step keeps the rectangle around what changed, as the exclusive or of its pixels before and after,
/// which leads both ways; where the size changed, the picture on its other side. Both are compressed, large
/// ones in another thread. All pictures are opaque.
class KORVA_History
{
public:
    KORVA_History();
    KORVA_History(const KORVA_History& other);
    KORVA_History& operator=(const KORVA_History& other);
    ~KORVA_History();

    /// How many steps are kept at most, and in how many bytes; the oldest go first. The newest stays,
    /// however large it is.
    void setLimits(int steps, qint64 mostBytes);
    [[nodiscard]] int mostSteps() const { return m_mostSteps; }
    void clear();

    /// Whether two pictures differ in size or in any pixel.
    [[nodiscard]] static bool isChange(const QImage& before, const QImage& after);
    /// Keeps a change, which one without a difference is not; what was undone before is forgotten then.
    void add(const QImage& before, const QImage& after);
    [[nodiscard]] bool canUndo() const;
    [[nodiscard]] bool canRedo() const;
    /// The picture on the other side of a step. `now` is the one on this side.
    [[nodiscard]] QImage undo(const QImage& now);
    [[nodiscard]] QImage redo(const QImage& now);

    /// Of what is kept now; what is being compressed does not count yet.
    [[nodiscard]] qint64 bytes() const;

private:
    class Pixels;
    struct Step;

    [[nodiscard]] static QImage walked(Step& step, const QImage& now);
    void trim();

    std::vector<Step> m_steps; ///< the oldest first
    size_t m_undone = 0;       ///< of them, from the end
    int m_mostSteps = 1;
    qint64 m_mostBytes = 0;
};
