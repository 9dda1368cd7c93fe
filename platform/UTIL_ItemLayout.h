#pragma once

#include <QString>

#include <vector>

/// The division of a list box's rows into fields, from left to right. "%T<width>" is a text and "%R<width>"
/// the radio mark, with widths in pixels; "%T5%R20%T5%T189" has its mark in field 1. Reading ends at the
/// first thing that is not such a field.
class UTIL_ItemLayout
{
public:
    enum class Kind { Text, Radio };

    struct Field
    {
        Kind kind;
        int left; ///< from the start of the row
        int width;
    };

    explicit UTIL_ItemLayout(const QString& layout);

    [[nodiscard]] const std::vector<Field>& fields() const { return m_fields; }

private:
    std::vector<Field> m_fields;
};
