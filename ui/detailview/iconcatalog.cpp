#include "iconcatalog.h"

#include "emojinames.h"
#include "iconthemeindex.h"
#include "logging.h"

#include <QCoreApplication>
#include <QIcon>
#include <QPointer>
#include <QtConcurrent>

IconCatalog::IconCatalog(const QString& emojiFile, QObject* parent) : QObject(parent), m_emojiFile(emojiFile)
{
    connect(&m_themeWatcher, &QFutureWatcherBase::finished, this, &IconCatalog::onThemeScanned);
    connect(&m_emojiWatcher, &QFutureWatcherBase::finished, this, &IconCatalog::onEmojiLoaded);
}

// A read under way is waited for: reads are short, and one left running
// would log and allocate after its catalog is gone.
IconCatalog::~IconCatalog()
{
    m_themeWatcher.waitForFinished();
    m_emojiWatcher.waitForFinished();
}

IconCatalog* IconCatalog::instance()
{
    static QPointer<IconCatalog> session;
    if (!session)
        session = new IconCatalog(EmojiCatalog::defaultPath(), QCoreApplication::instance());
    return session;
}

QString IconCatalog::currentThemeKey() const
{
    return QIcon::themeName() + QLatin1Char('\n') + QIcon::themeSearchPaths().join(QLatin1Char('\n'));
}

void IconCatalog::request(Source source)
{
    if (isRunning(source))
        return;
    if (source == ThemeIcons && (!m_haveTheme || m_scanKey != currentThemeKey()))
        startThemeScan();
    else if (source == Emoji && !m_haveEmoji)
        startEmojiLoad();
}

bool IconCatalog::isRunning(Source source) const
{
    return source == ThemeIcons ? m_themePending : m_emojiPending;
}

bool IconCatalog::hasResult(Source source) const
{
    return source == ThemeIcons ? m_haveTheme : m_haveEmoji;
}

void IconCatalog::startThemeScan()
{
    m_themePending = true;
    m_scanKey = currentThemeKey();
    m_scanningTheme = QIcon::themeName();
    const QStringList searchPaths = QIcon::themeSearchPaths();
    emit started(ThemeIcons);
    m_themeWatcher.setFuture(QtConcurrent::run(&IconThemeIndex::iconNames, m_scanningTheme, searchPaths));
}

void IconCatalog::startEmojiLoad()
{
    m_emojiPending = true;
    emit started(Emoji);
    // The language is read here, on the GUI thread that installed it.
    const QString locale = EmojiNames::currentLocale();
    m_emojiWatcher.setFuture(QtConcurrent::run([file = m_emojiFile, locale] {
        EmojiCatalog::Result result = EmojiCatalog::load(file);
        EmojiNames::translate(&result.entries, EmojiNames::defaultDirectory(), locale);
        return result;
    }));
}

void IconCatalog::onThemeScanned()
{
    m_themePending = false;
    m_themeIcons = m_themeWatcher.result();
    m_themeName = m_scanningTheme;
    m_haveTheme = true;
    LOG_MSG(QStringLiteral("%1 icons in theme %2").arg(m_themeIcons.size()).arg(m_themeName));
    emit finished(ThemeIcons);
    // The theme changed while it was read.
    if (m_scanKey != currentThemeKey())
        startThemeScan();
}

void IconCatalog::onEmojiLoaded()
{
    m_emojiPending = false;
    m_emoji = m_emojiWatcher.result();
    m_haveEmoji = true;
    LOG_MSG(QStringLiteral("%1 emoji read").arg(m_emoji.entries.size()));
    emit finished(Emoji);
}
