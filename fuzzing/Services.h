#pragma once

#include <UTIL_Platform.h>

#include <functional>

namespace fuzz {

/// The services of a device on which everything is answered at once, so that no dialog waits for anybody.
class Services : public UTIL_Platform
{
public:
    /// Puts new ones in force, and returns them.
    static Services& install();

    /// What happens while a question, a box or a dialog is open; nothing at first.
    std::function<void()> whileOpen;
    /// Chooses one of so many answers; 0 at first.
    std::function<int(int)> choose;
    /// What the folder dialogs return; empty for cancelled.
    QString fileName;
    qint64 limit = 64'000'000;
    QSize box{352, 288};
    int depth = 16;

    int question(QWidget* parent, const QString& icon, const QString& text,
                 const QStringList& buttons) override;
    void timedInformation(QWidget* parent, const QString& icon, const QString& text, const QString& button,
                          int timeout) override;
    void timedMessage(QWidget* parent, const QString& icon, const QString& text, int timeout) override;
    bool waitFor(QWidget* parent, const QString& text, const QFuture<void>& work) override;
    UTIL_PictureDialog* createPickDialog(QWidget* parent, const QString& folder,
                                         const QStringList& patterns) override;
    UTIL_PictureDialog* createSaveDialog(QWidget* parent, const QString& folder,
                                         const QStringList& patterns) override;
    std::optional<QColor> pickColor(QWidget* parent, const QColor& present, int depth) override;
    [[nodiscard]] QString photoFolder() const override;
    [[nodiscard]] qint64 pixelLimit() const override { return limit; }
    [[nodiscard]] QSize workingBox() const override { return box; }
    [[nodiscard]] int workingDepth() const override { return depth; }
    [[nodiscard]] int timeoutSecond() const override { return 0; }

private:
    void open() const;
};

} // namespace fuzz
