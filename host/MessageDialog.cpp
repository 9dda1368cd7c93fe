#include "MessageDialog.h"

#include "Wording.h"

#include <KORVA_EditCanvas.h>

#include <algorithm>

namespace pad {

namespace {

constexpr int limits[] = {30, 100, 300};
constexpr int usual = 1;

} // namespace

MessageDialog::MessageDialog(QWidget* parent, const QString& title, const QImage& drawing, int limit)
    : CopyDialog(parent, title)
{
    for (const int each : limits) {
        addChoice(wording::inKilobytes(each), [drawing, each](const IsWanted&) {
            const QByteArray bytes =
                KORVA_EditCanvas::encoded(drawing, "JPEG", qsizetype(each) * wording::kilobyte);
            return Copy{QImage::fromData(bytes, "JPEG"), bytes};
        });
    }
    const auto* const found = std::find(std::begin(limits), std::end(limits), limit);
    choose(found == std::end(limits) ? usual : int(found - limits));
}

int MessageDialog::limit() const
{
    return limits[choice()];
}

QString MessageDialog::description(const Copy& copy) const
{
    return wording::fileSize(copy.bytes.size()) + QLatin1Char('\n') +
           wording::inPixels(copy.picture.size());
}

} // namespace pad
