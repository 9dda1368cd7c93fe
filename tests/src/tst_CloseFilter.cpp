#include "Fixtures.h"
#include "KORVA_ENGINE_CloseFilter.h"

// That the filters go too is the leak checker's to say.
class tst_CloseFilter : public support::TestCase
{
    Q_OBJECT

private slots:
    void widgetGoesWithThePostedEvent();
    void otherEventsStillReachTheWidget();
    void firstCloseEventDeletes();
    void closeIsConsumed();
    void widgetDeletesItselfFromItsOwnHandler();
    void widgetThatGoesOtherwiseTakesTheFilterAlong();
    void askedTwice();
    void nullIsIgnored();
    void hasNoMetaObjectOfItsOwn();
};

void tst_CloseFilter::widgetGoesWithThePostedEvent()
{
    QPointer<QWidget> widget = new QWidget;
    KORVA_ENGINE_CloseFilter::deleteWidgetLater(widget);
    QVERIFY(widget);
    QTRY_VERIFY(!widget);
}

void tst_CloseFilter::otherEventsStillReachTheWidget()
{
    auto* widget = new QLineEdit;
    KORVA_ENGINE_CloseFilter::deleteWidgetLater(widget);
    QTest::keyClicks(widget, "abc");
    QCOMPARE(widget->text(), "abc");
    const QPointer<QWidget> guard = widget;
    QTRY_VERIFY(!guard);
}

void tst_CloseFilter::firstCloseEventDeletes()
{
    const QPointer<QWidget> widget = new QWidget;
    KORVA_ENGINE_CloseFilter::deleteWidgetLater(widget);
    QCloseEvent another;
    QCoreApplication::sendEvent(widget, &another);
    QVERIFY(!widget);
    QCoreApplication::processEvents(); // the posted one finds nobody
}

void tst_CloseFilter::closeIsConsumed()
{
    struct Widget : QWidget
    {
        explicit Widget(int& closed) : m_closed(closed) {}
        void closeEvent(QCloseEvent*) override { ++m_closed; }
        int& m_closed;
    };
    int closed = 0;
    const QPointer<QWidget> widget = new Widget(closed);
    KORVA_ENGINE_CloseFilter::deleteWidgetLater(widget);
    QTRY_VERIFY(!widget);
    QCOMPARE(closed, 0);
}

void tst_CloseFilter::widgetDeletesItselfFromItsOwnHandler()
{
    QWidget window;
    const QPointer<QPushButton> button = new QPushButton(&window);
    connect(button, &QPushButton::clicked, &window,
            [&] { KORVA_ENGINE_CloseFilter::deleteWidgetLater(button); });
    button->resize(40, 20);
    support::Gestures(*button).click({5, 5});
    QVERIFY(button);
    QTRY_VERIFY(!button);
}

void tst_CloseFilter::widgetThatGoesOtherwiseTakesTheFilterAlong()
{
    auto* widget = new QWidget;
    KORVA_ENGINE_CloseFilter::deleteWidgetLater(widget);
    delete widget;
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void tst_CloseFilter::askedTwice()
{
    const QPointer<QWidget> widget = new QWidget;
    KORVA_ENGINE_CloseFilter::deleteWidgetLater(widget);
    KORVA_ENGINE_CloseFilter::deleteWidgetLater(widget);
    QTRY_VERIFY(!widget);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void tst_CloseFilter::nullIsIgnored()
{
    KORVA_ENGINE_CloseFilter::deleteWidgetLater(nullptr);
    QCoreApplication::processEvents();
}

void tst_CloseFilter::hasNoMetaObjectOfItsOwn()
{
    const KORVA_ENGINE_CloseFilter filter;
    QCOMPARE(filter.metaObject(), &QObject::staticMetaObject);
}

int main(int argc, char** argv)
{
    return support::run<tst_CloseFilter>(argc, argv);
}

#include "tst_CloseFilter.moc"
