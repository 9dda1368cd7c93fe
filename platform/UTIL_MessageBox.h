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

/// A box with a picture, a text below it, and buttons. It is a question that waits for one of its buttons,
/// or a timed message that closes by itself.
///
/// Escape and closing press the button named "Cancel", in English or in the user's language; they do
/// nothing in a box without one. A tap anywhere on a timed box, Return or Space also closes it.
///
/// A timed box without a button does not get in the user's way. A tap or stroke beside it closes it on
/// release, and is then made on what lies there. Any other key closes it and goes to the window behind.
/// Both happen when exec() has returned.
class UTIL_MessageBox : public UTIL_Dialog
{
    Q_OBJECT
    Q_PROPERTY(QString iconName READ iconName CONSTANT)
    Q_PROPERTY(int timeout READ timeout CONSTANT)

public:
    /// `icon` is a file name for RES_ICON_Reader. `timeout` is in seconds, each as long as
    /// UTIL_Platform::timeoutSecond() says; without it the box is a question and stays.
    UTIL_MessageBox(QWidget* parent, const QString& icon, const QString& text, const QStringList& buttons,
                    std::optional<int> timeout = {});

    /// Runs a question and returns the index of the button pressed. If the program ends before an answer,
    /// or the parent is deleted, that is "Cancel"; the last button in a box without one.
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
    std::vector<Kept> m_kept;         // the pointer's events there since
    std::unique_ptr<QKeyEvent> m_key; // the key that goes to the window behind
    QWidget* m_scrollBar = nullptr;   // only if the text does not fit the screen
    int m_cancel = -1;                // the index of the button named "Cancel"
};
