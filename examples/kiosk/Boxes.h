#pragma once

#include <UTIL_Platform.h>

/// The kiosk's own boxes: a panel that asks, and a banner that tells and waits for nobody. Pictures come in
/// at the size of the page and in all their colours. There is no dialog for files.
class Boxes : public UTIL_Platform
{
public:
    static constexpr QSize page{600, 420};

    int question(QWidget* parent, const QString& icon, const QString& text,
                 const QStringList& buttons) override;
    void timedInformation(QWidget* parent, const QString& icon, const QString& text, const QString& button,
                          int timeout) override;
    void timedMessage(QWidget* parent, const QString& icon, const QString& text, int timeout) override;
    [[nodiscard]] QSize workingBox() const override { return page; }
    [[nodiscard]] int workingDepth() const override { return 24; }
};
