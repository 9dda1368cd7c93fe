#include "KORVA_Manners.h"

#include <algorithm>

namespace {

struct Row
{
    const char* word;
    bool KORVA_Manners::*isOn;
};

constexpr Row rows[] = {
    {"joined-eraser", &KORVA_Manners::joinedEraser},
    {"round-pencil", &KORVA_Manners::roundPencil},
    {"own-sizes", &KORVA_Manners::ownSizes},
    {"true-zooms", &KORVA_Manners::trueZooms},
    {"true-pixels", &KORVA_Manners::truePixels},
    {"pixel-grid", &KORVA_Manners::pixelGrid},
    {"wheel-zooms", &KORVA_Manners::wheelZooms},
    {"steady-view", &KORVA_Manners::steadyView},
    {"magnifier", &KORVA_Manners::magnifier},
    {"steady-piece", &KORVA_Manners::steadyPiece},
    {"offered-piece", &KORVA_Manners::offeredPiece},
    {"piece-handles", &KORVA_Manners::pieceHandles},
    {"piece-keys", &KORVA_Manners::pieceKeys},
    {"centered-piece", &KORVA_Manners::centeredPiece},
    {"clear-white", &KORVA_Manners::clearWhite},
    {"even-shapes", &KORVA_Manners::evenShapes},
    {"outlined-shapes", &KORVA_Manners::outlinedShapes},
    {"colored-text", &KORVA_Manners::coloredText},
    {"escape-drops-text", &KORVA_Manners::escapeDropsText},
    {"undo-types", &KORVA_Manners::undoTypes},
    {"text-inside", &KORVA_Manners::textInside},
    {"point-sizes", &KORVA_Manners::pointSizes},
    {"movable-text", &KORVA_Manners::movableText},
    {"bold-text", &KORVA_Manners::boldText},
};

} // namespace

KORVA_Manners KORVA_Manners::modern()
{
    KORVA_Manners all;
    for (const Row& row : rows)
        all.*row.isOn = true;
    return all;
}

QStringList KORVA_Manners::words() const
{
    QStringList found;
    for (const Row& row : rows) {
        if (this->*row.isOn)
            found.append(QString::fromLatin1(row.word));
    }
    return found;
}

std::optional<KORVA_Manners> KORVA_Manners::ofWords(const QStringList& words)
{
    KORVA_Manners manners;
    for (const QString& word : words) {
        const auto* const row = std::find_if(std::begin(rows), std::end(rows), [&](const Row& each) {
            return word == QLatin1String(each.word);
        });
        if (row == std::end(rows))
            return {};
        manners.*row->isOn = true;
    }
    return manners;
}
