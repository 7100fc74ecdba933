#include "recordingactionservices.h"

RecordingActionServices::RecordingActionServices()
{
    ActionServices::setInstance(this);
}

RecordingActionServices::~RecordingActionServices()
{
    ActionServices::setInstance(nullptr);
}

void RecordingActionServices::note(const QString& call)
{
    QMutexLocker locker(&mutex);
    recorded.append(call);
}

void RecordingActionServices::sendKeyEvent(int nativeKey, bool win, bool alt, bool ctrl, bool shift)
{
    QString line = QStringLiteral("key %1").arg(nativeKey);
    if (win)
        line += QStringLiteral(" win");
    if (alt)
        line += QStringLiteral(" alt");
    if (ctrl)
        line += QStringLiteral(" ctrl");
    if (shift)
        line += QStringLiteral(" shift");
    note(line);
}

void RecordingActionServices::sendMacroKeyEvent(QList<MarcoKeyItem> steps)
{
    QStringList parts;
    for (const MarcoKeyItem& step : steps)
        parts << QStringLiteral("%1%2").arg(step.isPress ? '+' : '-').arg(step.nativeKeyCode);
    note(QStringLiteral("macro ") + parts.join(QLatin1Char(' ')));
}

bool RecordingActionServices::setClipboardText(const QString& text)
{
    note(QStringLiteral("clipboard ") + text);
    return clipboardWorks;
}

bool RecordingActionServices::runTask(const QString& name, std::function<void()> work)
{
    note(QStringLiteral("task ") + name);
    work();
    return true;
}

bool RecordingActionServices::startDetached(const QString& program, const QStringList& arguments,
                                            const QString& workingDirectory)
{
    note(QStringLiteral("start %1 [%2] in %3").arg(program, arguments.join(QStringLiteral(", ")), workingDirectory));
    return startSucceeds;
}

bool RecordingActionServices::openUrl(const QUrl& url)
{
    note(QStringLiteral("open ") + url.toString());
    return true;
}

QString RecordingActionServices::foregroundApplicationName()
{
    return foregroundName;
}

QStringList RecordingActionServices::calls() const
{
    QMutexLocker locker(&mutex);
    return recorded;
}

void RecordingActionServices::clear()
{
    QMutexLocker locker(&mutex);
    recorded.clear();
}
