#include "iconlistmodel.h"

#include <QElapsedTimer>
#include <QPainter>

namespace {

// Tiles kept: a few screens of the grid.
constexpr int CachedTiles = 600;
constexpr int TileMargin = 4;
// Drawing tiles holds the window's events back for at most about this long.
constexpr int DrawSliceMs = 25;

QPixmap blackTile(int side)
{
    QPixmap tile(side, side);
    tile.fill(Qt::transparent);
    QPainter painter(&tile);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    painter.drawRoundedRect(QRectF(tile.rect()), 4, 4);
    return tile;
}

} // namespace

IconListModel::IconListModel(Painter painter, int tileSize, QObject* parent)
    : QAbstractListModel(parent), m_painter(std::move(painter)), m_tileSize(tileSize), m_tiles(CachedTiles),
      m_emptyTile(blackTile(tileSize))
{
    m_drawTimer.setSingleShot(true);
    m_drawTimer.setInterval(0);
    connect(&m_drawTimer, &QTimer::timeout, this, &IconListModel::drawSomeTiles);
}

void IconListModel::setEntries(const QVector<Entry>& entries)
{
    beginResetModel();
    m_entries = entries;
    m_tiles.clear();
    m_pending.clear();
    endResetModel();
}

void IconListModel::dropPendingTiles()
{
    m_pending.clear();
}

int IconListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_entries.size();
}

QVariant IconListModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= m_entries.size())
        return QVariant();
    const Entry& entry = m_entries.at(index.row());
    switch (role) {
    case Qt::DecorationRole:
        return tile(index.row());
    case Qt::ToolTipRole:
    case Qt::AccessibleTextRole:
        return entry.label;
    case Qt::SizeHintRole:
        return QSize(m_tileSize, m_tileSize);
    case SearchRole:
        return entry.search;
    case KeyRole:
        return entry.key;
    default:
        return QVariant();
    }
}

QImage IconListModel::image(int row) const
{
    if (row < 0 || row >= m_entries.size() || !m_painter)
        return QImage();
    return m_painter(m_entries.at(row).key);
}

QPixmap IconListModel::tile(int row) const
{
    if (const QPixmap* kept = m_tiles.object(row))
        return *kept;
    if (!m_pending.contains(row))
        m_pending.append(row);
    if (!m_drawTimer.isActive())
        m_drawTimer.start();
    return m_emptyTile;
}

// The latest asked for first: they are the ones on screen now.
void IconListModel::drawSomeTiles()
{
    QElapsedTimer slice;
    slice.start();
    while (!m_pending.isEmpty() && slice.elapsed() < DrawSliceMs) {
        const int row = m_pending.takeLast();
        if (row >= m_entries.size() || m_tiles.contains(row))
            continue;
        m_tiles.insert(row, new QPixmap(drawTile(row)));
        const QModelIndex drawn = index(row, 0);
        emit dataChanged(drawn, drawn, {Qt::DecorationRole});
    }
    if (!m_pending.isEmpty())
        m_drawTimer.start();
}

QPixmap IconListModel::drawTile(int row) const
{
    QPixmap tile = m_emptyTile;
    const QImage picture = image(row);
    if (picture.isNull())
        return tile;
    QPainter painter(&tile);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(tile.rect().adjusted(TileMargin, TileMargin, -TileMargin, -TileMargin), picture);
    return tile;
}
