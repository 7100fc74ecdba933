#include "systemusagereader.h"

#include "logging.h"

#include <QFile>
#include <QList>

namespace {

// /proc files are small and read in one go; a bound keeps a broken one from
// costing more.
constexpr qint64 MaxProcFileSize = 1 << 20;

quint64 fieldAt(const QList<QByteArray>& fields, int index)
{
    return index < fields.size() ? fields.at(index).toULongLong() : 0;
}

// Counters that went backwards mean a wrap or a reset: no traffic.
quint64 forward(quint64 before, quint64 after)
{
    return after >= before ? after - before : 0;
}

quint64 meminfoKb(const QByteArray& meminfo, const QByteArray& key)
{
    for (const QByteArray& line : meminfo.split('\n')) {
        if (!line.startsWith(key) || line.size() <= key.size() || line.at(key.size()) != ':')
            continue;
        const QList<QByteArray> fields = line.mid(key.size() + 1).simplified().split(' ');
        bool ok = false;
        const quint64 value = fields.value(0).toULongLong(&ok);
        return ok ? value : 0;
    }
    return 0;
}

} // namespace

SystemUsageReader::SystemUsageReader(const QString& root) : m_root(root)
{
    if (!m_root.endsWith(QLatin1Char('/')))
        m_root += QLatin1Char('/');
}

QByteArray SystemUsageReader::readFile(const char* relativePath)
{
    ++m_fileReads;
    QFile file(m_root + QLatin1String(relativePath));
    if (!file.open(QIODevice::ReadOnly)) {
        // Once: a sandbox without /proc would otherwise fill the log.
        if (!m_failureLogged)
            LOG_MSG(QStringLiteral("cannot read %1: live faces fall back to their static look!!").arg(file.fileName()));
        m_failureLogged = true;
        return QByteArray();
    }
    return file.read(MaxProcFileSize);
}

SystemReadings SystemUsageReader::sample(qint64 elapsedMs)
{
    SystemReadings readings;

    const CpuTimes cpu = parseCpuTimes(readFile("proc/stat"));
    // The first reading: the share since boot is still a fair first figure.
    readings.processorPercent = processorPercent(m_cpu.valid ? m_cpu : CpuTimes{0, 0, true}, cpu);
    m_cpu = cpu;

    readings.memoryPercent = memoryPercent(readFile("proc/meminfo"));

    const QByteArray netDev = readFile("proc/net/dev");
    const bool netValid = netDev.contains("|bytes");
    const QHash<QString, NetCounters> net = parseNetDev(netDev);
    if (m_netValid && netValid && elapsedMs > 0) {
        const NetCounters delta = networkDelta(m_net, net);
        readings.receiveBytesPerSecond = double(delta.received) * 1000.0 / double(elapsedMs);
        readings.sendBytesPerSecond = double(delta.sent) * 1000.0 / double(elapsedMs);
    }
    m_net = net;
    m_netValid = netValid;
    return readings;
}

SystemUsageReader::CpuTimes SystemUsageReader::parseCpuTimes(const QByteArray& procStat)
{
    const int end = procStat.indexOf('\n');
    const QByteArray line = procStat.left(end < 0 ? procStat.size() : end);
    const QList<QByteArray> fields = line.simplified().split(' ');
    // cpu user nice system idle iowait irq softirq steal [guest guest_nice]
    if (fields.size() < 5 || fields.first() != "cpu")
        return CpuTimes();
    CpuTimes times;
    // Guest time is already part of user and nice: not counted twice.
    for (int index = 1; index <= 8; ++index)
        times.total += fieldAt(fields, index);
    const quint64 idle = fieldAt(fields, 4) + fieldAt(fields, 5);
    times.busy = times.total - qMin(idle, times.total);
    times.valid = true;
    return times;
}

double SystemUsageReader::processorPercent(const CpuTimes& before, const CpuTimes& after)
{
    if (!before.valid || !after.valid || after.total <= before.total)
        return -1;
    const quint64 total = after.total - before.total;
    const quint64 busy = forward(before.busy, after.busy);
    return qBound(0.0, 100.0 * double(busy) / double(total), 100.0);
}

double SystemUsageReader::memoryPercent(const QByteArray& procMeminfo)
{
    const quint64 total = meminfoKb(procMeminfo, "MemTotal");
    const quint64 available = meminfoKb(procMeminfo, "MemAvailable");
    if (total == 0 || !procMeminfo.contains("MemAvailable:"))
        return -1;
    return 100.0 * double(total - qMin(available, total)) / double(total);
}

QHash<QString, SystemUsageReader::NetCounters> SystemUsageReader::parseNetDev(const QByteArray& procNetDev)
{
    QHash<QString, NetCounters> counters;
    // Two header lines, then "  name: rx_bytes packets ... (8 fields) tx_bytes ...".
    for (const QByteArray& line : procNetDev.split('\n')) {
        const int colon = line.indexOf(':');
        if (colon < 0)
            continue;
        const QString name = QString::fromLatin1(line.left(colon).trimmed());
        if (name.isEmpty() || name == QLatin1String("lo"))
            continue;
        const QList<QByteArray> fields = line.mid(colon + 1).simplified().split(' ');
        if (fields.size() < 9)
            continue;
        counters.insert(name, {fieldAt(fields, 0), fieldAt(fields, 8)});
    }
    return counters;
}

SystemUsageReader::NetCounters SystemUsageReader::networkDelta(const QHash<QString, NetCounters>& before,
                                                               const QHash<QString, NetCounters>& after)
{
    NetCounters delta;
    for (auto it = after.cbegin(); it != after.cend(); ++it) {
        const auto previous = before.constFind(it.key());
        // A new interface has no previous count: its total is not traffic.
        if (previous == before.cend())
            continue;
        delta.received += forward(previous->received, it->received);
        delta.sent += forward(previous->sent, it->sent);
    }
    return delta;
}
