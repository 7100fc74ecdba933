#pragma once

#include <QList>
#include <QObject>
#include <QVariantMap>

class KeyItem;
class Settings;

// "My Favorite": configured keys set aside to reuse on any key, at most 60.
// Items keep the layout they were made for, so a folder can be fitted when it
// is dropped onto another layout.
class FavoriteKeyItemModel : public QObject
{
    Q_OBJECT
public:
    static constexpr int MaxItems = 60;

    explicit FavoriteKeyItemModel(QObject* parent = nullptr);
    ~FavoriteKeyItemModel() override;

    const QList<KeyItem*>& keyItems() const;
    int count() const;
    // A deep copy of the item at the end; false when the list is full.
    bool appendKeyItem(const KeyItem* item);
    // Indexes outside the list are ignored.
    void removeKeyItem(int index);
    void removeAll();
    // The list in the "KeyCnt" / "keyMap_%1" form.
    QVariantMap toMap() const;

signals:
    void updateContent();

public slots:
    void saveKeyItemsToSettings();
    void syncFile();
    void reloadKeyItemsFromSettings();
    void appendKeyItemFromImportedFile(const QVariantMap& keyItemMaps);
    void importFile(const QString& fileName);

private:
    Settings* settings() const;
    void clearItems();

    QList<KeyItem*> m_items;
    QString m_importFileName;
};
