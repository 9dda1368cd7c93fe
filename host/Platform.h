#pragma once

#include <UTIL_Platform.h>

#include <QCoreApplication>

#include <optional>
#include <utility>

namespace pad {

/// What stands in for the person while nobody answers: during a replay, or before there is a window.
struct Script
{
    std::optional<int> answer; ///< for the next question; used up by it
    QString fileName;          ///< what the next folder dialogs give; empty: none is chosen
    QString told;              ///< what the last timed box said; none is shown
    QString stopped;           ///< what could not be answered; from then on every question means "no"
};

/// The program's services for the editor: the desktop's, or a script's.
class Platform : public UTIL_Platform
{
    Q_DECLARE_TR_FUNCTIONS(pad::Platform)

public:
    /// Puts a new one in force. It lives until another is installed.
    static Platform& install();

    /// Lets a script answer; null lets the person. The script outlives its work here.
    void obey(Script* script) { m_script = script; }

    /// The answer to the question asked last since the last call; none when nothing was asked, or nobody
    /// answered.
    std::optional<int> takeAnswer() { return std::exchange(m_lastAnswer, {}); }

    int question(QWidget* parent, const QString& icon, const QString& text,
                 const QStringList& buttons) override;
    void timedInformation(QWidget* parent, const QString& icon, const QString& text, const QString& button,
                          int timeout) override;
    void timedMessage(QWidget* parent, const QString& icon, const QString& text, int timeout) override;
    bool waitFor(QWidget* parent, const QString& text, const QFuture<void>& work) override;
    /// Into the trash; false where there is none, and the picture is still there.
    bool removePicture(const QString& name) override;
    UTIL_PictureDialog* createPickDialog(QWidget* parent, const QString& folder,
                                         const QStringList& patterns) override;
    UTIL_PictureDialog* createSaveDialog(QWidget* parent, const QString& folder,
                                         const QStringList& patterns) override;

private:
    [[nodiscard]] UTIL_PictureDialog* scriptedDialog(QWidget* parent, const QString& lacking);

    Script* m_script = nullptr; // not owned
    std::optional<int> m_lastAnswer;
};

} // namespace pad
