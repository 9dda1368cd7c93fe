#pragma once

#include <QString>

#include <vector>

/// How the rows of a list box are divided: fields from left to right, written as "%T<width>" for a text and
/// "%R<width>" for the radio mark, in pixels; "%T5%R20%T5%T189" has its mark in field 1. Reading ends at
/// the first thing that is not such a field.
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
