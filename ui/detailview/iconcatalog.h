#pragma once

#include "emojicatalog.h"

#include <QFutureWatcher>
#include <QObject>
#include <QStringList>

// The icon chooser's lists: the names of the desktop icon theme's icons and
// the emoji with their names. Both are read on a worker thread (scanning a
// theme means reading thousands of folder entries) and kept for the editor
// session; the theme's list is read again when the theme changed. Results
// reach the GUI thread through finished(), so the window never waits.
class IconCatalog : public QObject
{
    Q_OBJECT
public:
    enum Source
    {
        ThemeIcons,
        Emoji,
    };
    Q_ENUM(Source)

    explicit IconCatalog(const QString& emojiFile, QObject* parent = nullptr);
    ~IconCatalog() override;

    // The editor session's catalog, owned by the application object. GUI thread.
    static IconCatalog* instance();

    // Starts reading unless the result is kept and current, or reading runs.
    void request(Source source);
    bool isRunning(Source source) const;
    bool hasResult(Source source) const;

    // The theme the kept names belong to.
    QString themeName() const { return m_themeName; }
    QStringList themeIconNames() const { return m_themeIcons; }
    EmojiList emoji() const { return m_emoji.entries; }
    // For the user; empty when the emoji were read.
    QString emojiError() const { return m_emoji.error; }

signals:
    void started(IconCatalog::Source source);
    void finished(IconCatalog::Source source);

private:
    QString currentThemeKey() const;
    void startThemeScan();
    void startEmojiLoad();
    void onThemeScanned();
    void onEmojiLoaded();

    QString m_emojiFile;
    QFutureWatcher<QStringList> m_themeWatcher;
    QFutureWatcher<EmojiCatalog::Result> m_emojiWatcher;
    // Theme and search paths of the scan running or kept.
    QString m_scanKey;
    QString m_themeName;
    QString m_scanningTheme;
    QStringList m_themeIcons;
    bool m_haveTheme = false;
    // From the start of a read until its result is taken: a future that has
    // finished but whose watcher has not yet said so still counts as running.
    bool m_themePending = false;
    bool m_emojiPending = false;
    EmojiCatalog::Result m_emoji;
    bool m_haveEmoji = false;
};
