// The packaged udev rules: well-formed, and covering every keypad the program
// drives, so a model added to the program cannot be left out of the rules.
#include "keypadids.h"
#include "testmain.h"

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>

namespace {

// One rule: its keys ("ATTR{idProduct}") with operator and value.
struct Term
{
    QString op;
    QString value;
};
using Rule = QMap<QString, Term>;

QString hex4(quint32 id)
{
    return QStringLiteral("%1").arg(id, 4, 16, QLatin1Char('0'));
}

} // namespace

class UdevRulesTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QFile file(QStringLiteral(KEYSTAGE_UDEV_RULES));
        QVERIFY2(file.open(QIODevice::ReadOnly | QIODevice::Text), qPrintable(file.fileName()));
        m_lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    }

    void shouldHaveOnlyWellFormedRules()
    {
        // KEY=="value", KEY{attribute}=="value", with udev's operators,
        // separated by a comma and blanks.
        static const QRegularExpression term(
            QStringLiteral("^(ACTION|KERNEL|SUBSYSTEM|DRIVER|ATTR|ATTRS|ENV|TAG|OPTIONS|MODE|GROUP)"
                           "(\\{[A-Za-z0-9_]+\\})?(==|!=|\\+=|-=|:=|=)\"([^\"]*)\"$"));
        int rules = 0;
        for (int i = 0; i < m_lines.size(); ++i) {
            const QString line = m_lines[i].trimmed();
            if (line.isEmpty() || line.startsWith(QLatin1Char('#')))
                continue;
            ++rules;
            const QStringList terms = line.split(QRegularExpression(QStringLiteral(",\\s*")));
            bool matches = false;
            bool assigns = false;
            for (const QString& text : terms) {
                const QRegularExpressionMatch match = term.match(text);
                QVERIFY2(match.hasMatch(), qPrintable(QStringLiteral("line %1: \"%2\"").arg(i + 1).arg(text)));
                const bool comparison = match.captured(3) == QLatin1String("==") || match.captured(3) == "!=";
                (comparison ? matches : assigns) = true;
            }
            QVERIFY2(matches && assigns, qPrintable(QStringLiteral("line %1 matches or assigns nothing").arg(i + 1)));
        }
        QVERIFY(rules > 0);
    }

    void shouldGrantEveryKeypadNode_data()
    {
        QTest::addColumn<QString>("subsystem");
        QTest::addColumn<QString>("attributeKey");
        QTest::addColumn<quint32>("pid");

        QVector<quint32> ids = KeypadIds::supportedProductIds();
        ids.append(KeypadIds::BootLoaderProductId);
        for (const quint32 pid : qAsConst(ids)) {
            QTest::addRow("usb %04x", pid) << QStringLiteral("usb") << QStringLiteral("ATTR") << pid;
            QTest::addRow("hidraw %04x", pid) << QStringLiteral("hidraw") << QStringLiteral("ATTRS") << pid;
        }
    }
    void shouldGrantEveryKeypadNode()
    {
        QFETCH(QString, subsystem);
        QFETCH(QString, attributeKey);
        QFETCH(quint32, pid);

        const QString vendorKey = attributeKey + QStringLiteral("{idVendor}");
        const QString productKey = attributeKey + QStringLiteral("{idProduct}");
        const bool found = hasRule([&](const Rule& rule) {
            return isMatch(rule, QStringLiteral("SUBSYSTEM"), subsystem) &&
                   isMatch(rule, vendorKey, hex4(KeypadIds::VendorId)) && isMatch(rule, productKey, hex4(pid)) &&
                   grantsSeatUser(rule);
        });
        QVERIFY2(found, qPrintable(QStringLiteral("no uaccess rule for %1 %2").arg(subsystem, hex4(pid))));
    }

    void shouldGrantUinput()
    {
        QVERIFY(hasRule([](const Rule& rule) {
            return isMatch(rule, QStringLiteral("KERNEL"), QStringLiteral("uinput")) &&
                   isMatch(rule, QStringLiteral("SUBSYSTEM"), QStringLiteral("misc")) && grantsSeatUser(rule) &&
                   rule.value(QStringLiteral("OPTIONS")).value == QLatin1String("static_node=uinput");
        }));
    }

    void shouldPassUdevadmVerify()
    {
        const QString udevadm = QStandardPaths::findExecutable(QStringLiteral("udevadm"));
        if (udevadm.isEmpty())
            QSKIP("udevadm is not installed");
        QProcess probe;
        probe.start(udevadm, {QStringLiteral("verify"), QStringLiteral("--help")});
        if (!probe.waitForFinished(30000) || probe.exitCode() != 0)
            QSKIP("this udevadm has no verify command");
        QProcess verify;
        verify.setProcessChannelMode(QProcess::MergedChannels);
        verify.start(udevadm, {QStringLiteral("verify"), QStringLiteral("--resolve-names=never"),
                               QStringLiteral(KEYSTAGE_UDEV_RULES)});
        QVERIFY(verify.waitForFinished(30000));
        QVERIFY2(verify.exitStatus() == QProcess::NormalExit && verify.exitCode() == 0, verify.readAll().constData());
    }

private:
    static bool isMatch(const Rule& rule, const QString& key, const QString& value)
    {
        const Term term = rule.value(key);
        return term.op == QLatin1String("==") && term.value.compare(value, Qt::CaseInsensitive) == 0;
    }

    static bool grantsSeatUser(const Rule& rule)
    {
        const Term tag = rule.value(QStringLiteral("TAG"));
        return tag.op == QLatin1String("+=") && tag.value == QLatin1String("uaccess");
    }

    bool hasRule(const std::function<bool(const Rule&)>& wanted) const
    {
        static const QRegularExpression term(QStringLiteral("^([A-Z]+(?:\\{[^}]*\\})?)(==|!=|\\+=|-=|:=|=)\"(.*)\"$"));
        for (const QString& line : m_lines) {
            if (line.trimmed().startsWith(QLatin1Char('#')))
                continue;
            Rule rule;
            for (const QString& text : line.trimmed().split(QRegularExpression(QStringLiteral(",\\s*")))) {
                const QRegularExpressionMatch match = term.match(text);
                if (match.hasMatch())
                    rule.insert(match.captured(1), {match.captured(2), match.captured(3)});
            }
            if (wanted(rule))
                return true;
        }
        return false;
    }

    QStringList m_lines;
};

KEYSTAGE_TEST_MAIN(UdevRulesTest)
#include "tst_udevrules.moc"
