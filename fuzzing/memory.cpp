// A picture file in memory, as KORVA_EditCanvas::setEncoded() gets it. The input is the file.
#include "Fuzz.h"
#include "Services.h"

#include <KORVA_Assert.h>
#include <KORVA_Canvas.h>
#include <KORVA_EditCanvas.h>

void fuzz::feed(const QByteArray& input)
{
    static Services& services = Services::install();
    static auto* editor = new KORVA_EditCanvas(KORVA_COLOR_16BIT);
    services.limit = 5'000'000; // beyond what is decoded as a whole
    editor->clearCanvas();
    const QImage before = editor->snapshot();

    bool isTaken = false;
    constexpr double forMegapixels = 5; // seconds
    swiftly(
        "setEncoded", [&] { isTaken = editor->setEncoded(input); }, forMegapixels);
    const QImage after = editor->snapshot();
    KORVA_ASSERT(isOpaque(after));
    KORVA_ASSERT(qint64(after.width()) * after.height() <= qint64(352) * 288);
    KORVA_ASSERT(isTaken || after == before);
    KORVA_ASSERT(!isTaken || !editor->sourceSize().isEmpty());
}
