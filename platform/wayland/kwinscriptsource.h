#pragma once

#include "foregroundsource.h"
#include "keystageappid.h"

#include <QDBusConnection>
#include <QTemporaryFile>

class QDBusServiceWatcher;

// KDE Plasma 5 and 6: a small KWin script, loaded through KWin's scripting
// interface on the session bus, reports each activated window's process to
// this object (its own connection's unique name, so no well-known name is
// needed). Unloaded when stopped; loaded again when KWin restarts.
class KWinScriptSource : public ForegroundSource
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", KEYSTAGE_APP_ID ".KWinReport")

public:
    static constexpr char PluginName[] = "keystage-foreground";
    static constexpr char ReportPath[] = "/io/vantorix/Keystage/KWinReport";
    static constexpr int UnloadWaitMs = 1000;

    explicit KWinScriptSource(const QDBusConnection& bus, QObject* parent = nullptr);
    ~KWinScriptSource() override;

    QString name() const override;
    QString notice() const override;
    void start() override;
    void stop() override;

    // The script, calling back the given unique bus name.
    static QByteArray script(const QString& reportTo);

public slots:
    // From the script; the process id comes as text, which every KWin passes
    // the same way.
    Q_SCRIPTABLE void WindowActivated(const QString& pid);

private:
    void load();
    // Unloads the script and stops listening.
    void finish(QDBus::CallMode mode);

    QDBusConnection m_bus;
    QDBusServiceWatcher* m_watcher = nullptr;
    QTemporaryFile m_scriptFile;
};
