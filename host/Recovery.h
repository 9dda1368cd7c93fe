#pragma once

#include <KORVA_Journal.h>

#include <QObject>

class KORVA_EditCanvas;

namespace pad {

class Documents;
class Platform;

/// What the program does with its journal: it offers what a crash left, shows the earlier drawings, and
/// keeps the drawing when the program is told to end.
class Recovery : public QObject
{
    Q_OBJECT

public:
    /// Begins to keep the drawing. All of them outlive the recovery; the window is the parent.
    Recovery(KORVA_EditCanvas& editor, Documents& documents, Platform& platform, QWidget* window);

    /// Asks whether a drawing that was left behind is to be brought back; nothing when there is none.
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
    bool m_isEnding = false; ///< the program was told to
};

} // namespace pad
