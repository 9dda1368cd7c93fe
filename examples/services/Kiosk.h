#pragma once

#include <UTIL_Platform.h>

/// The kiosk's own services: a banner for messages, a list of the pictures in its one folder, and names
/// that it chooses for drawings. Questions stay the library's.
class Kiosk : public UTIL_Platform
{
public:
    explicit Kiosk(QString folder) : m_folder(std::move(folder)) {}

    void timedInformation(QWidget* parent, const QString& icon, const QString& text, const QString& button,
                          int timeout) override;
    void timedMessage(QWidget* parent, const QString& icon, const QString& text, int timeout) override;
    UTIL_PictureDialog* createPickDialog(QWidget* parent, const QString& folder,
                                         const QStringList& patterns) override;
    UTIL_PictureDialog* createSaveDialog(QWidget* parent, const QString& folder,
                                         const QStringList& patterns) override;
    [[nodiscard]] QString photoFolder() const override { return m_folder; }
    [[nodiscard]] qint64 pixelLimit() const override { return 4'000'000; } // it has little memory

private:
    QString m_folder;
};
