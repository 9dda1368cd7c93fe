#pragma once

#include <UTIL_Dialog.h>

#include <QFutureWatcher>
#include <QImage>

#include <functional>
#include <vector>

class QButtonGroup;
class QHBoxLayout;
class QLabel;
class UTIL_PushButton;

namespace pad {

class CopyView;

/// The base of the dialogs that show a copy of the drawing before it is taken, exactly as it will be: some
/// choices, the copy and what it is, and two keys. A copy is made in another thread. If another choice is
/// made meanwhile, or the dialog is closed, nobody sees it.
class CopyDialog : public UTIL_Dialog
{
    Q_OBJECT

public:
    /// A copy of the drawing.
    struct Copy
    {
        QImage picture;   ///< as it will be seen; null if there is no such copy
        QByteArray bytes; ///< of its file, if they are known already
    };

    /// Runs the dialog, also again after it was accepted. Whether the person wants copy().
    [[nodiscard]] bool ask() { return exec() == Accepted; }
    /// The copy that is shown.
    [[nodiscard]] const Copy& copy() const { return m_copy; }
    /// Which of the choices is in force; -1 for none.
    [[nodiscard]] int choice() const;
    /// Makes a choice as if its key had been pressed.
    void choose(int choice);

protected:
    /// Whether there is still somebody to see the copy; for any thread.
    using IsWanted = std::function<bool()>;
    using Maker = std::function<Copy(const IsWanted& isWanted)>;

    /// `verb` is what the key does with the copy; empty means to save it.
    CopyDialog(QWidget* parent, const QString& title, const QString& verb = {});
    ~CopyDialog() override;
    /// Adds a choice with its key. `make` gives its copy, in another thread. It may give any as soon as
    /// none is wanted.
    void addChoice(const QString& text, const Maker& make);
    /// One line about a copy that is not null.
    [[nodiscard]] virtual QString description(const Copy& copy) const = 0;

    void fit() override;

private:
    void make(int choice);
    void present(const Copy& copy);
    void showZoom();

    std::vector<Maker> m_makers;
    QFutureWatcher<Copy> m_watcher;
    Copy m_copy;
    QButtonGroup* m_choices;
    QHBoxLayout* m_choiceRow;
    CopyView* m_view;
    QLabel* m_description;
    UTIL_PushButton* m_zoomKey;
    UTIL_PushButton* m_saveKey;
};

} // namespace pad
