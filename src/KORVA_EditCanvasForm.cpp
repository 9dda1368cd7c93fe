#include "KORVA_EditCanvas.h"

namespace {

constexpr struct
{
    KORVA_EditCanvas::Offer offer;
    bool KORVA_Features::*isOn;
} rows[] = {
    {KORVA_EditCanvas::Controls, &KORVA_Features::controls},
    {KORVA_EditCanvas::Colors, &KORVA_Features::colors},
    {KORVA_EditCanvas::Dialogs, &KORVA_Features::dialogs},
    {KORVA_EditCanvas::Opening, &KORVA_Features::opening},
    {KORVA_EditCanvas::Saving, &KORVA_Features::saving},
    {KORVA_EditCanvas::Pasting, &KORVA_Features::pasting},
    {KORVA_EditCanvas::Resizing, &KORVA_Features::resizing},
    {KORVA_EditCanvas::Editing, &KORVA_Features::editing},
};

/// The text tool counts each choice as a modification, which no form means.
template <typename Choice>
void choose(KORVA_EditCanvas& editor, const Choice& choice)
{
    const bool hadChanges = editor.hasChanges();
    choice();
    if (!hadChanges)
        editor.clearModified();
}

} // namespace

// The properties of a form that have no function of their own.

void KORVA_EditCanvas::setOffers(Offers offers)
{
    KORVA_Features wanted = features();
    bool isOther = false;
    for (const auto& row : rows) {
        isOther |= wanted.*row.isOn != offers.testFlag(row.offer);
        wanted.*row.isOn = offers.testFlag(row.offer);
    }
    if (isOther)
        setFeatures(wanted);
}

KORVA_EditCanvas::Offers KORVA_EditCanvas::offers() const
{
    Offers found;
    for (const auto& row : rows)
        found.setFlag(row.offer, features().*row.isOn);
    return found;
}

void KORVA_EditCanvas::setMannerWords(const QStringList& words)
{
    if (const auto wanted = KORVA_Manners::ofWords(words))
        setManners(*wanted);
}

QStringList KORVA_EditCanvas::mannerWords() const
{
    return manners().words();
}

void KORVA_EditCanvas::setTool(Tool tool)
{
    choose(*this, [&] { selectTool(tool); });
}

void KORVA_EditCanvas::setOption(int option)
{
    choose(*this, [&] { selectOption(option); });
}

void KORVA_EditCanvas::setZoomRow(ZoomRow row)
{
    choose(*this, [&] { selectZoom(row); });
}
