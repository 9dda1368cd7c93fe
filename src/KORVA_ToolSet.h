#pragma once

#include "KORVA_Features.h"
#include "KORVA_Manners.h"

#include <QIcon>
#include <QList>
#include <QPixmap>

#include <vector>

/// The tools of an editor, by their identifiers, and what it offers of them: the library's, as
/// KORVA_ToolTable has them, and from 8 on its host's own. Icons and names are made when they are asked
/// for.
class KORVA_ToolSet
{
public:
    /// Adds a host's tool, and returns its identifier.
    int add(const QIcon& icon, const QString& name, const QList<KORVA_ToolOption>& options);

    /// Takes what is offered. The editor then shows it.
    void setFeatures(const KORVA_Features& features) { m_features = features; }
    [[nodiscard]] const KORVA_Features& features() const { return m_features; }
    /// Follows the switches that offer more options. Returns whether one of them has changed.
    bool setManners(const KORVA_Manners& manners);

    /// Whether a person can choose the tool. The hand is offered as an option of select.
    [[nodiscard]] bool isOffered(int tool) const;
    /// Whether a person can choose this option of the tool.
    [[nodiscard]] bool isOptionOffered(int tool, int row) const;
    /// Whether the options are a host's, of its own tool or in place of the library's.
    [[nodiscard]] bool hasOwnOptions(int tool) const { return ownOptions(tool); }
    [[nodiscard]] QPixmap icon(int tool) const;
    /// The name for the user; empty if there is no such tool.
    [[nodiscard]] QString name(int tool) const;
    /// In the order of the option pop-up.
    [[nodiscard]] int optionCount(int tool) const;
    [[nodiscard]] QPixmap optionIcon(int tool, int row) const;
    [[nodiscard]] QString optionName(int tool, int row) const;
    /// 0 leaves the width alone.
    [[nodiscard]] int penWidth(int tool, int row) const;
    /// Whether the option fills a shape and outlines it in a colour of its own.
    [[nodiscard]] bool isEdged(int tool, int row) const;
    /// Whether the tool's options have a row for bold letters.
    [[nodiscard]] bool offersBold(int tool) const;

    // What the entries of the pop-ups carry.
    [[nodiscard]] int toolEntry(int tool) const;
    /// The tool of an entry; -1 if there is none.
    [[nodiscard]] int toolOfEntry(int entry) const;
    /// The entry of a tool's first option; those of the others follow.
    [[nodiscard]] int firstOptionEntry(int tool) const;

    /// Those of the tool pop-up, in its order.
    [[nodiscard]] QList<int> inOrder() const;

private:
    struct Own
    {
        QIcon icon;
        QString name;
        QList<KORVA_ToolOption> options;
    };

    [[nodiscard]] const Own* own(int tool) const;
    [[nodiscard]] bool has(int tool) const;
    [[nodiscard]] bool isTakenAway(int tool) const;
    [[nodiscard]] const QList<KORVA_ToolOption>* ownOptions(int tool) const;

    std::vector<Own> m_own;
    KORVA_Features m_features;
    bool m_hasEdges = false;
    bool m_hasBold = false;
};
