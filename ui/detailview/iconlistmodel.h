#pragma once

#include <QAbstractListModel>
#include <QCache>
#include <QImage>
#include <QPixmap>
#include <QTimer>
#include <QVector>

#include <functional>

// A grid of pictures for the icon chooser: thousands of entries, of which
// only those the view shows are drawn, and kept in a bounded cache. Drawing
// one takes milliseconds (a colour emoji is a compressed bitmap), so a tile
// the view asks for shows empty at first and is drawn a few at a time
// between the window's other events: typing in the search never waits for
// a screenful of pictures. Each picture is drawn as the key would show it
// (on a black tile), so a dark icon is not mistaken for a usable one.
class IconListModel : public QAbstractListModel
{
    Q_OBJECT
public:
    enum Role
    {
        // What the chooser's search looks through.
        SearchRole = Qt::UserRole + 2,
        // What identifies the entry to its source (an icon name, an emoji).
        KeyRole,
    };

    struct Entry
    {
        QString key;
        QString label;
        QString search;
    };

    // Draws an entry's picture as it goes into userImg (KeyIconImage).
    using Painter = std::function<QImage(const QString& key)>;

    IconListModel(Painter painter, int tileSize, QObject* parent = nullptr);

    void setEntries(const QVector<Entry>& entries);
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;

    // The picture for userImg of the entry at row; null if it cannot be drawn.
    QImage image(int row) const;
    // Forgets the tiles asked for but not drawn yet (the view shows others now).
    void dropPendingTiles();
    bool hasPendingTiles() const { return !m_pending.isEmpty(); }

private:
    QPixmap tile(int row) const;
    QPixmap drawTile(int row) const;
    void drawSomeTiles();

    Painter m_painter;
    int m_tileSize;
    QVector<Entry> m_entries;
    mutable QCache<int, QPixmap> m_tiles;
    mutable QVector<int> m_pending;
    mutable QTimer m_drawTimer;
    QPixmap m_emptyTile;
};
