#pragma once

#include "Recording.h"

#include <QBasicTimer>
#include <QColor>
#include <QList>
#include <QObject>

class KORVA_EditCanvas;
class QAbstractButton;

namespace pad {

/// The drawing colours of an editor that were last in force. The right button, a long press or the menu key
/// on the editor's colour button exchange the present one and the one before, which is also the colour of
/// the outlines of filled shapes.
class Colors : public QObject
{
    Q_OBJECT

public:
    Colors(KORVA_EditCanvas& editor, QObject* parent);

    /// At most eight, the present one first; none twice.
    [[nodiscard]] const QList<QColor>& recent() const { return m_recent; }
    /// Takes up the colours of the last run, and keeps them in the settings for the next one.
    void remember();
    /// Brings back the colour before the present one, if there was one.
    void swap();

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    /// The person changed the colour without picking it.
    void performed(const pad::Command& command);

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    void note(const QColor& color);
    void offerOutline();
    void letGo() const;

    KORVA_EditCanvas& m_editor;
    QAbstractButton* m_button;
    QList<QColor> m_recent;
    QBasicTimer m_holding;    ///< of a press that may become a long one
    bool m_isSwapped = false; ///< by a press that still lasts
    bool m_isRemembered = false;
};

} // namespace pad
