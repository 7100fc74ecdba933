#pragma once

#include "actionservices.h"

#include <QMutex>
#include <QStringList>

// Desktop services that record what the actions asked of them, as readable
// lines ("key 86 ctrl", "clipboard hello", "start /bin/x [a, b] in /bin",
// "open http://example.com"). Tasks run at once on the calling thread.
class RecordingActionServices : public ActionServices
{
public:
    RecordingActionServices();
    ~RecordingActionServices() override;

    void sendKeyEvent(int nativeKey, bool win, bool alt, bool ctrl, bool shift) override;
    void sendMacroKeyEvent(QList<MarcoKeyItem> steps) override;
    bool setClipboardText(const QString& text) override;
    bool runTask(const QString& name, std::function<void()> work) override;
    bool startDetached(const QString& program, const QStringList& arguments, const QString& workingDirectory) override;
    bool openUrl(const QUrl& url) override;
    QString foregroundApplicationName() override;

    QStringList calls() const;
    void clear();

    QString foregroundName;
    bool startSucceeds = true;
    bool clipboardWorks = true;

private:
    void note(const QString& call);

    mutable QMutex mutex;
    QStringList recorded;
};
