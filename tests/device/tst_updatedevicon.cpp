#include "buttonlayoutconfig.h"
#include "hid_comm.h"
#include "keyfacerenderer.h"
#include "keyitem.h"
#include "keyitemmodel.h"
#include "logcapture.h"
#include "objectregistry.h"
#include "settings.h"
#include "simulatedkeypad.h"
#include "testmain.h"
#include "updatedevicon.h"

#include <memory>

namespace {
QImage asShown(const QImage& image)
{
    return image.convertToFormat(QImage::Format_RGB888);
}
} // namespace

// The keypad's screens against the current page, as the simulated keypad
// shows them.
class TestUpdateDevIcon : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        keypad = std::make_unique<SimulatedKeypad>();
        HidTransport::setInstance(keypad.get());
        QFile::remove(Settings().fileName());
        settings = std::make_unique<Settings>();
        layouts = std::make_unique<ButtonLayoutConfig>();
        ObjectRegistry::registerObject(ComponentId::Settings, settings.get());
        ObjectRegistry::registerObject(ComponentId::ButtonLayoutConfig, layouts.get());
        model = std::make_unique<KeyItemModel>();
        hid = std::make_unique<Hid_Comm>();
        ObjectRegistry::registerObject(ComponentId::KeyItemModel, model.get());
        ObjectRegistry::registerObject(ComponentId::HidComm, hid.get());
        QTRY_VERIFY(hid->isOpened());
    }

    void cleanup()
    {
        ObjectRegistry::clear();
        hid.reset();
        model.reset();
        layouts.reset();
        settings.reset();
        HidTransport::setInstance(nullptr);
        keypad.reset();
    }

    void shouldShowTheCurrentPageOnEveryKey_data()
    {
        QTest::addColumn<int>("layout");
        for (int layout = 0; layout < 6; ++layout)
            QTest::newRow(qPrintable(ButtonLayoutConfig::layoutName(layout))) << layout;
    }

    void shouldShowTheCurrentPageOnEveryKey()
    {
        QFETCH(int, layout);
        useLayout(layout);
        const int keys = ButtonLayoutConfig::keyCount(layout);
        model->resetCurrentKeyItemsToDefault();
        for (int key = 0; key < keys; key += 2) {
            if (!model->keyItemAt(key))
                QVERIFY(model->createKeyAction(key, KeyActionType(KAT_HOTKEY + key % 5)));
            model->keyItemAt(key)->setTitle(0, QStringLiteral("K%1").arg(key));
        }
        QVERIFY(UpdateDevIcon::updateAllIcon());

        for (int position = 0; position < keys; ++position) {
            const int deviceKey = Hid_Comm::deviceKeyNumber(layout, position);
            const KeyItem* item = model->keyItemAt(position);
            QImage expected = item ? KeyFaceRenderer::render(item) : QImage(72, 72, QImage::Format_RGB888);
            if (!item)
                expected.fill(Qt::black);
            QCOMPARE(asShown(keypad->keyImage(deviceKey)), asShown(Hid_Comm::orientForLayout(expected, layout)));
        }
        QCOMPARE(keypad->keysWithImages().size(), keys);
        QCOMPARE(keypad->errorCount(), 0);
    }

    void shouldSendOneEditedKey()
    {
        useLayout(H_Key_15);
        QVERIFY(model->createKeyAction(3, KAT_PASTE_STRING));
        LogCapture capture;
        keypad->clearReports();
        QVERIFY(UpdateDevIcon::updateKeyIcon(model->keyItemAt(3)));
        QVERIFY(!capture.matching(QStringLiteral("start")).isEmpty());
        QCOMPARE(keypad->reportCount(SimulatedKeypad::ReportKind::ShowImage), 1);
        const int deviceKey = Hid_Comm::deviceKeyNumber(H_Key_15, 3);
        QCOMPARE(asShown(keypad->keyImage(deviceKey)),
                 asShown(Hid_Comm::orientForLayout(KeyFaceRenderer::render(model->keyItemAt(3)), H_Key_15)));
    }

    void shouldSendNothingWithoutAValidLayout()
    {
        LogCapture capture;
        keypad->clearReports();
        QVERIFY(!UpdateDevIcon::updateAllIcon()); // no layout chosen yet
        QVERIFY(!capture.matching(QStringLiteral("layoutType out of range!!!")).isEmpty());
        QCOMPARE(keypad->reportCount(SimulatedKeypad::ReportKind::ShowImage), 0);
    }

    void shouldSendNothingWithoutTheKeypadConnection()
    {
        useLayout(H_Key_6);
        ObjectRegistry::unregisterObject(ComponentId::HidComm);
        keypad->clearReports();
        QVERIFY(!UpdateDevIcon::updateAllIcon());
        QVERIFY(!UpdateDevIcon::updateKeyIcon(nullptr));
        QCOMPARE(keypad->reportCount(SimulatedKeypad::ReportKind::ShowImage), 0);
    }

private:
    void useLayout(int layout)
    {
        layouts->changeLayout(layout);
        model->changeLayoutButtonView(KeyLayout(layout));
        hid->onButtonLayoutChanged(KeyLayout(layout));
    }

    std::unique_ptr<SimulatedKeypad> keypad;
    std::unique_ptr<Settings> settings;
    std::unique_ptr<ButtonLayoutConfig> layouts;
    std::unique_ptr<KeyItemModel> model;
    std::unique_ptr<Hid_Comm> hid;
};

KEYSTAGE_TEST_MAIN(TestUpdateDevIcon)
#include "tst_updatedevicon.moc"
