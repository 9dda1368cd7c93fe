#pragma once

#include "KORVA_ToolOption.h"

#include <QIcon>
#include <QList>
#include <QPixmap>

#include <vector>

/// The tools that an editor offers, by their identifiers: the library's, as KORVA_ToolTable has them, and
/// from 8 on its host's own. Icons and names are made when they are asked for.
class KORVA_ToolSet
{
public:
    /// Adds a host's tool, and returns its identifier.
    int add(const QIcon& icon, const QString& name, const QList<KORVA_ToolOption>& options);

    [[nodiscard]] bool has(int tool) const;
    [[nodiscard]] QPixmap icon(int tool) const;
    /// The name for the user; empty if there is no such tool.
    [[nodiscard]] QString name(int tool) const;
    /// In the order of the option pop-up.
    [[nodiscard]] int optionCount(int tool) const;
    [[nodiscard]] QPixmap optionIcon(int tool, int row) const;
    [[nodiscard]] QString optionName(int tool, int row) const;
    /// 0 leaves the width alone.
    [[nodiscard]] int penWidth(int tool, int row) const;

    // What the entries of the pop-ups carry.
    [[nodiscard]] int toolEntry(int tool) const;
    /// The tool of an entry; -1 if there is none.
    [[nodiscard]] int toolOfEntry(int entry) const;
    /// The entry of a tool's first option; those of the others follow.
    [[nodiscard]] int firstOptionEntry(int tool) const;

    /// In the order of the tool pop-up.
    [[nodiscard]] QList<int> inOrder() const;

private:
    struct Own
    {
        QIcon icon;
        QString name;
        QList<KORVA_ToolOption> options;
    };

    [[nodiscard]] const Own* own(int tool) const;

    std::vector<Own> m_own;
};
