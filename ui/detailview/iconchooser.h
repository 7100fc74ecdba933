#pragma once

#include "keyrenderinfo.h"

#include <QDialog>
#include <QImage>

class IconCatalog;
class IconGridPage;
class QDialogButtonBox;
class QLabel;
class QPushButton;
class QTabWidget;

// Picks a key's icon from one of three sources, each a tab: an image file,
// the desktop's icon theme and emoji. The grids are searched by name and
// worked with the keyboard (Enter takes the current icon); a preview shows
// the key's face with the icon as the keypad will show it. The result is the
// picture for userImg (KeyIconImage), made when the icon is chosen.
class IconChooser : public QDialog
{
    Q_OBJECT
public:
    enum Source
    {
        File,
        Theme,
        Emoji,
    };

    // face: the face the icon goes on, for the preview. Without a catalog,
    // the editor session's.
    IconChooser(const KeyRenderInfo& face, QWidget* parent = nullptr, IconCatalog* catalog = nullptr);

    Source source() const;
    void setSource(Source source);
    // The icon of the current source; null when it has none.
    QImage chosenImage() const;
    QString chosenName() const;

    // Reads an image file as the file source's icon; false, with the reason
    // shown, when it cannot be read.
    bool useFile(const QString& path);

    IconGridPage* page(Source source) const;
    QPushButton* fileButton() const { return m_fileButton; }
    QLabel* fileStatus() const { return m_fileStatus; }
    QPushButton* okButton() const;

private:
    QWidget* createFilePage();
    IconGridPage* createThemePage();
    IconGridPage* createEmojiPage();
    void browseFile();
    void onSourceShown();
    void onCatalogStarted(int source);
    void onCatalogFinished(int source);
    void showThemeIcons();
    void showEmoji();
    void updateChoice();

    KeyRenderInfo m_face;
    IconCatalog* m_catalog;
    QTabWidget* m_tabs = nullptr;
    QPushButton* m_fileButton = nullptr;
    QLabel* m_fileStatus = nullptr;
    QImage m_fileImage;
    QString m_fileName;
    IconGridPage* m_themePage = nullptr;
    IconGridPage* m_emojiPage = nullptr;
    QLabel* m_preview = nullptr;
    QLabel* m_previewName = nullptr;
    QDialogButtonBox* m_buttons = nullptr;
};
