#pragma once

#include <QImage>

#include <memory>
#include <vector>

/// The changes of a picture as steps that can be walked back and forward, exact to the pixel.
///
/// A step keeps the rectangle around the changed pixels, as the exclusive or of before and after, which
/// works in both directions. If the size changed it keeps the whole other picture. Both are compressed,
/// large ones in another thread. All pictures are opaque.
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
    /// Keeps a change as a step; nothing if the pictures are equal. Steps that were undone are forgotten.
    void add(const QImage& before, const QImage& after);
    [[nodiscard]] bool canUndo() const;
    [[nodiscard]] bool canRedo() const;
    /// The picture on the other side of a step. `now` is the one on this side.
    [[nodiscard]] QImage undo(const QImage& now);
    [[nodiscard]] QImage redo(const QImage& now);

    /// The bytes that the steps take now, without those that are still being compressed.
    [[nodiscard]] qint64 bytes() const;

private:
    class Pixels;
    struct Step;

    [[nodiscard]] static QImage walked(Step& step, const QImage& now);
    void trim();

    std::vector<Step> m_steps; ///< the oldest first
    size_t m_undone = 0;       ///< how many steps at the end are undone
    int m_mostSteps = 1;
    qint64 m_mostBytes = 0;
};
