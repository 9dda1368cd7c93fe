#pragma once

#include "Colors.h"

#include <UTIL_Platform.h>

#include <QCoreApplication>
#include <QPointer>

#include <optional>
#include <utility>

namespace pad {

/// Answers in place of the person: during a replay, or before there is a window.
struct Script
{
    std::optional<int> answer; ///< to the next question, which uses it up
    QString fileName;          ///< returned by the next folder dialogs; empty rejects them
    QString told;              ///< the text of the last timed box; none is shown
    QString stopped;           ///< what could not be answered; after that every question gets "no"
    bool isWatched = false;    ///< a person is there, sees what takes long, and can cancel it
    bool isCancelled = false;  ///< the person did so
};

/// The pad's services for the editor: the desktop's, or answers of a script.
class Platform : public UTIL_Platform
{
    Q_DECLARE_TR_FUNCTIONS(pad::Platform)

public:
    /// Puts a new object in force. It lives until another one is installed.
    static Platform& install();

    /// Lets a script answer; with null the person answers. The script must live as long as it is set.
    void obey(Script* script) { m_script = script; }

    /// The answer to the last question since the previous call; none if nothing was asked, or nobody
    /// answered.
    std::optional<int> takeAnswer() { return std::exchange(m_lastAnswer, {}); }

    /// How large and how deep opened pictures are worked on; an empty size leaves the classic one.
    void setWorking(QSize box, int depth);
    [[nodiscard]] QSize workingBox() const override;
    [[nodiscard]] int workingDepth() const override;

    /// Lets the person pick from these colours, for as long as they exist.
    void offerColors(const Colors* colors) { m_colors = colors; }
    /// Of 16 bits from a pop-up of the pad, which leads on to the editor's own picker; others from that.
    std::optional<QColor> pickColor(QWidget* parent, const QColor& present, int depth) override;

    int question(QWidget* parent, const QString& icon, const QString& text,
                 const QStringList& buttons) override;
    void timedInformation(QWidget* parent, const QString& icon, const QString& text, const QString& button,
                          int timeout) override;
    void timedMessage(QWidget* parent, const QString& icon, const QString& text, int timeout) override;
    bool waitFor(QWidget* parent, const QString& text, const QFuture<void>& work) override;
    /// Moves the picture to the trash. False if there is no trash; the picture is then still there.
    bool removePicture(const QString& name) override;
    UTIL_PictureDialog* createPickDialog(QWidget* parent, const QString& folder,
                                         const QStringList& patterns) override;
    UTIL_PictureDialog* createSaveDialog(QWidget* parent, const QString& folder,
                                         const QStringList& patterns) override;

private:
    [[nodiscard]] UTIL_PictureDialog* scriptedDialog(QWidget* parent, const QString& lacking);

    Script* m_script = nullptr; // not owned
    std::optional<int> m_lastAnswer;
    QPointer<const Colors> m_colors;
    QSize m_workingBox = UTIL_Platform::workingBox();
    int m_workingDepth = UTIL_Platform::workingDepth();
};

} // namespace pad
