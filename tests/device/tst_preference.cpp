#include "buttonlayoutconfig.h"
#include "hid_comm.h"
#include "logcapture.h"
#include "objectregistry.h"
#include "preference.h"
#include "recordingtransport.h"
#include "testmain.h"
#include "userquestion.h"

#include <QDir>
#include <QStandardPaths>
#include <QtEndian>

namespace {
quint32 u32At(const QByteArray& bytes, int at)
{
    return qFromLittleEndian<quint32>(reinterpret_cast<const uchar*>(bytes.constData() + at));
}

QByteArray featureAnswer(quint8 id, const QByteArray& text, int length)
{
    QByteArray answer = char(id) + text;
    answer.append(QByteArray(length - answer.size(), '\0'));
    return answer;
}
} // namespace

// The firmware update as the preference dialog runs it, against the keypad's
// reports.
class TestPreference : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        transport = new RecordingTransport;
        transport->featureAnswers[0x10] = featureAnswer(0x10, "VKP V1.0.170001", 33);
        transport->featureAnswers[0x17] = featureAnswer(0x17, "SERIAL0000000042", 17);
        layouts = new ButtonLayoutConfig;
        layouts->changeLayout(H_Key_15);
        hid = new Hid_Comm;
        hid->onButtonLayoutChanged(H_Key_15);
        ObjectRegistry::registerObject(ComponentId::ButtonLayoutConfig, layouts);
        ObjectRegistry::registerObject(ComponentId::HidComm, hid);
        QTRY_VERIFY(hid->isOpened());
        folder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + QStringLiteral("/firmware");
        QDir(folder).removeRecursively();
        QDir().mkpath(folder);
        image = QByteArray(10000, '\x21');
        QFile file(folder + QStringLiteral("/F43B35P1F41_170124.bin"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(image);
    }

    void cleanup()
    {
        ObjectRegistry::clear();
        UserQuestions::setHandler(nullptr);
        delete hid;
        delete layouts;
        delete transport;
    }

    void shouldDescribeTheConnectedKeypad()
    {
        QString model, id, serial, current, packaged;
        QVERIFY(Preference::getDeviceInfo(model, id, serial, current, packaged));
        QCOMPARE(model, QStringLiteral("VKP-15P"));
        QCOMPARE(id, QStringLiteral("F43B35P1F41"));
        QCOMPARE(serial, QStringLiteral("SERIAL0000000042"));
        QCOMPARE(current, QStringLiteral("0.170001"));
        QCOMPARE(packaged, QStringLiteral("1.0.170124"));
    }

    void shouldOfferTheUpdateAndSendTheImageWithItsHeader()
    {
        UserQuestion asked;
        UserQuestions::setHandler([&](const UserQuestion& question) {
            asked = question;
            return UserAnswer{question.buttons[UserQuestion::RightSlot], false};
        });
        transport->clearCalls();
        QVERIFY(Preference::onFwUpdateClicked());
        QCOMPARE(asked.title, QStringLiteral("Do you want to update firmware?"));
        QCOMPARE(asked.text, QStringLiteral("Firmware version 1.0.170124 is now available - current version 0.170001 "
                                            "Would you like to update now?"));
        QCOMPARE(asked.buttons[UserQuestion::MidSlot], UserQuestion::No);
        QCOMPARE(asked.buttons[UserQuestion::RightSlot], UserQuestion::Yes);

        const auto writes = transport->calls(RecordingTransport::Write);
        QVERIFY(!writes.isEmpty());
        QCOMPARE(writes[0].bytes.mid(17, 27), QByteArray("kelvaris industrial product"));
        QCOMPARE(writes[0].bytes.mid(17 + 64, 8), image.left(8));
        const QByteArray commit = transport->calls(RecordingTransport::Feature).last().bytes;
        QCOMPARE(quint8(commit[0]), quint8(0x13));
        QCOMPARE(u32At(commit, 1), quint32(64 + image.size()));
        QCOMPARE(u32At(commit, 5), quint32(0x21 * image.size()));
    }

    void shouldSendNothingWhenTheUserDeclines()
    {
        UserQuestions::setHandler([](const UserQuestion& question) {
            return UserAnswer{question.buttons[UserQuestion::MidSlot], false};
        });
        transport->clearCalls();
        QVERIFY(!Preference::onFwUpdateClicked());
        QVERIFY(transport->calls(RecordingTransport::Write).isEmpty());
    }

    void shouldNotOfferAnUpdateToAKeypadThatDoesNotAnswer()
    {
        LogCapture capture;
        transport->featureAnswers.remove(0x17);
        bool asked = false;
        UserQuestions::setHandler([&](const UserQuestion&) {
            asked = true;
            return UserAnswer{UserQuestion::Yes, false};
        });
        QVERIFY(!Preference::onFwUpdateClicked());
        QVERIFY(!asked);
        QVERIFY(!capture.matching(QStringLiteral("ERROR: getDeviceInfo()")).isEmpty());
    }

    void shouldLogAFirmwareFileThatCannotBeOpened()
    {
        LogCapture capture;
        QVERIFY(!Preference::updateFW(folder + QStringLiteral("/missing.bin")));
        QVERIFY(!capture.matching(QStringLiteral("Open firmware file failure.")).isEmpty());
    }

private:
    RecordingTransport* transport = nullptr;
    ButtonLayoutConfig* layouts = nullptr;
    Hid_Comm* hid = nullptr;
    QString folder;
    QByteArray image;
};

KEYSTAGE_TEST_MAIN(TestPreference)
#include "tst_preference.moc"
