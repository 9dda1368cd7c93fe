#pragma once

#include "support/Images.h"
#include "support/PadOnScreen.h"
#include "support/PictureFiles.h"
#include "support/TestCase.h"

/// What the tests of recovery on a real screen share.
namespace fixtures {

inline constexpr int patience = support::PadOnScreen::patience;
inline constexpr QSize newDrawing(200, 170);
inline constexpr QSize framedSize(160, 120);
inline constexpr QPoint from(40, 30);
inline constexpr QPoint to(90, 30);
inline constexpr QPoint on(70, 30);
inline constexpr QPoint below(0, 60);
inline constexpr auto saveDialog = "Save picture as";
inline constexpr auto saved = "Saved Successfully";

inline QImage inRgb(const QString& fileName)
{
    return QImage(fileName).convertToFormat(QImage::Format_RGB32);
}

inline QImage withStroke(const QImage& picture)
{
    return support::filled(picture.convertToFormat(QImage::Format_RGB32), QRect(from, to), Qt::red);
}

inline QStringList filesIn(const QString& folder, const QString& pattern)
{
    return QDir(folder).entryList({pattern}, QDir::Files);
}

/// The base of these tests: for each function a pad on a screen of its own, and a home that is empty.
class RecoveryTest : public support::TestCase
{
    Q_OBJECT

protected slots:
    void init()
    {
        TestCase::init();
        m_home = std::make_unique<QTemporaryDir>();
        m_pad = std::make_unique<support::PadOnScreen>(m_home->path());
        QVERIFY(m_pad->server().isReady());
    }
    void cleanup()
    {
        m_pad.reset();
        m_home.reset();
    }

protected:
    [[nodiscard]] QString recovery() const { return m_pad->recoveryFolder(); }
    [[nodiscard]] QStringList living() const { return filesIn(recovery(), "living-*.png"); }
    [[nodiscard]] QStringList earlier() const { return filesIn(recovery(), "earlier-*.png"); }
    [[nodiscard]] bool waitForLiving() const
    {
        return QTest::qWaitFor([this] { return living().size() == 1; }, patience);
    }
    /// Whether a drawing is offered that is called so; a picture of the question is left.
    [[nodiscard]] bool isOffered(const QString& name = {})
    {
        const auto isAsked = [&] {
            const QString box = m_pad->box();
            return box.startsWith("A drawing of today at ") && box.endsWith(" was not saved.") &&
                   box.contains(" on ") != name.isEmpty() && box.contains(name);
        };
        const bool isAskedInTime = QTest::qWaitFor(isAsked, patience);
        return isAskedInTime && m_pad->waitForBox(m_pad->box(), QString("host_%1-%2-offer")
                                                                    .arg(metaObject()->className(),
                                                                         QTest::currentTestFunction()));
    }
    /// Nothing is asked of who starts.
    [[nodiscard]] bool isNothingOffered() const
    {
        QTest::qWait(1000);
        return m_pad->box().isEmpty();
    }

    std::unique_ptr<QTemporaryDir> m_home;
    std::unique_ptr<support::PadOnScreen> m_pad;
};

} // namespace fixtures
