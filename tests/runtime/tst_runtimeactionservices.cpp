// Runs on its own Xvfb server without a window manager: the clipboard and the
// desktop's URL handler of the xcb platform are the real ones.
#include "ka_execute.h"
#include "ka_paststring.h"
#include "keyitem.h"
#include "objectregistry.h"
#include "runtimeactionservices.h"
#include "taskproxy.h"
#include "testmain.h"
#include "virtualkey.h"
#include "windowsystem.h"
#include "xkeyobserver.h"
#include "xtestkeystrokebackend.h"

#include <QClipboard>
#include <QTemporaryDir>
#include <QThread>

#include <X11/keysym.h>

class TestRuntimeActionServices : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // Every URL the desktop opens lands in a file, through an xdg-open
        // stub put first on PATH.
        QVERIFY(bin.isValid());
        opened = bin.filePath(QStringLiteral("opened.txt"));
        QFile stub(bin.filePath(QStringLiteral("xdg-open")));
        QVERIFY(stub.open(QIODevice::WriteOnly));
        stub.write(QStringLiteral("#!/bin/sh\necho \"$1\" >> '%1'\n").arg(opened).toUtf8());
        stub.close();
        stub.setPermissions(stub.permissions() | QFile::ExeOwner);
        qputenv("PATH", bin.path().toUtf8() + ':' + qgetenv("PATH"));
        services = std::make_unique<RuntimeActionServices>(WindowSystem::create());
        ActionServices::setInstance(services.get());
        ObjectRegistry::registerObject(ComponentId::TaskProxy, &tasks);
    }

    void cleanupTestCase()
    {
        ObjectRegistry::clear();
        ActionServices::setInstance(nullptr);
    }

    void shouldPasteTextTypedFromAnotherThread()
    {
        XKeyObserver observer;
        if (!observer.error().isEmpty())
            QFAIL(qPrintable(observer.error()));
        XTestKeystrokeBackend backend;
        VirtualKey::setBackend(&backend);
        KeyItem item(KAT_PASTE_STRING, 0, 2);
        static_cast<KA_PastString*>(item.action[0])->strText = QStringLiteral("Grüße aus Keystage");

        // The key action thread waits while the GUI thread takes the text.
        bool performed = false;
        std::unique_ptr<QThread> keyThread(QThread::create([&] { performed = item.action[0]->doAction(0); }));
        keyThread->start();
        QTRY_VERIFY(keyThread->isFinished());
        QVERIFY(performed);
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("Grüße aus Keystage"));

        const QVector<XKeyObserver::Event> events = observer.waitForEvents(4);
        QCOMPARE(events.size(), 4);
        const unsigned control = observer.keycodeOf(XK_Control_L);
        const unsigned v = observer.keycodeOf(XK_v);
        QVERIFY(events[0].press && events[0].keycode == control);
        QVERIFY(events[1].press && events[1].keycode == v);
        QVERIFY(events[1].state & XKeyObserver::controlMask());
        QVERIFY(!events[2].press && events[2].keycode == v);
        QVERIFY(!events[3].press && events[3].keycode == control);
        VirtualKey::setBackend(nullptr);
    }

    void shouldOpenWebsitesWithTheDesktopHandler()
    {
        QFile::remove(opened);
        executeCmd(QStringLiteral("example.org/start"));
        executeCmd(QStringLiteral("https://example.org/a?b=c"));
        QTRY_COMPARE(openedUrls(), (QStringList{"http://example.org/start", "https://example.org/a?b=c"}));
    }

    void shouldStartAProgramInItsOwnDirectory()
    {
        QTemporaryDir toolDir;
        const QString output = toolDir.filePath(QStringLiteral("ran.txt"));
        const QString tool = toolDir.filePath(QStringLiteral("my tool"));
        QFile script(tool);
        QVERIFY(script.open(QIODevice::WriteOnly));
        script.write(
            QStringLiteral("#!/bin/sh\n{ pwd; for a in \"$@\"; do echo \"$a\"; done; } > '%1'\n").arg(output).toUtf8());
        script.close();
        script.setPermissions(script.permissions() | QFile::ExeOwner);

        KeyItem item(KAT_EXE_APP_FILE, 0, 2);
        static_cast<KA_Execute*>(item.action[0])->path = QStringLiteral("\"%1\" --name \"two words\"").arg(tool);
        QVERIFY(item.action[0]->doAction(0)); // handed to the task thread
        QTRY_VERIFY(QFile::exists(output) && QFileInfo(output).size() > 0);
        QFile result(output);
        QVERIFY(result.open(QIODevice::ReadOnly));
        const QStringList lines = QString::fromUtf8(result.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        QCOMPARE(lines, (QStringList{QFileInfo(toolDir.path()).canonicalFilePath(), "--name", "two words"}));
    }

private:
    QStringList openedUrls() const
    {
        QFile file(opened);
        if (!file.open(QIODevice::ReadOnly))
            return {};
        return QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    }

    QTemporaryDir bin;
    QString opened;
    TaskProxy tasks;
    std::unique_ptr<RuntimeActionServices> services;
};

KEYSTAGE_TEST_MAIN(TestRuntimeActionServices)
#include "tst_runtimeactionservices.moc"
