#pragma once

#include <QLabel>

#include <limits>

/// A centred text that wraps between words, and within a word that is wider than the label (such as a file
/// name). If the text needs more lines than allowed, an ellipsis replaces the rest, and the tool tip shows
/// the whole text.
class UTIL_WrapLabel : public QLabel
{
    Q_OBJECT

public:
    explicit UTIL_WrapLabel(const QString& text, QWidget* parent = nullptr);

    /// At least one line is always shown.
    void setMaximumLines(int lines);

    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return {}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    [[nodiscard]] QStringList lines(int width) const;

    int m_maximumLines = std::numeric_limits<int>::max();
};
