#pragma once

#include <QLabel>

#include <limits>

/// A centred text that is broken between words, and within a word that is wider than the label (a file
/// name). Of a text with more lines than allowed the rest is left out and marked by an ellipsis;
/// the whole is the tool tip then.
class UTIL_WrapLabel : public QLabel
{
    Q_OBJECT

public:
    explicit UTIL_WrapLabel(const QString& text, QWidget* parent = nullptr);

    /// At least 1 line is always shown.
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
