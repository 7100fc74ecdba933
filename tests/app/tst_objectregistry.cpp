#include "log.h"
#include "logcapture.h"
#include "objectregistry.h"
#include "testmain.h"

#include <QTimer>

class ObjectRegistryTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { ObjectRegistry::clear(); }

    void shouldReturnRegisteredObjectsByNumber()
    {
        QObject model;
        QTimer timer;
        ObjectRegistry::registerObject(ComponentId::KeyItemModel, &model);
        ObjectRegistry::registerObject(ComponentId::TaskProxy, &timer);
        QCOMPARE(COMPONENT_OBJECT(ComponentId::KeyItemModel), &model);
        QCOMPARE(COMPONENT(QTimer, ComponentId::TaskProxy), &timer);
        QCOMPARE(ObjectRegistry::find(ComponentId::HidComm), nullptr);
    }

    void shouldNameTheCallerWhenALookupFails()
    {
        LogCapture capture;
        const int line = __LINE__ + 1;
        QObject* missing = COMPONENT_OBJECT(ComponentId::HidComm);
        QCOMPARE(missing, nullptr);
        const QStringList reports = capture.matching(QStringLiteral("component 5 not found"));
        QCOMPARE(reports.size(), 1);
        QVERIFY(reports.first().contains(QStringLiteral("tst_objectregistry.cpp:%1").arg(line)));
        QVERIFY(reports.first().contains(QStringLiteral("shouldNameTheCallerWhenALookupFails")));
    }

    void shouldRefuseAnObjectOfTheWrongType()
    {
        QObject notATimer;
        ObjectRegistry::registerObject(ComponentId::Settings, &notATimer);
        LogCapture capture;
        QCOMPARE(COMPONENT(QTimer, ComponentId::Settings), nullptr);
        QCOMPARE(capture.matching(QStringLiteral("component 10 is not a QTimer")).size(), 1);
    }

    void shouldForgetDestroyedObjects()
    {
        auto* model = new QObject;
        ObjectRegistry::registerObject(ComponentId::KeyItemModel, model);
        delete model;
        QCOMPARE(ObjectRegistry::find(ComponentId::KeyItemModel), nullptr);
    }

    void shouldRouteLogRecordsOnlyWhileAMainWindowIsRegistered()
    {
        QObject window;
        Log log;
        QCOMPARE(ObjectRegistry::mainWindowLog(), nullptr);
        ObjectRegistry::registerMainWindow(&window, &log);
        QCOMPARE(ObjectRegistry::mainWindowLog(), &log);
        QCOMPARE(ObjectRegistry::find(ComponentId::MainWindow), &window);
        ObjectRegistry::unregisterMainWindow();
        QCOMPARE(ObjectRegistry::mainWindowLog(), nullptr);
        QCOMPARE(ObjectRegistry::find(ComponentId::MainWindow), nullptr);
    }
};

KEYSTAGE_TEST_MAIN(ObjectRegistryTest)
#include "tst_objectregistry.moc"
