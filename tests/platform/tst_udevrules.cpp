// The packaged udev rules: well-formed, and covering every keypad the program
// drives, so a model added to the program cannot be left out of the rules.
#include "keypadtable.h"
#include "testmain.h"

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>

class UdevRulesTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QFile file(QStringLiteral(KEYSTAGE_UDEV_RULES));
        QVERIFY2(file.open(QIODevice::ReadOnly | QIODevice::Text), qPrintable(file.fileName()));
        for (const QString& line : QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'))) {
            if (!line.trimmed().isEmpty() && !line.trimmed().startsWith(QLatin1Char('#')))
                m_rules << line.trimmed().split(QRegularExpression(QStringLiteral(",\\s*")));
        }
        QVERIFY(!m_rules.isEmpty());
    }

    // KEY=="value", KEY{attribute}=="value", with udev's operators; each rule
    // both matches and assigns.
    void shouldHaveOnlyWellFormedRules()
    {
        static const QRegularExpression term(
            QStringLiteral("^(ACTION|KERNEL|SUBSYSTEM|DRIVER|ATTR|ATTRS|ENV|TAG|OPTIONS|MODE|GROUP)"
                           "(\\{[A-Za-z0-9_]+\\})?(==|!=|\\+=|-=|:=|=)\"([^\"]*)\"$"));
        for (const QStringList& rule : qAsConst(m_rules)) {
            bool matches = false;
            bool assigns = false;
            for (const QString& text : rule) {
                const QRegularExpressionMatch match = term.match(text);
                QVERIFY2(match.hasMatch(), qPrintable(text));
                (match.captured(3) == QLatin1String("==") || match.captured(3) == QLatin1String("!=") ? matches
                                                                                                      : assigns) = true;
            }
            QVERIFY2(matches && assigns, qPrintable(rule.join(QStringLiteral(", "))));
        }
    }

    void shouldGrantEveryKeypadNodeAndUinputToTheSeatUser()
    {
        QVector<quint32> ids = KeypadTable::productIds();
        ids.append(KeypadTable::BootLoaderProductId);
        const QString vendor = hex4(KeypadTable::VendorId);
        for (const quint32 pid : qAsConst(ids)) {
            QVERIFY(
                hasSeatRule({QStringLiteral("SUBSYSTEM==\"usb\""), QStringLiteral("ATTR{idVendor}==\"%1\"").arg(vendor),
                             QStringLiteral("ATTR{idProduct}==\"%1\"").arg(hex4(pid))}));
            QVERIFY(hasSeatRule({QStringLiteral("SUBSYSTEM==\"hidraw\""),
                                 QStringLiteral("ATTRS{idVendor}==\"%1\"").arg(vendor),
                                 QStringLiteral("ATTRS{idProduct}==\"%1\"").arg(hex4(pid))}));
        }
        // Tagged from boot on, before the module is loaded by its first open.
        QVERIFY(hasSeatRule({QStringLiteral("KERNEL==\"uinput\""), QStringLiteral("SUBSYSTEM==\"misc\""),
                             QStringLiteral("OPTIONS+=\"static_node=uinput\"")}));
    }

    void shouldPassUdevadmVerify()
    {
        const QString udevadm = QStandardPaths::findExecutable(QStringLiteral("udevadm"));
        QProcess probe;
        if (!udevadm.isEmpty())
            probe.start(udevadm, {QStringLiteral("verify"), QStringLiteral("--help")});
        if (udevadm.isEmpty() || !probe.waitForFinished(30000) || probe.exitCode() != 0)
            QSKIP("no udevadm with a verify command");
        QProcess verify;
        verify.setProcessChannelMode(QProcess::MergedChannels);
        verify.start(udevadm, {QStringLiteral("verify"), QStringLiteral("--resolve-names=never"),
                               QStringLiteral(KEYSTAGE_UDEV_RULES)});
        QVERIFY(verify.waitForFinished(30000));
        QVERIFY2(verify.exitStatus() == QProcess::NormalExit && verify.exitCode() == 0, verify.readAll().constData());
    }

private:
    static QString hex4(quint32 id) { return QStringLiteral("%1").arg(id, 4, 16, QLatin1Char('0')); }

    // A rule with all these terms (ids in either case) that hands the node
    // to the user at the seat.
    bool hasSeatRule(QStringList terms) const
    {
        terms << QStringLiteral("TAG+=\"uaccess\"");
        for (const QStringList& rule : m_rules) {
            if (std::all_of(terms.cbegin(), terms.cend(),
                            [&rule](const QString& term) { return rule.contains(term, Qt::CaseInsensitive); }))
                return true;
        }
        qWarning() << "no rule with" << terms;
        return false;
    }

    QVector<QStringList> m_rules;
};

KEYSTAGE_TEST_MAIN(UdevRulesTest)
#include "tst_udevrules.moc"
