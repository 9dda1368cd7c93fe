#pragma once

#include "UTIL_Dialog.h"

#include <QKeyEvent>
#include <QPointer>
#include <QStringList>
#include <QWindow>

#include <memory>
#include <optional>
#include <vector>

class QVBoxLayout;
class UTIL_WrapLabel;

/// A message with a picture above its text, and buttons below: a question that waits for one of its
/// buttons, or a timed message that closes by itself.
///
/// Escape and closing press the button named "Cancel", in English or in the user's language, and do nothing
/// in a box without one. A timed box is also tapped away, by a tap anywhere on it, Return or Space.
///
/// A timed box without a button is in nobody's way: a tap or stroke beside it takes it away when it ends,
/// and is then made on what lies there, and so is any other key in the window behind. Both come when exec()
/// has returned.
class UTIL_MessageBox : public UTIL_Dialog
{
    Q_OBJECT
    Q_PROPERTY(QString iconName READ iconName CONSTANT)
    Q_PROPERTY(int timeout READ timeout CONSTANT)

public:
    /// `icon` is a file name for RES_ICON_Reader. `timeout` is in seconds of UTIL_Platform; without it the
    /// box is a question and stays.
    UTIL_MessageBox(QWidget* parent, const QString& icon, const QString& text, const QStringList& buttons,
                    std::optional<int> timeout = {});

    /// Runs a question and returns the index of the button pressed. Where the program ends before an
    /// answer, or the parent is deleted, it is "Cancel", else the last button.
    [[nodiscard]] static int ask(QWidget* parent, const QString& icon, const QString& text,
                                 const QStringList& buttons);
    /// Runs a timed message.
    static void tell(QWidget* parent, const QString& icon, const QString& text, const QStringList& buttons,
                     int timeout);

    [[nodiscard]] QString iconName() const { return m_iconName; }
    /// 0 for a question.
    [[nodiscard]] int timeout() const { return m_timeout.value_or(0); }
    [[nodiscard]] int answer() const { return m_answer; }

    void reject() override;
    int exec() override;

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    [[nodiscard]] bool isVeiling() const override { return !m_timeout; }

private:
    struct Kept
    {
        QEvent::Type type;
        QPointF position; ///< global
        Qt::MouseButton button;
        Qt::MouseButtons buttons;
        Qt::KeyboardModifiers modifiers;
    };

    void keep(const QMouseEvent& event);
    void passOn();
    [[nodiscard]] QLayout* createButtons(const QStringList& texts);
    void scroll(UTIL_WrapLabel* label, QVBoxLayout* column);
    void finish(int answer);

    QString m_iconName;
    std::optional<int> m_timeout;
    int m_answer;
    QPointer<QWindow> m_elsewhere;    // where a pointer is down beside the box
    std::vector<Kept> m_kept;         // what it has done there since
    std::unique_ptr<QKeyEvent> m_key; // nor this one
    QWidget* m_scrollBar = nullptr;   // where the text does not fit the screen
    int m_cancel = -1;                // the index of the button named "Cancel"
};
