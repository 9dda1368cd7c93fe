#include "ColorsDialog.h"

#include "Palette.h"
#include "Wording.h"

#include <QColor>

namespace pad {

ColorsDialog::ColorsDialog(QWidget* parent, const QString& title, const QImage& drawing, int colors)
    : CopyDialog(parent, title)
{
    for (const auto& [mixing, text] : {std::pair(palette::Mixing::None, tr("Plain", "few colors")),
                                       std::pair(palette::Mixing::Dots, tr("Dotted", "few colors"))}) {
        addChoice(text, [drawing, colors, how = mixing](const IsWanted& isWanted) {
            return Copy{palette::applied(drawing, palette::of(drawing, colors, isWanted), how, isWanted),
                        {}};
        });
    }
    choose(0);
}

QString ColorsDialog::description(const Copy& copy) const
{
    const QList<QRgb> colors = copy.picture.colorTable();
    const bool areBlackAndWhite = colors.size() == 2 && colors.contains(QColor(Qt::black).rgb()) &&
                                  colors.contains(QColor(Qt::white).rgb());
    return wording::inColors(int(colors.size()), areBlackAndWhite) + QLatin1Char('\n') +
           wording::inPixels(copy.picture.size());
}

} // namespace pad
