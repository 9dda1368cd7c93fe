#pragma once

#include <QBasicTimer>
#include <QObject>
#include <QString>

class KORVA_EditCanvas;

/// Tells a screen reader that the canvas is described by other words: a tenth of a second after the change,
/// however many there are. Without a screen reader it does nothing.
class KORVA_CanvasNews : public QObject
{
    Q_OBJECT

public:
    /// Follows the editor's canvas. The editor owns it.
    explicit KORVA_CanvasNews(KORVA_EditCanvas& editor);

    /// Something that the description tells may have changed.
    void note();

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    KORVA_EditCanvas& m_editor;
    QBasicTimer m_timer;
    QString m_told;
};
