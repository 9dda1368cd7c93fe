#include "Recovery.h"

#include "Documents.h"
#include "DrawingFile.h"
#include "EarlierDialog.h"
#include "Folders.h"
#include "Platform.h"
#include "TerminationSignal.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QGuiApplication>
#include <QTimer>

namespace pad {

Recovery::Recovery(KORVA_EditCanvas& editor, Documents& documents, Platform& platform, QWidget* window)
    : QObject(window),
      m_journal(&editor, recoveryFolder()),
      m_documents(documents),
      m_platform(platform),
      m_window(window)
{
    documents.setJournal(&m_journal);
    connect(&m_journal, &KORVA_Journal::failed, this, &Recovery::tellFailure, Qt::QueuedConnection);
    connect(&documents, &Documents::notKept, this, &Recovery::tellFailure, Qt::QueuedConnection);
    connect(new TerminationSignal(this), &TerminationSignal::received, this, [this] {
        m_isEnding = true;
        m_journal.flush();
        QCoreApplication::exit();
    });
    connect(qGuiApp, &QGuiApplication::commitDataRequest, this, [this] { m_journal.flush(); });
}

void Recovery::offer()
{
    const qsizetype before = m_journal.earlier().size();
    const auto left = m_journal.adopt();
    if (!left)
        return;
    const bool areMore = m_journal.earlier().size() > before;
    const QString time = EarlierDialog::timeText(left->time);
    const QString name = QFileInfo(left->pictureName).fileName();
    QString text =
        name.isEmpty()
            ? tr("A drawing of %1 was not saved.", "recovery; %1: 'today at 9:30'").arg(time)
            : tr("A drawing of %1 on %2 was not saved.", "recovery; %1: 'today at 9:30', %2: a file")
                  .arg(time, name);
    if (areMore)
        text += QLatin1Char(' ') + tr("Older ones are among the earlier drawings.", "recovery");
    const int answer = m_platform.question(m_window, QStringLiteral("Dialog_Exclamatory_Mark.gif"), text,
                                           {tr("Bring it back", "recovery"), tr("Not now", "recovery")});
    if (m_isEnding)
        return; // nobody has answered; the next start offers it again
    if (answer == 0)
        bringBack(*left);
    else
        m_journal.shelve();
}

void Recovery::showEarlier()
{
    EarlierDialog dialog(m_window, m_journal.earlier());
    if (dialog.exec() != QDialog::Accepted ||
        !m_documents.mayReplace(
            tr("Save changes to drawing before bringing another one back?", "recovery")))
        return;
    const KORVA_Journal::Entry chosen = dialog.chosen();
    if (m_documents.keep(chosen))
        bringBack(chosen);
}

void Recovery::bringBack(const KORVA_Journal::Entry& entry)
{
    if (m_journal.bringBack(entry))
        m_documents.takeBroughtBack(entry.pictureName);
}

void Recovery::tellFailure(const QString& reason)
{
    constexpr int later = 500;
    if (QGuiApplication::mouseButtons() != Qt::NoButton) { // not in the middle of a stroke
        QTimer::singleShot(later, this, [this, reason] { tellFailure(reason); });
        return;
    }
    const WriteError error = WriteError::of(reason, m_journal.folder() + QLatin1String("/drawing.png"));
    m_platform.timedInformation(
        m_window, QStringLiteral("Dialog_Exclamatory_Mark.gif"),
        tr("No copy of the drawing can be kept: %1", "recovery").arg(error.sentence()),
        tr("OK", "recovery"), 10);
}

} // namespace pad
