#include "KORVA_Picture.h"

#include "support/Images.h"
#include "support/TestCase.h"

using support::sameImage;

/// Undo and redo between KORVA_Picture::beginStep() and endStep(): what a host's slot may call at any time.
class tst_OpenSteps : public support::TestCase
{
    Q_OBJECT

private slots:
    void undoEndsAStep();
    void redoEndsAStep();
    void endWithoutABeginningIsNothing();
    void whatFollowsIsAnotherStep();
};

namespace {

/// Three states, one step from the next: white, with a mark in the lower right corner, and smaller.
struct Drawing
{
    Drawing()
    {
        picture.setUndoSteps(10, 1 << 20);
        QPainter(picture.pixmap()).fillRect(marked, Qt::red);
        picture.settle();
    }
    void shrink() { picture.scale(QSize(8, 6)); }
    [[nodiscard]] QImage now() const { return picture.image(); }

    static constexpr QRect marked{30, 20, 10, 10};
    const QImage white = support::sheet(QSize(40, 30));
    KORVA_Picture picture{QPixmap::fromImage(white)};
};

} // namespace

void tst_OpenSteps::undoEndsAStep()
{
    Drawing drawing;
    const QImage red = drawing.now();
    drawing.picture.beginStep();
    drawing.shrink();
    const QImage small = drawing.now();
    drawing.picture.undo();
    QVERIFY(sameImage(drawing.now(), red));
    drawing.picture.undo();
    QVERIFY(sameImage(drawing.now(), drawing.white));
    drawing.picture.redo();
    QVERIFY(sameImage(drawing.now(), red));
    drawing.picture.redo();
    QVERIFY(sameImage(drawing.now(), small));
    drawing.picture.endStep();
    drawing.picture.undo();
    QVERIFY(sameImage(drawing.now(), red));
}

void tst_OpenSteps::redoEndsAStep()
{
    Drawing drawing;
    drawing.picture.undo();
    drawing.picture.beginStep();
    drawing.shrink();
    const QImage small = drawing.now();
    drawing.picture.redo(); // the change has taken the place of what was undone
    QVERIFY(sameImage(drawing.now(), small));
    drawing.picture.endStep();
    drawing.picture.undo();
    QVERIFY(sameImage(drawing.now(), drawing.white));
}

void tst_OpenSteps::endWithoutABeginningIsNothing()
{
    Drawing drawing;
    const QImage red = drawing.now();
    drawing.picture.endStep();
    drawing.picture.beginStep();
    drawing.picture.fill(Qt::blue);
    drawing.picture.takeSnapshot();
    drawing.picture.fill(Qt::green);
    drawing.picture.endStep();
    drawing.picture.undo(); // both at once
    QVERIFY(sameImage(drawing.now(), red));
}

// Even without a snapshot in between.
void tst_OpenSteps::whatFollowsIsAnotherStep()
{
    Drawing drawing;
    drawing.picture.beginStep();
    drawing.picture.fill(Qt::blue);
    drawing.picture.endStep();
    const QImage blue = drawing.now();
    drawing.picture.fill(Qt::green);
    drawing.picture.undo();
    QVERIFY(sameImage(drawing.now(), blue));
}

int main(int argc, char** argv)
{
    return support::run<tst_OpenSteps>(argc, argv);
}

#include "tst_OpenSteps.moc"
