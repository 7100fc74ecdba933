#pragma once

#include "systemreadings.h"

#include <QByteArray>
#include <QHash>
#include <QString>

// Reads processor, memory and network use from the kernel's /proc files
// under a root directory ("/" on a running system; tests give a directory
// of fixture files). Rates and the processor share come from the difference
// to the previous sample; counters that went backwards (wrapped, or an
// interface that came back) count as no traffic, never as negative.
//
// Not thread-safe: one sampler thread owns it.
class SystemUsageReader
{
public:
    struct CpuTimes
    {
        quint64 busy = 0;
        quint64 total = 0;
        bool valid = false;
    };
    struct NetCounters
    {
        quint64 received = 0;
        quint64 sent = 0;
    };

    explicit SystemUsageReader(const QString& root = QStringLiteral("/"));

    // One sample: elapsedMs since the previous one (ignored for the first).
    // The figures the previous sample is needed for are negative the first
    // time; so is any figure whose file could not be read or understood.
    SystemReadings sample(qint64 elapsedMs);
    // Files read so far; the sampler reads none while idle.
    int fileReads() const { return m_fileReads; }

    // The "cpu" line of /proc/stat: all cores together.
    static CpuTimes parseCpuTimes(const QByteArray& procStat);
    // Busy share between two readings in percent; negative when nothing
    // passed or the counters went backwards.
    static double processorPercent(const CpuTimes& before, const CpuTimes& after);
    // Memory in use, 100 * (MemTotal - MemAvailable) / MemTotal; negative
    // when either is missing.
    static double memoryPercent(const QByteArray& procMeminfo);
    // Byte counters of every interface but loopback, by name.
    static QHash<QString, NetCounters> parseNetDev(const QByteArray& procNetDev);
    // Bytes per second received and sent between two readings over all
    // interfaces present in both.
    static NetCounters networkDelta(const QHash<QString, NetCounters>& before,
                                    const QHash<QString, NetCounters>& after);

private:
    QByteArray readFile(const char* relativePath);

    QString m_root;
    int m_fileReads = 0;
    bool m_failureLogged = false;
    CpuTimes m_cpu;
    QHash<QString, NetCounters> m_net;
    bool m_netValid = false;
};
