#pragma once

#include <QRect>

class QWidget;

/// The places of a dialog's parts. The rectangles are in global coordinates, for the dialog's present
/// position; UTIL_Dialog::fromGlobal() converts them to the dialog's.
///
/// The soft keys lie side by side along the lower edge, the first on the left. The content between them and
/// the title takes the rest of the height.
class UTIL_Geometry
{
public:
    explicit UTIL_Geometry(const QWidget& dialog) : m_dialog(dialog) {}

    /// The size of a dialog with title, content and soft keys, which fits a screen of 240 × 320.
    [[nodiscard]] static QSize dialogSize();

    [[nodiscard]] QRect title() const;
    /// Between title and soft keys, with the dialog's margin at both sides.
    [[nodiscard]] QRect content() const;
    /// Between title and soft keys, from edge to edge: for lists.
    [[nodiscard]] QRect largeContent() const;
    [[nodiscard]] QRect firstSoftKey() const;
    [[nodiscard]] QRect secondSoftKey() const;

private:
    [[nodiscard]] QRect global(const QRect& local) const;

    const QWidget& m_dialog;
};
