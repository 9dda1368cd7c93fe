#pragma once

#include <KORVA_Journal.h>

#include <QObject>

class KORVA_EditCanvas;

namespace pad {

class Documents;
class Platform;

/// Uses the journal for the program: offers a drawing that a crash left, shows the earlier drawings, and
/// keeps the drawing when the program is told to end.
class Recovery : public QObject
{
    Q_OBJECT

public:
    /// Begins to keep the drawing. All arguments outlive this object; the window is the parent.
    Recovery(KORVA_EditCanvas& editor, Documents& documents, Platform& platform, QWidget* window);

    /// Asks whether to bring back a drawing that was left behind. Does nothing if there is none.
    void offer();
    /// Lets the person look at the earlier drawings and bring one back.
    void showEarlier();

private:
    void bringBack(const KORVA_Journal::Entry& entry);
    void tellFailure(const QString& reason);

    KORVA_Journal m_journal;
    Documents& m_documents;
    Platform& m_platform;
    QWidget* m_window;
    bool m_isEnding = false; ///< the program was told to end
};

} // namespace pad
