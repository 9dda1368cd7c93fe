// A GIF file, as the parser reads it in both scopes. The input is the file.
#include "Fuzz.h"

#include "UTIL_GifParser.h"

#include <KORVA_Assert.h>

void fuzz::feed(const QByteArray& input)
{
    const QString path = write("picture.gif", input);
    UTIL_GifParser first(path, UTIL_GifParser::FirstFrame);
    UTIL_GifParser whole(path, UTIL_GifParser::WholeFile);
    int firstError = 0;
    int wholeError = 0;
    swiftly("first frame", [&] {
        first.setPixelLimit(1'000'000);
        firstError = first.parse();
    });
    swiftly("whole file", [&] {
        whole.setPixelLimit(1'000'000);
        wholeError = whole.parse();
    });

    // The whole file is sound only if its first frame is, and both find the same in that.
    KORVA_ASSERT(wholeError != UTIL_GifParser::NoError || firstError == UTIL_GifParser::NoError);
    KORVA_ASSERT(first.screenSize() == whole.screenSize());
    KORVA_ASSERT(first.frameCount() <= 1 && first.frameCount() <= whole.frameCount());
    KORVA_ASSERT(wholeError != UTIL_GifParser::NoError || whole.frameCount() > 0);
    KORVA_ASSERT(first.transparentIndex() == whole.transparentIndex());
    KORVA_ASSERT(first.transparentColor() == whole.transparentColor());
    KORVA_ASSERT(whole.loopCount() >= -1 && whole.isAnimated() == (whole.frameCount() > 1));
    for (const UTIL_GifParser::Frame& frame : whole.frames())
        KORVA_ASSERT(frame.delay >= 0 && frame.transparentIndex >= -1 && frame.transparentIndex <= 0xff);
    if (first.frameCount() == 1)
        KORVA_ASSERT(first.frames()[0].rect == whole.frames()[0].rect);
}
