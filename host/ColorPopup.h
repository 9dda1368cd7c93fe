#pragma once

#include <QColor>
#include <QDialog>
#include <QList>

#include <optional>

class QGridLayout;
class QLineEdit;

namespace pad {

/// The pop-up of colours at hand: sixteen, the last ones, and a field for a value. A press beside it closes
/// it. It is a dialog, because screen readers are told nothing of Qt's pop-ups but menus.
class ColorPopup : public QDialog
{
    Q_OBJECT

public:
    /// Lets the person pick. Returns `present` when nothing was picked, and nothing when the person wants
    /// another picker. `parent` is the editor; if it is deleted meanwhile, so is the pop-up.
    static std::optional<QColor> pick(QWidget* parent, const QColor& present, const QList<QColor>& recent);

    /// The colour of "#rrggbb", "rrggbb" or three numbers up to 255; invalid for any other text.
    [[nodiscard]] static QColor colorOf(const QString& text);
    /// The one that is open; null for none.
    [[nodiscard]] static ColorPopup* current();

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void closed();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    ColorPopup(QWidget* parent, const QColor& present, const QList<QColor>& recent);
    void addSwatches(QGridLayout& grid, int row, const QList<QColor>& colors);
    void choose(const std::optional<QColor>& color);
    void chooseTyped();

    std::optional<QColor> m_picked;
    QLineEdit* m_value;
};

} // namespace pad
