#pragma once

#include "controlinterface.h"

#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QPointer>
#include <QVariantMap>

class AgentCore;
class KA_Folder;

// The program's control interface on the session bus: shows folders, goes
// back to the root page, presses keys as the keypad would, sets the
// brightness and the layout, and tells what the keypad shows. Every call
// runs on the GUI thread, as the editor's own edits do; a key press goes to
// the key action thread like a press on the keypad, faces included.
//
// Key indices are the editor's (0 is the top-left key as the keypad is
// held). Signals and property changes follow the keypad and the model,
// whoever changed them.
class ControlAdaptor : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", KEYSTAGE_CONTROL_INTERFACE)
    Q_PROPERTY(bool Connected READ connected)
    Q_PROPERTY(QString Model READ model)
    Q_PROPERTY(int Layout READ layout)
    Q_PROPERTY(QString LayoutName READ layoutName)
    Q_PROPERTY(int KeyCount READ keyCount)
    Q_PROPERTY(QString CurrentPage READ currentPage)
    Q_PROPERTY(int CurrentFolderKey READ currentFolderKey)

public:
    // parent is the object registered at ControlInterface::path() on bus.
    ControlAdaptor(AgentCore* core, const QDBusConnection& bus, QObject* parent);

    bool connected() const;
    // The model of the open keypad; empty while none is open.
    QString model() const;
    int layout() const;
    QString layoutName() const;
    int keyCount() const;
    // The open folder's title; empty on the root page.
    QString currentPage() const;
    // The key of the open folder on the root page; -1 on the root page.
    int currentFolderKey() const;

public slots:
    // The call, when it came over the bus, receives the refusal; called
    // directly (message of no type), a refusal is only logged.
    void ShowFolder(const QString& title, const QDBusMessage& call);
    void ShowFolderAt(int keyIndex, const QDBusMessage& call);
    void ShowRootPage();
    void PressKey(int keyIndex, const QDBusMessage& call);
    void SetBrightness(int level, const QDBusMessage& call);
    void SetLayout(int layout, const QDBusMessage& call);

signals:
    void KeyPressed(int keyIndex);
    void KeyReleased(int keyIndex);
    void PageChanged(const QString& title, int folderKey);

private:
    void watchCore();
    void onDeviceKey(int devKeyId, bool pressed);
    void onPageMayHaveChanged();
    void onKeypadChanged();
    void openFolder(KA_Folder* folder);
    KA_Folder* rootFolderAt(int keyIndex) const;
    KA_Folder* rootFolderTitled(const QString& title) const;
    void refuse(const QDBusMessage& call, const QString& error, const QString& message);
    void notifyPropertiesChanged(const QVariantMap& changed);

    QPointer<AgentCore> m_core;
    QDBusConnection m_bus;
    // What PageChanged last told: the layout and the folder key.
    int m_shownLayout = -1;
    int m_shownFolderKey = -1;
    bool m_shownConnected = false;
};
