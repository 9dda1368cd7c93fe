#include "Fixtures.h"
#include "KORVA_Pen.h"

using fixtures::PictureCanvas;

namespace {

constexpr int sequences = 1000;
constexpr int stepsEach = 40;
constexpr QSize size(26, 21);

/// A person who does with a small canvas whatever comes to mind; the same seed does the same again.
class Scribbler
{
public:
    explicit Scribbler(quint32 seed) : m_random(seed)
    {
        m_pen.setLeftPen(QPen(Qt::red, number(0, 5)));
        fixtures::use(canvas, m_pen);
        canvas.setZoom(number(37, 333));
        m_log << QString("zoom %1").arg(canvas.zoom());
    }

    void doSomething()
    {
        static constexpr struct
        {
            const char* name;
            void (Scribbler::*run)();
        } actions[] = {
            {"stroke", &Scribbler::stroke},
            {"select", &Scribbler::select},
            {"move", &Scribbler::move},
            {"stretch", &Scribbler::stretch},
            {"turn", &Scribbler::turn},
            {"cut", &Scribbler::cut},
            {"copy", &Scribbler::copy},
            {"paste", &Scribbler::paste},
            {"paste at a place", &Scribbler::pasteAtAPlace},
            {"merge", &Scribbler::merge},
            {"zoom", &Scribbler::zoom},
            {"undo", &Scribbler::undo},
            {"redo", &Scribbler::redo},
        };
        const auto& action = actions[number(0, int(std::size(actions)) - 1)];
        m_log << action.name;
        (this->*action.run)();
    }

    /// What was done so far.
    [[nodiscard]] QString story() const { return m_log.join(", "); }

    PictureCanvas canvas{support::mosaic(size)};

private:
    int number(int least, int most) { return m_random.bounded(least, most + 1); }
    QPoint placeIn(const QRect& rect)
    {
        return {number(rect.left(), rect.right()), number(rect.top(), rect.bottom())};
    }
    // Now and then beyond the edge.
    QPoint place() { return placeIn(canvas.rect().adjusted(-5, -5, 5, 5)); }

    void stroke() { m_pointer.drag({place(), place(), place()}); }
    void select() { canvas.setSelection(QRect(place(), place())); }
    void move() { dragPiece(piece().rect().center()); }
    void stretch()
    {
        const QRect box = piece().rect();
        dragPiece(m_random.bounded(2) ? QPoint(box.right(), box.center().y()) : QPoint(1, box.bottom()));
    }
    void turn() { dragPiece({piece().width() - 1, 1}); }
    void cut() { canvas.cut(); }
    void copy() { canvas.copy(); }
    void paste() { canvas.paste(); }
    void pasteAtAPlace() { canvas.paste(number(-5, 30), number(-5, 30)); }
    void merge() { canvas.mergePastePixmap(); }
    void zoom() { canvas.setZoom(number(37, 333)); }
    void undo() { canvas.undo(); }
    void redo() { canvas.redo(); }

    void dragPiece(QPoint handle)
    {
        if (!canvas.isFloating())
            select();
        support::Gestures pointer(piece());
        pointer.hover(handle);
        pointer.drag({handle, handle + QPoint(number(-12, 12), number(-12, 12))});
    }
    KORVA_PasteLabel& piece() { return *canvas.pasteLabel(); }

    QRandomGenerator m_random;
    KORVA_Pen m_pen{"Pencil"};
    support::Gestures m_pointer{canvas};
    QStringList m_log;
};

// The picture without the floating piece, which stays where it is.
QImage underneath(PictureCanvas& canvas)
{
    const bool floating = canvas.isFloating();
    canvas.pasteLabel()->hide();
    const QImage image = canvas.merged();
    canvas.pasteLabel()->setVisible(floating);
    return image;
}

} // namespace

class tst_Properties : public support::TestCase
{
    Q_OBJECT

private slots:
    void randomSequences_data();
    void randomSequences();
};

void tst_Properties::randomSequences_data()
{
    constexpr int seedsARow = 50;
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("last");
    for (int seed = 0; seed < sequences; seed += seedsARow)
        QTest::addRow("seeds %d to %d", seed, seed + seedsARow - 1) << seed << seed + seedsARow - 1;
}

void tst_Properties::randomSequences()
{
    QFETCH(const int, first);
    QFETCH(const int, last);
    for (int seed = first; seed <= last; ++seed) {
        fixtures::setClipboard(support::sheet(QSize(7, 5), Qt::blue));
        Scribbler scribbler(static_cast<quint32>(seed));
        PictureCanvas& canvas = scribbler.canvas;
        for (int step = 0; step < stepsEach; ++step) {
            scribbler.doSomething();
            const QByteArray story = QString("seed %1: %2").arg(seed).arg(scribbler.story()).toUtf8();

            canvas.updateZoomed();
            const QImage picture = underneath(canvas);
            QVERIFY2(support::sameImage(canvas.shown(), support::scaled(picture, canvas.zoom())), story);
            QCOMPARE(canvas.size(), canvas.zoomedPixmap()->size());
            QCOMPARE(picture.size(), size);
        }
        const QByteArray story = QString("seed %1: %2").arg(seed).arg(scribbler.story()).toUtf8();
        const QImage before = canvas.merged();
        canvas.undo();
        canvas.undo();
        QVERIFY2(support::sameImage(canvas.merged(), before), story);
        canvas.redo();
        canvas.undo();
        QVERIFY2(support::sameImage(canvas.merged(), before), story);
    }
}

int main(int argc, char** argv)
{
    return support::run<tst_Properties>(argc, argv);
}

#include "tst_Properties.moc"
