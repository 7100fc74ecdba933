#pragma once

#include "keylayout.h"
#include "keypadtable.h"

#include <QObject>
#include <QSize>
#include <QString>

#include <atomic>

// Which of the six layouts is in force, and the sizes that follow from it.
class ButtonLayoutConfig : public QObject
{
    Q_OBJECT
public:
    static constexpr int DefaultLayout = V_Key_15;
    static constexpr int MaxKeyCount = KeypadTable::MaxKeys;

    explicit ButtonLayoutConfig(QObject* parent = nullptr);

    int currentLayout() const;
    int keyCount() const;
    QSize iconSize() const;

    static int keyCount(int layout);
    static QSize iconSize(int layout);
    static QSize panelSize(int layout);
    static QString layoutName(int layout);
    static bool isValidLayout(int layout);

    // The layout in force from the registered configuration; the fallback
    // when there is none (tools and tests without a main window).
    static int currentLayoutOf(int fallback);

    bool changeLayout(int layout);

signals:
    void buttonLayoutChanged(KeyLayout layout);

public slots:
    void reloadLayout();

private:
    // Written on the GUI thread, read by the key action thread on every key.
    std::atomic<int> m_layout{-1};
};
