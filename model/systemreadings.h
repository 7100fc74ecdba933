#pragma once

#include <QVector>

// The latest figures of the system usage sampler and the samples before
// them, as live key faces draw them. A figure not known yet (the sampler
// has not run, or its source could not be read) is negative.
//
// One set is current for the whole process: the sampler publishes it from
// its thread, and every drawer of a key face (editor, keypad, key press)
// reads it, so all of them show the same value. Safe from any thread.
struct SystemReadings
{
    static constexpr int HistoryLength = 60;

    double processorPercent = -1;
    double memoryPercent = -1;
    double receiveBytesPerSecond = -1;
    double sendBytesPerSecond = -1;

    // Oldest first, at most HistoryLength each; the network's holds
    // receive plus send.
    QVector<float> processorHistory;
    QVector<float> memoryHistory;
    QVector<float> networkHistory;

    // Counts samples published since the start of the process.
    quint64 serial = 0;

    // Appends this sample's known figures to the histories of previous.
    void appendHistoryOf(const SystemReadings& previous);

    static SystemReadings current();
    static void publish(const SystemReadings& readings);
    // Back to nothing known (the sampler stopped, or a test starts).
    static void clear();
};
