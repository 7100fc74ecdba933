#include "buttonlayoutconfig.h"
#include "hid_comm.h"
#include "keyfacerenderer.h"
#include "keyitem.h"
#include "keyitemmodel.h"
#include "keypadfixture.h"
#include "logcapture.h"
#include "objectregistry.h"
#include "settings.h"
#include "simulatedkeypad.h"
#include "testmain.h"
#include "updatedevicon.h"

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
        fx.setUp();
        QTRY_VERIFY(fx.hid->isOpened());
    }

    void cleanup() { fx.tearDown(); }

    void shouldShowTheCurrentPageOnEveryKey_data()
    {
        QTest::addColumn<int>("layout");
        // Small and large packets, both orientations, and every key count.
        for (int layout : {H_Key_6, V_Key_15, H_Key_32})
            QTest::newRow(qPrintable(ButtonLayoutConfig::layoutName(layout))) << layout;
    }

    void shouldShowTheCurrentPageOnEveryKey()
    {
        QFETCH(int, layout);
        fx.useLayout(layout);
        const int keys = ButtonLayoutConfig::keyCount(layout);
        fx.model->resetCurrentKeyItemsToDefault();
        for (int key = 0; key < keys; key += 2) {
            if (!fx.model->keyItemAt(key))
                QVERIFY(fx.model->createKeyAction(key, KeyActionType(KAT_HOTKEY + key % 5)));
            fx.model->keyItemAt(key)->setTitle(0, QStringLiteral("K%1").arg(key));
        }
        QVERIFY(UpdateDevIcon::updateAllIcon());

        for (int position = 0; position < keys; ++position) {
            const int deviceKey = Hid_Comm::deviceKeyNumber(layout, position);
            const KeyItem* item = fx.model->keyItemAt(position);
            QImage expected = item ? KeyFaceRenderer::render(item) : QImage(72, 72, QImage::Format_RGB888);
            if (!item)
                expected.fill(Qt::black);
            QCOMPARE(asShown(fx.keypad->keyImage(deviceKey)), asShown(Hid_Comm::orientForLayout(expected, layout)));
        }
        QCOMPARE(fx.keypad->keysWithImages().size(), keys);
        QCOMPARE(fx.keypad->errorCount(), 0);
    }

    void shouldSendOneEditedKey()
    {
        fx.useLayout(H_Key_15);
        QVERIFY(fx.model->createKeyAction(3, KAT_PASTE_STRING));
        LogCapture capture;
        fx.keypad->clearReports();
        QVERIFY(UpdateDevIcon::updateKeyIcon(fx.model->keyItemAt(3)));
        QVERIFY(!capture.matching(QStringLiteral("start")).isEmpty());
        QCOMPARE(fx.keypad->reportCount(SimulatedKeypad::ReportKind::ShowImage), 1);
        const int deviceKey = Hid_Comm::deviceKeyNumber(H_Key_15, 3);
        QCOMPARE(asShown(fx.keypad->keyImage(deviceKey)),
                 asShown(Hid_Comm::orientForLayout(KeyFaceRenderer::render(fx.model->keyItemAt(3)), H_Key_15)));
    }

    void shouldSendNothingWithoutAValidLayout()
    {
        LogCapture capture;
        fx.keypad->clearReports();
        QVERIFY(!UpdateDevIcon::updateAllIcon()); // no layout chosen yet
        QVERIFY(!capture.matching(QStringLiteral("layoutType out of range!!!")).isEmpty());
        QCOMPARE(fx.keypad->reportCount(SimulatedKeypad::ReportKind::ShowImage), 0);
    }

    void shouldSendNothingWithoutTheKeypadConnection()
    {
        fx.useLayout(H_Key_6);
        ObjectRegistry::unregisterObject(ComponentId::HidComm);
        fx.keypad->clearReports();
        QVERIFY(!UpdateDevIcon::updateAllIcon());
        QVERIFY(!UpdateDevIcon::updateKeyIcon(nullptr));
        QCOMPARE(fx.keypad->reportCount(SimulatedKeypad::ReportKind::ShowImage), 0);
    }

private:
    KeypadFixture fx;
};

KEYSTAGE_TEST_MAIN(TestUpdateDevIcon)
#include "tst_updatedevicon.moc"
