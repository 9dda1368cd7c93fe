#include "Modal.h"

#include <QtTest>

namespace support {

namespace {

constexpr int patience = 5000;

/// Waits for a dialog other than the one that was open when it was made.
class Watcher : public QTimer
{
public:
    explicit Watcher(std::function<void(QDialog&)> work)
        : m_work(std::move(work)), m_open(QApplication::activeModalWidget())
    {
        m_age.start();
        callOnTimeout(this, &Watcher::look);
        start(1);
    }

private:
    void look()
    {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!dialog || dialog == m_open || !dialog->isVisible()) {
            if (m_age.elapsed() > patience)
                QTest::qFail("no modal dialog opened", __FILE__, __LINE__);
            else
                return;
        }
        stop();
        const auto work = std::move(m_work); // which may outlive this one by running an event loop
        deleteLater();
        if (!dialog)
            return;
        QTimer::singleShot(patience, dialog, [dialog] {
            QTest::qFail("the dialog stayed open", __FILE__, __LINE__);
            dialog->done(-1);
        });
        work(*dialog);
    }

    std::function<void(QDialog&)> m_work;
    QPointer<QWidget> m_open;
    QElapsedTimer m_age;
};

} // namespace

void whenOpen(const std::function<void(QDialog&)>& work)
{
    new Watcher(work);
}

QAbstractButton* button(const QDialog& dialog, const QString& text)
{
    for (QAbstractButton* candidate : dialog.findChildren<QAbstractButton*>())
        if (candidate->text() == text)
            return candidate;
    return nullptr;
}

void press(QDialog& dialog, const QString& key, bool byKeyboard)
{
    if (byKeyboard)
        QTest::keyClick(dialog.focusWidget(), key == "OK" ? Qt::Key_Return : Qt::Key_Escape);
    else
        QTest::mouseClick(button(dialog, key), Qt::LeftButton);
}

void addWays()
{
    QTest::addColumn<bool>("byKeyboard");
    QTest::newRow("by pointer") << false;
    QTest::newRow("by keyboard") << true;
}

QStringList labels(const QDialog& dialog)
{
    QMap<int, QString> byTop;
    for (const QLabel* label : dialog.findChildren<QLabel*>())
        if (label->isVisible() && !label->text().isEmpty())
            byTop[label->mapTo(&dialog, QPoint()).y()] = label->text();
    return byTop.values();
}

} // namespace support
