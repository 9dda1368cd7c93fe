#pragma once

#include <QAbstractButton>

namespace pad {

/// One of the two large keys at the bottom of the window. It takes the keyboard by Tab only, so that a tap
/// leaves what is being typed alone.
class SoftKey : public QAbstractButton
{
    Q_OBJECT

public:
    explicit SoftKey(const QString& text, QWidget* parent);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace pad
