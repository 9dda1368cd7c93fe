#include "UTIL_SaveDialog.h"

#include "UTIL_PictureFolder.h"
#include "UTIL_PictureView.h"
#include "UTIL_Platform.h"
#include "UTIL_PushButton.h"
#include "UTIL_Skin.h"

#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QLineEdit>
#include <QRegularExpressionValidator>

UTIL_SaveDialog::UTIL_SaveDialog(QWidget* parent, const QString& path, const QStringList& patterns)
    : UTIL_FolderDialog(parent, tr("Save picture as", "SAVE_DIALOG;TITLE"),
                        tr("Save", "SAVE_DIALOG;SOFTKEY_2BUTTON"), patterns),
      m_edit(new QLineEdit(this))
{
    for (const QString& pattern : patterns)
        m_extensions.append(pattern.sliced(pattern.lastIndexOf(QLatin1Char('.'))));
    m_edit->setMinimumHeight(UTIL_Skin::Size::keyHeight);
    m_edit->setAccessibleName(tr("File name", "SAVE_DIALOG;CONTEXT"));
    addBelowFolder(m_edit);
    connect(m_edit, &QLineEdit::textChanged, this, [this] { confirmKey().setEnabled(!name().isEmpty()); });
    UTIL_SaveDialog::enter(path);
    m_edit->setText(freeName());
    m_edit->setFocus();
}

void UTIL_SaveDialog::setVisible(bool visible)
{
    if (visible && !isVisible()) {
        // A slash would lead to another folder. Not every host can save under a name with a single quote.
        const QRegularExpression fitting(takesAnyName() ? "[^/\\n]*" : "[^/'\\n]*");
        m_edit->setValidator(new QRegularExpressionValidator(fitting, m_edit));
        if (!fileName().isEmpty())
            m_edit->setText(QFileInfo(fileName()).fileName());
        m_edit->setSelection(0, int(QFileInfo(m_edit->text()).completeBaseName().size()));
    }
    UTIL_FolderDialog::setVisible(visible);
}

/// A proposed name is replaced by one that is free in the new folder; a typed name stays.
void UTIL_SaveDialog::enter(const QString& path)
{
    UTIL_FolderDialog::enter(path);
    if (!m_edit->isModified())
        m_edit->setText(freeName());
}

void UTIL_SaveDialog::choose(const QString& path)
{
    if (!path.isEmpty())
        m_edit->setText(QFileInfo(path).fileName());
}

void UTIL_SaveDialog::confirm()
{
    if (name().isEmpty())
        return;
    const QString path = QDir(folder().folder()).filePath(name());
    if (QFileInfo::exists(path) && !mayReplace())
        return;
    QDir().mkpath(folder().folder()); // the user's picture folder may not exist yet
    setFileName(path);
    accept();
}

bool UTIL_SaveDialog::mayReplace()
{
    constexpr int replace = 1; // the first button is the default, and loses nothing
    const QPointer<UTIL_SaveDialog> self = this;
    const int answer = UTIL_Platform::instance()->question(
        this, "Dialog_Exclamatory_Mark.gif",
        tr("Replace %1?", "SAVE_DIALOG;DIALOG_ICON_50_WARP").arg(name()),
        {tr("Cancel", "SAVE_DIALOG;SOFTKEY_2BUTTON"), tr("Replace", "SAVE_DIALOG;SOFTKEY_2BUTTON")});
    return self && answer == replace;
}

QString UTIL_SaveDialog::freeName() const
{
    const QDir dir(folder().folder());
    QString name = tr("Drawing", "SAVE_DIALOG;CONTEXT") + m_extensions.value(0);
    for (int number = 2; dir.exists(name); ++number)
        name = tr("Drawing %1", "SAVE_DIALOG;CONTEXT").arg(number) + m_extensions.value(0);
    return name;
}

QString UTIL_SaveDialog::name() const
{
    QString typed = m_edit->text().trimmed();
    const QFileInfo file(typed);
    const QString extension = QLatin1Char('.') + file.suffix();
    if (file.completeBaseName().isEmpty() || (typed.contains(QLatin1Char('\'')) && !takesAnyName()))
        return {};
    if (m_extensions.contains(extension, Qt::CaseInsensitive))
        return typed;
    // The extension of another format is removed; otherwise a second one would follow it.
    const bool isOther = QImageReader::supportedImageFormats().contains(file.suffix().toLower().toLatin1());
    return (isOther ? file.completeBaseName() : typed) + m_extensions.value(0);
}
