#pragma once

#include "UTIL_Platform.h"
#include "UTIL_PushButton.h"
#include "support/Images.h"
#include "support/Modal.h"
#include "support/TestCase.h"

/// What the tests of the preview dialogs need.
namespace fixtures {

/// The desktop's services with quicker timed boxes.
class QuickPlatform : public UTIL_Platform
{
public:
    explicit QuickPlatform(int second) : m_second(second) {}
    int timeoutSecond() const override { return m_second; }

private:
    int m_second;
};

/// A device that shows no box but writes down what it is asked to show, for as long as it lives.
class Device
{
public:
    Device()
    {
        auto services = std::make_unique<Services>(*this);
        UTIL_Platform::install(std::move(services));
    }
    ~Device() { UTIL_Platform::install(nullptr); }
    Device(const Device&) = delete;
    Device& operator=(const Device&) = delete;

    /// The boxes in order, with icon, text and button or time-out.
    [[nodiscard]] QStringList told() const { return m_told; }
    /// What they belonged to.
    [[nodiscard]] QList<QWidget*> parents() const { return m_parents; }
    void limit(qint64 pixels) { m_limit = pixels; }
    /// Done while a question is open.
    void whenAsked(const std::function<void()>& work) { m_whenAsked = work; }

private:
    class Services : public UTIL_Platform
    {
    public:
        explicit Services(Device& device) : m_device(device) {}

        int question(QWidget* parent, const QString& icon, const QString& text,
                     const QStringList& buttons) override
        {
            m_device.note(parent, QString("question %1 '%2' %3").arg(icon, text, buttons.join(',')));
            if (m_device.m_whenAsked)
                m_device.m_whenAsked();
            return 0;
        }
        void timedMessage(QWidget* parent, const QString& icon, const QString& text, int timeout) override
        {
            m_device.note(parent, QString("timed %1 '%2' %3").arg(icon, text).arg(timeout));
        }
        qint64 pixelLimit() const override { return m_device.m_limit; }

    private:
        Device& m_device;
    };

    void note(QWidget* parent, const QString& line)
    {
        m_told << line;
        m_parents << parent;
    }

    QStringList m_told;
    QList<QWidget*> m_parents;
    qint64 m_limit = 1'000'000;
    std::function<void()> m_whenAsked;
};

/// The label that shows the picture.
inline QLabel* display(const QDialog& dialog)
{
    for (QLabel* label : dialog.findChildren<QLabel*>())
        if (label->text().isEmpty() && label->height() > 100)
            return label;
    return nullptr;
}

inline UTIL_PushButton* key(const QDialog& dialog, const QString& text)
{
    return qobject_cast<UTIL_PushButton*>(support::button(dialog, text));
}

/// What a user can do to be done with a dialog.
enum class Way {
    ConfirmByPointer,
    ConfirmByKeyboard,
    CancelByPointer,
    CancelByKeyboard,
    Return,
    Escape,
    Close
};

inline void pressByKeyboard(QDialog& dialog, const QString& text)
{
    for (int i = 0; i < 8 && dialog.focusWidget() != key(dialog, text); ++i)
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Space);
}

inline void end(QDialog& dialog, Way way)
{
    QWidget* const focused =
        dialog.focusWidget() ? dialog.focusWidget() : &dialog; // it may not be active yet
    switch (way) {
    case Way::ConfirmByPointer:
        return QTest::mouseClick(key(dialog, "Confirm"), Qt::LeftButton);
    case Way::ConfirmByKeyboard:
        return pressByKeyboard(dialog, "Confirm");
    case Way::CancelByPointer:
        return QTest::mouseClick(key(dialog, "Cancel"), Qt::LeftButton);
    case Way::CancelByKeyboard:
        return pressByKeyboard(dialog, "Cancel");
    case Way::Return:
        return QTest::keyClick(focused, Qt::Key_Return);
    case Way::Escape:
        return QTest::keyClick(focused, Qt::Key_Escape);
    case Way::Close:
        dialog.close();
    }
}

/// Every way with the result that exec() has then; Return presses the first key, whichever that is.
inline void addEnds(int resultOfReturn = QDialog::Accepted)
{
    QTest::addColumn<Way>("way");
    QTest::addColumn<int>("result");
    QTest::newRow("confirmed by pointer") << Way::ConfirmByPointer << 1;
    QTest::newRow("confirmed by keyboard") << Way::ConfirmByKeyboard << 1;
    QTest::newRow("cancelled by pointer") << Way::CancelByPointer << 0;
    QTest::newRow("cancelled by keyboard") << Way::CancelByKeyboard << 0;
    QTest::newRow("Return") << Way::Return << resultOfReturn;
    QTest::newRow("Escape") << Way::Escape << 0;
    QTest::newRow("closed") << Way::Close << 0;
}

} // namespace fixtures
